#include "filter/oracle.h"

#include "support/count.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <utility>

namespace zors::test {
namespace {

double most = 0;

// A sum of products: taps forwards, a step at a time, samples backwards.
struct Sum {
    Wide value = 0;
    double magnitude = 0;

    void add(const double* h, std::ptrdiff_t step, const double* x, int parts, std::ptrdiff_t count,
             bool minus)
    {
        Wide sums[2] = {};
        double magnitudes[2] = {};
        for (std::ptrdiff_t k = 0; k < count; ++k) {
            const double tap = h[k * step], sample = x[-k * parts];
            sums[k % 2] += static_cast<Wide>(tap) * static_cast<Wide>(sample);
            magnitudes[k % 2] += std::abs(tap * sample);
        }
        value += (minus ? -1 : 1) * (sums[0] + sums[1]);
        magnitude += magnitudes[0] + magnitudes[1];
    }
};

// Of numbers of either sign, unlike by division.
std::ptrdiff_t floorOf(std::ptrdiff_t a, std::ptrdiff_t b)
{
    return a >= 0 ? a / b : -((-a + b - 1) / b);
}

} // namespace

Expected filtered(const Numbers& taps, const Numbers& samples, int parts, std::ptrdiff_t history,
                  std::ptrdiff_t count, Rates rates, std::ptrdiff_t step)
{
    Expected expected;
    expected.step = step;
    const std::ptrdiff_t tapsLen = std::ssize(taps) / parts, up = rates.up;
    for (std::ptrdiff_t j = 0; j < count; j += step) {
        const std::ptrdiff_t at = j * rates.down + rates.downPhase - rates.upPhase;
        const std::ptrdiff_t newest = floorOf(at, up), tap = at - newest * up;
        const std::ptrdiff_t products =
            std::min(tap < tapsLen ? (tapsLen - 1 - tap) / up + 1 : 0, history + newest + 1);
        const double *h = taps.data() + tap * parts, *x = samples.data() + (history + newest) * parts;
        Sum real, imaginary;
        real.add(h, up * parts, x, parts, products, false);
        if (parts == 2) {
            real.add(h + 1, up * parts, x + 1, parts, products, true);
            imaginary.add(h, up * parts, x + 1, parts, products, false);
            imaginary.add(h + 1, up * parts, x, parts, products, false);
        }
        expected.append(real.value, real.magnitude);
        if (parts == 2) expected.append(imaginary.value, imaginary.magnitude);
    }
    return expected;
}

Tolerance ofBlocks(const Kind& kind, int tapsLen)
{
    return {((kind.isComplex() ? 1 : 0.5) * tapsLen + 2) * kind.unit()};
}

Tolerance ofMultiRate(const Kind& kind, int tapsLen, int upFactor)
{
    return {(static_cast<double>(tapsLen) / upFactor + 4) * kind.unit()};
}

testing::AssertionResult within(Tolerance tolerance, const Kind& kind, const Vector& got,
                                const Expected& expected, int scaleFactor, std::ptrdiff_t from)
{
    const Element element = kind.data;
    const Numbers numbers = got.numbers();
    const bool roundedAgain = element.number == Number::float32 && !kind.isNarrow();
    const int shift = std::clamp(scaleFactor, -5000, 5000);
    for (std::size_t i = 0; i < expected.values.size(); ++i) {
        const auto part = static_cast<std::ptrdiff_t>(i) % element.parts;
        const auto n = static_cast<std::ptrdiff_t>(i) / element.parts * expected.step;
        if (n < from) continue;
        const double number = numbers[static_cast<std::size_t>(n * element.parts + part)];
        const Wide value = expected.values[i];
        Wide slack = tolerance.relative * static_cast<Wide>(expected.magnitudes[i]) + tolerance.absolute;
        bool good;
        if (element.isFloating()) {
            if (roundedAgain) slack += 0x1p-24L * (std::abs(value) + slack) + 0x1p-150L;
            const Wide error = std::abs(number - value);
            good = error <= slack;
            if (error > 0) most = std::max(most, static_cast<double>(error / slack));
        } else {
            const auto rounded = [&](Wide x) {
                return std::clamp<Wide>(std::nearbyint(std::ldexp(x, -shift)), element.least(),
                                        element.most());
            };
            good = number >= rounded(value - slack) && number <= rounded(value + slack);
        }
        if (!good)
            return testing::AssertionFailure()
                   << "element " << n << ", part " << part << ": " << number << " instead of "
                   << std::ldexp(value, element.isFloating() ? 0 : -shift) << " within "
                   << std::ldexp(slack, element.isFloating() ? 0 : -shift);
    }
    if (expected.values.empty()) return testing::AssertionFailure() << "nothing was expected";
    compared(std::ssize(expected.values));
    return testing::AssertionSuccess();
}

void tellUse(const Kind& kind)
{
    const double used = std::exchange(most, 0);
    if (kind.data.number == kind.arithmetic)
        std::printf("%-6s uses %.2f of the bound\n", kind.name.c_str(), used);
}

} // namespace zors::test
