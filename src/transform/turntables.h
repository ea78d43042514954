// The turn's way through the points of a row, and its factors in the order of use.
#pragma once

#include "ports.h"
#include "record.h"
#include "sines.h"

#include <type_traits>

namespace zors::ZORS_VARIANT {

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

// Up to so many rows there are no passes before this one: all is done in registers.
inline constexpr int mostRowsInRegisters = 16;

// Behind passes the halves of wide rows may be taken one by one, the even columns and the odd ones. Processors that
// work on 64 bytes in halves lose nothing by it, and a shuffle in four is gone. In single precision there are not
// registers enough.
template <class T>
constexpr bool turnsHalves(int width)
{
    return sizeof(T) == 8 && width == 8;
}

// With two blocks in a vector the steps change places, so that columns may stand as pairs are taken apart inside blocks:
// in block a lane i is column p(B a + i), p(lane) = rowOfLane(lane). First, for the rows p(B c + b) of each c, b and i
// change places, and vectors i and i + B / 2, which hold columns W / 2 apart, are transformed; then c and a change
// places, and B points are transformed.
template <class T>
constexpr bool turnsInsideFirst(int width)
{
    return hasTwoBlocks<Vec<T>> && width == lanes<T>;
}

// The columns of lanes that a turn takes.
template <class T, int W>
using OrderInRegisters = std::conditional_t<turnsInsideFirst<T>(W), AsRows<T, W>, InOrder>;
template <class T, int W>
using OrderBehindPasses = std::conditional_t<turnsHalves<T>(W), EvenFirst<W>, OrderInRegisters<T, W>>;

// Factors: for each block of rows, b and a those of k l, real parts of a vector, then imaginary ones; with one step
// for i = 1..B - 1. Behind passes, which have factors too, those for a = 0 and b = 1 are left out, or the tables would
// have more than N: they are those of b = 0 times e^(-2 pi i step i / N), which stand behind all.
template <class T>
constexpr bool isShort(std::ptrdiff_t rows, int width)
{
    return width > lanesOfBlock<Vec<T>> && rows > mostRowsInRegisters && !turnsInsideFirst<T>(width);
}

template <class T>
constexpr std::ptrdiff_t turnFactors(std::ptrdiff_t rows, int width)
{
    if (isShort<T>(rows, width)) return rows * (width - 1) + lanesOfBlock<Vec<T>>;
    const bool all = width > lanesOfBlock<Vec<T>> && !turnsInsideFirst<T>(width);
    return rows * (all ? width : width - 1);
}

// A factor of every lane.
template <class T>
constexpr T* putFactors(const Wave<T>& wave, int order, int width, auto power, T* p)
{
    for (int lane = 0; lane < width; ++lane) {
        const Cx<T> w = wave(power(lane), order);
        p[lane] = w.re;
        p[width + lane] = w.im;
    }
    return p + 2 * width;
}

// Of W rows, and of their points first, first + step, ...
template <class T, int W>
constexpr T* fillBlock(int order, const Wave<T>& wave, std::ptrdiff_t row, int first, int step, bool isShort,
                       T* p)
{
    using Turn = Turn<T, W>;
    for (int b = 0; b < Turn::lanes; ++b)
        for (int a = b == 1 && isShort ? 1 : 0; a < Turn::blocks; ++a) {
            const auto power = [=](int lane) {
                const int i = lane % Turn::lanes, l = a * Turn::lanes + i;
                return (row + rowOfLane<T, W>(lane - i + b)) * (first + step * l);
            };
            p = putFactors(wave, order, W, power, p);
        }
    return p;
}

// Of W rows where the steps have changed places: for c and i those of all lanes, but for i = 0 only those of the second
// block, as the first one has column 0.
template <class T, int W>
constexpr T* fillInsideFirst(int order, const Wave<T>& wave, std::ptrdiff_t row, T* p)
{
    constexpr int each = Turn<T, W>::lanes;
    for (int c = 0; c < 2; ++c)
        for (int i = 0; i < each; ++i) {
            const int skipped = i == 0 ? each : 0;
            const auto power = [=](int lane) {
                const int at = lane + skipped, column = rowOfLane<T, W>(at / each * each + i);
                return (row + rowOfLane<T, W>(each * c + at % each)) * column;
            };
            p = putFactors(wave, order, W - skipped, power, p);
        }
    return p;
}

// Of rows that are taken whole, or in two halves of W columns.
template <class T, int W, int Parts = 1>
constexpr void fillTurn(int order, const Wave<T>& wave, T* p)
{
    using Turn = Turn<T, W>;
    const std::ptrdiff_t rows = (std::ptrdiff_t{1} << order) / (W * Parts);
    const bool isShort = ZORS_VARIANT::isShort<T>(rows, W * Parts);
    for (std::ptrdiff_t row = 0; row < rows; row += W)
        if constexpr (turnsInsideFirst<T>(W)) {
            p = fillInsideFirst<T, W>(order, wave, row, p);
        } else if constexpr (Turn::twoSteps) {
            for (int part = 0; part < Parts; ++part)
                p = fillBlock<T, W>(order, wave, row, part, Parts, isShort && part == 0, p);
        } else {
            for (int i = 1; i < W; ++i) {
                const auto power = [=](int lane) { return (row + rowOfLane<T, W>(lane)) * i; };
                p = putFactors(wave, order, W, power, p);
            }
        }
    if (isShort)
        putFactors(
            wave, order, Turn::lanes, [](int i) { return Turn::step * Parts * i; }, p);
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
    // From b = 0 to b = 1, from what stands behind all.
    static Cx<Vec<T, W>> next(const T* p)
    {
        constexpr int each = lanesOfBlock<Vec<T>>;
        return {repeated<W>(load<each>(p)), repeated<W>(load<each>(p + each))};
    }

    ShortTable(const T* factors, Cx<Vec<T, W>> next) : factors_(factors), next_(next) {}
    ShortTable(const T* factors, std::ptrdiff_t rows)
        : ShortTable(factors, next(factors + 2 * rows * (W - 1)))
    {
    }
    ShortTable of(std::ptrdiff_t block) const
    {
        return ShortTable(factors_ + block * 2 * W * (W - 1), next_);
    }
    [[gnu::always_inline]] Cx<Vec<T, W>> at(int b, int a) const
    {
        if (b == 1 && a == 0) return times(factorAt<T, W>(factors_, 0), next_);
        return factorAt<T, W>(factors_, b * Turn<T, W>::blocks + a - (b > 0 ? 1 : 0));
    }

private:
    const T* factors_;
    Cx<Vec<T, W>> next_;
};

// Where the steps have changed places: by c and i.
template <class T, int W>
class InsideFirstTable {
public:
    explicit InsideFirstTable(const T* factors, std::ptrdiff_t = 0) : factors_(factors) {}

    InsideFirstTable of(std::ptrdiff_t block) const
    {
        return InsideFirstTable(factors_ + block * 2 * W * (W - 1));
    }
    [[gnu::always_inline]] Cx<Vec<T, W>> at(int c, int i) const
    {
        constexpr int each = Turn<T, W>::lanes;
        const T* const p = factors_ + c * each * 2 * (W - 1);
        if (i > 0) return factorAt<T, W>(p + 2 * each, i - 1);
        return {concatenated(splat<T, each>(1), load<each>(p)),
                concatenated(splat<T, each>(0), load<each>(p + each))};
    }

private:
    const T* factors_;
};

template <class T, int W>
using TableInRegisters = std::conditional_t<turnsInsideFirst<T>(W), InsideFirstTable<T, W>, WholeTable<T, W>>;
template <class T, int W>
using TableBehindColumns = std::conditional_t<Turn<T, W>::twoSteps && !turnsInsideFirst<T>(W),
                                              ShortTable<T, W>, TableInRegisters<T, W>>;

} // namespace zors::ZORS_VARIANT
