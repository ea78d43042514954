// A polyphase filter as a user would write it, in loops, and leave to the compiler.
#pragma once

#include <zortypes.h>

namespace zors::bench {

// Taps in phases: row p has h[p + U q] at q = perPhase - 1 ... 0, so that it is the oldest sample's that comes first.
struct Polyphase {
    int up, down, perPhase;
    const Zor32f* rows;
};

struct PlainMultirateLoops {
    // x begins with the perPhase - 1 samples before the first one; an iteration takes `down` of them and gives `up`.
    void (*resample)(const Zor32f* x, Zor32f* y, int iterations, const Polyphase& phases);
    // The same with the number of taps a phase known to the compiler: 24.
    void (*resampleBy24)(const Zor32f* x, Zor32f* y, int iterations, const Polyphase& phases);
};

extern const PlainMultirateLoops gcc_loops, clang_loops;

} // namespace zors::bench
