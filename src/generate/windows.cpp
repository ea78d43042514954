#include "window.h"

#include "frame/bind.h"
#include "shapes.h"
#include "simd/check.h"
#include "vector/scale.h"

#include <cmath>

namespace zors::ZORS_VARIANT {
namespace {

template <template <class> class Shape, class W, class T>
void applyShape(const Shape<W>& shape, const T* pSrc, T* pDst, int len)
{
    // The shortest window has zeros for ends, also where the source is no number.
    if (Shape<W>::vanishes && len == 3) {
        pDst[1] = pSrc[1];
        pDst[0] = pDst[2] = T{};
    } else {
        weighBySymmetric(shape, pSrc, pDst, len, Nearest{});
    }
}

template <template <class> class Shape, class T>
ZorStatus window(const T* pSrc, T* pDst, int len)
{
    if (const ZorStatus bad = check(pointers(pSrc, pDst), length(len, 3))) return bad;
    applyShape(Shape<ParameterOf<T>>(len), pSrc, pDst, len);
    return zorStsOk;
}

Zor16s hammingEnd(Zor16s v)
{
    return static_cast<Zor16s>(static_cast<Zor32f>(v) * (0.54f - 0.46f));
}

Zor16sc hammingEnd(Zor16sc v)
{
    return {hammingEnd(v.re), hammingEnd(v.im)};
}

// The two ends are rounded toward zero.
template <class T>
ZorStatus hammingInteger(const T* pSrc, T* pDst, int len)
{
    if (const ZorStatus bad = check(pointers(pSrc, pDst), length(len, 3))) return bad;
    const T first = hammingEnd(pSrc[0]), last = hammingEnd(pSrc[len - 1]);
    applyShape(Hamming<ParameterOf<T>>(len), pSrc, pDst, len);
    pDst[0] = first;
    pDst[len - 1] = last;
    return zorStsOk;
}

template <class T>
ZorStatus blackman(const T* pSrc, T* pDst, int len, ParameterOf<T> alpha)
{
    if (const ZorStatus bad = check(pointers(pSrc, pDst), length(len, 3))) return bad;
    applyShape(Blackman<ParameterOf<T>>(len, alpha), pSrc, pDst, len);
    return zorStsOk;
}

template <class T>
ZorStatus blackmanStd(const T* pSrc, T* pDst, int len)
{
    return blackman(pSrc, pDst, len, static_cast<ParameterOf<T>>(-0.16));
}

template <class T>
ZorStatus blackmanOpt(const T* pSrc, T* pDst, int len)
{
    // At 3 the cosine is 0; shorter ones are refused in the same place, before the pointers.
    if (const ZorStatus bad = length(len, 4)) return bad;
    const double root = 0.5 / std::cos(std::numbers::pi / (len - 1));
    return blackman(pSrc, pDst, len, static_cast<ParameterOf<T>>(-(root * root)));
}

template <class T>
ZorStatus blackmanQ15(const T* pSrc, T* pDst, int len, int alphaQ15)
{
    return blackman(pSrc, pDst, len, static_cast<Zor32f>(fromQ15(alphaQ15)));
}

ZorStatus blackmanScaled(Zor16s* pSrcDst, int len, int alphaQ15, int scaleFactor)
{
    if (const ZorStatus bad = check(pointers(pSrcDst), length(len, 3))) return bad;
    const Blackman<Zor32f> shape(len, static_cast<Zor32f>(fromQ15(alphaQ15)));
    withScale<Zor32f>(scaleFactor, [&](auto scale) {
        const auto product = [scale]<class V, class W>(V v, W w) {
            constexpr int n = lanesOf<V>;
            return rounded<Zor16s, Rounding::nearestEven>(scale(toFloat<n>(v) * w));
        };
        weighBySymmetric(shape, pSrcDst, pSrcDst, len, product);
    });
    return zorStsOk;
}

} // namespace

ZORS_BIND(zorsWinBartlett_16s, (window<Bartlett, Zor16s>))
ZORS_BIND(zorsWinBartlett_16sc, (window<Bartlett, Zor16sc>))
ZORS_BIND(zorsWinBartlett_32f, (window<Bartlett, Zor32f>))
ZORS_BIND(zorsWinBartlett_32fc, (window<Bartlett, Zor32fc>))
ZORS_BIND(zorsWinBartlett_64f, (window<Bartlett, Zor64f>))
ZORS_BIND(zorsWinBartlett_64fc, (window<Bartlett, Zor64fc>))
ZORS_BIND(zorsWinBartlett_16s_I, (inPlace<window<Bartlett, Zor16s>>))
ZORS_BIND(zorsWinBartlett_16sc_I, (inPlace<window<Bartlett, Zor16sc>>))
ZORS_BIND(zorsWinBartlett_32f_I, (inPlace<window<Bartlett, Zor32f>>))
ZORS_BIND(zorsWinBartlett_32fc_I, (inPlace<window<Bartlett, Zor32fc>>))
ZORS_BIND(zorsWinBartlett_64f_I, (inPlace<window<Bartlett, Zor64f>>))
ZORS_BIND(zorsWinBartlett_64fc_I, (inPlace<window<Bartlett, Zor64fc>>))

ZORS_BIND(zorsWinHamming_16s, hammingInteger<Zor16s>)
ZORS_BIND(zorsWinHamming_16sc, hammingInteger<Zor16sc>)
ZORS_BIND(zorsWinHamming_32f, (window<Hamming, Zor32f>))
ZORS_BIND(zorsWinHamming_32fc, (window<Hamming, Zor32fc>))
ZORS_BIND(zorsWinHamming_64f, (window<Hamming, Zor64f>))
ZORS_BIND(zorsWinHamming_64fc, (window<Hamming, Zor64fc>))
ZORS_BIND(zorsWinHamming_16s_I, inPlace<hammingInteger<Zor16s>>)
ZORS_BIND(zorsWinHamming_16sc_I, inPlace<hammingInteger<Zor16sc>>)
ZORS_BIND(zorsWinHamming_32f_I, (inPlace<window<Hamming, Zor32f>>))
ZORS_BIND(zorsWinHamming_32fc_I, (inPlace<window<Hamming, Zor32fc>>))
ZORS_BIND(zorsWinHamming_64f_I, (inPlace<window<Hamming, Zor64f>>))
ZORS_BIND(zorsWinHamming_64fc_I, (inPlace<window<Hamming, Zor64fc>>))

ZORS_BIND(zorsWinHann_16s, (window<Hann, Zor16s>))
ZORS_BIND(zorsWinHann_16sc, (window<Hann, Zor16sc>))
ZORS_BIND(zorsWinHann_32f, (window<Hann, Zor32f>))
ZORS_BIND(zorsWinHann_32fc, (window<Hann, Zor32fc>))
ZORS_BIND(zorsWinHann_64f, (window<Hann, Zor64f>))
ZORS_BIND(zorsWinHann_64fc, (window<Hann, Zor64fc>))
ZORS_BIND(zorsWinHann_16s_I, (inPlace<window<Hann, Zor16s>>))
ZORS_BIND(zorsWinHann_16sc_I, (inPlace<window<Hann, Zor16sc>>))
ZORS_BIND(zorsWinHann_32f_I, (inPlace<window<Hann, Zor32f>>))
ZORS_BIND(zorsWinHann_32fc_I, (inPlace<window<Hann, Zor32fc>>))
ZORS_BIND(zorsWinHann_64f_I, (inPlace<window<Hann, Zor64f>>))
ZORS_BIND(zorsWinHann_64fc_I, (inPlace<window<Hann, Zor64fc>>))

ZORS_BIND(zorsWinBlackman_16s, blackman<Zor16s>)
ZORS_BIND(zorsWinBlackman_16sc, blackman<Zor16sc>)
ZORS_BIND(zorsWinBlackman_32f, blackman<Zor32f>)
ZORS_BIND(zorsWinBlackman_32fc, blackman<Zor32fc>)
ZORS_BIND(zorsWinBlackman_64f, blackman<Zor64f>)
ZORS_BIND(zorsWinBlackman_64fc, blackman<Zor64fc>)
ZORS_BIND(zorsWinBlackman_16s_I, inPlace<blackman<Zor16s>>)
ZORS_BIND(zorsWinBlackman_16sc_I, inPlace<blackman<Zor16sc>>)
ZORS_BIND(zorsWinBlackman_32f_I, inPlace<blackman<Zor32f>>)
ZORS_BIND(zorsWinBlackman_32fc_I, inPlace<blackman<Zor32fc>>)
ZORS_BIND(zorsWinBlackman_64f_I, inPlace<blackman<Zor64f>>)
ZORS_BIND(zorsWinBlackman_64fc_I, inPlace<blackman<Zor64fc>>)

ZORS_BIND(zorsWinBlackmanStd_16s, blackmanStd<Zor16s>)
ZORS_BIND(zorsWinBlackmanStd_16sc, blackmanStd<Zor16sc>)
ZORS_BIND(zorsWinBlackmanStd_32f, blackmanStd<Zor32f>)
ZORS_BIND(zorsWinBlackmanStd_32fc, blackmanStd<Zor32fc>)
ZORS_BIND(zorsWinBlackmanStd_64f, blackmanStd<Zor64f>)
ZORS_BIND(zorsWinBlackmanStd_64fc, blackmanStd<Zor64fc>)
ZORS_BIND(zorsWinBlackmanStd_16s_I, inPlace<blackmanStd<Zor16s>>)
ZORS_BIND(zorsWinBlackmanStd_16sc_I, inPlace<blackmanStd<Zor16sc>>)
ZORS_BIND(zorsWinBlackmanStd_32f_I, inPlace<blackmanStd<Zor32f>>)
ZORS_BIND(zorsWinBlackmanStd_32fc_I, inPlace<blackmanStd<Zor32fc>>)
ZORS_BIND(zorsWinBlackmanStd_64f_I, inPlace<blackmanStd<Zor64f>>)
ZORS_BIND(zorsWinBlackmanStd_64fc_I, inPlace<blackmanStd<Zor64fc>>)

ZORS_BIND(zorsWinBlackmanOpt_16s, blackmanOpt<Zor16s>)
ZORS_BIND(zorsWinBlackmanOpt_16sc, blackmanOpt<Zor16sc>)
ZORS_BIND(zorsWinBlackmanOpt_32f, blackmanOpt<Zor32f>)
ZORS_BIND(zorsWinBlackmanOpt_32fc, blackmanOpt<Zor32fc>)
ZORS_BIND(zorsWinBlackmanOpt_64f, blackmanOpt<Zor64f>)
ZORS_BIND(zorsWinBlackmanOpt_64fc, blackmanOpt<Zor64fc>)
ZORS_BIND(zorsWinBlackmanOpt_16s_I, inPlace<blackmanOpt<Zor16s>>)
ZORS_BIND(zorsWinBlackmanOpt_16sc_I, inPlace<blackmanOpt<Zor16sc>>)
ZORS_BIND(zorsWinBlackmanOpt_32f_I, inPlace<blackmanOpt<Zor32f>>)
ZORS_BIND(zorsWinBlackmanOpt_32fc_I, inPlace<blackmanOpt<Zor32fc>>)
ZORS_BIND(zorsWinBlackmanOpt_64f_I, inPlace<blackmanOpt<Zor64f>>)
ZORS_BIND(zorsWinBlackmanOpt_64fc_I, inPlace<blackmanOpt<Zor64fc>>)

ZORS_BIND(zorsWinBlackmanQ15_16s, blackmanQ15<Zor16s>)
ZORS_BIND(zorsWinBlackmanQ15_16sc, blackmanQ15<Zor16sc>)
ZORS_BIND(zorsWinBlackmanQ15_16s_I, inPlace<blackmanQ15<Zor16s>>)
ZORS_BIND(zorsWinBlackmanQ15_16sc_I, inPlace<blackmanQ15<Zor16sc>>)
ZORS_BIND(zorsWinBlackmanQ15_16s_ISfs, blackmanScaled)

} // namespace zors::ZORS_VARIANT
