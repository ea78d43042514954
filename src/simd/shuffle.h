// Rearrangement of lanes and of the bytes in them.
#pragma once

#include "vector.h"

namespace zors::ZORS_VARIANT {

// Result lane i is the lane Map{}(i) of a followed by b.
template <class Map, class V>
inline V permute(V a, V b)
{
    return []<int... I>(V x, V y, std::integer_sequence<int, I...>)
    {
        return __builtin_shufflevector(x, y, Map{}(I)...);
    }
    (a, b, std::make_integer_sequence<int, lanesOf<V>>{});
}

template <class Map, class V>
inline V permute(V v)
{
    return permute<Map>(v, v);
}

// Bytes reversed inside every lane.
template <class V>
inline V byteSwapped(V v)
{
    constexpr int size = static_cast<int>(sizeof(ElementOf<V>));
    if constexpr (vectorBytes > 16) {
        struct Reversed {
            constexpr int operator()(int i) const { return i / size * size + (size - 1 - i % size); }
        };
        return bitsAs<ElementOf<V>>(permute<Reversed>(bitsAs<std::uint8_t>(v)));
    } else {
        // Without a byte shuffle: neighbouring bytes, then neighbouring words, then neighbouring double words.
        struct Neighbour {
            constexpr int operator()(int i) const { return i ^ 1; }
        };
        const auto w = bitsAs<std::uint16_t>(v);
        const auto d = bitsAs<std::uint32_t>(w << 8 | w >> 8);
        if constexpr (size == 2) return bitsAs<ElementOf<V>>(d);
        if constexpr (size == 4) return bitsAs<ElementOf<V>>(d << 16 | d >> 16);
        if constexpr (size == 8) return bitsAs<ElementOf<V>>(permute<Neighbour>(d << 16 | d >> 16));
    }
}

// The order of elements of Size bytes reversed; Size is a power of two up to 16.
template <int Size, class V>
inline V reversed(V v)
{
    using T = ElementOf<V>;
    if constexpr (vectorBytes == 16 && Size < 4) {
        const auto d = bitsAs<std::uint32_t>(reversed<4>(v));
        const auto w = bitsAs<std::uint16_t>(d << 16 | d >> 16);
        if constexpr (Size == 2) return bitsAs<T>(w);
        if constexpr (Size == 1) return bitsAs<T>(w << 8 | w >> 8);
    } else {
        // First inside every 16 bytes, then these as wholes: each is one instruction.
        constexpr int unit = Size < 8 ? Size : 8;
        struct Inside {
            constexpr int operator()(int i) const
            {
                constexpr int n = 16 / unit, group = Size / unit;
                return i / n * n + (n - group - i % n / group * group) + i % group;
            }
        };
        struct Across {
            constexpr int operator()(int i) const { return (vectorBytes / 16 - 1 - i / 2) * 2 + i % 2; }
        };
        using Unit = typename UnsignedOf<unit>::type;
        const auto inside = permute<Inside>(bitsAs<Unit>(v));
        return bitsAs<T>(permute<Across>(bitsAs<std::uint64_t>(inside)));
    }
}

// Lanes in a block of 16 bytes.
template <class V>
inline constexpr int lanesOfBlock = 16 / static_cast<int>(sizeof(ElementOf<V>));

// Of every two blocks of Size lanes in a and b: the first ones of both, and the second ones of both.
template <int Size, class V>
[[gnu::always_inline]] inline void exchangeBlocks(V& a, V& b)
{
    constexpr int n = lanesOf<V>;
    struct First {
        constexpr int operator()(int i) const { return i & Size ? i - Size + n : i; }
    };
    struct Second {
        constexpr int operator()(int i) const { return i & Size ? i + n : i + Size; }
    };
    const V first = permute<First>(a, b);
    b = permute<Second>(a, b);
    a = first;
}

// In every 16 bytes, the lower or the upper lanes of a and b alternating.
template <class V>
[[gnu::always_inline]] inline void unpack(V& a, V& b)
{
    constexpr int n = lanesOf<V>, each = lanesOfBlock<V>;
    struct Low {
        constexpr int operator()(int i) const { return i / each * each + i % each / 2 + i % 2 * n; }
    };
    struct High {
        constexpr int operator()(int i) const { return Low{}(i) + each / 2; }
    };
    const V low = permute<Low>(a, b);
    b = permute<High>(a, b);
    a = low;
}

// Vectors of two blocks of 16 bytes, on processors where no single instruction takes lanes of two vectors across
// blocks, as one does inside them and another one whole blocks. Those with wider vectors have it.
template <class V>
inline constexpr bool hasTwoBlocks = vectorBytes == 32 && sizeof(V) == 32 && sizeof(ElementOf<V>) >= 4;

// a0 b0 a1 b1 ... in two vectors.
template <class V>
inline Pair<V> interleave(V a, V b)
{
    constexpr int n = lanesOf<V>;
    if constexpr (hasTwoBlocks<V>) {
        unpack(a, b);
        exchangeBlocks<lanesOfBlock<V>>(a, b);
        return {a, b};
    }
    struct Low {
        constexpr int operator()(int i) const { return i / 2 + (i % 2) * n; }
    };
    struct High {
        constexpr int operator()(int i) const { return n / 2 + i / 2 + (i % 2) * n; }
    };
    return {permute<Low>(a, b), permute<High>(a, b)};
}

// a0 a0 a1 a1 ... of half a vector.
template <class H>
inline auto doubled(H half)
{
    using T = ElementOf<H>;
    return []<int... I>(H h, std::integer_sequence<int, I...>)
    {
        return (Vec<T, 2 * lanesOf<H>>)__builtin_shufflevector(h, h, (I / 2)...);
    }
    (half, std::make_integer_sequence<int, 2 * lanesOf<H>>{});
}

// In every 16 bytes, the even lanes of a and then those of b, and the odd ones.
template <class V>
[[gnu::always_inline]] inline Pair<V> deinterleaveInside(V a, V b)
{
    struct Even {
        constexpr int operator()(int i) const
        {
            constexpr int each = lanesOfBlock<V>;
            const int inside = 2 * (i % each);
            return i / each * each + (inside < each ? inside : lanesOf<V> + inside - each);
        }
    };
    struct Odd {
        constexpr int operator()(int i) const { return Even{}(i) + 1; }
    };
    return {permute<Even>(a, b), permute<Odd>(a, b)};
}

// The even and the odd lanes of a followed by b.
template <class V>
inline Pair<V> deinterleave(V a, V b)
{
    if constexpr (hasTwoBlocks<V>) {
        exchangeBlocks<lanesOfBlock<V>>(a, b);
        return deinterleaveInside(a, b);
    }
    struct Even {
        constexpr int operator()(int i) const { return 2 * i; }
    };
    struct Odd {
        constexpr int operator()(int i) const { return 2 * i + 1; }
    };
    return {permute<Even>(a, b), permute<Odd>(a, b)};
}

template <int N, class V>
inline Vec<ElementOf<V>, N> leading(V v)
{
    return [=]<int... I>(std::integer_sequence<int, I...>)
    {
        return __builtin_shufflevector(v, v, I...);
    }
    (std::make_integer_sequence<int, N>{});
}

template <class V>
inline auto firstHalf(V v)
{
    return leading<lanesOf<V> / 2>(v);
}

// A shorter vector over and over.
template <int N, class V>
inline Vec<ElementOf<V>, N> repeated(V v)
{
    return [=]<int... I>(std::integer_sequence<int, I...>)
    {
        return __builtin_shufflevector(v, v, (I % lanesOf<V>)...);
    }
    (std::make_integer_sequence<int, N>{});
}

// The lanes of a, then those of b.
template <class V>
inline Vec<ElementOf<V>, 2 * lanesOf<V>> concatenated(V a, V b)
{
    return [=]<int... I>(std::integer_sequence<int, I...>)
    {
        return __builtin_shufflevector(a, b, I...);
    }
    (std::make_integer_sequence<int, 2 * lanesOf<V>>{});
}

} // namespace zors::ZORS_VARIANT
