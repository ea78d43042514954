// What division takes: divisors for the lanes beside the vectors, zero divisors, and quotients that round to integers
// as the exact ones do.
#pragma once

#include "opaque.h"
#include "round.h"

#include <zortypes.h>

namespace zors::ZORS_VARIANT {

// The lanes of v that a place covers; where it covers no more, the other value. Opaque, or the compiler would divide
// first and choose the quotient afterwards.
template <class T, int N>
inline Vec<T, N> covered(Vec<T, N> v, Whole<N>, T)
{
    return v;
}

template <class T, int N>
inline Vec<T, N> covered(Vec<T, N> v, Part<N> at, T other)
{
    return opaque(select(iota<T, N>() < static_cast<T>(at.count), v, splat<T, N>(other)));
}

// Small integers as floating-point lanes, exactly.
template <class F, class V>
inline Vec<F, lanesOf<V>> converted(V v)
{
    if constexpr (std::is_same_v<F, float>)
        return toFloat<lanesOf<V>>(v);
    else
        return toDouble<lanesOf<V>>(v);
}

// The zero divisors met on the way. A quotient by zero needs no more: it is infinite or not a number, which saturates
// with the sign of the dividend and gives 0.
template <class F>
class ZeroDivisors {
public:
    void note(Vec<F> divisor) { met_ |= divisor == F(0); }

    ZorStatus status() const
    {
        bool any = false;
        for (int i = 0; i < lanes<F>; ++i) any |= met_[i] != 0;
        return any ? zorStsDivByZero : zorStsOk;
    }

private:
    decltype(Vec<F>{} == F(0)) met_{};
};

} // namespace zors::ZORS_VARIANT
