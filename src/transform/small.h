// Orders 0 to 5, which need neither tables nor a work buffer.
#pragma once

#include "sorted.h"

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

// e^(-2 pi i n / 8), n = 0..3.
template <class T>
inline constexpr std::array<T, 8> eighths = [] {
    std::array<T, 8> factors{};
    for (int n = 0; n < 4; ++n) {
        factors[static_cast<std::size_t>(n)] = smallWave<T>(n, 3).re;
        factors[static_cast<std::size_t>(n) + 4] = smallWave<T>(n, 3).im;
    }
    return factors;
}();

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
    // The odd lanes from the second vector: with the parts exchanged, those lanes times -i.
    struct MinusI {
        constexpr int operator()(int i) const { return i % 2 * 4 + i; }
    };
    struct InOrder {
        constexpr int operator()(int i) const { return i == 1 ? 2 : i == 2 ? 1 : i; }
    };
    const Cx<V> w = {load<4>(eighths<T>.data()), load<4>(eighths<T>.data() + 4)};
    const Cx<V> even = x + y, odd = times(x - y, w);
    Cx<V> a = {permute<Low>(even.re, odd.re), permute<Low>(even.im, odd.im)};
    Cx<V> b = {permute<High>(even.re, odd.re), permute<High>(even.im, odd.im)};
    dft2(a, b);
    b = {permute<MinusI>(b.re, b.im), permute<MinusI>(b.im, -b.re)};
    Cx<V> c = {permute<Even>(a.re, b.re), permute<Even>(a.im, b.im)};
    Cx<V> d = {permute<Odd>(a.re, b.re), permute<Odd>(a.im, b.im)};
    dft2(c, d);
    x = {permute<InOrder>(c.re), permute<InOrder>(c.im)};
    y = {permute<InOrder>(d.re), permute<InOrder>(d.im)};
}

template <class T>
inline constexpr bool hasFourLanes = lanes<T> >= 4;

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

template <int Order, class T, class Arrays>
inline void smallTransform(const Arrays& io, const T* factor)
{
    constexpr int w = lanesForOrder<T>(Order);
    constexpr int rows = (1 << Order) / w;
    const auto in = io.template source<w>();
    const auto out = io.template sink<w>();
    const T* factors = smallFactors<T, Order>.data();
    if (factor)
        inRegisters<w, rows>(in, Scaled<T, decltype(out)>{out, *factor}, factors);
    else
        inRegisters<w, rows>(in, out, factors);
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
        return smallTransform<4>(io, factor);
    default:
        return smallTransform<5>(io, factor);
    }
}

} // namespace zors::ZORS_VARIANT
