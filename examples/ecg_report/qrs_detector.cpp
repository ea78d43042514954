#include "qrs_detector.h"

#include "statistics.h"

#include <algorithm>
#include <cmath>
#include <deque>
#include <numeric>
#include <utility>

namespace ecg {
namespace {

constexpr double refractorySeconds = 0.2; // a ventricle does not answer again so soon
constexpr double tWaveSeconds = 0.36;     // until then a gentle hump is the T wave of the complex before it
constexpr double humpSeconds = 0.1;       // no two humps are closer
constexpr double edgeSeconds = 0.04;      // a complex that an end of the recording cuts in two is none
constexpr double learningSeconds = 2;     // hold a complex, whatever the rate
constexpr std::size_t averaged = 8;       // intervals
constexpr double overdue = 1.66;          // average intervals after a complex one must have been missed

// Between complexes the heart is at rest: 201 beats a minute leave valleys of 0.05 of the lower of the two humps, most
// recordings of 0.01. White noise has 0.26.
constexpr double highestValley = 0.125;

// What a complex of 0.02 mV gives, four steps of the samples: less is none.
constexpr double faintest = 0.05; // (mV/s)^2

// The largest values within `reach` samples to either side.
std::vector<int> humpsOf(const Channel& signal, int reach)
{
    std::vector<int> humps;
    std::deque<int> falling; // places of the values ahead that none behind them exceeds
    const Zor32f* values = signal.data();
    for (int ahead = 0, here = 0; here < signal.len(); ++here) {
        for (; ahead < signal.len() && ahead <= here + reach; ++ahead) {
            while (!falling.empty() && values[falling.back()] < values[ahead]) falling.pop_back();
            falling.push_back(ahead);
        }
        while (falling.front() < here - reach) falling.pop_front();
        if (falling.front() == here && values[here] > faintest) humps.push_back(here);
    }
    return humps;
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

// The height of an ordinary complex: stretches with artefacts and such without a complex do not matter.
double usualHeight(const Channel& signal, int rate)
{
    const int stretch = std::max(1, static_cast<int>(learningSeconds * rate));
    std::vector<double> largest;
    for (Zor64s begin = 0; begin == 0 || begin + stretch <= signal.len(); begin += stretch) {
        const auto len = static_cast<int>(std::min<Zor64s>(stretch, signal.len()));
        largest.push_back(rangeOf(signal.part(static_cast<int>(begin), len)).max);
    }
    return median(std::move(largest));
}

// Whether the valleys between the humps are low beside them.
bool standOut(const std::vector<int>& humps, const Channel& signal)
{
    std::vector<double> valleys;
    for (std::size_t i = 1; i < humps.size(); ++i) {
        const int from = humps[i - 1], to = humps[i];
        const Range range = rangeOf(signal.part(from, to - from + 1));
        valleys.push_back(range.min / std::min(signal.data()[from], signal.data()[to]));
    }
    return valleys.empty() || median(std::move(valleys)) < highestValley;
}

class Detector {
public:
    Detector(const QrsStages& stages, int rate)
        : stages_(stages), rate_(rate), usual_(usualHeight(stages.integrated, rate)), signal_(usual_ / 2),
          noise_(usual_ / 16), result_{{}, Channel(stages.integrated.len())}
    {
    }

    Detection run() &&
    {
        const std::vector<int> humps = humpsOf(stages_.integrated, samplesIn(humpSeconds));
        const int first = samplesIn(edgeSeconds), end = stages_.integrated.len();
        for (const int hump : humps) {
            if (hump < first || hump >= end - first) continue;
            drawThreshold(hump);
            while (isOverdue(hump) && searchBack()) {
            }
            consider(hump);
        }
        drawThreshold(end);
        while (isOverdue(end) && searchBack()) {
        }
        return std::move(result_);
    }

private:
    int samplesIn(double seconds) const { return static_cast<int>(std::lround(seconds * rate_)); }
    double height(int hump) const { return static_cast<double>(stages_.integrated.data()[hump]); }
    double threshold() const { return noise_ + 0.25 * (signal_ - noise_); }

    void drawThreshold(int end)
    {
        if (end > drawn_)
            require(zorsSet_32f(static_cast<Zor32f>(threshold()), result_.threshold.data() + drawn_,
                                end - drawn_),
                    "set the threshold");
        drawn_ = std::max(drawn_, end);
    }

    // The steepest slope about a hump, squared.
    double steepness(int hump) const
    {
        const int reach = samplesIn(humpSeconds), begin = std::max(0, hump - reach);
        const int end = std::min(stages_.squaredSlope.len(), hump + reach + 1);
        return static_cast<double>(rangeOf(stages_.squaredSlope.part(begin, end - begin)).max);
    }

    // A T wave rises half as fast as the complex before it, at most.
    bool isTWave(int hump) const
    {
        return hump - result_.humps.back() < samplesIn(tWaveSeconds) &&
               steepness(hump) < steepness(result_.humps.back()) / 4;
    }

    bool isComplex(int hump, double least) const
    {
        if (height(hump) <= std::max(least, faintest)) return false;
        return result_.humps.empty() ||
               (hump - result_.humps.back() >= samplesIn(refractorySeconds) && !isTWave(hump));
    }

    void consider(int hump)
    {
        passed_.push_back(hump);
        if (isComplex(hump, threshold()))
            accept(hump, 0.125);
        else
            noise_ += 0.125 * (std::min(height(hump), signal_) - noise_);
    }

    // Artefacts are higher than anything of the heart: one of them must not lift the threshold above the complexes.
    void accept(int hump, double weight)
    {
        signal_ += weight * (std::min(height(hump), 2 * signal_) - signal_);
        if (!result_.humps.empty()) intervals_.push_back(hump - result_.humps.back());
        if (intervals_.size() > averaged) intervals_.pop_front();
        result_.humps.push_back(hump);
        std::erase_if(passed_, [=](int passed) { return passed <= hump; });
    }

    bool isOverdue(int now) const
    {
        if (intervals_.empty()) return false;
        const double mean = std::accumulate(intervals_.begin(), intervals_.end(), 0.0) /
                            static_cast<double>(intervals_.size());
        return now - result_.humps.back() > overdue * mean;
    }

    // Of the humps since the last complex the highest above half the threshold. Where there is none the threshold
    // sinks, though not into the noise of an interrupted recording. Returns whether there was one.
    bool searchBack()
    {
        int best = -1;
        for (const int hump : passed_)
            if (isComplex(hump, threshold() / 2) && (best < 0 || height(hump) > height(best))) best = hump;
        if (best >= 0)
            accept(best, 0.25);
        else
            signal_ = std::max(0.9 * signal_, std::min(signal_, usual_ / 4));
        return best >= 0;
    }

    const QrsStages& stages_;
    int rate_;
    double usual_, signal_, noise_; // heights of the complexes, and of the humps between them
    std::deque<int> intervals_;     // the latest
    std::vector<int> passed_;       // humps since the last complex
    int drawn_ = 0;
    Detection result_;
};

} // namespace

Detection detectQrs(const QrsStages& stages, int rate)
{
    Detection detection = Detector(stages, rate).run();
    if (!standOut(detection.humps, stages.integrated)) detection.humps.clear();
    return detection;
}

} // namespace ecg
