// Many outputs of the filters without a record, and what else their entries share.
#pragma once

#include "direct.h"
#include "factors.h"
#include "rates.h"
#include "transform/integer.h"
#include "vector/quotient.h"

namespace zors::ZORS_VARIANT {

// The sums of Vectors vectors of consecutive outputs, whose samples begin one after the other. The lanes of the
// pattern are whole vectors here: four that meet first are added up together, and the rest of the tree follows.
template <int Vectors, class Tap, class Data>
[[gnu::noinline]] void adjacentSums(const Data* pSamples, const Tap* pTaps, std::ptrdiff_t tapsLen,
                                    Zor64f* pSums)
{
    using F = FactorOf<Tap>;
    constexpr int each = LaneOf<Tap>::each, pattern = patternLanes / each, quarter = pattern / 4;
    Vec<Zor64f> sums[quarter][Vectors];
    // Those lanes that have products; a phase of a multi-rate filter may have none.
    const int used = static_cast<int>(std::clamp<std::ptrdiff_t>(tapsLen, 1, quarter));
    for (int i = 0; i < used; ++i) {
        Vec<Zor64f> lane[4][Vectors] = {};
        const auto add = [&](int q, std::ptrdiff_t n) __attribute__((always_inline))
        {
            const auto* tap = asLanes(pTaps + (tapsLen - 1 - n));
            const TapFactors<F, each> taps{splat<F, sumLanes>(static_cast<F>(tap[0])),
                                           splat<F, sumLanes>(static_cast<F>(tap[each - 1]))};
            const auto* x = asLanes(pSamples + n);
            for (int v = 0; v < Vectors; ++v) lane[q][v] += taps.times(loadFactors<F>(x + v * sumLanes));
        };
        std::ptrdiff_t n = i;
        for (; n + 3 * quarter < tapsLen; n += pattern) {
            add(0, n);
            add(1, n + quarter);
            add(2, n + 2 * quarter);
            add(3, n + 3 * quarter);
        }
        if (n < tapsLen) add(0, n);
        if (n + quarter < tapsLen) add(1, n + quarter);
        if (n + 2 * quarter < tapsLen) add(2, n + 2 * quarter);
        for (int v = 0; v < Vectors; ++v) sums[i][v] = (lane[0][v] + lane[2][v]) + (lane[1][v] + lane[3][v]);
    }
    for (int half = quarter / 2; half > 0; half /= 2)
        for (int i = 0; i < std::min(half, used - half); ++i)
            for (int v = 0; v < Vectors; ++v) sums[i][v] += sums[i + half][v];
    for (int v = 0; v < Vectors; ++v) store<sumLanes>(pSums + v * sumLanes, sums[0][v]);
}

// The sums of count consecutive outputs.
template <class Tap, class Data>
void consecutiveSums(const Data* pSamples, const Tap* pTaps, std::ptrdiff_t tapsLen, std::ptrdiff_t count,
                     Zor64f* pSums)
{
    // As many sums as the registers hold.
    constexpr int each = LaneOf<Tap>::each, vectors = vectorBytes == 64 ? 4 : 2;
    constexpr std::ptrdiff_t one = sumLanes / each, many = vectors * one;
    std::ptrdiff_t i = 0;
    for (; i + many <= count; i += many)
        adjacentSums<vectors>(pSamples + i, pTaps, tapsLen, pSums + each * i);
    if (count >= one) {
        // The last vector may take outputs once more.
        for (; i < count; i += one) {
            const std::ptrdiff_t first = std::min(i, count - one);
            adjacentSums<1>(pSamples + first, pTaps, tapsLen, pSums + each * first);
        }
    } else {
        for (; i < count; ++i) {
            DirectSum<Tap, Data> sum;
            sum.add(pSamples + i, pTaps, tapsLen);
            const auto total = sum.total();
            std::copy(total.begin(), total.end(), pSums + each * i);
        }
    }
}

// Sums rounded to the type of the data.
template <class Data>
inline void roundSums(const Zor64f* pSums, Data* pDst, std::ptrdiff_t count)
{
    using T = Lane<Data>;
    blocks<sumLanes>(laneCount<Data>(count), [=](auto at) {
        if constexpr (std::is_same_v<T, Zor32f>)
            store(asLanes(pDst), at, toFloat<sumLanes>(load(pSums, at)));
        else
            store(asLanes(pDst), at, load(pSums, at));
    });
}

template <class Data>
inline void roundSums(const Zor64f* pSums, Data* pDst, std::ptrdiff_t count, int scaleFactor)
{
    toIntegers(pSums, asLanes(pDst), laneCount<Data>(count), scaleFactor);
}

// 16-bit taps on 16-bit data promise the exact sum. In double precision all sums of so many products are.
template <class Tap>
inline constexpr std::ptrdiff_t mostExactTaps =
    std::is_same_v<Tap, Zor16s> ? std::ptrdiff_t{1} << 23 : std::numeric_limits<std::ptrdiff_t>::max();

} // namespace zors::ZORS_VARIANT
