#include "plot.h"

#include "statistics.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <sys/wait.h>
#include <utility>

namespace ecg {
namespace {

namespace fs = std::filesystem;

constexpr int excerptSeconds = 10;
constexpr int envelopePoints = 1500; // about one a pixel

// gnuplot's single-quoted text, which cannot run on to another line.
std::string quoted(const std::string& text)
{
    std::string result = "'";
    for (const char c : text) {
        if (c == '\'') result += c;
        result += c == '\n' ? ' ' : c;
    }
    return result + "'";
}

std::string number(double value)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.9g", value);
    return text;
}

// A running gnuplot that takes commands.
class Gnuplot {
public:
    Gnuplot() : pipe_(popen("command -v gnuplot >/dev/null || exit 127; exec gnuplot -", "w"))
    {
        if (!pipe_) throw Error("cannot start gnuplot");
    }
    ~Gnuplot()
    {
        if (pipe_) pclose(pipe_);
    }
    Gnuplot(const Gnuplot&) = delete;
    Gnuplot& operator=(const Gnuplot&) = delete;

    void say(const std::string& line) { std::fprintf(pipe_, "%s\n", line.c_str()); }
    void point(double x, double y) { std::fprintf(pipe_, "%.9g %.9g\n", x, y); }
    void finish()
    {
        const int status = pclose(std::exchange(pipe_, nullptr));
        if (WIFEXITED(status) && WEXITSTATUS(status) == 127) throw Error("gnuplot is not installed");
        if (status != 0) throw Error("gnuplot failed");
    }

private:
    std::FILE* pipe_;
};

// A line from the smallest to the largest value of each of many short stretches.
void sendEnvelope(Gnuplot& gnuplot, const Channel& channel, int rate)
{
    gnuplot.say("$envelope << end");
    const Zor64s len = channel.len(), points = std::min<Zor64s>(len, envelopePoints);
    for (Zor64s i = 0; i < points; ++i) {
        const auto begin = static_cast<int>(i * len / points), end = static_cast<int>((i + 1) * len / points);
        const Range range = rangeOf(channel.part(begin, end - begin));
        const double seconds = static_cast<double>(begin) / rate;
        gnuplot.point(seconds, range.min);
        gnuplot.point(seconds, range.max);
    }
    gnuplot.say("end");
}

void sendExcerpt(Gnuplot& gnuplot, std::span<const Zor32f> signal, int rate)
{
    gnuplot.say("$excerpt << end");
    for (std::size_t i = 0; i < signal.size(); ++i) gnuplot.point(static_cast<double>(i) / rate, signal[i]);
    gnuplot.say("end");
}

void drawChannel(Gnuplot& gnuplot, const Channel& channel, int rate, const std::string& name)
{
    const int shown = static_cast<int>(std::min<Zor64s>(channel.len(), Zor64s{excerptSeconds} * rate));
    const auto excerpt = channel.part(0, shown);
    sendEnvelope(gnuplot, channel, rate);
    sendExcerpt(gnuplot, excerpt, rate);
    const auto panel = [&](const std::string& title, std::span<const Zor32f> signal,
                           const std::string& data) {
        const Range range = rangeOf(signal);
        gnuplot.say("set title " + quoted(name + title));
        gnuplot.say("set xrange [0:" + number(static_cast<double>(signal.size()) / rate) + "]");
        // To the next half millivolt, so that a flat line has a scale too.
        gnuplot.say("set yrange [floor(2 * " + number(range.min) + " - 0.1) / 2.0 : ceil(2 * " +
                    number(range.max) + " + 0.1) / 2.0]");
        gnuplot.say("plot " + data + " with lines linecolor rgb '#1f4e79' notitle");
        gnuplot.say("unset label"); // the caption stands once
    };
    panel("whole recording", channel.all(), "$envelope");
    panel("first " + std::to_string(excerptSeconds) + " seconds", excerpt, "$excerpt");
}

} // namespace

void drawRecording(const fs::path& png, const Recording& recording, const std::string& caption)
{
    std::signal(SIGPIPE, SIG_IGN); // a gnuplot that ends early is found by its exit status
    fs::remove(png);
    Gnuplot gnuplot;
    const std::size_t channels = recording.channels.size();
    gnuplot.say("set terminal pngcairo noenhanced size 1600," + std::to_string(850 * channels) +
                " font 'DejaVu Sans,13'");
    gnuplot.say("set output " + quoted(png.string()));
    gnuplot.say("set xlabel 'seconds' offset 0,0.4\nset ylabel 'millivolts'");
    gnuplot.say("set tics out nomirror\nset mxtics 5\nset mytics 2");
    gnuplot.say("set grid xtics ytics mxtics mytics linetype 1 linecolor rgb '#e0b8b8', linetype 1 linecolor "
                "rgb '#f4e4e4'");
    gnuplot.say("set multiplot layout " + std::to_string(2 * channels) +
                ",1 margins char 9,char 3,char 6,char 3 spacing 0,char 7");
    gnuplot.say("set label 1 " + quoted(caption) + " at screen 0.985,0.015 right font ',10'");
    for (std::size_t i = 0; i < channels; ++i)
        drawChannel(gnuplot, recording.channels[i], recording.rate,
                    channels == 1 ? "" : "channel " + std::to_string(i + 1) + ", ");
    gnuplot.say("unset multiplot\nset output");
    gnuplot.finish();
    if (!fs::exists(png) || fs::is_empty(png)) throw Error(png.string() + ": cannot write the picture");
}

} // namespace ecg
