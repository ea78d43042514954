// Single-rate filters over numbers: from within the delay buffer, straight from the source, and one by one.
#pragma once

#include "chains.h"
#include "dot.h"
#include "record.h"
#include "samples.h"

namespace zors::ZORS_VARIANT {

// The delay line back at the start of its buffer.
template <class E>
void rewind(FilterRecord<E>& r)
{
    if (r.delayIndex == 0) return;
    moveSamples(r.delay + r.delayIndex, r.delay, r.delayLen);
    r.delayIndex = 0;
}

// At most directLimit samples, behind the delay line.
template <class E>
void filterBuffered(FilterRecord<E>& r, const E* pSrc, E* pDst, int len)
{
    E* samples = r.delay + r.tapsLen;
    copySamples(pSrc, samples, len);
    filterPadded(samples, pDst, len, r.folded, r.tapsLen);
    moveSamples(r.delay + len, r.delay, r.tapsLen);
}

// The first outputs, whose sums reach back into the delay line, from within the buffer, and the others from the
// source, which is not the destination.
template <class E>
void filterDirect(FilterRecord<E>& r, const E* pSrc, E* pDst, int len)
{
    rewind(r);
    const int buffered = (r.tapsLen + 3) & ~3;
    while (len > 0) {
        const bool fillsVector = laneCount<E>(std::ptrdiff_t{len} - buffered) >= lanes<Lane<E>>;
        if (len > r.directLimit && fillsVector) break;
        const int part = len < r.directLimit ? len : r.directLimit;
        filterBuffered(r, pSrc, pDst, part);
        pSrc += part;
        pDst += part;
        len -= part;
    }
    if (len == 0) return;
    // The copied samples are used last: a load that spans two stores just made waits for them.
    copySamples(pSrc, r.delay + r.tapsLen, r.directLimit);
    filterWithin(pSrc + buffered, pDst + buffered, len - buffered, r.folded, r.tapsLen);
    filterPadded(r.delay + r.tapsLen, pDst, buffered, r.folded, r.tapsLen);
    copySamples(pSrc + len - r.tapsLen, r.delay, r.tapsLen);
}

// The newest samples come by themselves, as numbers: a load of a vector that spans stores just made waits for them, and
// calls would follow one another at the pace of that.
inline constexpr int newestAlone = 4;

// The next sample's output. The delay line moves up through its buffer, and back to the start when that is full.
template <class E>
[[gnu::always_inline]] inline E filterOne(FilterRecord<E>& r, E sample)
{
    if (r.delayIndex == 2 * r.tapsLen) rewind(r);
    E* window = r.delay + ++r.delayIndex;
    window[r.tapsLen - 1] = sample;
    int n = r.tapsLen;
    // Into two sums in turn: a product passes through fewer roundings so than in one.
    E sum = {}, other = {};
    for (int alone = 0; alone < newestAlone && n > 0; ++alone) {
        --n;
        E& next = alone % 2 == 0 ? sum : other;
        next = plusProduct(next, r.reversed[n], window[n]);
    }
    return sumOfBoth(sumOfBoth(sum, other), dot(r.reversed, window, n));
}

} // namespace zors::ZORS_VARIANT
