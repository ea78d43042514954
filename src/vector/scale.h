// The factor 2^-scaleFactor for floating-point elements: a multiplication that is chosen outside the loop.
#pragma once

#include "simd/convert.h"
#include "simd/loop.h"

#include <zortypes.h>

#include <algorithm>
#include <bit>

namespace zors::ZORS_VARIANT {

// 2^exponent, for the exponents of normal numbers.
template <class T>
T powerOfTwo(int exponent)
{
    using Bits = typename UnsignedOf<sizeof(T)>::type;
    constexpr int digits = std::numeric_limits<T>::digits, bias = std::numeric_limits<T>::max_exponent - 1;
    return std::bit_cast<T>(static_cast<Bits>(static_cast<Bits>(exponent + bias) << (digits - 1)));
}

struct AsItIs {
    template <class V>
    V operator()(V v) const
    {
        return v;
    }
};

template <class T>
struct ScaledOnce {
    T factor;
    template <class V>
    V operator()(V v) const
    {
        return v * factor;
    }
};

// Two factors in the same direction: neither leaves the range of a normal number, and together they round once
// at the most.
template <class T>
struct ScaledTwice : Rare {
    T first, second;
    template <class V>
    V operator()(V v) const
    {
        return v * first * second;
    }
};

// Calls run with what multiplies a vector of T by 2^-scaleFactor. Beyond twice the larger exponent no element
// has a result that still changes, be it an integer or a float.
template <class T, class Run>
void withScale(int scaleFactor, Run run)
{
    constexpr int largest = sizeof(T) == 4 ? 120 : 1000;
    const int exponent = -std::clamp(scaleFactor, -2 * largest, 2 * largest);
    if (exponent == 0) return run(AsItIs{});
    if (std::abs(exponent) <= largest) return run(ScaledOnce<T>{powerOfTwo<T>(exponent)});
    const int first = exponent > 0 ? largest : -largest;
    run(ScaledTwice<T>{{}, powerOfTwo<T>(first), powerOfTwo<T>(exponent - first)});
}

} // namespace zors::ZORS_VARIANT
