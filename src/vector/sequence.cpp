#include "set.h"

#include "frame/bind.h"
#include "simd/check.h"
#include "simd/round.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace zors::ZORS_VARIANT {
namespace {

// The value of element n, for one n or a vector of them: two roundings.
template <class V>
V valueAt(V n, Zor32f offset, Zor32f slope)
{
    return n * slope + offset;
}

template <class T, int N>
Vec<T, N> toElements(Vec<Zor32f, N> v)
{
    if constexpr (std::is_integral_v<T>)
        return rounded<T, Rounding::halfAway>(v);
    else if constexpr (std::is_same_v<T, Zor64f>)
        return toDouble<N>(v);
    else
        return v;
}

// Elements [first, end) of the line, each formed in single precision.
template <class T>
void ramp(T* pDst, std::ptrdiff_t first, std::ptrdiff_t end, Zor32f offset, Zor32f slope)
{
    constexpr int step = std::min(lanes<Zor32f>, lanes<T>);
    T* p = pDst + first;
    const Vec<Zor32s, step> start = iota<Zor32s, step>() + static_cast<Zor32s>(first);
    blocks<step>(end - first, [=](auto at) {
        const Vec<Zor32f, step> n = toFloat<step>(start + static_cast<Zor32s>(at.index));
        store(p, at, toElements<T, step>(valueAt(n, offset, slope)));
    });
}

template <class T>
ZorStatus vectorRamp(T* pDst, int len, Zor32f offset, Zor32f slope)
{
    if (const ZorStatus bad = check(pointers(pDst), length(len))) return bad;
    ramp(pDst, 0, len, offset, slope);
    return zorStsOk;
}

// The number of elements before the line, which rises or falls throughout, first satisfies a condition.
template <class Condition>
int countBefore(int len, Zor32f offset, Zor32f slope, Condition holds)
{
    int low = 0, high = len;
    while (low < high) {
        const int middle = low + (high - low) / 2;
        if (holds(valueAt(static_cast<Zor32f>(middle), offset, slope)))
            high = middle;
        else
            low = middle + 1;
    }
    return low;
}

template <class T>
ZorStatus vectorSlope(T* pDst, int len, Zor32f offset, Zor32f slope)
{
    if (const ZorStatus bad = check(pointers(pDst), length(len))) return bad;
    if (slope == 0) {
        T value;
        ramp(&value, 0, 1, offset, slope);
        fill(value, pDst, len);
        return zorStsOk;
    }
    int first = 0, end = len;
    if (std::numeric_limits<T>::is_integer && std::isfinite(offset) && std::isfinite(slope)) {
        constexpr auto least = std::numeric_limits<T>::lowest(), most = std::numeric_limits<T>::max();
        const auto above = [](Zor32f v) { return v >= static_cast<Zor32f>(most); };
        const auto below = [](Zor32f v) { return v <= static_cast<Zor32f>(least); };
        const bool rises = slope > 0;
        first = rises ? countBefore(len, offset, slope, [=](Zor32f v) { return !below(v); })
                      : countBefore(len, offset, slope, [=](Zor32f v) { return !above(v); });
        end = rises ? countBefore(len, offset, slope, above) : countBefore(len, offset, slope, below);
        if (first > 0) fill(rises ? least : most, pDst, first);
        if (end < len) fill(rises ? most : least, pDst + end, len - end);
    }
    ramp(pDst, first, end, offset, slope);
    return zorStsOk;
}

} // namespace

ZORS_BIND(zorsVectorRamp_8u, vectorRamp<Zor8u>)
ZORS_BIND(zorsVectorRamp_8s, vectorRamp<Zor8s>)
ZORS_BIND(zorsVectorRamp_16u, vectorRamp<Zor16u>)
ZORS_BIND(zorsVectorRamp_16s, vectorRamp<Zor16s>)
ZORS_BIND(zorsVectorRamp_32u, vectorRamp<Zor32u>)
ZORS_BIND(zorsVectorRamp_32s, vectorRamp<Zor32s>)
ZORS_BIND(zorsVectorRamp_32f, vectorRamp<Zor32f>)
ZORS_BIND(zorsVectorRamp_64f, vectorRamp<Zor64f>)

ZORS_BIND(zorsVectorSlope_8u, vectorSlope<Zor8u>)
ZORS_BIND(zorsVectorSlope_8s, vectorSlope<Zor8s>)
ZORS_BIND(zorsVectorSlope_16u, vectorSlope<Zor16u>)
ZORS_BIND(zorsVectorSlope_16s, vectorSlope<Zor16s>)
ZORS_BIND(zorsVectorSlope_32u, vectorSlope<Zor32u>)
ZORS_BIND(zorsVectorSlope_32s, vectorSlope<Zor32s>)
ZORS_BIND(zorsVectorSlope_32f, vectorSlope<Zor32f>)
ZORS_BIND(zorsVectorSlope_64f, vectorSlope<Zor64f>)

} // namespace zors::ZORS_VARIANT
