// Vectors of complex pairs, real and imaginary parts taking turns, as they lie in memory: for transforms so short that
// taking them apart would cost more than the arithmetic.
#pragma once

#include "odd_butterfly.h"
#include "simd/shuffle.h"

namespace zors::ZORS_VARIANT {

template <class T, int W>
struct Woven {
    Vec<T, W> v;

    friend Woven operator+(Woven a, Woven b) { return {a.v + b.v}; }
    friend Woven operator-(Woven a, Woven b) { return {a.v - b.v}; }
};

struct OtherPart {
    constexpr int operator()(int i) const { return i ^ 1; }
};

// The same number in all real parts, and another one in all imaginary parts.
template <class T, int W>
[[gnu::always_inline]] inline Vec<T, W> alternating(T re, T im)
{
    return [=]<int... I>(std::integer_sequence<int, I...>) __attribute__((always_inline))
    {
        return Vec<T, W>{(I % 2 ? im : re)...};
    }
    (std::make_integer_sequence<int, W>{});
}

template <class T, int W>
[[gnu::always_inline]] inline Woven<T, W> plusI(Woven<T, W> a, Woven<T, W> b)
{
    return {mulAdd(permute<OtherPart>(b.v), alternating<T, W>(-1, 1), a.v)};
}

template <class T, int W>
[[gnu::always_inline]] inline Woven<T, W> minusI(Woven<T, W> a, Woven<T, W> b)
{
    return {mulAdd(permute<OtherPart>(b.v), alternating<T, W>(1, -1), a.v)};
}

template <class T, int W>
[[gnu::always_inline]] inline Woven<T, W> timesReal(Woven<T, W> a, double factor)
{
    return {a.v * splat<T, W>(static_cast<T>(factor))};
}

template <class T, int W>
[[gnu::always_inline]] inline Woven<T, W> mulAddReal(Woven<T, W> a, double factor, Woven<T, W> sum)
{
    return {mulAdd(a.v, splat<T, W>(static_cast<T>(factor)), sum.v)};
}

// Times factors whose real parts stand twice in the one vector, and imaginary parts in the other, -im and im.
template <class T, int W>
[[gnu::always_inline]] inline Woven<T, W> timesParts(Woven<T, W> a, Vec<T, W> re, Vec<T, W> im)
{
    return {mulAdd(a.v, re, permute<OtherPart>(a.v) * im)};
}

template <class T, int W>
[[gnu::always_inline]] inline Woven<T, W> timesConstant(Woven<T, W> a, Cx<double> w)
{
    return timesParts(a, splat<T, W>(static_cast<T>(w.re)),
                      alternating<T, W>(static_cast<T>(-w.im), static_cast<T>(w.im)));
}

} // namespace zors::ZORS_VARIANT
