// Transforms of many columns at once: M rows of W columns become their M-point transforms, lane by lane, without
// a shuffle, by passes of radix 4 to 16 (decimation in time). The first one takes rows from the source, M / R apart,
// and needs no factors. The passes between the first and the last one leave their points where they find them, because
// a line that is only changed goes through the caches once and not thrice.
#pragma once

#include "ports.h"
#include "record.h"

#include <cstdint>

namespace zors::ZORS_VARIANT {

// Radix 16 needs all of 32 registers for its points alone, so radix 8 is faster, with 16 and with 32. Measured. But a
// first pass of 16, which has no factors, in the place of two of 4 saves a way through short data.
inline constexpr int mostLevels = 3;

// How the levels of an M-point column, M = 2^m, m > 4, are divided among passes. In long columns, of more than 128 rows
// or, with narrower vectors, 256, the first pass is of radix 4: rows at a distance of a power of two share a set of the
// first cache, and beside four of the source and four of the destination there are ways left for what the processor
// reads ahead.
struct Passes {
    int m;
    bool isLong = m > (ZORS_VECTOR_BYTES == 64 ? 7 : 8);
    int count = (m + (isLong ? mostLevels : 1)) / mostLevels;

    constexpr int levels(int pass) const
    {
        const int more = m - count * mostLevels;
        if (isLong) return mostLevels - (pass < -more ? 1 : 0);
        // The first one may have a level more, or the last one a level less.
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

// Whether a pass from low addresses to high ones would load next what looks like that which it has just stored: by the
// place in a page, as a processor does that holds loads back behind stores still under way. It takes up to three times
// as long then, and not the other way round.
inline bool meetsForwards(const void* in, const void* out)
{
    constexpr std::uintptr_t page = 4096;
    const std::uintptr_t ahead =
        (reinterpret_cast<std::uintptr_t>(out) - reinterpret_cast<std::uintptr_t>(in)) % page;
    return 0 < ahead && ahead < page / 2;
}

// The same over long columns.
template <int W, class T, class In, class Out>
[[gnu::noinline]] void firstLongPass(In in, Out out, std::ptrdiff_t groups)
{
    const bool back = meetsForwards(in.address(), out.address());
    const std::ptrdiff_t step = back ? -1 : 1, first = back ? groups - 1 : 0;
    const Places places{1, step * groups};
    const T* const none = nullptr;
    butterflies<4, W, true>(in.every(step, first), places, out.every(step, first), places, groups, none, 0);
}

// Where a transform stands between two passes: its rows are in blocks, one for each point k of those that are done.
// The digits of k, lowest first, are those of the block, highest first.
template <class T>
struct Progress {
    Passes passes;
    std::ptrdiff_t groups; // rows of a block
    const T* factors;
    int pass = 0;
    std::ptrdiff_t done = 1;

    Progress(int m, const T* f) : passes{m}, groups(std::ptrdiff_t{1} << m), factors(f) {}
    bool isLast() const { return pass == passes.count - 1; }
    int levels() const { return passes.levels(pass); }
    // Butterflies of a block in the pass that follows.
    std::ptrdiff_t butterfliesOfBlock() const { return groups >> levels(); }
    void step()
    {
        if (pass > 0) factors += 2 * done * ((1 << levels()) - 1);
        done <<= levels();
        groups >>= levels();
        ++pass;
    }
    std::ptrdiff_t pointOf(std::ptrdiff_t block) const
    {
        std::ptrdiff_t k = 0;
        for (int p = pass - 1; p >= 0; --p) k = moveDigit(block, k, p);
        return k;
    }
    std::ptrdiff_t rowOf(std::ptrdiff_t k) const
    {
        std::ptrdiff_t block = 0;
        for (int p = 0; p < pass; ++p) block = moveDigit(k, block, p);
        return block * groups;
    }
    // Points that follow one another, and the rows between them.
    std::ptrdiff_t together() const { return std::ptrdiff_t{1} << passes.levels(0); }
    std::ptrdiff_t apart() const { return std::ptrdiff_t{1} << (passes.m - passes.levels(0)); }
    const T* factorsOf(std::ptrdiff_t k) const { return factors + 2 * k * ((1 << levels()) - 1); }

private:
    // The lowest digit of one number to the lower end of the other.
    std::ptrdiff_t moveDigit(std::ptrdiff_t& from, std::ptrdiff_t to, int p) const
    {
        const int levels = passes.levels(p);
        const std::ptrdiff_t digit = from & ((1 << levels) - 1);
        from >>= levels;
        return to << levels | digit;
    }
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

// A pass between the first and the last one.
template <int W, class T>
[[gnu::noinline]] void passInPlace(const Progress<T>& at, Rows<T, W> own)
{
    const int levels = at.levels();
    const std::ptrdiff_t groups = at.butterfliesOfBlock();
    const Places places{1, groups};
    for (std::ptrdiff_t block = 0; block < at.done; ++block) {
        const auto rows = own.every(1, block * at.groups);
        const T* const factors = at.factorsOf(at.pointOf(block));
        if (levels == 2)
            butterflies<4, W, false>(rows, places, rows, places, groups, factors, 0);
        else
            butterflies<8, W, false>(rows, places, rows, places, groups, factors, 0);
    }
}

// All passes between the first and the last one.
template <int W, class T>
inline void passesInPlace(Progress<T>& at, Rows<T, W> own)
{
    for (at.step(); !at.isLast(); at.step()) passInPlace<W>(at, own);
}

// The last pass of points k to k + count - 1 of those that are done.
template <int W, class T, class Out>
inline void lastPass(const Progress<T>& at, Rows<T, W> own, std::ptrdiff_t k, std::ptrdiff_t count, Out out,
                     std::ptrdiff_t stride)
{
    const std::ptrdiff_t some = at.together() < count ? at.together() : count;
    for (std::ptrdiff_t i = 0; i < count; i += some)
        pass<W>(at.levels(), own.every(1, at.rowOf(k + i)), at.apart(), out.every(1, i), stride, some,
                at.factorsOf(k + i));
}

// All passes over long columns, by way of own, which may be where the input is, but not where the result goes.
template <int W, class T, class In, class Out>
inline void longColumns(int m, In in, Rows<T, W> own, Out out, const T* factors)
{
    Progress<T> at(m, factors);
    firstLongPass<W, T>(in, own, at.butterfliesOfBlock());
    passesInPlace<W>(at, own);
    lastPass<W>(at, own, 0, at.done, out, at.done);
}

} // namespace zors::ZORS_VARIANT
