// Transforms that fit into the caches. N points are seen as M rows of W columns: the columns are transformed, then
// the last pass transposes W by W blocks in registers, so that the W points of every row stand in W vectors, and
// transforms those: point k + M l of the result is point l of row k.
#pragma once

#include "columns.h"
#include "simd/transpose.h"
#include "sines.h"

#include <array>

namespace zors::ZORS_VARIANT {

// Lanes for an order: the most that leave at least as many rows.
template <class T>
constexpr int lanesForOrder(int order)
{
    const int most = lanes<T>;
    const int fit = 1 << order / 2;
    return most < fit ? most : fit;
}

constexpr int log2Of(int powerOfTwo)
{
    int log = 0;
    while (1 << log < powerOfTwo) ++log;
    return log;
}

// The last pass takes a block of W rows k and transforms their W points l in two steps, so that no more vectors are
// in use than there are registers. A vector has A blocks of B lanes, so W = A B, l = B a + i. First, for the rows
// B c + b of each b, c becomes the place of a block and a that of a row, and A points are transformed; then b and i
// change places, and B points are transformed. The rows are taken in the order of lanes that ports store fastest.
template <class T, int W>
struct Turn {
    static constexpr int blocks = blocksOf<Vec<T, W>>;
    static constexpr int lanes = lanesOfBlock<Vec<T, W>>;
};

// Factors: for each block of rows and b, those of a = 1..A - 1, e^(-2 pi i k B a / N); then for i = 1..B - 1,
// e^(-2 pi i k i / N), in both k being the row of a lane. Real parts, then imaginary ones.
constexpr std::ptrdiff_t turnFactors(std::ptrdiff_t rows, int width)
{
    return rows * (width - 1);
}

template <class T, int W>
constexpr void fillTurn(int order, const Wave<T>& wave, T* p)
{
    constexpr int blocks = Turn<T, W>::blocks, lanes = Turn<T, W>::lanes;
    const std::ptrdiff_t rows = (std::ptrdiff_t{1} << order) / W;
    const auto put = [&](int lane, Cx<T> w) {
        p[lane] = w.re;
        p[W + lane] = w.im;
    };
    for (std::ptrdiff_t block = 0; block < rows; block += W) {
        for (int b = 0; b < lanes; ++b)
            for (int a = 1; a < blocks; ++a, p += 2 * W)
                for (int lane = 0; lane < W; ++lane)
                    put(lane, wave((block + rowOfLane<T, W>(lane / lanes * lanes + b)) * lanes * a, order));
        for (int i = 1; i < lanes; ++i, p += 2 * W)
            for (int lane = 0; lane < W; ++lane) put(lane, wave((block + rowOfLane<T, W>(lane)) * i, order));
    }
}

template <class T, int W>
[[gnu::always_inline]] inline Cx<Vec<T, W>> factorAt(const T* factors, int i)
{
    return {load<W>(factors + 2 * W * i), load<W>(factors + 2 * W * i + W)};
}

// The second step of one of the A results of the first, q, to the rows q + A j.
template <int W, int Q, class T, class Out>
[[gnu::always_inline]] inline void turnInside(const Cx<Vec<T, W>>* x, Out out, const T* factors)
{
    constexpr int blocks = Turn<T, W>::blocks, lanes = Turn<T, W>::lanes;
    Vec<T, W> re[lanes], im[lanes];
#pragma GCC unroll 4
    for (int b = 0; b < lanes; ++b) re[b] = x[b].re, im[b] = x[b].im;
    transposeInside(re);
    transposeInside(im);
    Cx<Vec<T, W>> y[lanes];
    y[0] = {re[0], im[0]};
    y[1] = times({re[1], im[1]}, rotated<Q * 16 / W>(factorAt<T, W>(factors, 0)));
    if constexpr (lanes == 4) {
        y[2] = times({re[2], im[2]}, rotated<2 * Q * 16 / W>(factorAt<T, W>(factors, 1)));
        y[3] = times({re[3], im[3]}, rotated<3 * Q * 16 / W>(factorAt<T, W>(factors, 2)));
    }
    dft<lanes>(y);
#pragma GCC unroll 4
    for (int j = 0; j < lanes; ++j) out.putTurned(Q + blocks * j, y[j]);
}

// The last pass over one block of W rows.
template <int W, class T, class In, class Out>
[[gnu::always_inline]] inline void turnBlock(const In& in, const Out& out, const T* factors)
{
    constexpr int blocks = Turn<T, W>::blocks, lanes = Turn<T, W>::lanes;
    Cx<Vec<T, W>> x[blocks][lanes];
#pragma GCC unroll 4
    for (int b = 0; b < lanes; ++b) {
        Vec<T, W> re[blocks], im[blocks];
#pragma GCC unroll 4
        for (int c = 0; c < blocks; ++c) {
            const Cx<Vec<T, W>> v = in.get(rowOfLane<T, W>(lanes * c + b));
            re[c] = v.re, im[c] = v.im;
        }
        transposeBlocks(re);
        transposeBlocks(im);
        Cx<Vec<T, W>> y[blocks];
        y[0] = {re[0], im[0]};
#pragma GCC unroll 4
        for (int a = 1; a < blocks; ++a, factors += 2 * W)
            y[a] = times({re[a], im[a]}, factorAt<T, W>(factors, 0));
        dft<blocks>(y);
#pragma GCC unroll 4
        for (int q = 0; q < blocks; ++q) x[q][b] = y[q];
    }
    turnInside<W, 0>(x[0], out, factors);
    if constexpr (blocks > 1) turnInside<W, 1>(x[1], out, factors);
    if constexpr (blocks > 2) {
        turnInside<W, 2>(x[2], out, factors);
        turnInside<W, 3>(x[3], out, factors);
    }
}

// The last pass over some blocks, first, first + step, ... of all; in begins with their rows.
template <int W, class T, class Out>
[[gnu::noinline]] void turn(Rows<T, W> in, Out out, std::ptrdiff_t all, std::ptrdiff_t first,
                            std::ptrdiff_t step, const T* factors)
{
    const Stride one = in.stride(1), outStride = out.stride(all);
    for (std::ptrdiff_t i = 0, block = first; block < all; ++i, block += step)
        turnBlock<W>(in.template from<W>(i * W, one), out.template from<W>(block, outStride),
                     factors + block * 2 * W * (W - 1));
}

// The last pass over columns and the turn at once, by the rows that depend on one another.
template <int W, class T, class Out>
inline void lastPassAndTurn(const Progress<T>& at, Rows<T, W> in, Out out, const T* factors)
{
    alignas(lineBytes) T memory[2 * W * W << mostLevels];
    const Rows<T, W> few{memory};
    const std::ptrdiff_t radix = std::ptrdiff_t{1} << at.levels(), step = at.done / W;
    for (std::ptrdiff_t block = 0; block < step; ++block) {
        const std::ptrdiff_t j = block * W;
        pass<W, false>(at.levels(), in.every(1, j * radix), few, W, 1, at.factors + 2 * j * (radix - 1));
        turn<W>(few, out, step * radix, block, step, factors);
    }
}

// Rows in registers, as a port.
template <class V>
struct Held {
    const Cx<V>* rows;

