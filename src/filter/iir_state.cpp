// Records of recursive filters: how they are made and released, their taps and delay lines.
#include "frame/bind.h"
#include "iir_steps.h"
#include "iir_taps.h"

#include <cstring>

namespace zors::ZORS_VARIANT {
namespace {

template <class State>
IirDesign design(Structure structure, int count)
{
    return {structure, count, KindOfIir<State>::converts};
}

// A filter with integer taps may do without recursion.
template <class... Factor>
ZorStatus iirOrder(const IirDesign& d)
{
    const bool maySuffice = sizeof...(Factor) > 0 && !d.isCascade();
    return require(d.count >= (maySuffice ? 0 : 1), zorStsBadIirOrder);
}

template <class State>
ZorStatus fits(const IirDesign& d)
{
    return require(iirSize<IirNumber<State>>(d) <= INT32_MAX, zorStsBadSize);
}

// Integer taps, T, have a factor: Factor is int, otherwise nothing.
template <class State, Structure structure, class T, class... Factor>
ZorStatus getStateSize(int count, int* pStateSize)
{
    const auto d = design<State>(structure, count);
    if (const ZorStatus bad = check(pointers(pStateSize), iirOrder<Factor...>(d))) return bad;
    if (const ZorStatus bad = fits<State>(d)) return bad;
    *pStateSize = static_cast<int>(iirSize<IirNumber<State>>(d));
    return zorStsOk;
}

// The record in memory of the design's size, from taps that can be divided.
template <class State>
IirRecord<IirNumber<State>>& ownsIIRInit(void* memory, const IirDesign& d, const IirNumber<State>* pTaps,
                                         const IirNumber<State>* pDlyLine)
{
    IirLayout<IirNumber<State>> layout(memory);
    auto& r = *layout.record();
    std::memset(static_cast<void*>(&r), 0, sizeof r);
    r.tag = KindOfIir<State>::tag(d.structure);
    r.structure = d.structure;
    r.count = d.count;
    r.delayLen = static_cast<Zor32s>(d.delays());
    layout.layOut(r, d);
    if (!d.isCascade()) clearSamples(r.delay + r.delayLen, 1);
    setIirTaps(r, pTaps);
    fillSteps(r);
    setIirDelayLine(r, pDlyLine);
    return r;
}

template <class State, Structure structure, class T, class... Factor>
ZorStatus init(State** ppState, const T* pTaps, int count, Factor... tapsFactor,
               const IirNumber<State>* pDlyLine, Zor8u* pBuffer)
{
    const auto d = design<State>(structure, count);
    if (const ZorStatus bad = check(pointers(ppState, pTaps, pBuffer), iirOrder<Factor...>(d))) return bad;
    if (const ZorStatus bad = fits<State>(d)) return bad;
    const TapNumbers<IirNumber<State>, Factor...> taps(pTaps, d.taps(), tapsFactor...);
    if (!taps.data()) return zorStsNoMemory;
    if (const ZorStatus bad = divisible(taps.data(), d)) return bad;
    *ppState = reinterpret_cast<State*>(&ownsIIRInit<State>(pBuffer, d, taps.data(), pDlyLine));
    return zorStsOk;
}

template <class State, Structure structure, class T, class... Factor>
ZorStatus initAlloc(State** ppState, const T* pTaps, int count, Factor... tapsFactor,
                    const IirNumber<State>* pDlyLine)
{
    const auto d = design<State>(structure, count);
    if (const ZorStatus bad = check(pointers(ppState, pTaps), iirOrder<Factor...>(d))) return bad;
    if (const ZorStatus bad = fits<State>(d)) return bad;
    const TapNumbers<IirNumber<State>, Factor...> taps(pTaps, d.taps(), tapsFactor...);
    if (!taps.data()) return zorStsNoMemory;
    if (const ZorStatus bad = divisible(taps.data(), d)) return bad;
    void* memory = zorMalloc(static_cast<int>(iirSize<IirNumber<State>>(d)));
    if (!memory) return zorStsNoMemory;
    auto& r = ownsIIRInit<State>(memory, d, taps.data(), pDlyLine);
    r.owned = 1;
    r.memory = memory;
    *ppState = reinterpret_cast<State*>(&r);
    return zorStsOk;
}

template <class State>
ZorStatus release(State* pState)
{
    if (const ZorStatus bad = pointers(pState)) return bad;
    if (const ZorStatus bad = iirContext(pState)) return bad;
    auto& r = iirRecordOf(pState);
    r.tag = 0;
    if (r.owned) zorFree(r.memory);
    return zorStsOk;
}

template <class State, class T, class... Factor>
ZorStatus iirSetTaps(const T* pTaps, State* pState, Factor... tapsFactor)
{
    if (const ZorStatus bad = pointers(pTaps, pState)) return bad;
    if (const ZorStatus bad = iirContext(pState)) return bad;
    auto& r = iirRecordOf(pState);
    const auto d = design<State>(r.structure, r.count);
    const TapNumbers<IirNumber<State>, Factor...> taps(pTaps, d.taps(), tapsFactor...);
    if (!taps.data()) return zorStsNoMemory;
    const ZorStatus status = setIirTaps(r, taps.data());
    fillSteps(r);
    return status;
}

template <class State>
ZorStatus iirSetDlyLine(State* pState, const IirNumber<State>* pDlyLine)
{
    if (const ZorStatus bad = pointers(pState)) return bad;
    if (const ZorStatus bad = iirContext(pState)) return bad;
    setIirDelayLine(iirRecordOf(pState), pDlyLine);
    return zorStsOk;
}

template <class State>
ZorStatus iirGetDlyLine(const State* pState, IirNumber<State>* pDlyLine)
{
    if (const ZorStatus bad = pointers(pState, pDlyLine)) return bad;
    if (const ZorStatus bad = iirContext(pState)) return bad;
    const auto& r = iirRecordOf(pState);
    copySamples(r.delay, pDlyLine, r.delayLen);
    return zorStsOk;
}

} // namespace

// The name of a function of sections has a word between the types of the taps and of the data.
#define ZORS_BIND_STRUCTURE(taps, data, ...)                                                                 \
    ZORS_BIND(zorsIIRGetStateSize##taps##data, (getStateSize<__VA_ARGS__>))                                  \
    ZORS_BIND(zorsIIRInit##taps##data, (init<__VA_ARGS__>))                                                  \
    ZORS_BIND(zorsIIRInitAlloc##taps##data, (initAlloc<__VA_ARGS__>))

#define ZORS_BIND_ORDER(taps, data, kind, ...)                                                               \
    ZORS_BIND_STRUCTURE(taps, data, ZorsIIRState##kind, Structure::anyOrder, __VA_ARGS__)
#define ZORS_BIND_SECTIONS(taps, data, kind, ...)                                                            \
    ZORS_BIND_STRUCTURE(taps##_BiQuad, data, ZorsIIRState##kind, Structure::biQuad, __VA_ARGS__)
#define ZORS_BIND_TAPS(form, kind, ...)                                                                      \
    ZORS_BIND(zorsIIRSetTaps##form, (iirSetTaps<ZorsIIRState##kind, __VA_ARGS__>))

#define ZORS_BIND_BOTH(taps, data, kind, ...)                                                                \
    ZORS_BIND_ORDER(taps, data, kind, __VA_ARGS__)                                                           \
    ZORS_BIND_SECTIONS(taps, data, kind, __VA_ARGS__)                                                        \
    ZORS_BIND_TAPS(taps##data, kind, __VA_ARGS__)

#define ZORS_BIND_RECORD(kind)                                                                               \
    ZORS_BIND(zorsIIRFree##kind, release<ZorsIIRState##kind>)                                                \
    ZORS_BIND(zorsIIRSetDlyLine##kind, iirSetDlyLine<ZorsIIRState##kind>)                                    \
    ZORS_BIND(zorsIIRGetDlyLine##kind, iirGetDlyLine<ZorsIIRState##kind>)

#define ZORS_BIND_KIND(taps, data, ...)                                                                      \
    ZORS_BIND_BOTH(taps, data, taps##data, __VA_ARGS__)                                                      \
    ZORS_BIND_RECORD(taps##data)

ZORS_BIND_KIND(, _32f, Zor32f)
ZORS_BIND_STRUCTURE(_BiQuad_DF1, _32f, ZorsIIRState_32f, Structure::directForm1, Zor32f)
ZORS_BIND_KIND(, _32fc, Zor32fc)
ZORS_BIND_KIND(32f, _16s, Zor32f)
ZORS_BIND_KIND(32fc, _16sc, Zor32fc)
ZORS_BIND_KIND(32s, _16s, Zor32s, int)
ZORS_BIND_BOTH(32s, _16s32f, 32s_16s, Zor32s, int)
ZORS_BIND_SECTIONS(32sc, _16sc, 32sc_16sc, Zor32sc, int)
ZORS_BIND_TAPS(32sc_16sc, 32sc_16sc, Zor32sc, int)
ZORS_BIND_SECTIONS(32sc, _16sc32fc, 32sc_16sc, Zor32sc, int)
ZORS_BIND_TAPS(32sc_16sc32fc, 32sc_16sc, Zor32sc, int)
ZORS_BIND_RECORD(32sc_16sc)
ZORS_BIND_KIND(, _64f, Zor64f)
ZORS_BIND_KIND(, _64fc, Zor64fc)
ZORS_BIND_KIND(64f, _32f, Zor64f)
ZORS_BIND_KIND(64fc, _32fc, Zor64fc)
ZORS_BIND_ORDER(64f, _32s, 64f_32s, Zor64f)
ZORS_BIND_TAPS(64f_32s, 64f_32s, Zor64f)
ZORS_BIND_RECORD(64f_32s)
ZORS_BIND_KIND(64fc, _32sc, Zor64fc)
ZORS_BIND_KIND(64f, _16s, Zor64f)
ZORS_BIND_KIND(64fc, _16sc, Zor64fc)

} // namespace zors::ZORS_VARIANT
