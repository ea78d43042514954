// Reductions as a user would write them, in loops and with Eigen, and leave to the compiler: it may reorder the terms.
#pragma once

#include <zortypes.h>

namespace zors::bench {

struct PlainSumLoops {
    void (*sum32f)(const Zor32f* s, int n, Zor32f* sum);
    void (*sumFast32f)(const Zor32f* s, int n, Zor32f* sum);
    void (*sum64f)(const Zor64f* s, int n, Zor64f* sum);
    void (*sum32fc)(const Zor32fc* s, int n, Zor32fc* sum);
    void (*sumFast32fc)(const Zor32fc* s, int n, Zor32fc* sum);
    void (*sum64fc)(const Zor64fc* s, int n, Zor64fc* sum);
    void (*sum16s)(const Zor16s* s, int n, Zor32s* sum);
    void (*sum32s)(const Zor32s* s, int n, Zor32s* sum);
    void (*sum16sc)(const Zor16sc* s, int n, Zor32sc* sum);
    void (*moments32f)(const Zor32f* s, int n, Zor32f* mean, Zor32f* deviation);
    void (*momentsFast32f)(const Zor32f* s, int n, Zor32f* mean, Zor32f* deviation);
    void (*moments64f)(const Zor64f* s, int n, Zor64f* mean, Zor64f* deviation);
    void (*moments16s)(const Zor16s* s, int n, Zor32s* mean, Zor32s* deviation);
    void (*minMax32f)(const Zor32f* s, int n, Zor32f* least, Zor32f* most);

    void (*eigenSum32f)(const Zor32f* s, int n, Zor32f* sum);
    void (*eigenSumFast32f)(const Zor32f* s, int n, Zor32f* sum);
    void (*eigenSum64f)(const Zor64f* s, int n, Zor64f* sum);
};

extern const PlainSumLoops gcc_loops, clang_loops;

} // namespace zors::bench
