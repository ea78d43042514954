// Arithmetic as a user would write it, in loops and with Eigen, and leave to the compiler.
#pragma once

#include <zortypes.h>

namespace zors::bench {

template <class T>
using TwoSources = void (*)(const T* a, const T* b, T* d, int n);
template <class T>
using WithConstant = void (*)(const T* s, T v, T* d, int n);

struct PlainArithmeticLoops {
    TwoSources<Zor32f> add32f, mul32f, div32f, addProduct32f;
    TwoSources<Zor64f> add64f;
    TwoSources<Zor32fc> mul32fc;
    WithConstant<Zor32f> mulC32f;

    // The sum or product scaled by a half, or by 2^-15, with ties to even, and saturated.
    TwoSources<Zor16s> addHalved16s, mul16s, mulFractional16s, divide16s;
    TwoSources<Zor16s> add16s;
    TwoSources<Zor8u> addHalved8u;
    TwoSources<Zor32s> addHalved32s;
    TwoSources<Zor16sc> mulFractional16sc;

    TwoSources<Zor32f> eigenAdd32f, eigenMul32f;
    TwoSources<Zor32fc> eigenMul32fc;
};

extern const PlainArithmeticLoops gcc_loops, clang_loops;

} // namespace zors::bench
