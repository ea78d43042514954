// Transforms that fit into the caches. N points are seen as M rows of W columns: the columns are transformed, then
// the last pass transposes W by W blocks in registers, so that the W points of every row stand in W vectors, and
// transforms those: point k + M l of the result is point l of row k.
#pragma once

#include "columns.h"
#include "simd/transpose.h"
#include "sines.h"

#include <array>
#include <type_traits>
#include <utility>

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
// B c + b of each b, c becomes the place of a block and a that of a row, the points are multiplied by
// e^(-2 pi i k l / N), and A of them are transformed; then b and i change places, and B points are transformed, whose
// factors are constants. The rows are taken in the order of lanes that ports store fastest.
template <class T, int W>
struct Turn {
    static constexpr int blocks = blocksOf<Vec<T, W>>;
    static constexpr int lanes = lanesOfBlock<Vec<T, W>>;
    // Rows from b = 0 to b = 1 of any c.
    static constexpr int step = rowOfLane<T, W>(1) - rowOfLane<T, W>(0);
    // With a block a row there is no first step, and the factors for i = 0 are 1.
    static constexpr bool twoSteps = blocks > 1;
};

// Up to so many rows both passes are done in registers.
inline constexpr int mostRowsInRegisters = 16;

// Factors: for each block of rows, b and a those of k l, real parts of a vector, then imaginary ones; with one step
// for i = 1..B - 1. Where columns have factors too, those for a = 0 and b = 1 are left out, or the tables would have
// more than N: they are those of b = 0 times e^(-2 pi i step i / N), which stand behind all.
template <class T>
constexpr bool isShort(std::ptrdiff_t rows, int width)
{
    return width > lanesOfBlock<Vec<T>> && rows > mostRowsInRegisters;
}

template <class T>
constexpr std::ptrdiff_t turnFactors(std::ptrdiff_t rows, int width)
{
    if (isShort<T>(rows, width)) return rows * (width - 1) + lanesOfBlock<Vec<T>>;
    return rows * (width > lanesOfBlock<Vec<T>> ? width : width - 1);
}

template <class T, int W>
constexpr void fillTurn(int order, const Wave<T>& wave, T* p)
{
    using Turn = Turn<T, W>;
    const std::ptrdiff_t rows = (std::ptrdiff_t{1} << order) / W;
    const auto put = [&](T* vector, int width, int lane, std::ptrdiff_t power) {
        const Cx<T> w = wave(power, order);
        vector[lane] = w.re;
        vector[width + lane] = w.im;
    };
    for (std::ptrdiff_t block = 0; block < rows; block += W)
        if constexpr (Turn::twoSteps) {
            for (int b = 0; b < Turn::lanes; ++b)
                for (int a = b == 1 && isShort<T>(rows, W) ? 1 : 0; a < Turn::blocks; ++a, p += 2 * W)
                    for (int lane = 0; lane < W; ++lane) {
                        const int i = lane % Turn::lanes, l = a * Turn::lanes + i;
                        put(p, W, lane, (block + rowOfLane<T, W>(lane - i + b)) * l);
                    }
        } else {
            for (int i = 1; i < W; ++i, p += 2 * W)
                for (int lane = 0; lane < W; ++lane) put(p, W, lane, (block + rowOfLane<T, W>(lane)) * i);
        }
    if (isShort<T>(rows, W))
        for (int i = 0; i < Turn::lanes; ++i) put(p, Turn::lanes, i, Turn::step * i);
}

template <class T, int W>
[[gnu::always_inline]] inline Cx<Vec<T, W>> factorAt(const T* factors, int i)
{
    return {load<W>(factors + 2 * W * i), load<W>(factors + 2 * W * i + W)};
}

// The factors of a block of rows by b and a, from the whole table or from the short one.
template <class T, int W>
class WholeTable {
public:
    explicit WholeTable(const T* factors, std::ptrdiff_t = 0) : factors_(factors) {}

