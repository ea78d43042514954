// Resampling as a stream: every call takes the next block. Before a contender is timed, it resamples a sine: the number
// of its outputs must be that of the rate, their size the sine's, and with the filter that was given, they themselves
// its sums.
#pragma once

#include "filter/stream.h"

#include <zortypes.h>

namespace zors::bench {

// The filter of a benchmark: a low-pass filter at the lower one of both rates, with 24 taps a phase, gain 1.
struct Rate {
    int up, down;
    std::vector<Zor32f> taps;

    int perPhase() const { return (static_cast<int>(taps.size()) + up - 1) / up; }
    double ratio() const { return static_cast<double>(up) / down; }
};

Rate makeRate(int up, int down, int taps);

// The taps in phases: row p has h[p + up q], the last of them first, for samples that lie oldest first.
std::vector<Zor32f> phaseRows(const Rate& rate);

// A run resamples the samples in `in` into `out` and tells how many outputs there are.
struct Resampling {
    std::shared_ptr<Zor32f[]> in, out;
    std::function<int()> run;
};

struct Resampler {
    const char* name;
    // Whether it filters by the taps, or by some of its own.
    enum { byTaps, byItsOwn } filter;
    std::function<Resampling(const Rate& rate, int block)> make;
};

// Room for the outputs of a block, and for those that are late.
inline int roomFor(const Rate& rate, int block)
{
    return static_cast<int>(block * rate.ratio()) + 16384;
}

// The first contender is ours.
void compareResamplers(const std::string& operation, const Rate& rate, int block,
                       const std::vector<Resampler>& resamplers);

} // namespace zors::bench
