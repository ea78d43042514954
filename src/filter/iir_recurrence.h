// Recursive filters over numbers, sample by sample. A sample has the same bits however many go before and behind it in
// a call.
#pragma once

#include "dot.h"
#include "iir_record.h"
#include "simd/memory.h"
#include "simd/opaque.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace zors::ZORS_VARIANT {

// One section, transposed direct form II: taps b0 ... bN, -a1 ... -aN, and N numbers with a zero behind them.
template <class E>
[[gnu::always_inline]] inline E nextOfOrder(const E* taps, E* delay, int order, E x)
{
    const E y = plusProduct(delay[0], taps[0], x);
    for (int k = 0; k < order; ++k)
        delay[k] = plusProduct(plusProduct(delay[k + 1], taps[k + 1], x), taps[order + 1 + k], y);
    return y;
}

// What is known when this is compiled stays in registers.
template <int Order, class E>
void filterKnownOrder(IirRecord<E>& r, const E* pSrc, E* pDst, std::ptrdiff_t len)
{
    E taps[2 * Order + 1], delay[Order + 1];
    std::copy_n(r.taps, 2 * Order + 1, taps);
    std::copy_n(r.delay, Order + 1, delay);
    for (std::ptrdiff_t n = 0; n < len; ++n) pDst[n] = nextOfOrder(taps, delay, Order, pSrc[n]);
    std::copy_n(delay, Order, r.delay);
}

template <class E>
void filterAnyOrder(IirRecord<E>& r, const E* pSrc, E* pDst, std::ptrdiff_t len)
{
    constexpr int mostInRegisters = 8;
    if (r.count < 1 || r.count > mostInRegisters) {
        for (std::ptrdiff_t n = 0; n < len; ++n) pDst[n] = nextOfOrder(r.taps, r.delay, r.count, pSrc[n]);
        return;
    }
    const auto ifSo = [&](auto order) {
        if (r.count == order) filterKnownOrder<order>(r, pSrc, pDst, len);
    };
    [=]<int... I>(std::integer_sequence<int, I...>)
    {
        (ifSo(std::integral_constant<int, I + 1>{}), ...);
    }
    (std::make_integer_sequence<int, mostInRegisters>{});
}

// The same of the second order, whose two numbers have no zero behind them.
template <class E>
[[gnu::always_inline]] inline E nextOfSection(const E* taps, E* delay, E x)
{
    const E y = plusProduct(delay[0], taps[0], x);
    delay[0] = plusProduct(plusProduct(delay[1], taps[1], x), taps[3], y);
    delay[1] = plusProduct(plusProduct(E{}, taps[2], x), taps[4], y);
    return y;
}

// Some sections at once: while one waits for what it feeds back, the others go on.
template <int Sections, class E>
void filterSections(const E* pTaps, E* pDelay, const E* pSrc, E* pDst, std::ptrdiff_t len)
{
    E taps[5 * Sections], delay[2 * Sections];
    std::copy_n(pTaps, 5 * Sections, taps);
    std::copy_n(pDelay, 2 * Sections, delay);
    for (std::ptrdiff_t n = 0; n < len; ++n) {
        E x = pSrc[n];
        for (int s = 0; s < Sections; ++s) x = nextOfSection(taps + 5 * s, delay + 2 * s, x);
        pDst[n] = x;
    }
    std::copy_n(delay, 2 * Sections, pDelay);
}

// A section in direct form 1: its last two samples and outputs, newest first. The newest output is added last.
template <class E>
void filterDirectForm1(const E* h, E* delay, const E* pSrc, E* pDst, std::ptrdiff_t len)
{
    E x1 = delay[0], x2 = delay[1], y1 = delay[2], y2 = delay[3];
    for (std::ptrdiff_t n = 0; n < len; ++n) {
        const E x = pSrc[n];
        E y = plusProduct(plusProduct(plusProduct(E{}, h[2], x2), h[1], x1), h[0], x);
        y = plusProduct(plusProduct(y, h[4], y2), h[3], y1);
        x2 = x1;
        x1 = x;
        y2 = y1;
        y1 = pDst[n] = y;
    }
    delay[0] = x1;
    delay[1] = x2;
    delay[2] = y1;
    delay[3] = y2;
}

