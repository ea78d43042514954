#include "qrs_stages.h"

#include "centred_filter.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace ecg {
namespace {

constexpr double lowest = 5, highest = 15;  // Hz
constexpr double bandPassSeconds = 0.5;     // of its impulse response
constexpr double slopeSeconds = 0.005;      // the five-point formula was made for 200 samples a second
constexpr double integrationSeconds = 0.15; // the widest complexes

int samplesIn(double seconds, int rate)
{
    return std::max(1, static_cast<int>(std::lround(seconds * rate)));
}

// By windowed sincs: the phase is linear, and so complexes keep their shape and place.
Vector<Zor32f> bandPass(int rate)
{
    const int len = 2 * samplesIn(bandPassSeconds / 2, rate) + 1;
    std::vector<Zor64f> design(static_cast<std::size_t>(len));
    require(zorsFIRGenBandpass_64f(lowest / rate, highest / rate, design.data(), len, zorWinHamming, 1),
            "design the band-pass filter");
    Vector<Zor32f> taps(len);
    require(zorsConvert_64f32f(design.data(), taps.data(), len), "convert the taps");
    return taps;
}

// (2 (x[n + d] - x[n - d]) + x[n + 2 d] - x[n - 2 d]) / 8 d, per second.
Vector<Zor32f> derivative(int rate)
{
    const int distance = samplesIn(slopeSeconds, rate);
    Vector<Zor32f> taps(4 * distance + 1);
    require(zorsZero_32f(taps.data(), taps.len()), "clear the taps");
    const Zor32f unit = static_cast<Zor32f>(rate) / static_cast<Zor32f>(8 * distance);
    taps.data()[0] = unit;
    taps.data()[distance] = 2 * unit;
    taps.data()[3 * distance] = -2 * unit;
    taps.data()[4 * distance] = -unit;
    return taps;
}

Vector<Zor32f> movingAverage(int rate)
{
    Vector<Zor32f> taps(2 * samplesIn(integrationSeconds / 2, rate) + 1);
    require(zorsSet_32f(1 / static_cast<Zor32f>(taps.len()), taps.data(), taps.len()), "set the taps");
    return taps;
}

} // namespace

QrsStages qrsStagesOf(const Channel& channel, int rate)
{
    Channel bandPassed = filteredAboutCentre(channel, bandPass(rate));
    Channel squared = filteredAboutCentre(bandPassed, derivative(rate));
    require(zorsMul_32f_I(squared.data(), squared.data(), squared.len()), "square the slope");
    Channel integrated = filteredAboutCentre(squared, movingAverage(rate));
    return {std::move(bandPassed), std::move(squared), std::move(integrated)};
}

} // namespace ecg
