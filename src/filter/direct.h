// The sums of the filters without a record. The products of an output are numbered from its oldest sample on; each is
// rounded to the type that the taps ask for and added in double precision, in the pattern of simd/reduce.h over 32
// lanes. A complex product takes two lanes, one of real and one of imaginary parts. Multiplications and additions are
// never fused, so that every processor gives the same bits.
#pragma once

#include "simd/complex.h"
#include "simd/reduce.h"
#include "simd/round.h"
#include "vector/scale.h"
#include "vector/totals.h"

namespace zors::ZORS_VARIANT {

// Taps in single precision have products in single precision, all others in double precision.
template <class Tap>
using FactorOf = std::conditional_t<std::is_same_v<Lane<Tap>, Zor32f>, Zor32f, Zor64f>;

// Lanes of double precision: what a step takes of the taps or of the samples.
inline constexpr int sumLanes = lanes<Zor64f>, patternLanes = 32;

template <class F>
using FactorVec = Vec<F, sumLanes>;

template <class F, class V>
[[gnu::always_inline]] inline FactorVec<F> asFactors(V v)
{
    if constexpr (std::is_same_v<F, Zor32f>)
        return toFloat<sumLanes>(v);
    else
        return toDouble<sumLanes>(v);
}

// Scalars are put together where the vector would go through the stack, and be waited for.
template <class F, class T>
[[gnu::always_inline]] inline FactorVec<F> loadFactors(const T* p)
{
    if constexpr (sizeof(T) * sumLanes < 8)
        return FactorVec<F>{static_cast<F>(p[0]), static_cast<F>(p[1])};
    else
        return asFactors<F>(load<sumLanes>(p));
}

// The first or the last count lanes.
template <class F, class T>
[[gnu::always_inline]] inline FactorVec<F> loadFirstFactors(const T* p, int count)
{
    if constexpr (vectorBytes == 64) return asFactors<F>(loadFirst<sumLanes>(p, count));
    return [=]<int... I>(std::integer_sequence<int, I...>)
    {
        return FactorVec<F>{(I < count ? static_cast<F>(p[I]) : F{0})...};
    }
    (std::make_integer_sequence<int, sumLanes>{});
}

template <class F, class T>
[[gnu::always_inline]] inline FactorVec<F> loadLastFactors(const T* p, int count)
{
    if constexpr (vectorBytes == 64) return asFactors<F>(loadLast<sumLanes>(p, count));
    return [=]<int... I>(std::integer_sequence<int, I...>)
    {
        const int none = sumLanes - count;
        return FactorVec<F>{(I >= none ? static_cast<F>(p[I - none]) : F{0})...};
    }
    (std::make_integer_sequence<int, sumLanes>{});
}

// The same taps for every lane, or a tap a lane, ready to multiply samples.
template <class F, int Each>
struct TapFactors {
    FactorVec<F> re, im;

    [[gnu::always_inline]] Vec<Zor64f> times(FactorVec<F> x) const
    {
        if constexpr (Each == 1)
            return toDouble<sumLanes>(re * x);
        else
            return alternateSum(toDouble<sumLanes>(re * x), toDouble<sumLanes>(im * partsExchanged(x)));
    }
};

// The sum of one output.
template <class Tap, class Data>
class DirectSum {
public:
    // The products of some samples, oldest first, and of as many taps, the first of which belongs to the last
    // sample. Every count but the last one is a multiple of the lanes.
    void add(const Data* pSamples, const Tap* pTaps, std::ptrdiff_t count)
    {
        const auto* x = asLanes(pSamples);
        const std::ptrdiff_t len = laneCount<Tap>(count);
        const auto* end = asLanes(pTaps) + len;
        const auto whole = [=](std::ptrdiff_t i) __attribute__((always_inline))
        {
            return product(loadFactors<F>(x + i), loadFactors<F>(end - i - sumLanes));
        };
        // Every index is a constant, so that the sums stay in registers.
        [&]<int... J>(std::integer_sequence<int, J...>)
        {
            auto inner = sum_;
            std::ptrdiff_t i = 0;
            for (; i + patternLanes <= len; i += patternLanes)
                ((inner.part[J] += whole(i + J * sumLanes)), ...);
            const int left = static_cast<int>(len % sumLanes);
            Vec<Zor64f> last{};
            if (left > 0)
                last =
                    product(loadFirstFactors<F>(x + (len - left), left), loadLastFactors<F>(end - len, left));
            const auto rest = [&](int j) __attribute__((always_inline))
            {
                const std::ptrdiff_t at = i + j * sumLanes;
                if (at < len) inner.part[j] += at + sumLanes <= len ? whole(at) : last;
            };
            (rest(J), ...);
            sum_ = inner;
        }
        (std::make_integer_sequence<int, patternLanes / sumLanes>{});
    }

    Totals<Data, Zor64f> total() const { return sum_.template sum<LaneOf<Data>::each>(); }

private:
    using F = FactorOf<Tap>;
    static constexpr int each = LaneOf<Tap>::each;

    struct Backwards {
        constexpr int operator()(int i) const { return (sumLanes - each - i / each * each) + i % each; }
    };

    [[gnu::always_inline]] static Vec<Zor64f> product(FactorVec<F> x, FactorVec<F> h)
    {
        const auto taps = permute<Backwards>(h);
        if constexpr (each == 1)
            return TapFactors<F, each>{taps, taps}.times(x);
        else
            return TapFactors<F, each>{realTwice(taps), imaginaryTwice(taps)}.times(x);
    }

    Lanes<Zor64f, patternLanes> sum_;
};

// A sum rounded to the type of the data.
template <class T>
inline T roundedSum(Zor64f sum)
{
    return narrowedTo<T>(sum);
}

template <class T>
inline T roundedSum(Zor64f sum, int scaleFactor)
{
    T result{};
    withScale<Zor64f>(scaleFactor, [=, &result](auto scale) {
        result = rounded<T, Rounding::nearestEven>(scale(splat(sum)))[0];
    });
    return result;
}

} // namespace zors::ZORS_VARIANT
