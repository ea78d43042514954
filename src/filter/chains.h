// Blocks of outputs as sums of products. Every output has two chains of multiplications and additions over the lanes
// of its samples, newest first, each step two lanes back:
//
//     real      even[n] = sum h[2a] x[n - 2a],   odd[n] = sum h[2a + 1] x[n - 2a],   y[n] = even[n] + odd[n - 1]
//     complex   by the real and by the imaginary parts of the taps,                  y = first + i second
//
// So a vector of samples, which seldom begins at a cache line and then takes two loads, is used twice; and with two
// chains a short block keeps the multipliers busy. The order of the sum depends on nothing but the number of taps.
#pragma once

#include "simd/complex.h"
#include "simd/fused.h"
#include "simd/opaque.h"
#include "vector/lane.h"

namespace zors::ZORS_VARIANT {

// Vectors of outputs that are formed at once: as many chains as there are registers for.
inline constexpr int mostVectors = ZORS_VECTOR_BYTES == 64 ? 8 : 4;

// Copies of a part of a tap: 16 bytes of them.
template <class T>
inline constexpr int fold = 16 / static_cast<int>(sizeof(T));

// A part of a tap in every lane.
template <class T>
inline Vec<T> broadcast(const T* folded)
{
    if constexpr (lanes<T> == fold<T>)
        return load<lanes<T>>(folded);
    else
        return splat(*folded);
}

// The lanes moved up by one, the last one of those before moving in.
template <class V>
inline V movedUp(V before, V v)
{
    struct Previous {
        constexpr int operator()(int i) const { return lanesOf<V> - 1 + i; }
    };
    return permute<Previous>(before, v);
}

// Both chains of Vectors vectors of outputs. Of real filters the odd chain of the lane before the first one is needed
// too: in Starts the first lane of before has it, otherwise the vectors before have left it.
template <class E, int Vectors, bool Starts>
struct Chains {
    using T = Lane<E>;
    using V = Vec<T>;
    static constexpr bool isReal = LaneOf<E>::each == 1;
    static constexpr int width = lanes<T>;

    V first[Vectors] = {}, second[Vectors] = {}, before = {};

    [[gnu::always_inline]] void add(const T* x, V h0, V h1)
    {
        each([&](auto p) {
            // Opaque, or a compiler would load it for each of both uses.
            const V v = opaque(load<width>(x + p * width));
            first[p] = mulAdd(v, h0, first[p]);
            second[p] = mulAdd(v, h1, second[p]);
        });
        if constexpr (isReal && Starts) before = mulAdd(load<width>(x - 1), h1, before);
    }

    [[gnu::always_inline]] void addSingle(const T* x, V h0)
    {
        each([&](auto p) { first[p] = mulAdd(load<width>(x + p * width), h0, first[p]); });
    }

    // The sum over all taps for the lanes of samples from x on.
    [[gnu::always_inline]] void run(const T* x, const T* folded, int tapsLen)
    {
        const int pairs = isReal ? tapsLen / 2 : tapsLen;
        for (int a = 0; a < pairs; ++a, x -= 2, folded += 2 * fold<T>)
            add(x, broadcast(folded), broadcast(folded + fold<T>));
        // A factor 0 in the place of the missing tap would meet a sample outside the sum.
        if (isReal && tapsLen % 2) addSingle(x, broadcast(folded));
    }

    // The outputs of vector p; carried has the second chain of the vector before the first one.
    template <int P>
    [[gnu::always_inline]] V output(V carried) const
    {
        if constexpr (!isReal)
            return alternateSum(first[P], partsExchanged(second[P]));
        else if constexpr (P > 0)
            return first[P] + movedUp(second[P - 1], second[P]);
        else if constexpr (Starts)
            return first[0] + before;
        else
            return first[0] + movedUp(carried, second[0]);
    }

