// Orders 0 to 5, which need neither tables nor a work buffer.
#pragma once

#include "sorted.h"

#include <array>

namespace zors::ZORS_VARIANT {

inline constexpr int mostSmallOrder = 5;

template <class T>
inline constexpr Wave<T> smallWave{5, sines32<T>};

// Hidden by name: the compiler's option hides functions, but not variables of a type of the standard library's.
template <class T, int Order>
[[gnu::visibility("hidden")]] inline constexpr std::array<T, 2 * sortedFactors<T>(Order)> smallFactors = [] {
    std::array<T, 2 * sortedFactors<T>(Order)> factors{};
    fillTurn<T, lanesForOrder<T>(Order)>(Order, smallWave<T>, factors.data());
    return factors;
}();

template <int R, class T, class Arrays>
inline void scalarTransform(const Arrays& io, const T* factor)
{
    Cx<T> x[R];
    for (int i = 0; i < R; ++i) x[i] = io.get(i);
    if constexpr (R > 1) dft<R>(x);
    if (factor)
        for (auto& v : x) v = {v.re * *factor, v.im * *factor};
    for (int i = 0; i < R; ++i) io.put(i, x[i]);
}

// The even lanes of one vector and the odd ones of a second.
template <int Lanes>
struct OddOfSecond {
    constexpr int operator()(int i) const { return i + i % 2 * Lanes; }
};

template <class V>
[[gnu::always_inline]] inline Cx<V> oddTimesMinusI(Cx<V> v)
{
    using Map = OddOfSecond<lanesOf<V>>;
    return {permute<Map>(v.re, v.im), permute<Map>(v.im, -v.re)};
}

// Eight points in two vectors of four. The sums hold the even points, the differences the odd ones, and each half of
// a vector is a transform of four.
template <class T>
[[gnu::always_inline]] inline void eightPoints(Cx<Vec<T, 4>>& x, Cx<Vec<T, 4>>& y)
{
    using V = Vec<T, 4>;
    struct Low {
        constexpr int operator()(int i) const { return i < 2 ? i : i + 2; }
    };
    struct High {
        constexpr int operator()(int i) const { return i < 2 ? i + 2 : i + 4; }
    };
    struct Even {
        constexpr int operator()(int i) const { return i / 2 * 2 + i % 2 * 4; }
    };
    struct Odd {
        constexpr int operator()(int i) const { return Even{}(i) + 1; }
    };
    struct MiddleExchanged {
        constexpr int operator()(int i) const { return i == 1 ? 2 : i == 2 ? 1 : i; }
    };
    // Times e^(-2 pi i n / 8): lanes 2 and 3 by -i, then lanes 1 and 3 as sums, so that what cancels is gone.
    struct UpperOfSecond {
        constexpr int operator()(int i) const { return i < 2 ? i : i + 4; }
    };
    const T h = static_cast<T>(sqrtHalf);
    const V scale = {1, h, 1, h};
    const Cx<V> even = x + y, difference = x - y;
    const Cx<V> z = {permute<UpperOfSecond>(difference.re, difference.im),
                     permute<UpperOfSecond>(difference.im, -difference.re)};
    const Cx<V> odd = {permute<OddOfSecond<4>>(z.re, z.re + z.im) * scale,
                       permute<OddOfSecond<4>>(z.im, z.im - z.re) * scale};
    Cx<V> a = {permute<Low>(even.re, odd.re), permute<Low>(even.im, odd.im)};
    Cx<V> b = {permute<High>(even.re, odd.re), permute<High>(even.im, odd.im)};
    dft2(a, b);
    b = oddTimesMinusI(b);
    Cx<V> c = {permute<Even>(a.re, b.re), permute<Even>(a.im, b.im)};
    Cx<V> d = {permute<Odd>(a.re, b.re), permute<Odd>(a.im, b.im)};
    dft2(c, d);
    x = {permute<MiddleExchanged>(c.re), permute<MiddleExchanged>(c.im)};
    y = {permute<MiddleExchanged>(d.re), permute<MiddleExchanged>(d.im)};
}

template <class T>
inline constexpr bool hasFourLanes = lanes<T> >= 4;
// Two blocks of four.
template <class T>
inline constexpr bool hasEightLanes = lanes<T> >= 8 && lanesOfBlock<Vec<T, 8>> == 4;

template <class T, class Arrays>
inline void eightPoints(const Arrays& io, const T* factor)
{
    if constexpr (hasFourLanes<T>) {
        const auto src = io.template source<4>().template closeFrom<1>(0);
        const auto dst = io.template sink<4>().template closeFrom<1>(0);
        auto x = src.get(0), y = src.get(1);
        eightPoints<T>(x, y);
        if (factor) x = {x.re * *factor, x.im * *factor}, y = {y.re * *factor, y.im * *factor};
        dst.put(0, x);
        dst.put(1, y);
    } else {
        scalarTransform<8>(io, factor);
    }
}

// 16 points in two vectors of eight, as pairs are taken apart inside blocks: lane 4 a + 2 b + c has point
// 4 b + 2 a + c. Behind a step of radix 2 over the vectors these change places with b, then with a, then with c.
template <class T>
inline constexpr std::array<T, 32> factorsOf16 = [] {
    std::array<T, 32> factors{};
    for (int lane = 0; lane < 8; ++lane) {
        const int point = rowOfLane<T, 8>(lane);
        const Cx<T> first = smallWave<T>(point, 4), second = smallWave<T>(lane / 4 * 2 + lane % 2, 3);
        const auto put = [&](int vector, T value) {
            factors[static_cast<std::size_t>(8 * vector + lane)] = value;
        };
        put(0, first.re), put(1, first.im), put(2, second.re), put(3, second.im);
    }
    return factors;
}();

template <class T, class Arrays>
inline void points16(const Arrays& io, const T* factor)
{
    using V = Vec<T, 8>;
    const auto src = io.template source<8, AsRows<T, 8>>().template closeFrom<1>(0);
    const auto dst = io.template sink<8>().template closeFrom<1>(0);
    const T* factors = factorsOf16<T>.data();
    Cx<V> x = src.get(0), y = src.get(1);
    dft2(x, y);
    y = times(y, factorAt<T, 8>(factors, 0));
    exchangeBlocks<2>(x.re, y.re);
    exchangeBlocks<2>(x.im, y.im);
    dft2(x, y);
    y = times(y, factorAt<T, 8>(factors, 1));
    exchangeBlocks<4>(x.re, y.re);
    exchangeBlocks<4>(x.im, y.im);
    dft2(x, y);
    y = oddTimesMinusI(y);
    const auto re = deinterleaveInside(x.re, y.re), im = deinterleaveInside(x.im, y.im);
    Cx<V> z[2] = {{re.first, im.first}, {re.second, im.second}};
    dft2(z[0], z[1]);
#pragma GCC unroll 2
    for (int i = 0; i < 2; ++i) {
        if (factor) z[i] = {z[i].re * *factor, z[i].im * *factor};
        dst.putTurned(i, z[i]);
    }
}

// The transform of a and of b times w by the multipliers alone: beside shuffles the adders have enough to do.
template <class V>
[[gnu::always_inline]] inline void dft2Times(Cx<V>& a, Cx<V>& b, Cx<V> w)
{
    const Cx<V> x = a, y = b;
    a = {mulAdd(y.re, w.re, subMul(x.re, y.im, w.im)), mulAdd(y.re, w.im, mulAdd(y.im, w.re, x.im))};
    b = {subMul(mulAdd(y.im, w.im, x.re), y.re, w.re), subMul(subMul(x.im, y.im, w.re), y.re, w.im)};
}

// 32 points as four rows of eight columns. Half as many rows as the turn takes at a time, so that the halves of the
// vectors, transformed, lie side by side in one: lanes 2 and 3 of a block have the odd points, whose factors are
// e^(-2 pi i n / 8).
template <class T>
inline constexpr std::array<T, 96> factorsOf32 = [] {
    std::array<T, 96> factors{};
    const auto put = [&](int vector, int lane, Cx<T> w) {
        factors[static_cast<std::size_t>(16 * vector + lane)] = w.re;
        factors[static_cast<std::size_t>(16 * vector + 8 + lane)] = w.im;
    };
    for (int i = 1; i < 4; ++i)
        for (int lane = 0; lane < 8; ++lane) {
            put(i - 1, lane, smallWave<T>(i * lane, 5));
            put(i + 2, lane, smallWave<T>(lane % 4 < 2 ? 0 : i, 3));
        }
    return factors;
}();

template <class T, class Arrays>
inline void points32(const Arrays& io, const T* factor)
{
    using V = Vec<T, 8>;
    const auto src = io.template source<8>().template closeFrom<1>(0);
    const auto dst = io.template sink<8>().template closeFrom<1>(0);
    const T* factors = factorsOf32<T>.data();
    Cx<V> x[4];
#pragma GCC unroll 4
    for (int k = 0; k < 4; ++k) x[k] = src.get(k);
    dft<4>(x);
#pragma GCC unroll 4
    for (int k = 1; k < 4; ++k) x[k] = times(x[k], factorAt<T, 8>(factors, k - 1));
#pragma GCC unroll 4
    for (int k = 0; k < 2; ++k) {
        exchangeBlocks<4>(x[k].re, x[k + 2].re);
        exchangeBlocks<4>(x[k].im, x[k + 2].im);
        dft2(x[k], x[k + 2]);
    }
    turnInside<8, T>(x);
    x[1] = times(x[1], factorAt<T, 8>(factors, 3));
    dft2Times(x[0], x[2], factorAt<T, 8>(factors, 4));
    dft2Times(x[1], x[3], factorAt<T, 8>(factors, 5));
    x[3] = timesMinusI(x[3]);
    dft2(x[0], x[1]);
    dft2(x[2], x[3]);
    std::swap(x[1], x[2]);
#pragma GCC unroll 4
    for (int j = 0; j < 4; ++j) {
        if (factor) x[j] = {x[j].re * *factor, x[j].im * *factor};
        dst.putTurned(j, x[j]);
    }
}

template <int Order, class T, class Arrays>
inline void smallTransform(const Arrays& io, const T* factor)
{
    constexpr int w = lanesForOrder<T>(Order);
    constexpr int rows = (1 << Order) / w;
    scaledBy(factor, io.template sink<w>(), [&](const auto& out) {
        inRegisters<w, rows>(io.template source<w, OrderInRegisters<T, w>>(), out,
                             smallFactors<T, Order>.data());
    });
}

template <class T, class Arrays>
inline void smallTransform(int order, const Arrays& io, const T* factor)
{
    switch (order) {
    case 0:
        return scalarTransform<1>(io, factor);
    case 1:
        return scalarTransform<2>(io, factor);
    case 2:
        return scalarTransform<4>(io, factor);
    case 3:
        return eightPoints(io, factor);
    case 4:
        if constexpr (hasEightLanes<T>)
            return points16(io, factor);
        else
            return smallTransform<4>(io, factor);
    default:
        if constexpr (hasEightLanes<T>)
            return points32(io, factor);
        else
            return smallTransform<5>(io, factor);
    }
}

} // namespace zors::ZORS_VARIANT
