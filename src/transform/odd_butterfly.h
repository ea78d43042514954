// Forward transforms of any small number of points held in registers, in natural order; one lane a transform. They
// need no more of a complex number than sums, products with real constants, and plusI(a, b) = a + i b, so that it may
// be one vector of each part or a vector of pairs.
#pragma once

#include "butterfly.h"

#include <array>
#include <cstddef>
#include <numbers>

namespace zors::ZORS_VARIANT {

template <class V>
[[gnu::always_inline]] inline Cx<V> plusI(Cx<V> a, Cx<V> b)
{
    return {a.re - b.im, a.im + b.re};
}

template <class V>
[[gnu::always_inline]] inline Cx<V> minusI(Cx<V> a, Cx<V> b)
{
    return {a.re + b.im, a.im - b.re};
}

template <class V>
[[gnu::always_inline]] inline Cx<V> timesReal(Cx<V> a, double factor)
{
    const V f = constant<V>(static_cast<typename Scalar<V>::type>(factor));
    return {a.re * f, a.im * f};
}

template <class V>
[[gnu::always_inline]] inline Cx<V> mulAddReal(Cx<V> a, double factor, Cx<V> sum)
{
    const V f = constant<V>(static_cast<typename Scalar<V>::type>(factor));
    return {mulAdd(a.re, f, sum.re), mulAdd(a.im, f, sum.im)};
}

template <class V>
[[gnu::always_inline]] inline Cx<V> timesConstant(Cx<V> a, Cx<double> w)
{
    using T = typename Scalar<V>::type;
    return times(a, {constant<V>(static_cast<T>(w.re)), constant<V>(static_cast<T>(w.im))});
}

// e^(-2 pi i k / n) at compile time, from an angle of at most pi / 4.
constexpr Cx<double> constantRoot(int k, int n)
{
    k %= n;
    const int quarters = (8 * k / n + 1) / 2; // to nearest
    const double angle = 2 * std::numbers::pi * (4 * k - quarters * n) / (4.0 * n);
    double sine = 0, cosine = 0, term = 1;
    for (int i = 0; i < 24; ++i) {
        (i % 2 ? sine : cosine) += i % 4 < 2 ? term : -term;
        term *= angle / (i + 1);
    }
    switch (quarters % 4) {
    case 0:
        return {cosine, -sine};
    case 1:
        return {-sine, -cosine};
    case 2:
        return {-cosine, sine};
    default:
        return {sine, cosine};
    }
}

// A table, or compilers would leave the computation to the loops.
template <int N>
[[gnu::visibility("hidden")]] inline constexpr auto constantRoots = [] {
    std::array<Cx<double>, N> roots{};
    for (int k = 0; k < N; ++k) roots[static_cast<std::size_t>(k)] = constantRoot(k, N);
    return roots;
}();

template <int N>
[[gnu::always_inline]] inline Cx<double> rootOf(int k)
{
    return constantRoots<N>[static_cast<std::size_t>(k % N)];
}

constexpr int smallestDivisor(int n)
{
    int d = 2;
    while (d < n && n % d) ++d;
    return d;
}

// The first of two factors: without a divisor in common with the second where that can be.
constexpr int firstFactor(int n)
{
    const int d = smallestDivisor(n);
    int f = d;
    while (n / f % d == 0) f *= d;
    return f < n ? f : n > 8 && d == 2 ? 4 : d;
}

// A prime number of points P: with s_j = x_j + x_(P-j) and d_j = x_j - x_(P-j), points k and P - k are
// x_0 + sum s_j cos(2 pi j k / P) -+ i sum d_j sin(2 pi j k / P).
template <int P, class C, class Take>
[[gnu::always_inline]] inline void transformPrime(C (&x)[P], Take take)
{
    constexpr int half = P / 2;
    C s[half], d[half];
    take(0);
    const C first = x[0];
    C sum = first;
#pragma GCC unroll 8
    for (int j = 0; j < half; ++j) {
        take(j + 1), take(P - 1 - j);
        s[j] = x[j + 1] + x[P - 1 - j];
        d[j] = x[j + 1] - x[P - 1 - j];
        sum = sum + s[j];
    }
    x[0] = sum;
#pragma GCC unroll 8
    for (int k = 1; k <= half; ++k) {
        C even = mulAddReal(s[0], rootOf<P>(k).re, first), odd = timesReal(d[0], rootOf<P>(k).im);
#pragma GCC unroll 8
        for (int j = 2; j <= half; ++j) {
            even = mulAddReal(s[j - 1], rootOf<P>(j * k).re, even);
            odd = mulAddReal(d[j - 1], rootOf<P>(j * k).im, odd);
        }
        x[k] = plusI(even, odd);
        x[P - k] = minusI(even, odd);
    }
}

template <int R, class C, class Take>
[[gnu::always_inline]] inline void transform(C (&x)[R], Take take);

// A B points without a common divisor, so that there are no factors between them (I. J. Good 1958): point
// (B a + A b) mod R becomes point k with k = a mod A and k = b mod B.
template <int A, int B, class C, class Take>
[[gnu::always_inline]] inline void transformCoprimes(C (&x)[A * B], Take take)
{
    constexpr int R = A * B;
    C y[B][A];
#pragma GCC unroll 16
    for (int b = 0; b < B; ++b)
        transform(
            y[b], [&](int a) __attribute__((always_inline)) {
                const int n = (B * a + A * b) % R;
                take(n);
                y[b][a] = x[n];
            });
#pragma GCC unroll 16
    for (int a = 0; a < A; ++a) {
        C z[B];
        transform(
            z, [&](int b) __attribute__((always_inline)) { z[b] = y[b][a]; });
#pragma GCC unroll 16
        for (int k = a; k < R; k += A) x[k] = z[k % B];
    }
}

// A B points as A rows of B, with factors between.
template <int A, int B, class C, class Take>
[[gnu::always_inline]] inline void transformRows(C (&x)[A * B], Take take)
{
    C y[B][A];
#pragma GCC unroll 16
    for (int b = 0; b < B; ++b)
        transform(
            y[b], [&](int a) __attribute__((always_inline)) {
                take(B * a + b);
                y[b][a] = x[B * a + b];
            });
#pragma GCC unroll 16
    for (int a = 0; a < A; ++a) {
        C z[B];
        transform(
            z, [&](int b) __attribute__((always_inline)) {
                z[b] = a * b == 0 ? y[b][a] : timesConstant(y[b][a], rootOf<A * B>(a * b));
            });
#pragma GCC unroll 16
        for (int k = 0; k < B; ++k) x[a + A * k] = z[k];
    }
}

// As dft() of butterfly.h, which knows better ways for powers of two.
template <int R, class C, class Take>
[[gnu::always_inline]] inline void transform(C (&x)[R], Take take)
{
    constexpr int a = firstFactor(R), b = R / a;
    if constexpr (R == 1) {
        take(0);
    } else if constexpr (R == 2) {
        take(0), take(1);
        const C sum = x[0] + x[1];
        x[1] = x[0] - x[1];
        x[0] = sum;
    } else if constexpr (R == 4) {
        take(0), take(2), take(1), take(3);
        const C s = x[0] + x[2], u = x[0] - x[2], t = x[1] + x[3], v = x[1] - x[3];
        x[0] = s + t;
        x[1] = minusI(u, v);
        x[2] = s - t;
        x[3] = plusI(u, v);
    } else if constexpr (smallestDivisor(R) == R) {
        transformPrime(x, take);
    } else if constexpr (a % smallestDivisor(b) && b % smallestDivisor(a)) {
        transformCoprimes<a, b>(x, take);
    } else {
        transformRows<a, b>(x, take);
    }
}

template <int R, class V, class Take>
requires((R & (R - 1)) != 0) [[gnu::always_inline]] inline void dft(Cx<V> (&x)[R], Take take)
{
    transform(x, take);
}

} // namespace zors::ZORS_VARIANT
