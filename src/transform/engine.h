// The complex transform of any order. Which way it goes, and what tables and work that takes.
#pragma once

#include "blocked.h"
#include "halves.h"
#include "record.h"
#include "small.h"

namespace zors::ZORS_VARIANT {

inline constexpr int firstBlockedOrder = 18;
template <class T>
inline constexpr int firstHalvedOrder = sizeof(T) == 4 ? 27 : 26;

// Bytes of the factors of an order above the small ones, without those of halving.
template <class T>
constexpr std::int64_t factorBytes(int order)
{
    constexpr std::int64_t pair = 2 * bytes<T>;
    if (order >= firstHalvedOrder<T>) return factorBytes<T>(firstHalvedOrder<T> - 1);
    if (order >= firstBlockedOrder) return pair * BlockedFactors{Division{order}}.count;
    return pair * ((std::int64_t{1} << order) + 1);
}

template <class T>
constexpr std::int64_t halfFactorBytes(int order)
{
    if (order < firstHalvedOrder<T>) return 0;
    return 2 * bytes<T> * (outerHalves(order) + innerHalves);
}

template <class T>
inline void fillFactors(int order, const Wave<T>& wave, T* p)
{
    if (order >= firstHalvedOrder<T>) order = firstHalvedOrder<T> - 1;
    if (order >= firstBlockedOrder)
        fillBlocked(order, wave, p);
    else
        fillSorted(order, wave, p);
}

template <class T>
constexpr std::int64_t workBytes(int order)
{
    constexpr std::int64_t pair = 2 * bytes<T>;
    const std::int64_t all = pair << order;
    if (order <= mostSmallOrder) return 0;
    if (order < firstBlockedOrder) return all;
    if (order < firstHalvedOrder<T>) return wholeLines(blockedWorkBytes<T>(order));
    const std::int64_t half = workBytes<T>(order - 1);
    return half > all / 2 ? half : all / 2;
}

template <int W, class T, class Arrays>
inline void sortedTransform(int order, const Arrays& io, const T* factor, T* work, const T* factors)
{
    const std::ptrdiff_t rows = (std::ptrdiff_t{1} << order) / W;
    if (rows <= mostRowsInRegisters) {
        scaledBy(factor, io.template sink<W>(), [&](const auto& out) {
            inRegisters<W>(static_cast<int>(rows), io.template source<W, OrderInRegisters<T, W>>(), out,
                           factors);
        });
    } else {
        constexpr int width = turnsHalves<T>(W) ? W / 2 : W;
        scaledBy(factor, io.template sink<width>(), [&](const auto& out) {
            inPasses<W>(order, io.template source<W, OrderBehindPasses<T, W>>(), out, io.template room<W>(),
                        work, factors);
        });
    }
}

// Multiplies by the factor where there is one. The tables are those of spec, which may be of a longer transform.
template <class T, class Arrays>
[[gnu::noinline]] void complexTransform(const FloatRecord<T>& spec, int tableOrder, int order,
                                        const Arrays& io, const T* factor, T* work)
{
    if (order <= mostSmallOrder) return smallTransform(order, io, factor);
    if (order >= firstHalvedOrder<T>) {
        const std::ptrdiff_t half = std::ptrdiff_t{1} << (order - 1);
        halve(order, tableOrder, io, spec.halfFactors);
        complexTransform(spec, tableOrder, order - 1, io.onDestination(0), factor, work);
        complexTransform(spec, tableOrder, order - 1, io.onDestination(half), factor, work);
        return shuffleHalves(io, 2 * half, work);
    }
    if (order >= firstBlockedOrder) return blockedTransform(order, io, factor, work, spec.factors);
    if constexpr (lanes<T> == 16) {
        if (order < 8) return sortedTransform<8>(order, io, factor, work, spec.factors);
    }
    sortedTransform<lanes<T>>(order, io, factor, work, spec.factors);
}

// Compiled once each, in engine32.cpp and engine64.cpp.
#define ZORS_ENGINE(prefix, T)                                                                               \
    prefix template void complexTransform(const FloatRecord<T>&, int, int, const PairedArrays<T, false>&,    \
                                          const T*, T*);                                                     \
    prefix template void complexTransform(const FloatRecord<T>&, int, int, const PairedArrays<T, true>&,     \
                                          const T*, T*);                                                     \
    prefix template void complexTransform(const FloatRecord<T>&, int, int, const SplitArrays<T>&, const T*,  \
                                          T*);
ZORS_ENGINE(extern, Zor32f)
ZORS_ENGINE(extern, Zor64f)

} // namespace zors::ZORS_VARIANT
