// What division takes: divisors for the lanes beside the vectors, zero divisors, and quotients that round to integers
// as the exact ones do.
#pragma once

#include "round.h"

#include <zortypes.h>

namespace zors::ZORS_VARIANT {

// A value that the compiler does not look through: it would divide first and choose the quotient afterwards.
template <class V>
inline V opaque(V v)
{
    if constexpr (sizeof v <= 8) {
        std::uint64_t bits = 0;
        __builtin_memcpy(&bits, &v, sizeof v);
        __asm__("" : "+r"(bits));
        __builtin_memcpy(&v, &bits, sizeof v);
    } else {
        __asm__("" : "+x"(v));
    }
    return v;
}

// The lanes of v that a place covers; where it covers no more, the other value.
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
    return __builtin_convertvector(__builtin_convertvector(v, Vec<std::int32_t, lanesOf<V>>),
                                   Vec<F, lanesOf<V>>);
}

// Rounded to odd: a value between two floats goes to the one whose last bit is set. It then lies on the same side as
// before of every number of fewer bits, so rounding it once more, to an integer, rounds the original.
inline Vec<float, lanes<double>> toSingleOdd(Vec<double> v)
{
    constexpr std::uint64_t lost = (std::uint64_t{1} << 29) - 1;
    const auto bits = bitsAs<std::uint64_t>(v);
    return toFloat<lanes<double>>(bitsAs<double>((bits | ((bits & lost) + lost)) & ~lost));
}

// Rounded to integers and saturated.
template <class T, Rounding rounding>
inline Vec<T, lanes<double>> integers(Vec<double> v)
{
    return rounded<T, rounding, lanes<double>>(toSingleOdd(v));
}

// a / b * factor, rounded to an integer and saturated. Integers a and b, and a factor that is a power of two.
template <class T, Rounding rounding>
inline Vec<T, lanes<float>> quotient(Vec<float> a, Vec<float> b, float factor)
{
    return rounded<T, rounding, lanes<float>>(a / b * factor);
}

template <class T, Rounding rounding>
inline Vec<T, lanes<double>> quotient(Vec<double> a, Vec<double> b, double factor)
{
    return integers<T, rounding>(a / b * factor);
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