    template <class Body>
    [[gnu::always_inline]] static void each(Body body)
    {
        [&]<int... P>(std::integer_sequence<int, P...>)
        {
            (body(std::integral_constant<int, P>{}), ...);
        }
        (std::make_integer_sequence<int, Vectors>{});
    }
};

// Outputs for the lanes of samples from x on, in so many whole vectors. Returns what the next vectors go on from.
template <class E, int Vectors, bool Starts>
[[gnu::always_inline]] inline Vec<Lane<E>> filterVectors(const Lane<E>* x, Lane<E>* y, const Lane<E>* folded,
                                                         int tapsLen, Vec<Lane<E>> carried = Vec<Lane<E>>{})
{
    Chains<E, Vectors, Starts> chains;
    chains.run(x, folded, tapsLen);
    chains.each([&](auto p) {
        constexpr int at = decltype(p)::value;
        store<lanes<Lane<E>>>(y + at * lanes<Lane<E>>, chains.template output<at>(carried));
    });
    return chains.second[Vectors - 1];
}

// The same for a number of vectors that is known at run time, up to mostVectors. Each is a function of its own, so that
// every chain stays in its register.
template <class E, int Vectors>
[[gnu::noinline]] void filterStart(const Lane<E>* x, Lane<E>* y, const Lane<E>* folded, int tapsLen)
{
    filterVectors<E, Vectors, true>(x, y, folded, tapsLen);
}

template <class E>
inline void filterFew(int vectors, const Lane<E>* x, Lane<E>* y, const Lane<E>* folded, int tapsLen)
{
    const auto ifSo = [=](auto count) {
        if (vectors == count) filterStart<E, count>(x, y, folded, tapsLen);
    };
    [=]<int... I>(std::integer_sequence<int, I...>)
    {
        (ifSo(std::integral_constant<int, I + 1>{}), ...);
    }
    (std::make_integer_sequence<int, mostVectors>{});
}

// The outputs for len samples from x on, where len elements fill a vector at least and tapsLen - 1 samples stand before
// x. Not an element beside these is read. x and y do not overlap.
template <class E>
void filterWithin(const E* x, E* y, std::ptrdiff_t len, const Lane<E>* folded, int tapsLen)
{
    using T = Lane<E>;
    constexpr std::ptrdiff_t width = lanes<T>, step = mostVectors * width;
    const T* source = asLanes(x);
    T* destination = asLanes(y);
    const std::ptrdiff_t count = laneCount<E>(len);
    std::ptrdiff_t i = 0;
    if (count >= step) {
        Vec<T> carried = filterVectors<E, mostVectors, true>(source, destination, folded, tapsLen);
        for (i = step; i + step <= count; i += step)
            carried =
                filterVectors<E, mostVectors, false>(source + i, destination + i, folded, tapsLen, carried);
    }
    if (i == count) return;
    // The last vectors end with the last output; those that do not fit behind the first one are filtered alone.
    std::ptrdiff_t vectors = (count - i + width - 1) / width;
    if (vectors * width > count) {
        --vectors;
        filterFew<E>(static_cast<int>(vectors), source, destination, folded, tapsLen);
        vectors = 1;
    }
    const std::ptrdiff_t last = count - vectors * width;
    filterFew<E>(static_cast<int>(vectors), source + last, destination + last, folded, tapsLen);
}

// The same for any len, where memory may be read a vector past the samples: y is written within its bounds.
template <class E>
void filterPadded(const E* x, E* y, std::ptrdiff_t len, const Lane<E>* folded, int tapsLen)
{
    using T = Lane<E>;
    if (laneCount<E>(len) >= lanes<T>) return filterWithin(x, y, len, folded, tapsLen);
    T outputs[lanes<T>];
    filterStart<E, 1>(asLanes(x), outputs, folded, tapsLen);
    __builtin_memcpy(y, outputs, static_cast<std::size_t>(len) * sizeof(E));
}

} // namespace zors::ZORS_VARIANT
