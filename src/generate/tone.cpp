#include "element.h"
#include "oscillation.h"

#include "frame/bind.h"
#include "simd/check.h"
#include "simd/complex.h"
#include "simd/pair_lane.h"

#include <algorithm>
#include <numbers>

namespace zors::ZORS_VARIANT {
namespace {

// Frequencies and phases are doubles where the elements are.
template <class T>
using AngleOf = std::conditional_t<std::is_same_v<Lane<T>, Zor64f>, Zor64f, Zor32f>;

template <class T, class At>
void storeTone(T* pDst, At at, double magn, CosineAndSine v)
{
    store(pDst, at, toElements<T>(magn * v.cosine));
}

template <class T, class At>
requires(LaneOf<T>::each == 2) void storeTone(T* pDst, At at, double magn, CosineAndSine v)
{
    using Part = Lane<T>;
    const auto re = toElements<Part>(magn * v.cosine), im = toElements<Part>(magn * v.sine);
    if constexpr (std::is_same_v<Part, Zor64f>)
        storePairs(asLanes(pDst), at, re, im);
    else
        store(reinterpret_cast<LaneOfPair<Part>*>(pDst), at, join<Part, lanes<double>>(re, im));
}

// One evaluation, the precise one, for all hints.
template <class T>
ZorStatus tone(T* pDst, int len, Lane<T> magn, AngleOf<T> rFreq, AngleOf<T>* pPhase, ZorHintAlgorithm)
{
    constexpr double highest = LaneOf<T>::each == 2 ? 1 : 0.5;
    if (const ZorStatus bad = check(pointers(pDst, pPhase), length(len))) return bad;
    if (const ZorStatus bad =
            check(require(magn > 0, zorStsBadToneMagnitude),
                  require(rFreq >= 0 && rFreq < highest, zorStsBadToneFreq),
                  require(*pPhase >= 0 && *pPhase < 2 * std::numbers::pi, zorStsBadTonePhase)))
        return bad;
    const Oscillation oscillation(rFreq, *pPhase);
    for (std::ptrdiff_t first = 0; first < len; first += stretch) {
        const auto values = oscillation.from(static_cast<int>(first));
        T* p = pDst + first;
        blocks<lanes<double>>(std::min<std::ptrdiff_t>(stretch, len - first),
                              [=](auto at) { storeTone(p, at, magn, values(at.index)); });
    }
    *pPhase = oscillation.angle<AngleOf<T>>(len);
    return zorStsOk;
}

} // namespace

ZORS_BIND(zorsTone_Direct_16s, tone<Zor16s>)
ZORS_BIND(zorsTone_Direct_16sc, tone<Zor16sc>)
ZORS_BIND(zorsTone_Direct_32f, tone<Zor32f>)
ZORS_BIND(zorsTone_Direct_32fc, tone<Zor32fc>)
ZORS_BIND(zorsTone_Direct_64f, tone<Zor64f>)
ZORS_BIND(zorsTone_Direct_64fc, tone<Zor64fc>)

} // namespace zors::ZORS_VARIANT
