// How a length that is no power of two is divided: into rows and columns, and the points of both among passes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>

namespace zors::ZORS_VARIANT {

// Radices that have a butterfly of their own; of others, which are prime, one for all takes any.
inline constexpr int ownRadices[] = {16, 12, 10, 9, 8, 7, 6, 5, 4, 3, 2};

constexpr bool hasOwnRadix(int r)
{
    return r <= 10 || r == 12 || r == 16;
}

// The passes over columns of some points. No factorisation has more of them than this.
struct MixedPasses {
    static constexpr int most = 12;
    std::int32_t points = 1;
    std::uint8_t count = 0;
    std::uint8_t radix[most] = {};

    void add(int r)
    {
        radix[count++] = static_cast<std::uint8_t>(r);
        points *= r;
    }
};

// What a butterfly costs a point, counted in vector operations: loads and stores, factors, arithmetic.
constexpr double costOfRadix(int r)
{
    constexpr double own[] = {0,    0,    7.5, 10.7, 10.2, 13.6, 13.2, 16.9, 13.1,
                              18.9, 15.9, 0,   15.4, 0,    0,    0,    18};
    return hasOwnRadix(r) ? own[r] : 10 + r;
}

namespace division {

inline constexpr double unreachable = 1e300;

// The cheapest passes for what is left, by radices from the given one on; those are in descending order.
inline double cheapest(int rest, int from, MixedPasses& passes)
{
    if (rest == 1) return 0;
    double least = unreachable;
    const MixedPasses before = passes;
    for (int i = from; i < static_cast<int>(sizeof ownRadices / sizeof *ownRadices); ++i) {
        const int r = ownRadices[i];
        if (rest % r || before.count == MixedPasses::most) continue;
        MixedPasses with = before;
        with.add(r);
        const double cost = costOfRadix(r) + cheapest(rest / r, i, with);
        if (cost < least) least = cost, passes = with;
    }
    return least;
}

// Prime numbers without a butterfly of their own first, where there are no factors yet.
inline double passesOf(int points, MixedPasses& passes)
{
    passes = {};
    double cost = 0;
    int rest = points;
    for (const int d : {2, 3, 5, 7})
        while (rest % d == 0) rest /= d;
    for (int d = 11; rest > 1; d += 2)
        for (; rest % d == 0; rest /= d, points /= d) {
            if (passes.count == MixedPasses::most) return unreachable;
            passes.add(d);
            cost += costOfRadix(d);
        }
    return cost + cheapest(points, 0, passes);
}

} // namespace division

// N points as rows of columns. Point n of the source is in column n mod columns; point k of the result comes from
// row k mod rows.
struct MixedPlan {
    MixedPasses ofRows;    // each column has as many points as there are rows
    MixedPasses ofColumns; // and afterwards the other way round

    std::ptrdiff_t rows() const { return ofRows.points; }
    std::ptrdiff_t columns() const { return ofColumns.points; }
};

// The same for every variant, as if vectors had 64 bytes, so that sizes do not depend on the processor. Both numbers
// are near the root of n: within a factor of four where there are such.
inline MixedPlan mixedPlan(int n, int mostLanes)
{
    const auto vectors = [=](int len) { return (len + mostLanes - 1) / mostLanes; };
    MixedPlan best{};
    double least = division::unreachable;
    const auto consider = [&](int rows, int columns) {
        MixedPlan plan{};
        const double ofRows = division::passesOf(rows, plan.ofRows);
        const double ofColumns = division::passesOf(columns, plan.ofColumns);
        const double cost = ofRows * rows * vectors(columns) + ofColumns * columns * vectors(rows);
        if (cost < least) least = cost, best = plan;
    };
    int few = 1;
    while (std::int64_t{few + 1} * (few + 1) <= n) ++few;
    for (; few > 1 && (n / few <= 16 * few || least == division::unreachable); --few) {
        if (n % few) continue;
        consider(few, n / few);
        consider(n / few, few);
    }
    return best;
}

} // namespace zors::ZORS_VARIANT
