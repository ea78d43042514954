// Conversion between lanes of different types. The rounding that a name promises holds whatever the caller's
// rounding control says: it is made of exact steps.
#pragma once

#include "vector.h"

#include <limits>

namespace zors::ZORS_VARIANT {

// Lane by lane where mask is all ones a, elsewhere b.
template <class M, class V>
inline V select(M mask, V a, V b)
{
    return mask ? a : b;
}

template <int N>
inline Vec<float, N> toFloat(Vec<std::int32_t, N> v)
{
    return __builtin_convertvector(v, Vec<float, N>);
}

template <int N>
inline Vec<float, N> toFloat(Vec<std::int16_t, N> v)
{
#if ZORS_VECTOR_BYTES == 64
    if constexpr (N == 16) return (Vec<float, N>)_mm512_cvtepi32_ps(_mm512_cvtepi16_epi32((__m256i)v));
#elif ZORS_VECTOR_BYTES == 32
    if constexpr (N == 8) return (Vec<float, N>)_mm256_cvtepi32_ps(_mm256_cvtepi16_epi32((__m128i)v));
#endif
    return __builtin_convertvector(v, Vec<float, N>);
}

template <int N>
inline Vec<double, N> toDouble(Vec<float, N> v)
{
#if ZORS_VECTOR_BYTES == 64
    if constexpr (N == 8) return (Vec<double, N>)_mm512_cvtps_pd((__m256)v);
#elif ZORS_VECTOR_BYTES == 32
    if constexpr (N == 4) return (Vec<double, N>)_mm256_cvtps_pd((__m128)v);
#endif
    return __builtin_convertvector(v, Vec<double, N>);
}

// Toward zero; INT32_MIN outside the range.
template <int N>
inline Vec<std::int32_t, N> truncated(Vec<float, N> v)
{
    using R = Vec<std::int32_t, N>;
    constexpr int bytes = sizeof(R);
#if ZORS_VECTOR_BYTES == 64
    if constexpr (bytes == 64) return (R)_mm512_cvttps_epi32((__m512)v);
#endif
#if ZORS_VECTOR_BYTES >= 32
    if constexpr (bytes == 32) return (R)_mm256_cvttps_epi32((__m256)v);
#endif
    if constexpr (bytes == 16) return (R)_mm_cvttps_epi32((__m128)v);
    if constexpr (bytes == 8) {
        // In the lower half of a register.
        const auto all = (Vec<std::int32_t, 4>)_mm_cvttps_epi32((__m128)Vec<float, 4>{v[0], v[1], 0, 0});
        return R{all[0], all[1]};
    }
}

// The low bits of every lane.
template <class T, int N>
inline Vec<T, N> narrowed(Vec<std::int32_t, N> v)
{
    if constexpr (sizeof(T) == 4) return (Vec<T, N>)v;
#if ZORS_VECTOR_BYTES == 64
    if constexpr (N == 16 && sizeof(T) == 2) return (Vec<T, N>)_mm512_cvtepi32_epi16((__m512i)v);
    if constexpr (N == 16 && sizeof(T) == 1) return (Vec<T, N>)_mm512_cvtepi32_epi8((__m512i)v);
#endif
    return __builtin_convertvector(v, Vec<T, N>);
}

enum class Rounding { zero, nearestEven, halfAway };

// Rounded to an integer type of up to 32 bits and saturated; what is not a number gives 0.
template <class T, Rounding rounding, int N>
inline Vec<T, N> rounded(Vec<float, N> v)
{
    using F = Vec<float, N>;
    using I = Vec<std::int32_t, N>;
    constexpr auto least = std::numeric_limits<T>::lowest(), most = std::numeric_limits<T>::max();
    constexpr auto lowest = static_cast<float>(least), highest = static_cast<float>(most);

    v = select(v == v, v, F{});
    v = select(v > lowest, v, splat<float, N>(lowest));
    // The upper half of the unsigned range is converted from 2^31 below.
    constexpr float half = 2147483648.0f;
    const auto upper = std::is_same_v<T, std::uint32_t> ? v >= half : I{};
    const F w = std::is_same_v<T, std::uint32_t> ? v - select(upper, splat<float, N>(half), F{}) : v;

    I r = truncated<N>(w);
    // Exact where it matters: from 2^23 on a float has no fraction, and no lane beyond the range is kept.
    const F rest = w - toFloat<N>(r);
    if constexpr (rounding == Rounding::halfAway) {
        r = r - (rest >= 0.5f) + (rest <= -0.5f);
    } else if constexpr (rounding == Rounding::nearestEven) {
        const auto odd = (r & 1) != 0;
        r = r - ((rest > 0.5f) | ((rest == 0.5f) & odd)) + ((rest < -0.5f) | ((rest == -0.5f) & odd));
    }
    if constexpr (std::is_same_v<T, std::uint32_t>)
        r = r ^ (upper & std::numeric_limits<std::int32_t>::min());
    return narrowed<T, N>(select(v >= highest, splat<std::int32_t, N>(static_cast<std::int32_t>(most)), r));
}

} // namespace zors::ZORS_VARIANT
