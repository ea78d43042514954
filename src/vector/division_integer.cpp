#include "divisors.h"
#include "frame/bind.h"
#include "simd/check.h"

#include <algorithm>
#include <cmath>

namespace zors::ZORS_VARIANT {
namespace {

// Beyond +-32 every quotient of 8 and of 16 bits rounds to 0, or saturates unless it is 0.
constexpr int mostScale = 32;

// Why a floating-point division, rounded in whatever direction, gives the exact result: let a / b be the quotient and
// c = k * 2^(s-1) any of the boundaries between two results, where s is the scale factor. c has few bits, so rounding
// never takes a / b past c, only onto it. That needs a relative distance |a - b c| / |a| below 2^-23, or 2^-52 in
// double precision. But if a / b is not c itself, |a - b c| is at least the least unit of the difference, 2^min(s-1, 0):
// - from s = -6 on the distance is above 2^-7 / 2^16 = 2^-23: single precision will do;
// - an unsaturated result bounds |a| * 2^(1-s) by twice the type's count of values times b: in 8 bits the distance is
//   above 2^-17, single precision again; in 16 bits it is above 2^-33, which takes double precision.
template <class T>
constexpr int leastSingleScale = sizeof(T) == 1 ? -mostScale : -6;

template <Rounding rounding, class F, class T>
ZorStatus divideIn(auto divisor, auto dividend, T* pDst, int len, int scaleFactor)
{
    const F factor = std::ldexp(F(1), -scaleFactor);
    ZeroDivisors<F> zeros;
    blocks<lanes<F>>(len, [&, factor](auto at) {
        const Vec<F> a = converted<F>(dividend(at)), b = converted<F>(divisor(at));
        zeros.note(b);
        store(pDst, at, rounded<T, rounding>(a / b * factor));
    });
    return zeros.status();
}

template <Rounding rounding, class T>
ZorStatus divide(auto divisor, auto dividend, T* pDst, int len, int scaleFactor)
{
    scaleFactor = std::clamp(scaleFactor, -mostScale, mostScale);
    if constexpr (leastSingleScale < T >> -mostScale)
        if (scaleFactor < leastSingleScale<T>)
            return divideIn<rounding, Zor64f>(divisor, dividend, pDst, len, scaleFactor);
    return divideIn<rounding, Zor32f>(divisor, dividend, pDst, len, scaleFactor);
}

template <class T>
ZorStatus div(const T* pSrc1, const T* pSrc2, T* pDst, int len, int scaleFactor)
{
    if (const ZorStatus bad = check(pointers(pSrc1, pSrc2, pDst), length(len))) return bad;
    return divide<Rounding::nearestEven>(divisors(pSrc1), elements(pSrc2), pDst, len, scaleFactor);
}

template <class T>
ZorStatus divInPlace(const T* pSrc, T* pSrcDst, int len, int scaleFactor)
{
    return div<T>(pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}

template <class T>
ZorStatus divRound(const T* pSrc1, const T* pSrc2, T* pDst, int len, int scaleFactor, ZorRoundMode rndMode)
{
    const bool known = rndMode == zorRndZero || rndMode == zorRndNear || rndMode == zorRndFinancial;
    if (const ZorStatus bad =
            check(pointers(pSrc1, pSrc2, pDst), length(len), require(known, zorStsBadRoundMode)))
        return bad;
    const auto divisor = divisors(pSrc1);
    const auto dividend = elements(pSrc2);
    if (rndMode == zorRndZero) return divide<Rounding::zero>(divisor, dividend, pDst, len, scaleFactor);
    if (rndMode == zorRndNear)
        return divide<Rounding::nearestEven>(divisor, dividend, pDst, len, scaleFactor);
    return divide<Rounding::halfAway>(divisor, dividend, pDst, len, scaleFactor);
}

template <class T>
ZorStatus divRoundInPlace(const T* pSrc, T* pSrcDst, int len, int scaleFactor, ZorRoundMode rndMode)
{
    return divRound<T>(pSrc, pSrcDst, pSrcDst, len, scaleFactor, rndMode);
}

// A zero constant is an error, but in 16 unsigned bits a warning.
template <class T>
ZorStatus divC(const T* pSrc, T val, T* pDst, int len, int scaleFactor)
{
    const bool good = std::is_same_v<T, Zor16u> || val != 0;
    if (const ZorStatus bad = check(pointers(pSrc, pDst), length(len), require(good, zorStsDivByZeroError)))
        return bad;
    return divide<Rounding::nearestEven>(constant(val), elements(pSrc), pDst, len, scaleFactor);
}

template <class T>
ZorStatus divCInPlace(T val, T* pSrcDst, int len, int scaleFactor)
{
    return divC<T>(pSrcDst, val, pSrcDst, len, scaleFactor);
}

ZorStatus divCRev(const Zor16u* pSrc, Zor16u val, Zor16u* pDst, int len)
{
    if (const ZorStatus bad = check(pointers(pSrc, pDst), length(len))) return bad;
    return divide<Rounding::nearestEven>(divisors(pSrc), constant(val), pDst, len, 0);
}

ZorStatus divCRevInPlace(Zor16u val, Zor16u* pSrcDst, int len)
{
    return divCRev(pSrcDst, val, pSrcDst, len);
}

} // namespace

ZORS_BIND(zorsDiv_8u_Sfs, div<Zor8u>)
ZORS_BIND(zorsDiv_16u_Sfs, div<Zor16u>)
ZORS_BIND(zorsDiv_16s_Sfs, div<Zor16s>)
ZORS_BIND(zorsDiv_8u_ISfs, divInPlace<Zor8u>)
ZORS_BIND(zorsDiv_16u_ISfs, divInPlace<Zor16u>)
ZORS_BIND(zorsDiv_16s_ISfs, divInPlace<Zor16s>)

ZORS_BIND(zorsDiv_Round_8u_Sfs, divRound<Zor8u>)
ZORS_BIND(zorsDiv_Round_16u_Sfs, divRound<Zor16u>)
ZORS_BIND(zorsDiv_Round_16s_Sfs, divRound<Zor16s>)
ZORS_BIND(zorsDiv_Round_8u_ISfs, divRoundInPlace<Zor8u>)
ZORS_BIND(zorsDiv_Round_16u_ISfs, divRoundInPlace<Zor16u>)
ZORS_BIND(zorsDiv_Round_16s_ISfs, divRoundInPlace<Zor16s>)

ZORS_BIND(zorsDivC_8u_Sfs, divC<Zor8u>)
ZORS_BIND(zorsDivC_16u_Sfs, divC<Zor16u>)
ZORS_BIND(zorsDivC_16s_Sfs, divC<Zor16s>)
ZORS_BIND(zorsDivC_8u_ISfs, divCInPlace<Zor8u>)
ZORS_BIND(zorsDivC_16u_ISfs, divCInPlace<Zor16u>)
ZORS_BIND(zorsDivC_16s_ISfs, divCInPlace<Zor16s>)

ZORS_BIND(zorsDivCRev_16u, divCRev)
ZORS_BIND(zorsDivCRev_16u_I, divCRevInPlace)

} // namespace zors::ZORS_VARIANT
