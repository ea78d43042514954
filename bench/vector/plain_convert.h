// The loops that a user would write, and leave to the compiler.
#pragma once

#include <zortypes.h>

namespace zors::bench {

// Scaled loops take the factor 2^-scaleFactor, or the shift where the elements are integers.
template <class S, class D, class... Scale>
using Loop = void (*)(const S* s, D* d, int n, Scale...);

struct PlainConvertLoops {
    Loop<Zor8s, Zor16s> convert8s16s;
    Loop<Zor16s, Zor32s> convert16s32s;
    Loop<Zor8s, Zor32f> convert8s32f;
    Loop<Zor8u, Zor32f> convert8u32f;
    Loop<Zor16s, Zor32f> convert16s32f;
    Loop<Zor16u, Zor32f> convert16u32f;
    Loop<Zor32s, Zor32f> convert32s32f;
    Loop<Zor32s, Zor64f> convert32s64f;
    Loop<Zor64s, Zor64f> convert64s64f;
    Loop<Zor32f, Zor64f> convert32f64f;
    Loop<Zor64f, Zor32f> convert64f32f;
    Loop<Zor8u, Zor32s> convert24s32s;
    Loop<Zor8u, Zor32f> convert24s32f;

    Loop<Zor16s, Zor32f, float> scaled16s32f;
    Loop<Zor32s, Zor32f, float> scaled32s32f;
    Loop<Zor16s, Zor64f, double> scaled16s64f;
    Loop<Zor32s, Zor64f, double> scaled32s64f;

    Loop<Zor32s, Zor16s> convert32s16s;
    Loop<Zor32s, Zor16s, int> scaled32s16s;
    Loop<Zor16s, Zor8s, int> scaled16s8s;
    Loop<Zor64s, Zor32s, int> scaled64s32s;
    Loop<Zor32s, Zor8u, int> scaled32s24s;

    Loop<Zor32f, Zor16s> truncated32f16s;
    Loop<Zor32f, Zor16s> nearest32f16s;
    Loop<Zor32f, Zor16s> away32f16s;
    Loop<Zor32f, Zor16s, float> scaled32f16s;
    Loop<Zor32f, Zor8s> nearest32f8s;
    Loop<Zor32f, Zor8u> nearest32f8u;
    Loop<Zor32f, Zor16u> nearest32f16u;
    Loop<Zor32f, Zor32s> nearest32f32s;
    Loop<Zor32f, Zor8u> nearest32f24s;
    Loop<Zor64f, Zor16s> nearest64f16s;
    Loop<Zor64f, Zor32s> nearest64f32s;
    Loop<Zor64f, Zor64s> nearest64f64s;

    // By Eigen, which has vectors of these.
    Loop<Zor16f, Zor32f> convert16f32f;
    Loop<Zor32f, Zor16f> convert32f16f;
    Loop<Zor16s, Zor16f> convert16s16f;
    Loop<Zor16f, Zor16s> convert16f16s;

    // By tables, or by the bits of integers.
    Loop<Zor8u, Zor16s> aLawToLin16s;
    Loop<Zor8u, Zor32f> aLawToLin32f;
    Loop<Zor16s, Zor8u> linToALaw16s;
    Loop<Zor16s, Zor8u> linToMuLaw16s;
    Loop<Zor32f, Zor8u> linToALaw32f;
    Loop<Zor32f, Zor8u> linToMuLaw32f;
    Loop<Zor8u, Zor8u> aLawToMuLaw;

    // Two channels.
    Loop<Zor32f, Zor16s> join32f16s;
    Loop<Zor16s, Zor32f> split16s32f;
    Loop<Zor32f, Zor8u> join32f24s;
    Loop<Zor8u, Zor32f> split24s32f;
    void (*packBits)(const Zor32u* s, const Zor32s* bits, Zor8u* d, int n);
};

extern const PlainConvertLoops gcc_loops, clang_loops;

} // namespace zors::bench
