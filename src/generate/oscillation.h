// Cosine and sine of an angle that grows by the same step from sample to sample.
//
// Angles are fractions of a turn in 64 bits, so that whole turns fall off by themselves: the angle of any sample is
// as exact as that of the first one, and nothing drifts.
#pragma once

#include "series.h"
#include "weigh.h"

namespace zors::ZORS_VARIANT {

// cos x = 1 - x^2 / 2 + x^4 (1/4! - x^2 / 6! + ...).
template <std::size_t Terms>
inline constexpr auto cosineSeries = [] {
    std::array<double, Terms> c{};
    long double term = -0.5L;
    for (std::size_t k = 0; k < Terms; ++k) {
        const auto n = static_cast<long double>(2 * k + 4);
        term /= -n * (n - 1);
        c[k] = static_cast<double>(term);
    }
    return c;
}();

// The cosine of |x| <= pi / 4, given as the sum of two numbers, the second one small.
inline Vec<double> cosine(Vec<double> high, Vec<double> low)
{
    const Vec<double> x = high + low, square = x * x, half = 0.5 * square, most = 1 - half;
    const Vec<double> lost = (1 - most - half) - x * (low - (x - high)); // in the first sums
    return most + (lost + square * square * polynomial(cosineSeries<8>, square));
}

struct CosineAndSine {
    Vec<double> cosine, sine;
};

class Oscillation {
public:
    // The frequency in turns a sample, in [0, 1); the phase in radians, in [0, 2 pi).
    Oscillation(double frequency, double phase)
        : start_(static_cast<std::uint64_t>(phase / radian_ * 0x1p64L)),
          step_(static_cast<std::uint64_t>(frequency * 0x1p64)),
          rest_(frequency * 0x1p64 - static_cast<double>(step_))
    {
    }

    // The angle of a sample in radians, below 2 pi also when it is rounded to its type.
    template <class T>
    T angle(int sample) const
    {
        const auto radians = static_cast<T>(static_cast<long double>(turn(sample)) * 0x1p-64L * radian_);
        return radians < 2 * std::numbers::pi ? radians : 0;
    }

    // Cosine and sine for a stretch of samples, as a function of the index in it: a vector of each from that index
    // on.
    //
    // An angle's upper part has so few bits that its multiples in a stretch, their sums with the first angle, and
    // the products with the upper part of 2 pi are exact.
    auto from(int first) const
    {
        constexpr auto radian = static_cast<double>(radian_);
        return [first = upper(turn(first)), firstRest = radian * lower(turn(first)), step = upper(step_),
                stepRest = radian * (lower(step_) + rest_ * 0x1p-64)](std::ptrdiff_t n) -> CosineAndSine {
            constexpr double toInteger = 0x1.8p52; // adding this leaves the nearest integer in the low bits
            const Vec<double> index = indices(static_cast<int>(n));
            const Vec<double> turns = first + index * step;
            const Vec<double> quarters = 4 * turns + toInteger;
            const Vec<double> eighth = turns - 0.25 * (quarters - toInteger); // between -1/8 and 1/8
            const Vec<double> high = eighth * radianHigh_;
            const Vec<double> low = eighth * radianLow_ + (firstRest + index * stepRest);

            // Every quarter of a turn exchanges the two, and two quarters turn the signs.
            const auto quarter = bitsAs<std::int64_t>(quarters);
            auto s = bitsAs<std::int64_t>(sine<double>(high, low));
            auto c = bitsAs<std::int64_t>(cosine(high, low));
            const auto exchange = (s ^ c) & -(quarter & 1);
            s ^= exchange ^ (quarter & 2) << 62;
            c ^= exchange ^ ((quarter + 1) & 2) << 62;
            return {bitsAs<double>(c), bitsAs<double>(s)};
        };
    }

private:
    static constexpr long double radian_ = 2 * std::numbers::pi_v<long double>; // to a turn
    static constexpr double radianHigh_ = 0x1.922p2, radianLow_ = static_cast<double>(radian_ - radianHigh_);
    static constexpr std::uint64_t lowBits_ = 20;

    static double upper(std::uint64_t turn) { return static_cast<double>(turn >> lowBits_) * 0x1p-44; }
    static double lower(std::uint64_t turn)
    {
        return static_cast<double>(turn & ((std::uint64_t{1} << lowBits_) - 1)) * 0x1p-64;
    }

    std::uint64_t turn(int sample) const
    {
        return start_ + step_ * static_cast<std::uint64_t>(sample) +
               static_cast<std::uint64_t>(rest_ * sample);
    }

    // In units of 2^-64 turns.
    std::uint64_t start_, step_;
    double rest_; // of the step, below 1
};

} // namespace zors::ZORS_VARIANT
