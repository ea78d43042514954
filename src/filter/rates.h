// The rates of a filter, and the checks of what filters are made of.
#pragma once

#include "simd/check.h"

namespace zors::ZORS_VARIANT {

struct Rates {
    int upFactor = 1, upPhase = 0, downFactor = 1, downPhase = 0;
};

inline ZorStatus firLength(int tapsLen)
{
    return require(tapsLen >= 1, zorStsBadFirLength);
}

inline ZorStatus factors(const Rates& r)
{
    return require(r.upFactor >= 1 && r.downFactor >= 1, zorStsBadMultiRateFactor);
}

inline ZorStatus phases(const Rates& r)
{
    return require(r.upPhase >= 0 && r.upPhase < r.upFactor && r.downPhase >= 0 && r.downPhase < r.downFactor,
                   zorStsBadMultiRatePhase);
}

// Samples that the first output of a call may need: what a delay line holds.
inline int delayOf(int tapsLen, int upFactor)
{
    return tapsLen / upFactor + (tapsLen % upFactor > 0 ? 1 : 0);
}

} // namespace zors::ZORS_VARIANT
