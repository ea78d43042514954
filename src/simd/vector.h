// Vectors of the variant's native width.
#pragma once

#include <cstdint>
#include <type_traits>
#include <utility>

#if ZORS_VECTOR_BYTES > 16
#include <immintrin.h>
#else
#include <pmmintrin.h>
#endif

namespace zors::ZORS_VARIANT {

inline constexpr int vectorBytes = ZORS_VECTOR_BYTES;

template <class T>
inline constexpr int lanes = vectorBytes / static_cast<int>(sizeof(T));

template <class T, int N>
struct VectorOf {
    typedef T type __attribute__((vector_size(sizeof(T) * N)));
};

// N lanes of T. Conversions between element sizes use vectors narrower than a register.
template <class T, int N = lanes<T>>
using Vec = typename VectorOf<T, N>::type;

template <class V>
using ElementOf = std::remove_cvref_t<decltype(std::declval<V&>()[0])>;

template <class V>
concept Vector = requires(V v)
{
    v[0];
};

template <class V>
inline constexpr int lanesOf = static_cast<int>(sizeof(V) / sizeof(ElementOf<V>));

// The unsigned integer of a size in bytes.
template <int Size>
struct UnsignedOf;
template <>
struct UnsignedOf<1> : std::type_identity<std::uint8_t> {
};
template <>
struct UnsignedOf<2> : std::type_identity<std::uint16_t> {
};
template <>
struct UnsignedOf<4> : std::type_identity<std::uint32_t> {
};
template <>
struct UnsignedOf<8> : std::type_identity<std::uint64_t> {
};

// The signed integer that is as wide as a lane, as the compiler's masks are.
template <class T>
using Index = std::make_signed_t<typename UnsignedOf<static_cast<int>(sizeof(T))>::type>;

template <class V>
struct Pair {
    V first, second;
};

// Every lane the same value.
template <class T, int N = lanes<T>>
inline Vec<T, N> splat(T value)
{
    return value - Vec<T, N>{};
}

// 0, 1, 2, ...
template <class T, int N = lanes<T>>
inline Vec<T, N> iota()
{
    return []<int... I>(std::integer_sequence<int, I...>)
    {
        return Vec<T, N>{static_cast<T>(I)...};
    }
    (std::make_integer_sequence<int, N>{});
}

// The vector's bits as lanes of another type.
template <class T, class V>
inline Vec<T, static_cast<int>(sizeof(V) / sizeof(T))> bitsAs(V v)
{
    return (Vec<T, static_cast<int>(sizeof(V) / sizeof(T))>)v;
}

} // namespace zors::ZORS_VARIANT
