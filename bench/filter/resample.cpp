#include "filter/resample.h"

#include <numbers>

namespace zors::bench {
namespace {

// Samples of a sine well inside every passband.
Zor32f sine(int i)
{
    return static_cast<Zor32f>(std::sin(2 * std::numbers::pi * 0.005 * i));
}

// Output j of the stream, by the definition.
double outputOf(const Rate& rate, int j)
{
    const int taps = static_cast<int>(rate.taps.size()), place = j * rate.down;
    double sum = 0;
    for (int k = place % rate.up; k < taps && k <= place; k += rate.up)
        sum += static_cast<double>(rate.taps[static_cast<std::size_t>(k)]) * sine((place - k) / rate.up);
    return sum;
}

void check(const std::string& who, const Resampling& resampling, const Rate& rate, int block, bool byTaps)
{
    constexpr int blocks = 8;
    int all = 0, last = 0;
    for (int b = 0; b < blocks; ++b) {
        for (int i = 0; i < block; ++i) resampling.in[i] = sine(b * block + i);
        last = resampling.run();
        if (last < 1 || last > roomFor(rate, block)) fail(who, std::to_string(last) + " outputs of a block");
        all += last;
    }
    const double due = blocks * block * rate.ratio();
    if (byTaps ? all != std::lround(due) : std::abs(all - due) > 0.02 * due)
        fail(who, std::to_string(all) + " outputs, not " + std::to_string(due));
    double squares = 0;
    for (int j = 0; j < last; ++j) {
        const double got = resampling.out[j];
        squares += got * got;
        const int at = all - last + j;
        if (byTaps && j % 16 == 0 && !(std::abs(got - outputOf(rate, at)) <= 1e-5))
            fail(who, "output " + std::to_string(at) + " is " + std::to_string(got) + ", not " +
                          std::to_string(outputOf(rate, at)));
    }
    const double size = std::sqrt(2 * squares / last);
    if (!(std::abs(size - 1) < 0.03)) fail(who, "a sine comes out at " + std::to_string(size));
}

} // namespace

Rate makeRate(int up, int down, int taps)
{
    Rate rate{up, down, {}};
    // A sinc function under a raised cosine, at a distance of t samples of the lower rate from its centre.
    const int slower = std::max(up, down);
    double sum = 0;
    for (int k = 0; k < taps; ++k) {
        const double centred = k - (taps - 1) / 2.0, t = std::numbers::pi * centred / slower;
        const double window = 0.5 + 0.5 * std::cos(2 * std::numbers::pi * centred / (taps + 1));
        const double tap = (t == 0 ? 1 : std::sin(t) / t) * window;
        sum += tap;
        rate.taps.push_back(static_cast<Zor32f>(tap));
    }
    for (Zor32f& tap : rate.taps) tap *= static_cast<Zor32f>(up / sum);
    return rate;
}

std::vector<Zor32f> phaseRows(const Rate& rate)
{
    const int perPhase = rate.perPhase();
    std::vector<Zor32f> rows(static_cast<std::size_t>(rate.up * perPhase));
    for (int k = 0; k < static_cast<int>(rate.taps.size()); ++k)
        rows[static_cast<std::size_t>((k % rate.up + 1) * perPhase - 1 - k / rate.up)] =
            rate.taps[static_cast<std::size_t>(k)];
    return rows;
}

void compareResamplers(const std::string& operation, const Rate& rate, int block,
                       const std::vector<Resampler>& resamplers)
{
    const std::string row = operation + ", " + std::to_string(rate.up) + "/" + std::to_string(rate.down) +
                            ", " + std::to_string(rate.taps.size()) + " taps";
    std::vector<Contender> contenders;
    for (const Resampler& resampler : resamplers) {
        const auto checked = std::make_shared<bool>(false);
        contenders.push_back({resampler.name, [=](int length) -> Operation {
                                  nextOffset = 0;
                                  const auto resampling = resampler.make(rate, length);
                                  if (!resampling.run) return {};
                                  if (!*checked)
                                      check(row + ", " + resampler.name, resampling, rate, length,
                                            resampler.filter == Resampler::byTaps);
                                  *checked = true;
                                  for (int i = 0; i < length; ++i) resampling.in[i] = sine(i);
                                  return [run = resampling.run] { run(); };
                              }});
    }
    compare(row, {block}, contenders);
}

} // namespace zors::bench
