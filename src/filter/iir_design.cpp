#include "frame/bind.h"
#include "simd/check.h"

#include <array>
#include <cmath>
#include <numbers>

namespace zors::ZORS_VARIANT {
namespace {

// In extended precision, and each tap rounded once: taps of high orders leave nothing to lose.
using Wide = long double;

constexpr Wide pi = std::numbers::pi_v<Wide>;
constexpr int mostOrder = 12;

// tan(pi f), exact for 1/4, and for frequencies near 1/2 independent of the rounding of pi.
Wide bent(Wide frequency)
{
    return std::sin(pi * frequency) / std::sin(pi * (0.5L - frequency));
}

// The poles of an analog low-pass filter with the cut-off 1 lie on an ellipse, evenly by the angle of a circle.
struct Ellipse {
    Wide real = 1, focus = 0; // half its real axis; how far its foci are from 0 on the imaginary one
};

Ellipse chebyshev(Wide ripple, int order)
{
    const Wide most = std::sqrt(std::expm1(ripple * std::numbers::ln10_v<Wide> / 10));
    const Wide a = std::asinh(1 / most) / order;
    return {std::sinh(a), 1};
}

class Polynomial {
public:
    // Times 1 + c1 z^-1 + c2 z^-2.
    void multiply(Wide c1, Wide c2)
    {
        for (std::size_t j = mostOrder; j >= 2; --j) c_[j] += c1 * c_[j - 1] + c2 * c_[j - 2];
        c_[1] += c1 * c_[0];
    }

    Wide operator[](int j) const { return c_[static_cast<std::size_t>(j)]; }

private:
    std::array<Wide, mostOrder + 1> c_{1};
};

// Rounded to so few bits that its products with the binomial coefficients below 2^(53 - bits) are exact: the zeros
// stay all in one place, and there the gain is 0.
Wide shortened(Wide x, int bits)
{
    int exponent = 0;
    const Wide fraction = std::frexp(x, &exponent);
    return std::ldexp(std::round(std::ldexp(fraction, bits)), exponent - bits);
}

// The bilinear transform, s = (1 - z^-1) / (t (1 + z^-1)), takes a pair of poles -a +- ib, with m = a^2 + b^2, to
// the section
//
//     m t^2 (1 + z^-1)^2 / (1 + 2 a t + m t^2 - 2 (1 - m t^2) z^-1 + (1 - 2 a t + m t^2) z^-2)
//
// and a real one to a t (1 + z^-1) / (1 + a t - (1 - a t) z^-1), each with the gain 1 at frequency 0. Pole by pole
// there are closed forms, and so no eigenvalues to be found. With 1 / t in the place of t and -z in that of z the
// filter is the high-pass one with the same cut-off; sign is that of z.
void design(Wide t, int sign, const Ellipse& poles, int order, Zor64f* pTaps)
{
    Polynomial denominator;
    Wide b = 1;
    for (int k = 0; 2 * k < order; ++k) {
        const Wide angle = pi * (2 * k + 1) / (2 * order);
        const Wide at = poles.real * std::sin(angle) * t, focus = poles.focus * std::cos(angle);
        if (2 * k + 1 == order) {
            denominator.multiply((at - 1) / (1 + at), 0);
            b *= at / (1 + at);
        } else {
            const Wide square = (poles.real * poles.real + focus * focus) * t * t, a0 = 1 + 2 * at + square;
            denominator.multiply(2 * (square - 1) / a0, (1 - 2 * at + square) / a0);
            b *= square / a0;
        }
    }
    b = shortened(b, 54 - order);
    for (int k = 0, s = 1; k <= order; ++k, s *= sign) {
        pTaps[k] = static_cast<Zor64f>(s * b);
        pTaps[order + 1 + k] = static_cast<Zor64f>(s * denominator[k]);
        b = b * (order - k) / (k + 1); // the next binomial coefficient
    }
}

enum class Band { low, high };

template <Band band>
ZorStatus makeTaps(Zor64f rFreq, Zor64f ripple, int order, Zor64f* pTaps, ZorIirFilterType filterType)
{
    const bool isChebyshev = filterType == zorIirChebyshev1;
    if (const ZorStatus bad =
            check(pointers(pTaps), require(rFreq > 0 && rFreq < 0.5, zorStsBadIirGenFreq),
                  require(order >= 1 && order <= mostOrder, zorStsBadIirGenOrder),
                  require(!isChebyshev || (ripple > 0 && ripple <= 29), zorStsBadIirGenTolerance)))
        return bad;
    if (!isChebyshev && filterType != zorIirButterworth) return zorStsOk;
    const Ellipse poles = isChebyshev ? chebyshev(ripple, order) : Ellipse{};
    const Wide t = bent(rFreq);
    if (band == Band::low)
        design(t, 1, poles, order, pTaps);
    else
        design(1 / t, -1, poles, order, pTaps);
    return zorStsOk;
}

} // namespace

ZORS_BIND(zorsIIRGenLowpass_64f, makeTaps<Band::low>)
ZORS_BIND(zorsIIRGenHighpass_64f, makeTaps<Band::high>)

} // namespace zors::ZORS_VARIANT
