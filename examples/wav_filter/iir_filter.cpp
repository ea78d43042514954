#include "designs.h"

#include "common/error.h"
#include "common/picture.h"

#include <zors.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <numeric>

namespace wav {
namespace {

using example::Error, example::number, example::require;

constexpr int highestOrder = 12;
constexpr double mostRipple = 29; // dB

struct Design {
    int order;
    std::optional<double> ripple;
    int rate;
};

// By how much the rounding of taps and sums changes the gain at the cut-off, and how strong its noise may be beside
// the signal: the poles of a high order with a cut-off low beside the rate (for a high-pass filter: far from half the
// rate) stand so close that the denominator is a small difference of large terms.
double disturbance(const Recursive& filter, Band::Kind kind, double frequency)
{
    const double angle = std::numbers::pi * frequency;
    const double factor = 2 * (kind == Band::Kind::lowPass ? std::cos(angle) : std::sin(angle));
    const double numerator = filter.taps[0] * std::pow(factor, filter.order);
    const double terms = std::accumulate(filter.taps.begin() + filter.order + 1, filter.taps.end(), 0.0,
                                         [](double sum, double tap) { return sum + std::abs(tap); });
    return terms / std::abs(numerator) * std::numeric_limits<double>::epsilon() / 2;
}

Recursive design(Band::Kind kind, double edge, const Design& wanted)
{
    Recursive filter{wanted.order, std::vector<Zor64f>(2 * static_cast<std::size_t>(wanted.order) + 2)};
    const auto generate = kind == Band::Kind::lowPass ? zorsIIRGenLowpass_64f : zorsIIRGenHighpass_64f;
    require(generate(edge / wanted.rate, wanted.ripple.value_or(0), wanted.order, filter.taps.data(),
                     wanted.ripple ? zorIirChebyshev1 : zorIirButterworth),
            "design the filter");
    constexpr double most = 1e-5; // 100 dB down
    if (disturbance(filter, kind, edge / wanted.rate) > most)
        throw Error("--iir " + std::to_string(wanted.order) + ": too high an order for " + number(edge) +
                    " Hz at " + std::to_string(wanted.rate) +
                    " samples a second, it would drown in rounding errors; a lower order or --fir will do");
    return filter;
}

} // namespace

Filter iirFilter(const Band& band, int order, std::optional<double> ripple, int rate)
{
    if (band.kind == Band::Kind::bandStop)
        throw Error(
            "--bandstop with --iir: recursive filters pass low or high frequencies, or a band between; "
            "--fir stops a band");
    if (order > highestOrder)
        throw Error("--iir " + std::to_string(order) + ": the order is " + std::to_string(highestOrder) +
                    " at most");
    if (ripple && (*ripple <= 0 || *ripple > mostRipple))
        throw Error("--ripple " + number(*ripple) + ": the ripple is above 0 and at most " +
                    number(mostRipple) + " dB");

    const std::string shape = ripple ? "Chebyshev, ripple " + number(*ripple) + " dB" : "Butterworth";
    Filter filter{.name = band.name() + ", " + shape + ", order " + std::to_string(order),
                  .edges = band.edges};
    const Design wanted{order, ripple, rate};
    if (band.kind != Band::Kind::lowPass)
        filter.recursive.push_back(design(Band::Kind::highPass, band.edges.front(), wanted));
    if (band.kind != Band::Kind::highPass)
        filter.recursive.push_back(design(Band::Kind::lowPass, band.edges.back(), wanted));
    return filter;
}

} // namespace wav
