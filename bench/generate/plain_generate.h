// The loops that a user would write, and leave to the compiler.
#pragma once

#include <zortypes.h>

namespace zors::bench {

struct PlainGenerateLoops {
    void (*hann32f)(Zor32f* d, int n);
    void (*hann64f)(Zor64f* d, int n);
    void (*hann16s)(Zor16s* d, int n);
    void (*hann32fc)(Zor32fc* d, int n);
    void (*blackman32f)(Zor32f* d, int n);
    void (*kaiser32f)(const Zor32f* s, Zor32f* d, int n);
    void (*kaiser64f)(const Zor64f* s, Zor64f* d, int n);
    void (*uniform32f)(Zor32f* d, int n);
    void (*uniform16s)(Zor16s* d, int n);
    void (*gauss32f)(Zor32f* d, int n);
};

extern const PlainGenerateLoops gcc_loops, clang_loops;

// The beta of all Kaiser windows here.
inline constexpr double beta = 8.6;

} // namespace zors::bench
