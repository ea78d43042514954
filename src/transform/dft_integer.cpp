// The transforms of any length of 16-bit data, in single precision.
#include "dft_transform.h"
#include "frame/bind.h"
#include "integer.h"
#include "work.h"

namespace zors::ZORS_VARIANT {
namespace {

// The floating kind inside an integer kind, and one call's room: first the numbers, then the nested work.
template <class Spec>
class Nested {
public:
    Nested(const Spec* pSpec, Zor8u* pBuffer) : r_(*recordOf(pSpec)), work_(r_.workSize, pBuffer) {}

    bool missing() const { return work_.missing(); }
    std::ptrdiff_t points() const { return r_.n; }
    const DftRecord<Zor32f>& record() const { return *static_cast<const DftRecord<Zor32f>*>(r_.nested); }
    Zor32f* numbers() const { return work_.template as<Zor32f>(); }
    Zor32f* work() const
    {
        return reinterpret_cast<Zor32f*>(work_.memory() + dftConvertedBytes<KindOf<Spec>>(r_.n));
    }

private:
    const DftIntegerRecord& r_;
    Work work_;
};

template <bool Inverse>
ZorStatus pairs(const Zor16sc* pSrc, Zor16sc* pDst, const ZorsDFTSpec_C_16sc* pSpec, int scaleFactor,
                Zor8u* pBuffer)
{
    if (const ZorStatus bad = check(record(pSpec), pointers(pSrc, pDst))) return bad;
    const Nested nested(pSpec, pBuffer);
    if (nested.missing()) return zorStsNoMemory;
    Zor32f* p = nested.numbers();
    toNumbers(reinterpret_cast<const Zor16s*>(pSrc), p, 2 * nested.points());
    transformPairs<Zor32f>(nested.record(), p, p, Inverse, nested.work());
    toIntegers(p, reinterpret_cast<Zor16s*>(pDst), 2 * nested.points(), scaleFactor);
    return zorStsOk;
}

template <bool Inverse>
ZorStatus parts(const Zor16s* pSrcRe, const Zor16s* pSrcIm, Zor16s* pDstRe, Zor16s* pDstIm,
                const ZorsDFTSpec_C_16s* pSpec, int scaleFactor, Zor8u* pBuffer)
{
    if (const ZorStatus bad = check(record(pSpec), pointers(pSrcRe, pSrcIm, pDstRe, pDstIm))) return bad;
    const Nested nested(pSpec, pBuffer);
    if (nested.missing()) return zorStsNoMemory;
    const std::ptrdiff_t n = nested.points();
    Zor32f *re = nested.numbers(), *im = re + n;
    toNumbers(pSrcRe, re, n);
    toNumbers(pSrcIm, im, n);
    transformParts<Zor32f>(nested.record(), {re, im, re, im}, Inverse, nested.work());
    toIntegers(re, pDstRe, n, scaleFactor);
    toIntegers(im, pDstIm, n, scaleFactor);
    return zorStsOk;
}

template <bool Inverse, Packing packing>
ZorStatus real(const Zor16s* pSrc, Zor16s* pDst, const ZorsDFTSpec_R_16s* pSpec, int scaleFactor,
               Zor8u* pBuffer)
{
    if (const ZorStatus bad = check(record(pSpec), pointers(pSrc, pDst))) return bad;
    const Nested nested(pSpec, pBuffer);
    if (nested.missing()) return zorStsNoMemory;
    Zor32f* p = nested.numbers();
    const std::ptrdiff_t n = nested.points(), numbers = spectrumNumbers<packing>(n);
    toNumbers(pSrc, p, Inverse ? numbers : n);
    if constexpr (Inverse)
        realDftInverse<packing>(nested.record(), p, p, nested.work());
    else
        realDftForward<packing>(nested.record(), p, p, nested.work());
    toIntegers(p, pDst, Inverse ? n : numbers, scaleFactor);
    return zorStsOk;
}

} // namespace

ZORS_BIND(zorsDFTFwd_CToC_16sc_Sfs, pairs<false>)
ZORS_BIND(zorsDFTInv_CToC_16sc_Sfs, pairs<true>)
ZORS_BIND(zorsDFTFwd_CToC_16s_Sfs, parts<false>)
ZORS_BIND(zorsDFTInv_CToC_16s_Sfs, parts<true>)

#define ZORS_BIND_FORMAT(Format, packing)                                                                    \
    ZORS_BIND(zorsDFTFwd_RTo##Format##_16s_Sfs, (real<false, packing>))                                      \
    ZORS_BIND(zorsDFTInv_##Format##ToR_16s_Sfs, (real<true, packing>))

ZORS_BIND_FORMAT(CCS, Packing::ccs)
ZORS_BIND_FORMAT(Pack, Packing::pack)
ZORS_BIND_FORMAT(Perm, Packing::perm)

} // namespace zors::ZORS_VARIANT
