// Another library's recursive filters, as streams.
#pragma once

#include "filter/iir_stream.h"

#include <zortypes.h>

namespace zors::bench {

// iirfilt of liquid-dsp, in blocks and one sample at a time.
IirMaker<Zor32f, Zor32f> liquidIir32f();
IirMaker<Zor32fc, Zor32fc> liquidIir32fc();
IirMaker<Zor32f, Zor32f> liquidIirOne();

} // namespace zors::bench
