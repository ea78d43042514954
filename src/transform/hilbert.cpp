// The analytic signal, by transforms of any length through the public functions, whose slots are filled when the library
// is loaded.
#include "frame/bind.h"
#include "frame/slots.h"
#include "integer.h"
#include "simd/check.h"

#include <zorcore.h>

#include <algorithm>

namespace zors::ZORS_VARIANT {
namespace {

struct HilbertRecord {
    Zor32u tag;
    Zor32s n;
    Zor32s workSize; // the larger of the transforms'
    Zor32s hint;
    ZorsDFTSpec_C_32fc* complex;
    ZorsDFTSpec_R_32f* real;
};

template <class Spec>
inline constexpr Zor32u hilbertTag = 0;
template <>
inline constexpr Zor32u hilbertTag<ZorsHilbertSpec_32f32fc> = 0x434D4145;
template <>
inline constexpr Zor32u hilbertTag<ZorsHilbertSpec_16s32fc> = 0x434D4146;
template <>
inline constexpr Zor32u hilbertTag<ZorsHilbertSpec_16s16sc> = 0x434D4147;

template <class Spec>
HilbertRecord& recordOf(Spec* p)
{
    return *reinterpret_cast<HilbertRecord*>(p);
}

template <class Spec>
const HilbertRecord& recordOf(const Spec* p)
{
    return *reinterpret_cast<const HilbertRecord*>(p);
}

template <class Spec>
ZorStatus context(const Spec* p)
{
    return require(recordOf(p).tag == hilbertTag<Spec>, zorStsWrongContext);
}

// Both transforms, or neither.
ZorStatus makeTransforms(HilbertRecord& r)
{
    const auto hint = static_cast<ZorHintAlgorithm>(r.hint);
    if (const ZorStatus bad = ::zorsDFTInitAlloc_C_32fc_arraddr(&r.complex, r.n, ZOR_FFT_SCALE_INV, hint))
        return bad;
    if (const ZorStatus bad = ::zorsDFTInitAlloc_R_32f_arraddr(&r.real, r.n, ZOR_FFT_SCALE_INV, hint)) {
        ::zorsDFTFree_C_32fc_arraddr(r.complex);
        return bad;
    }
    int ofComplex = 0, ofReal = 0;
    ::zorsDFTGetBufSize_C_32fc_arraddr(r.complex, &ofComplex);
    ::zorsDFTGetBufSize_R_32f_arraddr(r.real, &ofReal);
    r.workSize = std::max(ofComplex, ofReal);
    return zorStsOk;
}

template <class Spec>
ZorStatus initAlloc(Spec** ppSpec, int length, ZorHintAlgorithm hint)
{
    if (const ZorStatus bad = check(pointers(ppSpec), require(length >= 1, zorStsBadSize))) return bad;
    auto* r = static_cast<HilbertRecord*>(zorMalloc(sizeof(HilbertRecord)));
    if (!r) return zorStsNoMemory;
    *r = {hilbertTag<Spec>, length, 0, hint, nullptr, nullptr};
    if (const ZorStatus bad = makeTransforms(*r)) {
        zorFree(r);
        return bad;
    }
    *ppSpec = reinterpret_cast<Spec*>(r);
    return zorStsOk;
}

template <class Spec>
ZorStatus release(Spec* pSpec)
{
    if (const ZorStatus bad = pointers(pSpec)) return bad;
    if (const ZorStatus bad = context(pSpec)) return bad;
    HilbertRecord& r = recordOf(pSpec);
    r.tag = 0;
    const ZorStatus ofComplex = ::zorsDFTFree_C_32fc_arraddr(r.complex);
    const ZorStatus ofReal = ::zorsDFTFree_R_32f_arraddr(r.real);
    zorFree(&r);
    return ofComplex != zorStsOk ? ofComplex : ofReal;
}

// From n real numbers, which may be the first half of the destination.
ZorStatus analyticSignal(const HilbertRecord& r, const Zor32f* pSrc, Zor32fc* pDst)
{
    const std::ptrdiff_t n = r.n, half = n / 2, doubled = half + n % 2 - 1;
    if (n <= 2) {
        const Zor32f first = pSrc[0], last = pSrc[n - 1];
        pDst[0] = {first, 0};
        if (n == 2) pDst[1] = {last, 0};
        return zorStsOk;
    }
    auto* numbers = reinterpret_cast<Zor32f*>(pDst);
    if (const ZorStatus bad = ::zorsDFTFwd_RToCCS_32f_arraddr(pSrc, numbers, r.real, nullptr)) return bad;
    std::transform(numbers + 2, numbers + 2 * (doubled + 1), numbers + 2, [](Zor32f x) { return x + x; });
    std::fill_n(pDst + half + 1, doubled, Zor32fc{});
    return ::zorsDFTInv_CToC_32fc_arraddr(pDst, pDst, r.complex, nullptr);
}

template <class Spec>
ZorStatus hilbertContext(const void* pSrc, const void* pDst, const Spec* pSpec)
{
    if (const ZorStatus bad = pointers(pSrc, pDst, pSpec)) return bad;
    return context(pSpec);
}

ZorStatus ofFloats(const Zor32f* pSrc, Zor32fc* pDst, const ZorsHilbertSpec_32f32fc* pSpec)
{
    if (const ZorStatus bad = hilbertContext(pSrc, pDst, pSpec)) return bad;
    return analyticSignal(recordOf(pSpec), pSrc, pDst);
}

ZorStatus ofWords(const Zor16s* pSrc, Zor32fc* pDst, const ZorsHilbertSpec_16s32fc* pSpec)
{
    if (const ZorStatus bad = hilbertContext(pSrc, pDst, pSpec)) return bad;
    const HilbertRecord& r = recordOf(pSpec);
    auto* numbers = reinterpret_cast<Zor32f*>(pDst);
    toNumbers(pSrc, numbers, r.n);
    return analyticSignal(r, numbers, pDst);
}

ZorStatus toWords(const Zor16s* pSrc, Zor16sc* pDst, const ZorsHilbertSpec_16s16sc* pSpec, int scaleFactor)
{
    if (const ZorStatus bad = hilbertContext(pSrc, pDst, pSpec)) return bad;
    const HilbertRecord& r = recordOf(pSpec);
    auto* signal = static_cast<Zor32fc*>(
        zorMalloc(static_cast<int>(std::ptrdiff_t{r.n} * std::ptrdiff_t{sizeof(Zor32fc)})));
    if (!signal) return zorStsNoMemory;
    auto* numbers = reinterpret_cast<Zor32f*>(signal);
    toNumbers(pSrc, numbers, r.n);
    const ZorStatus status = analyticSignal(r, numbers, signal);
    if (status == zorStsOk)
        toIntegers(numbers, reinterpret_cast<Zor16s*>(pDst), 2 * std::ptrdiff_t{r.n}, scaleFactor);
    zorFree(signal);
    return status;
}

} // namespace

#define ZORS_BIND_KIND(kind)                                                                                 \
    ZORS_BIND(zorsHilbertInitAlloc_##kind, initAlloc<ZorsHilbertSpec_##kind>)                                \
    ZORS_BIND(zorsHilbertFree_##kind, release<ZorsHilbertSpec_##kind>)

ZORS_BIND_KIND(32f32fc)
ZORS_BIND_KIND(16s32fc)
ZORS_BIND_KIND(16s16sc)

ZORS_BIND(zorsHilbert_32f32fc, ofFloats)
ZORS_BIND(zorsHilbert_16s32fc, ofWords)
ZORS_BIND(zorsHilbert_16s16sc_Sfs, toWords)

} // namespace zors::ZORS_VARIANT