    [[gnu::always_inline]] Cx<V> get(int i) const { return rows[i]; }
};

// Both passes in registers: up to 16 rows.
template <int W, int M, class T, class In, class Out>
[[gnu::noinline]] void inRegisters(In in, Out out, const T* factors)
{
    using V = Vec<T, W>;
    const auto src = in.template closeFrom<1>(0);
    Cx<V> x[M];
#pragma GCC unroll 16
    for (int t = 0; t < M; ++t) x[t] = src.get(t);
    dft<M>(x);
#pragma GCC unroll 16
    for (int block = 0; block < M / W; ++block)
        turnBlock<W>(Held<V>{x + block * W}, out.template closeFrom<M / W>(block),
                     factors + block * 2 * W * (W - 1));
}

// Factors of a transform: of the last pass, then of the columns.
template <class T>
constexpr std::ptrdiff_t sortedFactors(int order)
{
    const int width = lanesForOrder<T>(order), m = order - log2Of(width);
    return turnFactors(std::ptrdiff_t{1} << m, width) + (m > 4 ? columnFactors(m) : 0);
}

template <class T>
inline void fillColumns(int m, const Wave<T>& wave, T* p)
{
    const Passes passes{m};
    int level = passes.levels(0);
    for (int i = 1; i < passes.count; ++i) {
        const int levels = passes.levels(i);
        for (std::ptrdiff_t j = 0; j < std::ptrdiff_t{1} << level; ++j)
            for (std::ptrdiff_t t = 1; t < 1 << levels; ++t) {
                const Cx<T> w = wave(j * t, level + levels);
                *p++ = w.re;
                *p++ = w.im;
            }
        level += levels;
    }
}

template <class T>
inline void fillSorted(int order, const Wave<T>& wave, T* p)
{
    const int width = lanesForOrder<T>(order), m = order - log2Of(width);
    if (width == lanes<T>)
        fillTurn<T, lanes<T>>(order, wave, p);
    else
        fillTurn<T, lanes<T> / 2>(order, wave, p);
    if (m > 4) fillColumns(m, wave, p + 2 * turnFactors(std::ptrdiff_t{1} << m, width));
}

template <int W, class T, class In, class Out, class Room>
inline void sortedTransform(int order, In in, Out out, Room room, T* work, const T* factors)
{
    const int m = order - log2Of(W);
    if constexpr (W <= 8) {
        if (m == 3) return inRegisters<W, 8>(in, out, factors);
    }
    if (m == 4) return inRegisters<W, 16>(in, out, factors);
    const std::ptrdiff_t rows = std::ptrdiff_t{1} << m;
    const Rows<T, W> own{work};
    const T* ofColumns = factors + 2 * turnFactors(rows, W);
    if (m <= 2 * mostLevels) {
        columns<W>(m, in, own, room, own, ofColumns);
        turn<W>(own, out, rows / W, 0, 1, factors);
    } else {
        Progress<T> at(m, ofColumns);
        allButLast<W>(at, in, own, room);
        lastPassAndTurn<W>(at, own, out, factors);
    }
}

} // namespace zors::ZORS_VARIANT
