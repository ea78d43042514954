// Filling with one value, for all families that have to.
#pragma once

#include "simd/loop.h"

#include <zortypes.h>

#include <bit>

namespace zors::ZORS_VARIANT {

// Elements of up to 8 bytes are moved as one unsigned lane, longer ones as their real and imaginary parts.
template <class T>
struct FillLane : UnsignedOf<sizeof(T)> {
};
template <>
struct FillLane<Zor64sc> : std::type_identity<Zor64s> {
};
template <>
struct FillLane<Zor64fc> : std::type_identity<Zor64f> {
};

template <class T>
inline auto repeated(T value)
{
    using Lane = typename FillLane<T>::type;
    if constexpr (sizeof(T) == sizeof(Lane)) {
        return splat(std::bit_cast<Lane>(value));
    } else {
        const auto odd = (iota<Zor64s>() & 1) != 0;
        return odd ? splat(value.im) : splat(value.re);
    }
}

template <class T>
inline void fill(T value, T* pDst, std::ptrdiff_t len)
{
    using Lane = typename FillLane<T>::type;
    constexpr int each = sizeof(T) / sizeof(Lane);
    const Vec<Lane> v = repeated(value);
    auto* p = reinterpret_cast<Lane*>(pDst);
    blocksInto<lanes<Lane>, each>(
        len * each, [=](auto at) { store(p, at, v); }, p);
}

} // namespace zors::ZORS_VARIANT
