// Taps and delay lines of records, as their users give and take them.
#pragma once

#include "chains.h"
#include "factors.h"
#include "multirate.h"
#include "numbers.h"
#include "single.h"

#include <algorithm>
#include <cmath>

namespace zors::ZORS_VARIANT {

// What a filter reads beside the reversed taps is made from them.
template <class E>
void foldTaps(FilterRecord<E>& r)
{
    constexpr int each = LaneOf<E>::each;
    auto* folded = r.folded;
    for (int i = r.tapsLen; i-- > 0;)
        for (int part = 0; part < each; ++part, folded += fold<Lane<E>>)
            std::fill_n(folded, fold<Lane<E>>, asLanes(r.reversed)[std::ptrdiff_t{each} * i + part]);
}

// The spectrum of the taps; where a transform fails the filter goes without.
template <class E>
void transformTaps(FilterRecord<E>& r)
{
    if (r.fftLen < 1) return;
    std::reverse_copy(r.reversed, r.reversed + r.tapsLen, r.spectrum);
    clearSamples(r.spectrum + r.tapsLen, r.fftLen - r.tapsLen);
    if ((*FilterTransform<E>::forward)(r.spectrum, r.spectrum, r.spec, r.work) != zorStsOk) r.fftLen = -1;
}

// Every table of the record, from its reversed taps.
template <class E>
void fillTables(FilterRecord<E>& r)
{
    if (r.kernel != Kernel::none) return fillPhases(r);
    foldTaps(r);
    transformTaps(r);
}

// The reversed taps. Integer taps alone have a factor.
template <class E, class T, class... Factor>
void setTaps(FilterRecord<E>& r, const T* pTaps, Factor... tapsFactor)
{
    loadNumbers(pTaps, r.reversed, r.tapsLen);
    std::reverse(r.reversed, r.reversed + r.tapsLen);
    r.tapsFactor = boundedFactor((0 + ... + tapsFactor));
}

// Integer taps by the factor asked for, floating ones by none.
template <class E, class T, class... Factor>
void getTaps(const FilterRecord<E>& r, T* pTaps, Factor... tapsFactor)
{
    if constexpr (sizeof...(Factor) > 0)
        storeNumbers(r.reversed, pTaps, r.tapsLen, r.tapsFactor - boundedFactor((0 + ... + tapsFactor)));
    else
        std::transform(asLanes(r.reversed), asLanes(r.reversed + r.tapsLen), asLanes(pTaps),
                       [&r](auto number) { return static_cast<Lane<T>>(std::ldexp(number, -r.tapsFactor)); });
    std::reverse(pTaps, pTaps + r.tapsLen);
}

template <class E, class D>
void setDelayLine(FilterRecord<E>& r, const D* pDlyLine)
{
    r.delayIndex = 0;
    if (!pDlyLine) return clearSamples(r.delay, r.delayLen);
    loadNumbers(pDlyLine, r.delay, r.delayLen);
    std::reverse(r.delay, r.delay + r.delayLen);
}

template <class E, class D>
void getDelayLine(const FilterRecord<E>& r, D* pDlyLine)
{
    storeNumbers(r.delay + r.delayIndex, pDlyLine, r.delayLen);
    std::reverse(pDlyLine, pDlyLine + r.delayLen);
}

} // namespace zors::ZORS_VARIANT
