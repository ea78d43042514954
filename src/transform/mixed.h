// Transforms of lengths with small prime factors, in two steps as in blocked.h: W neighbouring columns at a time are
// gathered, transformed, multiplied by factors and turned into panels of W rows; then every panel, which is contiguous,
// is transformed and scattered. Numbers of rows and columns are no multiples of W, so the last W begin where they end
// with the last; where there are fewer than W, lanes are left empty.
#pragma once

#include "mixed_columns.h"
#include "record.h"

namespace zors::ZORS_VARIANT {

// A source whose imaginary parts are multiplied by a sign, and a destination with a factor for each part: with the
// conjugate on both sides the forward transform is the inverse.
template <class T, class In>
struct Signed {
    In in;
    T sign;

    template <class Rows>
    struct Some {
        Rows rows;
        T sign;

        [[gnu::always_inline]] auto get(int i) const
        {
            auto v = rows.get(i);
            v.im *= sign;
            return v;
        }
    };
    template <class Rows>
    [[gnu::always_inline]] Some<Rows> wrap(Rows rows) const
    {
        return {rows, sign};
    }
    Stride stride(std::ptrdiff_t rows) const { return in.stride(rows); }
    template <int R>
    [[gnu::always_inline]] auto from(std::ptrdiff_t row, const Stride& stride) const
    {
        return wrap(in.template from<R>(row, stride));
    }
};

template <class T, class Out>
struct ScaledParts {
    Out out;
    T re, im;

    template <class Rows>
    struct Some {
        Rows rows;
        T re, im;

        template <class V>
        [[gnu::always_inline]] void put(int i, Cx<V> v) const
        {
            rows.put(i, {v.re * re, v.im * im});
        }
    };
    template <class Rows>
    [[gnu::always_inline]] Some<Rows> wrap(Rows rows) const
    {
        return {rows, re, im};
    }
    Stride stride(std::ptrdiff_t rows) const { return out.stride(rows); }
    template <int R>
    [[gnu::always_inline]] auto from(std::ptrdiff_t row, const Stride& stride) const
    {
        return wrap(out.template from<R>(row, stride));
    }
    ScaledParts every(std::ptrdiff_t step, std::ptrdiff_t first) const
    {
        return {out.every(step, first), re, im};
    }
};

constexpr std::ptrdiff_t wholeVectors(std::ptrdiff_t len, std::ptrdiff_t width)
{
    return (len + width - 1) / width * width;
}

// The tables of a mixed transform: the passes', and the factors between the steps.
template <class T>
struct MixedTables {
    T* ofRows;
    T* ofColumns;
    T* turn; // W for every column of every panel
};

// Where a panel begins: the last one ends with the last row.
constexpr std::ptrdiff_t firstOf(std::ptrdiff_t block, std::ptrdiff_t len, int width)
{
    const std::ptrdiff_t first = block * width;
    return first + width <= len || len < width ? first : len - width;
}

// Whether vectors of half the width waste less: those of a cache line are not twice as dear.
constexpr bool takesHalves(const MixedPlan& plan, int most)
{
    const auto cost = [&](int width) {
        return wholeVectors(plan.rows(), width) * plan.columns() +
               wholeVectors(plan.columns(), width) * plan.rows();
    };
    return 10 * cost(most / 2) < 9 * cost(most);
}

template <class T>
constexpr int lanesOfLine = 64 / static_cast<int>(sizeof(T));

// In numbers, enough for every width.
template <class T>
constexpr std::ptrdiff_t turnNumbers(const MixedPlan& plan)
{
    return 2 * wholeVectors(plan.rows(), lanesOfLine<T>) * plan.columns();
}

template <class T>
struct MixedWork {
    const MixedPlan& plan;
    T* memory;
    int width;

