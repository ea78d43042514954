// Convolution as a user would write it, in loops: every sample adds the kernel to the outputs.
#pragma once

#include <zortypes.h>

namespace zors::bench {

struct PlainConvolutionLoops {
    void (*of32f)(const Zor32f* a, int n, const Zor32f* b, int m, Zor32f* to);
    void (*of64f)(const Zor64f* a, int n, const Zor64f* b, int m, Zor64f* to);
    // With the exact sum of 64 bits, scaled down by 16 bits.
    void (*of16s)(const Zor16s* a, int n, const Zor16s* b, int m, Zor16s* to);
    void (*cyclic8x8)(const Zor32f* a, const Zor32f* b, Zor32f* to);
};

extern const PlainConvolutionLoops gcc_loops, clang_loops;

} // namespace zors::bench