    WholeTable of(std::ptrdiff_t block) const
    {
        return WholeTable(factors_ + block * 2 * W * (Turn<T, W>::twoSteps ? W : W - 1));
    }
    [[gnu::always_inline]] Cx<Vec<T, W>> at(int b, int a) const
    {
        return factorAt<T, W>(factors_, b * Turn<T, W>::blocks + a);
    }
    // With one step.
    [[gnu::always_inline]] Cx<Vec<T, W>> at(int i) const { return factorAt<T, W>(factors_, i - 1); }

private:
    const T* factors_;
};

template <class T, int W>
class ShortTable {
public:
    ShortTable(const T* factors, std::ptrdiff_t rows) : factors_(factors)
    {
        const T* p = factors + 2 * rows * (W - 1);
        next_ = {repeated<W>(load<lanesOfBlock<Vec<T>>>(p)),
                 repeated<W>(load<lanesOfBlock<Vec<T>>>(p + lanesOfBlock<Vec<T>>))};
    }
    ShortTable of(std::ptrdiff_t block) const
    {
        return ShortTable(factors_ + block * 2 * W * (W - 1), next_);
    }
    [[gnu::always_inline]] Cx<Vec<T, W>> at(int b, int a) const
    {
        if (b == 1 && a == 0) return times(at(0, 0), next_);
        return factorAt<T, W>(factors_, b * Turn<T, W>::blocks + a - (b > 0 ? 1 : 0));
    }

private:
    ShortTable(const T* factors, Cx<Vec<T, W>> next) : factors_(factors), next_(next) {}

    const T* factors_;
    Cx<Vec<T, W>> next_;
};

template <class T, int W>
using TableBehindColumns = std::conditional_t<Turn<T, W>::twoSteps, ShortTable<T, W>, WholeTable<T, W>>;

// Stages first(n) and second(n), n = 0..N - 1, each with a constant. Where there are registers enough the shuffles
// of a first stage come before the arithmetic of the second one before it: the processor looks ahead by little more
// than a stage, and one of shuffles alone would keep the multipliers waiting.
template <int N, class First, class Second>
[[gnu::always_inline]] inline void staggered(First first, Second second)
{
    constexpr int ahead = ZORS_VECTOR_BYTES == 64 ? 1 : 0;
    const auto step = [&](auto n) __attribute__((always_inline))
    {
        if constexpr (n < N) first(n);
        if constexpr (n >= ahead) second(std::integral_constant<int, n - ahead>{});
    };
    [&]<int... I>(std::integer_sequence<int, I...>) __attribute__((always_inline))
    {
        (step(std::integral_constant<int, I>{}), ...);
    }
    (std::make_integer_sequence<int, N + ahead>{});
}

