// What is done to every channel of a file.
#pragma once

#include "ratio.h"

#include <vector>

namespace wav {

struct Filter {
    std::vector<Zor64f> taps; // at ratio.up times the rate of the source
    Ratio ratio;
    int delay = 0; // in samples of that rate; taken out of the result
};

} // namespace wav
