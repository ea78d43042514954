// Transforms beyond the caches, in two passes over memory. N points are seen as N1 rows of N2 columns. First W
// neighbouring columns at a time are gathered, transformed, turned and stored as W rows of N1 / W panels; then
// every panel, which is contiguous, is transformed and scattered: lane i of point k2 of panel b is point
// W b + i + N1 k2 of the result.
#pragma once

#include "record.h"
#include "sorted.h"

namespace zors::ZORS_VARIANT {

// The factor e^(-2 pi i k n / N) between the two is the product of two shorter tables, k = 16 b + c: c n in
// vectors over c, and 16 b n.
inline constexpr int factorGroup = 16;

struct Division {
    int order;
    int second = order / 2;
    int first = order - second;

    std::ptrdiff_t rows() const { return std::ptrdiff_t{1} << first; }
    std::ptrdiff_t columns() const { return std::ptrdiff_t{1} << second; }
    std::ptrdiff_t groups() const { return rows() / factorGroup; }
};

// Where the tables of a blocked transform stand, in complex numbers from the start.
struct BlockedFactors {
    Division d;
    std::ptrdiff_t vectors = 0;
    std::ptrdiff_t scalars = vectors + d.columns() * factorGroup;
    std::ptrdiff_t firstColumns = scalars + d.columns() * d.groups();
    std::ptrdiff_t secondColumns = firstColumns + d.rows();
    std::ptrdiff_t count = secondColumns + d.columns();
};

template <class T>
inline void fillBlocked(int order, const Wave<T>& wave, T* p)
{
    const Division d{order};
    const BlockedFactors at{d};
    for (std::ptrdiff_t n = 0; n < d.columns(); ++n) {
        T* vector = p + 2 * (at.vectors + n * factorGroup);
        for (int c = 0; c < factorGroup; ++c) {
            const Cx<T> w = wave(n * c, order);
            vector[c] = w.re;
            vector[factorGroup + c] = w.im;
        }
        // In the order of use: the columns of a group side by side, the groups of rows behind one another.
        T* scalar = p + 2 * (at.scalars + n / factorGroup * factorGroup * d.groups() + n % factorGroup);
        for (std::ptrdiff_t b = 0; b < d.groups(); ++b, scalar += 2 * factorGroup) {
            const Cx<T> w = wave(factorGroup * b * n, order);
            scalar[0] = w.re;
            scalar[1] = w.im;
        }
    }
    fillColumns(d.first, wave, p + 2 * at.firstColumns);
    fillColumns(d.second, wave, p + 2 * at.secondColumns);
}

// A panel is a row longer than it need be: powers of two would put all panels into the same few cache sets.
template <class T, int W>
struct BlockedWork {
    Division d;
    T* memory;
    std::ptrdiff_t panelNumbers = 2 * W * (d.columns() + 1);

    template <class Store = Cached>
    Rows<T, W, Store> panel(std::ptrdiff_t b) const
    {
        return {memory + b * panelNumbers};
    }
    Rows<T, W> block(int which) const
    {
        T* behindPanels = memory + d.rows() / W * panelNumbers;
        return {behindPanels + which * 2 * W * d.rows()};
    }
};

// In bytes; the same for every width, because the widest blocks set it.
template <class T>
constexpr std::int64_t blockedWorkBytes(int order)
{
    const Division d{order};
    constexpr std::int64_t mostWidth = 64 / bytes<T>, pair = 2 * bytes<T>;
    return pair * (d.rows() * (d.columns() + 1) + 2 * mostWidth * d.rows());
}

// Columns n to n + W - 1 of the transformed block as rows n and following of every panel.
template <int W, class Store, class T>
[[gnu::noinline]] void turnIntoPanels(Rows<T, W> in, const BlockedWork<T, W>& work, std::ptrdiff_t n,
                                      const T* factors)
{
    const BlockedFactors at{work.d};
    const T* vectors = factors + 2 * (at.vectors + n * factorGroup);
    const T* scalars =
        factors + 2 * (at.scalars + n / factorGroup * factorGroup * work.d.groups() + n % factorGroup);
    const Stride one = in.stride(1);
    for (std::ptrdiff_t k = 0; k < work.d.rows(); k += W) {
        const auto rows = in.template from<W>(k, one);
        Vec<T, W> re[W], im[W];
#pragma GCC unroll 16
        for (int t = 0; t < W; ++t) {
            const Cx<Vec<T, W>> v = rows.get(t);
            re[t] = v.re, im[t] = v.im;
        }
        transpose(re);
        transpose(im);
        const auto to = work.template panel<Store>(k / W).template from<W>(n, one);
        const T* scalar = scalars + 2 * factorGroup * (k / factorGroup);
#pragma GCC unroll 16
        for (int t = 0; t < W; ++t) {
            const T* vector = vectors + 2 * factorGroup * t + k % factorGroup;
            const Cx<Vec<T, W>> w = {load<W>(vector), load<W>(vector + factorGroup)};
            const Cx<Vec<T, W>> s = {splat<T, W>(scalar[2 * t]), splat<T, W>(scalar[2 * t + 1])};
            to.put(t, times({re[t], im[t]}, times(w, s)));
        }
    }
}

// A result of this many bytes is written past the caches, and so are its panels. Measured: they do not stay in the last
// level beside one another, and what is stored through it is read first.
inline constexpr std::int64_t firstUncachedBytes = std::int64_t{8} << 20;

// The first pass over memory.
template <class Store, class T, class Arrays>
inline void transformIntoPanels(const Arrays& io, const BlockedWork<T, lanes<T>>& work, const T* factors)
{
    constexpr int w = lanes<T>;
    const Division d = work.d;
    const Rows<T, w> one = work.block(0), other = work.block(1);
    const T* ofColumns = factors + 2 * BlockedFactors{d}.firstColumns;
    for (std::ptrdiff_t n = 0; n < d.columns(); n += w) {
        longColumns<w>(d.first, io.template source<w>(d.columns(), n), other, one, ofColumns);
        turnIntoPanels<w, Store>(one, work, n, factors);
    }
}

// The second one. The multiplication hides behind the stores, so that there is one even where the factor is 1.
template <class Store, class T, class Arrays>
inline void transformPanels(const Arrays& io, const BlockedWork<T, lanes<T>>& work, T factor,
                            const T* factors)
{
    constexpr int w = lanes<T>;
    const Division d = work.d;
    const T* ofColumns = factors + 2 * BlockedFactors{d}.secondColumns;
    for (std::ptrdiff_t b = 0; b < d.rows() / w; ++b) {
        const auto sink = io.template sink<w, Store>(d.rows(), b * w);
        longColumns<w>(d.second, work.panel(b), work.panel(b), Scaled<T, decltype(sink)>{sink, factor},
                       ofColumns);
    }
}

template <class T, class Arrays>
inline void blockedTransform(int order, const Arrays& io, const T* factor, T* memory, const T* factors)
{
    const BlockedWork<T, lanes<T>> work{Division{order}, memory};
    const T scale = factor ? *factor : T{1};
    if ((2 * bytes<T> << order) < firstUncachedBytes) {
        transformIntoPanels<Cached>(io, work, factors);
        transformPanels<Cached>(io, work, scale, factors);
    } else {
        transformIntoPanels<Uncached>(io, work, factors);
        if (io.isAligned(vectorBytes))
            transformPanels<Uncached>(io, work, scale, factors);
        else
            transformPanels<Cached>(io, work, scale, factors);
        streamFence();
    }
}

} // namespace zors::ZORS_VARIANT
