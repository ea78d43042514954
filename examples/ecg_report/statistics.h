// The figures of a stretch of signal.
#pragma once

#include "recording.h"

#include <optional>

namespace ecg {

struct Range {
    Zor32f min;
    Zor32f max;
};

struct Statistics {
    Zor32f mean;
    std::optional<Zor32f> stdDev; // one sample has none
    Range range;
};

Range rangeOf(std::span<const Zor32f> signal);
Statistics statisticsOf(std::span<const Zor32f> signal);

// The sum of the squares.
double energyOf(const Channel& signal);

// Makes the mean of the channel 0.
void removeOffset(Channel& channel);

} // namespace ecg
