// Factors 2^-n of taps and of results. Integer taps are kept as the numbers that they are; their factor goes into the
// scaling of the results, where it costs nothing and loses nothing.
#pragma once

#include <algorithm>
#include <zortypes.h>

namespace zors::ZORS_VARIANT {

// Beyond this every number that there is, is scaled to 0 or out of range.
inline constexpr Zor64s mostFactor = 1 << 20;

inline int boundedFactor(Zor64s n)
{
    return static_cast<int>(std::clamp(n, -mostFactor, mostFactor));
}

// What results are scaled by.
inline int commonFactor(int tapsFactor, int scaleFactor)
{
    return boundedFactor(Zor64s{tapsFactor} + scaleFactor);
}

} // namespace zors::ZORS_VARIANT
