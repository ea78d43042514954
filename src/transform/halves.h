// Transforms so long that a work buffer of their length would pass 2^31 bytes: one step of radix 2 in the
// destination, two transforms of half the length, and the even and odd points shuffled together.
#pragma once

#include "ports.h"
#include "sines.h"

namespace zors::ZORS_VARIANT {

// e^(-2 pi i k / N), k < N / 2, is the product of two shorter tables, k = innerHalves q + r: first those over q,
// then those over r.
inline constexpr std::ptrdiff_t innerHalves = std::ptrdiff_t{1} << 13;

constexpr std::ptrdiff_t outerHalves(int order)
{
    return (std::ptrdiff_t{1} << order) / 2 / innerHalves;
}

template <class T>
inline void fillHalves(int order, const Wave<T>& wave, T* p)
{
    const auto append = [&](std::ptrdiff_t k) {
        const Cx<T> w = wave(k, order);
        *p++ = w.re;
        *p++ = w.im;
    };
    for (std::ptrdiff_t q = 0; q < outerHalves(order); ++q) append(q * innerHalves);
    for (std::ptrdiff_t r = 0; r < innerHalves; ++r) append(r);
}

// The sums to the first half, the turned differences to the second. The table is that of tableOrder.
template <class T, class Arrays>
inline void halve(int order, int tableOrder, const Arrays& io, const T* factors)
{
    const std::ptrdiff_t half = std::ptrdiff_t{1} << (order - 1);
    const T* inner = factors + 2 * outerHalves(tableOrder);
    for (std::ptrdiff_t k = 0; k < half; ++k) {
        const std::ptrdiff_t at = k << (tableOrder - order);
        const T* q = factors + at / innerHalves * 2;
        const T* r = inner + at % innerHalves * 2;
        const Cx<T> a = io.get(k), b = io.get(half + k);
        io.put(k, a + b);
        io.put(half + k, times(a - b, times(Cx<T>{q[0], q[1]}, Cx<T>{r[0], r[1]})));
    }
}

// The first half to the even places, the second to the odd ones; the room holds half of the elements.
template <class Element>
inline void shuffleHalves(Element* p, std::ptrdiff_t count, Element* room)
{
    const std::ptrdiff_t half = count / 2;
    for (std::ptrdiff_t k = 0; k < half; ++k) room[k] = p[k];
    for (std::ptrdiff_t k = 0; k < half; ++k) {
        p[2 * k] = room[k];
        p[2 * k + 1] = p[half + k];
    }
}

template <class T, bool Swapped>
inline void shuffleHalves(const PairedArrays<T, Swapped>& io, std::ptrdiff_t count, T* room)
{
    shuffleHalves(reinterpret_cast<Cx<T>*>(io.dst), count, reinterpret_cast<Cx<T>*>(room));
}

template <class T>
inline void shuffleHalves(const SplitArrays<T>& io, std::ptrdiff_t count, T* room)
{
    shuffleHalves(io.dstRe, count, room);
    shuffleHalves(io.dstIm, count, room);
}

} // namespace zors::ZORS_VARIANT
