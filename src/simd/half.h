// Half-precision floats, whose lanes are 16-bit integers. What is not a number stays so, quiet, with the upper
// bits of its payload.
#pragma once

#include "round.h"

namespace zors::ZORS_VARIANT {

using Half = std::uint16_t;
inline constexpr int lanesHalf = lanes<float>;

inline Vec<float> fromHalf(Vec<Half, lanesHalf> v)
{
#if ZORS_VECTOR_BYTES == 64
    return (Vec<float>)_mm512_cvtph_ps((__m256i)v);
#elif ZORS_VECTOR_BYTES == 32
    return (Vec<float>)_mm256_cvtph_ps((__m128i)v);
#else
    using I = Vec<std::int32_t>;
    constexpr std::int32_t rebias = (127 - 15) << 23;
    const auto h = widened<std::int32_t, Half, lanesHalf>(v);
    const I sign = (h & 0x8000) << 16, fraction = h & 0x3ff;
    const I exponent = h & 0x7c00;
    I r = ((h & 0x7fff) << 13) + rebias;
    const auto special = exponent == 0x7c00;
    r = select(special, r + rebias, r) | (special & (fraction != 0) & 0x400000);
    // Denormals are multiples of 2^-24; the float that holds one is normal.
    r = select(exponent == 0, bitsAs<std::int32_t>(toFloat<lanesHalf>(fraction) * 0x1p-24f), r);
    return bitsAs<float>(r | sign);
#endif
}

// Rounded to nearest even or toward zero; beyond the range the one gives infinity and the other the largest
// finite value.
template <Rounding rounding>
inline Vec<Half, lanesHalf> toHalf(Vec<float> v)
{
    constexpr bool near = rounding == Rounding::nearestEven;
#if ZORS_VECTOR_BYTES > 16
    constexpr int mode = near ? _MM_FROUND_TO_NEAREST_INT : _MM_FROUND_TO_ZERO;
#endif
#if ZORS_VECTOR_BYTES == 64
    return (Vec<Half, lanesHalf>)_mm512_cvtps_ph((__m512)v, mode | _MM_FROUND_NO_EXC);
#elif ZORS_VECTOR_BYTES == 32
    return (Vec<Half, lanesHalf>)_mm256_cvtps_ph((__m256)v, mode);
#else
    using I = Vec<std::int32_t>;
    constexpr std::int32_t rebias = (127 - 15) << 23, infinity = 0x7f800000;
    const auto bits = bitsAs<std::int32_t>(v);
    const I magnitude = bits & 0x7fffffff;
    const auto more = wrapping(near ? 0xfff - rebias + (magnitude >> 13 & 1) : I{} - rebias);
    const I normal = bitsAs<std::int32_t>(wrapping(magnitude) + more) >> 13;
    constexpr std::int32_t beyond = near ? 0x7c00 : 0x7bff;
    I r = select(magnitude >= 0x47800000, splat(beyond), normal);
    // Denormal halves are multiples of 2^-24.
    const I multiple = toInt32<rounding>(bitsAs<float>(magnitude) * 0x1p24f);
    r = select(magnitude < 0x38800000, multiple, r);
    r = select(magnitude == infinity, splat(0x7c00), r);
    r = select(magnitude > infinity, 0x7e00 | (magnitude >> 13 & 0x3ff), r);
    return narrowed<Half, lanesHalf>(r | (bits >> 16 & 0x8000));
#endif
}

} // namespace zors::ZORS_VARIANT
