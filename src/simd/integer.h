// Exact integer arithmetic on vectors and the steps that bring its results back to the element type.
//
// A sum or difference of two lanes needs one bit more than a lane has. It is held as its half, rounded down, and
// its lowest bit: two lanes of the same width.
#pragma once

#include "vector.h"

#include <algorithm>
#include <limits>

namespace zors::ZORS_VARIANT {

// What two lanes add up to: 2 * half + low.
template <class V>
struct HalfSum {
    V half, low;
};

// A mask made by a comparison as lanes of another type of the same width.
template <class V, class M>
inline V maskAs(M mask)
{
    static_assert(sizeof(V) == sizeof(M));
    return (V)mask;
}

// v and 1 more, or 1 less, in the lanes of a mask. The widest vectors have masks that are no vectors; the others'
// lanes are -1.
template <class V, class M>
inline V raisedWhere(M mask, V v)
{
#if ZORS_VECTOR_BYTES == 64
    return mask ? v + 1 : v;
#else
    return v - maskAs<V>(mask);
#endif
}

template <class V, class M>
inline V loweredWhere(M mask, V v)
{
#if ZORS_VECTOR_BYTES == 64
    return mask ? v - 1 : v;
#else
    return v + maskAs<V>(mask);
#endif
}

template <class V>
inline HalfSum<V> halfSum(V a, V b)
{
    return {(a & b) + ((a ^ b) >> 1), (a ^ b) & 1};
}

// b - a of signed lanes.
template <class V>
inline HalfSum<V> halfDifference(V a, V b)
{
    return {(b >> 1) - (a >> 1) - (~b & a & 1), (a ^ b) & 1};
}

// The bound on the side of v's sign.
template <class V>
inline V boundOf(V v)
{
    using T = ElementOf<V>;
    return (v >> (std::numeric_limits<T>::digits)) ^ std::numeric_limits<T>::max();
}

template <class V>
inline auto wrapping(V v)
{
    return bitsAs<std::make_unsigned_t<ElementOf<V>>>(v);
}

// a + b, saturated.
template <class V>
inline V saturatedSum(V a, V b)
{
    using T = ElementOf<V>;
    const V sum = bitsAs<T>(wrapping(a) + wrapping(b));
    if constexpr (std::is_unsigned_v<T>)
        return sum < a ? splat(std::numeric_limits<T>::max()) : sum;
    else
        return ((a ^ sum) & (b ^ sum)) < 0 ? boundOf(a) : sum;
}

// b - a, saturated.
template <class V>
inline V saturatedDifference(V a, V b)
{
    using T = ElementOf<V>;
    const V difference = bitsAs<T>(wrapping(b) - wrapping(a));
    if constexpr (std::is_unsigned_v<T>)
        return a < b ? difference : V{};
    else
        return ((a ^ b) & (b ^ difference)) < 0 ? boundOf(b) : difference;
}

#if ZORS_VECTOR_BYTES == 64
#define ZORS_NATIVE(operation) _mm512_##operation
#define ZORS_INTEGERS __m512i
#elif ZORS_VECTOR_BYTES == 32
#define ZORS_NATIVE(operation) _mm256_##operation
#define ZORS_INTEGERS __m256i
#else
#define ZORS_NATIVE(operation) _mm_##operation
#define ZORS_INTEGERS __m128i
#endif

inline Vec<std::int16_t> saturatedSum(Vec<std::int16_t> a, Vec<std::int16_t> b)
{
    return (Vec<std::int16_t>)ZORS_NATIVE(adds_epi16)((ZORS_INTEGERS)a, (ZORS_INTEGERS)b);
}

inline Vec<std::int16_t> saturatedDifference(Vec<std::int16_t> a, Vec<std::int16_t> b)
{
    return (Vec<std::int16_t>)ZORS_NATIVE(subs_epi16)((ZORS_INTEGERS)b, (ZORS_INTEGERS)a);
}

inline Vec<std::uint16_t> saturatedSum(Vec<std::uint16_t> a, Vec<std::uint16_t> b)
{
    return (Vec<std::uint16_t>)ZORS_NATIVE(adds_epu16)((ZORS_INTEGERS)a, (ZORS_INTEGERS)b);
}

inline Vec<std::uint16_t> saturatedDifference(Vec<std::uint16_t> a, Vec<std::uint16_t> b)
{
    return (Vec<std::uint16_t>)ZORS_NATIVE(subs_epu16)((ZORS_INTEGERS)b, (ZORS_INTEGERS)a);
}

inline Vec<std::uint8_t> saturatedSum(Vec<std::uint8_t> a, Vec<std::uint8_t> b)
{
    return (Vec<std::uint8_t>)ZORS_NATIVE(adds_epu8)((ZORS_INTEGERS)a, (ZORS_INTEGERS)b);
}

inline Vec<std::uint8_t> saturatedDifference(Vec<std::uint8_t> a, Vec<std::uint8_t> b)
{
    return (Vec<std::uint8_t>)ZORS_NATIVE(subs_epu8)((ZORS_INTEGERS)b, (ZORS_INTEGERS)a);
}

// Right by 1 to the width of a lane, rounded down.
template <class V>
inline V shiftedRight(V v, int count)
{
    using T = ElementOf<V>;
    if constexpr (std::is_unsigned_v<T>) {
        return v >> (count - 1) >> 1;
    } else if constexpr (sizeof(T) == 8 && vectorBytes < 64) {
        // Without an arithmetic shift of this width: as an unsigned number above a bias.
        constexpr std::uint64_t bias = std::uint64_t{1} << 63;
        return bitsAs<T>((bitsAs<std::uint64_t>(v) ^ bias) >> count) - static_cast<T>(bias >> count);
    } else {
        return v >> count;
    }
}

// A right shift with rounding to nearest, ties to even. Everything that depends on the count alone is made once.
template <class T>
class RoundingShift {
public:
    // 1 <= count <= width of T; for signed lanes below the width.
    explicit RoundingShift(int count)
        : count_(count), middle_(static_cast<T>(std::uint64_t{1} << (count - 1))),
          mask_(static_cast<T>((std::uint64_t{1} << (count - 1)) * 2 - 1))
    {
    }

    template <class V>
    V operator()(V x) const
    {
        const V q = shiftedRight(x, count_);
        return raisedWhere((x & mask_) > (middle_ - (q & 1)), q);
    }

    // x with a bit below its lowest.
    template <class V>
    V operator()(V x, V low) const
    {
        const V q = shiftedRight(x, count_);
        return raisedWhere((x & mask_) > (middle_ - (low | (q & 1))), q);
    }

private:
    int count_;
    T middle_;
    T mask_;
};

// Left by count, saturated to the range of T, whose digits the count may reach; lanes as wide as T or wider.
template <class T, class V>
inline V shiftedLeft(V v, int count)
{
    using Lane = ElementOf<V>;
    constexpr auto least = std::numeric_limits<T>::min(), most = std::numeric_limits<T>::max();
    const auto high = static_cast<Lane>(count < 64 ? static_cast<std::int64_t>(most >> (count - 1)) >> 1 : 0);
    V r = v << (count - 1) << 1;
    r = v > high ? splat(static_cast<Lane>(most)) : r;
    if constexpr (std::is_signed_v<Lane>) {
        const auto low = static_cast<Lane>(static_cast<std::int64_t>(least) >> count);
        r = v < low ? splat(static_cast<Lane>(least)) : r;
    }
    return r;
}

} // namespace zors::ZORS_VARIANT
