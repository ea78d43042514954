#include "report.h"

#include "pulse.h"
#include "statistics.h"
#include "transcoding.h"

#include <algorithm>
#include <cstdio>

namespace ecg {
namespace {

constexpr int segmentSeconds = 10;

void printLine(const std::string& label, const Statistics& s)
{
    char stdDev[32] = "-";
    if (s.stdDev) std::snprintf(stdDev, sizeof stdDev, "%.3f", static_cast<double>(*s.stdDev));
    std::printf("%-15s %9.3f %9s %9.3f %9.3f\n", label.c_str(), static_cast<double>(s.mean), stdDev,
                static_cast<double>(s.range.min), static_cast<double>(s.range.max));
}

std::string secondsLabel(double begin, double end)
{
    char label[48];
    std::snprintf(label, sizeof label, "%g - %g s", begin, end);
    return label;
}

void printChannel(const Channel& channel, int rate)
{
    std::printf("%-15s %9s %9s %9s %9s\n", "millivolts", "mean", "std dev", "min", "max");
    printLine("whole", statisticsOf(channel.all()));
    const Zor64s step = Zor64s{segmentSeconds} * rate;
    for (Zor64s begin = 0; begin < channel.len(); begin += step) {
        const Zor64s end = std::min<Zor64s>(begin + step, channel.len());
        printLine(secondsLabel(static_cast<double>(begin) / rate, static_cast<double>(end) / rate),
                  statisticsOf(channel.part(static_cast<int>(begin), static_cast<int>(end - begin))));
    }
}

void printTranscoding(const Channel& channel)
{
    const Transcoding transcoding = transcodingOf(channel);
    std::printf("signal to noise after transcoding: mu-law %.2f dB, A-law %.2f dB\n", transcoding.muLaw,
                transcoding.aLaw);
}

void printPulse(const Channel& channel, int rate)
{
    if (const auto hertz = pulseOf(channel, rate).hertz)
        std::printf("heart rate: %.1f beats per minute (%.3f Hz), by the spectrum\n", 60 * *hertz, *hertz);
    else
        std::printf("heart rate: none found by the spectrum\n");
}

void printBeats(const std::optional<Beats>& beats)
{
    if (!beats) {
        std::printf("beats: only found at rates of %d to %d samples a second\n", leastRateForQrs,
                    mostRateForQrs);
        return;
    }
    if (beats->places.empty()) {
        std::printf("beats: none found\n");
        return;
    }
    const auto [rate, sdnn, rmssd] = variabilityOf(*beats);
    std::string missing;
    const auto print = [&](const char* what, std::optional<double> value, const char* unit) {
        if (value)
            std::printf(", %s %.1f %s", what, *value, unit);
        else
            missing.append(missing.empty() ? "; too few for " : ", ").append(what);
    };
    const auto milliseconds = [](std::optional<double> seconds) {
        return seconds ? std::optional(1000 * *seconds) : std::nullopt;
    };
    std::printf("beats: %zu", beats->places.size());
    print("mean heart rate", rate, "per minute");
    print("SDNN", milliseconds(sdnn), "ms");
    print("RMSSD", milliseconds(rmssd), "ms");
    std::printf("%s\n", missing.c_str());
}

} // namespace

void printReport(const std::string& name, const Recording& recording,
                 const std::vector<std::optional<Beats>>& beats)
{
    std::printf("%s: %.3f s, %d samples at %d Hz\n", name.c_str(), recording.seconds(), recording.len(),
                recording.rate);
    for (std::size_t i = 0; i < recording.channels.size(); ++i) {
        if (recording.channels.size() == 1)
            std::printf("\n");
        else
            std::printf("\nchannel %zu\n", i + 1);
        printChannel(recording.channels[i], recording.rate);
        printTranscoding(recording.channels[i]);
        printPulse(recording.channels[i], recording.rate);
        printBeats(beats[i]);
    }
}

} // namespace ecg
