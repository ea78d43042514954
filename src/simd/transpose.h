// Transposition of as many vectors as each has lanes, whole or in its two steps.
#pragma once

#include "shuffle.h"

namespace zors::ZORS_VARIANT {

// Blocks of 16 bytes in a vector.
template <class V>
inline constexpr int blocksOf = lanesOf<V> / lanesOfBlock<V>;

// Blocks First and First + Step of a, then of b.
template <int First, int Step, class V>
[[gnu::always_inline]] inline V blocksOfTwo(V a, V b)
{
    struct Map {
        constexpr int operator()(int i) const
        {
            constexpr int each = lanesOfBlock<V>, n = lanesOf<V>;
            const int block = i / each;
            return block / 2 * n + (First + block % 2 * Step) * each + i % each;
        }
    };
    return permute<Map>(a, b);
}

// As many vectors as they have blocks of 16 bytes: block i of vector j and block j of vector i change places.
template <int N, class V>
[[gnu::always_inline]] inline void transposeBlocks(V (&v)[N])
{
    static_assert(blocksOf<V> == N);
    if constexpr (N == 4) {
        const V a = blocksOfTwo<0, 1>(v[0], v[1]), b = blocksOfTwo<0, 1>(v[2], v[3]);
        const V c = blocksOfTwo<2, 1>(v[0], v[1]), d = blocksOfTwo<2, 1>(v[2], v[3]);
        v[0] = blocksOfTwo<0, 2>(a, b);
        v[1] = blocksOfTwo<1, 2>(a, b);
        v[2] = blocksOfTwo<0, 2>(c, d);
        v[3] = blocksOfTwo<1, 2>(c, d);
    } else if constexpr (N == 2) {
        exchangeBlocks<lanesOfBlock<V>>(v[0], v[1]);
    }
}

// As many vectors as 16 bytes have lanes: the same for the lanes in every block.
template <int N, class V>
[[gnu::always_inline]] inline void transposeInside(V (&v)[N])
{
    static_assert(lanesOfBlock<V> == N);
    unpack(v[0], v[1]);
    if constexpr (N == 4) {
        unpack(v[2], v[3]);
        using Wide = Vec<double, lanesOf<V> / 2>;
        Wide a = (Wide)v[0], b = (Wide)v[2], c = (Wide)v[1], d = (Wide)v[3];
        unpack(a, b);
        unpack(c, d);
        v[0] = (V)a;
        v[1] = (V)b;
        v[2] = (V)c;
        v[3] = (V)d;
    }
}

// First by blocks of 16 bytes, then inside them: no instruction moves single elements across those.
template <int N, class V>
[[gnu::always_inline]] inline void transpose(V (&v)[N])
{
    static_assert(lanesOf<V> == N);
    constexpr int blocks = blocksOf<V>, each = lanesOfBlock<V>;
#pragma GCC unroll 16
    for (int b = 0; b < each; ++b) {
        V some[blocks];
#pragma GCC unroll 16
        for (int a = 0; a < blocks; ++a) some[a] = v[a * each + b];
        transposeBlocks(some);
#pragma GCC unroll 16
        for (int a = 0; a < blocks; ++a) v[a * each + b] = some[a];
    }
#pragma GCC unroll 16
    for (int a = 0; a < blocks; ++a) {
        V some[each];
#pragma GCC unroll 16
        for (int b = 0; b < each; ++b) some[b] = v[a * each + b];
        transposeInside(some);
#pragma GCC unroll 16
        for (int b = 0; b < each; ++b) v[a * each + b] = some[b];
    }
}

} // namespace zors::ZORS_VARIANT
