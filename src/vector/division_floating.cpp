#include "divisors.h"
#include "frame/bind.h"
#include "simd/check.h"

namespace zors::ZORS_VARIANT {
namespace {

template <class T>
ZorStatus divide(auto divisor, auto dividend, T* pDst, int len)
{
    blocks<lanes<T>>(len, [=](auto at) { store(pDst, at, dividend(at) / divisor(at)); });
    return zorStsOk;
}

template <class T>
ZorStatus div(const T* pSrc1, const T* pSrc2, T* pDst, int len)
{
    if (const ZorStatus bad = check(pointers(pSrc1, pSrc2, pDst), length(len))) return bad;
    return divide(divisors(pSrc1), elements(pSrc2), pDst, len);
}

template <class T>
ZorStatus divInPlace(const T* pSrc, T* pSrcDst, int len)
{
    return div<T>(pSrc, pSrcDst, pSrcDst, len);
}

template <class T>
ZorStatus divC(const T* pSrc, T val, T* pDst, int len)
{
    if (const ZorStatus bad = check(pointers(pSrc, pDst), length(len))) return bad;
    return divide(constant(val), elements(pSrc), pDst, len);
}

template <class T>
ZorStatus divCInPlace(T val, T* pSrcDst, int len)
{
    return divC<T>(pSrcDst, val, pSrcDst, len);
}

ZorStatus divCRev(const Zor32f* pSrc, Zor32f val, Zor32f* pDst, int len)
{
    if (const ZorStatus bad = check(pointers(pSrc, pDst), length(len))) return bad;
    return divide(divisors(pSrc), constant(val), pDst, len);
}

ZorStatus divCRevInPlace(Zor32f val, Zor32f* pSrcDst, int len)
{
    return divCRev(pSrcDst, val, pSrcDst, len);
}

} // namespace

ZORS_BIND(zorsDiv_32f, div<Zor32f>)
ZORS_BIND(zorsDiv_64f, div<Zor64f>)
ZORS_BIND(zorsDiv_32f_I, divInPlace<Zor32f>)
ZORS_BIND(zorsDiv_64f_I, divInPlace<Zor64f>)
ZORS_BIND(zorsDivC_32f, divC<Zor32f>)
ZORS_BIND(zorsDivC_64f, divC<Zor64f>)
ZORS_BIND(zorsDivC_32f_I, divCInPlace<Zor32f>)
ZORS_BIND(zorsDivC_64f_I, divCInPlace<Zor64f>)
ZORS_BIND(zorsDivCRev_32f, divCRev)
ZORS_BIND(zorsDivCRev_32f_I, divCRevInPlace)

} // namespace zors::ZORS_VARIANT
