#include "frame/bind.h"
#include "simd/check.h"

#include <zorcore.h>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <numbers>

namespace zors::ZORS_VARIANT {
namespace {

using std::numbers::pi;

// Half of a symmetric filter: the points at the distances 0, 1, 2... from its centre, in even lengths 1/2, 3/2...
struct Half {
    explicit Half(int tapsLen) : hasCentre(tapsLen % 2 != 0), points(tapsLen / 2 + hasCentre) {}

    double distance(int point) const { return hasCentre ? point : point + 0.5; }

    bool hasCentre;
    int points;
};

// A quarter of a turn ahead a cosine is minus the sine; three quarters, for the sine itself, would be rounded more.
enum class Ahead { nothing, quarter };

// The cosine of 2 pi frequency distance, or what is ahead of it, at each point.
void fillWave(const Half& half, Zor64f frequency, Ahead ahead, Zor64f* t)
{
    const bool isQuarter = ahead == Ahead::quarter;
    if (frequency == 0.5) {
        // More than tones have. It is 0 everywhere, or its signs alternate.
        const int most = half.hasCentre == isQuarter ? 0 : 1;
        for (int i = 0; i < half.points; ++i) t[i] = (i % 2 != 0) == isQuarter ? most : -most;
        return;
    }
    double phase = (isQuarter ? pi / 2 : 0) + 2 * pi * frequency * half.distance(0);
    zorsTone_Direct_64f_arraddr(t, half.points, 1, frequency, &phase, ZOR_ALG_PRECISION);
}

void applyWindow(ZorWinType winType, Zor64f* pTaps, int tapsLen)
{
    switch (winType) {
    case zorWinBartlett:
        zorsWinBartlett_64f_I_arraddr(pTaps, tapsLen);
        break;
    case zorWinBlackman:
        zorsWinBlackmanOpt_64f_I_arraddr(pTaps, tapsLen);
        break;
    case zorWinHamming:
        zorsWinHamming_64f_I_arraddr(pTaps, tapsLen);
        break;
    case zorWinHann:
        zorsWinHann_64f_I_arraddr(pTaps, tapsLen);
        break;
    default:
        break;
    }
}

// The ideal low-pass filter up to a frequency, to be added or taken away.
struct Lowpass {
    Zor64f sign, frequency;
};

// The sum of ideal filters, under the window. Where it is normalised, the frequency gets the gain 1 or -1.
struct Response {
    std::initializer_list<Lowpass> parts;
    ZorWinType winType;
    bool isNormalised;
    Zor64f frequency;
};

void design(const Response& response, Zor64f* pTaps, int tapsLen, Zor64f* t)
{
    const Half half(tapsLen);
    const auto tapAt = [=](int point) -> Zor64f& { return pTaps[half.points - 1 - point]; };
    const int first = half.hasCentre ? 1 : 0;

    std::fill_n(pTaps, tapsLen, 0.0);
    for (const Lowpass& part : response.parts) {
        fillWave(half, part.frequency, Ahead::quarter, t);
        for (int i = first; i < half.points; ++i) tapAt(i) -= part.sign * t[i];
        if (half.hasCentre) tapAt(0) += part.sign * 2 * part.frequency;
    }
    for (int i = first; i < half.points; ++i) tapAt(i) /= pi * half.distance(i);
    applyWindow(response.winType, pTaps, tapsLen);

    if (response.isNormalised) {
        fillWave(half, response.frequency, Ahead::nothing, t);
        double sum = 0;
        for (int i = first; i < half.points; ++i) sum += t[i] * tapAt(i);
        const double gain = std::abs(2 * sum + (half.hasCentre ? tapAt(0) : 0));
        if (gain > 0)
            for (int i = 0; i < half.points; ++i) tapAt(i) *= 1 / gain;
    }
    std::reverse_copy(pTaps, pTaps + tapsLen / 2, pTaps + half.points);
}

ZorStatus makeTaps(const Response& response, Zor64f* pTaps, int tapsLen)
{
    constexpr int most = INT32_MAX / static_cast<int>(sizeof(Zor64f));
    const int values = tapsLen / 2 + 1;
    auto* t =
        values > most ? nullptr : static_cast<Zor64f*>(zorMalloc(values * static_cast<int>(sizeof(Zor64f))));
    // Callers know this status of an array without memory.
    if (const ZorStatus bad = pointers(t)) return bad;
    design(response, pTaps, tapsLen, t);
    zorFree(t);
    return zorStsOk;
}

bool isInside(Zor64f frequency)
{
    return frequency > 0 && frequency < 0.5;
}

ZorStatus checkEdge(const Zor64f* pTaps, int tapsLen, Zor64f rFreq)
{
    return check(pointers(pTaps), length(tapsLen, 5), require(isInside(rFreq), zorStsBadSize));
}

ZorStatus checkBand(const Zor64f* pTaps, int tapsLen, Zor64f rLowFreq, Zor64f rHighFreq)
{
    return check(pointers(pTaps), length(tapsLen, 5),
                 require(isInside(rLowFreq) && isInside(rHighFreq) && rLowFreq < rHighFreq, zorStsBadSize));
}

ZorStatus lowpass(Zor64f rFreq, Zor64f* pTaps, int tapsLen, ZorWinType winType, int doNormal)
{
    if (const ZorStatus bad = checkEdge(pTaps, tapsLen, rFreq)) return bad;
    return makeTaps({{{1, rFreq}}, winType, doNormal != 0, 0}, pTaps, tapsLen);
}

ZorStatus highpass(Zor64f rFreq, Zor64f* pTaps, int tapsLen, ZorWinType winType, int doNormal)
{
    if (const ZorStatus bad = checkEdge(pTaps, tapsLen, rFreq)) return bad;
    return makeTaps({{{1, 0.5}, {-1, rFreq}}, winType, doNormal != 0, 0.5}, pTaps, tapsLen);
}

ZorStatus bandpass(Zor64f rLowFreq, Zor64f rHighFreq, Zor64f* pTaps, int tapsLen, ZorWinType winType,
                   int doNormal)
{
    if (const ZorStatus bad = checkBand(pTaps, tapsLen, rLowFreq, rHighFreq)) return bad;
    const Zor64f centre = (rLowFreq + rHighFreq) / 2;
    return makeTaps({{{1, rHighFreq}, {-1, rLowFreq}}, winType, doNormal != 0, centre}, pTaps, tapsLen);
}

ZorStatus bandstop(Zor64f rLowFreq, Zor64f rHighFreq, Zor64f* pTaps, int tapsLen, ZorWinType winType,
                   int doNormal)
{
    if (const ZorStatus bad = checkBand(pTaps, tapsLen, rLowFreq, rHighFreq)) return bad;
    return makeTaps({{{1, 0.5}, {-1, rHighFreq}, {1, rLowFreq}}, winType, doNormal != 0, 0}, pTaps, tapsLen);
}

} // namespace

ZORS_BIND(zorsFIRGenLowpass_64f, lowpass)
ZORS_BIND(zorsFIRGenHighpass_64f, highpass)
ZORS_BIND(zorsFIRGenBandpass_64f, bandpass)
ZORS_BIND(zorsFIRGenBandstop_64f, bandstop)

} // namespace zors::ZORS_VARIANT
