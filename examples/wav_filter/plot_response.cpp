#include "plot_response.h"

#include "common/error.h"
#include "common/picture.h"
#include "response.h"

#include <algorithm>
#include <cmath>

namespace wav {
namespace {

using example::number, example::Picture;

constexpr int points = 3000;     // about two a pixel
constexpr double faintest = -50; // dB of the highest level: phase and delay of what is weaker are not shown
constexpr double lowest = -100;  // dB, of the axis: recursive filters of high orders round below it

// Where the frequencies begin: a decade below the band, or three below half the sampling rate.
double leastFrequency(const Filter& filter, int rate)
{
    const double usual = rate / 2000.0;
    return filter.edges.empty() ? usual : std::min(usual, filter.edges.front() / 10);
}

// Places in the response, evenly on the logarithmic axis as far as they stand close enough.
std::vector<std::size_t> places(const Response& response, double least)
{
    const auto last = static_cast<double>(response.level.size() - 1);
    const double first = std::max(1.0, least / response.step);
    std::vector<std::size_t> result;
    for (int i = 0; i <= points; ++i) {
        const auto place =
            static_cast<std::size_t>(std::lround(first * std::pow(last / first, 1.0 * i / points)));
        if (result.empty() || place > result.back()) result.push_back(place);
    }
    return result;
}

class Curves {
public:
    Curves(Picture& picture, const Filter& filter, int rate)
        : picture_(picture), rate_(rate), banded_(!filter.edges.empty()),
          least_(leastFrequency(filter, rate)), response_(responseOf(filter, rate, least_ / 32)),
          places_(places(response_, least_)), highest_(*std::ranges::max_element(response_.level))
    {
        if (std::isinf(highest_)) throw example::Error("--response: nothing passes the filter");
        picture.range("x", least_, rate / 2.0);
        for (int i = 1; const double edge : filter.edges) {
            const std::string at = number(edge);
            picture.say("set arrow " + std::to_string(i++) + " from " + at + ", graph 0 to " + at +
                        ", graph 1 nohead dashtype 2 linecolor rgb '#b03030'");
        }
    }

    void drawLevel(const std::string& title)
    {
        // Between two places the highest level: side lobes stand closer than pixels.
        picture_.say("$level << end");
        const auto at = [&](std::size_t place) {
            return response_.level.begin() + static_cast<std::ptrdiff_t>(place);
        };
        for (std::size_t i = 0; i < places_.size(); ++i) {
            const std::size_t end = i + 1 < places_.size() ? places_[i + 1] : places_[i] + 1;
            point(places_[i], std::max(*std::max_element(at(places_[i]), at(end)), 4 * lowest));
        }
        picture_.say("end\nset ylabel 'dB'\nset ytics 20");
        const double top = 10 * std::ceil((highest_ + 1) / 10);
        picture_.range("y", std::min(lowest, top + lowest), top);
        plot(title, "$level");
        // Of a band's ripple all is shown, of other filters the highest levels.
        picture_.say("set ytics autofreq");
        picture_.range("y", banded_ ? -7 : std::floor(highest_) - 7, std::ceil(highest_ + 0.5));
        plot("enlarged", "$level");
    }

    void drawPhase()
    {
        picture_.say("$phase << end");
        double before = 0;
        for (const std::size_t k : places_) {
            const double phase = std::abs(response_.phase[k]) > 179.999 ? 180 : response_.phase[k];
            if (!audible(k) || std::abs(phase - before) > 180) picture_.say("");
            if (audible(k)) point(k, phase);
            before = phase;
        }
        picture_.say("end\nset ylabel 'degrees'\nset ytics 90");
        picture_.range("y", -200, 200);
        plot("phase", "$phase");
    }

    void drawDelay()
    {
        double least = 0, most = 0;
        picture_.say("$delay << end");
        for (const std::size_t k : places_) {
            if (!audible(k)) {
                picture_.say("");
                continue;
            }
            const double milliseconds = 1000 * response_.delay[k];
            least = std::min(least, milliseconds);
            most = std::max(most, milliseconds);
            point(k, milliseconds);
        }
        picture_.say("end\nset ylabel 'milliseconds'\nset ytics autofreq\nset xlabel 'Hz'");
        const double room = std::max(0.05 * (most - least), 500.0 / rate_);
        picture_.range("y", least - room, most + room);
        plot("group delay", "$delay");
    }

private:
    bool audible(std::size_t k) const { return response_.level[k] > highest_ + faintest; }

    void point(std::size_t k, double value)
    {
        picture_.point(static_cast<double>(k) * response_.step, value);
    }

    void plot(const std::string& title, const std::string& block)
    {
        picture_.plot(title, block + " with lines linewidth 1.5 linecolor rgb '#1f4e79' notitle");
    }

    Picture& picture_;
    int rate_;
    bool banded_;
    double least_;
    Response response_;
    std::vector<std::size_t> places_;
    double highest_; // level
};

} // namespace

void drawResponse(const std::filesystem::path& png, const Filter& filter, int rate)
{
    Picture picture(png, {4, 1360, "char 12,char 3,char 6,char 3 spacing 0,char 5"},
                    number(rate) + " samples a second");
    picture.say("set logscale x\nset mxtics 10\nset mytics 2");
    picture.say("set grid xtics ytics mxtics linetype 1 linecolor rgb '#d8d8d8', linetype 1 linecolor rgb "
                "'#efefef'");
    Curves curves(picture, filter, rate);
    curves.drawLevel(filter.name);
    curves.drawPhase();
    curves.drawDelay();
    picture.finish();
}

} // namespace wav
