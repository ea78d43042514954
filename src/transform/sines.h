// The factors of a transform, from a quarter of a sine wave.
#pragma once

#include "butterfly.h"

#include <cmath>
#include <cstddef>
#include <numbers>

namespace zors::ZORS_VARIANT {

// Fills in t[k] = sin(2 pi k / N) for k = 0..N/4, N = 2^order. No angle passes pi / 4.
template <class T>
inline void fillQuarterWave(int order, T* t)
{
    const std::ptrdiff_t quarter = order < 2 ? 0 : std::ptrdiff_t{1} << (order - 2);
    const double step = 2 * std::numbers::pi / static_cast<double>(std::ptrdiff_t{1} << order);
    t[0] = 0;
    for (std::ptrdiff_t k = 1; k <= quarter; ++k)
        t[k] = static_cast<T>(2 * k <= quarter ? std::sin(static_cast<double>(k) * step)
                                               : std::cos(static_cast<double>(quarter - k) * step));
}

template <class T>
class Wave {
public:
    constexpr Wave(int order, const T* quarterWave) : order_(order), sine_(quarterWave) {}

    // e^(-2 pi i k / 2^order), order being at most the table's.
    constexpr Cx<T> operator()(std::ptrdiff_t k, int order) const
    {
        const std::ptrdiff_t quarter = std::ptrdiff_t{1} << (order_ - 2);
        k <<= order_ - order;
        const std::ptrdiff_t at = k & (quarter - 1);
        const T s = sine_[at], c = sine_[quarter - at];
        switch (k / quarter & 3) {
        case 0:
            return {c, -s};
        case 1:
            return {-s, -c};
        case 2:
            return {-c, s};
        default:
            return {s, c};
        }
    }

private:
    int order_;
    const T* sine_;
};

// For the transforms that have no tables: sin(2 pi k / 32).
template <class T>
inline constexpr T sines32[] = {static_cast<T>(0),
                                static_cast<T>(0.19509032201612826785),
                                static_cast<T>(0.38268343236508977173),
                                static_cast<T>(0.55557023301960222474),
                                static_cast<T>(0.70710678118654752440),
                                static_cast<T>(0.83146961230254523708),
                                static_cast<T>(0.92387953251128675613),
                                static_cast<T>(0.98078528040323044913),
                                static_cast<T>(1)};

} // namespace zors::ZORS_VARIANT
