// What all windows share: products with their rounding, and the in-place form.
#pragma once

#include "weigh.h"

#include "simd/round.h"

namespace zors::ZORS_VARIANT {

// The parameter of a shape, and its weights, are doubles where the elements are.
template <class T>
using ParameterOf = std::conditional_t<std::is_same_v<Lane<T>, Zor64f>, Zor64f, Zor32f>;

inline double fromQ15(int value)
{
    return value * 0x1p-15;
}

// A product with a weight of the elements' own type, or rounded to the nearest integer.
struct Nearest {
    template <class V, class W>
    V operator()(V v, W w) const
    {
        if constexpr (std::is_same_v<V, W>)
            return v * w;
        else
            return rounded<ElementOf<V>, Rounding::nearestEven>(toFloat<lanesOf<V>>(v) * w);
    }
};

// An in-place form is the other one with equal pointers.
template <auto Window, class T, class... Parameters>
ZorStatus inPlace(T* pSrcDst, int len, Parameters... parameters)
{
    return Window(pSrcDst, pSrcDst, len, parameters...);
}

} // namespace zors::ZORS_VARIANT
