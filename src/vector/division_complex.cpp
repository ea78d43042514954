#include "divisors.h"
#include "frame/bind.h"
#include "simd/check.h"
#include "simd/pair_lane.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace zors::ZORS_VARIANT {
namespace {

constexpr int step = lanes<Zor64f>;

// x * conj(y), and |y|^2 as its divisor. Where y is zero it is x itself, and the divisor the one that is given.
struct Fraction {
    Vec<Zor64f> re, im, divisor;
};

Fraction fraction(Pair<Vec<Zor64f>> x, Pair<Vec<Zor64f>> y, Vec<Zor64f> forZero)
{
    const Vec<Zor64f> norm = y.first * y.first + y.second * y.second;
    const auto zero = norm == 0.0;
    return {select(zero, x.first, x.first * y.first + x.second * y.second),
            select(zero, x.second, x.second * y.first - x.first * y.second), select(zero, forZero, norm)};
}

// The pairs, as one lane each, widened to double precision.
template <class T>
Pair<Vec<Zor64f>> widened(Vec<LaneOfPair<T>, step> v)
{
    const auto parts = split<T, step>(v);
    if constexpr (std::is_floating_point_v<T>)
        return {toDouble<step>(parts.first), toDouble<step>(parts.second)};
    else
        return {converted<Zor64f>(parts.first), converted<Zor64f>(parts.second)};
}

// Numerators of 33 bits, divisors of 32 and powers of two: the products are exact, and so is the rounding, for an
// unsaturated quotient that is not on a boundary between two results is off it by 2^-48 of itself or more (the
// argument of the real members), and a rounded division errs by less than 2^-52. Beyond scale factors of +-48 every
// quotient is 0, or saturates unless it is 0.
ZorStatus divide(auto divisor, auto dividend, Zor16sc* pDst, int len, int scaleFactor)
{
    const Zor64f factor = std::ldexp(1.0, -std::clamp(scaleFactor, -48, 48));
    auto* pPairs = reinterpret_cast<LaneOfPair<Zor16s>*>(pDst);
    ZeroDivisors<Zor64f> zeros;
    blocks<step>(len, [&, factor](auto at) {
        const auto q = fraction(widened<Zor16s>(dividend(at)), widened<Zor16s>(divisor(at)), Vec<Zor64f>{});
        zeros.note(q.divisor);
        const auto part = [=, b = q.divisor](Vec<Zor64f> v) {
            return rounded<Zor16s, Rounding::nearestEven>(v / b * factor);
        };
        store(pPairs, at, join<Zor16s, step>(part(q.re), part(q.im)));
    });
    return zeros.status();
}

// Single precision: everything but the reciprocal and the last products is exact or of one rounding in double.
ZorStatus divide(auto divisor, auto dividend, Zor32fc* pDst, int len)
{
    auto* pPairs = reinterpret_cast<LaneOfPair<Zor32f>*>(pDst);
    blocks<step>(len, [=](auto at) {
        const auto y = widened<Zor32f>(divisor(at));
        const auto q = fraction(widened<Zor32f>(dividend(at)), y, y.first);
        const Vec<Zor64f> reciprocal = 1.0 / q.divisor;
        store(pPairs, at,
              join<Zor32f, step>(toFloat<step>(q.re * reciprocal), toFloat<step>(q.im * reciprocal)));
    });
    return zorStsOk;
}

// A pair times 2^(1024 - exponent), which takes the larger part of a normal pair between 2 and 4; the exponent is
// that of this part as a double stores it.
struct Scaled {
    Pair<Vec<Zor64f>> pair;
    Vec<Zor64u> exponent;
};

Scaled scaled(Pair<Vec<Zor64f>> z)
{
    constexpr Zor64u infinity = Zor64u{2047} << 52;
    const auto magnitude = [](Vec<Zor64f> v) { return bitsAs<Zor64f>(bitsAs<Zor64u>(v) << 1 >> 1); };
    const Vec<Zor64f> re = magnitude(z.first), im = magnitude(z.second);
    Vec<Zor64f> power = bitsAs<Zor64f>(bitsAs<Zor64u>(select(re > im, re, im)) & infinity);
    power = select(power > 0x1p-1022, power, splat(0x1p-1022));
    power = select(power < 0x1p1023, power, splat(0x1p1023));
    const Vec<Zor64f> factor = bitsAs<Zor64f>(infinity - bitsAs<Zor64u>(power));
    return {{z.first * factor, z.second * factor}, bitsAs<Zor64u>(power) >> 52};
}

// Double precision: the difference of the exponents is put back in two halves, so that the first multiplication is
// exact wherever the result is not 0 or infinite.
ZorStatus divide(auto divisor, auto dividend, Zor64fc* pDst, int len)
{
    blocks<step>(len, [=](auto at) {
        const Scaled x = scaled(dividend(at)), y = scaled(divisor(at));
        const auto q = fraction(x.pair, y.pair, y.pair.first);
        const Vec<Zor64u> exponent = x.exponent - y.exponent + 2048, half = exponent >> 1;
        const auto first = bitsAs<Zor64f>((half - 1) << 52),
                   second = bitsAs<Zor64f>((exponent - half - 1) << 52);
        storePairs(&pDst->re, at, q.re / q.divisor * first * second, q.im / q.divisor * first * second);
    });
    return zorStsOk;
}

// Operands: double-precision pairs come as two vectors, the others as one lane each.
template <class C>
auto pairs(const C* p)
{
    if constexpr (sizeof(C) == 16)
        return [=](auto at) { return loadPairs(&p->re, at); };
    else
        return elements(reinterpret_cast<const LaneOfPair<decltype(C::re)>*>(p));
}

template <class C>
auto pairDivisors(const C* p)
{
    if constexpr (sizeof(C) == 16) {
        return [=](auto at) {
            const auto v = loadPairs(&p->re, at);
            return Pair<Vec<Zor64f>>{covered(v.first, at, 1.0), v.second};
        };
    } else {
        using Lane = LaneOfPair<decltype(C::re)>;
        return divisors(reinterpret_cast<const Lane*>(p), std::bit_cast<Lane>(C{1, 0}));
    }
}

template <class C>
auto pairConstant(C val)
{
    if constexpr (sizeof(C) == 16)
        return [=](auto) { return Pair<Vec<Zor64f>>{splat(val.re), splat(val.im)}; };
    else
        return constant(std::bit_cast<LaneOfPair<decltype(C::re)>>(val));
}

template <class C, class... Scale>
ZorStatus div(const C* pSrc1, const C* pSrc2, C* pDst, int len, Scale... scaleFactor)
{
    if (const ZorStatus bad = check(pointers(pSrc1, pSrc2, pDst), length(len))) return bad;
    return divide(pairDivisors(pSrc1), pairs(pSrc2), pDst, len, scaleFactor...);
}

template <class C, class... Scale>
ZorStatus divInPlace(const C* pSrc, C* pSrcDst, int len, Scale... scaleFactor)
{
    return div<C, Scale...>(pSrc, pSrcDst, pSrcDst, len, scaleFactor...);
}

template <class C, class... Scale>
ZorStatus divC(const C* pSrc, C val, C* pDst, int len, Scale... scaleFactor)
{
    const bool zero = val.re == 0 && val.im == 0;
    if (const ZorStatus bad = check(pointers(pSrc, pDst), length(len), require(!zero, zorStsDivByZeroError)))
        return bad;
    return divide(pairConstant(val), pairs(pSrc), pDst, len, scaleFactor...);
}

template <class C, class... Scale>
ZorStatus divCInPlace(C val, C* pSrcDst, int len, Scale... scaleFactor)
{
    return divC<C, Scale...>(pSrcDst, val, pSrcDst, len, scaleFactor...);
}

} // namespace

ZORS_BIND(zorsDiv_16sc_Sfs, (div<Zor16sc, int>))
ZORS_BIND(zorsDiv_32fc, div<Zor32fc>)
ZORS_BIND(zorsDiv_64fc, div<Zor64fc>)
ZORS_BIND(zorsDiv_16sc_ISfs, (divInPlace<Zor16sc, int>))
ZORS_BIND(zorsDiv_32fc_I, divInPlace<Zor32fc>)
ZORS_BIND(zorsDiv_64fc_I, divInPlace<Zor64fc>)

ZORS_BIND(zorsDivC_16sc_Sfs, (divC<Zor16sc, int>))
ZORS_BIND(zorsDivC_32fc, divC<Zor32fc>)
ZORS_BIND(zorsDivC_64fc, divC<Zor64fc>)
ZORS_BIND(zorsDivC_16sc_ISfs, (divCInPlace<Zor16sc, int>))
ZORS_BIND(zorsDivC_32fc_I, divCInPlace<Zor32fc>)
ZORS_BIND(zorsDivC_64fc_I, divCInPlace<Zor64fc>)

} // namespace zors::ZORS_VARIANT
