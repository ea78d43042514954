// The low-pass filter of a rate conversion.
#pragma once

#include "filter.h"

namespace wav {

// Passes 0.91 of the lower of the two Nyquist frequencies within 0.0001 dB, and from that frequency on holds images
// and aliases 100 dB down. At a source of 44,100 Hz that is 20 kHz.
Filter rateConversion(const Ratio& ratio);

} // namespace wav
