#include "simd/convert.h"
#include "frame/bind.h"
#include "scale.h"
#include "simd/check.h"
#include "simd/loop.h"

namespace zors::ZORS_VARIANT {
namespace {

constexpr int step = lanes<Zor32f>;

ZorStatus convert16s32f(const Zor16s* pSrc, Zor32f* pDst, int len, int scaleFactor)
{
    if (const ZorStatus bad = check(pointers(pSrc, pDst), length(len))) return bad;
    const Scale scale(scaleFactor);
    blocksInto<step>(
        len, [=](auto at) { store(pDst, at, scale(toFloat<step>(load(pSrc, at)))); }, pDst);
    return zorStsOk;
}

template <class T, Rounding rounding>
void convertRounded(const Zor32f* pSrc, T* pDst, int len, Scale scale)
{
    blocks<step>(len, [=](auto at) { store(pDst, at, rounded<T, rounding, step>(scale(load(pSrc, at)))); });
}

ZorStatus convert32f16s(const Zor32f* pSrc, Zor16s* pDst, int len, ZorRoundMode rndMode, int scaleFactor)
{
    if (const ZorStatus bad = check(pointers(pSrc, pDst), length(len))) return bad;
    const Scale scale(scaleFactor);
    if (rndMode == zorRndZero)
        convertRounded<Zor16s, Rounding::zero>(pSrc, pDst, len, scale);
    else if (rndMode == zorRndNear)
        convertRounded<Zor16s, Rounding::nearestEven>(pSrc, pDst, len, scale);
    else
        convertRounded<Zor16s, Rounding::halfAway>(pSrc, pDst, len, scale);
    return zorStsOk;
}

} // namespace

ZORS_BIND(zorsConvert_16s32f_Sfs, convert16s32f)
ZORS_BIND(zorsConvert_32f16s_Sfs, convert32f16s)

} // namespace zors::ZORS_VARIANT
