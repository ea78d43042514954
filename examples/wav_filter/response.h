// What a filter does to each frequency.
#pragma once

#include "filter.h"

#include <vector>

namespace wav {

struct Response {
    double step;               // Hz, from 0 to half the sampling rate
    std::vector<double> level; // dB
    std::vector<double> phase; // degrees, from -180 to 180
    std::vector<double> delay; // of groups, in seconds
};

// With the filter's delay taken out, as it is from the result. Frequencies stand `resolution` Hz or less apart, as far
// as memory allows. For filters that keep the sampling rate.
Response responseOf(const Filter& filter, int rate, double resolution);

} // namespace wav
