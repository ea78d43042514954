// A rational factor between two sampling rates.
#pragma once

#include <zortypes.h>

#include <string>

namespace wav {

struct Ratio {
    int up = 1;
    int down = 1; // without a common divisor

    // The number of samples, or the rate, that `value` becomes: to the nearest, halves up.
    Zor64s of(Zor64s value) const { return (2 * value * up + down) / (2 * down); }
};

// From "L/M", or "L" for L/1.
Ratio parseRatio(const std::string& text);

// From the rate of the source to another, given in hertz.
Ratio ratioTo(const std::string& hertz, int rate);

} // namespace wav
