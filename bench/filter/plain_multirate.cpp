#include "filter/plain_multirate.h"

namespace zors::bench {
namespace {

template <class Count>
void resample(const Zor32f* x, Zor32f* y, int iterations, const Polyphase& phases, Count perPhase)
{
    int phase = 0;
    for (int j = 0; j < iterations * phases.up; ++j) {
        const Zor32f* row = phases.rows + phase * perPhase;
        Zor32f sum = 0;
        for (int q = 0; q < perPhase; ++q) sum += row[q] * x[q];
        y[j] = sum;
        phase += phases.down;
        while (phase >= phases.up) phase -= phases.up, ++x;
    }
}

struct By24 {
    constexpr operator int() const { return 24; }
};

} // namespace

const PlainMultirateLoops PLAIN_LOOPS = {
    [](const Zor32f* x, Zor32f* y, int n, const Polyphase& p) { resample(x, y, n, p, p.perPhase); },
    [](const Zor32f* x, Zor32f* y, int n, const Polyphase& p) { resample(x, y, n, p, By24{}); },
};

} // namespace zors::bench
