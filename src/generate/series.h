// Sine and exponential by their power series, as long as the precision of the result asks: each vector of values
// by itself, without tables, and with the same bits at every width.
#pragma once

#include "simd/vector.h"

#include <array>
#include <numbers>

namespace zors::ZORS_VARIANT {

// The value of a polynomial, its constant term first.
template <class V, std::size_t Terms>
inline V polynomial(const std::array<double, Terms>& c, V x)
{
    V p = splat(c[Terms - 1]);
    for (std::size_t k = Terms - 1; k-- > 0;) p = p * x + c[k];
    return p;
}

// sin x = x + x^3 (-1/3! + x^2 / 5! - ...).
template <std::size_t Terms>
inline constexpr auto sineSeries = [] {
    std::array<double, Terms> c{};
    long double term = 1;
    for (std::size_t k = 0; k < Terms; ++k) {
        const auto n = static_cast<long double>(2 * k + 3);
        term /= -n * (n - 1);
        c[k] = static_cast<double>(term);
    }
    return c;
}();

// e^x = 1 + x + x^2 / 2! + ...
template <std::size_t Terms>
inline constexpr auto exponentialSeries = [] {
    std::array<double, Terms> c{1};
    long double term = 1;
    for (std::size_t k = 1; k < Terms; ++k) {
        term /= static_cast<long double>(k);
        c[k] = static_cast<double>(term);
    }
    return c;
}();

// Where a series is cut: what is left out stays a hundred times below the rounding of a double, or, for a result
// that will be rounded to a float, a thousand times below that.
template <class Result>
struct Terms;
template <>
struct Terms<double> {
    static constexpr std::size_t sine = 10, exponential = 15;
};
template <>
struct Terms<float> {
    static constexpr std::size_t sine = 7, exponential = 10;
};

// The sine of 0 <= x <= pi / 2, given as the sum of two numbers, the second one small.
template <class Result>
inline Vec<double> sine(Vec<double> high, Vec<double> low)
{
    const Vec<double> x = high + low, square = x * x;
    Vec<double> beside = x * square * polynomial(sineSeries<Terms<Result>::sine>, square);
    if constexpr (std::is_same_v<Result, double>) {
        const Vec<double> lost = low - (x - high); // in the first sum; times the cosine, roughly
        beside = beside + lost * (1 - 0.5 * square);
    }
    return x + beside;
}

// The exponential of -700 < x < 700: 2^k times that of the rest, |rest| <= ln 2 / 2.
template <class Result>
inline Vec<double> exponential(Vec<double> x)
{
    // Adding this leaves the nearest integer in the low bits.
    constexpr double toInteger = 0x1.8p52;
    constexpr double ln2High = 0x1.62e42feep-1; // times k without rounding
    constexpr auto ln2Low = static_cast<double>(std::numbers::ln2_v<long double> - ln2High);
    const Vec<double> shifted = x * std::numbers::log2e + toInteger;
    const Vec<double> k = shifted - toInteger;
    const Vec<double> rest = x - k * ln2High - k * ln2Low;
    const Vec<double> p = polynomial(exponentialSeries<Terms<Result>::exponential>, rest);
    return bitsAs<double>(bitsAs<std::int64_t>(p) + (bitsAs<std::int64_t>(shifted) << 52));
}

} // namespace zors::ZORS_VARIANT
