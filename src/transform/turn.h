// The last pass of a transform in cache. It takes the W points of each of W rows, which stand in lanes, transposes
// them in registers, so that they stand in W vectors, and transforms those.
#pragma once

#include "simd/transpose.h"
#include "turntables.h"

#include <utility>

namespace zors::ZORS_VARIANT {

// f(0), ..., f(N - 1), each with a constant.
template <int N, class F>
[[gnu::always_inline]] inline void each(F f)
{
    [&]<int... I>(std::integer_sequence<int, I...>) __attribute__((always_inline))
    {
        (f(std::integral_constant<int, I>{}), ...);
    }
    (std::make_integer_sequence<int, N>{});
}

// Stages first(n) and second(n), n = 0..N - 1, each with a constant. Where there are registers enough the shuffles
// of a first stage come before the arithmetic of the second one before it: the processor looks ahead by little more
// than a stage, and one of shuffles alone would keep the multipliers waiting.
template <int N, class First, class Second>
[[gnu::always_inline]] inline void staggered(First first, Second second)
{
    constexpr int ahead = ZORS_VECTOR_BYTES == 64 ? 1 : 0;
    each<N + ahead>([&](auto n) __attribute__((always_inline)) {
        if constexpr (n < N) first(n);
        if constexpr (n >= ahead) second(std::integral_constant<int, n - ahead>{});
    });
}

template <class T, int W>
using PointsOfBlocks = Cx<Vec<T, W>>[Turn<T, W>::blocks];
template <class T, int W>
using PointsOfLanes = Cx<Vec<T, W>>[Turn<T, W>::lanes];

// The real parts transposed, and the imaginary ones.
template <class V, int N, class Transpose>
[[gnu::always_inline]] inline void transposeParts(Cx<V> (&x)[N], Transpose transpose)
{
    V re[N], im[N];
#pragma GCC unroll 4
    for (int i = 0; i < N; ++i) re[i] = x[i].re, im[i] = x[i].im;
    transpose(re);
    transpose(im);
#pragma GCC unroll 4
    for (int i = 0; i < N; ++i) x[i] = {re[i], im[i]};
}

// The first step: rows b, b + B, ... of a block, their blocks transposed, and then transformed.
template <int W, int B, class T, class In>
[[gnu::always_inline]] inline void takeRows(const In& in, PointsOfBlocks<T, W>& y)
{
#pragma GCC unroll 4
    for (int c = 0; c < Turn<T, W>::blocks; ++c) y[c] = in.get(rowOfLane<T, W>(Turn<T, W>::lanes * c + B));
    transposeParts(
        y, [](auto& part) __attribute__((always_inline)) { transposeBlocks(part); });
}

template <int W, int B, class T, class Table>
[[gnu::always_inline]] inline void transformBlocks(const Table& table, PointsOfBlocks<T, W>& y)
{
    constexpr int blocks = Turn<T, W>::blocks;
    if constexpr (Turn<T, W>::twoSteps) {
#pragma GCC unroll 4
        for (int a = 0; a < blocks; ++a) y[a] = times(y[a], table.at(B, a));
    }
    dft<blocks>(y);
}

// The second step: the same inside the blocks of vectors q, q + A, ...
template <int W, class T>
[[gnu::always_inline]] inline void turnInside(PointsOfLanes<T, W>& z)
{
    transposeParts(
        z, [](auto& part) __attribute__((always_inline)) { transposeInside(part); });
}

template <int W, int Q, class T, class Table>
[[gnu::always_inline]] inline void transformInside(const Table& table, PointsOfLanes<T, W>& z)
{
    constexpr int lanes = Turn<T, W>::lanes;
    if constexpr (!Turn<T, W>::twoSteps) {
#pragma GCC unroll 4
        for (int i = 1; i < lanes; ++i) z[i] = times(z[i], table.at(i));
    }
    if constexpr (lanes == 4)
        dft4Turned<Q * 16 / W>(z[0], z[1], z[2], z[3]);
    else
        dft2Turned<Q * 16 / W>(z[0], z[1]);
}

// The last pass over one block of W rows, first inside the blocks of vectors.
template <int W, class T, class In, class Out>
[[gnu::always_inline]] inline void turnBlock(const In& in, const Out& out,
                                             const InsideFirstTable<T, W>& table)
{
    constexpr int lanes = Turn<T, W>::lanes, half = lanes / 2;
    Cx<Vec<T, W>> x[2][2][half];
    each<2>([&](auto c) __attribute__((always_inline)) {
        PointsOfLanes<T, W> y;
#pragma GCC unroll 4
        for (int b = 0; b < lanes; ++b) y[b] = in.get(rowOfLane<T, W>(lanes * c + b));
        turnInside<W, T>(y);
#pragma GCC unroll 4
        for (int i = 0; i < lanes; ++i) y[i] = times(y[i], table.at(c, i));
#pragma GCC unroll 4
        for (int i = 0; i < half; ++i) {
            dft2(y[i], y[i + half]);
            x[0][c][i] = y[i];
            x[1][c][i] = y[i + half];
        }
    });
    each<2>([&](auto q) __attribute__((always_inline)) {
        PointsOfLanes<T, W> z;
#pragma GCC unroll 4
        for (int i = 0; i < half; ++i) {
            z[i] = x[q][0][i], z[i + half] = x[q][1][i];
            exchangeBlocks<lanes>(z[i].re, z[i + half].re);
            exchangeBlocks<lanes>(z[i].im, z[i + half].im);
        }
        transformInside<W, q, T>(table, z);
#pragma GCC unroll 4
        for (int j = 0; j < lanes; ++j) out.putTurned(q + 2 * j, z[j]);
    });
}

// The same first over whole blocks.
template <int W, class T, class In, class Out, class Table>
[[gnu::always_inline]] inline void turnBlock(const In& in, const Out& out, const Table& table)
{
    using V = Vec<T, W>;
    constexpr int blocks = Turn<T, W>::blocks, lanes = Turn<T, W>::lanes;
    Cx<V> x[blocks][lanes], y[lanes][blocks];
    staggered<lanes>(
        [&](auto b) __attribute__((always_inline)) { takeRows<W, b, T>(in, y[b]); },
        [&](auto b) __attribute__((always_inline)) {
            transformBlocks<W, b, T>(table, y[b]);
#pragma GCC unroll 4
            for (int q = 0; q < blocks; ++q) x[q][b] = y[b][q];
        });
    staggered<blocks>(
        [&](auto q) __attribute__((always_inline)) { turnInside<W, T>(x[q]); },
        [&](auto q) __attribute__((always_inline)) {
            transformInside<W, q, T>(table, x[q]);
#pragma GCC unroll 4
            for (int j = 0; j < lanes; ++j) out.putTurned(q + blocks * j, x[q][j]);
        });
}

// One half of every row.
template <class T, int W>
struct HalfRows {
    const T* p;