template <Structure structure, int Sections, class E>
void filterSome(const E* taps, E* delay, const E* pSrc, E* pDst, std::ptrdiff_t len)
{
    if constexpr (structure == Structure::biQuad)
        return filterSections<Sections>(taps, delay, pSrc, pDst, len);
    else
        for (int s = 0; s < Sections; ++s, pSrc = pDst)
            filterDirectForm1(taps + 5 * s, delay + 4 * s, pSrc, pDst, len);
}

inline constexpr int mostSections = 4;

// Calls run with the number of some sections.
template <class Run>
void withSections(std::ptrdiff_t sections, Run run)
{
    if (sections == 1) return run(std::integral_constant<int, 1>{});
    if (sections == 2) return run(std::integral_constant<int, 2>{});
    if (sections == 3) return run(std::integral_constant<int, 3>{});
    run(std::integral_constant<int, mostSections>{});
}

// A chunk, by the sections from one on: the first ones from the source, the others in place.
template <Structure structure, class E>
void filterCascade(IirRecord<E>& r, std::ptrdiff_t s, const E* pSrc, E* pDst, std::ptrdiff_t len)
{
    for (std::ptrdiff_t some; s < r.count; s += some, pSrc = pDst) {
        some = std::min<std::ptrdiff_t>(mostSections, r.count - s);
        withSections(some, [&](auto sections) {
            filterSome<structure, sections>(r.taps + 5 * s, r.delay + numbersOfSection(structure) * s, pSrc,
                                            pDst, len);
        });
    }
}

// Two neighbours, and zeros.
template <class T>
[[gnu::always_inline]] inline auto loadBoth(const T* p)
{
    if constexpr (sizeof(T) == 8)
        return load<2>(p);
    else
        return (Vec<T, 4>)Vec<Zor64f, 2>{std::bit_cast<Zor64f>(load<2>(p))};
}

// The same of real numbers in memory, both at once, for a sample in all lanes: what is fed back is in the first two.
// Nothing is loaded that spans what was stored just before.
template <class V, class T = ElementOf<V>>
[[gnu::always_inline]] inline V nextOfPair(const T* taps, T* delay, V x)
{
    const V y = mulAdd(splat<T, lanesOf<V>>(taps[0]), x, splat<T, lanesOf<V>>(delay[0]));
    const V next = mulAdd(loadBoth(taps + 3), y, mulAdd(loadBoth(taps + 1), x, V{delay[1]}));
    __builtin_memcpy(delay, &next, 2 * sizeof(T));
    return y;
}

// Below this, products with numbers may be denormal.
template <class T>
inline constexpr T quiet = sizeof(T) == 4 ? static_cast<T>(0x1p-100) : static_cast<T>(0x1p-970);

// Whether some of the numbers shown are quiet, but not zero. Of double precision the upper halves are enough.
class Quietness {
public:
    template <class V>
    [[gnu::always_inline]] void see(V x)
    {
        // The magnitude, less one, so that zero is the largest, and as much as makes it a signed number.
        const auto bits = (Vec<Zor32u, 4>)x;
        const auto magnitude = (Words)(bits + bits + bias);
        least_ = magnitude < least_ ? magnitude : least_;
    }

    // Of numbers of this type, each part of a complex one.
    template <class E>
    bool isNear() const
    {
        using T = Lane<E>;
        constexpr bool isFloat = sizeof(T) == 4;
        constexpr auto bits = std::bit_cast<std::conditional_t<isFloat, Zor32u, Zor64u>>(quiet<T>);
        constexpr Zor32u small = static_cast<Zor32u>(isFloat ? bits : bits >> 32);
        constexpr auto most = static_cast<Zor32s>(2 * small + bias);
        return least_[isFloat ? 0 : 1] < most || (LaneOf<E>::each > 1 && least_[isFloat ? 1 : 3] < most);
    }

private:
    using Words = Vec<Zor32s, 4>;
    static constexpr Zor32u bias = 0x7fffffff;

