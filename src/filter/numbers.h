// Taps and samples as the numbers that a filter computes with, and results back as data, through the public
// conversions. A complex vector is a real one of twice the length.
#pragma once

#include "frame/slots.h"
#include "vector/lane.h"

#include <cstring>
#include <type_traits>

namespace zors::ZORS_VARIANT {

template <class T, class N>
void convertLanes(const T* p, N* numbers, int count)
{
    if constexpr (std::is_same_v<T, N>)
        std::memcpy(numbers, p, static_cast<std::size_t>(count) * sizeof(N));
    else if constexpr (std::is_same_v<T, Zor32f>)
        ::zorsConvert_32f64f_arraddr(p, numbers, count);
    else if constexpr (std::is_same_v<T, Zor32s>)
        ::zorsConvert_32s64f_arraddr(p, numbers, count);
    else if constexpr (std::is_same_v<N, Zor32f>)
        ::zorsConvert_16s32f_arraddr(p, numbers, count);
    else
        ::zorsConvert_16s64f_Sfs_arraddr(p, numbers, count, 0);
}

template <class N, class D>
void roundLanes(const N* numbers, D* p, int count, int scaleFactor)
{
    if constexpr (std::is_same_v<D, N>)
        std::memcpy(p, numbers, static_cast<std::size_t>(count) * sizeof(N));
    else if constexpr (std::is_same_v<D, Zor32f>)
        ::zorsConvert_64f32f_arraddr(numbers, p, count);
    else if constexpr (std::is_same_v<D, Zor32s>)
        ::zorsConvert_64f32s_Sfs_arraddr(numbers, p, count, zorRndNear, scaleFactor);
    else if constexpr (std::is_same_v<N, Zor32f>)
        ::zorsConvert_32f16s_Sfs_arraddr(numbers, p, count, zorRndNear, scaleFactor);
    else
        ::zorsConvert_64f16s_Sfs_arraddr(numbers, p, count, zorRndNear, scaleFactor);
}

// Twice a length may be more than an int holds.
inline constexpr std::ptrdiff_t mostAtOnce = 1 << 30;

template <class Run>
void inPieces(std::ptrdiff_t count, Run run)
{
    for (std::ptrdiff_t i = 0; i < count; i += mostAtOnce)
        run(i, static_cast<int>(count - i < mostAtOnce ? count - i : mostAtOnce));
}

// Vectors of len elements.
template <class D, class E>
void loadNumbers(const D* p, E* numbers, std::ptrdiff_t len)
{
    inPieces(laneCount<E>(len),
             [=](auto i, int count) { convertLanes(asLanes(p) + i, asLanes(numbers) + i, count); });
}

template <class E, class D>
void storeNumbers(const E* numbers, D* p, std::ptrdiff_t len, int scaleFactor = 0)
{
    inPieces(laneCount<E>(len), [=](auto i, int count) {
        roundLanes(asLanes(numbers) + i, asLanes(p) + i, count, scaleFactor);
    });
}

} // namespace zors::ZORS_VARIANT
