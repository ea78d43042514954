// Where the operands of an element-wise operation come from, and the loop over them.
#pragma once

#include "lane.h"
#include "simd/loop.h"
#include "simd/shuffle.h"

namespace zors::ZORS_VARIANT {

// The elements of a vector.
template <class L>
struct Elements {
    const L* p;
    auto operator()(auto at) const { return load(p, at); }
};

template <class T>
auto elements(const T* p)
{
    return Elements<Lane<T>>{asLanes(p)};
}

// One element for all.
template <class V>
struct Constant {
    V v;
    template <class At>
    auto operator()(At) const
    {
        return leading<At::lanes>(v);
    }
};

template <class T>
auto constant(T value)
{
    if constexpr (LaneOf<T>::each == 1) {
        return Constant<Vec<T>>{splat(value)};
    } else {
        const auto odd = (iota<Index<Lane<T>>>() & 1) != 0;
        return Constant<Vec<Lane<T>>>{odd ? splat(value.im) : splat(value.re)};
    }
}

// Stores operation(a, b) for all places; in place where the destination is a source.
template <class Case = void, class T, class A, class B, class Operation>
[[gnu::always_inline]] inline void combine(A a, B b, T* pDst, std::ptrdiff_t len, bool inPlace,
                                           Operation operation)
{
    using L = Lane<T>;
    L* p = asLanes(pDst);
    const std::ptrdiff_t count = laneCount<T>(len);
    const auto body = [=](auto at) { store(p, at, operation(a(at), b(at))); };
    if constexpr (!isRare<Case>)
        if (!inPlace && streams<lanes<L>, LaneOf<T>::each>(count, body, p)) return;
    blocks<lanes<L>, Case>(count, body);
}

} // namespace zors::ZORS_VARIANT
