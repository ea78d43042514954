// Filtering with a record, of whichever rate.
#include "factors.h"
#include "frame/bind.h"
#include "overlap.h"
#include "sample_copy.h"
#include "stream.h"

namespace zors::ZORS_VARIANT {
namespace {

constexpr int halfChunk = chunkLength / 2;

// Data that are no numbers pass through the scratch memory, converted: half of it takes up to most samples, the other
// half their results, which filter makes.
template <class E, class D, class Filter>
ZorStatus filterConverted(FilterRecord<E>& r, const D* pSrc, D* pDst, int len, int most, int scaleFactor,
                          Filter filter)
{
    E *const samples = r.scratch, *const results = r.scratch + halfChunk;
    for (int i = 0, count; i < len; i += count) {
        count = len - i < most ? len - i : most;
        loadNumbers(pSrc + i, samples, count);
        if (const ZorStatus bad = filter(samples, results, count)) return bad;
        storeNumbers(results, pDst + i, count, scaleFactor);
    }
    return zorStsOk;
}

// Calls of this many samples go by transforms.
constexpr int transformedCall = 512;

template <class E, class D>
ZorStatus filterSingleRate(FilterRecord<E>& r, const D* pSrc, D* pDst, int len, int deciding, int scaleFactor)
{
    const auto direct = [&r](const E* samples, E* results, int count) {
        filterDirect(r, samples, results, count);
        return ZorStatus{zorStsOk};
    };
    const auto byTransform = [&r](const E* samples, E* results, int count) {
        return filterByTransform(r, samples, results, count, 0);
    };
    const bool transforms = deciding >= transformedCall && r.fftLen > 0;
    if constexpr (std::is_same_v<D, E>)
        return transforms ? byTransform(pSrc, pDst, len) : direct(pSrc, pDst, len);
    else if (!transforms)
        return filterConverted(r, pSrc, pDst, len, halfChunk, scaleFactor, direct);
    else if (const int step = transformStep(r); step <= halfChunk)
        return filterConverted(r, pSrc, pDst, len, halfChunk / step * step, scaleFactor, byTransform);
    else
        return filterByTransform(r, pSrc, pDst, len, scaleFactor);
}

// Chunk by chunk. Whether one is transformed depends on how many samples follow it.
template <class E, class D>
ZorStatus filterSingleRateInPlace(FilterRecord<E>& r, D* pSrcDst, int len, int scaleFactor)
{
    while (len > 0) {
        const int count = len < chunkLength ? len : chunkLength;
        len -= count;
        if constexpr (std::is_same_v<D, E>) {
            if (const ZorStatus bad = filterSingleRate(r, pSrcDst, r.scratch, count, len, scaleFactor))
                return bad;
            copySamples(r.scratch, pSrcDst, count);
        } else {
            if (const ZorStatus bad = filterSingleRate(r, pSrcDst, pSrcDst, count, len, scaleFactor))
                return bad;
        }
        pSrcDst += count;
    }
    return zorStsOk;
}

// Iterations of which samples and results fit into the scratch memory, one at least.
constexpr int iterationsAtOnce(int factor)
{
    return factor < chunkLength ? chunkLength / factor : 1;
}

template <class E, class D>
void filterMultiRateConverted(FilterRecord<E>& r, const D* pSrc, D* pDst, int numIters, int scaleFactor)
{
    const int most = iterationsAtOnce(r.upFactor > r.downFactor ? r.upFactor : r.downFactor);
    for (int i = 0, count; i < numIters; i += count) {
        count = numIters - i < most ? numIters - i : most;
        const std::ptrdiff_t samples = std::ptrdiff_t{count} * r.downFactor,
                             results = std::ptrdiff_t{count} * r.upFactor;
        loadNumbers(pSrc, r.inputs, samples);
        filterMultiRate(r, r.inputs, r.scratch, count);
        storeNumbers(r.scratch, pDst, results, scaleFactor);
        pSrc += samples;
        pDst += results;
    }
}

// From one vector to another.
template <class E, class D>
void filterMultiRateApart(FilterRecord<E>& r, const D* pSrc, D* pDst, int numIters, int scaleFactor)
{
    if constexpr (std::is_same_v<D, E>)
        filterMultiRate(r, pSrc, pDst, numIters);
    else
        filterMultiRateConverted(r, pSrc, pDst, numIters, scaleFactor);
}

// Fewer results than samples never reach samples that are still to be read; more of them would.
template <class E, class D>
ZorStatus filterMultiRateInPlace(FilterRecord<E>& r, D* pSrcDst, int numIters, int scaleFactor)
{
    if (r.upFactor > r.downFactor) {
        const SampleCopy<D> copy(pSrcDst, std::ptrdiff_t{numIters} * r.downFactor);
        if (!copy.data()) return zorStsNoMemory;
        filterMultiRateApart(r, copy.data(), pSrcDst, numIters, scaleFactor);
    } else if constexpr (std::is_same_v<D, E>) {
        const int most = iterationsAtOnce(r.upFactor);
        const D* pSrc = pSrcDst;
        for (int i = 0, count; i < numIters; i += count) {
            count = numIters - i < most ? numIters - i : most;
            const std::ptrdiff_t results = std::ptrdiff_t{count} * r.upFactor;
            filterMultiRate(r, pSrc, r.scratch, count);
            copySamples(r.scratch, pSrcDst, results);
            pSrc += std::ptrdiff_t{count} * r.downFactor;
            pSrcDst += results;
        }
    } else {
        filterMultiRateConverted(r, pSrcDst, pSrcDst, numIters, scaleFactor);
    }
    return zorStsOk;
}

template <class State>
ZorStatus filterInPlace(DataOf<State>* pSrcDst, int numIters, State* pState, int scaleFactor)
{
    using Kind = KindOfFilter<State>;
    if (const ZorStatus bad = check(pointers(pSrcDst, pState), length(numIters))) return bad;
    if (const ZorStatus bad = context(pState, Kind::single, Kind::multiRate)) return bad;
    auto& r = recordOf(pState);
    const int factor = commonFactor(r.tapsFactor, scaleFactor);
    if (r.tag == Kind::multiRate) return filterMultiRateInPlace(r, pSrcDst, numIters, factor);
    return filterSingleRateInPlace(r, pSrcDst, numIters, factor);
}

template <class State>
ZorStatus filter(const DataOf<State>* pSrc, DataOf<State>* pDst, int numIters, State* pState, int scaleFactor)
{
    using Kind = KindOfFilter<State>;
    if (pSrc == pDst) return filterInPlace(pDst, numIters, pState, scaleFactor);
    if (const ZorStatus bad = check(pointers(pSrc, pDst, pState), length(numIters))) return bad;
    if (const ZorStatus bad =
            context(pState, Kind::single, Kind::multiRate, Kind::stream, Kind::multiRateStream))
        return bad;
    auto& r = recordOf(pState);
    const int factor = commonFactor(r.tapsFactor, scaleFactor);
    if (r.tag == Kind::multiRate) {
        filterMultiRateApart(r, pSrc, pDst, numIters, factor);
        return zorStsOk;
    }
    if constexpr (Kind::stream != 0) {
        if (r.tag == Kind::multiRateStream) {
            filterMultiRateStream(r, pSrc, pDst, numIters, factor);
            return zorStsOk;
        }
        if (r.tag == Kind::stream) takeHistory(r, pSrc);
    }
    return filterSingleRate(r, pSrc, pDst, numIters, numIters, factor);
}

// Only integer data have a scale factor.
template <class State, class... Factor>
ZorStatus fir(const DataOf<State>* pSrc, DataOf<State>* pDst, int numIters, State* pState,
              Factor... scaleFactor)
{
    return filter(pSrc, pDst, numIters, pState, (0 + ... + scaleFactor));
}

template <class State, class... Factor>
ZorStatus firInPlace(DataOf<State>* pSrcDst, int numIters, State* pState, Factor... scaleFactor)
{
    return filterInPlace(pSrcDst, numIters, pState, (0 + ... + scaleFactor));
}

template <class State, class... Factor>
ZorStatus firOne(DataOf<State> src, DataOf<State>* pDst, State* pState, Factor... scaleFactor)
{
    using Kind = KindOfFilter<State>;
    if (const ZorStatus bad = check(pointers(pDst, pState))) return bad;
    if (const ZorStatus bad = context(pState, Kind::single)) return bad;
    auto& r = recordOf(pState);
    if constexpr (Kind::converts) {
        typename Kind::Number number;
        loadNumbers(&src, &number, 1);
        number = filterOne(r, number);
        storeNumbers(&number, pDst, 1, commonFactor(r.tapsFactor, (0 + ... + scaleFactor)));
    } else {
        *pDst = filterOne(r, src);
    }
    return zorStsOk;
}

} // namespace

#define ZORS_BIND_FLOATING(kind)                                                                             \
    ZORS_BIND(zorsFIR##kind, fir<ZorsFIRState##kind>)                                                        \
    ZORS_BIND(zorsFIR##kind##_I, firInPlace<ZorsFIRState##kind>)                                             \
    ZORS_BIND(zorsFIROne##kind, firOne<ZorsFIRState##kind>)

#define ZORS_BIND_BLOCKS(kind)                                                                               \
    ZORS_BIND(zorsFIR##kind##_Sfs, fir<ZorsFIRState##kind>)                                                  \
    ZORS_BIND(zorsFIR##kind##_ISfs, firInPlace<ZorsFIRState##kind>)

#define ZORS_BIND_INTEGER(kind)                                                                              \
    ZORS_BIND_BLOCKS(kind)                                                                                   \
    ZORS_BIND(zorsFIROne##kind##_Sfs, firOne<ZorsFIRState##kind>)

ZORS_BIND_FLOATING(_32f)
ZORS_BIND_FLOATING(_32fc)
ZORS_BIND_INTEGER(32f_16s)
ZORS_BIND_INTEGER(32fc_16sc)
ZORS_BIND_INTEGER(32s_16s)
ZORS_BIND_INTEGER(32sc_16sc)
ZORS_BIND_FLOATING(_64f)
ZORS_BIND_FLOATING(_64fc)
ZORS_BIND_FLOATING(64f_32f)
ZORS_BIND_FLOATING(64fc_32fc)
ZORS_BIND_INTEGER(64f_32s)
ZORS_BIND_INTEGER(64fc_32sc)
ZORS_BIND_INTEGER(64f_16s)
ZORS_BIND_INTEGER(64fc_16sc)
ZORS_BIND_BLOCKS(_16s)

} // namespace zors::ZORS_VARIANT
