// Levels of powers.
#pragma once

#include <cmath>

namespace ecg {

// Of a ratio of powers; minus infinity for 0.
inline double decibels(double ratio)
{
    return 10 * std::log10(ratio);
}

} // namespace ecg
