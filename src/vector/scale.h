// The factor 2^-scaleFactor for floating-point elements.
#pragma once

#include <zortypes.h>

#include <algorithm>
#include <cmath>

namespace zors::ZORS_VARIANT {

// Two factors, so that neither leaves the range of a normal float: multiplied one after the other they round
// once at the most. Beyond the limits no float and no 16-bit integer has a result that still changes.
class Scale {
public:
    explicit Scale(int scaleFactor)
    {
        const int exponent = -std::clamp(scaleFactor, -220, 220);
        const int first = std::clamp(exponent, -100, 100);
        first_ = std::ldexp(1.0f, first);
        second_ = std::ldexp(1.0f, exponent - first);
    }

    template <class V>
    V operator()(V v) const
    {
        return v * first_ * second_;
    }

private:
    Zor32f first_;
    Zor32f second_;
};

} // namespace zors::ZORS_VARIANT
