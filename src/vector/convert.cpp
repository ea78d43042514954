// Widening, and integers to floats.
#include "simd/convert.h"
#include "frame/bind.h"
#include "scale.h"
#include "simd/bytes24.h"
#include "simd/check.h"
#include "simd/control.h"
#include "simd/half.h"

namespace zors::ZORS_VARIANT {
namespace {

template <class D, class S, int N>
Vec<D, N> converted(Vec<S, N> v)
{
    if constexpr (std::is_same_v<D, Zor32f>)
        return toFloat<N>(v);
    else if constexpr (std::is_same_v<D, Zor64f>)
        return toDouble<N>(v);
    else
        return widened<D, S, N>(v);
}

template <class S, class D, class Scaling>
void convertBlocks(const S* pSrc, D* pDst, int len, Scaling scale)
{
    constexpr int step = std::min(lanes<S>, lanes<D>);
    const auto body = [=](auto at) { store(pDst, at, scale(converted<D, S, step>(load(pSrc, at)))); };
    if constexpr (step == lanes<D>)
        blocksInto<step, 1, Scaling>(len, body, pDst);
    else
        blocks<step, Scaling>(len, body);
}

template <class S, class D>
ZorStatus convert(const S* pSrc, D* pDst, int len)
{
    if (const ZorStatus bad = check(pointers(pSrc, pDst), length(len))) return bad;
    const auto run = [=] { convertBlocks(pSrc, pDst, len, AsItIs{}); };
    if constexpr (std::is_integral_v<S> && std::numeric_limits<S>::digits <= std::numeric_limits<D>::digits) {
        run();
    } else {
        const StandardArithmetic arithmetic;
        run();
    }
    return zorStsOk;
}

template <class S, class D>
ZorStatus convertScaled(const S* pSrc, D* pDst, int len, int scaleFactor)
{
    if (const ZorStatus bad = check(pointers(pSrc, pDst), length(len))) return bad;
    constexpr int exactScale = 90; // no product with 32 bits is beyond the normal floats
    constexpr bool isExact = std::numeric_limits<S>::digits <= std::numeric_limits<D>::digits;
    if (isExact && -exactScale <= scaleFactor && scaleFactor <= exactScale) {
        convertBlocks(pSrc, pDst, len, ScaledOnce<D>{powerOfTwo<D>(-scaleFactor)});
        return zorStsOk;
    }
    const StandardArithmetic arithmetic;
    withScale<D>(scaleFactor, [=](auto scale) { convertBlocks(pSrc, pDst, len, scale); });
    return zorStsOk;
}

// A float rounds 32 bits already before the scaling; where the result may be denormal the one rounding is that
// of a double to a float.
ZorStatus convert32s32fScaled(const Zor32s* pSrc, Zor32f* pDst, int len, int scaleFactor)
{
    constexpr int mostNormal = 126;
    if (scaleFactor <= mostNormal) return convertScaled(pSrc, pDst, len, scaleFactor);
    if (const ZorStatus bad = check(pointers(pSrc, pDst), length(len))) return bad;
    const StandardArithmetic arithmetic;
    constexpr int step = lanes<Zor64f>;
    withScale<Zor64f>(scaleFactor, [=](auto scale) {
        blocks<step, decltype(scale)>(
            len, [=](auto at) { store(pDst, at, toFloat<step>(scale(toDouble<step>(load(pSrc, at))))); });
    });
    return zorStsOk;
}

template <class D, bool isSigned>
ZorStatus convert24(const Zor8u* pSrc, D* pDst, int len)
{
    if (const ZorStatus bad = check(pointers(pSrc, pDst), length(len))) return bad;
    blocks<lanes24>(len, [=](auto at) {
        const Vec<Zor32u> v = load24(pSrc, at);
        const auto full = isSigned ? (Vec<Zor32s>)(v << 8) >> 8 : (Vec<Zor32s>)v;
        if constexpr (std::is_integral_v<D>)
            store(pDst, at, (Vec<D>)full);
        else
            store(pDst, at, toFloat<lanes24>(full));
    });
    return zorStsOk;
}

ZorStatus convert16f32f(const Zor16f* pSrc, Zor32f* pDst, int len)
{
    if (const ZorStatus bad = check(pointers(pSrc, pDst), length(len))) return bad;
    const StandardArithmetic arithmetic;
    blocksInto<lanesHalf>(
        len, [=](auto at) { store(pDst, at, fromHalf(load(pSrc, at))); }, pDst);
    return zorStsOk;
}

} // namespace

ZORS_BIND(zorsConvert_8s16s, (convert<Zor8s, Zor16s>))
ZORS_BIND(zorsConvert_16s32s, (convert<Zor16s, Zor32s>))
ZORS_BIND(zorsConvert_8s32f, (convert<Zor8s, Zor32f>))
ZORS_BIND(zorsConvert_8u32f, (convert<Zor8u, Zor32f>))
ZORS_BIND(zorsConvert_16s32f, (convert<Zor16s, Zor32f>))
ZORS_BIND(zorsConvert_16u32f, (convert<Zor16u, Zor32f>))
ZORS_BIND(zorsConvert_32s32f, (convert<Zor32s, Zor32f>))
ZORS_BIND(zorsConvert_32s64f, (convert<Zor32s, Zor64f>))
ZORS_BIND(zorsConvert_64s64f, (convert<Zor64s, Zor64f>))
ZORS_BIND(zorsConvert_32f64f, (convert<Zor32f, Zor64f>))
ZORS_BIND(zorsConvert_64f32f, (convert<Zor64f, Zor32f>))
ZORS_BIND(zorsConvert_16f32f, convert16f32f)

ZORS_BIND(zorsConvert_24s32s, (convert24<Zor32s, true>))
ZORS_BIND(zorsConvert_24u32u, (convert24<Zor32u, false>))
ZORS_BIND(zorsConvert_24s32f, (convert24<Zor32f, true>))
ZORS_BIND(zorsConvert_24u32f, (convert24<Zor32f, false>))

ZORS_BIND(zorsConvert_16s32f_Sfs, (convertScaled<Zor16s, Zor32f>))
ZORS_BIND(zorsConvert_32s32f_Sfs, convert32s32fScaled)
ZORS_BIND(zorsConvert_16s64f_Sfs, (convertScaled<Zor16s, Zor64f>))
ZORS_BIND(zorsConvert_32s64f_Sfs, (convertScaled<Zor32s, Zor64f>))

} // namespace zors::ZORS_VARIANT
