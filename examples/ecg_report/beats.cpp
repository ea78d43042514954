#include "beats.h"

#include "statistics.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace ecg {
namespace {

constexpr double complexSeconds = 0.1;  // from the middle of a hump to either end of its complex
constexpr double baselineSeconds = 0.3; // about a complex

// What lies up to so many seconds before and behind a sample.
std::span<const Zor32f> about(const Channel& channel, int centre, double seconds, int rate)
{
    const int reach = std::max(1, static_cast<int>(std::lround(seconds * rate)));
    const int begin = std::max(0, centre - reach), end = std::min(channel.len(), centre + reach + 1);
    return channel.part(begin, end - begin);
}

// The highest summit of the signal times `sign`; the middle where it only rises or falls, as when the trace drifts.
std::size_t summit(std::span<const Zor32f> signal, Zor32f sign)
{
    std::size_t best = signal.size() / 2;
    bool found = false;
    for (std::size_t i = 1; i + 1 < signal.size(); ++i) {
        const Zor32f value = sign * signal[i];
        if (value <= sign * signal[i - 1] || value < sign * signal[i + 1]) continue;
        if (!found || value > sign * signal[best]) best = i;
        found = true;
    }
    return best;
}

// The R wave is what rises out of the baseline, however deep the waves beside it. A complex that hardly rises, as in
// leads that see the heart from behind, is placed by its depth.
int placeOfR(const Channel& channel, int hump, int rate)
{
    const auto complex = about(channel, hump, complexSeconds, rate);
    const Range range = rangeOf(complex);
    const Zor32f baseline = statisticsOf(about(channel, hump, baselineSeconds, rate)).mean;
    const bool rises = range.max - baseline >= (baseline - range.min) / 2;
    return static_cast<int>(complex.data() - channel.data()) +
           static_cast<int>(summit(complex, rises ? 1.0f : -1.0f));
}

std::vector<Zor64f> differencesOf(const std::vector<Zor64f>& values)
{
    if (values.size() < 2) return {};
    std::vector<Zor64f> differences(values.size() - 1);
    require(zorsSub_64f(values.data(), values.data() + 1, differences.data(),
                        static_cast<int>(differences.size())),
            "find the intervals");
    return differences;
}

} // namespace

std::optional<Beats> beatsOf(const Channel& channel, int rate)
{
    if (rate < leastRateForQrs || rate > mostRateForQrs) return std::nullopt;
    QrsStages stages = qrsStagesOf(channel, rate);
    Detection detection = detectQrs(stages, rate);
    Beats beats{std::move(stages), std::move(detection.threshold), {}, {}, {}};
    for (const int hump : detection.humps) beats.places.push_back(placeOfR(channel, hump, rate));
    for (const int place : beats.places) beats.seconds.push_back(static_cast<double>(place) / rate);
    beats.intervals = differencesOf(beats.seconds);
    return beats;
}

Variability variabilityOf(const Beats& beats)
{
    // Of the changes those between intervals that both count.
    std::vector<Zor64f> intervals, changes, all = differencesOf(beats.intervals);
    for (std::size_t i = 0; i < beats.intervals.size(); ++i) {
        if (isInterruption(beats.intervals[i])) continue;
        intervals.push_back(beats.intervals[i]);
        if (i > 0 && !isInterruption(beats.intervals[i - 1])) changes.push_back(all[i - 1]);
    }

    Variability result;
    const auto count = static_cast<int>(intervals.size()), changeCount = static_cast<int>(changes.size());
    if (count >= 1) {
        Zor64f mean = 0;
        require(zorsMean_64f(intervals.data(), count, &mean), "find the mean interval");
        result.rate = 60 / mean;
    }
    if (count >= 2) {
        Zor64f deviation = 0;
        require(zorsStdDev_64f(intervals.data(), count, &deviation), "find the deviation of the intervals");
        result.sdnn = deviation;
    }
    if (changeCount >= 1) {
        Zor64f meanSquare = 0;
        require(zorsMul_64f_I(changes.data(), changes.data(), changeCount), "square the changes");
        require(zorsMean_64f(changes.data(), changeCount, &meanSquare), "find the mean square");
        result.rmssd = std::sqrt(meanSquare);
    }
    return result;
}

} // namespace ecg
