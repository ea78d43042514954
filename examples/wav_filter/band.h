// The frequencies that a filter passes or stops.
#pragma once

#include <string>
#include <vector>

namespace wav {

struct Band {
    enum class Kind { lowPass, highPass, bandPass, bandStop };
    Kind kind;
    std::vector<double> edges; // in Hz: one, or the lower and the upper

    std::string name() const;
};

// From "HZ" or "LOW:HIGH", for a signal of `rate` samples a second. `option` is what the user calls it.
Band parseBand(Band::Kind kind, const std::string& option, const std::string& text, int rate);

} // namespace wav
