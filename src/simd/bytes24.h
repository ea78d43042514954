// Packed 24-bit elements, three bytes each, least significant first.
#pragma once

#include "loop.h"
#include "shuffle.h"

namespace zors::ZORS_VARIANT {

inline constexpr int lanes24 = lanes<std::uint32_t>;

// The low three bytes of every lane from 3 * lanes24 contiguous bytes; the top byte is 0.
inline Vec<std::uint32_t> unpack24(Vec<std::uint8_t> packed)
{
#if ZORS_VECTOR_BYTES > 16
    // Twelve bytes into every sixteen, then three into every four.
    struct Spread {
        constexpr int operator()(int i) const { return i / 4 * 3 + i % 4 % 3; }
    };
    struct Widen {
        constexpr int operator()(int i) const
        {
            const int byte = i % 4, element = i % 16 / 4;
            return byte < 3 ? i / 16 * 16 + 3 * element + byte : vectorBytes + i;
        }
    };
    const auto spread = bitsAs<std::uint8_t>(permute<Spread>(bitsAs<std::uint32_t>(packed)));
    return bitsAs<std::uint32_t>(permute<Widen>(spread, Vec<std::uint8_t>{}));
#else
    // Element k stands k bytes too low.
    const auto element = [](unsigned k) {
        return (__m128i)Vec<std::uint32_t>{k == 0 ? 0xffffffu : 0, k == 1 ? 0xffffffu : 0,
                                           k == 2 ? 0xffffffu : 0, k == 3 ? 0xffffffu : 0};
    };
    const auto v = (__m128i)packed;
    const __m128i low =
        _mm_or_si128(_mm_and_si128(v, element(0)), _mm_and_si128(_mm_slli_si128(v, 1), element(1)));
    const __m128i high = _mm_or_si128(_mm_and_si128(_mm_slli_si128(v, 2), element(2)),
                                      _mm_and_si128(_mm_slli_si128(v, 3), element(3)));
    return (Vec<std::uint32_t>)_mm_or_si128(low, high);
#endif
}

// The inverse: the low three bytes of every lane as contiguous bytes, followed by bytes of no meaning.
inline Vec<std::uint8_t> pack24(Vec<std::uint32_t> v)
{
#if ZORS_VECTOR_BYTES > 16
    struct Narrow {
        constexpr int operator()(int i) const { return i / 16 * 16 + i % 16 % 12 / 3 * 4 + i % 16 % 3; }
    };
    struct Gather {
        constexpr int operator()(int i) const { return (i / 3 * 4 + i % 3) % lanes24; }
    };
    const auto narrow = bitsAs<std::uint32_t>(permute<Narrow>(bitsAs<std::uint8_t>(v)));
    return bitsAs<std::uint8_t>(permute<Gather>(narrow));
#else
    const auto element = [v](unsigned k) {
        return _mm_and_si128((__m128i)v,
                             (__m128i)Vec<std::uint32_t>{k == 0 ? 0xffffffu : 0, k == 1 ? 0xffffffu : 0,
                                                         k == 2 ? 0xffffffu : 0, k == 3 ? 0xffffffu : 0});
    };
    const __m128i low = _mm_or_si128(element(0), _mm_srli_si128(element(1), 1));
    const __m128i high = _mm_or_si128(_mm_srli_si128(element(2), 2), _mm_srli_si128(element(3), 3));
    return (Vec<std::uint8_t>)_mm_or_si128(low, high);
#endif
}

inline Vec<std::uint32_t> load24(const std::uint8_t* p, Whole<lanes24> at)
{
    p += 3 * at.index;
#if ZORS_VECTOR_BYTES == 64
    return unpack24(loadFirst<vectorBytes>(p, 3 * lanes24));
#elif ZORS_VECTOR_BYTES == 32
    const auto low = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
    const auto high = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(p + 16));
    return unpack24((Vec<std::uint8_t>)_mm256_inserti128_si256(_mm256_castsi128_si256(low), high, 1));
#else
    Vec<std::uint32_t> v{};
    __builtin_memcpy(&v, p, 3 * lanes24);
    return unpack24(bitsAs<std::uint8_t>(v));
#endif
}

inline Vec<std::uint32_t> load24(const std::uint8_t* p, Part<lanes24> at)
{
    return unpack24(loadFirst<vectorBytes>(p + 3 * at.index, 3 * at.count));
}

inline void store24(std::uint8_t* p, Whole<lanes24> at, Vec<std::uint32_t> v)
{
    const Vec<std::uint8_t> packed = pack24(v);
#if ZORS_VECTOR_BYTES == 64
    storeFirst<vectorBytes>(p + 3 * at.index, packed, 3 * lanes24);
#else
    __builtin_memcpy(p + 3 * at.index, &packed, 3 * lanes24);
#endif
}

inline void store24(std::uint8_t* p, Part<lanes24> at, Vec<std::uint32_t> v)
{
    storeFirst<vectorBytes>(p + 3 * at.index, pack24(v), 3 * at.count);
}

} // namespace zors::ZORS_VARIANT
