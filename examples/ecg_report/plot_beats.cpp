#include "plot.h"
#include "statistics.h"

#include <algorithm>
#include <cmath>

namespace ecg {
namespace {

constexpr int shownSeconds = 10;
constexpr auto trace = "linecolor rgb '#1f4e79' notitle";
constexpr auto mark = "linecolor rgb '#b03030' notitle";

// The stretch of a recording that is shown.
struct Excerpt {
    int first, len, rate;

    double begin() const { return static_cast<double>(first) / rate; }
    double end() const { return static_cast<double>(first + len) / rate; }
    std::span<const Zor32f> of(const Channel& channel) const { return channel.part(first, len); }
};

// In the middle, where the threshold has settled.
Excerpt excerptOf(const Recording& recording)
{
    const auto len =
        static_cast<int>(std::min<Zor64s>(recording.len(), Zor64s{shownSeconds} * recording.rate));
    const int middle = (recording.len() - len) / 2;
    return {len == recording.len() ? 0 : middle - middle % recording.rate, len, recording.rate};
}

// A mark on each beat that is shown, and above, half-way from the beat before it, their interval. Returns gnuplot's
// words for them.
std::string markBeats(Picture& picture, const Channel& channel, const Beats& beats, const Excerpt& excerpt,
                      double height)
{
    constexpr double margin = 0.15; // seconds, for half a text
    std::size_t marks = 0, texts = 0;
    picture.say("$beats << end");
    for (std::size_t i = 0; i < beats.places.size(); ++i) {
        if (beats.seconds[i] < excerpt.begin() || beats.seconds[i] > excerpt.end()) continue;
        picture.point(beats.seconds[i], static_cast<double>(channel.data()[beats.places[i]]));
        ++marks;
    }
    picture.say("end\n$intervals << end");
    for (std::size_t i = 0; i < beats.intervals.size(); ++i) {
        const double middle = beats.seconds[i] + beats.intervals[i] / 2;
        const bool shown = middle > excerpt.begin() + margin && middle < excerpt.end() - margin;
        if (!shown || isInterruption(beats.intervals[i])) continue;
        picture.point(middle, height, 1000 * beats.intervals[i]);
        ++texts;
    }
    picture.say("end");

    std::string what;
    if (marks > 0) what += std::string(", $beats with points pointtype 7 pointsize 1 ") + mark;
    if (texts > 0)
        what += ", $intervals using 1:2:(sprintf('%.0f', $3)) with labels font ',11' textcolor rgb '#b03030' "
                "notitle";
    return what;
}

void drawTrace(Picture& picture, const Channel& channel, const std::optional<Beats>& beats,
               const Excerpt& excerpt, const std::string& name)
{
    const Range range = rangeOf(excerpt.of(channel));
    const double low = std::floor(2 * range.min - 0.1) / 2, high = std::ceil(2 * range.max + 0.1) / 2;
    const double room = 0.12 * (high - low); // for the intervals
    picture.series("$trace", excerpt.of(channel), excerpt.begin(), excerpt.rate);
    picture.range("y", low, high + room);
    picture.say("set ylabel 'millivolts'");
    std::string what = std::string("$trace with lines ") + trace;
    if (beats) what += markBeats(picture, channel, *beats, excerpt, high + room / 2);
    const char* const title = !beats                  ? "beats are not to be found at its rate"
                              : beats->places.empty() ? "no beats found"
                                                      : "beats and the intervals between them in ms";
    picture.plot(name + "electrocardiogram, " + title, what);
}

void drawStages(Picture& picture, const Beats& beats, const Excerpt& excerpt, const std::string& name)
{
    const auto send = [&](const std::string& block, const Channel& channel) {
        picture.series(block, excerpt.of(channel), excerpt.begin(), excerpt.rate);
        return rangeOf(excerpt.of(channel));
    };
    const Range band = send("$band", beats.stages.bandPassed);
    const double reach = std::max(0.1, std::ceil(11 * std::max<double>(-band.min, band.max)) / 10);
    picture.range("y", -reach, reach);
    picture.plot(name + "5 to 15 Hz", std::string("$band with lines ") + trace);

    const Range activity = send("$integrated", beats.stages.integrated);
    const Range threshold = send("$threshold", beats.threshold);
    picture.range("y", 0, 1.1 * std::max<double>({activity.max, threshold.max, 0.1}));
    picture.say("set ylabel '(mV/s)²'");
    picture.plot(name + "square of its slope, averaged over 0.15 s, and the threshold",
                 std::string("$integrated with lines ") + trace +
                     ", $threshold with steps linewidth 1.5 dashtype 2 " + mark);
}

} // namespace

void drawBeats(const std::filesystem::path& png, const Recording& recording,
               const std::vector<std::optional<Beats>>& beats, const std::string& caption)
{
    std::size_t panels = 0;
    for (const auto& found : beats) panels += found ? 3 : 1;
    Picture picture(png, {panels, 360 * panels, "char 10,char 3,char 6,char 3 spacing 0,char 7"}, caption);
    picture.say("set xlabel 'seconds'\nset mxtics 5\nset mytics 2");
    picture.say("set grid xtics ytics mxtics linetype 1 linecolor rgb '#e0e0e0', linetype 1 linecolor rgb "
                "'#f0f0f0'");
    const Excerpt excerpt = excerptOf(recording);
    picture.range("x", excerpt.begin(), excerpt.end());
    for (std::size_t i = 0; i < recording.channels.size(); ++i) {
        const std::string name = recording.prefix(i);
        drawTrace(picture, recording.channels[i], beats[i], excerpt, name);
        if (beats[i]) drawStages(picture, *beats[i], excerpt, name);
    }
    picture.finish();
}

} // namespace ecg
