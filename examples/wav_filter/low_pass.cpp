#include "low_pass.h"

#include "common/error.h"

#include <zors.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace wav {
namespace {

// dB, of the stop band, and the ripple of the pass band is as small. 100 are promised; the formulas are not exact.
constexpr double attenuation = 101;
constexpr double passEdge = 0.91; // of the lower Nyquist frequency, where the stop band begins

double sinc(double x)
{
    return x == 0 ? 1 : std::sin(std::numbers::pi * x) / (std::numbers::pi * x);
}

} // namespace

// A sinc under a Kaiser window, its shape and length by Kaiser's formulas (Proc. IEEE Int. Symp. Circuits and Systems,
// 20, 1974). Frequencies are in units of the rate at which the taps stand.
Filter rateConversion(const Ratio& ratio)
{
    if (ratio.up == ratio.down) return {.ratio = ratio};

    const double nyquist = 0.5 / std::max(ratio.up, ratio.down);
    const double width = (1 - passEdge) * nyquist, cutoff = nyquist - width / 2;
    const double beta = 0.1102 * (attenuation - 8.7);
    const auto half = static_cast<int>(std::ceil((attenuation - 7.95) / (14.36 * width) / 2));
    const int len = 2 * half + 1; // odd, so that the delay is a whole number of taps

    Filter filter{.taps = std::vector<Zor64f>(static_cast<std::size_t>(len)), .ratio = ratio, .delay = half};
    for (int n = -half; auto& tap : filter.taps) tap = sinc(2 * cutoff * n++);
    Zor64f* const taps = filter.taps.data();
    example::require(zorsWinKaiser_64f_I(taps, len, beta / half), "form the window");

    // Each sample goes on among up - 1 zeros.
    Zor64f sum = 0;
    example::require(zorsSum_64f(taps, len, &sum), "find the gain");
    example::require(zorsMulC_64f_I(ratio.up / sum, taps, len), "scale the taps");
    return filter;
}

} // namespace wav
