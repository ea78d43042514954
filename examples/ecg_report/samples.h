// From the 16-bit samples of a file to channels in millivolts, and back.
#pragma once

#include "recording.h"

namespace ecg {

// `frames` holds one sample of each channel in turn.
std::vector<Channel> toMillivolts(const Vector<Zor16s>& frames, int channels);

// Both round to the nearest sample value and saturate.
Vector<Zor16s> samplesOf(const Channel& channel);
Vector<Zor16s> toFrames(const std::vector<Channel>& channels);

} // namespace ecg
