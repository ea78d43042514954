// Floating-point lanes rounded to integers in one of three ways, whatever the caller's rounding control says.
#pragma once

#include "group.h"

namespace zors::ZORS_VARIANT {

enum class Rounding { zero, nearestEven, halfAway };

#if ZORS_VECTOR_BYTES == 64
inline constexpr int toNearest = _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC;
inline constexpr int towardZero = _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC;

// Half a unit added with the value's sign; cut off afterwards it is the rounding of ties away from zero, if the
// sum is not rounded up itself.
inline Vec<float> halfAdded(Vec<float> v)
{
    const auto half = bitsAs<float>((bitsAs<std::int32_t>(v) & std::numeric_limits<std::int32_t>::min()) |
                                    bitsAs<std::int32_t>(splat(0.5f)));
    return (Vec<float>)_mm512_add_round_ps((__m512)v, (__m512)half, towardZero);
}

inline Vec<double> halfAdded(Vec<double> v)
{
    const auto half = bitsAs<double>((bitsAs<std::int64_t>(v) & std::numeric_limits<std::int64_t>::min()) |
                                     bitsAs<std::int64_t>(splat(0.5)));
    return (Vec<double>)_mm512_add_round_pd((__m512d)v, (__m512d)half, towardZero);
}
#else

// What a lane that was cut off at r lacks: 1, 0 or -1 as a mask's value, by the rest, which is exact. A rest of
// 1 or more is that of a lane beyond the range.
template <Rounding rounding, class V, class M>
inline M lacking(V rest, M isOdd)
{
    const M up = rest < 1;
    const M down = rest > -1;
    if constexpr (rounding == Rounding::halfAway)
        return (down & (rest <= -0.5f)) - (up & (rest >= 0.5f));
    else
        return (down & ((rest < -0.5f) | ((rest == -0.5f) & isOdd))) -
               (up & ((rest > 0.5f) | ((rest == 0.5f) & isOdd)));
}
#endif

// The lowest integer stands for what is beyond the range or not a number.
template <Rounding rounding>
inline Vec<std::int32_t> toInt32(Vec<float> v)
{
    using R = Vec<std::int32_t>;
#if ZORS_VECTOR_BYTES == 64
    if constexpr (rounding == Rounding::nearestEven) return (R)_mm512_cvt_roundps_epi32((__m512)v, toNearest);
    if constexpr (rounding == Rounding::halfAway) v = halfAdded(v);
    return (R)_mm512_cvttps_epi32((__m512)v);
#elif ZORS_VECTOR_BYTES == 32
    if constexpr (rounding == Rounding::nearestEven)
        v = (Vec<float>)_mm256_round_ps((__m256)v, _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC);
    const R r = (R)_mm256_cvttps_epi32((__m256)v);
    if constexpr (rounding != Rounding::halfAway) return r;
    return r + lacking<rounding>(v - toFloat<lanes<float>>(r), R{});
#else
    const R r = (R)_mm_cvttps_epi32((__m128)v);
    if constexpr (rounding == Rounding::zero) return r;
    return r + lacking<rounding>(v - toFloat<lanes<float>>(r), (r & 1) != 0);
#endif
}

// Two vectors of doubles as one, for lanes within the range.
template <Rounding rounding>
inline Vec<std::int32_t> toInt32(Vec<double> a, Vec<double> b)
{
    using R = Vec<std::int32_t>;
#if ZORS_VECTOR_BYTES == 64
    const auto half = [](Vec<double> v) {
        if constexpr (rounding == Rounding::nearestEven)
            return _mm512_cvt_roundpd_epi32((__m512d)v, toNearest);
        if constexpr (rounding == Rounding::halfAway) v = halfAdded(v);
        return _mm512_cvttpd_epi32((__m512d)v);
    };
    return (R)_mm512_inserti64x4(_mm512_castsi256_si512(half(a)), half(b), 1);
#elif ZORS_VECTOR_BYTES == 32
    const auto half = [](Vec<double> v) {
        if constexpr (rounding == Rounding::nearestEven)
            v = (Vec<double>)_mm256_round_pd((__m256d)v, _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC);
        if constexpr (rounding == Rounding::halfAway) {
            const auto whole =
                (Vec<double>)_mm256_round_pd((__m256d)v, _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC);
            const auto rest = v - whole;
            v = whole + select(rest >= 0.5, splat(1.0), select(rest <= -0.5, splat(-1.0), Vec<double>{}));
        }
        return _mm256_cvttpd_epi32((__m256d)v);
    };
    return (R)_mm256_inserti128_si256(_mm256_castsi128_si256(half(a)), half(b), 1);
#else
    const auto half = [](Vec<double> v) {
        const __m128i r = _mm_cvttpd_epi32((__m128d)v);
        if constexpr (rounding == Rounding::zero) return r;
        const auto rest = v - (Vec<double>)_mm_cvtepi32_pd(r);
        const auto isOdd = (Vec<std::int64_t>)_mm_unpacklo_epi32(r, r) << 63 != 0;
        const auto more = (__m128i)lacking<rounding>(rest, isOdd);
        return _mm_add_epi32(r, _mm_shuffle_epi32(more, 0x08));
    };
    return (R)_mm_unpacklo_epi64(half(a), half(b));
#endif
}

template <Rounding rounding>
inline Vec<std::int64_t> toInt64(Vec<double> v)
{
    using R = Vec<std::int64_t>;
#if ZORS_VECTOR_BYTES == 64
    if constexpr (rounding == Rounding::nearestEven)
        return (R)_mm512_cvt_roundpd_epi64((__m512d)v, toNearest);
    if constexpr (rounding == Rounding::halfAway) v = halfAdded(v);
    return (R)_mm512_cvttpd_epi64((__m512d)v);
#else
    R r;
    for (int i = 0; i < lanes<double>; ++i) r[i] = _mm_cvttsd_si64(_mm_set_sd(v[i]));
    if constexpr (rounding == Rounding::zero) return r;
    Vec<double> rest;
    for (int i = 0; i < lanes<double>; ++i) rest[i] = v[i] - static_cast<double>(r[i]);
    return r + lacking<rounding>(rest, (r & 1) != 0);
#endif
}

// Rounded to 32 bits and held between two bounds that the type of the lanes has exactly; what is not a number
// gives 0.
template <Rounding rounding>
inline Vec<std::int32_t> roundedBetween(float least, float most, Vec<float> v)
{
    v = least == 0 ? larger(v, Vec<float>{}) : larger(numbersOf(v), splat(least));
    return toInt32<rounding>(smaller(v, splat(most)));
}

template <Rounding rounding>
inline Vec<std::int32_t> roundedBetween(double least, double most, Vec<double> a, Vec<double> b)
{
    const auto held = [=](Vec<double> v) { return smaller(larger(numbersOf(v), splat(least)), splat(most)); };
    return toInt32<rounding>(held(a), held(b));
}

// Rounded to a type and saturated; what is not a number gives 0.
template <class T, Rounding rounding>
inline Vec<T> roundedTo(const Group<float, 4 / sizeof(T)>& g)
{
    using Limits = std::numeric_limits<T>;
    if constexpr (sizeof(T) == 4)
        // The lowest integer stands for both ends; the upper one is its complement.
        return toInt32<rounding>(numbersOf(g.part[0])) ^ (g.part[0] >= 0x1p31f);
    else if constexpr (std::is_signed_v<T>)
        return packed<T>(each(g, [](Vec<float> v) {
            return toInt32<rounding>(smaller(numbersOf(v), splat(static_cast<float>(Limits::max()))));
        }));
    else
        return packed<T>(each(g, [](Vec<float> v) { return roundedBetween<rounding>(0, Limits::max(), v); }));
}

template <class T, Rounding rounding>
inline Vec<T> roundedTo(const Group<double, 8 / sizeof(T)>& g)
{
    using Limits = std::numeric_limits<T>;
    if constexpr (sizeof(T) == 8) {
        return toInt64<rounding>(numbersOf(g.part[0])) ^ (g.part[0] >= 0x1p63);
    } else {
        constexpr int k = 4 / sizeof(T);
        Group<std::int32_t, k> r;
        for (int i = 0; i < k; ++i)
            r.part[i] =
                roundedBetween<rounding>(Limits::min(), Limits::max(), g.part[2 * i], g.part[2 * i + 1]);
        return packed<T>(r);
    }
}

// The same for one vector, whose lanes then fill a part of a register.
template <class T, Rounding rounding>
inline Vec<T, lanes<float>> rounded(Vec<float> v)
{
    if constexpr (std::is_same_v<T, std::uint32_t>) {
        // The upper half of the range is converted from 2^31 below.
        v = larger(v, Vec<float>{});
        const auto upper = v >= 0x1p31f;
        const auto r = toInt32<rounding>(v - select(upper, splat(0x1p31f), Vec<float>{}));
        return (Vec<T>)((r ^ (upper & std::numeric_limits<std::int32_t>::min())) | (v >= 0x1p32f));
    } else if constexpr (sizeof(T) == 4) {
        return roundedTo<T, rounding>(Group<float, 1>{{v}});
    } else {
        using Limits = std::numeric_limits<T>;
        return narrowed<T, lanes<float>>(roundedBetween<rounding>(Limits::min(), Limits::max(), v));
    }
}

template <class T, Rounding rounding>
inline Vec<T, lanes<double>> rounded(Vec<double> v)
{
    using Limits = std::numeric_limits<T>;
    const auto twice = roundedBetween<rounding>(Limits::min(), Limits::max(), v, v);
    return narrowed<T, lanes<double>>(firstHalf(twice));
}

} // namespace zors::ZORS_VARIANT
