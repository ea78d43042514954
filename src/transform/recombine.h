// Between the spectrum Z of N/2 complex numbers z[j] = x[2j] + i x[2j+1] and the spectrum X of the N real ones. With
// C = conj(Z[N/2 - k]), D = Z[k] - C and E = (1/2 - i/2 e^(-2 pi i k / N)) D,
//
//     X[k] = C + E,  X[N/2 - k] = conj(Z[k] - E);
//
// and back, times two, with C = conj(X[N/2 - k]), D = X[k] - C and E = i e^(2 pi i k / N) D,
//
//     Z[k] = X[k] + C + E,  Z[N/2 - k] = conj(X[k] + C - E).
//
// Both go through the pairs from the two ends and may work in place.
#pragma once

#include "simd/complex.h"
#include "sines.h"

namespace zors::ZORS_VARIANT {

// From this order on the tables of recombination have two levels.
template <class T>
inline constexpr int firstTwoLevelOrder = sizeof(T) == 4 ? 19 : 18;
inline constexpr std::ptrdiff_t innerFactors = 1024;

// Complex numbers in a table of recombination.
template <class T>
constexpr std::ptrdiff_t recombinationFactors(int order)
{
    const std::ptrdiff_t quarter = (std::ptrdiff_t{1} << order) / 4;
    return order < firstTwoLevelOrder<T> ? quarter : quarter / innerFactors + innerFactors;
}

// Forward a = 1/2 cos, b = 1/2 - 1/2 sin; backward cos and -sin, of 2 pi k / N, for k < N/4. In two levels both
// tables hold cos and -sin, first of the multiples of innerFactors and then of what is below.
template <bool Forward, class T>
constexpr Cx<T> recombinationFactor(Cx<T> w)
{
    constexpr T half = T(0.5);
    return Forward ? Cx<T>{half * w.re, half + half * w.im} : w;
}

template <bool Forward, class T>
constexpr void fillRecombination(int order, const Wave<T>& wave, T* p)
{
    const std::ptrdiff_t quarter = (std::ptrdiff_t{1} << order) / 4;
    const auto put = [&](Cx<T> w) {
        *p++ = w.re;
        *p++ = w.im;
    };
    if (order < firstTwoLevelOrder<T>) {
        for (std::ptrdiff_t k = 0; k < quarter; ++k) put(recombinationFactor<Forward>(wave(k, order)));
    } else {
        for (std::ptrdiff_t k = 0; k < quarter; k += innerFactors) put(wave(k, order));
        for (std::ptrdiff_t k = 0; k < innerFactors; ++k) put(wave(k, order));
    }
}

// E for D and an entry of the table.
template <bool Forward, class V>
[[gnu::always_inline]] inline Cx<V> turned(Cx<V> d, Cx<V> f)
{
    if constexpr (Forward)
        return {mulAdd(f.im, d.re, f.re * d.im), mulSub(f.im, d.im, f.re * d.re)};
    else
        return {mulSub(f.im, d.re, f.re * d.im), mulAdd(f.im, d.im, f.re * d.re)};
}

// The pair of points k and N/2 - k, in place of a and b.
template <bool Forward, class V>
[[gnu::always_inline]] inline void recombinePair(Cx<V>& a, Cx<V>& b, Cx<V> factor)
{
    const Cx<V> c = {b.re, -b.im};
    const Cx<V> e = turned<Forward>(a - c, factor);
    const Cx<V> p = Forward ? c : a + c, q = Forward ? a : p;
    a = p + e;
    b = q - e;
    b.im = -b.im;
}

// Complex pairs from and to memory.
template <int W, class T>
[[gnu::always_inline]] inline Cx<Vec<T, W>> loadInOrder(const T* p)
{
    const auto v = deinterleave(load<W>(p), load<W>(p + W));
    return {v.first, v.second};
}

template <int W, class T>
[[gnu::always_inline]] inline void storeInOrder(T* p, Cx<Vec<T, W>> v)
{
    const auto w = interleave(v.re, v.im);
    store<W>(p, w.first);
    store<W>(p + W, w.second);
}

// From and to memory in the opposite order, with pair First in lane 0 and the last one behind pair 0.
template <int W, int First>
struct Opposite {
    constexpr int operator()(int i) const { return (First + W - i) % W; }
};

template <int W, int First, class T>
[[gnu::always_inline]] inline Cx<Vec<T, W>> loadMirrored(const T* p)
{
    struct Real {
        constexpr int operator()(int i) const { return 2 * Opposite<W, First>{}(i); }
    };
    struct Imaginary {
        constexpr int operator()(int i) const { return Real{}(i) + 1; }
    };
    const Vec<T, W> a = load<W>(p), b = load<W>(p + W);
    return {permute<Real>(a, b), permute<Imaginary>(a, b)};
}

template <int W, int First, class T>
[[gnu::always_inline]] inline void storeMirrored(T* p, Cx<Vec<T, W>> v)
{
    struct Low {
        constexpr int operator()(int i) const { return Opposite<W, First>{}(i / 2) + i % 2 * W; }
    };
    struct High {
        constexpr int operator()(int i) const { return Low{}(i + W); }
    };
    store<W>(p, permute<Low>(v.re, v.im));
    store<W>(p + W, permute<High>(v.re, v.im));
}

// Sources of the factors: one table, or the product of two. A vector begins at a multiple of its width.
template <class T>
struct OneLevel {
    const T* p;

