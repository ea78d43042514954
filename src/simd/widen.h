// Lanes taken apart into two vectors of twice their width, and put together again with saturation. The order of
// the lanes in between is the processor's own and the same in both directions.
#pragma once

#include "integer.h"

namespace zors::ZORS_VARIANT {

template <class T>
struct WideOf;
template <>
struct WideOf<std::uint8_t> : std::type_identity<std::int16_t> {
};
template <>
struct WideOf<std::int16_t> : std::type_identity<std::int32_t> {
};
template <>
struct WideOf<std::uint16_t> : std::type_identity<std::int32_t> {
};
template <>
struct WideOf<std::int32_t> : std::type_identity<std::int64_t> {
};

// Lanes that hold the results of operations on T exactly.
template <class T>
using Wide = Vec<typename WideOf<T>::type>;

inline Pair<Vec<std::uint16_t>> unpacked(Vec<std::uint8_t> low, Vec<std::uint8_t> high)
{
    return {(Vec<std::uint16_t>)ZORS_NATIVE(unpacklo_epi8)((ZORS_INTEGERS)low, (ZORS_INTEGERS)high),
            (Vec<std::uint16_t>)ZORS_NATIVE(unpackhi_epi8)((ZORS_INTEGERS)low, (ZORS_INTEGERS)high)};
}

inline Pair<Vec<std::int32_t>> unpacked(Vec<std::int16_t> low, Vec<std::int16_t> high)
{
    return {(Vec<std::int32_t>)ZORS_NATIVE(unpacklo_epi16)((ZORS_INTEGERS)low, (ZORS_INTEGERS)high),
            (Vec<std::int32_t>)ZORS_NATIVE(unpackhi_epi16)((ZORS_INTEGERS)low, (ZORS_INTEGERS)high)};
}

inline Pair<Vec<std::int32_t>> unpacked(Vec<std::int32_t> low, Vec<std::int32_t> high)
{
    return {(Vec<std::int32_t>)ZORS_NATIVE(unpacklo_epi32)((ZORS_INTEGERS)low, (ZORS_INTEGERS)high),
            (Vec<std::int32_t>)ZORS_NATIVE(unpackhi_epi32)((ZORS_INTEGERS)low, (ZORS_INTEGERS)high)};
}

inline Pair<Wide<std::uint8_t>> widened(Vec<std::uint8_t> v)
{
    const auto w = unpacked(v, Vec<std::uint8_t>{});
    return {bitsAs<std::int16_t>(w.first), bitsAs<std::int16_t>(w.second)};
}

inline Pair<Wide<std::int16_t>> widened(Vec<std::int16_t> v)
{
    return unpacked(v, v >> 15);
}

inline Pair<Wide<std::uint16_t>> widened(Vec<std::uint16_t> v)
{
    return unpacked(bitsAs<std::int16_t>(v), Vec<std::int16_t>{});
}

// The even lanes first, then the odd ones.
inline Pair<Wide<std::int32_t>> widened(Vec<std::int32_t> v)
{
    const auto w = bitsAs<std::uint64_t>(v);
    const auto sign = [](auto x) {
        constexpr std::uint64_t bias = std::uint64_t{1} << 31;
        return bitsAs<std::int64_t>((x ^ bias) - bias);
    };
    return {sign(w & 0xffffffffu), sign(w >> 32)};
}

template <class T, class V>
inline V clamped(V v)
{
    using Lane = ElementOf<V>;
    constexpr auto least = static_cast<Lane>(std::numeric_limits<T>::min());
    constexpr auto most = static_cast<Lane>(std::numeric_limits<T>::max());
    v = v > most ? splat(most) : v;
    if constexpr (std::is_signed_v<Lane>) v = v < least ? splat(least) : v;
    return v;
}

inline Vec<std::uint8_t> packed(std::type_identity<std::uint8_t>, Pair<Vec<std::int16_t>> w)
{
    return (Vec<std::uint8_t>)ZORS_NATIVE(packus_epi16)((ZORS_INTEGERS)w.first, (ZORS_INTEGERS)w.second);
}

inline Vec<std::uint8_t> packed(std::type_identity<std::uint8_t> type, Pair<Vec<std::uint16_t>> w)
{
    return packed(type, Pair<Vec<std::int16_t>>{bitsAs<std::int16_t>(clamped<std::uint8_t>(w.first)),
                                                bitsAs<std::int16_t>(clamped<std::uint8_t>(w.second))});
}

inline Vec<std::int16_t> packed(std::type_identity<std::int16_t>, Pair<Vec<std::int32_t>> w)
{
    return (Vec<std::int16_t>)ZORS_NATIVE(packs_epi32)((ZORS_INTEGERS)w.first, (ZORS_INTEGERS)w.second);
}

template <class W>
inline Vec<std::uint16_t> packed(std::type_identity<std::uint16_t>, Pair<W> w)
{
    // The signed range is the one that every processor can pack.
    constexpr std::int32_t bias = 32768;
    const auto biased = [](auto v) { return bitsAs<std::int32_t>(clamped<std::uint16_t>(v)) - bias; };
    const auto v = packed(std::type_identity<std::int16_t>{},
                          Pair<Vec<std::int32_t>>{biased(w.first), biased(w.second)});
    return bitsAs<std::uint16_t>(v) ^ static_cast<std::uint16_t>(bias);
}

inline Vec<std::int32_t> packed(std::type_identity<std::int32_t>, Pair<Vec<std::int64_t>> w)
{
    const auto even = bitsAs<std::uint64_t>(clamped<std::int32_t>(w.first)) & 0xffffffffu;
    const auto odd = bitsAs<std::uint64_t>(clamped<std::int32_t>(w.second)) << 32;
    return bitsAs<std::int32_t>(even | odd);
}

// Back to lanes of T, saturated.
template <class T, class W>
inline Vec<T> packed(Pair<W> w)
{
    return packed(std::type_identity<T>{}, w);
}

// The even lanes of two vectors multiplied.
inline Vec<std::int64_t> evenProducts(Vec<std::int32_t> a, Vec<std::int32_t> b)
{
#if ZORS_VECTOR_BYTES > 16
    return (Vec<std::int64_t>)ZORS_NATIVE(mul_epi32)((ZORS_INTEGERS)a, (ZORS_INTEGERS)b);
#else
    // From the unsigned product: a negative factor stands for 2^32 more than it is.
    const auto product = (Vec<std::uint64_t>)_mm_mul_epu32((__m128i)a, (__m128i)b);
    const auto excess = bitsAs<std::uint64_t>(wrapping(a >> 31 & b) + wrapping(b >> 31 & a)) << 32;
    return bitsAs<std::int64_t>(product - excess);
#endif
}

// The odd lanes moved onto the even ones.
inline Vec<std::int32_t> oddOntoEven(Vec<std::int32_t> v)
{
    return bitsAs<std::int32_t>(bitsAs<std::uint64_t>(v) >> 32);
}

// Exact products in wide lanes.
inline Pair<Vec<std::uint16_t>> products(Vec<std::uint8_t> a, Vec<std::uint8_t> b)
{
    const auto x = unpacked(a, Vec<std::uint8_t>{}), y = unpacked(b, Vec<std::uint8_t>{});
    return {x.first * y.first, x.second * y.second};
}

inline Pair<Vec<std::int32_t>> products(Vec<std::int16_t> a, Vec<std::int16_t> b)
{
    const auto high = (Vec<std::int16_t>)ZORS_NATIVE(mulhi_epi16)((ZORS_INTEGERS)a, (ZORS_INTEGERS)b);
    return unpacked(bitsAs<std::int16_t>(wrapping(a) * wrapping(b)), high);
}

inline Pair<Vec<std::uint32_t>> products(Vec<std::uint16_t> a, Vec<std::uint16_t> b)
{
    const auto high = (Vec<std::int16_t>)ZORS_NATIVE(mulhi_epu16)((ZORS_INTEGERS)a, (ZORS_INTEGERS)b);
    const auto w = unpacked(bitsAs<std::int16_t>(a * b), high);
    return {bitsAs<std::uint32_t>(w.first), bitsAs<std::uint32_t>(w.second)};
}

inline Pair<Vec<std::int32_t>> products(Vec<std::uint16_t> a, Vec<std::int16_t> b)
{
    // The signed product takes an upper half of a for 65536 less.
    const auto s = bitsAs<std::int16_t>(a);
    const auto high = (Vec<std::int16_t>)ZORS_NATIVE(mulhi_epi16)((ZORS_INTEGERS)s, (ZORS_INTEGERS)b);
    const auto missing = (s >> 15) & b;
    return unpacked(bitsAs<std::int16_t>(a * wrapping(b)),
                    bitsAs<std::int16_t>(wrapping(high) + wrapping(missing)));
}

inline Pair<Vec<std::int64_t>> products(Vec<std::int32_t> a, Vec<std::int32_t> b)
{
    return {evenProducts(a, b), evenProducts(oddOntoEven(a), oddOntoEven(b))};
}

// Products of neighbouring 16-bit lanes, the two of a pair added; wraps where all four are -32768.
inline Vec<std::int32_t> pairProducts(Vec<std::int16_t> a, Vec<std::int16_t> b)
{
    return (Vec<std::int32_t>)ZORS_NATIVE(madd_epi16)((ZORS_INTEGERS)a, (ZORS_INTEGERS)b);
}

// Exact products of narrow lanes.
inline Vec<std::int32_t> wideProduct(Vec<std::int16_t, lanes<std::int32_t>> a,
                                     Vec<std::int16_t, lanes<std::int32_t>> b)
{
    // With one factor's upper half cleared the product of the pairs is that of their lower halves.
    using W = Vec<std::int32_t>;
    const auto x = bitsAs<std::uint16_t>(a);
    const W low = __builtin_convertvector(x, W), full = __builtin_convertvector(b, W);
    return pairProducts(bitsAs<std::int16_t>(low), bitsAs<std::int16_t>(full));
}

// a * b / 2^15 of 16-bit lanes, to nearest with ties to even, saturated.
inline Vec<std::int16_t> fractionalProducts(Vec<std::int16_t> a, Vec<std::int16_t> b)
{
#if ZORS_VECTOR_BYTES > 16
    // The instruction rounds ties up, one too far where the bit above the half is 0; and -1 * -1 wraps to -1, which
    // no other product gives, one past the largest value.
    const auto r = (Vec<std::uint16_t>)ZORS_NATIVE(mulhrs_epi16)((ZORS_INTEGERS)a, (ZORS_INTEGERS)b);
    const auto low = wrapping(a) * wrapping(b);
    const auto tooFar = (low == 0x4000) | (r == 0x8000);
    return bitsAs<std::int16_t>(loweredWhere(tooFar, r));
#else
    const RoundingShift<std::int32_t> shift(15);
    const auto p = products(a, b);
    return packed<std::int16_t>(Pair<Vec<std::int32_t>>{shift(p.first), shift(p.second)});
#endif
}

} // namespace zors::ZORS_VARIANT
