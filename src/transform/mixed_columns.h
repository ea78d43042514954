// Transforms of many columns at once, as in columns.h, of any number of rows whose prime factors are small: passes of
// any radix, the last of which finds its rows by their digits.
#pragma once

#include "columns.h"
#include "mixed_plan.h"
#include "odd_butterfly.h"

namespace zors::ZORS_VARIANT {

// The largest factor there is, in double precision with factors of four.
inline constexpr int mostRadix = 150;

// Numbers of a pass's table: the roots of unity of a radix without a butterfly of its own, and the factors.
constexpr std::ptrdiff_t passNumbers(int radix, std::ptrdiff_t done)
{
    return (hasOwnRadix(radix) ? 0 : 2 * radix) + (done > 1 ? 2 * (radix - 1) * done : 0);
}

constexpr std::ptrdiff_t tableNumbers(const MixedPasses& passes)
{
    std::ptrdiff_t numbers = 0, done = 1;
    for (int i = 0; i < passes.count; done *= passes.radix[i++])
        numbers += passNumbers(passes.radix[i], done);
    return numbers;
}

// root(k, n) is e^(-2 pi i k / n).
template <class T, class Root>
inline void fillTables(const MixedPasses& passes, T* p, Root root)
{
    const auto put = [&](std::int64_t k, std::int64_t n) {
        const Cx<T> w = root(k, n);
        *p++ = w.re;
        *p++ = w.im;
    };
    std::int64_t done = 1;
    for (int i = 0; i < passes.count; ++i) {
        const int radix = passes.radix[i];
        if (!hasOwnRadix(radix))
            for (int k = 0; k < radix; ++k) put(k, radix);
        if (done > 1)
            for (std::int64_t k = 0; k < done; ++k)
                for (int t = 1; t < radix; ++t) put(k * t, done * radix);
        done *= radix;
    }
}

// Butterflies of a prime number of points, by sums and differences of opposite ones as in dftOfPrime().
template <int W, bool First, class T, class In, class Out>
[[gnu::noinline]] void primeButterflies(int radix, In in, Places from, Out out, Places to,
                                        std::ptrdiff_t count, const T* roots, const T* factors,
                                        std::ptrdiff_t factorSets)
{
    using V = Vec<T, W>;
    const int half = radix / 2;
    const Stride none = in.stride(0), noneOut = out.stride(0);
    for (std::ptrdiff_t i = 0; i < count; ++i, factors += 2 * (radix - 1) * factorSets) {
        const auto taken = [&](int t) {
            const Cx<V> x = in.template from<1>(i * from.apart + t * from.stride, none).get(0);
            if (First || t == 0) return x;
            return times(x, {constant<V>(factors[2 * t - 2]), constant<V>(factors[2 * t - 1])});
        };
        const auto put = [&](int u, Cx<V> x) {
            out.template from<1>(i * to.apart + u * to.stride, noneOut).put(0, x);
        };
        Cx<V> s[mostRadix / 2], d[mostRadix / 2];
        const Cx<V> first = taken(0);
        Cx<V> sum = first;
        for (int j = 0; j < half; ++j) {
            const Cx<V> a = taken(j + 1), b = taken(radix - 1 - j);
            s[j] = a + b;
            d[j] = a - b;
            sum = sum + s[j];
        }
        put(0, sum);
        for (int k = 1; k <= half; ++k) {
            Cx<V> even = first, odd{};
            for (int j = 0, m = k; j < half; ++j) {
                const V c = constant<V>(roots[2 * m]), n = constant<V>(roots[2 * m + 1]);
                even = {mulAdd(s[j].re, c, even.re), mulAdd(s[j].im, c, even.im)};
                odd = {mulAdd(d[j].re, n, odd.re), mulAdd(d[j].im, n, odd.im)};
                m += k;
                if (m >= radix) m -= radix;
            }
            put(k, {even.re - odd.im, even.im + odd.re});
            put(radix - k, {even.re + odd.im, even.im - odd.re});
        }
    }
}

// The table of a pass: the roots of its radix where that has no butterfly of its own, then the factors.
template <class T>
struct PassTable {
    const T* roots;
    const T* factors;

