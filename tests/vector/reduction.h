// What the tests of reductions share: their vectors, and the rule of scaled integer results in plain arithmetic.
#pragma once

#include "support/oracle.h"

#include <zors.h>

#include <climits>
#include <cmath>

namespace zors::test {

using Wide = __int128;

constexpr int scaleFactors[] = {0,   1,   2,   3,   7,   15,    16,    17,      30,     31,  32,
                                33,  46,  62,  63,  64,  65,    99,    -1,      -2,     -15, -16,
                                -17, -30, -31, -32, -64, -1023, -1024, INT_MIN, INT_MAX};

template <class T>
std::vector<T> integers(std::size_t count)
{
    Random bits(count);
    std::vector<T> v(count);
    for (T& e : v) e = static_cast<T>(bits() >> (bits() % 64));
    return v;
}

// Normal numbers, spread over so many powers of two.
template <class T>
std::vector<T> normal(std::size_t count, double mean, double deviation, int powers)
{
    Random bits(count);
    std::normal_distribution<double> number(mean, deviation);
    std::vector<T> v(count);
    for (T& e : v) e = static_cast<T>(std::ldexp(number(bits), below(powers, bits) - powers / 2));
    return v;
}

// What a function of one vector gives.
template <class T, class R, class... More>
R reduced(ZorStatus (*function)(const T*, int, R*, More...), const T* p, int len,
          std::type_identity_t<More>... more)
{
    R result{};
    EXPECT_EQ(function(p, len, &result, more...), zorStsOk);
    return result;
}

// Every length up to 257 at odd places, the limits of the blocks, and one long vector.
template <class Body>
void eachLength(Body test)
{
    const auto body = [&](std::size_t place, int len) {
        test(place, len);
        compared(len);
    };
    for (int len = 1; len <= 257; ++len) body(static_cast<std::size_t>(len % 7), len);
    for (const int len : {1023, 1024, 1025, 2048, 2049, 3071, 65535, 65536, 65537, 200001})
        body(std::size_t{1}, len);
    body(std::size_t{3}, (1 << 20) + 3);
}
constexpr std::size_t longest = (1 << 20) + 8;

// Numerator / (denominator * 2^scaleFactor) to nearest, ties to even, saturated: by comparison of fractions.
template <class R>
R scaledFraction(Wide numerator, Wide denominator, int scaleFactor)
{
    for (int s = std::clamp(scaleFactor, -64, 64); s != 0; s += s < 0 ? 1 : -1)
        (s < 0 ? numerator : denominator) *= 2;
    Wide floor = numerator / denominator;
    if (floor * denominator > numerator) --floor;
    const Wide twiceRest = 2 * (numerator - floor * denominator);
    const bool up = twiceRest > denominator || (twiceRest == denominator && floor % 2 != 0);
    return static_cast<R>(
        std::clamp<Wide>(floor + (up ? 1 : 0), std::numeric_limits<R>::min(), std::numeric_limits<R>::max()));
}

} // namespace zors::test
