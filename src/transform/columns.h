// Transforms of many columns at once: M rows of W columns become their M-point transforms, lane by lane, without
// a shuffle, by passes of radix 4 to 16 (decimation in time). The first two sort themselves (Stockham's arrangement):
// behind them, with l = product of the radices so far, row j M / l + g holds point j of the transform of every
// M / l-th row from g on. The first one needs no factors and may write where it reads.
#pragma once

#include "ports.h"
#include "record.h"

namespace zors::ZORS_VARIANT {

// Radix 16 needs all of 32 registers for its points alone, so radix 8 is faster, with 16 and with 32. Measured. But a
// first pass of 16, which has no factors, in the place of two of 4 saves a way through the data.
inline constexpr int mostLevels = 3;

// How the levels of an M-point column, M = 2^m, m > 4, are divided among passes.
struct Passes {
    int m;
    int count = (m + 1) / mostLevels;

    // The first one may have a level more, or the last one a level less.
    constexpr int levels(int pass) const
    {
        const int more = m - count * mostLevels;
        return mostLevels + (pass == (more > 0 ? 0 : count - 1) ? more : 0);
    }
};

// Number of factors of all passes: (radix - 1) l for each but the first.
constexpr std::ptrdiff_t columnFactors(int m)
{
    const Passes passes{m};
    return (std::ptrdiff_t{1} << m) - (std::ptrdiff_t{1} << passes.levels(0));
}

// Where butterflies find their points or leave them: rows from one butterfly to the next, and from point to point.
struct Places {
    std::ptrdiff_t apart, stride;
};

// Butterflies of R points, with so many sets of factors from one to the next.
template <int R, int W, bool First, class T, class In, class Out>
[[gnu::always_inline]] inline void butterflies(In in, Places from, Out out, Places to, std::ptrdiff_t count,
                                               const T* factors, std::ptrdiff_t factorSets)
{
    using V = Vec<T, W>;
    const Stride inStride = in.stride(from.stride), outStride = out.stride(to.stride);
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        const auto src = in.template from<R>(i * from.apart, inStride);
        Cx<V> x[R];
        dft(x, [&](int t) {
            x[t] = src.get(t);
            if constexpr (!First)
                if (t > 0)
                    x[t] = times(x[t], {constant<V>(factors[2 * t - 2]), constant<V>(factors[2 * t - 1])});
        });
        const auto dst = out.template from<R>(i * to.apart, outStride);
#pragma GCC unroll 16
        for (int u = 0; u < R; ++u) dst.put(u, x[u]);
        factors += 2 * (R - 1) * factorSets;
    }
}

// Butterflies of 2^levels points with a set of factors each, from rows that follow one another to rows at equal
// distances; kept out of line, so that they exist once for their ports.
template <int W, class T, class In, class Out>
[[gnu::noinline]] void pass(int levels, In in, std::ptrdiff_t apart, Out out, std::ptrdiff_t stride,
                            std::ptrdiff_t count, const T* factors)
{
    const Places from{apart, 1}, to{1, stride};
    if (levels == 2)
        butterflies<4, W, false>(in, from, out, to, count, factors, 1);
    else
        butterflies<8, W, false>(in, from, out, to, count, factors, 1);
}

// The first pass, without factors, over columns of 2^levels groups rows.
template <int W, class T, class In, class Out>
[[gnu::noinline]] void firstPass(int levels, In in, Out out, std::ptrdiff_t groups)
{
    const Places places{1, groups};
    const T* const none = nullptr;
    if (levels > mostLevels)
        butterflies<16, W, true>(in, places, out, places, groups, none, 0);
    else
        butterflies<8, W, true>(in, places, out, places, groups, none, 0);
}

// Where a transform stands between two passes. Passes behind the first two leave their points where they find them,
// because that takes fewer lines through the caches: only so many points as stand together are in order, each so many
// rows apart from the one before.
template <class T>
struct Progress {
    Passes passes;
    std::ptrdiff_t groups; // rows over the product of the radices so far
    const T* factors;
    int pass = 0;
    std::ptrdiff_t done = 1, together = 1, apart = 0;

