// Filters whose taps and delay line are the caller's.
#include "direct_line.h"
#include "direct_outputs.h"
#include "frame/bind.h"

namespace zors::ZORS_VARIANT {
namespace {

// One output from its samples, oldest first.
template <class Tap, class Data, class... Scale>
[[gnu::flatten]] void output(const Data* pSamples, Data* pDst, const Tap* pTaps, std::ptrdiff_t tapsLen,
                             Scale... scale)
{
    if constexpr (std::is_same_v<Tap, Zor16s>)
        if (tapsLen > mostExactTaps<Tap>) {
            Zor64s total = 0;
            for (std::ptrdiff_t n = 0; n < tapsLen; ++n)
                total += Zor64s{pSamples[n]} * pTaps[tapsLen - 1 - n];
            *pDst = scaledSum<Data>(total, scale...);
            return;
        }
    DirectSum<Tap, Data> sum;
    sum.add(pSamples, pTaps, tapsLen);
    *pDst = closed<Data>(sum.total(), [=](Zor64f part) { return roundedSum<Lane<Data>>(part, scale...); });
}

// Consecutive outputs from samples that do not change while they are written.
template <class Tap, class Data, class... Scale>
void outputs(const Data* pSamples, Data* pDst, std::ptrdiff_t count, const Tap* pTaps, std::ptrdiff_t tapsLen,
             Scale... scale)
{
    if (tapsLen > mostExactTaps<Tap>) {
        for (std::ptrdiff_t n = 0; n < count; ++n) output(pSamples + n, pDst + n, pTaps, tapsLen, scale...);
        return;
    }
    constexpr std::ptrdiff_t most = 256;
    Zor64f sums[most * LaneOf<Data>::each];
    for (std::ptrdiff_t n = 0; n < count; n += most) {
        const std::ptrdiff_t some = std::min(most, count - n);
        consecutiveSums(pSamples + n, pTaps, tapsLen, some, sums);
        roundSums(sums, pDst + n, some, scale...);
    }
}

// Outputs that need samples of the line are made a few at a time: the past is moved into memory of the call, or
// of the line itself, the new samples behind it.
template <class Tap, class Data, class... Scale>
[[gnu::noinline]] void filterBlock(const Data* pSrc, Data* pDst, std::ptrdiff_t len, const Tap* pTaps,
                                   std::ptrdiff_t tapsLen, DoubledLine<Data> line, Scale... scale)
{
    constexpr std::ptrdiff_t few = 8, small = 1024;
    if (len < few) {
        for (std::ptrdiff_t n = 0; n < len; ++n)
            output(line.push(pSrc[n]), pDst + n, pTaps, tapsLen, scale...);
        return;
    }
    Data own[small];
    const bool fits = 2 * tapsLen <= small;
    Data* const work = fits ? own : line.room();
    const std::ptrdiff_t past = tapsLen - 1, room = (fits ? small : 2 * tapsLen) - past;
    // In place every source is overwritten soon; elsewhere later outputs have all their samples there.
    const std::ptrdiff_t head = pSrc == pDst ? len : std::min(len, past);
    moveSamples(line.past(), work, past);
    const Data* last = head < len ? pSrc + (len - tapsLen) : nullptr;
    for (std::ptrdiff_t n = 0; n < head;) {
        const std::ptrdiff_t some = std::min(room, head - n);
        copySamples(pSrc + n, work + past, some);
        outputs(work, pDst + n, some, pTaps, tapsLen, scale...);
        n += some;
        if (n < len)
            moveSamples(work + some, work, past);
        else
            last = work + some - 1;
    }
    if (head < len) outputs(pSrc, pDst + head, len - head, pTaps, tapsLen, scale...);
    line.hold(last, len);
}

// Of an index that is known to be there.
inline ZorStatus delayIndex(const int* pDlyLineIndex, int tapsLen)
{
    return require(*pDlyLineIndex >= 0 && *pDlyLineIndex < tapsLen, zorStsBadDelayIndex);
}

template <class Tap, class Data, class... Scale>
ZorStatus block(const Data* pSrc, Data* pDst, int numIters, const Tap* pTaps, int tapsLen, Data* pDlyLine,
                int* pDlyLineIndex, Scale... scale)
{
    if (const ZorStatus bad = check(pointers(pSrc, pDst), length(numIters), pointers(pTaps),
                                    firLength(tapsLen), pointers(pDlyLine, pDlyLineIndex)))
        return bad;
    if (const ZorStatus bad = delayIndex(pDlyLineIndex, tapsLen)) return bad;
    filterBlock(pSrc, pDst, numIters, pTaps, tapsLen, DoubledLine(pDlyLine, tapsLen, pDlyLineIndex),
                scale...);
    return zorStsOk;
}

template <class Tap, class Data, class... Scale>
ZorStatus blockInPlace(Data* pSrcDst, int numIters, const Tap* pTaps, int tapsLen, Data* pDlyLine,
                       int* pDlyLineIndex, Scale... scale)
{
    return block(pSrcDst, pSrcDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex, scale...);
}

template <class Tap, class Data, class... Scale>
ZorStatus one(Data src, Data* pDst, const Tap* pTaps, int tapsLen, Data* pDlyLine, int* pDlyLineIndex,
              Scale... scale)
{
    if (const ZorStatus bad =
            check(pointers(pDst, pTaps), firLength(tapsLen), pointers(pDlyLine, pDlyLineIndex)))
        return bad;
    if (const ZorStatus bad = delayIndex(pDlyLineIndex, tapsLen)) return bad;
    DoubledLine line(pDlyLine, tapsLen, pDlyLineIndex);
    output(line.push(src), pDst, pTaps, tapsLen, scale...);
    return zorStsOk;
}

// Integer taps have a factor of their own.
template <class Tap, class Data>
ZorStatus blockScaled(const Data* pSrc, Data* pDst, int numIters, const Tap* pTaps, int tapsLen,
                      int tapsFactor, Data* pDlyLine, int* pDlyLineIndex, int scaleFactor)
{
    return block(pSrc, pDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex,
                 commonFactor(tapsFactor, scaleFactor));
}

template <class Tap, class Data>
ZorStatus blockScaledInPlace(Data* pSrcDst, int numIters, const Tap* pTaps, int tapsLen, int tapsFactor,
                             Data* pDlyLine, int* pDlyLineIndex, int scaleFactor)
{
    return block(pSrcDst, pSrcDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex,
                 commonFactor(tapsFactor, scaleFactor));
}

template <class Tap, class Data>
ZorStatus oneScaled(Data src, Data* pDst, const Tap* pTaps, int tapsLen, int tapsFactor, Data* pDlyLine,
                    int* pDlyLineIndex, int scaleFactor)
{
    return one(src, pDst, pTaps, tapsLen, pDlyLine, pDlyLineIndex, commonFactor(tapsFactor, scaleFactor));
}

} // namespace

#define ZORS_BIND_DIRECT(types, Tap, Data)                                                                   \
    ZORS_BIND(zorsFIR##types, (block<Tap, Data>))                                                            \
    ZORS_BIND(zorsFIR##types##_I, (blockInPlace<Tap, Data>))                                                 \
    ZORS_BIND(zorsFIROne##types, (one<Tap, Data>))

#define ZORS_BIND_DIRECT_SCALED(types, Tap, Data)                                                            \
    ZORS_BIND(zorsFIR##types##_Sfs, (block<Tap, Data, int>))                                                 \
    ZORS_BIND(zorsFIR##types##_ISfs, (blockInPlace<Tap, Data, int>))                                         \
    ZORS_BIND(zorsFIROne##types##_Sfs, (one<Tap, Data, int>))

#define ZORS_BIND_DIRECT_INTEGER(types, Tap, Data)                                                           \
    ZORS_BIND(zorsFIR##types##_Sfs, (blockScaled<Tap, Data>))                                                \
    ZORS_BIND(zorsFIR##types##_ISfs, (blockScaledInPlace<Tap, Data>))                                        \
    ZORS_BIND(zorsFIROne##types##_Sfs, (oneScaled<Tap, Data>))

ZORS_BIND_DIRECT(_Direct_32f, Zor32f, Zor32f)
ZORS_BIND_DIRECT(_Direct_32fc, Zor32fc, Zor32fc)
ZORS_BIND_DIRECT(_Direct_64f, Zor64f, Zor64f)
ZORS_BIND_DIRECT(_Direct_64fc, Zor64fc, Zor64fc)
ZORS_BIND_DIRECT(64f_Direct_32f, Zor64f, Zor32f)
ZORS_BIND_DIRECT(64fc_Direct_32fc, Zor64fc, Zor32fc)
ZORS_BIND_DIRECT_SCALED(32f_Direct_16s, Zor32f, Zor16s)
ZORS_BIND_DIRECT_SCALED(32fc_Direct_16sc, Zor32fc, Zor16sc)
ZORS_BIND_DIRECT_SCALED(64f_Direct_32s, Zor64f, Zor32s)
ZORS_BIND_DIRECT_SCALED(64fc_Direct_32sc, Zor64fc, Zor32sc)
ZORS_BIND_DIRECT_SCALED(64f_Direct_16s, Zor64f, Zor16s)
ZORS_BIND_DIRECT_SCALED(64fc_Direct_16sc, Zor64fc, Zor16sc)
ZORS_BIND_DIRECT_SCALED(_Direct_16s, Zor16s, Zor16s)
ZORS_BIND_DIRECT_INTEGER(32s_Direct_16s, Zor32s, Zor16s)
ZORS_BIND_DIRECT_INTEGER(32sc_Direct_16sc, Zor32sc, Zor16sc)

} // namespace zors::ZORS_VARIANT
