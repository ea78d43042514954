// Several native vectors that a step takes together, so that a narrower type fills a register: converted in
// pairs or fours, the lanes are packed at the machine's speed.
#pragma once

#include "convert.h"
#include "loop.h"
#include "shuffle.h"
#include "widen.h"

namespace zors::ZORS_VARIANT {

template <class T, int K>
struct Group {
    Vec<T> part[K];
};

// The place of the n lanes of a step that start at lane offset.
template <int n, class At>
inline Whole<n> within(At at, int offset)
{
    return {at.index + offset};
}

template <int n, int N>
inline Part<n> within(Part<N> at, int offset)
{
    const int left = at.count - offset;
    return {at.index + offset, left < 0 ? 0 : left < n ? left : n};
}

// The vectors that f makes of the places of a step, n lanes each.
template <int n, class At, class F>
inline auto grouped(At at, F f)
{
    constexpr int k = At::lanes / n;
    Group<ElementOf<decltype(f(within<n>(at, 0)))>, k> g;
    for (int i = 0; i < k; ++i) g.part[i] = f(within<n>(at, i * n));
    return g;
}

template <class T, class At>
inline auto loadGroup(const T* p, At at)
{
    return grouped<lanes<T>>(at, [=](auto part) { return load(p, part); });
}

template <class T, int K, class F>
inline auto each(const Group<T, K>& g, F f)
{
    Group<ElementOf<decltype(f(g.part[0]))>, K> r;
    for (int i = 0; i < K; ++i) r.part[i] = f(g.part[i]);
    return r;
}

// What was packed from K vectors, 16 bytes by 16 bytes, with the lanes of each together.
template <int K, class V>
inline V inOrder(V v)
{
    struct Together {
        constexpr int operator()(int i) const
        {
            constexpr int blocks = vectorBytes / 16;
            return i % blocks * K + i / blocks;
        }
    };
    using Chunk = typename UnsignedOf<16 / K>::type;
    return bitsAs<ElementOf<V>>(permute<Together>(bitsAs<Chunk>(v)));
}

template <class V>
inline Vec<std::int8_t> packed(std::type_identity<std::int8_t>, Pair<V> w)
{
    return (Vec<std::int8_t>)ZORS_NATIVE(packs_epi16)((ZORS_INTEGERS)w.first, (ZORS_INTEGERS)w.second);
}

// Groups of signed integers as one vector of a narrower type, saturated.
template <class T>
inline Vec<T> packed(const Group<std::int32_t, 1>& g)
{
    return (Vec<T>)g.part[0];
}

template <class T>
inline Vec<T> packed(const Group<std::int16_t, 2>& g)
{
    return inOrder<2>(packed<T>(Pair<Vec<std::int16_t>>{g.part[0], g.part[1]}));
}

inline Vec<std::int16_t> packedWords(Vec<std::int32_t> a, Vec<std::int32_t> b)
{
    return packed<std::int16_t>(Pair<Vec<std::int32_t>>{a, b});
}

// Unsigned words are moved into the range of the signed ones and back, so a lane must not be below
// -2^31 + 2^15.
template <class T>
inline Vec<T> packed(const Group<std::int32_t, 2>& g)
{
    if constexpr (std::is_signed_v<T>) return inOrder<2>(packedWords(g.part[0], g.part[1]));
    const auto words = inOrder<2>(packedWords(g.part[0] - 0x8000, g.part[1] - 0x8000));
    return (Vec<T>)(words ^ std::numeric_limits<std::int16_t>::min());
}

template <class T>
inline Vec<T> packed(const Group<std::int32_t, 4>& g)
{
    const Pair<Vec<std::int16_t>> words{packedWords(g.part[0], g.part[1]), packedWords(g.part[2], g.part[3])};
    return inOrder<4>(packed<T>(words));
}

inline Vec<std::int32_t> packedSaturated(const Group<std::int64_t, 2>& g)
{
#if ZORS_VECTOR_BYTES == 64
    const __m256i low = _mm512_cvtsepi64_epi32((__m512i)g.part[0]);
    const __m256i high = _mm512_cvtsepi64_epi32((__m512i)g.part[1]);
    return (Vec<std::int32_t>)_mm512_inserti64x4(_mm512_castsi256_si512(low), high, 1);
#else
    const auto v = deinterleave(bitsAs<std::int32_t>(g.part[0]), bitsAs<std::int32_t>(g.part[1]));
    const auto low = v.first, high = v.second;
    return select(high == low >> 31, low, (high >> 31) ^ std::numeric_limits<std::int32_t>::max());
#endif
}

} // namespace zors::ZORS_VARIANT