    template <bool Forward>
    Cx<T> scalar(std::ptrdiff_t k) const
    {
        return {p[2 * k], p[2 * k + 1]};
    }
    template <bool Forward, int W>
    Cx<Vec<T, W>> vector(std::ptrdiff_t k) const
    {
        return loadInOrder<W>(p + 2 * k);
    }
};

template <class T>
struct TwoLevel {
    const T* outer;
    const T* inner;

    template <bool Forward>
    Cx<T> scalar(std::ptrdiff_t k) const
    {
        const T* q = outer + k / innerFactors * 2;
        const T* r = inner + k % innerFactors * 2;
        return recombinationFactor<Forward>(times(Cx<T>{q[0], q[1]}, Cx<T>{r[0], r[1]}));
    }
    template <bool Forward, int W>
    Cx<Vec<T, W>> vector(std::ptrdiff_t k) const
    {
        const T* q = outer + k / innerFactors * 2;
        const auto r = loadInOrder<W>(inner + k % innerFactors * 2);
        const auto w = times({splat<T, W>(q[0]), splat<T, W>(q[1])}, r);
        if constexpr (!Forward) return w;
        return {w.re * T(0.5), mulAdd(w.im, splat<T, W>(T(0.5)), splat<T, W>(T(0.5)))};
    }
};

// Lane 0 of the one, the others of the other.
template <class V>
[[gnu::always_inline]] inline Cx<V> withFirstLane(Cx<V> first, Cx<V> others)
{
    struct Map {
        constexpr int operator()(int i) const { return i == 0 ? 0 : lanesOf<V> + i; }
    };
    return {permute<Map>(first.re, others.re), permute<Map>(first.im, others.im)};
}

// The middle is its own mirror: E is 0, and -D on the way back.
template <bool Forward, class V>
[[gnu::always_inline]] inline Cx<V> middle(Cx<V> v)
{
    if constexpr (Forward)
        return {v.re, -v.im};
    else
        return {v.re + v.re, -v.im - v.im};
}

template <bool Forward, class T>
inline void putMiddle(const T* from, T* to)
{
    const auto v = middle<Forward>(Cx<T>{from[0], from[1]});
    to[0] = v.re;
    to[1] = v.im;
}

// W points at a time from the lower end and from the upper one. The mirrors of points k to k + W - 1 stand in two
// vectors. A load that spans two stores waits until both are in the cache; so short transforms take vectors as they
// were left and as they will be taken, and the mirror of point k from the upper vector before. Where no single
// instruction puts those together long transforms do better with the vector that spans two; how long, was measured.
template <bool Forward, int W, class T, class Factors>
[[gnu::always_inline]] inline void recombineVectors(const T* from, T* to, std::ptrdiff_t half, Cx<T> zero,
                                                    Factors factors)
{
    const std::ptrdiff_t quarter = half / 2;
    const T* mirror = from + 2 * (half - W);
    T* toMirror = to + 2 * (half - W);
    auto upper = loadMirrored<W, 0>(mirror);
    auto x = loadInOrder<W>(from), y = upper;
    recombinePair<Forward>(x, y, factors.template vector<Forward, W>(0));
    storeInOrder<W>(to, withFirstLane({splat<T, W>(zero.re), splat<T, W>(zero.im)}, x));
    if (vectorBytes == 64 || quarter <= vectorBytes / 8 * W) {
        for (std::ptrdiff_t k = W; k < quarter; k += W, toMirror -= 2 * W) {
            mirror -= 2 * W;
            const auto next = loadMirrored<W, 0>(mirror);
            const auto done = y;
            x = loadInOrder<W>(from + 2 * k);
            y = withFirstLane(upper, next);
            recombinePair<Forward>(x, y, factors.template vector<Forward, W>(k));
            storeInOrder<W>(to + 2 * k, x);
            storeMirrored<W, 0>(toMirror, withFirstLane(y, done));
            upper = next;
        }
        storeMirrored<W, 0>(toMirror, withFirstLane(middle<Forward>(upper), y));
    } else {
        storeMirrored<W, 0>(toMirror, withFirstLane(upper, y));
        for (std::ptrdiff_t k = W; k < quarter; k += W) {
            mirror -= 2 * W, toMirror -= 2 * W;
            x = loadInOrder<W>(from + 2 * k);
            y = loadMirrored<W, W - 1>(mirror + 2);
            recombinePair<Forward>(x, y, factors.template vector<Forward, W>(k));
            storeInOrder<W>(to + 2 * k, x);
            storeMirrored<W, W - 1>(toMirror + 2, y);
        }
        putMiddle<Forward>(from + 2 * quarter, to + 2 * quarter);
    }
}

// By the widest vectors of which half the points are enough. Transforms of fewer than four of 64 bytes leave and take
// narrower ones.
template <bool Forward, int W, class T, class Factors>
inline void recombineByWidth(const T* from, T* to, std::ptrdiff_t half, Cx<T> zero, Factors factors)
{
    constexpr int size = W * static_cast<int>(sizeof(T));
    if constexpr (size > 16) {
        constexpr int enough = size == 64 ? 4 * W : W;
        if (half / 2 < enough) return recombineByWidth<Forward, W / 2>(from, to, half, zero, factors);
    }
    recombineVectors<Forward, W>(from, to, half, zero, factors);
}

// All points, N = 2^order from 2 on, where point 0 becomes zero; from is where it stands or would stand.
template <bool Forward, class T, class Factors>
inline void recombine(int order, const T* from, T* to, Cx<T> zero, Factors factors)
{
    constexpr int few = 16 / static_cast<int>(sizeof(T));
    const std::ptrdiff_t half = (std::ptrdiff_t{1} << order) / 2, quarter = half / 2;
    if (quarter >= few) return recombineByWidth<Forward, lanes<T>>(from, to, half, zero, factors);
    for (std::ptrdiff_t k = 1; k < quarter; ++k) {
        Cx<T> a = {from[2 * k], from[2 * k + 1]}, b = {from[2 * (half - k)], from[2 * (half - k) + 1]};
        recombinePair<Forward>(a, b, factors.template scalar<Forward>(k));
        to[2 * k] = a.re;
        to[2 * k + 1] = a.im;
        to[2 * (half - k)] = b.re;
        to[2 * (half - k) + 1] = b.im;
    }
    to[0] = zero.re;
    to[1] = zero.im;
    if (quarter > 0) putMiddle<Forward>(from + 2 * quarter, to + 2 * quarter);
}

} // namespace zors::ZORS_VARIANT
