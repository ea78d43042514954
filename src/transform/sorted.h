// Transforms that fit into the caches. N points are seen as M rows of W columns: the columns are transformed, then
// the rows in the turn: point k + M l of the result is point l of row k.
#pragma once

#include "columns.h"
#include "turn.h"

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

// The last pass over columns and the turn at once, by the rows that depend on one another; with narrow vectors more of
// them, as a call costs as much as a butterfly.
template <int W, class T, class Out>
inline void lastPassAndTurn(const Progress<T>& at, Rows<T, W> in, Out out, const T* factors)
{
    constexpr int few = turnsHalves<T>(W) ? 1 : 16 / W, count = few * W;
    alignas(lineBytes) T memory[2 * W * count << mostLevels];
    const Rows<T, W> rows{memory};
    const std::ptrdiff_t blocks = at.done / W, all = blocks << at.levels();
    for (std::ptrdiff_t k = 0; k < at.done; k += count) {
        lastPass<W>(at, in, k, count, rows, count);
        turn<W, few>(rows, out, all, k / W, blocks, factors);
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
    dft(x, [&](int t) { x[t] = src.get(t); });
    const TableInRegisters<T, W> table(factors);
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
    constexpr int most = lanes<T>;
    const int width = lanesForOrder<T>(order), m = order - log2Of(width);
    const std::ptrdiff_t rows = std::ptrdiff_t{1} << m;
    if (width < most)
        fillTurn<T, most / 2>(order, wave, p);
    else if (rows > mostRowsInRegisters && turnsHalves<T>(most))
        fillTurn<T, most / 2, 2>(order, wave, p);
    else
        fillTurn<T, most>(order, wave, p);
    if (rows > mostRowsInRegisters) fillColumns(m, wave, p + 2 * turnFactors<T>(rows, width));
}

template <int W, class T, class In, class Out>
inline void inRegisters(int rows, In in, Out out, const T* factors)
{
    if constexpr (W <= 8) {
        if (rows == 8) return inRegisters<W, 8>(in, out, factors);
    }
    inRegisters<W, mostRowsInRegisters>(in, out, factors);
}

// In passes; where the turn takes halves of rows, in and out have them.
template <int W, class T, class In, class Out, class Room>
inline void inPasses(int order, In in, Out out, Room room, T* work, const T* factors)
{
    const int m = order - log2Of(W);
    const Rows<T, W> own{work};
    const T* ofColumns = factors + 2 * turnFactors<T>(std::ptrdiff_t{1} << m, W);
    if (Passes{m}.count <= 2) {
        twoPasses<W>(m, in, room, own, ofColumns);
        turn<W>(own, out, (std::ptrdiff_t{1} << m) / W, 0, 1, factors);
    } else {
        Progress<T> at(m, ofColumns);
        if (at.passes.isLong)
            firstLongPass<W, T>(in, own, at.butterfliesOfBlock());
        else
            firstPass<W, T>(at.levels(), in, own, at.butterfliesOfBlock());
        passesInPlace<W>(at, own);
        lastPassAndTurn<W>(at, own, out, factors);
    }
}

} // namespace zors::ZORS_VARIANT