    [[gnu::always_inline]] Cx<Vec<T, W>> get(int i) const
    {
        return {load<W>(p + 4 * W * i), load<W>(p + 4 * W * i + 2 * W)};
    }
};

// The last pass over W rows of 2 W columns, whose halves are those of even and of odd columns.
template <class T, int W>
class HalfBlock {
public:
    // The first step over even columns, or over odd ones.
    template <int Odd, class Table>
    [[gnu::always_inline]] void take(const T* rows, const Table& table)
    {
        const HalfRows<T, W> half{rows + Odd * W};
        each<lanes>([&](auto b) __attribute__((always_inline)) {
            Cx<Vec<T, W>> y[blocks];
            takeRows<W, b, T>(half, y);
            transformBlocks<W, b, T>(table, y);
#pragma GCC unroll 4
            for (int q = 0; q < blocks; ++q) x_[Odd][q][b] = y[q];
        });
    }
    // The second step, and both kinds of columns together: point l of the transform of the even ones, and of the odd
    // ones times e^(-2 pi i l / (2 W)), are points l and l + W.
    template <int Q, class Out>
    [[gnu::always_inline]] void put(const Out& out)
    {
        const WholeTable<T, W> none(nullptr); // the factors were in the first step
#pragma GCC unroll 2
        for (auto& x : x_) {
            turnInside<W, T>(x[Q]);
            transformInside<W, Q, T>(none, x[Q]);
        }
        each<lanes>([&](auto j) __attribute__((always_inline)) {
            constexpr int l = Q + blocks * j;
            Cx<Vec<T, W>>&even = x_[0][Q][j], &odd = x_[1][Q][j];
            dft2Turned<l * 16 / (2 * W)>(even, odd);
            out.putTurned(l, even);
            out.putTurned(l + W, odd);
        });
    }

private:
    static constexpr int blocks = Turn<T, W>::blocks, lanes = Turn<T, W>::lanes;

