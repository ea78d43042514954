// Numbers formed in double precision, as elements.
#pragma once

#include "simd/round.h"

#include <zortypes.h>

namespace zors::ZORS_VARIANT {

// Rounded to single precision, or to the nearest integer and saturated.
template <class T>
inline Vec<T, lanes<double>> toElements(Vec<double> v)
{
    if constexpr (std::is_same_v<T, double>) {
        return v;
    } else if constexpr (std::is_same_v<T, float>) {
        return toFloat<lanes<double>>(v);
    } else {
        return rounded<T, Rounding::nearestEven>(v);
    }
}

} // namespace zors::ZORS_VARIANT
