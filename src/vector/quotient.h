// Integer results of reductions: exact quotients and roots, scaled by a power of two and rounded once, to nearest
// with ties to even.
#pragma once

#include <zortypes.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace zors::ZORS_VARIANT {

using Int128 = __int128;
using UInt128 = unsigned __int128;

template <class R, class W>
R saturated(W v)
{
    constexpr W least = std::numeric_limits<R>::lowest(), most = std::numeric_limits<R>::max();
    return static_cast<R>(std::clamp(v, least, most));
}

// sum / 2^scaleFactor.
template <class R>
R scaledSum(Zor64s sum, int scaleFactor)
{
    // Beyond these shifts every result is saturated or 0.
    const int shift = std::clamp(scaleFactor, -32, 64);
    if (shift <= 0) return saturated<R>(Int128{sum} * (Int128{1} << -shift));
    const Int128 belowHalf = (Int128{1} << (shift - 1)) - 1;
    return saturated<R>((sum + belowHalf + ((Int128{sum} >> shift) & 1)) >> shift);
}

// sum / (len * 2^scaleFactor).
template <class R>
R scaledMean(Zor64s sum, int len, int scaleFactor)
{
    // Beyond these shifts every result is saturated or 0: the quotient is 0 or between 2^-31 and 2^31.
    const int shift = std::clamp(scaleFactor, -62, 33);
    const Int128 dividend = sum * (Int128{1} << std::max(-shift, 0)),
                 divisor = len * (Int128{1} << std::max(shift, 0));
    const Int128 quotient = dividend / divisor, rest = dividend - quotient * divisor;
    const Int128 twice = 2 * (rest < 0 ? -rest : rest);
    const bool away = twice > divisor || (twice == divisor && quotient % 2 != 0);
    return saturated<R>(quotient + (away ? (sum < 0 ? -1 : 1) : 0));
}

// sqrt((len * squares - sum^2) / ((len - 1) * len)) / 2^scaleFactor for the sums over 16-bit elements. A root in
// double precision is at most one too large or too small for the integer below; the exact comparison with the
// middle between two integers then decides.
template <class R>
R scaledDeviation(Zor64s sum, Zor64s squares, int len, int scaleFactor)
{
    // The root is 0 or between 2^-31 and 2^16.
    const int shift = std::clamp(scaleFactor, -62, 18);
    const UInt128 radicand = static_cast<UInt128>(Int128{squares} * len - Int128{sum} * sum);
    const UInt128 divisor = static_cast<UInt128>(Int128{len} * (len - 1));
    const Zor64f root =
        std::ldexp(std::sqrt(static_cast<Zor64f>(radicand) / static_cast<Zor64f>(divisor)), -shift);
    if (root >= std::numeric_limits<R>::max()) return std::numeric_limits<R>::max();

    const auto below = static_cast<Zor64s>(root);
    const UInt128 middle = 2 * static_cast<UInt128>(below) + 1;
    const UInt128 left = 4 * radicand << 2 * std::max(-shift, 0);
    const UInt128 right = middle * middle * divisor << 2 * std::max(shift, 0);
    return saturated<R>(below + (left > right || (left == right && below % 2 != 0)));
}

} // namespace zors::ZORS_VARIANT
