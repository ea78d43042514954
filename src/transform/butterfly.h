// Forward transforms of 2, 4, 8 and 16 points held in registers, in natural order; one lane a transform. The
// inverse is the same with real and imaginary parts changing places before and after, so it needs no code.
#pragma once

#include "simd/fused.h"

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
inline constexpr double sinPi8 = 0.38268343236508977173;

template <class V>
[[gnu::always_inline]] inline Cx<V> timesMinusI(Cx<V> a)
{
    return {a.im, -a.re};
}

// Times e^(-2 pi i Sixteenths / 16) for the angles that butterflies need.
template <int Sixteenths, class V>
[[gnu::always_inline]] inline Cx<V> rotated(Cx<V> a)
{
    using T = typename Scalar<V>::type;
    const V h = constant<V>(static_cast<T>(sqrtHalf));
    const V c = constant<V>(static_cast<T>(cosPi8)), s = constant<V>(static_cast<T>(sinPi8));
    switch (Sixteenths) {
    case 0:
        return a;
    case 1:
        return times(a, {c, -s});
    case 2:
        return {h * (a.re + a.im), h * (a.im - a.re)};
    case 3:
        return times(a, {s, -c});
    case 4:
        return timesMinusI(a);
    case 6:
        return {h * (a.im - a.re), -(h * (a.re + a.im))};
    default:
        static_assert(Sixteenths < 5 || Sixteenths == 6 || Sixteenths == 9);
        return times(a, {-c, s});
    }
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

template <int R, class V>
[[gnu::always_inline]] inline void dft(Cx<V> (&x)[R])
{
    using T = typename Scalar<V>::type;
    if constexpr (R == 1) {
    } else if constexpr (R == 2) {
        dft2(x[0], x[1]);
    } else if constexpr (R == 4) {
        dft4(x[0], x[1], x[2], x[3]);
    } else if constexpr (R == 8) {
        dft4(x[0], x[2], x[4], x[6]);
        dft4(x[1], x[3], x[5], x[7]);
        const V h = constant<V>(static_cast<T>(sqrtHalf));
        Cx<V> b = {x[3].re + x[3].im, x[3].im - x[3].re};
        Cx<V> c = timesMinusI(x[5]);
        Cx<V> d = {x[7].im - x[7].re, -x[7].re - x[7].im};
        Cx<V> a = x[1], e0 = x[0], e1 = x[2], e2 = x[4], e3 = x[6];
        dft2(e0, a);
        addScaled(e1, b, h);
        dft2(e2, c);
        addScaled(e3, d, h);
        x[0] = e0, x[1] = e1, x[2] = e2, x[3] = e3;
        x[4] = a, x[5] = b, x[6] = c, x[7] = d;
    } else {
        static_assert(R == 16);
#pragma GCC unroll 4
        for (int i = 0; i < 4; ++i) dft4(x[i], x[i + 4], x[i + 8], x[i + 12]);
        x[5] = rotated<1>(x[5]);
        x[6] = rotated<2>(x[6]);
        x[7] = rotated<3>(x[7]);
        x[9] = rotated<2>(x[9]);
        x[10] = rotated<4>(x[10]);
        x[11] = rotated<6>(x[11]);
        x[13] = rotated<3>(x[13]);
        x[14] = rotated<6>(x[14]);
        x[15] = rotated<9>(x[15]);
#pragma GCC unroll 4
        for (int k = 0; k < 4; ++k) dft4(x[4 * k], x[4 * k + 1], x[4 * k + 2], x[4 * k + 3]);
            // The rows are the residues of the result's index: change places with the columns.
#pragma GCC unroll 4
        for (int i = 0; i < 4; ++i)
#pragma GCC unroll 4
            for (int k = 0; k < i; ++k) {
                const Cx<V> t = x[4 * i + k];
                x[4 * i + k] = x[4 * k + i];
                x[4 * k + i] = t;
            }
    }
}

} // namespace zors::ZORS_VARIANT
