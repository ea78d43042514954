// Random numbers, formed in double precision, as elements.
#pragma once

#include "simd/convert.h"

#include <zortypes.h>

#include <limits>

namespace zors::ZORS_VARIANT {

// Rounded to single precision, or to the nearest integer.
template <class T>
inline Vec<T, lanes<double>> toElements(Vec<double> v)
{
    if constexpr (std::is_same_v<T, double>) {
        return v;
    } else if constexpr (std::is_same_v<T, float>) {
        return toFloat<lanes<double>>(v);
    } else {
        // Adding this leaves the integer in the low bits.
        constexpr double toInteger = 0x1.8p52;
        const auto bits = bitsAs<std::int64_t>(v + toInteger);
        return __builtin_convertvector(bits, Vec<T, lanes<double>>);
    }
}

// The same for values that may leave the range of an integer type: it saturates.
template <class T>
inline Vec<T, lanes<double>> toElementsSaturated(Vec<double> v)
{
    if constexpr (std::numeric_limits<T>::is_integer) {
        const Vec<double> least = splat<double>(std::numeric_limits<T>::lowest()),
                          most = splat<double>(std::numeric_limits<T>::max());
        v = select(v < least, least, select(v > most, most, v));
    }
    return toElements<T>(v);
}

} // namespace zors::ZORS_VARIANT
