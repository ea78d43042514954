// Which method a length of a discrete Fourier transform is taken by. This decides what is asked of the caller's memory
// and which lengths are refused.
#pragma once

#include <cstdint>

namespace zors::ZORS_VARIANT {

enum class Method { small, power, factored, direct, chirp, none };

inline constexpr int mostSmallLength = 16;

// Of single precision, and of double precision.
template <class T>
struct LengthLimits {
    static constexpr bool isSingle = sizeof(T) == 4;
    static constexpr int mostDivisor = isSingle ? 50 : 90;
    static constexpr int mostCofactor = isSingle ? 50 : 90;
    static constexpr int mostCofactorOfFours = 150;
    static constexpr int mostDirect = isSingle ? 50 : 90;
    static constexpr int mostFactored = (1 << (isSingle ? 27 : 26)) - 1;
    static constexpr int firstBeyondChirp = 1 << (isSingle ? 26 : 25);
};

constexpr bool isPowerOfTwoLength(int n)
{
    return (n & (n - 1)) == 0;
}

// Fours first, then a two, then odd divisors; what is left is the last factor if it is not too large.
template <class T>
constexpr bool hasFactors(int n)
{
    using Limits = LengthLimits<T>;
    int rest = n;
    bool found = false;
    const auto divide = [&](int d) {
        for (; rest % d == 0; rest /= d) found = true;
    };
    divide(4);
    const int mostLeft = found ? Limits::mostCofactorOfFours : Limits::mostCofactor;
    divide(2);
    for (int d = 3; d * d <= rest; d += 2) {
        if (d > Limits::mostDivisor) return false;
        divide(d);
    }
    return found && rest <= mostLeft;
}

template <class T>
constexpr Method methodOf(int n)
{
    using Limits = LengthLimits<T>;
    if (n <= mostSmallLength) return Method::small;
    if (isPowerOfTwoLength(n)) return Method::power;
    if (n > Limits::mostFactored) return Method::none;
    if (hasFactors<T>(n)) return Method::factored;
    if (n <= Limits::mostDirect) return Method::direct;
    return n < Limits::firstBeyondChirp ? Method::chirp : Method::none;
}

} // namespace zors::ZORS_VARIANT
