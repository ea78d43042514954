// What all records of transforms have in common from the allocation to the release.
#pragma once

#include "layout.h"
#include "simd/check.h"

#include <zorcore.h>

#include <type_traits>

namespace zors::ZORS_VARIANT {

struct Sizes {
    std::int64_t spec; // with room to align
    std::int64_t init; // the others without
    std::int64_t work;
};

inline bool canBeTold(const Sizes& sizes)
{
    constexpr std::int64_t most = INT32_MAX - lineBytes;
    return sizes.spec <= most && sizes.init <= most && sizes.work <= most;
}

inline int withSlack(std::int64_t bytes)
{
    return static_cast<int>(bytes > 0 ? bytes + lineBytes : 0);
}

inline void tell(const Sizes& sizes, int* pSpecSize, int* pInitSize, int* pBufferSize)
{
    *pSpecSize = static_cast<int>(sizes.spec);
    *pInitSize = withSlack(sizes.init);
    *pBufferSize = withSlack(sizes.work);
}

// Where a record keeps the block that is to be freed with it.
template <class Kind>
inline void*& blockOf(typename Kind::Record& r)
{
    if constexpr (std::is_same_v<typename Kind::Record, WideRecord>)
        return static_cast<typename KindOf<typename Kind::Nested>::Record*>(r.nested)->block;
    else
        return r.block;
}

// A record in memory of the library; build(memory, scratch) makes it there.
template <class Spec, class Build>
inline ZorStatus allocated(Spec** ppSpec, const Sizes& sizes, Build build)
{
    using Kind = KindOf<Spec>;
    const int initSize = withSlack(sizes.init);
    auto* block = static_cast<Zor8u*>(zorMalloc(static_cast<int>(sizes.spec)));
    auto* scratch = static_cast<Zor8u*>(initSize > 0 ? zorMalloc(initSize) : nullptr);
    if (!block || (initSize > 0 && !scratch)) {
        zorFree(block);
        zorFree(scratch);
        return zorStsNoMemory;
    }
    Zor8u* memory = aligned(block);
    const ZorStatus status = build(memory, scratch);
    zorFree(scratch);
    if (status != zorStsOk) {
        zorFree(block);
        return status;
    }
    auto& r = *reinterpret_cast<typename Kind::Record*>(memory);
    r.owned = 1;
    blockOf<Kind>(r) = block;
    *ppSpec = reinterpret_cast<Spec*>(memory);
    return zorStsOk;
}

template <class Spec>
inline ZorStatus release(Spec* pSpec)
{
    if (const ZorStatus bad = record(pSpec)) return bad;
    auto& r = *recordOf(pSpec);
    r.tag = 0;
    if (r.owned == 1) zorFree(blockOf<KindOf<Spec>>(r));
    return zorStsOk;
}

template <class Spec>
inline ZorStatus getBufSize(const Spec* pSpec, int* pBufferSize)
{
    if (const ZorStatus bad = check(record(pSpec), pointers(pBufferSize))) return bad;
    *pBufferSize = withSlack(recordOf(pSpec)->workSize);
    return zorStsOk;
}

} // namespace zors::ZORS_VARIANT
