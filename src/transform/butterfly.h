// Forward transforms of 2, 4, 8 and 16 points held in registers, in natural order; one lane a transform. The
// inverse is the same with real and imaginary parts changing places before and after, so it needs no code.
#pragma once

#include "simd/fused.h"

#include <utility>

namespace zors::ZORS_VARIANT {

template <class V>
struct Cx {
    V re, im;

    friend Cx operator+(Cx a, Cx b) { return {a.re + b.re, a.im + b.im}; }
    friend Cx operator-(Cx a, Cx b) { return {a.re - b.re, a.im - b.im}; }
};

template <class V>
[[gnu::always_inline]] inline Cx<V> times(Cx<V> a, Cx<V> w)
{
    return {mulSub(a.re, w.re, a.im * w.im), mulAdd(a.re, w.im, a.im * w.re)};
}

// A scalar, or the same value in every lane.
template <class V, class T>
inline V constant(T value)
{
    if constexpr (std::is_arithmetic_v<V>)
        return value;
    else
        return value - V{};
}

template <class V>
struct Scalar {
    using type = ElementOf<V>;
};
template <>
struct Scalar<float> {
    using type = float;
};
template <>
struct Scalar<double> {
    using type = double;
};

inline constexpr double sqrtHalf = 0.70710678118654752440;
inline constexpr double cosPi8 = 0.92387953251128675613;
inline constexpr double tanPi8 = 0.41421356237309504880;

template <class V>
[[gnu::always_inline]] inline Cx<V> timesMinusI(Cx<V> a)
{
    return {a.im, -a.re};
}

// a times e^(-2 pi i Sixteenths / 16), short of a positive factor that all of the same parity have in common: 1 or
// sqrt(1/2) where it is even, cos(pi/8) where it is odd. What is added to it takes the factor along.
template <int Sixteenths, class V>
[[gnu::always_inline]] inline Cx<V> turned(Cx<V> a)
{
    using T = typename Scalar<V>::type;
    const V t = constant<V>(static_cast<T>(tanPi8));
    if constexpr (Sixteenths == 0)
        return a;
    else if constexpr (Sixteenths == 1)
        return {mulAdd(t, a.im, a.re), subMul(a.im, t, a.re)};
    else if constexpr (Sixteenths == 2)
        return {a.re + a.im, a.im - a.re};
    else if constexpr (Sixteenths == 3)
        return {mulAdd(t, a.re, a.im), mulSub(t, a.im, a.re)};
    else if constexpr (Sixteenths == 4)
        return timesMinusI(a);
    else
        return timesMinusI(turned<Sixteenths - 4>(a));
}

template <class V>
[[gnu::always_inline]] inline void dft2(Cx<V>& a, Cx<V>& b)
{
    const Cx<V> sum = a + b;
    b = a - b;
    a = sum;
}

template <class V>
[[gnu::always_inline]] inline void dft4(Cx<V>& a, Cx<V>& b, Cx<V>& c, Cx<V>& d)
{
    const Cx<V> s = a + c, t = b + d, u = a - c, v = b - d;
    a = s + t;
    b = {u.re + v.im, u.im - v.re};
    c = s - t;
    d = {u.re - v.im, u.im + v.re};
}

// a + h b and a - h b, in place of a and b.
template <class V>
[[gnu::always_inline]] inline void addScaled(Cx<V>& a, Cx<V>& b, V h)
{
    const Cx<V> x = a, y = b;
    a = {mulAdd(h, y.re, x.re), mulAdd(h, y.im, x.im)};
    b = {subMul(x.re, h, y.re), subMul(x.im, h, y.im)};
}

// The transform of a, b times w and so on, w = e^(-2 pi i S / 16).
template <int S, class V>
[[gnu::always_inline]] inline void dft2Turned(Cx<V>& a, Cx<V>& b)
{
    using T = typename Scalar<V>::type;
    b = turned<S>(b);
    if constexpr (S % 4 == 0)
        dft2(a, b);
    else
        addScaled(a, b, constant<V>(static_cast<T>(S % 2 ? cosPi8 : sqrtHalf)));
}

template <int S, class V>
[[gnu::always_inline]] inline void dft4Turned(Cx<V>& a, Cx<V>& b, Cx<V>& c, Cx<V>& d)
{
    if constexpr (S == 0) {
        dft4(a, b, c, d);
    } else {
        using T = typename Scalar<V>::type;
        dft2Turned<2 * S>(a, c);
        const Cx<V> x = turned<S>(b), y = turned<3 * S>(d);
        const V scale = constant<V>(static_cast<T>(S % 2 ? cosPi8 : sqrtHalf));
        Cx<V> sum = x + y, difference = timesMinusI(x - y);
        addScaled(a, sum, scale);
        addScaled(c, difference, scale);
        b = c;
        c = sum;
        d = difference;
    }
}

// The transform of the points that take(t) puts into x[t]. Each is taken just before it is used: compilers keep the
// order of the source, and with all of them taken first they run out of registers.
template <int R, class V, class Take>
requires((R & (R - 1)) == 0) [[gnu::always_inline]] inline void dft(Cx<V> (&x)[R], Take take)
{
    if constexpr (R <= 4) {
#pragma GCC unroll 4
        for (int i = 0; i < R; ++i) take(i);
        if constexpr (R == 2) dft2(x[0], x[1]);
        if constexpr (R == 4) dft4(x[0], x[1], x[2], x[3]);
    } else if constexpr (R == 8) {
#pragma GCC unroll 2
        for (int i = 0; i < 2; ++i) {
            take(i), take(i + 4), take(i + 2), take(i + 6);
            dft4(x[i], x[i + 2], x[i + 4], x[i + 6]);
        }
        dft2(x[0], x[1]);
        dft2Turned<2>(x[2], x[3]);
        dft2Turned<4>(x[4], x[5]);
        dft2Turned<6>(x[6], x[7]);
        const Cx<V> a = x[1], b = x[2], c = x[3], d = x[4], e = x[5], f = x[6];
        x[1] = b, x[2] = d, x[3] = f;
        x[4] = a, x[5] = c, x[6] = e;
    } else {
        static_assert(R == 16);
#pragma GCC unroll 4
        for (int i = 0; i < 4; ++i) {
            take(i), take(i + 8), take(i + 4), take(i + 12);
            dft4(x[i], x[i + 4], x[i + 8], x[i + 12]);
        }
        dft4(x[0], x[1], x[2], x[3]);
        dft4Turned<1>(x[4], x[5], x[6], x[7]);
        dft4Turned<2>(x[8], x[9], x[10], x[11]);
        dft4Turned<3>(x[12], x[13], x[14], x[15]);
        // The rows are the residues of the result's index: change places with the columns.
#pragma GCC unroll 4
        for (int i = 0; i < 4; ++i)
#pragma GCC unroll 4
            for (int k = 0; k < i; ++k) std::swap(x[4 * i + k], x[4 * k + i]);
    }
}

template <int R, class V>
[[gnu::always_inline]] inline void dft(Cx<V> (&x)[R])
{
    dft(x, [](int) {});
}

} // namespace zors::ZORS_VARIANT
