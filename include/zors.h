/**
 * @file
 * Everything that the library exports. The headers below declare functions only; they may be included again
 * under another meaning of ZORSAPI and therefore have no include guards.
 */
#include <zortypes.h>

#include <zors/filter/convolution.h>
#include <zors/filter/fir.h>
#include <zors/filter/fir_design.h>
#include <zors/filter/fir_direct.h>
#include <zors/filter/fir_multirate.h>
#include <zors/filter/fir_multirate_direct.h>
#include <zors/filter/fir_state.h>
#include <zors/filter/iir.h>
#include <zors/filter/iir_design.h>
#include <zors/filter/iir_direct.h>
#include <zors/filter/iir_state.h>

#include <zors/frame/memory.h>
#include <zors/frame/version.h>

#include <zors/generate/random.h>
#include <zors/generate/tone.h>
#include <zors/generate/windows.h>

#include <zors/transform/dft.h>
#include <zors/transform/dft_out_of_order.h>
#include <zors/transform/dft_spec.h>
#include <zors/transform/fft_complex.h>
#include <zors/transform/fft_real.h>
#include <zors/transform/fft_spec.h>
#include <zors/transform/goertzel.h>
#include <zors/transform/hilbert.h>
#include <zors/transform/packed.h>

#include <zors/vector/arithmetic.h>
#include <zors/vector/arithmetic_scaled.h>
#include <zors/vector/bits.h>
#include <zors/vector/companding.h>
#include <zors/vector/complex.h>
#include <zors/vector/convert.h>
#include <zors/vector/copy.h>
#include <zors/vector/division.h>
#include <zors/vector/pack.h>
#include <zors/vector/reorder.h>
#include <zors/vector/rows.h>
#include <zors/vector/sequence.h>
#include <zors/vector/set.h>
#include <zors/vector/statistics.h>
