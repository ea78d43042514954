// The windows by their formulas in extended precision, one weight at a time.
#pragma once

#include <algorithm>
#include <cmath>
#include <numbers>

namespace zors::test {

using Wide = long double;

constexpr Wide pi = std::numbers::pi_v<Wide>;

// The weight of the element n places from the nearer end; len above 1.
inline Wide cosine(int n, int len, int multiple = 1)
{
    return std::cos(2 * pi * multiple * n / (len - 1));
}

inline Wide bartlett(int n, int len)
{
    return Wide(2) * n / (len - 1);
}

inline Wide hamming(int n, int len)
{
    return 0.54L - 0.46L * cosine(n, len);
}

inline Wide hann(int n, int len)
{
    return 0.5L - 0.5L * cosine(n, len);
}

inline Wide blackman(int n, int len, Wide alpha)
{
    return (alpha + 1) / 2 - 0.5L * cosine(n, len) - alpha / 2 * cosine(n, len, 2);
}

inline Wide optimalAlpha(int len)
{
    return -std::pow(0.5L / std::cos(pi / (len - 1)), 2);
}

inline Wide power(Wide x, int n)
{
    return n == 0 ? 1 : x * power(x, n - 1);
}

// Abramowitz and Stegun 9.8.1 and 9.8.2, term by term.
inline Wide besselI0(Wide x)
{
    constexpr Wide below[] = {1, 3.5156229L, 3.0899424L, 1.2067492L, 0.2659732L, 0.0360768L, 0.0045813L};
    constexpr Wide above[] = {0.39894228L,  0.01328592L, 0.00225319L,  -0.00157565L, 0.00916281L,
                              -0.02057706L, 0.02635537L, -0.01647633L, 0.00392377L};
    Wide sum = 0;
    if (x < 3.75L) {
        for (int k = 0; k < 7; ++k) sum += below[k] * power(x / 3.75L, 2 * k);
        return sum;
    }
    for (int k = 0; k < 9; ++k) sum += above[k] * power(3.75L / x, k);
    return std::exp(x) / std::sqrt(x) * sum;
}

inline Wide kaiser(int n, int len, Wide alpha)
{
    const Wide a = std::abs(alpha);
    return besselI0(a * std::sqrt(Wide(n) * (len - 1 - n))) / besselI0(a * (len - 1) / 2);
}

// A shape over the whole window: mirrored, and 1 at the centre.
template <class Shape>
Wide weightAt(Shape shape, int n, int len)
{
    if (2 * n == len - 1) return 1;
    return shape(std::min(n, len - 1 - n), len);
}

} // namespace zors::test
