// The element-wise operations. Each gives unscaled<T>(a, b), the result in lanes of T, and for integers
// exact<T>(a, b), the result before scaling, and zeroAbove<T>, the largest scale factor that leaves results other
// than 0.
#pragma once

#include "operands.h"
#include "scaling.h"
#include "simd/complex.h"

namespace zors::ZORS_VARIANT {

// The parts of complex numbers are added and subtracted as numbers of their own.
struct Add {
    template <class T, class L = Lane<T>>
    static constexpr int zeroAbove = sizeof(L) == 8 ? 63 : std::numeric_limits<L>::digits + 1;

    template <class T, class V>
    static V unscaled(V a, V b)
    {
        if constexpr (std::is_floating_point_v<Lane<T>>)
            return a + b;
        else
            return saturatedSum(a, b);
    }
    template <class T, class V>
    static auto exact(V a, V b)
    {
        if constexpr (sizeof(T) == 1) {
            const auto x = widened(a), y = widened(b);
            return Pair<Wide<T>>{x.first + y.first, x.second + y.second};
        } else {
            return Sum<V>{a, b};
        }
    }
};

// The first operand is the subtrahend.
struct Subtract {
    template <class T, class L = Lane<T>>
    static constexpr int zeroAbove = std::numeric_limits<L>::digits + std::is_signed_v<L>;

    template <class T, class V>
    static V unscaled(V a, V b)
    {
        if constexpr (std::is_floating_point_v<Lane<T>>)
            return b - a;
        else
            return saturatedDifference(a, b);
    }
    template <class T, class V>
    static auto exact(V a, V b)
    {
        // What is below 0 ends as 0 in an unsigned type, whatever the scale.
        if constexpr (sizeof(T) == 1)
            return widened(saturatedDifference(a, b));
        else if constexpr (std::is_unsigned_v<T>)
            return saturatedDifference(a, b);
        else
            return Difference<V>{a, b};
    }
};

struct Multiply {
    template <class T>
    static constexpr int zeroAbove = LaneOf<T>::each == 2 ? 2 * std::numeric_limits<Lane<T>>::digits + 1
                                                          : 2 * std::numeric_limits<Lane<T>>::digits;

    template <class T, class V>
    static V unscaled(V a, V b)
    {
        if constexpr (!std::is_floating_point_v<Lane<T>>)
            return scaled<Lane<T>>(exact<T>(a, b), Unscaled{});
        else if constexpr (LaneOf<T>::each == 2)
            return complexProduct(a, b);
        else
            return a * b;
    }
    template <class T, class V>
    static auto exact(V a, V b)
    {
        if constexpr (LaneOf<T>::each == 2)
            return complexProducts(a, b);
        else
            return products(a, b);
    }
};

// The loop over all elements.
template <class Operation, class T, class A, class B>
inline ZorStatus operate(A a, B b, T* pDst, int len, bool inPlace)
{
    combine(a, b, pDst, len, inPlace, [](auto x, auto y) { return Operation::template unscaled<T>(x, y); });
    return zorStsOk;
}

// The same with a scale factor. Out of line, as types share it.
template <class Operation, class T, class A, class B>
[[gnu::noinline]] ZorStatus operateScaled(A a, B b, T* pDst, std::ptrdiff_t len, bool inPlace,
                                          int scaleFactor)
{
    if constexpr (std::is_same_v<Operation, Multiply> && std::is_same_v<T, Zor16s>) {
        // Fractional numbers are worth a kernel of their own.
        if (scaleFactor == 15) {
            combine(a, b, pDst, len, inPlace, [](auto x, auto y) { return fractionalProducts(x, y); });
            return zorStsOk;
        }
    }
    const auto zeroAbove = Operation::template zeroAbove<T>;
    withScale(scaleFactor, zeroAbove, asLanes(pDst), laneCount<T>(len), [=](auto scale) {
        combine<decltype(scale)>(a, b, pDst, len, inPlace, [=](auto x, auto y) {
            if constexpr (std::is_same_v<decltype(scale), Unscaled>)
                return Operation::template unscaled<T>(x, y);
            else
                return scaled<Lane<T>>(Operation::template exact<T>(x, y), scale);
        });
    });
    return zorStsOk;
}

// Sums and differences of complex vectors are those of their parts. Not with a constant, whose parts take turns: a
// step that starts inside an element would take them in the wrong order.
template <class Operation, class T, class A, class B>
inline ZorStatus operate(A a, B b, T* pDst, int len, bool inPlace, int scaleFactor)
{
    if constexpr (!std::is_same_v<Operation, Multiply> && std::is_same_v<A, B>)
        return operateScaled<Operation>(a, b, asLanes(pDst), laneCount<T>(len), inPlace, scaleFactor);
    else
        return operateScaled<Operation>(a, b, pDst, len, inPlace, scaleFactor);
}

} // namespace zors::ZORS_VARIANT
