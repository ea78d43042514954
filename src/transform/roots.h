// Roots of unity of any order.
#pragma once

#include "butterfly.h"

#include <cmath>
#include <cstdint>
#include <numbers>

namespace zors::ZORS_VARIANT {

// e^(-2 pi i k / n), k not negative, 4 n below 2^63, from an angle of at most pi / 4, whose numerator is exact.
template <class T>
inline Cx<T> rootOfUnity(std::int64_t k, std::int64_t n)
{
    k %= n;
    const std::int64_t quarters = (8 * k / n + 1) / 2; // to nearest
    const double angle =
        2 * std::numbers::pi * (static_cast<double>(4 * k - quarters * n) / (4 * static_cast<double>(n)));
    const T cosine = static_cast<T>(std::cos(angle)), sine = static_cast<T>(std::sin(angle));
    switch (quarters % 4) {
    case 0:
        return {cosine, -sine};
    case 1:
        return {-sine, -cosine};
    case 2:
        return {-cosine, sine};
    default:
        return {sine, cosine};
    }
}

} // namespace zors::ZORS_VARIANT
