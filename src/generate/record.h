// The life of a generator's record. It lies at the address that the caller gives and fills the reported size
// exactly. A record type R has a tag of its own as R::kind, is made of two parameters and a seed, and has the
// members tag and owned.
#pragma once

#include "simd/check.h"

#include <zorcore.h>

#include <new>

namespace zors::ZORS_VARIANT {

template <class R, class State>
R* recordOf(State* pState)
{
    return reinterpret_cast<R*>(pState);
}

template <class R, class State>
ZorStatus context(const State* pState)
{
    return require(recordOf<const R>(pState)->tag == R::kind, zorStsWrongContext);
}

template <class R>
ZorStatus getSize(int* pSize)
{
    if (const ZorStatus bad = check(pointers(pSize))) return bad;
    *pSize = sizeof(R);
    return zorStsOk;
}

template <class R, class State, class T>
ZorStatus init(State* pState, T first, T second, Zor32u seed)
{
    if (const ZorStatus bad = check(pointers(pState))) return bad;
    new (static_cast<void*>(pState)) R(first, second, seed);
    return zorStsOk;
}

template <class R, class State, class T>
ZorStatus initAlloc(State** ppState, T first, T second, Zor32u seed)
{
    if (const ZorStatus bad = check(pointers(ppState))) return bad;
    auto* pState = static_cast<State*>(zorMalloc(sizeof(R)));
    if (!pState) return zorStsNoMemory;
    init<R>(pState, first, second, seed);
    recordOf<R>(pState)->owned = 1;
    *ppState = pState;
    return zorStsOk;
}

template <class R, class State>
ZorStatus release(State* pState)
{
    if (const ZorStatus bad = check(pointers(pState))) return bad;
    if (const ZorStatus bad = context<R>(pState)) return bad;
    auto* record = recordOf<R>(pState);
    record->tag = 0;
    if (record->owned) zorFree(record);
    return zorStsOk;
}

} // namespace zors::ZORS_VARIANT
