#include "frame/bind.h"
#include "simd/check.h"
#include "simd/reduce.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace zors::ZORS_VARIANT {
namespace {

ZorStatus meanStdDev(const Zor32f* pSrc, int len, Zor32f* pMean, Zor32f* pStdDev)
{
    if (const ZorStatus bad = check(pointers(pSrc, pMean, pStdDev), length(len, 2))) return bad;
    constexpr int step = lanes<Zor64f>;
    Lanes32<Zor64f> sums(0), squares(0);
    thirtyTwos<step>(pSrc, len, [&](int j, Vec<Zor32f, step> v, int) {
        const Vec<Zor64f> wide = toDouble<step>(v);
        sums.part[j] += wide;
        squares.part[j] += wide * wide;
    });
    const auto add = [](Zor64f a, Zor64f b) { return a + b; };
    const Zor64f sum = sums.joined(add), square = squares.joined(add), n = len;
    *pMean = static_cast<Zor32f>(static_cast<Zor64f>(static_cast<Zor32f>(sum)) / n);
    *pStdDev = static_cast<Zor32f>(std::sqrt(std::max(0.0, n * square - sum * sum) / ((n - 1) * n)));
    return zorStsOk;
}

ZorStatus minMax(const Zor32f* pSrc, int len, Zor32f* pMin, Zor32f* pMax)
{
    if (const ZorStatus bad = check(pointers(pSrc, pMin, pMax), length(len))) return bad;
    constexpr int step = lanes<Zor32f>;
    constexpr Zor32f infinity = std::numeric_limits<Zor32f>::infinity();
    Lanes32<Zor32f> least(infinity), most(-infinity);
    thirtyTwos<step>(pSrc, len, [&](int j, Vec<Zor32f> v, int count) {
        const auto element = iota<Zor32s>() < count;
        Vec<Zor32f>& low = least.part[j];
        Vec<Zor32f>& high = most.part[j];
        low = (v < low) & element ? v : low;
        high = (v > high) & element ? v : high;
    });
    *pMin = least.joined([](Zor32f a, Zor32f b) { return b < a ? b : a; });
    *pMax = most.joined([](Zor32f a, Zor32f b) { return b > a ? b : a; });
    return zorStsOk;
}

} // namespace

ZORS_BIND(zorsMeanStdDev_32f, meanStdDev)
ZORS_BIND(zorsMinMax_32f, minMax)

} // namespace zors::ZORS_VARIANT