    // A panel is a row longer than it need be, so that not all of them begin in the same sets of a cache.
    std::ptrdiff_t panelNumbers() const
    {
        return 2 * width * (std::max<std::ptrdiff_t>(plan.columns(), width) + 1);
    }
    template <int W>
    Rows<T, W> panel(std::ptrdiff_t b) const
    {
        return {memory + b * panelNumbers()};
    }
    template <int W>
    Rows<T, W> block(int which) const
    {
        return {memory + wholeVectors(plan.rows(), width) / width * panelNumbers() + which * blockNumbers()};
    }
    std::ptrdiff_t blockNumbers() const
    {
        return 2 * width * std::max<std::ptrdiff_t>(width, std::max(plan.rows(), plan.columns()));
    }
    std::ptrdiff_t numbers() const
    {
        return wholeVectors(plan.rows(), width) / width * panelNumbers() + 2 * blockNumbers();
    }
};

template <class T>
inline std::int64_t mixedWorkBytes(const MixedPlan& plan)
{
    std::int64_t most = 0;
    for (int width = 16 / static_cast<int>(sizeof(T)); width <= lanesOfLine<T>; width *= 2)
        most = std::max<std::int64_t>(most, MixedWork<T>{plan, nullptr, width}.numbers());
    return most * bytes<T>;
}

// Columns n to n + W - 1 of the transformed block as rows n and following of every panel.
template <int W, class T>
[[gnu::noinline]] void turnIntoPanels(Rows<T, W> in, const MixedWork<T>& work, std::ptrdiff_t n,
                                      const T* factors)
{
    const Stride one = in.stride(1);
    const std::ptrdiff_t rows = work.plan.rows(), columns = work.plan.columns();
    for (std::ptrdiff_t b = 0; b * W < rows; ++b) {
        const auto from = in.template from<W>(firstOf(b, rows, W), one);
        Vec<T, W> re[W], im[W];
#pragma GCC unroll 16
        for (int t = 0; t < W; ++t) {
            const Cx<Vec<T, W>> v = from.get(t);
            re[t] = v.re, im[t] = v.im;
        }
        transpose(re);
        transpose(im);
        const T* factor = factors + 2 * W * (b * columns + n);
        const auto turned = [&](int t) __attribute__((always_inline))
        {
            const Cx<Vec<T, W>> v = {re[t], im[t]},
                                w = {load<W>(factor + 2 * W * t), load<W>(factor + 2 * W * t + W)};
            return times(v, w);
        };
        const Rows<T, W> panel = work.template panel<W>(b);
        if (columns < W) {
            for (int t = 0; t < static_cast<int>(columns); ++t)
                panel.template from<1>(t, one).put(0, turned(t));
        } else {
            const auto to = panel.template from<W>(n, one);
#pragma GCC unroll 16
            for (int t = 0; t < W; ++t) to.put(t, turned(t));
        }
    }
}

template <class T, class Root>
inline void fillTurn(const MixedPlan& plan, int width, T* p, Root root)
{
    const std::ptrdiff_t rows = plan.rows(), columns = plan.columns();
    for (std::ptrdiff_t b = 0; b * width < rows; ++b)
        for (std::ptrdiff_t n = 0; n < columns; ++n, p += 2 * width)
            for (int lane = 0; lane < width; ++lane) {
                const std::ptrdiff_t k = firstOf(b, rows, width) + lane;
                const Cx<T> w = k < rows ? root(k * n, rows * columns) : Cx<T>{};
                p[lane] = w.re;
                p[width + lane] = w.im;
            }
}

// Some lanes of rows from where a caller has them, and back; the others are 0.
template <int W, class T, class Arrays>
inline void gatherRows(const Arrays& io, std::ptrdiff_t stride, std::ptrdiff_t count, int width, T sign,
                       Rows<T, W> to)
{
    const Stride one = to.stride(0);
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        T re[W] = {}, im[W] = {};
        for (int lane = 0; lane < width; ++lane) {
            const Cx<T> v = io.get(i * stride + lane);
            re[lane] = v.re;
            im[lane] = v.im * sign;
        }
        to.template from<1>(i, one).put(0, {load<W>(re), load<W>(im)});
    }
}

template <int W, class T, class Arrays>
inline void scatterRows(Rows<T, W> from, const Arrays& io, std::ptrdiff_t stride, std::ptrdiff_t count,
                        int width)
{
    const Stride one = from.stride(0);
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        const Cx<Vec<T, W>> v = from.template from<1>(i, one).get(0);
        for (int lane = 0; lane < width; ++lane) io.put(i * stride + lane, {v.re[lane], v.im[lane]});
    }
}

// The transform of a source whose imaginary parts have a sign; results are multiplied by a factor for each part.
template <int W, class T, class Arrays>
inline void mixedTransform(const MixedPlan& plan, const MixedTables<T>& tables, const Arrays& io, T sign,
                           T re, T im, T* memory)
{
    const MixedWork<T> work{plan, memory, W};
    const std::ptrdiff_t rows = plan.rows(), columns = plan.columns();
    const Rows<T, W> one = work.template block<W>(0), other = work.template block<W>(1);
    if (rows < W) std::fill_n(one.p + 2 * W * rows, 2 * W * (W - rows), T{});
    for (std::ptrdiff_t b = 0; b * W < columns; ++b) {
        const std::ptrdiff_t n = firstOf(b, columns, W);
        if (columns < W) {
            gatherRows(io, columns, rows, static_cast<int>(columns), sign, other);
            mixedColumns<W>(plan.ofRows, other, other, one, tables.ofRows);
        } else {
            const auto source = io.template source<W>(columns, n);
            mixedColumns<W>(plan.ofRows, Signed<T, decltype(source)>{source, sign}, other, one,
                            tables.ofRows);
        }
        turnIntoPanels<W>(one, work, n, tables.turn);
    }
    for (std::ptrdiff_t b = 0; b * W < rows; ++b) {
        const std::ptrdiff_t k = firstOf(b, rows, W);
        const Rows<T, W> panel = work.template panel<W>(b);
        if (rows < W) {
            mixedColumns<W>(plan.ofColumns, panel, panel, ScaledParts<T, Rows<T, W>>{one, re, im},
                            tables.ofColumns);
            scatterRows(one, io, rows, columns, static_cast<int>(rows));
        } else {
            const auto sink = io.template sink<W>(rows, k);
            mixedColumns<W>(plan.ofColumns, panel, panel, ScaledParts<T, decltype(sink)>{sink, re, im},
                            tables.ofColumns);
        }
    }
}

} // namespace zors::ZORS_VARIANT
