#include "decibels.h"
#include "plot.h"
#include "pulse.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ecg {
namespace {

constexpr double resolution = 0.1; // Hz
constexpr double most = 70;        // Hz: with the hum of the mains
constexpr double mostOfPulse = 4;  // Hz
constexpr double faintest = -120;  // dB: far below the steps of 16 bits

void drawPower(Picture& picture, const Density& density, int rate, const std::string& name)
{
    constexpr double none = std::numeric_limits<double>::infinity();
    double low = none, high = -none;
    picture.say("$power << end");
    for (int k = 0; k < density.upTo(most); ++k) {
        const double level = std::max(decibels(density.values.data()[k]), faintest);
        low = std::min(low, level);
        high = std::max(high, level);
        picture.point(k * density.step, level);
    }
    picture.say("end");
    picture.say("set xtics 5\nset ytics 10\nset ylabel 'dB of 1 mV²/Hz'");
    picture.range("x", 0, std::min(most, rate / 2.0));
    picture.range("y", 10 * std::floor(low / 10), 10 * std::floor(high / 10 + 1));
    picture.plot(name + "power spectral density", "$power with lines linecolor rgb '#1f4e79' notitle");
}

void drawPulse(Picture& picture, const Pulse& pulse, const std::string& name)
{
    const Density& density = pulse.spectrum;
    const int points = density.upTo(mostOfPulse);
    const Zor32f* values = density.values.data();
    const double largest = *std::max_element(values, values + points);
    picture.say("$pulse << end");
    for (int k = 0; k < points; ++k) picture.point(k * density.step, largest > 0 ? values[k] / largest : 0);
    picture.say("end");
    picture.say("set xtics 0.5\nset ytics 0.25\nset ylabel 'power, relative'");
    picture.range("x", 0, mostOfPulse);
    picture.range("y", 0, 1.15);
    if (pulse.hertz) {
        const std::string at = number(*pulse.hertz);
        picture.say("set arrow 2 from " + at + ",0 to " + at + ",1.15 nohead linecolor rgb '#b03030'");
        picture.say("set label 2 '  " + number(std::round(60 * *pulse.hertz)) + " beats per minute  ' at " +
                    at + ",1.07 textcolor rgb '#b03030'" + (*pulse.hertz > mostOfPulse / 2 ? " right" : ""));
    }
    picture.plot(name + "power spectral density of the activity, the smoothed square of the slope",
                 "$pulse with lines linecolor rgb '#1f4e79' notitle");
    picture.say("unset arrow 2\nunset label 2");
}

} // namespace

void drawSpectrum(const std::filesystem::path& png, const Recording& recording, const std::string& caption)
{
    const std::size_t channels = recording.channels.size();
    Picture picture(png, {2 * channels, 850 * channels, "char 10,char 3,char 6,char 3 spacing 0,char 7"},
                    caption);
    picture.say("set xlabel 'Hz'\nset grid linetype 1 linecolor rgb '#e4e4e4'");
    Welch welch(recording.rate, resolution);
    for (std::size_t i = 0; i < channels; ++i) {
        const Channel& channel = recording.channels[i];
        drawPower(picture, welch.densityOf(channel.all()), recording.rate, recording.prefix(i));
        drawPulse(picture, pulseOf(channel, recording.rate), recording.prefix(i));
    }
    picture.finish();
}

} // namespace ecg
