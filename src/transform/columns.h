// Transforms of many columns at once: M rows of W columns become their M-point transforms, lane by lane, without
// a shuffle. Passes of radix 4 to 16 that sort themselves (Stockham's arrangement, decimation in time): behind a
// pass with l = product of the radices so far, row j M / l + g holds point j of the transform of every M / l-th
// row from g on. The first pass needs no factors and may write where it reads.
#pragma once

#include "ports.h"
#include "record.h"

namespace zors::ZORS_VARIANT {

// Radix 16 needs all of 32 registers for its points alone, so radix 8 is faster, with 16 and with 32. Measured. But a
// first pass of 16, which has no factors, in the place of two of 4 saves a way through the data.
inline constexpr int mostLevels = 3;

constexpr bool beginsWith16(int m)
{
    return m > 2 * mostLevels && m % mostLevels == 1;
}

// How the levels of an M-point column, M = 2^m, are divided among passes: evenly, the larger radices first.
struct Passes {
    int m;
    int count = beginsWith16(m) ? m / mostLevels : (m + mostLevels - 1) / mostLevels;

    // At most two levels are missing: the last pass lacks one, then the one before it. Or the first has one more.
    constexpr int levels(int pass) const
    {
        const int missing = count * mostLevels - m, behind = count - 1 - pass;
        if (missing < 0) return mostLevels + (pass == 0 ? 1 : 0);
        return mostLevels - (missing > behind ? 1 : 0);
    }
};

// Number of factors of all passes: (radix - 1) l for each but the first.
constexpr std::ptrdiff_t columnFactors(int m)
{
    const Passes passes{m};
    return (std::ptrdiff_t{1} << m) - (std::ptrdiff_t{1} << passes.levels(0));
}

template <int R, int W, bool First, class T, class In, class Out>
[[gnu::always_inline]] inline void columnPass(In in, Out out, std::ptrdiff_t done, std::ptrdiff_t groups,
                                              const T* factors)
{
    using V = Vec<T, W>;
    const Stride inStride = in.stride(groups), outStride = out.stride(done * groups);
    for (std::ptrdiff_t j = 0; j < done; ++j, factors += 2 * (R - 1)) {
        for (std::ptrdiff_t g = 0; g < groups; ++g) {
            const auto src = in.template from<R>(j * groups * R + g, inStride);
            Cx<V> x[R];
            dft(x, [&](int t) {
                x[t] = src.get(t);
                if constexpr (!First)
                    if (t > 0)
                        x[t] =
                            times(x[t], {constant<V>(factors[2 * t - 2]), constant<V>(factors[2 * t - 1])});
            });
            const auto dst = out.template from<R>(j * groups + g, outStride);
#pragma GCC unroll 16
            for (int u = 0; u < R; ++u) dst.put(u, x[u]);
        }
    }
}

// One pass of 2^levels; kept out of line, so that each exists once for its ports.
template <int W, bool First, class T, class In, class Out>
[[gnu::noinline]] void pass(int levels, In in, Out out, std::ptrdiff_t done, std::ptrdiff_t groups,
                            const T* factors)
{
    switch (levels) {
    case 2:
        return columnPass<4, W, First>(in, out, done, groups, factors);
    case 4:
        if constexpr (First) return columnPass<16, W, First>(in, out, done, groups, factors);
        break;
    default:
        return columnPass<8, W, First>(in, out, done, groups, factors);
    }
}

// Where a transform stands between two passes.
template <class T>
struct Progress {
    Passes passes;
    std::ptrdiff_t groups; // rows over the product of the radices so far
    const T* factors;
    int pass = 0;
    std::ptrdiff_t done = 1;

    Progress(int m, const T* f) : passes{m}, groups(std::ptrdiff_t{1} << m), factors(f) {}
    bool isLast() const { return pass == passes.count - 1; }
    int levels() const { return passes.levels(pass); }
    void step()
    {
        if (pass > 0) factors += 2 * done * ((1 << levels()) - 1);
        done <<= levels();
        groups >>= levels();
        ++pass;
    }
};

// The first two passes at once, by the rows that depend on one another: every n-th, few enough for the first cache.
template <int W, class T, class In, class Out>
inline void firstTwoPasses(Progress<T>& at, In in, Out out)
{
    alignas(lineBytes) T memory[2 * W << (2 * mostLevels + 1)];
    const Rows<T, W> few{memory};
    const int first = at.levels(), second = at.passes.levels(1);
    const T* factors = at.factors;
    at.step();
    at.step();
    for (std::ptrdiff_t g = 0; g < at.groups; ++g) {
        pass<W, true>(first, in.every(at.groups, g), few, 1, std::ptrdiff_t{1} << second, factors);
        pass<W, false>(second, few, out.every(at.groups, g), std::ptrdiff_t{1} << first, 1, factors);
    }
}

// All passes but the last, of three or more; the result is in a. What lies between takes turns in a and b, either
// of which may be where the input is.
template <int W, class T, class In, class A, class B>
inline void allButLast(Progress<T>& at, In in, A a, B b)
{
    if (at.passes.count % 2 == 1)
        firstTwoPasses<W>(at, in, a);
    else
        firstTwoPasses<W>(at, in, b);
    for (; !at.isLast(); at.step()) {
        if ((at.passes.count - at.pass) % 2 == 0)
            pass<W, false>(at.levels(), b, a, at.done, at.groups >> at.levels(), at.factors);
        else
            pass<W, false>(at.levels(), a, b, at.done, at.groups >> at.levels(), at.factors);
    }
}

// All passes, two or more.
template <int W, class T, class In, class Out, class A, class B>
inline void columns(int m, In in, Out out, A a, B b, const T* factors)
{
    Progress<T> at(m, factors);
    if (at.passes.count == 2) {
        pass<W, true>(at.levels(), in, a, 1, at.groups >> at.levels(), factors);
        at.step();
    } else {
        allButLast<W>(at, in, a, b);
    }
    pass<W, false>(at.levels(), a, out, at.done, 1, at.factors);
}

} // namespace zors::ZORS_VARIANT
