// Transforms of up to 256 points, both of whose factors are at most 16: one step over columns, one over rows, each in
// registers, in vectors of pairs. Between them the points are transposed on the stack.
#pragma once

#include "mixed_plan.h"
#include "record.h"
#include "simd/memory.h"
#include "simd/transpose.h"
#include "woven.h"

namespace zors::ZORS_VARIANT {

inline constexpr int mostFewFactor = 16;

// Pairs in a vector.
template <class T>
inline constexpr int pairsOfVector = lanes<T> / 2;

// Where vectors of so many pairs begin: the last one ends with the last pair, unless there are fewer.
constexpr int firstPair(int block, int len, int pairs)
{
    const int first = block * pairs;
    return first + pairs <= len || len < pairs ? first : len - pairs;
}

constexpr int blocksOfPairs(int len, int pairs)
{
    return (len + pairs - 1) / pairs;
}

// Numbers in the table of factors between the steps: for every row and vector the real parts twice, then the imaginary
// ones with both signs. The same for every width of vectors, as none is wider than a line.
template <class T>
constexpr int fewNumbers(int rows, int columns)
{
    constexpr int pairs = lineBytes / (2 * sizeof(T));
    return rows * blocksOfPairs(columns, pairs) * 4 * pairs;
}

template <class T, class Root>
inline void fillFew(int rows, int columns, T* p, Root root)
{
    constexpr int pairs = pairsOfVector<T>;
    for (int b = 0; b < blocksOfPairs(columns, pairs); ++b)
        for (int k = 0; k < rows; ++k, p += 4 * pairs)
            for (int lane = 0; lane < pairs; ++lane) {
                const int n = firstPair(b, columns, pairs) + lane;
                const Cx<T> w = n < columns ? root(k * n, rows * columns) : Cx<T>{};
                p[2 * lane] = p[2 * lane + 1] = w.re;
                p[2 * pairs + 2 * lane] = -w.im;
                p[2 * pairs + 2 * lane + 1] = w.im;
            }
}

// Columns of R points, neighbours side by side, into rows of the room.
template <int R, class T>
[[gnu::noinline]] void fewRows(const T* src, int columns, Vec<T> sign, const T* factors, T* room,
                               int roomStride)
{
    constexpr int w = lanes<T>, pairs = pairsOfVector<T>;
    for (int b = 0; b < blocksOfPairs(columns, pairs); ++b) {
        const int first = firstPair(b, columns, pairs);
        const T* from = src + 2 * first;
        Woven<T, w> x[R];
        if (columns < pairs)
            transform(
                x, [&](int t) __attribute__((always_inline)) {
                    x[t] = {loadFirst<w>(from + 2 * t * columns, 2 * columns) * sign};
                });
        else
            transform(
                x, [&](int t)
                       __attribute__((always_inline)) { x[t] = {load<w>(from + 2 * t * columns) * sign}; });
#pragma GCC unroll 16
        for (int k = 0; k < R; ++k) {
            if (k > 0) x[k] = timesParts(x[k], load<w>(factors), load<w>(factors + w));
            factors += 2 * w;
            store<w>(room + k * roomStride + 2 * first, x[k].v);
        }
    }
}

// Pairs as elements: so many vectors of so many pairs transposed.
template <class T, int N>
[[gnu::always_inline]] inline void transposePairs(Vec<T> (&v)[N])
{
    if constexpr (N == 1) {
        return;
    } else if constexpr (sizeof(T) == 4) {
        Vec<double> d[N];
#pragma GCC unroll 8
        for (int i = 0; i < N; ++i) d[i] = bitsAs<double>(v[i]);
        transpose(d);
#pragma GCC unroll 8
        for (int i = 0; i < N; ++i) v[i] = bitsAs<T>(d[i]);
    } else {
        transposeBlocks(v);
    }
}

// Rows of C points of the room, transposed, transformed as columns and put in order.
template <int C, class T>
[[gnu::noinline]] void fewColumns(const T* room, int roomStride, int rows, Vec<T> factor, T* dst)
{
    constexpr int w = lanes<T>, pairs = pairsOfVector<T>;
    for (int b = 0; b < blocksOfPairs(rows, pairs); ++b) {
        const int first = firstPair(b, rows, pairs), last = rows - 1 - first;
        Vec<T> x[(C + pairs - 1) / pairs * pairs];
#pragma GCC unroll 16
        for (int n = 0; n < C; n += pairs) {
            Vec<T> some[pairs];
#pragma GCC unroll 16
            for (int k = 0; k < pairs; ++k)
                some[k] = load<w>(room + (first + (k < last ? k : last)) * roomStride + 2 * n);
            transposePairs<T>(some);
#pragma GCC unroll 16
            for (int k = 0; k < pairs; ++k) x[n + k] = some[k];
        }
        Woven<T, w> y[C];
        transform(
            y, [&](int t) __attribute__((always_inline)) { y[t] = {x[t]}; });
        T* to = dst + 2 * first;
        if (rows < pairs) {
#pragma GCC unroll 16
            for (int k = 0; k < C; ++k) storeFirst<w>(to + 2 * k * rows, y[k].v * factor, 2 * rows);
        } else {
#pragma GCC unroll 16
            for (int k = 0; k < C; ++k) store<w>(to + 2 * k * rows, y[k].v * factor);
        }
    }
}

// run(constant) with a number from 2 to 16.
#define ZORS_FEW(N)                                                                                          \
    case N:                                                                                                  \
        return run(std::integral_constant<int, N>{});
template <class Run>
[[gnu::always_inline]] inline void withFew(int n, Run run)
{
    switch (n) {
        ZORS_FEW(2)
        ZORS_FEW(3)
        ZORS_FEW(4)
        ZORS_FEW(5)
        ZORS_FEW(6)
        ZORS_FEW(7)
        ZORS_FEW(8)
        ZORS_FEW(9)
        ZORS_FEW(10)
        ZORS_FEW(11)
        ZORS_FEW(12)
        ZORS_FEW(13)
        ZORS_FEW(14)
        ZORS_FEW(15)
    default:
        return run(std::integral_constant<int, 16>{});
    }
}
#undef ZORS_FEW

// The transform of pairs whose imaginary parts have a sign; results are multiplied by a factor for each part.
template <class T>
inline void fewPoints(int rows, int columns, const T* factors, const T* src, T* dst, T sign, T re, T im)
{
    constexpr int w = lanes<T>;
    alignas(lineBytes) T room[2 * mostFewFactor * (mostFewFactor + pairsOfVector<T>)];
    const int roomStride = 2 * (columns + pairsOfVector<T>) / w * w;
    withFew(rows,
            [&](auto r) { fewRows<r>(src, columns, alternating<T, w>(1, sign), factors, room, roomStride); });
    withFew(columns, [&](auto c) { fewColumns<c>(room, roomStride, rows, alternating<T, w>(re, im), dst); });
}

} // namespace zors::ZORS_VARIANT
