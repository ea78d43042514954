#include "response.h"

#include "common/error.h"

#include <zors.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <numbers>
#include <span>

namespace wav {
namespace {

using example::require;

constexpr int leastOrder = 14, mostOrder = 20; // of the transforms: 2^order points

int orderFor(double points)
{
    return std::clamp(static_cast<int>(std::ceil(std::log2(points))), leastOrder, mostOrder);
}

// Values of polynomials in z^-1 on the upper half of the unit circle, by Fourier transforms.
class UnitCircle {
public:
    explicit UnitCircle(int order) : len_(1 << order)
    {
        ZorsFFTSpec_R_64f* spec = nullptr;
        require(zorsFFTInitAlloc_R_64f(&spec, order, ZOR_FFT_SCALE_NONE, ZOR_ALG_ANY), "prepare a transform");
        spec_.reset(spec);
    }

    int points() const { return len_ / 2 + 1; }

    // Of c[0] z^first + c[1] z^(first - 1) + ...: the terms before z^0 stand at the end of the circle.
    std::vector<Zor64fc> values(std::span<const Zor64f> coefficients, int first) const
    {
        std::vector<Zor64f> turned(static_cast<std::size_t>(len_));
        for (int at = len_ - first; const Zor64f coefficient : coefficients)
            turned[static_cast<std::size_t>(at++ & (len_ - 1))] += coefficient;
        std::vector<Zor64fc> result(static_cast<std::size_t>(points()));
        // The pairs of the spectrum have the layout of complex numbers.
        require(zorsFFTFwd_RToCCS_64f(turned.data(), &result.data()->re, spec_.get(), nullptr),
                "transform the taps");
        return result;
    }

private:
    struct Free {
        void operator()(ZorsFFTSpec_R_64f* spec) const { zorsFFTFree_R_64f(spec); }
    };
    int len_;
    std::unique_ptr<ZorsFFTSpec_R_64f, Free> spec_;
};

// Of one polynomial: its values, and the centre of gravity of its terms at each frequency, in samples.
struct Factor {
    std::vector<Zor64fc> gain, delay;
};

Factor factorOf(const UnitCircle& circle, std::span<const Zor64f> coefficients, int first)
{
    const auto len = static_cast<int>(coefficients.size());
    std::vector<Zor64f> moments(coefficients.size());
    require(zorsVectorSlope_64f(moments.data(), len, static_cast<Zor32f>(-first), 1), "number the taps");
    require(zorsMul_64f_I(coefficients.data(), moments.data(), len), "form the moments");
    Factor factor{circle.values(coefficients, first), circle.values(moments, first)};
    require(zorsDiv_64fc_I(factor.gain.data(), factor.delay.data(), circle.points()), "find the delays");
    return factor;
}

} // namespace

Response responseOf(const Filter& filter, int rate, double resolution)
{
    const int order = orderFor(std::max(rate / resolution, 16.0 * static_cast<double>(filter.taps.size())));
    const UnitCircle circle(order);
    Factor whole = factorOf(circle, filter.taps, filter.delay);
    for (const auto& [sectionOrder, taps] : filter.recursive) {
        const std::span<const Zor64f> both = taps;
        const auto terms = static_cast<std::size_t>(sectionOrder) + 1;
        const Factor numerator = factorOf(circle, both.first(terms), 0);
        const Factor denominator = factorOf(circle, both.last(terms), 0);
        require(zorsMul_64fc_I(numerator.gain.data(), whole.gain.data(), circle.points()), "multiply");
        require(zorsDiv_64fc_I(denominator.gain.data(), whole.gain.data(), circle.points()), "divide");
        require(zorsAdd_64fc_I(numerator.delay.data(), whole.delay.data(), circle.points()), "add delays");
        require(zorsSub_64fc_I(denominator.delay.data(), whole.delay.data(), circle.points()), "take delays");
    }

    Response response{std::ldexp(rate, -order), {}, {}, {}};
    for (std::size_t k = 0; k < whole.gain.size(); ++k) {
        const auto [re, im] = whole.gain[k];
        response.level.push_back(20 * std::log10(std::hypot(re, im)));
        response.phase.push_back(180 / std::numbers::pi * std::atan2(im, re));
        response.delay.push_back(whole.delay[k].re / rate);
    }
    return response;
}

} // namespace wav
