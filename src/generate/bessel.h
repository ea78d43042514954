// The Kaiser window by the modified Bessel function of the first kind, order zero: Abramowitz and Stegun, Handbook
// of Mathematical Functions, 1964, 9.8.1 and 9.8.2.
#pragma once

#include "series.h"
#include "weigh.h"

#include "simd/convert.h"
#include "simd/root.h"

namespace zors::ZORS_VARIANT {

inline constexpr double besselBoundary = 3.75;

inline Vec<double> besselBelow(Vec<double> x)
{
    constexpr std::array c{1.0, 3.5156229, 3.0899424, 1.2067492, 0.2659732, 0.0360768, 0.0045813};
    const Vec<double> t = x * (1 / besselBoundary);
    return polynomial(c, t * t);
}

template <class Result>
inline Vec<double> besselAbove(Vec<double> x)
{
    constexpr std::array c{0.39894228,  0.01328592, 0.00225319,  -0.00157565, 0.00916281,
                           -0.02057706, 0.02635537, -0.01647633, 0.00392377};
    return exponential<Result>(x) / squareRoot(x) * polynomial(c, besselBoundary / x);
}

// I0 of lanes that do not fall.
template <class Result>
inline Vec<double> besselI0(Vec<double> x)
{
    if (x[0] >= besselBoundary) return besselAbove<Result>(x);
    if (x[lanes<double> - 1] < besselBoundary) return besselBelow(x);
    return select(x < besselBoundary, besselBelow(x), besselAbove<Result>(x));
}

template <class W>
class Kaiser {
public:
    Kaiser(int len, double alpha) : alpha_(alpha), last_(len - 1), half_(last_ / 2)
    {
        norm_ = 1 / besselI0<double>(splat(alpha * half_))[0];
    }

    auto from(int first) const
    {
        return [*this, first](int n) {
            const Vec<double> index = indices(first + n);
            const Vec<double> m =
                select(index < half_, index, splat(half_)); // no lane falls, also past the centre
            return besselI0<W>(alpha_ * squareRoot(m * (last_ - m))) * norm_;
        };
    }

private:
    double alpha_, last_, half_, norm_;
};

} // namespace zors::ZORS_VARIANT
