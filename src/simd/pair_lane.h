// A pair as one lane of twice the size of its parts, real part in the low half: for kernels that compute in a type
// wider than the parts.
#pragma once

#include "complex.h"

namespace zors::ZORS_VARIANT {

template <class T>
using LaneOfPair = typename UnsignedOf<2 * static_cast<int>(sizeof(T))>::type;

template <class T, int N>
inline Pair<Vec<T, N>> split(Vec<LaneOfPair<T>, N> v)
{
    using Half = Vec<typename UnsignedOf<static_cast<int>(sizeof(T))>::type, N>;
    return {(Vec<T, N>)__builtin_convertvector(v, Half),
            (Vec<T, N>)__builtin_convertvector(v >> 8 * sizeof(T), Half)};
}

template <class T, int N>
inline Vec<LaneOfPair<T>, N> join(Vec<T, N> re, Vec<T, N> im)
{
    using Half = Vec<typename UnsignedOf<static_cast<int>(sizeof(T))>::type, N>;
    using Lanes = Vec<LaneOfPair<T>, N>;
    return __builtin_convertvector((Half)re, Lanes) | __builtin_convertvector((Half)im, Lanes)
                                                          << 8 * sizeof(T);
}

} // namespace zors::ZORS_VARIANT
