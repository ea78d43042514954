// Conversion between doubles and narrower lanes, as many as a native vector has doubles.
#pragma once

#include "vector.h"

namespace zors::ZORS_VARIANT {

// The first lanes of a register as a narrower vector.
template <class V, class Register>
inline V firstOf(Register all)
{
    V v;
    __builtin_memcpy(&v, &all, sizeof v);
    return v;
}

// Rounded to nearest.
inline Vec<float, lanes<double>> toFloat(Vec<double> v)
{
#if ZORS_VECTOR_BYTES == 64
    return (Vec<float, 8>)_mm512_cvtpd_ps((__m512d)v);
#elif ZORS_VECTOR_BYTES == 32
    return (Vec<float, 4>)_mm256_cvtpd_ps((__m256d)v);
#else
    return firstOf<Vec<float, 2>>(_mm_cvtpd_ps((__m128d)v));
#endif
}

// Toward zero; INT32_MIN outside the range.
inline Vec<std::int32_t, lanes<double>> truncated(Vec<double> v)
{
#if ZORS_VECTOR_BYTES == 64
    return (Vec<std::int32_t, 8>)_mm512_cvttpd_epi32((__m512d)v);
#elif ZORS_VECTOR_BYTES == 32
    return (Vec<std::int32_t, 4>)_mm256_cvttpd_epi32((__m256d)v);
#else
    return firstOf<Vec<std::int32_t, 2>>(_mm_cvttpd_epi32((__m128d)v));
#endif
}

inline Vec<double> toDouble(Vec<std::int32_t, lanes<double>> v)
{
#if ZORS_VECTOR_BYTES == 64
    return (Vec<double>)_mm512_cvtepi32_pd((__m256i)v);
#elif ZORS_VECTOR_BYTES == 32
    return (Vec<double>)_mm256_cvtepi32_pd((__m128i)v);
#else
    return __builtin_convertvector(v, Vec<double>);
#endif
}

inline Vec<double> toDouble(Vec<std::int16_t, lanes<double>> v)
{
    return toDouble(__builtin_convertvector(v, Vec<std::int32_t, lanes<double>>));
}

// The lanes of a, then those of b.
template <class V>
inline Vec<ElementOf<V>, 2 * lanesOf<V>> joined(V a, V b)
{
    return [=]<int... I>(std::integer_sequence<int, I...>)
    {
        return __builtin_shufflevector(a, b, I...);
    }
    (std::make_integer_sequence<int, 2 * lanesOf<V>>{});
}

} // namespace zors::ZORS_VARIANT
