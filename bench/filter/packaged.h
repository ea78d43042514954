// Other libraries' FIR filters, as streams.
#pragma once

#include "filter/stream.h"

#include <zortypes.h>

namespace zors::bench {

// A dot product of VOLK's for every output.
StreamMaker<Zor32f, Zor32f> volk32f();
StreamMaker<Zor32fc, Zor32fc> volk32fc();
// The same for one sample at a time, over a delay line that holds every sample twice.
StreamMaker<Zor32f, Zor32f> volkOne();

// firfilt of liquid-dsp, in blocks and one sample at a time.
StreamMaker<Zor32f, Zor32f> liquid32f();
StreamMaker<Zor32fc, Zor32fc> liquid32fc();
StreamMaker<Zor32f, Zor32f> liquidOne();

// fftfilt of liquid-dsp, which takes blocks of one length; and overlap-save on FFTW's real transforms, planned with
// MEASURE. Both at the length that is fastest for the filter and the block.
StreamMaker<Zor32f, Zor32f> liquidTransformed();
StreamMaker<Zor32f, Zor32f> overlapSave();

} // namespace zors::bench