    Cx<Vec<T, W>> x_[2][blocks][lanes];
};

// The last pass over halves of rows, W / 2 rows at a time. The first step of some rows and the second one of those
// before them go together: registers that the one leaves are the other's, and neither waits.
template <int W, class T, class Out>
[[gnu::always_inline]] inline void turnByHalves(Rows<T, W> in, const Out& out, std::ptrdiff_t all,
                                                std::ptrdiff_t first, std::ptrdiff_t step, const T* factors)
{
    constexpr int half = W / 2;
    static_assert(Turn<T, half>::blocks == 2);
    constexpr std::ptrdiff_t evenFactors = 2 * half * (half - 1), oddFactors = 2 * half * half;
    const auto next = ShortTable<T, half>::next(factors + 2 * all * (evenFactors + oddFactors));
    const Stride stride = out.stride(2 * all);
    const auto place = [=](std::ptrdiff_t n) { return 2 * (first + n / 2 * step) + n % 2; };
    const auto tables = [=](std::ptrdiff_t n) { return factors + place(n) * (evenFactors + oddFactors); };
    const auto takeEven = [=](HalfBlock<T, half> & block, std::ptrdiff_t n) __attribute__((always_inline))
    {
        block.template take<0>(in.p + n * half * 2 * W, ShortTable<T, half>(tables(n), next));
    };
    const auto takeOdd = [=](HalfBlock<T, half> & block, std::ptrdiff_t n) __attribute__((always_inline))
    {
        block.template take<1>(in.p + n * half * 2 * W, WholeTable<T, half>(tables(n) + evenFactors));
    };
    const std::ptrdiff_t last = 2 * (all / step) - 1;
    HalfBlock<T, half> block;
    takeEven(block, 0);
    takeOdd(block, 0);
    for (std::ptrdiff_t n = 0; n < last; ++n) {
        HalfBlock<T, half> ahead;
        const auto to = out.template from<W>(place(n), stride);
        takeEven(ahead, n + 1);
        block.template put<0>(to);
        takeOdd(ahead, n + 1);
        block.template put<1>(to);
        block = ahead;
    }
    const auto to = out.template from<W>(place(last), stride);
    block.template put<0>(to);
    block.template put<1>(to);
}

// The last pass over some blocks, the first few of every step from first on; in begins with their rows.
template <int W, int Few = 1, class T, class Out>
[[gnu::noinline]] void turn(Rows<T, W> in, Out out, std::ptrdiff_t all, std::ptrdiff_t first,
                            std::ptrdiff_t step, const T* factors)
{
    if constexpr (turnsHalves<T>(W)) {
        static_assert(Few == 1);
        turnByHalves<W>(in, out, all, first, step, factors);
    } else {
        const Stride outStride = out.stride(all);
        const TableBehindColumns<T, W> table(factors, all * W);
        std::ptrdiff_t row = 0;
        for (std::ptrdiff_t block = first; block < all; block += step)
            for (int i = 0; i < Few; ++i, row += W)
                turnBlock<W, T>(in.template closeFrom<1>(row), out.template from<W>(block + i, outStride),
                                table.of(block + i));
    }
}

} // namespace zors::ZORS_VARIANT