    Words least_ = Words{} + INT32_MAX;
};

// A number in all lanes of a short vector; of a complex one both parts alternate.
template <class E>
[[gnu::always_inline]] inline auto repeatedly(E x)
{
    if constexpr (LaneOf<E>::each == 1)
        return splat<E, 16 / sizeof(E)>(x);
    else if constexpr (sizeof(E) == 16)
        return Vec<Zor64f, 2>{x.re, x.im};
    else
        return Vec<Zor32f, 4>{x.re, x.im, x.re, x.im};
}

// The next sample, by taps and numbers where they lie. Not in direct form 1.
template <class E>
[[gnu::always_inline]] inline E nextOfCascade(const IirRecord<E>& r, E x, Quietness& quietness)
{
    const E* taps = r.taps;
    E* delay = r.delay;
    auto all = repeatedly(x);
    quietness.see(all);
    const auto next = [&](std::ptrdiff_t s) __attribute__((always_inline))
    {
        if constexpr (LaneOf<E>::each == 1) {
            all = nextOfPair(taps + 5 * s, delay + 2 * s, all);
        } else {
            x = nextOfSection(taps + 5 * s, delay + 2 * s, x);
            all = repeatedly(x);
        }
        quietness.see(all);
    };
    // Opaque, or compilers find where each would end, all before the first sample.
    int left = r.count;
    for (; left >= 4; left = opaque(left - 4), taps = opaque(taps + 20), delay = opaque(delay + 8)) {
        next(0);
        next(1);
        next(2);
        next(3);
    }
    for (; left > 0; left = opaque(left - 1), taps = opaque(taps + 5), delay = opaque(delay + 2)) next(0);
    if constexpr (LaneOf<E>::each == 1)
        return all[0];
    else
        return x;
}

// The next sample of one section.
template <class E>
E nextOfAnyOrder(const IirRecord<E>& r, E x, Quietness& quietness)
{
    quietness.see(repeatedly(x));
    x = nextOfOrder(r.taps, r.delay, r.count, x);
    quietness.see(repeatedly(x));
    return x;
}

// One sample, with denormals as the caller has them: to look at his arithmetic would take longer than the sample.
template <class E>
[[gnu::always_inline]] inline E filterOne(IirRecord<E>& r, E x)
{
    Quietness quietness;
    x = r.structure == Structure::anyOrder ? nextOfAnyOrder(r, x, quietness) : nextOfCascade(r, x, quietness);
    r.isQuiet = quietness.isNear<E>();
    return x;
}

// What a filter without input feeds back may decay until it is rounded to itself again, and never be zero: from the
// first section on it comes to rest instead where all numbers are quiet.
template <class E>
void settle(IirRecord<E>& r, E x)
{
    if (*asLanes(&x) != 0 || asLanes(&x)[LaneOf<E>::each - 1] != 0) return;
    const std::ptrdiff_t together = r.structure == Structure::anyOrder ? r.count : 2;
    for (std::ptrdiff_t i = 0; i < r.delayLen; i += together) {
        auto* numbers = asLanes(r.delay + i);
        const auto count = laneCount<E>(together);
        if (!std::all_of(numbers, numbers + count, [](auto v) { return std::abs(v) < quiet<Lane<E>>; }))
            return;
        std::fill_n(numbers, count, Lane<E>{});
    }
}

// Samples too few to be worth taking taps and numbers into registers. Not in direct form 1.
template <class E>
void filterFew(IirRecord<E>& r, const E* pSrc, E* pDst, std::ptrdiff_t len)
{
    for (std::ptrdiff_t n = 0; n < len; ++n) pDst[n] = filterOne(r, pSrc[n]);
}

} // namespace zors::ZORS_VARIANT