    Progress(int m, const T* f) : passes{m}, groups(std::ptrdiff_t{1} << m), factors(f) {}
    bool isLast() const { return pass == passes.count - 1; }
    int levels() const { return passes.levels(pass); }
    void step()
    {
        if (pass > 0) factors += 2 * done * ((1 << levels()) - 1);
        done <<= levels();
        groups >>= levels();
        ++pass;
        if (pass <= 2) together = done, apart = groups;
    }
    // The first of the rows of point k of all that are done.
    std::ptrdiff_t rowOf(std::ptrdiff_t k) const
    {
        std::ptrdiff_t row = (k & (together - 1)) * apart, distance = apart;
        int below = passes.levels(0) + passes.levels(1);
        for (int p = 2; p < pass; ++p) {
            const int levels = passes.levels(p);
            distance >>= levels;
            row += (k >> below & ((1 << levels) - 1)) * distance;
            below += levels;
        }
        return row;
    }
    const T* factorsOf(std::ptrdiff_t k) const { return factors + 2 * k * ((1 << levels()) - 1); }
};

// Both passes of two.
template <int W, class T, class In, class Between, class Out>
inline void twoPasses(int m, In in, Between between, Out out, const T* factors)
{
    const Passes passes{m};
    const std::ptrdiff_t first = std::ptrdiff_t{1} << passes.levels(0),
                         second = std::ptrdiff_t{1} << passes.levels(1);
    firstPass<W, T>(passes.levels(0), in, between, second);
    pass<W>(passes.levels(1), between, second, out, first, first, factors);
}

// The first two passes at once, by the rows that depend on one another: every n-th, few enough for the first cache.
template <int W, class T, class In>
inline void firstTwoPasses(Progress<T>& at, In in, Rows<T, W> out)
{
    alignas(lineBytes) T memory[2 * W << (2 * mostLevels + 1)];
    const Rows<T, W> few{memory};
    const int both = at.levels() + at.passes.levels(1);
    const T* factors = at.factors;
    at.step();
    at.step();
    for (std::ptrdiff_t g = 0; g < at.groups; ++g)
        twoPasses<W>(both, in.every(at.groups, g), few, out.every(at.groups, g), factors);
}

// A pass between the first two and the last one, which alone may be of a smaller radix.
template <int W, class T>
[[gnu::noinline]] void passInPlace(const Progress<T>& at, Rows<T, W> own)
{
    constexpr int radix = 1 << mostLevels;
    const std::ptrdiff_t groups = at.groups / radix;
    const Places places{1, groups};
    for (std::ptrdiff_t j = 0; j < at.together; ++j)
        for (std::ptrdiff_t k = j; k < at.done; k += at.together) {
            const auto rows = own.every(1, at.rowOf(k));
            butterflies<radix, W, false>(rows, places, rows, places, groups, at.factorsOf(k), 0);
        }
}

// All passes but the last, of three or more; their rows are left in own.
template <int W, class T, class In>
inline void allButLast(Progress<T>& at, In in, Rows<T, W> own)
{
    firstTwoPasses<W>(at, in, own);
    for (; !at.isLast(); at.step()) passInPlace<W>(at, own);
}

// All passes, two or more, by way of own, which may be where the input is, but not where the result goes.
template <int W, class T, class In, class Out>
inline void columns(int m, In in, Rows<T, W> own, Out out, const T* factors)
{
    Progress<T> at(m, factors);
    if (at.passes.count == 2) return twoPasses<W>(m, in, own, out, factors);
    allButLast<W>(at, in, own);
    for (std::ptrdiff_t k = 0; k < at.done; k += at.together)
        pass<W>(at.levels(), own.every(1, at.rowOf(k)), at.apart, out.every(1, k), at.done, at.together,
                at.factorsOf(k));
}

} // namespace zors::ZORS_VARIANT
