// Recursive filters as a user would write them, in loops of the transposed direct form II.
#pragma once

#include <zortypes.h>

namespace zors::bench {

// What the loops whose number of sections, order or number of channels is known are compiled for.
inline constexpr int knownSections = 4, knownOrder = 8, knownChannels = 8;

// A block through sections with the taps b0, b1, b2, a1, a2 and two numbers each; or through a filter of any order,
// with the taps b0 ... bN, a1 ... aN and N numbers. In direct form 1 a section has four numbers.
template <class T, class H = T>
using IirLoop = void(const T* x, T* y, int n, const H* taps, H* delay, int count);

// One sample through sections.
template <class T>
using IirOneLoop = T(T x, const T* taps, T* delay, int sections);

// Every loop with its count at run time, and known.
template <class T, class H = T>
struct PlainCascades {
    IirLoop<T, H>*bySample, *bySampleKnown, *bySection;
};

template <class T>
struct PlainOrders {
    IirLoop<T>*plain, *known;
};

struct PlainIirLoops {
    PlainCascades<Zor32f> cascade32f;
    PlainCascades<Zor64f> cascade64f;
    PlainCascades<Zor32fc> cascade32fc;
    PlainCascades<Zor64fc> cascade64fc;
    // Converted to the type of the taps, filtered as above, converted back.
    PlainCascades<Zor16s, Zor32f> cascade32f16s;
    PlainCascades<Zor16s, Zor64f> cascade64f16s;
    PlainOrders<Zor32f> order32f;
    PlainOrders<Zor64f> order64f;
    PlainCascades<Zor32f> directForm1;

    IirOneLoop<Zor32f>*one32f, *one32fKnown;
    IirOneLoop<Zor64f>*one64f, *one64fKnown;

    // Channels through sections of the same number, in lanes across the channels: taps and numbers lie channel by
    // channel.
    void (*channels)(const Zor32f* const* x, Zor32f* const* y, int n, const Zor32f* taps, Zor32f* delay,
                     int sections);
};

extern const PlainIirLoops gcc_loops, clang_loops;

} // namespace zors::bench
