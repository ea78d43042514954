#include "pulse.h"

#include "decibels.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace ecg {
namespace {

constexpr double slowest = 0.5, fastest = 4; // Hz: 30 to 240 beats per minute
constexpr double leastBeats = 2;             // of a short recording
constexpr double resolution = 0.1;           // Hz
constexpr int fineness = 4;                  // a line half-way between two points would seem 1.4 dB weaker

constexpr double slopeSeconds = 0.03; // the difference is largest at 17 Hz, where ventricular complexes are
constexpr double beatSeconds = 0.15;  // a little longer than such a complex

// The sums of `len` neighbours, or of the next power of two: every round adds neighbouring sums of half the length.
// What lies behind the end counts as 0.
void sumNeighbours(Channel& channel, int len)
{
    Channel sums(channel.len());
    for (int half = 1; half < std::min(len, channel.len()); half *= 2) {
        const int both = channel.len() - half;
        require(zorsAdd_32f(channel.data(), channel.data() + half, sums.data(), both), "add neighbours");
        require(zorsCopy_32f(channel.data() + both, sums.data() + both, half), "copy the end");
        std::swap(channel, sums);
    }
}

// Smoothed squares of the slope: one hump a beat.
//
// The strongest frequency of an electrocardiogram itself need not be its rate: below 0.5 Hz the baseline wanders, the
// harmonics of the narrow beats are as strong as the fundamental, and beats of different shapes by turns bring in
// fractions of the rate. Squares of the slope, taken over the time of the QRS complex, leave neither the slow waves nor
// the shape (as a detector of beats does, Pan and Tompkins, IEEE Trans. Biomed. Eng. 32, 230, 1985), and smoothing
// weakens the harmonics.
Channel activityOf(const Channel& channel, int rate)
{
    Channel activity(channel.len());
    require(zorsZero_32f(activity.data(), activity.len()), "clear the activity");
    const int distance = std::max(1, static_cast<int>(std::lround(slopeSeconds * rate)));
    if (const int len = channel.len() - distance; len > 0) {
        Zor32f* slope = activity.data();
        require(zorsSub_32f(channel.data(), channel.data() + distance, slope, len), "find the slope");
        require(zorsMul_32f_I(slope, slope, len), "square the slope");
    }
    sumNeighbours(activity, static_cast<int>(beatSeconds * rate));
    return activity;
}

// Of the strongest peak from `least` on: the vertex of the parabola through its level and those beside it.
std::optional<double> strongestFrequency(const Density& density, double least)
{
    const Zor32f* power = density.values.data();
    const int end = std::min(density.upTo(fastest), density.values.len() - 1);
    int peak = 0;
    for (int k = static_cast<int>(std::ceil(least / density.step)); k < end; ++k)
        if (power[k] > power[k - 1] && power[k] >= power[k + 1] && (peak == 0 || power[k] > power[peak]))
            peak = k;
    if (peak == 0) return std::nullopt;

    const auto level = [&](int k) { return decibels(std::max(power[k] / power[peak], 1e-6f)); };
    const double left = level(peak - 1), right = level(peak + 1);
    const double vertex = (left - right) / (2 * (left + right));
    return density.step * (peak + vertex);
}

} // namespace

Pulse pulseOf(const Channel& channel, int rate)
{
    const Channel activity = activityOf(channel, rate);
    Density spectrum = Welch(rate, resolution, fineness).densityOf(activity.all());
    const double least = std::max(slowest, leastBeats * rate / channel.len());
    const std::optional<double> hertz = strongestFrequency(spectrum, least);
    return {std::move(spectrum), hertz};
}

} // namespace ecg
