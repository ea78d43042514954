// Outputs as sums of the products of their taps and samples, both oldest first. The products of one output are added
// lane by lane; nothing beside its samples is read, and no product with 0 is added but of samples that are masked.
#pragma once

#include "simd/complex.h"
#include "simd/convert.h"
#include "simd/fused.h"
#include "simd/opaque.h"
#include "vector/lane.h"

namespace zors::ZORS_VARIANT {

// Sums of products; of complex ones by the real and by the imaginary parts of the taps.
template <class E>
struct LaneSum {
    using V = Vec<Lane<E>>;
    static constexpr bool isReal = LaneOf<E>::each == 1;
    V first = {}, second = {};

    [[gnu::always_inline]] void add(V taps, V x)
    {
        if constexpr (isReal) {
            first = mulAdd(taps, x, first);
        } else {
            x = opaque(x); // or a compiler would load it for each of both uses
            first = mulAdd(realTwice(taps), x, first);
            second = mulAdd(imaginaryTwice(taps), x, second);
        }
    }

    [[gnu::always_inline]] void join(const LaneSum& other)
    {
        first += other.first;
        if constexpr (!isReal) second += other.second;
    }

    [[gnu::always_inline]] V lanes() const
    {
        if constexpr (isReal)
            return first;
        else
            return alternateSum(first, partsExchanged(second));
    }
};

// The last vector of taps and samples, of which so many lanes have not been added before.
template <class E>
[[gnu::always_inline]] inline void addLast(LaneSum<E>& sum, const Lane<E>* taps, const Lane<E>* x, int left)
{
    using T = Lane<E>;
    constexpr int n = lanes<T>;
    const auto isLeft = iota<Index<T>>() >= static_cast<Index<T>>(n - left);
    sum.add(select(isLeft, load<n>(taps), Vec<T>{}), select(isLeft, load<n>(x), Vec<T>{}));
}

// One output, in the lanes of a vector whose sum it is.
template <class E>
struct LaneSumOfAny {
    [[gnu::always_inline]] Vec<Lane<E>> operator()(const E* pTaps, const E* pSamples,
                                                   std::ptrdiff_t len) const
    {
        constexpr int n = lanes<Lane<E>>;
        const auto* taps = asLanes(pTaps);
        const auto* x = asLanes(pSamples);
        const std::ptrdiff_t count = laneCount<E>(len);
        LaneSum<E> sum;
        std::ptrdiff_t left = count;
        const auto add = [&](LaneSum<E>& to) {
            to.add(load<n>(taps), load<n>(x));
            taps += n;
            x += n;
        };
        if (left >= 4 * n) {
            LaneSum<E> others[3];
            for (; left >= 4 * n; left -= 4 * n) {
                add(sum);
                for (auto& other : others) add(other);
            }
            sum.join(others[1]);
            others[0].join(others[2]);
            sum.join(others[0]);
        }
        for (; left >= n; left -= n) add(sum);
        if (left > 0) {
            if (count < n)
                sum.add(loadFirst<n>(taps, static_cast<int>(left)), loadFirst<n>(x, static_cast<int>(left)));
            else
                addLast(sum, taps + left - n, x + left - n, static_cast<int>(left));
        }
        return sum.lanes();
    }
};

// The same where taps and samples fill more than Vectors - 1 vectors, and no more than Vectors.
template <class E, int Vectors>
struct LaneSumOf {
    [[gnu::always_inline]] Vec<Lane<E>> operator()(const E* pTaps, const E* pSamples,
                                                   std::ptrdiff_t len) const
    {
        constexpr int n = lanes<Lane<E>>, whole = (Vectors - 1) * n;
        const auto* taps = asLanes(pTaps);
        const auto* x = asLanes(pSamples);
        const auto count = static_cast<int>(laneCount<E>(len));
        LaneSum<E> sum;
        for (int i = 0; i < whole; i += n) sum.add(load<n>(taps + i), load<n>(x + i));
        addLast(sum, taps + count - n, x + count - n, count - whole);
        return sum.lanes();
    }
};

// Calls run with what sums up outputs of so many taps, or of one less.
template <class E, class Run>
void withLaneSum(int mostTaps, Run run)
{
    constexpr int n = lanes<Lane<E>>, most = 6;
    const std::ptrdiff_t vectors = (laneCount<E>(mostTaps) + n - 1) / n;
    if (vectors < 2 || vectors > most) return run(LaneSumOfAny<E>{});
    const auto ifSo = [=](auto count) {
        if (vectors == count) run(LaneSumOf<E, count>{});
    };
    [=]<int... I>(std::integer_sequence<int, I...>)
    {
        (ifSo(std::integral_constant<int, I + 2>{}), ...);
    }
    (std::make_integer_sequence<int, most - 1>{});
}

// Both halves of a vector added, until one element is left.
template <class E, class V>
[[gnu::always_inline]] inline E total(V v)
{
    constexpr int half = lanesOf<V> / 2;
    if constexpr (lanesOf<V> == LaneOf<E>::each) {
        E sum;
        __builtin_memcpy(&sum, &v, sizeof sum);
        return sum;
    } else {
        const auto part = [v]<int... I>(auto first, std::integer_sequence<int, I...>)
        {
            return (Vec<ElementOf<V>, half>)__builtin_shufflevector(v, v, (decltype(first)::value + I)...);
        };
        constexpr std::make_integer_sequence<int, half> those;
        return total<E>(part(std::integral_constant<int, 0>{}, those) +
                        part(std::integral_constant<int, half>{}, those));
    }
}

// sum of taps[i] * samples[i]
template <class E>
[[gnu::always_inline]] inline E dot(const E* pTaps, const E* pSamples, std::ptrdiff_t len)
{
    return total<E>(LaneSumOfAny<E>{}(pTaps, pSamples, len));
}

// sum + tap * sample
template <class E>
[[gnu::always_inline]] inline E plusProduct(E sum, E tap, E sample)
{
    if constexpr (LaneOf<E>::each == 1)
        return mulAdd(tap, sample, sum);
    else
        return {subMul(mulAdd(tap.re, sample.re, sum.re), tap.im, sample.im),
                mulAdd(tap.im, sample.re, mulAdd(tap.re, sample.im, sum.im))};
}

template <class E>
[[gnu::always_inline]] inline E sumOfBoth(E a, E b)
{
    if constexpr (LaneOf<E>::each == 1)
        return a + b;
    else
        return {a.re + b.re, a.im + b.im};
}

// As many outputs as elements fill a vector: lane l of the result is the sum of the lanes of sums[l].
template <class E, int Size = LaneOf<E>::each, int Count>
[[gnu::always_inline]] inline Vec<Lane<E>> totals(Vec<Lane<E>> (&sums)[Count])
{
    if constexpr (Count == 1) {
        return sums[0];
    } else {
        Vec<Lane<E>> halved[Count / 2];
        for (int i = 0; i < Count / 2; ++i) {
            auto a = sums[2 * i], b = sums[2 * i + 1];
            exchangeBlocks<Size>(a, b);
            halved[i] = a + b;
        }
        return totals<E, 2 * Size>(halved);
    }
}

// Outputs one after the other, each in the lanes that sumOf gives: a vector of them at a time.
template <class E, class SumOf>
[[gnu::always_inline]] inline void storeTotals(E* pDst, std::ptrdiff_t outputs, SumOf sumOf)
{
    constexpr int n = lanes<Lane<E>>, each = LaneOf<E>::each, most = n / each;
    for (std::ptrdiff_t i = 0; i < outputs; i += most) {
        const int count = outputs - i < most ? static_cast<int>(outputs - i) : most;
        Vec<Lane<E>> sums[most];
        for (int k = 0; k < count; ++k) sums[k] = sumOf();
        for (int k = count; k < most; ++k) sums[k] = Vec<Lane<E>>{};
        const auto v = totals<E>(sums);
        if (count == most)
            store<n>(asLanes(pDst + i), v);
        else
            storeFirst<n>(asLanes(pDst + i), v, count * each);
    }
}

} // namespace zors::ZORS_VARIANT
