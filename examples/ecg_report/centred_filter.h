// Filters without a delay, for signals that are there as a whole.
#pragma once

#include "recording.h"

namespace ecg {

// The middle one of an odd number of taps stands for the sample itself: those before it weigh what comes later. The
// signal goes on at both ends as its mirror image.
Channel filteredAboutCentre(const Channel& channel, const Vector<Zor32f>& taps);

} // namespace ecg
