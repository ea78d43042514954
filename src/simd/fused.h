// Multiply and add, fused where the variant has the instruction. Results therefore differ between variants: for
// kernels that promise an error bound and not bits.
#pragma once

#include "vector.h"

namespace zors::ZORS_VARIANT {

#ifdef __FMA__

#define ZORS_FUSED(T, N, prefix, suffix)                                                                     \
    inline Vec<T, N> mulAdd(Vec<T, N> a, Vec<T, N> b, Vec<T, N> c)                                           \
    {                                                                                                        \
        return (Vec<T, N>)prefix##_fmadd_##suffix(a, b, c);                                                  \
    }                                                                                                        \
    inline Vec<T, N> mulSub(Vec<T, N> a, Vec<T, N> b, Vec<T, N> c)                                           \
    {                                                                                                        \
        return (Vec<T, N>)prefix##_fmsub_##suffix(a, b, c);                                                  \
    }                                                                                                        \
    inline Vec<T, N> subMul(Vec<T, N> c, Vec<T, N> a, Vec<T, N> b)                                           \
    {                                                                                                        \
        return (Vec<T, N>)prefix##_fnmadd_##suffix(a, b, c);                                                 \
    }

ZORS_FUSED(float, 4, _mm, ps)
ZORS_FUSED(double, 2, _mm, pd)
ZORS_FUSED(float, 8, _mm256, ps)
ZORS_FUSED(double, 4, _mm256, pd)
#if ZORS_VECTOR_BYTES == 64
ZORS_FUSED(float, 16, _mm512, ps)
ZORS_FUSED(double, 8, _mm512, pd)
#endif
#undef ZORS_FUSED

inline float mulAdd(float a, float b, float c)
{
    return __builtin_fmaf(a, b, c);
}

inline double mulAdd(double a, double b, double c)
{
    return __builtin_fma(a, b, c);
}

template <class T>
inline T mulSub(T a, T b, T c) requires std::is_floating_point_v<T>
{
    return mulAdd(a, b, -c);
}

template <class T>
inline T subMul(T c, T a, T b) requires std::is_floating_point_v<T>
{
    return mulAdd(-a, b, c);
}

#else

// a * b + c
template <class V>
inline V mulAdd(V a, V b, V c)
{
    return a * b + c;
}

// a * b - c
template <class V>
inline V mulSub(V a, V b, V c)
{
    return a * b - c;
}

// c - a * b
template <class V>
inline V subMul(V c, V a, V b)
{
    return c - a * b;
}

#endif

} // namespace zors::ZORS_VARIANT
