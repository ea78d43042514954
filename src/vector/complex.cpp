#include "simd/complex.h"
#include "frame/bind.h"
#include "simd/check.h"

namespace zors::ZORS_VARIANT {
namespace {

template <class C>
using PartOf = decltype(C::re);

template <class C>
const PartOf<C>* parts(const C* p)
{
    return reinterpret_cast<const PartOf<C>*>(p);
}

template <class C>
ZorStatus real(const C* pSrc, PartOf<C>* pDst, int len)
{
    if (const ZorStatus bad = check(pointers(pSrc, pDst), length(len))) return bad;
    blocksInto<lanes<PartOf<C>>>(
        len, [=](auto at) { store(pDst, at, loadPairs(parts(pSrc), at).first); }, pDst);
    return zorStsOk;
}

template <class C>
ZorStatus imag(const C* pSrc, PartOf<C>* pDst, int len)
{
    if (const ZorStatus bad = check(pointers(pSrc, pDst), length(len))) return bad;
    blocksInto<lanes<PartOf<C>>>(
        len, [=](auto at) { store(pDst, at, loadPairs(parts(pSrc), at).second); }, pDst);
    return zorStsOk;
}

template <class C>
ZorStatus cplxToReal(const C* pSrc, PartOf<C>* pDstRe, PartOf<C>* pDstIm, int len)
{
    if (const ZorStatus bad = check(pointers(pSrc, pDstRe, pDstIm), length(len))) return bad;
    const auto body = [=](auto at) {
        const auto v = loadPairs(parts(pSrc), at);
        store(pDstRe, at, v.first);
        store(pDstIm, at, v.second);
    };
    blocksInto<lanes<PartOf<C>>>(len, body, pDstRe, pDstIm);
    return zorStsOk;
}

template <class C, class T = PartOf<C>>
ZorStatus realToCplx(const T* pSrcRe, const T* pSrcIm, C* pDst, int len)
{
    if (const ZorStatus bad =
            check(pointers(pDst), require(pSrcRe || pSrcIm, zorStsNullPointer), length(len)))
        return bad;
    constexpr int n = lanes<T>;
    const auto join = [=](auto loadRe, auto loadIm) {
        blocksInto<n>(
            len, [=](auto at) { storePairs(reinterpret_cast<T*>(pDst), at, loadRe(at), loadIm(at)); }, pDst);
    };
    const auto re = [=](auto at) { return load(pSrcRe, at); };
    const auto im = [=](auto at) { return load(pSrcIm, at); };
    const auto none = [](auto) { return Vec<T>{}; };
    if (!pSrcIm)
        join(re, none);
    else if (!pSrcRe)
        join(none, im);
    else
        join(re, im);
    return zorStsOk;
}

} // namespace

ZORS_BIND(zorsReal_16sc, real<Zor16sc>)
ZORS_BIND(zorsReal_32fc, real<Zor32fc>)
ZORS_BIND(zorsReal_64fc, real<Zor64fc>)
ZORS_BIND(zorsImag_16sc, imag<Zor16sc>)
ZORS_BIND(zorsImag_32fc, imag<Zor32fc>)
ZORS_BIND(zorsImag_64fc, imag<Zor64fc>)

ZORS_BIND(zorsCplxToReal_16sc, cplxToReal<Zor16sc>)
ZORS_BIND(zorsCplxToReal_32fc, cplxToReal<Zor32fc>)
ZORS_BIND(zorsCplxToReal_64fc, cplxToReal<Zor64fc>)

ZORS_BIND(zorsRealToCplx_16s, realToCplx<Zor16sc>)
ZORS_BIND(zorsRealToCplx_32f, realToCplx<Zor32fc>)
ZORS_BIND(zorsRealToCplx_64f, realToCplx<Zor64fc>)

} // namespace zors::ZORS_VARIANT
