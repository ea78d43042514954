// Reductions in a fixed pattern: of L lanes, element n goes to lane n mod L, and the lanes are joined by one tree,
// lane i with lane i + L / 2, then with i + L / 4 and so on. The width of the vectors changes neither, so every
// variant gives the same bits.
//
// A kernel says what happens to the elements: it has the number of lanes, the step (elements in a vector that it
// takes) and add(j, v), which adds v to its accumulators number j. Kernels take as many lanes as fill four of the
// widest registers: 32 of double precision, or half of that where they gather two things at once.
#pragma once

#include "convert.h"
#include "loop.h"
#include "shuffle.h"
#include "widen.h"

#include <array>

namespace zors::ZORS_VARIANT {

template <class T, int L>
struct Lanes {
    static constexpr int count = L / lanes<T>;
    Vec<T> part[count];

    explicit Lanes(T start = T{})
    {
        for (auto& p : part) p = splat(start);
    }

    // Lane n of the result joins the lanes n, n + Results, n + 2 * Results and so on.
    template <int Results = 1, class Join>
    std::array<T, Results> joined(Join join) const
    {
        Vec<T> v[count];
        __builtin_memcpy(v, part, sizeof v);
        for (int half = count / 2; half > 0; half /= 2)
            for (int j = 0; j < half; ++j) v[j] = join(v[j], v[j + half]);
        return joinedHalves<Results>(v[0], join);
    }

    template <int Results = 1>
    std::array<T, Results> sum() const
    {
        return joined<Results>([](auto a, auto b) { return a + b; });
    }

private:
    // The lanes of v from the one numbered first on, N of them.
    template <int First, int N, class V>
    static Vec<T, N> partOf(V v)
    {
        return [v]<int... I>(std::integer_sequence<int, I...>)
        {
            return __builtin_shufflevector(v, v, ((First + I) % lanesOf<V>)...);
        }
        (std::make_integer_sequence<int, N>{});
    }

    // Down to 16 bytes the halves are vectors of their own; in there the lower half is as good as a vector.
    template <int Results, int Left = lanes<T>, class V, class Join>
    static std::array<T, Results> joinedHalves(V v, Join join)
    {
        constexpr int half = Left / 2, kept = sizeof(V) > 16 ? half : lanesOf<V>;
        if constexpr (half >= Results) {
            return joinedHalves<Results, half>(join(partOf<0, kept>(v), partOf<half, kept>(v)), join);
        } else {
            std::array<T, Results> result;
            __builtin_memcpy(result.data(), &v, sizeof result);
            return result;
        }
    }
};

// Where the kernel names a filler, the missing lanes of the last vector have that value, elsewhere they are 0.
template <class Kernel, class T>
inline auto loadEnd(const T* p, int count)
{
    constexpr int n = Kernel::step;
    const Vec<T, n> v = loadFirst<n>(p, count);
    if constexpr (requires { Kernel::filler; })
        return select(iota<std::int32_t, n>() < count, v, splat<T, n>(Kernel::filler));
    else
        return v;
}

// Adds all elements to a kernel.
template <class Kernel, class T>
inline void reduce(Kernel& kernel, const T* p, std::ptrdiff_t len)
{
    constexpr int n = Kernel::step;
    std::ptrdiff_t i = 0;
    if (len >= Kernel::lanes) {
        // Every index is a constant, so that the accumulators of the copy stay in registers.
        Kernel inner = kernel;
        for (; i + Kernel::lanes <= len; i += Kernel::lanes) [&]<int... J>(std::integer_sequence<int, J...>)
            {
                (inner.add(J, load<n>(p + i + J * n)), ...);
            }
        (std::make_integer_sequence<int, Kernel::lanes / n>{});
        kernel = inner;
    }
    int j = 0;
    for (; i + n <= len; i += n) kernel.add(j++, load<n>(p + i));
    if (i < len) kernel.add(j, loadEnd<Kernel>(p + i, static_cast<int>(len - i)));
}

// Runs a fresh kernel over every Block elements and hands it to finish, which moves what it gathered to wider totals.
template <int Block, class Kernel, class T, class Finish>
inline void reduceBlocks(const T* p, std::ptrdiff_t len, Finish finish)
{
    std::ptrdiff_t i = 0;
    for (; i + Block <= len; i += Block) {
        Kernel kernel;
        reduce(kernel, p + i, Block);
        finish(kernel);
    }
    if (i < len) {
        Kernel kernel;
        reduce(kernel, p + i, len - i);
        finish(kernel);
    }
}

template <int N>
inline Vec<double, N> toDouble(Vec<double, N> v)
{
    return v;
}

// Rounded to the type. By instruction, because g++ 12 turns two neighbouring roundings into a vector and drops them
// where the result is widened again.
template <class T>
inline T narrowedTo(double v)
{
    if constexpr (std::is_same_v<T, float>)
        return _mm_cvtss_f32(_mm_cvtsd_ss(_mm_setzero_ps(), _mm_set_sd(v)));
    else
        return v;
}

// sum + a * a where the square is exact, so that fusing the two changes nothing.
inline Vec<double> plusExactSquare(Vec<double> sum, Vec<double> a)
{
#if ZORS_VECTOR_BYTES == 64
    return (Vec<double>)_mm512_fmadd_pd((__m512d)a, (__m512d)a, (__m512d)sum);
#elif ZORS_VECTOR_BYTES == 32
    return (Vec<double>)_mm256_fmadd_pd((__m256d)a, (__m256d)a, (__m256d)sum);
#else
    return sum + a * a;
#endif
}

// The exact sum of unsigned 32-bit elements. Pairs are added as they are, two in 64 bits, and the upper ones once
// more by themselves: what wraps around is put right at the end.
template <int L>
struct UnsignedSum {
    Lanes<std::uint64_t, L> pairs, upper;

    void add(int j, Vec<std::uint64_t> v)
    {
        pairs.part[j] += v;
        upper.part[j] += v >> 32;
    }

    std::uint64_t sum() const
    {
        const std::uint64_t high = upper.sum()[0];
        return pairs.sum()[0] - (high << 32) + high;
    }
};

} // namespace zors::ZORS_VARIANT
