// What is left of a recording after telephone companding.
#pragma once

#include "recording.h"

namespace ecg {

// Signal-to-noise ratios in dB after 8-bit codes and back; infinite where nothing is lost.
struct Transcoding {
    double muLaw;
    double aLaw;
};

Transcoding transcodingOf(const Channel& channel);

} // namespace ecg
