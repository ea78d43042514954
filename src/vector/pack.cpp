#include "frame/bind.h"
#include "simd/check.h"

#include <cstddef>

namespace zors::ZORS_VARIANT {
namespace {

ZorStatus bitCounts(const Zor32s* pSrcBits, int len)
{
    for (int n = 0; n < len; ++n)
        if (pSrcBits[n] < 0 || pSrcBits[n] > 32) return zorStsBadArgument;
    return zorStsOk;
}

ZorStatus packBits(const Zor32u* pSrc, const Zor32s* pSrcBits, Zor8u* pDst, int len)
{
    if (const ZorStatus bad = check(pointers(pSrc, pSrcBits, pDst), length(len))) return bad;
    if (const ZorStatus bad = bitCounts(pSrcBits, len)) return bad;
    // The bits that wait for their byte are the lowest ones of a word: fewer than 8, then up to 39.
    Zor64u waiting = 0;
    int count = 0;
    for (int n = 0; n < len; ++n) {
        const int bits = pSrcBits[n];
        waiting = waiting << bits | (pSrc[n] & ((Zor64u{1} << bits) - 1));
        for (count += bits; count >= 8; count -= 8) *pDst++ = static_cast<Zor8u>(waiting >> (count - 8));
    }
    if (count > 0) *pDst = static_cast<Zor8u>(waiting << (8 - count));
    return zorStsOk;
}

} // namespace

ZORS_BIND(zorsPackBits_32u8u, packBits)

} // namespace zors::ZORS_VARIANT
