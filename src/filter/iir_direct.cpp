// Recursive filters of 16-bit data whose taps and delay line are the caller's: exact sums, rounded once an output. An
// element of the delay line is a past sample, and the output that belongs to it, in one word.
#include "frame/bind.h"
#include "simd/check.h"
#include "vector/quotient.h"

#include <bit>
#include <cstddef>

namespace zors::ZORS_VARIANT {
namespace {

Zor32s pastOf(Zor16s x, Zor16s y)
{
    return std::bit_cast<Zor32s>(static_cast<Zor32u>(static_cast<Zor16u>(y)) << 16 | static_cast<Zor16u>(x));
}

Zor64s sampleOf(Zor32s past)
{
    return static_cast<Zor16s>(past & 0xffff);
}

Zor64s outputOf(Zor32s past)
{
    return past >> 16;
}

// b0 ... bN, f, a1 ... aN
Zor16s nextOutput(Zor16s x, const Zor16s* pTaps, std::ptrdiff_t order, Zor32s* pDlyLine)
{
    const Zor16s *b = pTaps, *a = pTaps + order + 1;
    Zor64s sum = Zor64s{b[0]} * x;
    for (std::ptrdiff_t k = order; k > 0; --k) {
        const Zor32s past = pDlyLine[k - 1];
        sum += b[k] * sampleOf(past) - a[k] * outputOf(past);
        if (k < order) pDlyLine[k] = past;
    }
    const auto y = scaledSum<Zor16s>(sum, a[0]);
    pDlyLine[0] = pastOf(x, y);
    return y;
}

// How the taps of sections of one order follow one another.
struct Sections {
    std::ptrdiff_t order, count;

    ZorStatus check(const Zor16s* pTaps) const
    {
        for (std::ptrdiff_t s = 0; s < count; ++s)
            if (tapsOf(pTaps, s)[order + 1] < 0) return zorStsBadTapsScale;
        return zorStsOk;
    }
    Zor16s next(Zor16s x, const Zor16s* pTaps, Zor32s* pDlyLine) const
    {
        for (std::ptrdiff_t s = 0; s < count; ++s)
            x = nextOutput(x, tapsOf(pTaps, s), order, pDlyLine + order * s);
        return x;
    }

private:
    const Zor16s* tapsOf(const Zor16s* pTaps, std::ptrdiff_t s) const { return pTaps + (2 * order + 2) * s; }
};

template <bool cascade>
constexpr Sections sectionsOf(int count)
{
    return cascade ? Sections{2, count} : Sections{count, 1};
}

template <bool cascade>
ZorStatus usable(const Zor16s* pTaps, int count)
{
    if (count < 1) return zorStsBadIirOrder;
    return sectionsOf<cascade>(count).check(pTaps);
}

template <bool cascade>
ZorStatus block(const Zor16s* pSrc, Zor16s* pDst, int numIters, const Zor16s* pTaps, int count,
                Zor32s* pDlyLine)
{
    if (const ZorStatus bad = check(pointers(pSrc, pDst, pTaps, pDlyLine), length(numIters))) return bad;
    if (const ZorStatus bad = usable<cascade>(pTaps, count)) return bad;
    const auto sections = sectionsOf<cascade>(count);
    for (std::ptrdiff_t n = 0; n < numIters; ++n) pDst[n] = sections.next(pSrc[n], pTaps, pDlyLine);
    return zorStsOk;
}

template <bool cascade>
ZorStatus blockInPlace(Zor16s* pSrcDst, int numIters, const Zor16s* pTaps, int count, Zor32s* pDlyLine)
{
    return block<cascade>(pSrcDst, pSrcDst, numIters, pTaps, count, pDlyLine);
}

template <bool cascade>
ZorStatus one(Zor16s src, Zor16s* pDst, const Zor16s* pTaps, int count, Zor32s* pDlyLine)
{
    return block<cascade>(&src, pDst, 1, pTaps, count, pDlyLine);
}

template <bool cascade>
ZorStatus oneInPlace(Zor16s* pSrcDst, const Zor16s* pTaps, int count, Zor32s* pDlyLine)
{
    return block<cascade>(pSrcDst, pSrcDst, 1, pTaps, count, pDlyLine);
}

} // namespace

#define ZORS_BIND_DIRECT(structure, cascade)                                                                 \
    ZORS_BIND(zorsIIR_##structure##_16s, block<cascade>)                                                     \
    ZORS_BIND(zorsIIR_##structure##_16s_I, blockInPlace<cascade>)                                            \
    ZORS_BIND(zorsIIROne_##structure##_16s, one<cascade>)                                                    \
    ZORS_BIND(zorsIIROne_##structure##_16s_I, oneInPlace<cascade>)

ZORS_BIND_DIRECT(Direct, false)
ZORS_BIND_DIRECT(BiQuadDirect, true)

} // namespace zors::ZORS_VARIANT
