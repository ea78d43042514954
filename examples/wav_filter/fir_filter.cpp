#include "designs.h"

#include "common/error.h"

#include <zors.h>

#include <algorithm>
#include <cmath>

namespace wav {
namespace {

using example::Error, example::require;

constexpr double transition = 3.3; // times rate / taps, of a Hamming window: from the pass band to 53 dB down
constexpr int fewest = 5, most = 1 << 20;

// What lies between two edges, or an edge and the end of the spectrum.
double narrowestBand(const Band& band, double nyquist)
{
    double narrowest = nyquist, before = 0;
    for (const double edge : band.edges) {
        narrowest = std::min(narrowest, edge - before);
        before = edge;
    }
    return std::min(narrowest, nyquist - before);
}

int usualTaps(const Band& band, int rate)
{
    const double taps = 4 * transition * rate / narrowestBand(band, rate / 2.0);
    if (taps > most)
        throw Error("the band " + band.name() +
                    " is so narrow that the filter has no usual length: --fir gives it");
    return 2 * static_cast<int>(std::ceil(taps / 2)) + 1;
}

ZorStatus design(const Band& band, int rate, std::vector<Zor64f>& taps)
{
    const auto len = static_cast<int>(taps.size());
    const double first = band.edges.front() / rate, last = band.edges.back() / rate;
    constexpr ZorWinType window = zorWinHamming;
    constexpr int normalised = 1;
    switch (band.kind) {
    case Band::Kind::lowPass:
        return zorsFIRGenLowpass_64f(first, taps.data(), len, window, normalised);
    case Band::Kind::highPass:
        return zorsFIRGenHighpass_64f(first, taps.data(), len, window, normalised);
    case Band::Kind::bandPass:
        return zorsFIRGenBandpass_64f(first, last, taps.data(), len, window, normalised);
    case Band::Kind::bandStop:
        return zorsFIRGenBandstop_64f(first, last, taps.data(), len, window, normalised);
    }
    return zorStsBadArgument;
}

} // namespace

Filter firFilter(const Band& band, std::optional<int> taps, int rate)
{
    const int len = taps ? *taps : usualTaps(band, rate);
    if (len % 2 == 0 || len < fewest || len > most)
        throw Error("--fir " + std::to_string(len) + ": an odd number of taps is needed, from " +
                    std::to_string(fewest) + " to " + std::to_string(most - 1));
    Filter filter{.taps = std::vector<Zor64f>(static_cast<std::size_t>(len)),
                  .delay = len / 2,
                  .name = band.name() + ", " + std::to_string(len) + " taps, Hamming window, without delay",
                  .edges = band.edges};
    require(design(band, rate, filter.taps), "design the filter");
    return filter;
}

} // namespace wav
