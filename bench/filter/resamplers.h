// Other libraries' resamplers, as streams, each at the quality that is nearest to 24 taps a phase.
#pragma once

#include "filter/resample.h"

namespace zors::bench {

// A dot product of VOLK's for every output.
Resampler volkPolyphase();
// liquid-dsp: the rational resampler, and the decimator where the rate is 1/M, with the taps of the rate.
Resampler liquidRational();
Resampler liquidDecimator();
// liquid-dsp: any rate, 24 taps a phase, 64 phases and the line between them; and in stages, 60 dB.
Resampler liquidArbitrary();
Resampler liquidStages();
// Quality 2, 32 samples long; lowering the rate by 8, where the filters are longer by that, quality 0: 64 samples.
Resampler speex();
// SINC_FASTEST: 39 samples, lowering the rate by 8 280; the line between the entries of a table.
Resampler samplerate();
// SOXR_LQ, 16 bits with a wide transition: 43 samples, lowering the rate by 8 360.
Resampler soxrLow();

} // namespace zors::bench
