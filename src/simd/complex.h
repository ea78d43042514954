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

} // namespace zors::ZORS_VARIANT
