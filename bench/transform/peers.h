// Other libraries' transforms behind one interface.
#pragma once

#include "support/compare.h"

namespace zors::bench {

enum class Shape { complexForward, realForward, realInverse };

// The peers that have a transform of a shape and a length, float or double. Plans are made once, on first use, and
// kept; FFTW's also across runs, in the file that ZORS_FFTW_WISDOM names with f and d behind it.
template <class T>
std::vector<Contender> peersOf(Shape shape);

} // namespace zors::bench
