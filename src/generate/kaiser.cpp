#include "window.h"

#include "bessel.h"
#include "frame/bind.h"
#include "simd/check.h"

#include <cmath>

namespace zors::ZORS_VARIANT {
namespace {

// The integer forms keep the weight in double precision.
template <class T>
using WeightOf = std::conditional_t<std::is_same_v<Lane<T>, Zor32f>, Zor32f, Zor64f>;

// The largest beta: beyond it the Bessel function would leave the range of the type.
template <class T>
inline constexpr double betaLimit = std::is_same_v<WeightOf<T>, Zor32f> ? 38.0 : 308.0;

// A product rounded half away from zero after saturation; what is not a number gives 0.
struct HalfAway {
    template <class V, class W>
    V operator()(V v, W w) const
    {
        if constexpr (std::is_same_v<V, W>) {
            return v * w;
        } else {
            W x = toDouble<lanes<double>>(v) * w;
            x = select(x > 32767.0, splat(32767.0), select(x < -32768.0, splat(-32768.0), x));
            const auto r = truncated(x + select(x >= 0.0, splat(0.5), splat(-0.5)));
            return narrowed<Zor16s, lanesOf<V>>(r);
        }
    }
};

template <class T>
ZorStatus checkedKaiser(const T* pSrc, T* pDst, int len, double alpha)
{
    const double magnitude = std::abs(alpha);
    if (const ZorStatus bad =
            check(pointers(pSrc, pDst), length(len),
                  require(magnitude * (len - 1.0) * 0.5 <= betaLimit<T>, zorStsBadKaiserAlpha)))
        return bad;
    weighBySymmetric(Kaiser<WeightOf<T>>(len, magnitude), pSrc, pDst, len, HalfAway{});
    return zorStsOk;
}

template <class T>
ZorStatus kaiser(const T* pSrc, T* pDst, int len, ParameterOf<T> alpha)
{
    return checkedKaiser(pSrc, pDst, len, alpha);
}

template <class T>
ZorStatus kaiserQ15(const T* pSrc, T* pDst, int len, int alphaQ15)
{
    return checkedKaiser(pSrc, pDst, len, fromQ15(alphaQ15));
}

} // namespace

ZORS_BIND(zorsWinKaiser_16s, kaiser<Zor16s>)
ZORS_BIND(zorsWinKaiser_16sc, kaiser<Zor16sc>)
ZORS_BIND(zorsWinKaiser_32f, kaiser<Zor32f>)
ZORS_BIND(zorsWinKaiser_32fc, kaiser<Zor32fc>)
ZORS_BIND(zorsWinKaiser_64f, kaiser<Zor64f>)
ZORS_BIND(zorsWinKaiser_64fc, kaiser<Zor64fc>)
ZORS_BIND(zorsWinKaiser_16s_I, inPlace<kaiser<Zor16s>>)
ZORS_BIND(zorsWinKaiser_16sc_I, inPlace<kaiser<Zor16sc>>)
ZORS_BIND(zorsWinKaiser_32f_I, inPlace<kaiser<Zor32f>>)
ZORS_BIND(zorsWinKaiser_32fc_I, inPlace<kaiser<Zor32fc>>)
ZORS_BIND(zorsWinKaiser_64f_I, inPlace<kaiser<Zor64f>>)
ZORS_BIND(zorsWinKaiser_64fc_I, inPlace<kaiser<Zor64fc>>)

ZORS_BIND(zorsWinKaiserQ15_16s, kaiserQ15<Zor16s>)
ZORS_BIND(zorsWinKaiserQ15_16sc, kaiserQ15<Zor16sc>)
ZORS_BIND(zorsWinKaiserQ15_16s_I, inPlace<kaiserQ15<Zor16s>>)
ZORS_BIND(zorsWinKaiserQ15_16sc_I, inPlace<kaiserQ15<Zor16sc>>)

} // namespace zors::ZORS_VARIANT
