// Vectors of pairs, real part first: loaded as one vector of real and one of imaginary parts.
#pragma once

#include "loop.h"
#include "shuffle.h"

namespace zors::ZORS_VARIANT {

// The pairs at a place; p points at the real part of the first.
template <class T, class At>
inline Pair<Vec<T>> loadPairs(const T* p, At at)
{
    constexpr int n = At::lanes;
    p += 2 * at.index;
    return deinterleave(load<n>(p), load<n>(p + n));
}

template <class T, int N>
inline Pair<Vec<T>> loadPairs(const T* p, Part<N> at)
{
    p += 2 * at.index;
    const int parts = 2 * at.count;
    return parts <= N ? deinterleave(loadFirst<N>(p, parts), Vec<T>{})
                      : deinterleave(load<N>(p), loadFirst<N>(p + N, parts - N));
}

template <class T, int N>
inline void storePairs(T* p, Whole<N> at, Vec<T> re, Vec<T> im)
{
    const auto v = interleave(re, im);
    store<N>(p + 2 * at.index, v.first);
    store<N>(p + 2 * at.index + N, v.second);
}

template <class T, int N>
inline void storePairs(T* p, Streamed<N> at, Vec<T> re, Vec<T> im)
{
    const auto v = interleave(re, im);
    storeStreaming<N>(p + 2 * at.index, v.first);
    storeStreaming<N>(p + 2 * at.index + N, v.second);
}

template <class T, int N>
inline void storePairs(T* p, Part<N> at, Vec<T> re, Vec<T> im)
{
    const auto v = interleave(re, im);
    p += 2 * at.index;
    const int parts = 2 * at.count;
    storeFirst<N>(p, v.first, parts < N ? parts : N);
    if (parts > N) storeFirst<N>(p + N, v.second, parts - N);
}

// The parts of every pair exchanged, doubled: (re, re) or (im, im).
template <class V>
inline V partsExchanged(V v)
{
    struct Other {
        constexpr int operator()(int i) const { return i ^ 1; }
    };
    return permute<Other>(v);
}

template <class V>
inline V realTwice(V v)
{
    struct Even {
        constexpr int operator()(int i) const { return i & ~1; }
    };
    return permute<Even>(v);
}

template <class V>
inline V imaginaryTwice(V v)
{
    struct Odd {
        constexpr int operator()(int i) const { return i | 1; }
    };
    return permute<Odd>(v);
}

// Every element of a real vector twice, at a place that counts the lanes of pairs.
template <class T, class At>
inline Vec<T> loadTwice(const T* p, At at)
{
    constexpr int half = At::lanes / 2;
    return doubled(load<half>(p + at.index / 2));
}

template <class T, int N>
inline Vec<T> loadTwice(const T* p, Part<N> at)
{
    return doubled(loadFirst<N / 2>(p + at.index / 2, at.count / 2));
}

// a - b in the even lanes, a + b in the odd ones. The widest vectors have no instruction for it but the fused one,
// and a product with 1 is exact.
inline Vec<float> alternateSum(Vec<float> a, Vec<float> b)
{
#if ZORS_VECTOR_BYTES == 64
    return (Vec<float>)_mm512_fmaddsub_ps((__m512)a, _mm512_set1_ps(1), (__m512)b);
#elif ZORS_VECTOR_BYTES == 32
    return (Vec<float>)_mm256_addsub_ps((__m256)a, (__m256)b);
#else
    return (Vec<float>)_mm_addsub_ps((__m128)a, (__m128)b);
#endif
}

inline Vec<double> alternateSum(Vec<double> a, Vec<double> b)
{
#if ZORS_VECTOR_BYTES == 64
    return (Vec<double>)_mm512_fmaddsub_pd((__m512d)a, _mm512_set1_pd(1), (__m512d)b);
#elif ZORS_VECTOR_BYTES == 32
    return (Vec<double>)_mm256_addsub_pd((__m256d)a, (__m256d)b);
#else
    return (Vec<double>)_mm_addsub_pd((__m128d)a, (__m128d)b);
#endif
}

// Complex products of floating-point pairs: two products and one sum or difference a part, each rounded.
template <class V>
inline V complexProduct(V a, V b)
{
    return alternateSum(realTwice(a) * b, imaginaryTwice(a) * partsExchanged(b));
}

} // namespace zors::ZORS_VARIANT
