// How a record is made, in the caller's memory or the library's: its design, its regions, its transform, its content.
#pragma once

#include "rates.h"
#include "taps.h"

#include <zorcore.h>

namespace zors::ZORS_VARIANT {

// What a filter is made of. A single-rate one has a transform where it is long enough.
struct Design {
    Zor32u tag;
    int tapsLen;
    Rates rates;
    BlockTransform transform;
    std::int64_t size;
};

template <class State>
Design singleRate(int tapsLen, Zor32u tag, bool ownsTransform = false)
{
    using Kind = KindOfFilter<State>;
    using E = typename Kind::Number;
    const BlockTransform transform = Kind::isExact ? BlockTransform{} : blockTransform<E>(tapsLen);
    return {tag, tapsLen, {}, transform, singleRateSize<E>(tapsLen, transform, ownsTransform)};
}

// With both factors 1 a filter is of a single rate, where its kind has records for it.
template <class State>
Design multiRate(int tapsLen, Rates rates, bool ownsTransform = false)
{
    using Kind = KindOfFilter<State>;
    using E = typename Kind::Number;
    if (Kind::single != 0 && rates.upFactor == 1 && rates.downFactor == 1)
        return singleRate<State>(tapsLen, Kind::single, ownsTransform);
    const auto size = multiRateSize<E>(tapsLen, rates.upFactor, rates.downFactor, Kind::converts);
    return {Kind::multiRate, tapsLen, rates, {}, size};
}

inline ZorStatus representable(const Design& design)
{
    return require(design.size <= INT32_MAX, zorStsBadSize);
}

// The record with its regions, in memory of the design's size, and the places for its transform.
template <class State>
TransformMemory ownsFIRInit(FilterRecord<NumberOf<State>>*& made, void* memory, const Design& d,
                            bool ownsTransform)
{
    using E = NumberOf<State>;
    FilterLayout<E> layout(memory);
    made = layout.record();
    FilterRecord<E>& r = *made;
    std::memset(static_cast<void*>(&r), 0, sizeof r);
    r.tag = d.tag;
    r.tapsLen = r.delayLen = d.tapsLen;
    r.fftLen = -1;
    r.directLimit = ((d.tapsLen + 3) & ~3) + 1;
    r.upFactor = d.rates.upFactor;
    r.upPhase = d.rates.upPhase;
    r.downFactor = d.rates.downFactor;
    r.downPhase = d.rates.downPhase;
    if (d.tag == KindOfFilter<State>::multiRate) {
        r.kernel = kernelOf(d.tapsLen, r.upFactor, r.downFactor);
        r.delayLen = delayOf(d.tapsLen, r.upFactor);
        layOutMultiRate(layout, r, d.tapsLen, r.upFactor, r.downFactor, KindOfFilter<State>::converts);
        return {};
    }
    const TransformMemory places = layOutSingleRate(layout, r, d.tapsLen, d.transform, ownsTransform);
    clearSamples(r.delay, 3 * std::ptrdiff_t{d.tapsLen});
    if (d.tag == KindOfFilter<State>::multiRateStream) {
        r.kernel = Kernel::direct;
        r.delayLen = delayOf(d.tapsLen, r.upFactor);
    }
    return places;
}

// Transforms are faster and never needed: where the record of one cannot be made, not even for lack of memory, the
// filter goes without.
template <class E>
void takeTransform(FilterRecord<E>& r, const BlockTransform& t, ZorStatus status)
{
    if (status != zorStsOk) return;
    r.fftLen = t.fftLen;
    r.workSize = t.work;
}

// In the caller's memory.
template <class State>
FilterRecord<NumberOf<State>>& build(Zor8u* pBuffer, const Design& d)
{
    using E = NumberOf<State>;
    FilterRecord<E>* r = nullptr;
    const TransformMemory places = ownsFIRInit<State>(r, pBuffer, d, false);
    if (d.transform.fftLen > 0)
        takeTransform(*r, d.transform,
                      (*FilterTransform<E>::init)(&r->spec, d.transform.order, ZOR_FFT_SCALE_INV, ZOR_ALG_ANY,
                                                  places.spec, places.init));
    return *r;
}

// In memory of the library; null where there is none.
template <class State>
FilterRecord<NumberOf<State>>* allocate(const Design& d)
{
    using E = NumberOf<State>;
    void* memory = zorMalloc(static_cast<int>(d.size));
    if (!memory) return nullptr;
    FilterRecord<E>* r = nullptr;
    ownsFIRInit<State>(r, memory, d, true);
    r->owned = 1;
    r->memory = memory;
    if (d.transform.fftLen > 0)
        takeTransform(
            *r, d.transform,
            (*FilterTransform<E>::initAlloc)(&r->spec, d.transform.order, ZOR_FFT_SCALE_INV, ZOR_ALG_ANY));
    return r;
}

template <class State, class T, class... Factor>
State* filled(FilterRecord<NumberOf<State>>& r, const T* pTaps, const DataOf<State>* pDlyLine,
              Factor... tapsFactor)
{
    setTaps(r, pTaps, tapsFactor...);
    fillTables(r);
    setDelayLine(r, pDlyLine);
    return reinterpret_cast<State*>(&r);
}

template <class State, class T, class... Factor>
ZorStatus initDesign(State** ppState, const Design& d, Zor8u* pBuffer, const T* pTaps,
                     const DataOf<State>* pDlyLine, Factor... tapsFactor)
{
    if (const ZorStatus bad = representable(d)) return bad;
    *ppState = filled<State>(build<State>(pBuffer, d), pTaps, pDlyLine, tapsFactor...);
    return zorStsOk;
}

template <class State, class T, class... Factor>
ZorStatus allocateDesign(State** ppState, const Design& d, const T* pTaps, const DataOf<State>* pDlyLine,
                         Factor... tapsFactor)
{
    if (const ZorStatus bad = representable(d)) return bad;
    auto* r = allocate<State>(d);
    if (!r) return zorStsNoMemory;
    *ppState = filled<State>(*r, pTaps, pDlyLine, tapsFactor...);
    return zorStsOk;
}

inline ZorStatus tellSize(const Design& d, int* pStateSize)
{
    if (const ZorStatus bad = representable(d)) return bad;
    *pStateSize = static_cast<int>(d.size);
    return zorStsOk;
}

} // namespace zors::ZORS_VARIANT
