// What is done to every channel of a file.
#pragma once

#include "ratio.h"

#include <string>
#include <vector>

namespace wav {

// A filter with feedback, H(z) = (b[0] + b[1] z^-1 + ...) / (a[0] + a[1] z^-1 + ...).
struct Recursive {
    int order;
    std::vector<Zor64f> taps; // order + 1 of b, then as many of a
};

// One without feedback, and those with feedback behind it, one after another.
struct Filter {
    std::vector<Zor64f> taps = {1}; // at ratio.up times the rate of the source
    Ratio ratio = {};
    int delay = 0; // in samples of that rate; taken out of the result
    std::vector<Recursive> recursive = {};

    std::string name = {};          // for a picture's title
    std::vector<double> edges = {}; // of the band, in Hz
};

} // namespace wav
