// FIR filters as a user would write them, in loops, and leave to the compiler: it may reorder the terms of a sum.
#pragma once

#include <zortypes.h>

namespace zors::bench {

// 32-bit taps stand for r * 2^-fraction.
inline constexpr int fraction = 20;

// The longest filter of integers.
inline constexpr int mostIntegerTaps = 128;

// y[i] = sum over j of r[j] * x[i + j]: the L taps are reversed, x begins with the L - 1 samples of before.
template <class T, class H = T>
using FirLoop = void(const T* x, T* y, int n, const H* r, int L);

// One sample through a delay line of 2 L samples, which holds each of them twice.
using FirOneLoop = Zor32f(Zor32f x, const Zor32f* r, int L, Zor32f* line, int* index);

struct PlainFirLoops {
    // An output at a time.
    FirLoop<Zor32f>* plain32f;
    FirLoop<Zor64f>* plain64f;
    FirLoop<Zor32fc>* plain32fc;
    FirLoop<Zor64fc>* plain64fc;
    // As many outputs as stay in registers, while the taps go by.
    FirLoop<Zor32f>* blocked32f;
    FirLoop<Zor64f>* blocked64f;
    FirLoop<Zor32fc>* blocked32fc;
    FirLoop<Zor64fc>* blocked64fc;
    // Converted to the type of the taps, double where that is a 32-bit integer; filtered as above; converted back.
    FirLoop<Zor16s, Zor32f>*plain32f16s, *blocked32f16s;
    FirLoop<Zor16s, Zor64f>*plain64f16s, *blocked64f16s;
    FirLoop<Zor16s, Zor32s>*plain32s16s, *blocked32s16s;
    // The exact sum of 64 bits.
    FirLoop<Zor16s, Zor32s>* exact32s16s;

    FirOneLoop *one, *oneInOrder;
    // Its products in single, their sum in double precision.
    FirOneLoop* oneWide;
};

extern const PlainFirLoops gcc_loops, clang_loops;

} // namespace zors::bench
