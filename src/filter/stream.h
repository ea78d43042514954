// Stream filters: the samples before a block are read from the memory before it.
#pragma once

#include "multirate.h"
#include "numbers.h"

namespace zors::ZORS_VARIANT {

// The older samples into the delay line; what follows is filtered as any block. The oldest sample of a line is in no sum.
template <class E, class D>
void takeHistory(FilterRecord<E>& r, const D* pSrc)
{
    r.delayIndex = 0;
    loadNumbers(pSrc - (r.tapsLen - 1), r.delay + 1, r.tapsLen - 1);
}

// Data that are no numbers are converted for as many outputs at a time as the record has room for: their samples into
// the delay buffer, which takes those of any one output, or into half of the scratch memory.
template <class E, class D>
void filterMultiRateStream(FilterRecord<E>& r, const D* pSrc, D* pDst, int numIters, int scaleFactor)
{
    const auto [sample, phase] = placeOf(r, 0);
    const std::int64_t outputs = std::int64_t{numIters} * r.upFactor;
    if constexpr (std::is_same_v<D, E>) {
        dirFIRMR(r, pSrc + sample, phase, pDst, outputs);
    } else {
        constexpr int half = chunkLength / 2;
        const std::int64_t room = std::max(half, 3 * r.tapsLen);
        E* const samples = room > half ? r.delay : r.scratch;
        // So many outputs need room samples at the most.
        const std::int64_t most =
            std::clamp<std::int64_t>((room - r.delayLen - 1) * r.upFactor / r.downFactor, 1, half);
        for (std::int64_t j = 0; j < outputs; j += most) {
            const auto count = static_cast<int>(std::min(most, outputs - j));
            const std::int64_t first = std::int64_t{phase} + j * r.downFactor;
            const std::int64_t last = first + std::int64_t{count - 1} * r.downFactor;
            const auto firstPhase = static_cast<int>(first % r.upFactor);
            const std::int64_t older = tapsOfPhase(r.tapsLen, r.upFactor, firstPhase) - 1;
            const std::int64_t newest = sample + first / r.upFactor;
            const std::int64_t needed = older + 1 + last / r.upFactor - first / r.upFactor;
            loadNumbers(pSrc + newest - older, samples, needed);
            dirFIRMR(r, samples + older, firstPhase, r.scratch + half, count);
            storeNumbers(r.scratch + half, pDst + j, count, scaleFactor);
        }
    }
}

} // namespace zors::ZORS_VARIANT
