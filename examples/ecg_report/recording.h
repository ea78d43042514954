// A recording as the program works on it. Every step of the report takes one of these or a channel of it.
#pragma once

#include "vector.h"

#include <string>
#include <vector>

namespace ecg {

using Channel = Vector<Zor32f>; // millivolts

struct Recording {
    int rate;                      // samples a second
    std::vector<Channel> channels; // of equal length, at least one sample

    int len() const { return channels.front().len(); }
    double seconds() const { return static_cast<double>(len()) / rate; }

    // What stands before the title of a channel's picture.
    std::string prefix(std::size_t channel) const
    {
        return channels.size() == 1 ? "" : "channel " + std::to_string(channel + 1) + ", ";
    }
};

} // namespace ecg