    PassTable(int radix, const T* table) : roots(table), factors(table + (hasOwnRadix(radix) ? 0 : 2 * radix))
    {
    }
};

template <int W, bool First, class T, class In, class Out>
[[gnu::noinline]] void mixedButterflies(int radix, In in, Places from, Out out, Places to,
                                        std::ptrdiff_t count, PassTable<T> table, std::ptrdiff_t k,
                                        std::ptrdiff_t factorSets)
{
    const T* factors = table.factors + 2 * k * (radix - 1);
    switch (radix) {
#define ZORS_RADIX(R)                                                                                        \
    case R:                                                                                                  \
        return butterflies<R, W, First>(in, from, out, to, count, factors, factorSets);
        ZORS_RADIX(2)
        ZORS_RADIX(3)
        ZORS_RADIX(4)
        ZORS_RADIX(5)
        ZORS_RADIX(6)
        ZORS_RADIX(7)
        ZORS_RADIX(8)
        ZORS_RADIX(9)
        ZORS_RADIX(10)
        ZORS_RADIX(12)
        ZORS_RADIX(16)
#undef ZORS_RADIX
    default:
        return primeButterflies<W, First>(radix, in, from, out, to, count, table.roots, factors, factorSets);
    }
}

// Where a transform stands between two passes, as Progress of columns.h for radices of any kind.
class MixedProgress {
public:
    explicit MixedProgress(const MixedPasses& passes) : passes_(passes), groups_(passes.points) { step(); }

    int radix() const { return passes_.radix[pass_]; }
    bool isLast() const { return pass_ == passes_.count - 1; }
    std::ptrdiff_t done() const { return done_; }
    // Butterflies of a block in the pass that follows.
    std::ptrdiff_t butterfliesOfBlock() const { return groups_ / radix(); }
    void step()
    {
        done_ *= radix();
        apart_[pass_] = groups_ /= radix();
        ++pass_;
    }
    // run(k, row) for every point k of those that are done whose lowest digit is 0, and the row where its block begins;
    // the points up to the next such k have their blocks together() apart.
    template <class Run>
    void forPoints(Run run) const
    {
        int digits[MixedPasses::most] = {};
        std::ptrdiff_t row = 0;
        for (std::ptrdiff_t k = 0; k < done_; k += passes_.radix[0]) {
            run(k, row);
            for (int i = 1; i < pass_; ++i) {
                row += apart_[i];
                if (++digits[i] < passes_.radix[i]) break;
                row -= apart_[i] * passes_.radix[i];
                digits[i] = 0;
            }
        }
    }
    int together() const { return passes_.radix[0]; }
    std::ptrdiff_t apart() const { return apart_[0]; }

private:
    const MixedPasses& passes_;
    std::ptrdiff_t groups_; // rows of a block
    std::ptrdiff_t done_ = 1;
    int pass_ = 0;
    std::ptrdiff_t apart_[MixedPasses::most];
};

// The rows of one set of columns through all passes. In may be own; out may not, unless there is one pass.
template <int W, class T, class In, class Out>
inline void mixedColumns(const MixedPasses& passes, In in, Rows<T, W> own, Out out, const T* table)
{
    const int first = passes.radix[0];
    if (passes.count == 1)
        return mixedButterflies<W, true, T>(first, in, {1, 1}, out, {1, 1}, 1, {first, table}, 0, 0);
    MixedProgress at(passes);
    const Places places{1, at.apart()};
    mixedButterflies<W, true, T>(first, in, places, own, places, at.apart(), {first, table}, 0, 0);
    table += passNumbers(first, 1);
    for (; !at.isLast(); at.step()) {
        const std::ptrdiff_t count = at.butterfliesOfBlock();
        const PassTable<T> ofPass(at.radix(), table);
        at.forPoints([&](std::ptrdiff_t k, std::ptrdiff_t row) {
            for (int i = 0; i < at.together(); ++i) {
                const auto rows = own.every(1, row + i * at.apart());
                mixedButterflies<W, false, T>(at.radix(), rows, {1, count}, rows, {1, count}, count, ofPass,
                                              k + i, 0);
            }
        });
        table += passNumbers(at.radix(), at.done());
    }
    const PassTable<T> ofPass(at.radix(), table);
    at.forPoints([&](std::ptrdiff_t k, std::ptrdiff_t row) {
        mixedButterflies<W, false, T>(at.radix(), own.every(1, row), {at.apart(), 1}, out.every(1, k),
                                      {1, at.done()}, at.together(), ofPass, k, 1);
    });
}

} // namespace zors::ZORS_VARIANT
