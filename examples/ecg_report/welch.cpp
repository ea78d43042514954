#include "welch.h"

#include "statistics.h"

#include <algorithm>
#include <cmath>

namespace ecg {
namespace {

// The exponent of the least power of two that is not below `value`. Lengths that are too large for a transform are for
// the transform to refuse.
int orderFor(double value)
{
    return std::clamp(static_cast<int>(std::ceil(std::log2(value))), 1, 30);
}

// The window's ends are 0, so it needs three samples to leave any.
Vector<Zor32f> hann(int len)
{
    Vector<Zor32f> weights(len);
    require(zorsSet_32f(1, weights.data(), len), "set the weights");
    if (len >= 3) require(zorsWinHann_32f_I(weights.data(), len), "form the window");
    return weights;
}

} // namespace

int Density::upTo(double hertz) const
{
    return static_cast<int>(std::min<double>(std::floor(hertz / step) + 1, values.len()));
}

Welch::Welch(int rate, double resolution, int fineness)
    : rate_(rate), segment_(1 << orderFor(rate / resolution)), fft_(orderFor(1.0 * segment_ * fineness)),
      padded_(fft_.len()), spectrum_(2 * fft_.points()), real_(fft_.points()), imag_(fft_.points())
{
}

Density Welch::densityOf(std::span<const Zor32f> signal)
{
    const std::size_t len = std::min(static_cast<std::size_t>(segment_), signal.size());
    const Vector<Zor32f> weights = hann(static_cast<int>(len));
    require(zorsZero_32f(padded_.data(), padded_.len()), "clear a segment");

    Density density{static_cast<double>(rate_) / fft_.len(), Vector<Zor32f>(fft_.points())};
    Zor32f* values = density.values.data();
    require(zorsZero_32f(values, fft_.points()), "clear the spectrum");
    int count = 0;
    for (std::size_t begin = 0; begin + len <= signal.size(); begin += (len + 1) / 2, ++count)
        addPower(signal.subspan(begin, len), weights, density.values);

    // Twice, for the negative frequencies, which 0 and half the sampling rate do not have.
    const double scale = 2 / (energyOf(weights) * rate_ * count);
    require(zorsMulC_32f_I(static_cast<Zor32f>(scale), values, fft_.points()), "scale the spectrum");
    values[0] /= 2;
    values[fft_.points() - 1] /= 2;
    return density;
}

void Welch::addPower(std::span<const Zor32f> segment, const Vector<Zor32f>& weights, Vector<Zor32f>& power)
{
    const int len = weights.len(), points = fft_.points();
    Zor32f mean = 0;
    require(zorsMean_32f(segment.data(), len, &mean, ZOR_ALG_PRECISION), "find the mean");
    require(zorsSubC_32f(segment.data(), mean, padded_.data(), len), "remove the mean");
    require(zorsMul_32f_I(weights.data(), padded_.data(), len), "weigh a segment");
    fft_.forward(padded_, spectrum_);

    // The pairs have the layout of complex numbers.
    require(zorsCplxToReal_32fc(reinterpret_cast<const Zor32fc*>(spectrum_.data()), real_.data(),
                                imag_.data(), points),
            "take the spectrum apart");
    require(zorsAddProduct_32f(real_.data(), real_.data(), power.data(), points), "add the power");
    require(zorsAddProduct_32f(imag_.data(), imag_.data(), power.data(), points), "add the power");
}

} // namespace ecg
