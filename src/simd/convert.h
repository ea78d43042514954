// Conversion between lanes of different types. The rounding that a name promises holds whatever the caller's
// rounding control says: it stands in the instruction, or is made of exact steps.
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

// A vector of up to 16 bytes as the low part of a register, and back.
template <class V>
inline __m128i inRegister(V v)
{
    static_assert(sizeof v <= 16);
    __m128i r = _mm_setzero_si128();
    __builtin_memcpy(&r, &v, sizeof v);
    return r;
}

template <class V>
inline V fromRegister(__m128i r)
{
    V v;
    __builtin_memcpy(&v, &r, sizeof v);
    return v;
}

// Integers of 8 and 16 bits to wider signed ones.
template <class To, class From, int N>
inline Vec<To, N> widened(Vec<From, N> v)
{
    using R = Vec<To, N>;
    constexpr bool isSigned = std::is_signed_v<From>;
    constexpr int bytes = sizeof(R);
    constexpr bool fromBytes = sizeof(From) == 1, toWords = sizeof(To) == 2;
    static_assert(sizeof(From) < sizeof(To) && sizeof(To) <= 4);
#if ZORS_VECTOR_BYTES == 64
    if constexpr (bytes == 64) {
        if constexpr (toWords)
            return (R)(isSigned ? _mm512_cvtepi8_epi16((__m256i)v) : _mm512_cvtepu8_epi16((__m256i)v));
        else if constexpr (fromBytes)
            return (R)(isSigned ? _mm512_cvtepi8_epi32((__m128i)v) : _mm512_cvtepu8_epi32((__m128i)v));
        else
            return (R)(isSigned ? _mm512_cvtepi16_epi32((__m256i)v) : _mm512_cvtepu16_epi32((__m256i)v));
    }
#endif
#if ZORS_VECTOR_BYTES >= 32
    if constexpr (bytes == 32) {
        const __m128i r = inRegister(v);
        if constexpr (toWords) return (R)(isSigned ? _mm256_cvtepi8_epi16(r) : _mm256_cvtepu8_epi16(r));
        if constexpr (fromBytes) return (R)(isSigned ? _mm256_cvtepi8_epi32(r) : _mm256_cvtepu8_epi32(r));
        return (R)(isSigned ? _mm256_cvtepi16_epi32(r) : _mm256_cvtepu16_epi32(r));
    }
#endif
    if constexpr (bytes <= 16) {
        // A lane below itself is shifted down with its sign, a zero above it needs no shift.
        __m128i r = inRegister(v);
        if constexpr (fromBytes) {
            r = isSigned ? _mm_srai_epi16(_mm_unpacklo_epi8(r, r), 8)
                         : _mm_unpacklo_epi8(r, _mm_setzero_si128());
        }
        if constexpr (!toWords) {
            r = isSigned ? _mm_srai_epi32(_mm_unpacklo_epi16(r, r), 16)
                         : _mm_unpacklo_epi16(r, _mm_setzero_si128());
        }
        return fromRegister<R>(r);
    }
}

// Doubles and integers of up to 32 bits to floats, rounded by the arithmetic in force where they have more bits.
template <int N, class V>
inline Vec<float, N> toFloat(V v)
{
    using From = ElementOf<V>;
    if constexpr (sizeof(From) < 4)
        return toFloat<N>(widened<std::int32_t, From, N>(v));
    else if constexpr (sizeof(From) == 4)
        return __builtin_convertvector(v, Vec<float, N>);
    else
#if ZORS_VECTOR_BYTES == 64
        return (Vec<float, N>)_mm512_cvtpd_ps((__m512d)v);
#elif ZORS_VECTOR_BYTES == 32
        return (Vec<float, N>)_mm256_cvtpd_ps((__m256d)v);
#else
        return fromRegister<Vec<float, N>>(_mm_castps_si128(_mm_cvtpd_ps((__m128d)v)));
#endif
}

// Where there is no instruction for 64-bit integers: the halves in the fractions of 2^84 and 2^52, so that only
// their sum is rounded.
template <int N>
inline Vec<double, N> byHalves(Vec<std::uint64_t, N> bits)
{
    const auto high = (bits >> 32) ^ UINT64_C(0x4530000080000000);
    const auto low = (bits & UINT64_C(0xffffffff)) | UINT64_C(0x4330000000000000);
    return ((Vec<double, N>)high - (0x1p84 + 0x1p63 + 0x1p52)) + (Vec<double, N>)low;
}

