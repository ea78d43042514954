#include "frame/bind.h"
#include "simd/check.h"
#include "simd/reduce.h"

#include <limits>

namespace zors::ZORS_VARIANT {
namespace {

constexpr Zor32f infinity = std::numeric_limits<Zor32f>::infinity();

// Comparisons with what is not a number fail: it is passed over, and so are the lanes past the end.
struct Extremes {
    static constexpr int lanes = 32, step = ZORS_VARIANT::lanes<Zor32f>;
    static constexpr Zor32f filler = std::numeric_limits<Zor32f>::quiet_NaN();
    Lanes<Zor32f, lanes> least{infinity}, most{-infinity};

    static constexpr auto lower = [](auto a, auto b) { return select(b < a, b, a); };
    static constexpr auto higher = [](auto a, auto b) { return select(b > a, b, a); };

    void add(int j, Vec<Zor32f> v)
    {
        least.part[j] = lower(least.part[j], v);
        most.part[j] = higher(most.part[j], v);
    }
};

ZorStatus minMax(const Zor32f* pSrc, int len, Zor32f* pMin, Zor32f* pMax)
{
    if (const ZorStatus bad = check(pointers(pSrc, pMin, pMax), length(len))) return bad;
    Extremes extremes;
    reduce(extremes, pSrc, len);
    *pMin = extremes.least.joined(Extremes::lower)[0];
    *pMax = extremes.most.joined(Extremes::higher)[0];
    return zorStsOk;
}

} // namespace

ZORS_BIND(zorsMinMax_32f, minMax)

} // namespace zors::ZORS_VARIANT
