// Blocks by transforms, overlap-save: N samples, of which the first tapsLen - 1 are old ones, are transformed,
// multiplied by the spectrum of the taps and transformed back. From output tapsLen - 1 on the cyclic sums are whole.
#pragma once

#include "numbers.h"
#include "single.h"

namespace zors::ZORS_VARIANT {

// fftLen samples filtered into the block, where they may stand already.
template <class E>
ZorStatus transformBlock(FilterRecord<E>& r, const E* samples)
{
    using Transform = FilterTransform<E>;
    if (const ZorStatus bad = (*Transform::forward)(samples, r.block, r.spec, r.work)) return bad;
    (*Transform::multiply)(r.spectrum, r.block, r.fftLen);
    return (*Transform::inverse)(r.block, r.block, r.spec, r.work);
}

// Samples that a block filters.
template <class E>
int transformStep(const FilterRecord<E>& r)
{
    return r.fftLen - r.tapsLen + 1;
}

// Any number of samples. Data that are numbers are read from the source where a whole block stands there, which the
// destination must not be; others are converted block by block, and the destination may be the source.
template <class E, class D>
ZorStatus filterByTransform(FilterRecord<E>& r, const D* pSrc, D* pDst, int len, int scaleFactor)
{
    constexpr bool fromSource = std::is_same_v<D, E>;
    const int older = r.tapsLen - 1, most = transformStep(r);
    rewind(r);
    for (int i = 0, count; i < len; i += count) {
        count = len - i < most ? len - i : most;
        const E* samples = r.block;
        if constexpr (fromSource)
            if (i > 0 && count == most) samples = pSrc + i - older;
        if (samples == r.block) {
            copySamples(r.delay + 1, r.block, older);
            loadNumbers(pSrc + i, r.block + older, count);
            clearSamples(r.block + older + count, most - count);
        }
        copySamples(samples + count - 1, r.delay, r.tapsLen);
        if (const ZorStatus bad = transformBlock(r, samples)) return bad;
        storeNumbers(r.block + older, pDst + i, count, scaleFactor);
    }
    return zorStsOk;
}

} // namespace zors::ZORS_VARIANT