// Floats and integers to doubles; only 64-bit integers are rounded, by the arithmetic in force.
template <int N, class V>
inline Vec<double, N> toDouble(V v)
{
    using R = Vec<double, N>;
    using From = ElementOf<V>;
    constexpr bool isFloat = std::is_floating_point_v<From>;
    if constexpr (sizeof(From) < 4) return toDouble<N>(widened<std::int32_t, From, N>(v));
#if ZORS_VECTOR_BYTES == 64
    if constexpr (sizeof(From) == 8) return (R)_mm512_cvtepi64_pd((__m512i)v);
    if constexpr (sizeof(From) == 4)
        return isFloat ? (R)_mm512_cvtps_pd((__m256)v) : (R)_mm512_cvtepi32_pd((__m256i)v);
#else
    if constexpr (sizeof(From) == 8) return byHalves<N>((Vec<std::uint64_t, N>)v);
#if ZORS_VECTOR_BYTES == 32
    if constexpr (sizeof(From) == 4)
        return isFloat ? (R)_mm256_cvtps_pd((__m128)v) : (R)_mm256_cvtepi32_pd((__m128i)v);
#else
    if constexpr (sizeof(From) == 4)
        return (R)(isFloat ? _mm_cvtps_pd(_mm_castsi128_ps(inRegister(v))) : _mm_cvtepi32_pd(inRegister(v)));
#endif
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
    return fromRegister<Vec<std::int32_t, 2>>(_mm_cvttpd_epi32((__m128d)v));
#endif
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
    if constexpr (N == lanes<std::int32_t> && vectorBytes < 64 && sizeof(T) < 4) {
        // Within the range of the signed words, or of the bytes, nothing is saturated.
        constexpr bool toWords = sizeof(T) == 2;
        v = toWords ? v << 16 >> 16 : v & 0xff;
#if ZORS_VECTOR_BYTES == 32
        const __m128i low = _mm256_castsi256_si128((__m256i)v),
                      high = _mm256_extracti128_si256((__m256i)v, 1);
        const __m128i words = _mm_packs_epi32(low, high);
#else
        const __m128i words = _mm_packs_epi32((__m128i)v, (__m128i)v);
#endif
        return fromRegister<Vec<T, N>>(toWords ? words : _mm_packus_epi16(words, words));
    }
    return __builtin_convertvector(v, Vec<T, N>);
}

// MINPS and MAXPS: b wherever one of the two is not a number.
inline Vec<float> smaller(Vec<float> a, Vec<float> b)
{
#if ZORS_VECTOR_BYTES == 64
    return (Vec<float>)_mm512_min_ps((__m512)a, (__m512)b);
#elif ZORS_VECTOR_BYTES == 32
    return (Vec<float>)_mm256_min_ps((__m256)a, (__m256)b);
#else
    return (Vec<float>)_mm_min_ps((__m128)a, (__m128)b);
#endif
}

inline Vec<double> smaller(Vec<double> a, Vec<double> b)
{
#if ZORS_VECTOR_BYTES == 64
    return (Vec<double>)_mm512_min_pd((__m512d)a, (__m512d)b);
#elif ZORS_VECTOR_BYTES == 32
    return (Vec<double>)_mm256_min_pd((__m256d)a, (__m256d)b);
#else
    return (Vec<double>)_mm_min_pd((__m128d)a, (__m128d)b);
#endif
}

inline Vec<float> larger(Vec<float> a, Vec<float> b)
{
#if ZORS_VECTOR_BYTES == 64
    return (Vec<float>)_mm512_max_ps((__m512)a, (__m512)b);
#elif ZORS_VECTOR_BYTES == 32
    return (Vec<float>)_mm256_max_ps((__m256)a, (__m256)b);
#else
    return (Vec<float>)_mm_max_ps((__m128)a, (__m128)b);
#endif
}

inline Vec<double> larger(Vec<double> a, Vec<double> b)
{
#if ZORS_VECTOR_BYTES == 64
    return (Vec<double>)_mm512_max_pd((__m512d)a, (__m512d)b);
#elif ZORS_VECTOR_BYTES == 32
    return (Vec<double>)_mm256_max_pd((__m256d)a, (__m256d)b);
#else
    return (Vec<double>)_mm_max_pd((__m128d)a, (__m128d)b);
#endif
}

// 0 for what is not a number.
template <class V>
inline V numbersOf(V v)
{
    return (V)((v == v) & (decltype(v == v))v);
}

} // namespace zors::ZORS_VARIANT
