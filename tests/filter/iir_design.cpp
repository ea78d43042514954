// Recursive designs beside the expansion of their poles in extended precision, and beside those of SciPy.
#include "filter/design_values.h"
#include "support/count.h"

#include <gtest/gtest.h>
#include <zors.h>

#include <cmath>
#include <complex>
#include <numbers>

namespace zors::test {
namespace {

using Wide = long double;
using Complex80 = std::complex<Wide>;

constexpr Wide pi = std::numbers::pi_v<Wide>;

ZorStatus design(Band band, double rFreq, double ripple, int order, Zor64f* pTaps, ZorIirFilterType type)
{
    return (band == Band::lowpass ? zorsIIRGenLowpass_64f : zorsIIRGenHighpass_64f)(rFreq, ripple, order,
                                                                                    pTaps, type);
}

struct Filter {
    std::vector<Zor64f> b, a;
};

// Butterworth without a ripple.
Filter filter(Band band, double rFreq, double ripple, int order)
{
    const auto count = static_cast<std::size_t>(order + 1);
    std::vector<Zor64f> taps(2 * count + 1, 7.0);
    const auto type = ripple == 0 ? zorIirButterworth : zorIirChebyshev1;
    EXPECT_EQ(design(band, rFreq, ripple, order, taps.data(), type), zorStsOk);
    EXPECT_EQ(taps.back(), 7.0);
    const auto middle = taps.begin() + order + 1;
    return {{taps.begin(), middle}, {middle, taps.end() - 1}};
}

Complex80 valueAt(const std::vector<Zor64f>& c, Complex80 inverse)
{
    Complex80 sum = 0;
    for (std::size_t k = c.size(); k-- > 0;) sum = sum * inverse + Wide(c[k]);
    return sum;
}

Wide magnitudes(const std::vector<Zor64f>& c)
{
    Wide sum = 0;
    for (const Zor64f v : c) sum += std::abs(v);
    return sum;
}

// z^-1 on the unit circle.
Complex80 delay(Wide frequency)
{
    return std::polar(1.0L, -2 * pi * frequency);
}

// The numerator is b[0] (1 +- z^-1)^order, to the last bit.
Wide responseAt(const Filter& f, Wide frequency)
{
    const Wide zero = f.b[1] > 0 ? std::cos(pi * frequency) : std::sin(pi * frequency);
    const Wide numerator = f.b[0] * std::pow(2 * zero, static_cast<Wide>(f.b.size() - 1));
    return std::abs(numerator / valueAt(f.a, delay(frequency)));
}

// The squared magnitude of the response, by its definition.
Wide idealAt(Band band, Wide rFreq, Wide ripple, int order, Wide frequency)
{
    const Wide bent = std::tan(pi * frequency) / std::tan(pi * rFreq);
    const Wide x = band == Band::lowpass ? bent : 1 / bent;
    if (ripple == 0) return 1 / (1 + std::pow(x, 2 * order));
    const Wide square = std::expm1(ripple * std::numbers::ln10_v<Wide> / 10);
    const Wide t = x <= 1 ? std::cos(Wide(order) * std::acos(x)) : std::cosh(Wide(order) * std::acosh(x));
    const Wide atZero = order % 2 == 0 ? square : 0;
    return (1 + atZero) / (1 + square * t * t);
}

// As the taps, rounded, can have it: their errors beside the denominator's value.
Wide roundingOf(const Filter& f, Wide frequency)
{
    return 0x1p-53L * magnitudes(f.a) / std::abs(valueAt(f.a, delay(frequency)));
}

constexpr double ripples[] = {0, 1e-3, 0.5, 3, 29};

// Where the poles are not crowded nothing is granted for the rounding of the taps.
TEST(IirDesign, HasItsResponse)
{
    for (const Band band : {Band::lowpass, Band::highpass})
        for (const double ripple : ripples)
            for (int order = 1; order <= 12; ++order)
                for (const double rFreq : {1e-3, 0.05, 0.2, 0.25, 0.3, 0.44, 0.4999}) {
                    const bool isCrowded = ripple != 0 || rFreq < 0.2 || rFreq > 0.3;
                    const Filter f = filter(band, rFreq, ripple, order);
                    compared(64);
                    for (int k = 0; k < 64; ++k) {
                        const Wide frequency = (k + 0.5L) / 128;
                        const Wide want = std::sqrt(idealAt(band, rFreq, ripple, order, frequency));
                        ASSERT_LE(std::abs(responseAt(f, frequency) - want),
                                  want * (1e-12L + (isCrowded ? 2 * roundingOf(f, frequency) : 0)))
                            << "order " << order << ", cut-off " << rFreq << ", ripple " << ripple << ", at "
                            << frequency;
                    }
                }
}

// The gain is 1 at one end of the spectrum and 0, in every one of its derivatives, at the other.
TEST(IirDesign, HasItsZerosInOnePlace)
{
    for (const Band band : {Band::lowpass, Band::highpass})
        for (const double ripple : ripples)
            for (int order = 1; order <= 12; ++order)
                for (const double rFreq : {1e-3, 0.25, 0.4}) {
                    Filter f = filter(band, rFreq, ripple, order);
                    ASSERT_EQ(f.a[0], 1);
                    const Wide unit = band == Band::lowpass ? 1 : -1;
                    const Wide gain = std::abs(valueAt(f.b, unit) / valueAt(f.a, unit));
                    const Wide error = 0x1p-53L * magnitudes(f.a) / std::abs(valueAt(f.a, unit));
                    ASSERT_LE(std::abs(gain - 1), 2 * error + std::ldexp(1.0L, order - 54)) << order;
                    for (std::size_t k = 0; k < static_cast<std::size_t>(order); ++k)
                        ASSERT_EQ(double(f.b[k] * (order - int(k))),
                                  double(unit) * f.b[k + 1] * double(k + 1))
                            << order;
                }
}

TEST(IirDesign, HasThePolesOfSciPy)
{
    for (const IirDesign& d : iirDesigns) {
        const Filter f = filter(d.band, d.rFreq, d.ripple, d.order);
        compared(d.order);
        for (const auto& pole : d.poles) {
            // A step of Newton's method leads from there to the pole that the taps have.
            const Complex80 inverse = 1.0L / Complex80(pole);
            Complex80 slope = 0;
            for (std::size_t k = f.a.size(); k-- > 1;) slope = slope * inverse + Wide(k) * f.a[k];
            slope *= inverse * inverse;
            const Wide step = std::abs(valueAt(f.a, inverse) / slope);
            EXPECT_LE(step, d.order > 8 ? 3e-9L : 1e-10L) << d.order << ", " << d.rFreq << ", " << d.ripple;
            // What the rounding of the taps alone does, and SciPy's.
            Wide sum = 0;
            for (std::size_t k = f.a.size(); k-- > 0;) sum = sum * std::abs(inverse) + std::abs(f.a[k]);
            EXPECT_LE(step, 0x1p-53L * sum / std::abs(slope) + 1e-15L * d.order) << d.order;
        }
    }
}

TEST(IirDesign, RefusesWhatItCannotMake)
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    for (const Band band : {Band::lowpass, Band::highpass}) {
        const std::vector<Zor64f> before(28, 7.0);
        std::vector<Zor64f> taps = before;
        const auto status = [&](double rFreq, double ripple, int order, ZorIirFilterType type) {
            return design(band, rFreq, ripple, order, taps.data(), type);
        };
        EXPECT_EQ(design(band, 0.5, 0, 13, nullptr, 1), zorStsNullPointer);
        for (const double bad : {0.5, 0.0, -0.1, nan})
            EXPECT_EQ(status(bad, 0, 13, zorIirChebyshev1), zorStsBadIirGenFreq);
        for (const int bad : {0, 13, -1})
            EXPECT_EQ(status(0.1, 0, bad, zorIirChebyshev1), zorStsBadIirGenOrder);
        for (const double bad : {0.0, -1.0, 29.0001, nan})
            EXPECT_EQ(status(0.1, bad, 12, zorIirChebyshev1), zorStsBadIirGenTolerance);
        for (const ZorIirFilterType other : {2, -1}) {
            EXPECT_EQ(status(0.1, nan, 12, other), zorStsOk);
            EXPECT_EQ(status(0.5, 1, 12, other), zorStsBadIirGenFreq);
        }
        EXPECT_EQ(taps, before);
        EXPECT_EQ(status(0.1, nan, 12, zorIirButterworth), zorStsOk);
    }
}

} // namespace
} // namespace zors::test
