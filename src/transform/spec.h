// Sizes and initialisation of the floating kinds, which the integer kinds nest.
#pragma once

#include "engine.h"
#include "lifecycle.h"
#include "recombine.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <type_traits>

namespace zors::ZORS_VARIANT {

inline bool isFlag(int flag)
{
    return flag == ZOR_FFT_SCALE_FWD || flag == ZOR_FFT_SCALE_INV || flag == ZOR_FFT_SCALE_SQRT ||
           flag == ZOR_FFT_SCALE_NONE;
}

template <class Kind>
constexpr int complexOrder(int order)
{
    return Kind::real && order > 0 ? order - 1 : order;
}

template <class T>
constexpr int mostSmallRealOrder()
{
    return sizeof(T) == 4 ? 4 : 5;
}

// Initialisation needs a quarter wave from here on; below it is short enough for the stack.
inline constexpr int firstOrderWithInit = 11;

template <class T>
constexpr std::int64_t quarterWaveBytes(int order)
{
    return bytes<T> * ((std::int64_t{1} << order) / 4 + 1);
}

template <class Kind>
inline void layOut(Layout& layout, int order, typename Kind::Record& r)
{
    using T = typename Kind::Number;
    layout.header(floatHeader);
    const int inner = complexOrder<Kind>(order);
    if (inner > mostSmallOrder) {
        if (inner < firstBlockedOrder)
            layout.take(r.bitReversal, bytes<Zor32s> * ((std::int64_t{1} << inner) / 4 + 1));
        layout.take(r.factors, factorBytes<T>(inner));
        if (inner >= firstHalvedOrder<T>) layout.take(r.halfFactors, halfFactorBytes<T>(inner));
    }
    if (Kind::real && order > mostSmallRealOrder<T>()) {
        layout.take(r.realFactors, 2 * bytes<T> * recombinationFactors<T>(order));
        layout.take(r.ccsFactors, 2 * bytes<T> * recombinationFactors<T>(order));
    }
}

template <class Kind>
inline Sizes floatSizes(int order)
{
    using T = typename Kind::Number;
    Layout counting;
    typename Kind::Record none{};
    layOut<Kind>(counting, order, none);
    return {counting.size(), order < firstOrderWithInit ? 0 : wholeLines(quarterWaveBytes<T>(order)),
            workBytes<T>(complexOrder<Kind>(order))};
}

// Bytes of the data of an integer kind, converted: two numbers a point. One, and two more for the zeros of CCS, are
// enough for real data: so it is in the wide kinds, and in the narrow one where two would pass 2^31 bytes.
template <class Kind>
constexpr std::int64_t convertedBytes(int order)
{
    using Floating = KindOf<typename Kind::Nested>;
    constexpr bool narrow = std::is_same_v<typename Kind::Record, NarrowRecord>;
    constexpr std::int64_t size = bytes<typename Floating::Number>;
    const std::int64_t n = std::int64_t{1} << order;
    const std::int64_t two = 2 * size * n, one = wholeLines(size * (n + 2));
    const bool saves = Floating::real && (!narrow || two > INT32_MAX);
    return saves && one < two ? one : two;
}

// Twice the bit reversal of 0..N/4 - 1, and a 0 behind it. Users of the record's layout read it; the engine sorts
// without.
inline void fillBitReversal(int order, Zor32s* p)
{
    const Zor32s count = 1 << (order - 2);
    Zor32s reversedIndex = 0;
    for (Zor32s k = 0; k < count; ++k) {
        p[k] = 2 * reversedIndex;
        Zor32s bit = count / 2;
        for (; reversedIndex & bit; bit /= 2) reversedIndex ^= bit;
        reversedIndex |= bit;
    }
    p[count] = 0;
}

template <class Kind>
inline void fillTables(int order, typename Kind::Record& r, typename Kind::Number* quarterWave)
{
    using T = typename Kind::Number;
    const int inner = complexOrder<Kind>(order);
    if (!r.factors && !r.realFactors) return;
    fillQuarterWave(order, quarterWave);
    const Wave<T> wave(order, quarterWave);
    if (r.bitReversal) fillBitReversal(inner, r.bitReversal);
    if (r.factors) fillFactors(inner, wave, r.factors);
    if (r.halfFactors) fillHalves(inner, wave, r.halfFactors);
    if (r.realFactors) fillRecombination<true>(order, wave, r.realFactors);
    if (r.ccsFactors) fillRecombination<false>(order, wave, r.ccsFactors);
}

template <class Record>
inline void setScale(Record& r, std::int64_t n, int flag)
{
    using T = decltype(r.factor);
    r.scalesForward = flag == ZOR_FFT_SCALE_FWD || flag == ZOR_FFT_SCALE_SQRT;
    r.scalesInverse = flag == ZOR_FFT_SCALE_INV || flag == ZOR_FFT_SCALE_SQRT;
    if (flag == ZOR_FFT_SCALE_SQRT)
        r.factor = static_cast<T>(1 / std::sqrt(static_cast<double>(n)));
    else if (flag != ZOR_FFT_SCALE_NONE)
        r.factor = 1 / static_cast<T>(n);
}

// Builds a record in aligned memory; the order is valid for the kind.
template <class Kind>
inline ZorStatus buildFloat(int order, int flag, ZorHintAlgorithm hint, void* memory, Zor8u* pInit)
{
    using T = typename Kind::Number;
    using Record = typename Kind::Record;
    std::memset(memory, 0, floatHeader);
    Record& r = *static_cast<Record*>(memory);
    if (!isFlag(flag)) return zorStsBadFftFlag;
    const Sizes sizes = floatSizes<Kind>(order);
    if (sizes.init > 0 && !pInit) return zorStsNullPointer;

    r.order = order;
    r.hint = hint;
    r.workSize = static_cast<Zor32s>(sizes.work);
    setScale(r, std::int64_t{1} << order, flag);
    Layout placing(memory);
    layOut<Kind>(placing, order, r);
    T short_[(1 << (firstOrderWithInit - 3)) + 1];
    fillTables<Kind>(order, r, sizes.init > 0 ? reinterpret_cast<T*>(aligned(pInit)) : short_);
    r.tag = Kind::tag;
    return zorStsOk;
}

} // namespace zors::ZORS_VARIANT
