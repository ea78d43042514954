// Filling with one value, for all families that have to.
#pragma once

#include "simd/loop.h"

#include <cstring>

namespace zors::ZORS_VARIANT {

// A native vector full of a value of up to 16 bytes.
template <class Unit, class T>
inline Vec<Unit> repeated(T value)
{
    constexpr int n = static_cast<int>(sizeof(T) / sizeof(Unit));
    Unit units[n];
    std::memcpy(units, &value, sizeof value);
    return [&]<int... I>(std::integer_sequence<int, I...>) {
        return Vec<Unit>{units[I % n]...};
    }(std::make_integer_sequence<int, lanes<Unit>>{});
}

template <class T>
inline void fill(T value, T* pDst, std::ptrdiff_t len)
{
    using Unit = typename UnsignedOf<(sizeof(T) < 8 ? sizeof(T) : 8)>::type;
    constexpr auto units = static_cast<std::ptrdiff_t>(sizeof(T) / sizeof(Unit));
    const Vec<Unit> v = repeated<Unit>(value);
    auto* p = reinterpret_cast<Unit*>(pDst);
    blocksInto<lanes<Unit>>(p, len * units, [=](auto at) { store(p, at, v); });
}

} // namespace zors::ZORS_VARIANT