// The last pass over one block of W rows.
template <int W, class T, class In, class Out, class Table>
[[gnu::always_inline]] inline void turnBlock(const In& in, const Out& out, const Table& table)
{
    using V = Vec<T, W>;
    constexpr int blocks = Turn<T, W>::blocks, lanes = Turn<T, W>::lanes;
    constexpr bool twoSteps = Turn<T, W>::twoSteps;
    Cx<V> x[blocks][lanes], y[lanes][blocks], z[blocks][lanes];

    const auto takeRows = [&](auto b) __attribute__((always_inline))
    {
        V re[blocks], im[blocks];
#pragma GCC unroll 4
        for (int c = 0; c < blocks; ++c) {
            const Cx<V> v = in.get(rowOfLane<T, W>(lanes * c + b));
            re[c] = v.re, im[c] = v.im;
        }
        transposeBlocks(re);
        transposeBlocks(im);
#pragma GCC unroll 4
        for (int a = 0; a < blocks; ++a) y[b][a] = {re[a], im[a]};
    };
    const auto transformBlocks = [&](auto b) __attribute__((always_inline))
    {
        if constexpr (twoSteps) {
#pragma GCC unroll 4
            for (int a = 0; a < blocks; ++a) y[b][a] = times(y[b][a], table.at(b, a));
        }
        dft<blocks>(y[b]);
#pragma GCC unroll 4
        for (int q = 0; q < blocks; ++q) x[q][b] = y[b][q];
    };
    staggered<lanes>(takeRows, transformBlocks);

    const auto turnInside = [&](auto q) __attribute__((always_inline))
    {
        V re[lanes], im[lanes];
#pragma GCC unroll 4
        for (int b = 0; b < lanes; ++b) re[b] = x[q][b].re, im[b] = x[q][b].im;
        transposeInside(re);
        transposeInside(im);
#pragma GCC unroll 4
        for (int i = 0; i < lanes; ++i) z[q][i] = {re[i], im[i]};
    };
    // To the rows q + A j.
    const auto transformInside = [&](auto q) __attribute__((always_inline))
    {
        if constexpr (!twoSteps) {
#pragma GCC unroll 4
            for (int i = 1; i < lanes; ++i) z[q][i] = times(z[q][i], table.at(i));
        }
        if constexpr (lanes == 4)
            dft4Turned<q * 16 / W>(z[q][0], z[q][1], z[q][2], z[q][3]);
        else
            dft2Turned<q * 16 / W>(z[q][0], z[q][1]);
#pragma GCC unroll 4
        for (int j = 0; j < lanes; ++j) out.putTurned(q + blocks * j, z[q][j]);
    };
    staggered<blocks>(turnInside, transformInside);
}

// The last pass over some blocks, first, first + step, ... of all; in begins with their rows.
template <int W, class T, class Out>
[[gnu::noinline]] void turn(Rows<T, W> in, Out out, std::ptrdiff_t all, std::ptrdiff_t first,
                            std::ptrdiff_t step, const T* factors)
{
    const Stride one = in.stride(1), outStride = out.stride(all);
    const TableBehindColumns<T, W> table(factors, all * W);
    for (std::ptrdiff_t i = 0, block = first; block < all; ++i, block += step)
        turnBlock<W, T>(in.template from<W>(i * W, one), out.template from<W>(block, outStride),
                        table.of(block));
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

// Both passes in registers.
template <int W, int M, class T, class In, class Out>
[[gnu::noinline]] void inRegisters(In in, Out out, const T* factors)
{
    using V = Vec<T, W>;
    const auto src = in.template closeFrom<1>(0);
    Cx<V> x[M];
#pragma GCC unroll 16
    for (int t = 0; t < M; ++t) x[t] = src.get(t);
    dft<M>(x);
    const WholeTable<T, W> table(factors);
#pragma GCC unroll 16
    for (int block = 0; block < M / W; ++block)
        turnBlock<W, T>(Held<V>{x + block * W}, out.template closeFrom<M / W>(block), table.of(block));
}

// Factors of a transform: of the last pass, then of the columns.
template <class T>
constexpr std::ptrdiff_t sortedFactors(int order)
{
    const int width = lanesForOrder<T>(order), m = order - log2Of(width);
    const std::ptrdiff_t rows = std::ptrdiff_t{1} << m;
    return turnFactors<T>(rows, width) + (rows > mostRowsInRegisters ? columnFactors(m) : 0);
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
    const std::ptrdiff_t rows = std::ptrdiff_t{1} << m;
    if (rows > mostRowsInRegisters) fillColumns(m, wave, p + 2 * turnFactors<T>(rows, width));
}

template <int W, class T, class In, class Out, class Room>
inline void sortedTransform(int order, In in, Out out, Room room, T* work, const T* factors)
{
    const int m = order - log2Of(W);
    const std::ptrdiff_t rows = std::ptrdiff_t{1} << m;
    if constexpr (W <= 8) {
        if (rows == 8) return inRegisters<W, 8>(in, out, factors);
    }
    if (rows == mostRowsInRegisters) return inRegisters<W, mostRowsInRegisters>(in, out, factors);
    const Rows<T, W> own{work};
    const T* ofColumns = factors + 2 * turnFactors<T>(rows, W);
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
