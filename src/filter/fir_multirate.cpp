// Records of multi-rate filters and of stream filters.
#include "build.h"
#include "frame/bind.h"

namespace zors::ZORS_VARIANT {
namespace {

template <class State>
ZorStatus getStateSize(int tapsLen, int upFactor, int downFactor, int* pStateSize)
{
    const Rates rates{upFactor, 0, downFactor, 0};
    if (const ZorStatus bad = check(pointers(pStateSize), firLength(tapsLen), factors(rates))) return bad;
    return tellSize(multiRate<State>(tapsLen, rates), pStateSize);
}

// Integer taps, T, have a factor: Factor is int, otherwise nothing.
template <class State, class T, class... Factor>
ZorStatus init(State** ppState, const T* pTaps, int tapsLen, Factor... tapsFactor, int upFactor, int upPhase,
               int downFactor, int downPhase, const DataOf<State>* pDlyLine, Zor8u* pBuffer)
{
    const Rates rates{upFactor, upPhase, downFactor, downPhase};
    if (const ZorStatus bad =
            check(pointers(ppState, pTaps, pBuffer), firLength(tapsLen), factors(rates), phases(rates)))
        return bad;
    return initDesign(ppState, multiRate<State>(tapsLen, rates), pBuffer, pTaps, pDlyLine, tapsFactor...);
}

template <class State, class T, class... Factor>
ZorStatus initAlloc(State** ppState, const T* pTaps, int tapsLen, Factor... tapsFactor, int upFactor,
                    int upPhase, int downFactor, int downPhase, const DataOf<State>* pDlyLine)
{
    const Rates rates{upFactor, upPhase, downFactor, downPhase};
    if (const ZorStatus bad =
            check(pointers(ppState, pTaps), firLength(tapsLen), factors(rates), phases(rates)))
        return bad;
    return allocateDesign(ppState, multiRate<State>(tapsLen, rates, true), pTaps, pDlyLine, tapsFactor...);
}

template <class State>
ZorStatus streamGetStateSize(int tapsLen, int* pStateSize)
{
    if (const ZorStatus bad = check(pointers(pStateSize), firLength(tapsLen))) return bad;
    return tellSize(singleRate<State>(tapsLen, KindOfFilter<State>::stream), pStateSize);
}

template <class State, class T, class... Factor>
ZorStatus streamInit(State** ppState, const T* pTaps, int tapsLen, Factor... tapsFactor, Zor8u* pBuffer)
{
    if (const ZorStatus bad = check(pointers(ppState, pTaps, pBuffer), firLength(tapsLen))) return bad;
    return initDesign<State>(ppState, singleRate<State>(tapsLen, KindOfFilter<State>::stream), pBuffer, pTaps,
                             nullptr, tapsFactor...);
}

// A record of a single rate, of which the folded taps give way to the taps by phase.
template <class State, class T, class... Factor>
ZorStatus multiRateStreamInit(State** ppState, const T* pTaps, int tapsLen, Factor... tapsFactor,
                              int upFactor, int upPhase, int downFactor, int downPhase, Zor8u* pBuffer)
{
    const Rates rates{upFactor, upPhase, downFactor, downPhase};
    if (const ZorStatus bad =
            check(pointers(ppState, pTaps, pBuffer), firLength(tapsLen), factors(rates), phases(rates)))
        return bad;
    Design design = singleRate<State>(tapsLen, KindOfFilter<State>::multiRateStream);
    design.rates = rates;
    return initDesign<State>(ppState, design, pBuffer, pTaps, nullptr, tapsFactor...);
}

} // namespace

#define ZORS_BIND_INIT(kind, ...)                                                                            \
    ZORS_BIND(zorsFIRMRGetStateSize##kind, getStateSize<ZorsFIRState##kind>)                                 \
    ZORS_BIND(zorsFIRMRInit##kind, (init<ZorsFIRState##kind, __VA_ARGS__>))

#define ZORS_BIND_KIND(kind, ...)                                                                            \
    ZORS_BIND_INIT(kind, __VA_ARGS__)                                                                        \
    ZORS_BIND(zorsFIRMRInitAlloc##kind, (initAlloc<ZorsFIRState##kind, __VA_ARGS__>))

#define ZORS_BIND_STREAM(kind, ...)                                                                          \
    ZORS_BIND(zorsFIRStreamGetStateSize##kind, streamGetStateSize<ZorsFIRState##kind>)                       \
    ZORS_BIND(zorsFIRMRStreamGetStateSize##kind, streamGetStateSize<ZorsFIRState##kind>)                     \
    ZORS_BIND(zorsFIRStreamInit##kind, (streamInit<ZorsFIRState##kind, __VA_ARGS__>))                        \
    ZORS_BIND(zorsFIRMRStreamInit##kind, (multiRateStreamInit<ZorsFIRState##kind, __VA_ARGS__>))

ZORS_BIND_KIND(_32f, Zor32f)
ZORS_BIND_KIND(_32fc, Zor32fc)
ZORS_BIND_KIND(32f_16s, Zor32f)
ZORS_BIND_KIND(32fc_16sc, Zor32fc)
ZORS_BIND_KIND(32s_16s, Zor32s, int)
ZORS_BIND_KIND(32sc_16sc, Zor32sc, int)
ZORS_BIND_KIND(_64f, Zor64f)
ZORS_BIND_KIND(_64fc, Zor64fc)
ZORS_BIND_KIND(64f_32f, Zor64f)
ZORS_BIND_KIND(64fc_32fc, Zor64fc)
ZORS_BIND_KIND(64f_32s, Zor64f)
ZORS_BIND_KIND(64fc_32sc, Zor64fc)
ZORS_BIND_KIND(64f_16s, Zor64f)
ZORS_BIND_KIND(64fc_16sc, Zor64fc)
ZORS_BIND_INIT(_16s, Zor16s, int)
ZORS_BIND_STREAM(_16s, Zor16s, int)
ZORS_BIND_STREAM(_32f, Zor32f)

} // namespace zors::ZORS_VARIANT
