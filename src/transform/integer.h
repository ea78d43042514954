// Between integer data and the numbers that an integer transform works on.
#pragma once

#include "simd/loop.h"
#include "simd/round.h"
#include "vector/scale.h"

namespace zors::ZORS_VARIANT {

template <class I, class T>
inline void toNumbers(const I* src, T* dst, std::ptrdiff_t len)
{
    constexpr int n = lanes<T>;
    blocks<n>(len, [=](auto at) { store(dst, at, __builtin_convertvector(load(src, at), Vec<T, n>)); });
}

// To nearest, ties to even, saturated.
template <class T, class I>
inline void toIntegers(const T* src, I* dst, std::ptrdiff_t len, int scaleFactor)
{
    withScale<T>(scaleFactor, [=](auto scale) {
        blocks<lanes<T>>(
            len, [=](auto at) { store(dst, at, rounded<I, Rounding::nearestEven>(scale(load(src, at)))); });
    });
}

} // namespace zors::ZORS_VARIANT
