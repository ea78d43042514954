// Recursive filtering with a record: blocks, single samples, several channels.
#include "frame/bind.h"
#include "iir_steps.h"
#include "numbers.h"

namespace zors::ZORS_VARIANT {
namespace {

// Source and destination may be the same vector. Data that are no numbers are converted chunk by chunk.
template <class State>
void filter(const IirData<State>* pSrc, IirData<State>* pDst, int len, State* pState, int scaleFactor)
{
    auto& r = iirRecordOf(pState);
    for (int i = 0, count; i < len; i += count) {
        count = std::min(iirChunk, len - i);
        if constexpr (KindOfIir<State>::converts) {
            loadNumbers(pSrc + i, r.converted, count);
            filterChunk(r, r.converted, r.converted, count);
            storeNumbers(r.converted, pDst + i, count, scaleFactor);
        } else {
            filterChunk(r, pSrc + i, pDst + i, count);
        }
    }
}

template <bool isQuiet, class State>
[[gnu::always_inline]] inline void filterSample(IirData<State> src, IirData<State>* pDst, State* pState,
                                                int scaleFactor)
{
    auto& r = iirRecordOf(pState);
    IirNumber<State> x, y;
    loadNumbers(&src, &x, 1);
    y = filterOne(r, x);
    if constexpr (isQuiet) settle(r, x);
    storeNumbers(&y, pDst, 1, scaleFactor);
}

// Where denormals may be near, or registers would have to be saved.
template <class State>
[[gnu::noinline]] ZorStatus filterApart(IirData<State> src, IirData<State>* pDst, State* pState,
                                        int scaleFactor)
{
    if (!iirRecordOf(pState).isQuiet) {
        filterSample<false>(src, pDst, pState, scaleFactor);
    } else {
        const FlushedArithmetic arithmetic;
        filterSample<true>(src, pDst, pState, scaleFactor);
    }
    return zorStsOk;
}

// Only integer data have a scale factor.
template <class State, class... Factor>
ZorStatus iir(const IirData<State>* pSrc, IirData<State>* pDst, int len, State* pState, Factor... scaleFactor)
{
    if (const ZorStatus bad = check(pointers(pSrc, pDst, pState), length(len))) return bad;
    if (const ZorStatus bad = iirContext(pState)) return bad;
    const FlushedArithmetic arithmetic;
    filter(pSrc, pDst, len, pState, (0 + ... + scaleFactor));
    return zorStsOk;
}

template <class State, class... Factor>
ZorStatus iirInPlace(IirData<State>* pSrcDst, int len, State* pState, Factor... scaleFactor)
{
    return iir(pSrcDst, pSrcDst, len, pState, scaleFactor...);
}

template <class State, class... Factor>
ZorStatus iirOne(IirData<State> src, IirData<State>* pDst, State* pState, Factor... scaleFactor)
{
    if (const ZorStatus bad = check(pointers(pDst, pState))) return bad;
    if (const ZorStatus bad = iirContext(pState, false)) return bad;
    const auto& r = iirRecordOf(pState);
    if (KindOfIir<State>::converts || r.isQuiet || r.structure == Structure::anyOrder)
        return filterApart(src, pDst, pState, (0 + ... + scaleFactor));
    filterSample<false>(src, pDst, pState, (0 + ... + scaleFactor));
    return zorStsOk;
}

// Every channel is checked before the first is filtered.
template <class State, class Source, class... Factor>
ZorStatus iirChannels(Source* const* ppSrc, IirData<State>* const* ppDst, int len, int nChannels,
                      State* const* ppState, Factor... scaleFactor)
{
    constexpr ZorStatus badCount = sizeof...(Factor) > 0 ? zorStsBadChannelCount : zorStsBadNumChannels;
    if (const ZorStatus bad =
            check(pointers(ppSrc, ppDst, ppState), length(len), require(nChannels >= 1, badCount)))
        return bad;
    for (int c = 0; c < nChannels; ++c) {
        if (const ZorStatus bad = pointers(ppSrc[c], ppDst[c], ppState[c])) return bad;
        if (const ZorStatus bad = iirContext(ppState[c])) return bad;
    }
    const FlushedArithmetic arithmetic;
    for (int c = 0; c < nChannels; ++c)
        filter<State>(ppSrc[c], ppDst[c], len, ppState[c], (0 + ... + scaleFactor));
    return zorStsOk;
}

template <class State, class... Factor>
ZorStatus iirChannelsInPlace(IirData<State>* const* ppSrcDst, int len, int nChannels, State* const* ppState,
                             Factor... scaleFactor)
{
    return iirChannels<State, IirData<State>>(ppSrcDst, ppSrcDst, len, nChannels, ppState, scaleFactor...);
}

} // namespace

#define ZORS_BIND_FLOATING(kind)                                                                             \
    ZORS_BIND(zorsIIR##kind, iir<ZorsIIRState##kind>)                                                        \
    ZORS_BIND(zorsIIR##kind##_I, iirInPlace<ZorsIIRState##kind>)                                             \
    ZORS_BIND(zorsIIROne##kind, iirOne<ZorsIIRState##kind>)

#define ZORS_BIND_INTEGER(kind)                                                                              \
    ZORS_BIND(zorsIIR##kind##_Sfs, iir<ZorsIIRState##kind>)                                                  \
    ZORS_BIND(zorsIIR##kind##_ISfs, iirInPlace<ZorsIIRState##kind>)                                          \
    ZORS_BIND(zorsIIROne##kind##_Sfs, iirOne<ZorsIIRState##kind>)

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

ZORS_BIND(zorsIIR_32f_P, (iirChannels<ZorsIIRState_32f, const Zor32f>))
ZORS_BIND(zorsIIR_32f_IP, iirChannelsInPlace<ZorsIIRState_32f>)
ZORS_BIND(zorsIIR64f_32s_PSfs, (iirChannels<ZorsIIRState64f_32s, const Zor32s, int>))
ZORS_BIND(zorsIIR64f_32s_IPSfs, (iirChannelsInPlace<ZorsIIRState64f_32s, int>))

} // namespace zors::ZORS_VARIANT
