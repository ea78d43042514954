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

WideVector dftOfAnyLength(const WideVector& x)
{
    const std::size_t n = x.size(), few = 100;
    WideVector turns(2 * n); // e^(-pi i k / n)
    for (std::size_t k = 0; k < turns.size(); ++k) {
        const Wide angle = std::numbers::pi_v<Wide> * static_cast<Wide>(k) / static_cast<Wide>(n);
        turns[k] = {std::cos(angle), -std::sin(angle)};
    }
    WideVector out(n);
    if (n <= few) {
        for (std::size_t k = 0; k < n; ++k)
            for (std::size_t j = 0; j < n; ++j) out[k] += product(x[j], turns[2 * (j * k % n)]);
        return out;
    }
    // 2 j k = j^2 + k^2 - (k - j)^2
    std::size_t length = 1;
    while (length < 2 * n) length *= 2;
    WideVector a(length), b(length);
    for (std::size_t j = 0; j < n; ++j) {
        const WideComplex chirp = turns[j * j % (2 * n)];
        a[j] = product(x[j], chirp);
        b[j] = b[(length - j) % length] = std::conj(chirp);
    }
    a = dft(a), b = dft(b);
    for (std::size_t k = 0; k < length; ++k) a[k] = product(a[k], b[k]);
    a = inverseFromForward(dft(a));
    for (std::size_t k = 0; k < n; ++k)
        out[k] = product(a[k], turns[k * k % (2 * n)]) / static_cast<Wide>(length);
    return out;
}

WideVector inverseFromForward(const WideVector& forward)
{
    WideVector out(forward.size());
    for (std::size_t k = 0; k < out.size(); ++k) out[k] = forward[(out.size() - k) % out.size()];
    return out;
}

} // namespace zors::test
