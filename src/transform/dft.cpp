// The transforms of any length of floating data.
#include "dft_transform.h"
#include "frame/bind.h"
#include "work.h"

namespace zors::ZORS_VARIANT {
namespace {

template <bool Inverse, class C, class Spec>
ZorStatus pairs(const C* pSrc, C* pDst, const Spec* pSpec, Zor8u* pBuffer)
{
    using T = typename KindOf<Spec>::Number;
    if (const ZorStatus bad = check(record(pSpec), pointers(pSrc, pDst))) return bad;
    const auto& r = *recordOf(pSpec);
    const Work work(r.workSize, pBuffer);
    if (work.missing()) return zorStsNoMemory;
    transformPairs(r, reinterpret_cast<const T*>(pSrc), reinterpret_cast<T*>(pDst), Inverse, work.as<T>());
    return zorStsOk;
}

template <bool Inverse, class T, class Spec>
ZorStatus parts(const T* pSrcRe, const T* pSrcIm, T* pDstRe, T* pDstIm, const Spec* pSpec, Zor8u* pBuffer)
{
    if (const ZorStatus bad = check(record(pSpec), pointers(pSrcRe, pSrcIm, pDstRe, pDstIm))) return bad;
    const auto& r = *recordOf(pSpec);
    const Work work(r.workSize, pBuffer);
    if (work.missing()) return zorStsNoMemory;
    transformParts(r, {pSrcRe, pSrcIm, pDstRe, pDstIm}, Inverse, work.as<T>());
    return zorStsOk;
}

template <bool Inverse, Packing packing, class T, class Spec>
ZorStatus real(const T* pSrc, T* pDst, const Spec* pSpec, Zor8u* pBuffer)
{
    if (const ZorStatus bad = check(record(pSpec), pointers(pSrc, pDst))) return bad;
    const auto& r = *recordOf(pSpec);
    const Work work(r.workSize, pBuffer);
    if (work.missing()) return zorStsNoMemory;
    if constexpr (Inverse)
        realDftInverse<packing>(r, pSrc, pDst, work.as<T>());
    else
        realDftForward<packing>(r, pSrc, pDst, work.as<T>());
    return zorStsOk;
}

} // namespace

#define ZORS_BIND_COMPLEX(type, kernel)                                                                      \
    ZORS_BIND(zorsDFTFwd_CToC_##type, (kernel<false, Zor##type, ZorsDFTSpec_C_##type>))                      \
    ZORS_BIND(zorsDFTInv_CToC_##type, (kernel<true, Zor##type, ZorsDFTSpec_C_##type>))

ZORS_BIND_COMPLEX(32fc, pairs)
ZORS_BIND_COMPLEX(64fc, pairs)
ZORS_BIND_COMPLEX(32f, parts)
ZORS_BIND_COMPLEX(64f, parts)

// The passes leave their results in order, so that nothing is to be gained by another one.
#define ZORS_BIND_OUT_OF_ORDER(type)                                                                         \
    ZORS_BIND(zorsDFTOutOrdFwd_CToC_##type, (pairs<false, Zor##type, ZorsDFTOutOrdSpec_C_##type>))           \
    ZORS_BIND(zorsDFTOutOrdInv_CToC_##type, (pairs<true, Zor##type, ZorsDFTOutOrdSpec_C_##type>))

ZORS_BIND_OUT_OF_ORDER(32fc)
ZORS_BIND_OUT_OF_ORDER(64fc)

#define ZORS_BIND_FORMAT(Format, packing, type)                                                              \
    ZORS_BIND(zorsDFTFwd_RTo##Format##_##type, (real<false, packing, Zor##type, ZorsDFTSpec_R_##type>))      \
    ZORS_BIND(zorsDFTInv_##Format##ToR_##type, (real<true, packing, Zor##type, ZorsDFTSpec_R_##type>))

#define ZORS_BIND_REAL(type)                                                                                 \
    ZORS_BIND_FORMAT(CCS, Packing::ccs, type)                                                                \
    ZORS_BIND_FORMAT(Pack, Packing::pack, type)                                                              \
    ZORS_BIND_FORMAT(Perm, Packing::perm, type)

ZORS_BIND_REAL(32f)
ZORS_BIND_REAL(64f)

} // namespace zors::ZORS_VARIANT
