#include "integer.h"
#include "frame/bind.h"
#include "realengine.h"
#include "simd/check.h"
#include "work.h"

namespace zors::ZORS_VARIANT {
namespace {

// The floating kind inside an integer kind, and one call's room: first the numbers, then the nested work.
template <class Spec>
class Nested {
public:
    using Kind = KindOf<typename KindOf<Spec>::Nested>;
    using T = typename Kind::Number;

    Nested(const Spec* pSpec, Zor8u* pBuffer) : r_(*recordOf(pSpec)), work_(r_.workSize, pBuffer) {}

    bool missing() const { return work_.missing(); }
    std::ptrdiff_t points() const { return std::ptrdiff_t{1} << r_.order; }
    const FloatRecord<T>& spec() const { return *static_cast<const FloatRecord<T>*>(r_.nested); }
    T* numbers() const { return work_.as<T>(); }
    T* work() const { return reinterpret_cast<T*>(work_.memory() + convertedBytes<KindOf<Spec>>(r_.order)); }

    template <class Arrays>
    void transform(const Arrays& io, bool inverse) const
    {
        const bool scales = inverse ? spec().scalesInverse : spec().scalesForward;
        complexTransform(spec(), r_.order, r_.order, io, scales ? &spec().factor : nullptr, work());
    }

private:
    const typename KindOf<Spec>::Record& r_;
    Work work_;
};

template <bool Inverse, class C, class Spec>
ZorStatus pairs(const C* pSrc, C* pDst, const Spec* pSpec, int scaleFactor, Zor8u* pBuffer)
{
    using I = decltype(C::re);
    using T = typename Nested<Spec>::T;
    if (const ZorStatus bad = check(record(pSpec), pointers(pSrc, pDst))) return bad;
    const Nested<Spec> nested(pSpec, pBuffer);
    if (nested.missing()) return zorStsNoMemory;
    T* p = nested.numbers();
    toNumbers(reinterpret_cast<const I*>(pSrc), p, 2 * nested.points());
    nested.transform(PairedArrays<T, Inverse>{p, p}, Inverse);
    toIntegers(p, reinterpret_cast<I*>(pDst), 2 * nested.points(), scaleFactor);
    return zorStsOk;
}

template <bool Inverse, class C, class Spec>
ZorStatus pairsInPlace(C* pSrcDst, const Spec* pSpec, int scaleFactor, Zor8u* pBuffer)
{
    return pairs<Inverse, C>(pSrcDst, pSrcDst, pSpec, scaleFactor, pBuffer);
}

template <bool Inverse, class I, class Spec>
ZorStatus split(const I* pSrcRe, const I* pSrcIm, I* pDstRe, I* pDstIm, const Spec* pSpec, int scaleFactor,
                Zor8u* pBuffer)
{
    using T = typename Nested<Spec>::T;
    if (const ZorStatus bad = check(record(pSpec), pointers(pSrcRe, pSrcIm, pDstRe, pDstIm))) return bad;
    const Nested<Spec> nested(pSpec, pBuffer);
    if (nested.missing()) return zorStsNoMemory;
    const std::ptrdiff_t n = nested.points();
    T *re = nested.numbers(), *im = re + n;
    toNumbers(pSrcRe, re, n);
    toNumbers(pSrcIm, im, n);
    nested.transform(Inverse ? SplitArrays<T>{im, re, im, re} : SplitArrays<T>{re, im, re, im}, Inverse);
    toIntegers(re, pDstRe, n, scaleFactor);
    toIntegers(im, pDstIm, n, scaleFactor);
    return zorStsOk;
}

template <bool Inverse, class I, class Spec>
ZorStatus splitInPlace(I* pSrcDstRe, I* pSrcDstIm, const Spec* pSpec, int scaleFactor, Zor8u* pBuffer)
{
    return split<Inverse, I>(pSrcDstRe, pSrcDstIm, pSrcDstRe, pSrcDstIm, pSpec, scaleFactor, pBuffer);
}

// Numbers in a spectrum; CCS has the zeros as well.
template <Packing packing>
std::ptrdiff_t spectrumLength(std::ptrdiff_t n)
{
    return packing != Packing::ccs ? n : n == 1 ? 2 : n + 2;
}

template <Packing packing, class I, class J, class Spec>
ZorStatus realForward(const I* pSrc, J* pDst, const Spec* pSpec, int scaleFactor, Zor8u* pBuffer)
{
    if (const ZorStatus bad = check(record(pSpec), pointers(pSrc, pDst))) return bad;
    const Nested<Spec> nested(pSpec, pBuffer);
    if (nested.missing()) return zorStsNoMemory;
    auto* p = nested.numbers();
    toNumbers(pSrc, p, nested.points());
    realForward<packing>(nested.spec(), p, p, nested.work());
    toIntegers(p, pDst, spectrumLength<packing>(nested.points()), scaleFactor);
    return zorStsOk;
}

template <Packing packing, class I, class J, class Spec>
ZorStatus realInverse(const I* pSrc, J* pDst, const Spec* pSpec, int scaleFactor, Zor8u* pBuffer)
{
    if (const ZorStatus bad = check(record(pSpec), pointers(pSrc, pDst))) return bad;
    const Nested<Spec> nested(pSpec, pBuffer);
    if (nested.missing()) return zorStsNoMemory;
    auto* p = nested.numbers();
    toNumbers(pSrc, p, spectrumLength<packing>(nested.points()));
    realInverse<packing>(nested.spec(), p, p, nested.work());
    toIntegers(p, pDst, nested.points(), scaleFactor);
    return zorStsOk;
}

template <Packing packing, class I, class Spec>
ZorStatus realForwardInPlace(I* pSrcDst, const Spec* pSpec, int scaleFactor, Zor8u* pBuffer)
{
    return realForward<packing, I, I>(pSrcDst, pSrcDst, pSpec, scaleFactor, pBuffer);
}

template <Packing packing, class I, class Spec>
ZorStatus realInverseInPlace(I* pSrcDst, const Spec* pSpec, int scaleFactor, Zor8u* pBuffer)
{
    return realInverse<packing, I, I>(pSrcDst, pSrcDst, pSpec, scaleFactor, pBuffer);
}

} // namespace

#define ZORS_BIND_COMPLEX(type, kernel)                                                                      \
    ZORS_BIND(zorsFFTFwd_CToC_##type##_Sfs, (kernel<false, Zor##type, ZorsFFTSpec_C_##type>))                \
    ZORS_BIND(zorsFFTInv_CToC_##type##_Sfs, (kernel<true, Zor##type, ZorsFFTSpec_C_##type>))                 \
    ZORS_BIND(zorsFFTFwd_CToC_##type##_ISfs, (kernel##InPlace<false, Zor##type, ZorsFFTSpec_C_##type>))      \
    ZORS_BIND(zorsFFTInv_CToC_##type##_ISfs, (kernel##InPlace<true, Zor##type, ZorsFFTSpec_C_##type>))

ZORS_BIND_COMPLEX(16sc, pairs)
ZORS_BIND_COMPLEX(32sc, pairs)
ZORS_BIND_COMPLEX(16s, split)
ZORS_BIND_COMPLEX(32s, split)

#define ZORS_BIND_FORMAT(Format, packing, type)                                                              \
    ZORS_BIND(zorsFFTFwd_RTo##Format##_##type##_Sfs,                                                         \
              (realForward<packing, Zor##type, Zor##type, ZorsFFTSpec_R_##type>))                            \
    ZORS_BIND(zorsFFTInv_##Format##ToR_##type##_Sfs,                                                         \
              (realInverse<packing, Zor##type, Zor##type, ZorsFFTSpec_R_##type>))                            \
    ZORS_BIND(zorsFFTFwd_RTo##Format##_##type##_ISfs,                                                        \
              (realForwardInPlace<packing, Zor##type, ZorsFFTSpec_R_##type>))                                \
    ZORS_BIND(zorsFFTInv_##Format##ToR_##type##_ISfs,                                                        \
              (realInverseInPlace<packing, Zor##type, ZorsFFTSpec_R_##type>))

#define ZORS_BIND_REAL(type)                                                                                 \
    ZORS_BIND_FORMAT(CCS, Packing::ccs, type)                                                                \
    ZORS_BIND_FORMAT(Pack, Packing::pack, type)                                                              \
    ZORS_BIND_FORMAT(Perm, Packing::perm, type)

ZORS_BIND_REAL(16s)
ZORS_BIND_REAL(32s)
ZORS_BIND(zorsFFTFwd_RToCCS_16s32s_Sfs, (realForward<Packing::ccs, Zor16s, Zor32s, ZorsFFTSpec_R_16s32s>))
ZORS_BIND(zorsFFTInv_CCSToR_32s16s_Sfs, (realInverse<Packing::ccs, Zor32s, Zor16s, ZorsFFTSpec_R_16s32s>))

} // namespace zors::ZORS_VARIANT
