// Floats to integers and to half floats, rounded as asked.
#include "frame/bind.h"
#include "scale.h"
#include "simd/bytes24.h"
#include "simd/check.h"
#include "simd/control.h"
#include "simd/half.h"

namespace zors::ZORS_VARIANT {
namespace {

template <Rounding rounding>
using Rounds = std::integral_constant<Rounding, rounding>;

// Calls run with the rounding for a loop: any other mode is the third one.
template <class Run>
void withRounding(ZorRoundMode rndMode, Run run)
{
    if (rndMode == zorRndZero)
        run(Rounds<Rounding::zero>{});
    else if (rndMode == zorRndNear)
        run(Rounds<Rounding::nearestEven>{});
    else
        run(Rounds<Rounding::halfAway>{});
}

template <class S, class D>
ZorStatus convert(const S* pSrc, D* pDst, int len, ZorRoundMode rndMode, int scaleFactor)
{
    if (const ZorStatus bad = check(pointers(pSrc, pDst), length(len))) return bad;
    const StandardArithmetic arithmetic;
    withScale<S>(scaleFactor, [=](auto scale) {
        withRounding(rndMode, [=](auto rounding) {
            const auto body = [=](auto at) {
                store(pDst, at, roundedTo<D, rounding()>(each(loadGroup(pSrc, at), scale)));
            };
            blocksInto<lanes<D>, 1, decltype(scale)>(len, body, pDst);
        });
    });
    return zorStsOk;
}

template <int least, int most>
ZorStatus convertTo24(const Zor32f* pSrc, Zor8u* pDst, int len, ZorRoundMode rndMode, int scaleFactor)
{
    if (const ZorStatus bad = check(pointers(pSrc, pDst), length(len))) return bad;
    const StandardArithmetic arithmetic;
    withScale<Zor32f>(scaleFactor, [=](auto scale) {
        withRounding(rndMode, [=](auto rounding) {
            blocks<lanes24, decltype(scale)>(len, [=](auto at) {
                const auto r = roundedBetween<rounding()>(least, most, scale(load(pSrc, at)));
                store24(pDst, at, (Vec<Zor32u>)r);
            });
        });
    });
    return zorStsOk;
}

ZorStatus oneOfTwo(ZorRoundMode rndMode)
{
    return require(rndMode == zorRndZero || rndMode == zorRndNear, zorStsBadRoundMode);
}

template <class S>
ZorStatus convertToHalf(const S* pSrc, Zor16f* pDst, int len, ZorRoundMode rndMode)
{
    if (const ZorStatus bad = check(pointers(pSrc, pDst), length(len), oneOfTwo(rndMode))) return bad;
    const StandardArithmetic arithmetic;
    const auto run = [=](auto rounding) {
        blocks<lanesHalf>(len, [=](auto at) {
            if constexpr (std::is_integral_v<S>)
                store(pDst, at, toHalf<rounding()>(toFloat<lanesHalf>(load(pSrc, at))));
            else
                store(pDst, at, toHalf<rounding()>(load(pSrc, at)));
        });
    };
    if (rndMode == zorRndZero)
        run(Rounds<Rounding::zero>{});
    else
        run(Rounds<Rounding::nearestEven>{});
    return zorStsOk;
}

ZorStatus convert16f16s(const Zor16f* pSrc, Zor16s* pDst, int len, ZorRoundMode rndMode, int scaleFactor)
{
    if (const ZorStatus bad = check(pointers(pSrc, pDst), length(len), oneOfTwo(rndMode))) return bad;
    const StandardArithmetic arithmetic;
    withScale<Zor32f>(scaleFactor, [=](auto scale) {
        withRounding(rndMode, [=](auto rounding) {
            blocks<lanes<Zor16s>, decltype(scale)>(len, [=](auto at) {
                const auto values =
                    grouped<lanesHalf>(at, [=](auto part) { return scale(fromHalf(load(pSrc, part))); });
                store(pDst, at, roundedTo<Zor16s, rounding()>(values));
            });
        });
    });
    return zorStsOk;
}

constexpr int most24s = (1 << 23) - 1, most24u = (1 << 24) - 1;

} // namespace

ZORS_BIND(zorsConvert_32f8s_Sfs, (convert<Zor32f, Zor8s>))
ZORS_BIND(zorsConvert_32f8u_Sfs, (convert<Zor32f, Zor8u>))
ZORS_BIND(zorsConvert_32f16s_Sfs, (convert<Zor32f, Zor16s>))
ZORS_BIND(zorsConvert_32f16u_Sfs, (convert<Zor32f, Zor16u>))
ZORS_BIND(zorsConvert_32f24s_Sfs, (convertTo24<-most24s - 1, most24s>))
ZORS_BIND(zorsConvert_32f24u_Sfs, (convertTo24<0, most24u>))
ZORS_BIND(zorsConvert_32f32s_Sfs, (convert<Zor32f, Zor32s>))
ZORS_BIND(zorsConvert_64f16s_Sfs, (convert<Zor64f, Zor16s>))
ZORS_BIND(zorsConvert_64f32s_Sfs, (convert<Zor64f, Zor32s>))
ZORS_BIND(zorsConvert_64f64s_Sfs, (convert<Zor64f, Zor64s>))

ZORS_BIND(zorsConvert_32f16f, convertToHalf<Zor32f>)
ZORS_BIND(zorsConvert_16s16f, convertToHalf<Zor16s>)
ZORS_BIND(zorsConvert_16f16s_Sfs, convert16f16s)

} // namespace zors::ZORS_VARIANT
