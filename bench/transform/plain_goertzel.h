// The Goertzel recurrence as it stands in textbooks, in the precision of the elements.
#pragma once

#include <zortypes.h>

namespace zors::bench {

struct PlainGoertzelLoops {
    void (*one32f)(const Zor32f* s, int n, Zor32fc* to, Zor32f frequency);
    void (*one64f)(const Zor64f* s, int n, Zor64fc* to, Zor64f frequency);
    void (*one32fc)(const Zor32fc* s, int n, Zor32fc* to, Zor32f frequency);
    void (*one64fc)(const Zor64fc* s, int n, Zor64fc* to, Zor64f frequency);
    void (*one16s)(const Zor16s* s, int n, Zor16sc* to, Zor32f frequency);
    void (*two32f)(const Zor32f* s, int n, Zor32fc* to, const Zor32f* frequencies);
    // The same with the sum bracketed so that a sample waits for one product and one addition at once.
    void (*shortChain32f)(const Zor32f* s, int n, Zor32fc* to, Zor32f frequency);
};

extern const PlainGoertzelLoops gcc_loops, clang_loops;

} // namespace zors::bench
