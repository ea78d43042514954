#include "frame/bind.h"
#include "simd/check.h"

#include <algorithm>
#include <limits>

namespace zors::ZORS_VARIANT {
namespace {

__extension__ typedef unsigned __int128 Wide;

constexpr Zor64u limit = Zor64u{1} << 63; // the magnitude of the least value; the most is one below

Zor64u magnitude(Zor64s v)
{
    return v < 0 ? -static_cast<Zor64u>(v) : static_cast<Zor64u>(v);
}

// a * 2^-scaleFactor / b rounded to nearest, ties to even, or limit where it is more. b is not 0; the scale factor is
// between -127, from where on all but 0 exceeds the limit, and 64, from where on there is no 1.
Wide quotient(Zor64u a, Zor64u b, int scaleFactor)
{
    const Wide divisor = Wide{b} << std::max(scaleFactor, 0);
    Wide whole = a / divisor, rest = a % divisor;
    // The places behind the point, as many at a time as keep the remainder within its width.
    for (int left = -scaleFactor; left > 0 && whole <= limit;) {
        const int step = std::min(left, 63);
        whole = (whole << step) + (rest << step) / b;
        rest = (rest << step) % b;
        left -= step;
    }
    const Wide other = divisor - rest;
    if (rest > other || (rest == other && (whole & 1) != 0)) ++whole;
    return std::min(whole, Wide{limit});
}

Zor64s divided(Zor64s a, Zor64s b, int scaleFactor)
{
    if (a == 0) return 0;
    const bool negative = (a < 0) != (b < 0);
    const auto most = static_cast<Wide>(negative ? limit : limit - 1);
    const Wide exact = b == 0 ? most : quotient(magnitude(a), magnitude(b), scaleFactor);
    const auto result = static_cast<Zor64u>(std::min(exact, most));
    return static_cast<Zor64s>(negative ? -result : result);
}

ZorStatus divC64s(Zor64s val, Zor64s* pSrcDst, int len, int scaleFactor)
{
    if (const ZorStatus bad = check(pointers(pSrcDst), length(len))) return bad;
    scaleFactor = std::clamp(scaleFactor, -127, 64);
    std::for_each(pSrcDst, pSrcDst + len, [=](Zor64s& v) { v = divided(v, val, scaleFactor); });
    return val == 0 ? zorStsDivByZero : zorStsOk;
}

} // namespace

ZORS_BIND(zorsDivC_64s_ISfs, divC64s)

} // namespace zors::ZORS_VARIANT
