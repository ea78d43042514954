#include "frame/bind.h"
#include "realengine.h"
#include "simd/check.h"
#include "work.h"

namespace zors::ZORS_VARIANT {
namespace {

template <bool Inverse, Packing packing, class T, class Spec>
ZorStatus real(const T* pSrc, T* pDst, const Spec* pSpec, Zor8u* pBuffer)
{
    if (const ZorStatus bad = check(record(pSpec), pointers(pSrc, pDst))) return bad;
    const auto& spec = *recordOf(pSpec);
    const Work work(spec.workSize, pBuffer);
    if (work.missing()) return zorStsNoMemory;
    if constexpr (Inverse)
        realInverse<packing>(spec, pSrc, pDst, work.as<T>());
    else
        realForward<packing>(spec, pSrc, pDst, work.as<T>());
    return zorStsOk;
}

template <bool Inverse, Packing packing, class T, class Spec>
ZorStatus realInPlace(T* pSrcDst, const Spec* pSpec, Zor8u* pBuffer)
{
    return real<Inverse, packing, T>(pSrcDst, pSrcDst, pSpec, pBuffer);
}

} // namespace

#define ZORS_BIND_FORMAT(Format, packing, type)                                                              \
    ZORS_BIND(zorsFFTFwd_RTo##Format##_##type, (real<false, packing, Zor##type, ZorsFFTSpec_R_##type>))      \
    ZORS_BIND(zorsFFTInv_##Format##ToR_##type, (real<true, packing, Zor##type, ZorsFFTSpec_R_##type>))       \
    ZORS_BIND(zorsFFTFwd_RTo##Format##_##type##_I,                                                           \
              (realInPlace<false, packing, Zor##type, ZorsFFTSpec_R_##type>))                                \
    ZORS_BIND(zorsFFTInv_##Format##ToR_##type##_I,                                                           \
              (realInPlace<true, packing, Zor##type, ZorsFFTSpec_R_##type>))

#define ZORS_BIND_REAL(type)                                                                                 \
    ZORS_BIND_FORMAT(CCS, Packing::ccs, type)                                                                \
    ZORS_BIND_FORMAT(Pack, Packing::pack, type)                                                              \
    ZORS_BIND_FORMAT(Perm, Packing::perm, type)

ZORS_BIND_REAL(32f)
ZORS_BIND_REAL(64f)

} // namespace zors::ZORS_VARIANT
