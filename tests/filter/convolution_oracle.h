// Convolution by its definition, in arithmetic wide enough.
#pragma once

#include "support/random.h"

#include <zors.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace zors::test {

// Exact for integers; of floating-point numbers with 64 bits.
template <class T>
using WideOf = std::conditional_t<std::is_integral_v<T>, std::int64_t, long double>;

template <class T>
struct Output {
    WideOf<T> value = 0;
    double magnitude = 0; // the sum of the magnitudes of the products
};

template <class T>
Output<T> output(const std::vector<T>& a, const std::vector<T>& b, std::ptrdiff_t k)
{
    Output<T> sum;
    const auto first = std::max<std::ptrdiff_t>(0, k - std::ssize(b) + 1);
    const auto last = std::min<std::ptrdiff_t>(k, std::ssize(a) - 1);
    for (std::ptrdiff_t i = first; i <= last; ++i) {
        const auto product = static_cast<WideOf<T>>(a[static_cast<std::size_t>(i)]) *
                             static_cast<WideOf<T>>(b[static_cast<std::size_t>(k - i)]);
        sum.value += product;
        sum.magnitude += static_cast<double>(std::abs(product));
    }
    return sum;
}

// Numbers in -1..1 to their last bit, or any integers.
template <class T>
std::vector<T> randomSignal(std::ptrdiff_t len, Random& random)
{
    std::vector<T> v(static_cast<std::size_t>(len));
    for (T& x : v)
        if constexpr (std::is_integral_v<T>)
            x = static_cast<T>(random());
        else
            x = static_cast<T>(std::ldexp(static_cast<double>(static_cast<std::int64_t>(random())), -63));
    return v;
}

// An exact sum by the rule of scale factors.
inline Zor16s scaled(std::int64_t sum, int scaleFactor)
{
    const long double v = std::nearbyint(std::ldexp(static_cast<long double>(sum), -scaleFactor));
    return static_cast<Zor16s>(std::clamp<long double>(v, -32768, 32767));
}

// The method that the lengths ask for, and the order of the transform that the size of a buffer goes by.
inline bool isTransformed(std::int64_t shorter, std::int64_t longer)
{
    return shorter + longer - 1 >= 512 && shorter >= 64;
}

inline int orderOf(std::int64_t shorter, std::int64_t longer)
{
    int order = 0;
    const bool inSections = longer >= 3 * shorter;
    while (std::int64_t{1} << order < (inSections ? 2 * shorter : shorter + longer - 1)) ++order;
    return inSections ? order + 1 : order;
}

// Our functions under one name for each type.
inline ZorStatus conv(const std::vector<Zor32f>& a, const std::vector<Zor32f>& b, Zor32f* to)
{
    return zorsConv_32f(a.data(), static_cast<int>(a.size()), b.data(), static_cast<int>(b.size()), to);
}

inline ZorStatus conv(const std::vector<Zor64f>& a, const std::vector<Zor64f>& b, Zor64f* to)
{
    return zorsConv_64f(a.data(), static_cast<int>(a.size()), b.data(), static_cast<int>(b.size()), to);
}

template <class T>
inline constexpr auto convolve = zorsConvolve_32f;
template <>
inline constexpr auto convolve<Zor64f> = zorsConvolve_64f;

template <class T>
inline constexpr ZorDataType dataTypeOf = std::is_same_v<T, Zor32f> ? zorDataType32f : zorDataType64f;

} // namespace zors::test
