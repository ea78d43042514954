#include "decibels.h"
#include "plot.h"
#include "welch.h"

#include <algorithm>
#include <cmath>

namespace ecg {
namespace {

constexpr double resolution = 0.5; // Hz, by segments of a few seconds
constexpr double most = 40;        // Hz
constexpr double depth = 60;       // dB from the darkest to the brightest colour
constexpr double faintest = -120;  // dB
constexpr int mostColumns = 1500;  // about one a pixel

// A column for each quarter of a segment, and two at least, which a picture needs.
int columnsFor(const Channel& channel, int segment)
{
    return std::clamp(4 * (channel.len() / segment), 2, mostColumns);
}

// What a column stands for, widened to a segment.
std::span<const Zor32f> stretch(const Channel& channel, int column, int columns, int segment)
{
    const Zor64s len = channel.len();
    const auto begin = static_cast<int>(column * len / columns);
    const auto end = static_cast<int>((column + 1) * len / columns);
    const int wide = std::min(channel.len(), std::max(segment, end - begin));
    const int first = std::clamp(begin - (wide - (end - begin)) / 2, 0, channel.len() - wide);
    return channel.part(first, wide);
}

// Returns the highest level.
double sendLevels(Picture& picture, const Channel& channel, int rate, Welch& welch)
{
    const int columns = columnsFor(channel, welch.segment());
    double highest = faintest;
    picture.say("$levels << end");
    for (int i = 0; i < columns; ++i) {
        const Density density = welch.densityOf(stretch(channel, i, columns, welch.segment()));
        const double seconds = (i + 0.5) * channel.len() / columns / rate;
        for (int k = 0; k < density.upTo(most); ++k) {
            const double level = std::max(decibels(density.values.data()[k]), faintest);
            highest = std::max(highest, level);
            picture.point(seconds, k * density.step, level);
        }
    }
    picture.say("end");
    return highest;
}

void drawChannel(Picture& picture, const Channel& channel, int rate, const std::string& name)
{
    Welch welch(rate, resolution);
    const double highest = 10 * std::ceil(sendLevels(picture, channel, rate, welch) / 10);
    picture.range("x", 0, static_cast<double>(channel.len()) / rate);
    picture.range("y", 0, std::min(most, rate / 2.0));
    picture.range("cb", highest - depth, highest);
    char title[64];
    std::snprintf(title, sizeof title, "power spectral density, segments of %.1f s",
                  static_cast<double>(welch.segment()) / rate);
    picture.plot(name + title, "$levels with image notitle");
}

} // namespace

void drawSpectrogram(const std::filesystem::path& png, const Recording& recording, const std::string& caption)
{
    const std::size_t channels = recording.channels.size();
    Picture picture(png, {channels, 600 * channels, "char 9,char 17,char 6,char 3 spacing 0,char 7"},
                    caption);
    picture.say("set xlabel 'seconds'\nset ylabel 'Hz'\nset ytics 5\nset cblabel 'dB of 1 mV²/Hz' offset 1");
    picture.say(
        "set palette defined (0 '#000004', 1 '#420a68', 2 '#932667', 3 '#dd513a', 4 '#fca50a', 5 '#fcffa4')");
    for (std::size_t i = 0; i < channels; ++i)
        drawChannel(picture, recording.channels[i], recording.rate, recording.prefix(i));
    picture.finish();
}

} // namespace ecg
