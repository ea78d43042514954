#include "plot.h"
#include "statistics.h"

#include <algorithm>
#include <cmath>

namespace ecg {
namespace {

constexpr int excerptSeconds = 10;
constexpr int envelopePoints = 1500; // about one a pixel

// A line from the smallest to the largest value of each of many short stretches.
void sendEnvelope(Picture& picture, const Channel& channel, int rate)
{
    picture.say("$envelope << end");
    const Zor64s len = channel.len(), points = std::min<Zor64s>(len, envelopePoints);
    for (Zor64s i = 0; i < points; ++i) {
        const auto begin = static_cast<int>(i * len / points), end = static_cast<int>((i + 1) * len / points);
        const Range range = rangeOf(channel.part(begin, end - begin));
        const double seconds = static_cast<double>(begin) / rate;
        picture.point(seconds, range.min);
        picture.point(seconds, range.max);
    }
    picture.say("end");
}

void drawChannel(Picture& picture, const Channel& channel, int rate, const std::string& name)
{
    const int shown = static_cast<int>(std::min<Zor64s>(channel.len(), Zor64s{excerptSeconds} * rate));
    const auto excerpt = channel.part(0, shown);
    sendEnvelope(picture, channel, rate);
    picture.series("$excerpt", excerpt, 0, rate);
    const auto panel = [&](const std::string& title, std::span<const Zor32f> signal,
                           const std::string& data) {
        const Range range = rangeOf(signal);
        picture.range("x", 0, static_cast<double>(signal.size()) / rate);
        // To the next half millivolt, so that a flat line has a scale too.
        picture.range("y", std::floor(2 * range.min - 0.1) / 2, std::ceil(2 * range.max + 0.1) / 2);
        picture.plot(name + title, data + " with lines linecolor rgb '#1f4e79' notitle");
    };
    panel("whole recording", channel.all(), "$envelope");
    panel("first " + std::to_string(excerptSeconds) + " seconds", excerpt, "$excerpt");
}

} // namespace

void drawRecording(const std::filesystem::path& png, const Recording& recording, const std::string& caption)
{
    const std::size_t channels = recording.channels.size();
    Picture picture(png, {2 * channels, 850 * channels, "char 9,char 3,char 6,char 3 spacing 0,char 7"},
                    caption);
    picture.say("set xlabel 'seconds'\nset ylabel 'millivolts'\nset mxtics 5\nset mytics 2");
    picture.say("set grid xtics ytics mxtics mytics linetype 1 linecolor rgb '#e0b8b8', linetype 1 linecolor "
                "rgb '#f4e4e4'");
    for (std::size_t i = 0; i < channels; ++i)
        drawChannel(picture, recording.channels[i], recording.rate, recording.prefix(i));
    picture.finish();
}

} // namespace ecg
