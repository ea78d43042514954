// The loops that a user would write, and leave to the compiler.
#pragma once

#include <zortypes.h>

namespace zors::bench {

struct PlainCopyLoops {
    void (*copy8u)(const Zor8u* s, Zor8u* d, int n);
    void (*copy32f)(const Zor32f* s, Zor32f* d, int n);
    void (*copy64fc)(const Zor64fc* s, Zor64fc* d, int n);
    void (*move32f)(const Zor32f* s, Zor32f* d, int n);
    void (*zero32f)(Zor32f* d, int n);
    void (*set8u)(Zor8u v, Zor8u* d, int n);
    void (*set32f)(Zor32f v, Zor32f* d, int n);
    void (*set64fc)(Zor64fc v, Zor64fc* d, int n);
    void (*flip8u)(const Zor8u* s, Zor8u* d, int n);
    void (*flip16u)(const Zor16u* s, Zor16u* d, int n);
    void (*flip32f)(const Zor32f* s, Zor32f* d, int n);
    void (*flip64fc)(const Zor64fc* s, Zor64fc* d, int n);
    void (*flipInPlace32f)(Zor32f* d, int n);
    void (*swapBytes16u)(const Zor16u* s, Zor16u* d, int n);
    void (*swapBytes24u)(const Zor8u* s, Zor8u* d, int n);
    void (*swapBytes32u)(const Zor32u* s, Zor32u* d, int n);
    void (*swapBytes64u)(const Zor64u* s, Zor64u* d, int n);
    void (*realToCplx16s)(const Zor16s* re, const Zor16s* im, Zor16sc* d, int n);
    void (*realToCplx32f)(const Zor32f* re, const Zor32f* im, Zor32fc* d, int n);
    void (*cplxToReal16sc)(const Zor16sc* s, Zor16s* re, Zor16s* im, int n);
    void (*cplxToReal32fc)(const Zor32fc* s, Zor32f* re, Zor32f* im, int n);
    void (*cplxToReal64fc)(const Zor64fc* s, Zor64f* re, Zor64f* im, int n);
    void (*real32fc)(const Zor32fc* s, Zor32f* d, int n);
};

extern const PlainCopyLoops gcc_loops, clang_loops;

} // namespace zors::bench
