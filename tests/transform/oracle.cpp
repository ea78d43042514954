#include "transform/oracle.h"

#include <numbers>

namespace zors::test {
namespace {

// Without the tests for infinities that the standard's product makes.
WideComplex product(WideComplex a, WideComplex b)
{
    return {a.real() * b.real() - a.imag() * b.imag(), a.real() * b.imag() + a.imag() * b.real()};
}

void byHalves(const WideComplex* x, std::size_t step, WideComplex* out, std::size_t n,
              const WideVector& turns)
{
    if (n == 1) {
        out[0] = x[0];
        return;
    }
    const std::size_t half = n / 2;
    byHalves(x, 2 * step, out, half, turns);
    byHalves(x + step, 2 * step, out + half, half, turns);
    for (std::size_t k = 0; k < half; ++k) {
        const WideComplex even = out[k], odd = product(out[half + k], turns[k * step]);
        out[k] = even + odd;
        out[half + k] = even - odd;
    }
}

// e^(-2 pi i k / n); a table for the length of the last call.
const WideVector& turnsOf(std::size_t n)
{
    static WideVector turns;
    if (turns.size() == n / 2 + 1) return turns;
    turns.resize(n / 2 + 1);
    for (std::size_t k = 0; k < turns.size(); ++k) {
        const Wide angle = 2 * std::numbers::pi_v<Wide> * static_cast<Wide>(k) / static_cast<Wide>(n);
        turns[k] = {std::cos(angle), -std::sin(angle)};
    }
    return turns;
}

} // namespace

WideVector dft(const WideVector& x)
{
    const std::size_t n = x.size();
    WideVector out(n);
    byHalves(x.data(), 1, out.data(), n, turnsOf(n));
    return out;
}

WideVector inverseFromForward(const WideVector& forward)
{
    WideVector out(forward.size());
    for (std::size_t k = 0; k < out.size(); ++k) out[k] = forward[(out.size() - k) % out.size()];
    return out;
}

} // namespace zors::test
