// Filters for a band, as the library designs them.
#pragma once

#include "band.h"
#include "filter.h"

#include <optional>

namespace wav {

// Windowed sincs under a Hamming window. The phase is linear and the delay taken out, so that the signal keeps its
// place. Gains are 1/2 at the edges; the stop band lies 53 dB down from 1.65 rate / taps beyond them. An odd number of
// taps; without one as many as make these transitions a quarter of the narrowest band.
Filter firFilter(const Band& band, std::optional<int> taps, int rate);

// Butterworth, or Chebyshev of type I where a ripple of the pass band is given, in dB. A band is passed by a high-pass
// filter and a low-pass filter behind it.
Filter iirFilter(const Band& band, int order, std::optional<double> ripple, int rate);

} // namespace wav
