// Recursive filters over numbers, sample by sample. A sample has the same bits however many go before and behind it in
// a call.
#pragma once

#include "dot.h"
#include "iir_record.h"

#include <algorithm>
#include <bit>

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
void filterOrder(IirRecord<E>& r, const E* pSrc, E* pDst, std::ptrdiff_t len)
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
        if (r.count == order) filterOrder<order>(r, pSrc, pDst, len);
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

// A chunk, by the sections from one on: the first ones from the source, the others in place.
template <class E>
void filterCascade(IirRecord<E>& r, std::ptrdiff_t s, const E* pSrc, E* pDst, std::ptrdiff_t len)
{
    constexpr int most = 4;
    for (std::ptrdiff_t some; s < r.count; s += some, pSrc = pDst) {
        const E* taps = r.taps + 5 * s;
        E* delay = r.delay + 2 * s;
        some = std::min<std::ptrdiff_t>(most, r.count - s);
        if (some == 1)
            filterSections<1>(taps, delay, pSrc, pDst, len);
        else if (some == 2)
            filterSections<2>(taps, delay, pSrc, pDst, len);
        else if (some == 3)
            filterSections<3>(taps, delay, pSrc, pDst, len);
        else
            filterSections<most>(taps, delay, pSrc, pDst, len);
    }
}

// Samples too few to be worth taking taps and numbers into registers. Not in direct form 1. What goes into and comes
// out of every section is shown to `see`.
template <class E, class See>
[[gnu::always_inline]] inline E nextOf(IirRecord<E>& r, E x, See see)
{
    see(x);
    if (r.structure == Structure::anyOrder) {
        x = nextOfOrder(r.taps, r.delay, r.count, x);
        see(x);
        return x;
    }
    E* delay = r.delay;
    const E* taps = r.taps;
    for (const E* end = taps + std::ptrdiff_t{5} * r.count; taps < end; taps += 5, delay += 2) {
        x = nextOfSection(taps, delay, x);
        see(x);
    }
    return x;
}

template <class E>
void filterFew(IirRecord<E>& r, const E* pSrc, E* pDst, std::ptrdiff_t len)
{
    for (std::ptrdiff_t n = 0; n < len; ++n) pDst[n] = nextOf(r, pSrc[n], [](E) {});
}

// Whether numbers are so small that products with them may be denormal, but not zero.
template <class T>
class Quietness {
public:
    template <class E>
    [[gnu::always_inline]] void see(E x)
    {
        if constexpr (LaneOf<E>::each == 1) {
            // The magnitude without its sign, less one, so that zero is the largest.
            const auto magnitude = static_cast<Bits>(2 * std::bit_cast<Bits>(x) - 1);
            least_ = magnitude < least_ ? magnitude : least_;
        } else {
            see(x.re);
            see(x.im);
        }
    }

    bool isNear() const { return least_ < 2 * std::bit_cast<Bits>(small); }

private:
    using Bits = std::conditional_t<sizeof(T) == 4, Zor32u, Zor64u>;
    static constexpr T small = sizeof(T) == 4 ? T(0x1p-100) : T(0x1p-970);

    Bits least_ = ~Bits{0};
};

// One sample, without a look at the caller's arithmetic, which would take longer than the sample, as long as denormals
// are not near.
template <class E>
[[gnu::always_inline]] inline E filterOne(IirRecord<E>& r, E x)
{
    Quietness<Lane<E>> quietness;
    const auto y = nextOf(
        r, x, [&](E v) __attribute__((always_inline)) { quietness.see(v); });
    r.isQuiet = quietness.isNear();
    return y;
}

} // namespace zors::ZORS_VARIANT
