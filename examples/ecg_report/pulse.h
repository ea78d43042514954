// The heart rate, from the spectrum of the beats.
#pragma once

#include "recording.h"
#include "welch.h"

#include <optional>

namespace ecg {

struct Pulse {
    Density spectrum;            // of the signal's activity; only its shape has a meaning
    std::optional<double> hertz; // beats a second; none where nothing beats
};

Pulse pulseOf(const Channel& channel, int rate);

} // namespace ecg
