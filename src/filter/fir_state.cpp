// Records of single-rate filters; taps, delay lines and the release of all.
#include "build.h"
#include "frame/bind.h"

namespace zors::ZORS_VARIANT {
namespace {

template <class State>
ZorStatus getStateSize(int tapsLen, int* pStateSize)
{
    if (const ZorStatus bad = check(pointers(pStateSize), firLength(tapsLen))) return bad;
    return tellSize(singleRate<State>(tapsLen, KindOfFilter<State>::single), pStateSize);
}

// Integer taps, T, have a factor: Factor is int, otherwise nothing.
template <class State, class T, class... Factor>
ZorStatus init(State** ppState, const T* pTaps, int tapsLen, Factor... tapsFactor,
               const DataOf<State>* pDlyLine, Zor8u* pBuffer)
{
    if (const ZorStatus bad = check(pointers(ppState, pTaps, pBuffer), firLength(tapsLen))) return bad;
    return initDesign(ppState, singleRate<State>(tapsLen, KindOfFilter<State>::single), pBuffer, pTaps,
                      pDlyLine, tapsFactor...);
}

template <class State, class T, class... Factor>
ZorStatus initAlloc(State** ppState, const T* pTaps, int tapsLen, Factor... tapsFactor,
                    const DataOf<State>* pDlyLine)
{
    if (const ZorStatus bad = check(pointers(ppState, pTaps), firLength(tapsLen))) return bad;
    return allocateDesign(ppState, singleRate<State>(tapsLen, KindOfFilter<State>::single, true), pTaps,
                          pDlyLine, tapsFactor...);
}

template <class State>
ZorStatus release(State* pState)
{
    using Kind = KindOfFilter<State>;
    if (const ZorStatus bad = pointers(pState)) return bad;
    if (const ZorStatus bad =
            context(pState, Kind::single, Kind::multiRate, Kind::stream, Kind::multiRateStream))
        return bad;
    auto& r = recordOf(pState);
    r.tag = 0;
    if (!r.owned) return zorStsOk;
    if (r.spec) (*FilterTransform<NumberOf<State>>::release)(r.spec);
    zorFree(r.memory);
    return zorStsOk;
}

// The check of a record that has taps and a delay line of its own.
template <class State>
ZorStatus hasTaps(const State* pState)
{
    return context(pState, KindOfFilter<State>::single, KindOfFilter<State>::multiRate);
}

template <class State, class T, class... Factor>
ZorStatus firSetTaps(const T* pTaps, State* pState, Factor... tapsFactor)
{
    if (const ZorStatus bad = pointers(pTaps, pState)) return bad;
    if (const ZorStatus bad = hasTaps(pState)) return bad;
    setTaps(recordOf(pState), pTaps, tapsFactor...);
    fillTables(recordOf(pState));
    return zorStsOk;
}

template <class State, class T, class... Factor>
ZorStatus firGetTaps(const State* pState, T* pTaps, Factor... tapsFactor)
{
    if (const ZorStatus bad = pointers(pState, pTaps)) return bad;
    if (const ZorStatus bad = hasTaps(pState)) return bad;
    getTaps(recordOf(pState), pTaps, tapsFactor...);
    return zorStsOk;
}

template <class State>
ZorStatus firSetDlyLine(State* pState, const DataOf<State>* pDlyLine)
{
    if (const ZorStatus bad = pointers(pState)) return bad;
    if (const ZorStatus bad = hasTaps(pState)) return bad;
    setDelayLine(recordOf(pState), pDlyLine);
    return zorStsOk;
}

template <class State>
ZorStatus firGetDlyLine(const State* pState, DataOf<State>* pDlyLine)
{
    if (const ZorStatus bad = pointers(pState, pDlyLine)) return bad;
    if (const ZorStatus bad = hasTaps(pState)) return bad;
    getDelayLine(recordOf(pState), pDlyLine);
    return zorStsOk;
}

} // namespace

// form is the kind, or names its other type of taps too.
#define ZORS_BIND_TAPS(form, kind, ...)                                                                      \
    ZORS_BIND(zorsFIRSetTaps##form, (firSetTaps<ZorsFIRState##kind, __VA_ARGS__>))                           \
    ZORS_BIND(zorsFIRGetTaps##form, (firGetTaps<ZorsFIRState##kind, __VA_ARGS__>))

#define ZORS_BIND_FORM(form, kind, ...)                                                                      \
    ZORS_BIND(zorsFIRGetStateSize##form, getStateSize<ZorsFIRState##kind>)                                   \
    ZORS_BIND(zorsFIRInit##form, (init<ZorsFIRState##kind, __VA_ARGS__>))                                    \
    ZORS_BIND(zorsFIRInitAlloc##form, (initAlloc<ZorsFIRState##kind, __VA_ARGS__>))                          \
    ZORS_BIND_TAPS(form, kind, __VA_ARGS__)

#define ZORS_BIND_RECORD(kind)                                                                               \
    ZORS_BIND(zorsFIRFree##kind, release<ZorsFIRState##kind>)                                                \
    ZORS_BIND(zorsFIRSetDlyLine##kind, firSetDlyLine<ZorsFIRState##kind>)                                    \
    ZORS_BIND(zorsFIRGetDlyLine##kind, firGetDlyLine<ZorsFIRState##kind>)

#define ZORS_BIND_KIND(kind, ...)                                                                            \
    ZORS_BIND_FORM(kind, kind, __VA_ARGS__)                                                                  \
    ZORS_BIND_RECORD(kind)

ZORS_BIND_KIND(_32f, Zor32f)
ZORS_BIND_KIND(_32fc, Zor32fc)
ZORS_BIND_KIND(32f_16s, Zor32f)
ZORS_BIND_KIND(32fc_16sc, Zor32fc)
ZORS_BIND_KIND(32s_16s, Zor32s, int)
ZORS_BIND_FORM(32s_16s32f, 32s_16s, Zor32f)
ZORS_BIND_KIND(32sc_16sc, Zor32sc, int)
ZORS_BIND_FORM(32sc_16sc32fc, 32sc_16sc, Zor32fc)
ZORS_BIND_KIND(_64f, Zor64f)
ZORS_BIND_KIND(_64fc, Zor64fc)
ZORS_BIND_KIND(64f_32f, Zor64f)
ZORS_BIND_KIND(64fc_32fc, Zor64fc)
ZORS_BIND_KIND(64f_32s, Zor64f)
ZORS_BIND_KIND(64fc_32sc, Zor64fc)
ZORS_BIND_KIND(64f_16s, Zor64f)
ZORS_BIND_KIND(64fc_16sc, Zor64fc)
ZORS_BIND_TAPS(_16s, _16s, Zor16s, int)
ZORS_BIND_RECORD(_16s)
ZORS_BIND(zorsFIRInit_32s, (init<ZorsFIRState64f_32s, Zor64f>))

} // namespace zors::ZORS_VARIANT
