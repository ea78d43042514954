#include "engine.h"
#include "frame/bind.h"
#include "simd/check.h"
#include "work.h"

namespace zors::ZORS_VARIANT {
namespace {

// By value where it goes in registers.
template <class Arrays>
using Passed = std::conditional_t<sizeof(Arrays) <= 2 * sizeof(void*), Arrays, const Arrays&>;

template <class Arrays, class T>
[[gnu::noinline]] ZorStatus shortTransform(int order, Passed<Arrays> io, const T* factor)
{
    smallTransform(order, io, factor);
    return zorStsOk;
}

template <class Arrays, class T>
[[gnu::noinline]] ZorStatus longTransform(const FloatRecord<T>& spec, Passed<Arrays> io, const T* factor,
                                          Zor8u* pBuffer)
{
    const Work work(spec.workSize, pBuffer);
    if (work.missing()) return zorStsNoMemory;
    complexTransform(spec, spec.order, spec.order, io, factor, work.as<T>());
    return zorStsOk;
}

// Each by a jump, as the shortest take no longer than a few calls and a frame on the stack would.
template <class T, class Arrays>
inline ZorStatus transform(const FloatRecord<T>& spec, const Arrays& io, bool inverse, Zor8u* pBuffer)
{
    const T* factor = (inverse ? spec.scalesInverse : spec.scalesForward) ? &spec.factor : nullptr;
    if (spec.order <= mostSmallOrder) return shortTransform<Arrays>(spec.order, io, factor);
    return longTransform<Arrays>(spec, io, factor, pBuffer);
}

template <bool Inverse, class C, class Spec>
ZorStatus pairs(const C* pSrc, C* pDst, const Spec* pSpec, Zor8u* pBuffer)
{
    using T = decltype(C::re);
    if (const ZorStatus bad = check(record(pSpec), pointers(pSrc, pDst))) return bad;
    const PairedArrays<T, Inverse> io{reinterpret_cast<const T*>(pSrc), reinterpret_cast<T*>(pDst)};
    return transform(*recordOf(pSpec), io, Inverse, pBuffer);
}

template <bool Inverse, class C, class Spec>
ZorStatus pairsInPlace(C* pSrcDst, const Spec* pSpec, Zor8u* pBuffer)
{
    return pairs<Inverse, C>(pSrcDst, pSrcDst, pSpec, pBuffer);
}

template <bool Inverse, class T, class Spec>
ZorStatus split(const T* pSrcRe, const T* pSrcIm, T* pDstRe, T* pDstIm, const Spec* pSpec, Zor8u* pBuffer)
{
    if (const ZorStatus bad = check(record(pSpec), pointers(pSrcRe, pSrcIm, pDstRe, pDstIm))) return bad;
    const SplitArrays<T> io = Inverse ? SplitArrays<T>{pSrcIm, pSrcRe, pDstIm, pDstRe}
                                      : SplitArrays<T>{pSrcRe, pSrcIm, pDstRe, pDstIm};
    return transform(*recordOf(pSpec), io, Inverse, pBuffer);
}

template <bool Inverse, class T, class Spec>
ZorStatus splitInPlace(T* pSrcDstRe, T* pSrcDstIm, const Spec* pSpec, Zor8u* pBuffer)
{
    return split<Inverse, T>(pSrcDstRe, pSrcDstIm, pSrcDstRe, pSrcDstIm, pSpec, pBuffer);
}

} // namespace

#define ZORS_BIND_COMPLEX(type, kernel)                                                                      \
    ZORS_BIND(zorsFFTFwd_CToC_##type, (kernel<false, Zor##type, ZorsFFTSpec_C_##type>))                      \
    ZORS_BIND(zorsFFTInv_CToC_##type, (kernel<true, Zor##type, ZorsFFTSpec_C_##type>))                       \
    ZORS_BIND(zorsFFTFwd_CToC_##type##_I, (kernel##InPlace<false, Zor##type, ZorsFFTSpec_C_##type>))         \
    ZORS_BIND(zorsFFTInv_CToC_##type##_I, (kernel##InPlace<true, Zor##type, ZorsFFTSpec_C_##type>))

ZORS_BIND_COMPLEX(32fc, pairs)
ZORS_BIND_COMPLEX(64fc, pairs)
ZORS_BIND_COMPLEX(32f, split)
ZORS_BIND_COMPLEX(64f, split)

} // namespace zors::ZORS_VARIANT
