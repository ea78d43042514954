#include "generate/plain_generate.h"

#include <cmath>
#include <numbers>

namespace zors::bench {
namespace {

Zor16s toInteger(double v)
{
    return static_cast<Zor16s>(std::lrint(v));
}

// A phasor that turns from element to element; each weight serves both ends.
template <class T, class Shape, class Weigh>
void byPhasor(T* d, int n, Shape shape, Weigh weigh)
{
    const double step = 2 * std::numbers::pi / (n - 1), c = std::cos(step), s = std::sin(step);
    double re = 1, im = 0;
    for (int i = 0; i < n / 2; ++i) {
        const double w = shape(re);
        weigh(d[i], w);
        weigh(d[n - 1 - i], w);
        const double turned = re * c - im * s;
        im = re * s + im * c;
        re = turned;
    }
}

double hann(double cosine)
{
    return 0.5 - 0.5 * cosine;
}

template <class T>
void hannReal(T* d, int n)
{
    byPhasor(d, n, hann, [](T& v, double w) { v *= static_cast<T>(w); });
}

void hann16s(Zor16s* d, int n)
{
    byPhasor(d, n, hann, [](Zor16s& v, double w) { v = toInteger(v * w); });
}

void hann32fc(Zor32fc* d, int n)
{
    byPhasor(d, n, hann, [](Zor32fc& v, double w) {
        v.re *= static_cast<Zor32f>(w);
        v.im *= static_cast<Zor32f>(w);
    });
}

void blackman32f(Zor32f* d, int n)
{
    const auto shape = [](double c) { return 0.42 - 0.5 * c + 0.08 * (2 * c * c - 1); };
    byPhasor(d, n, shape, [](Zor32f& v, double w) { v *= static_cast<Zor32f>(w); });
}

template <std::size_t N>
double polynomial(const double (&c)[N], double x)
{
    double p = c[N - 1];
    for (std::size_t k = N - 1; k-- > 0;) p = p * x + c[k];
    return p;
}

double besselI0(double x)
{
    constexpr double below[] = {1.0, 3.5156229, 3.0899424, 1.2067492, 0.2659732, 0.0360768, 0.0045813};
    constexpr double above[] = {0.39894228,  0.01328592, 0.00225319,  -0.00157565, 0.00916281,
                                -0.02057706, 0.02635537, -0.01647633, 0.00392377};
    if (x < 3.75) return polynomial(below, x / 3.75 * (x / 3.75));
    return std::exp(x) / std::sqrt(x) * polynomial(above, 3.75 / x);
}

template <class T>
void kaiser(const T* s, T* d, int n)
{
    const double alpha = 2 * beta / (n - 1), norm = 1 / besselI0(beta);
    for (int i = 0; i <= (n - 1) / 2; ++i) {
        const auto w =
            static_cast<T>(besselI0(alpha * std::sqrt(static_cast<double>(i) * (n - 1 - i))) * norm);
        d[i] = s[i] * w;
        d[n - 1 - i] = s[n - 1 - i] * w;
    }
}

// xoshiro128++ from its published recurrence (Blackman and Vigna, ACM TOMS 47, 2021).
class Xoshiro {
public:
    Zor32s operator()()
    {
        const Zor32u word = turned(s_[0] + s_[3], 7) + s_[0], t = s_[1] << 9;
        s_[2] ^= s_[0];
        s_[3] ^= s_[1];
        s_[1] ^= s_[2];
        s_[0] ^= s_[3];
        s_[2] ^= t;
        s_[3] = turned(s_[3], 11);
        return static_cast<Zor32s>(word);
    }

private:
    static Zor32u turned(Zor32u x, int k) { return x << k | x >> (32 - k); }
    Zor32u s_[4] = {1, 2, 3, 4};
};

void uniform32f(Zor32f* d, int n)
{
    static Xoshiro next;
    for (int i = 0; i < n; ++i) d[i] = static_cast<Zor32f>(0.5 + 0x1p-32 * next());
}

void uniform16s(Zor16s* d, int n)
{
    static Xoshiro next;
    for (int i = 0; i < n; ++i) d[i] = toInteger(500 + 3000 * 0x1p-32 * next());
}

void gauss32f(Zor32f* d, int n)
{
    static Xoshiro next;
    for (int i = 0; i < n; i += 2) {
        double u1, u2, s;
        do {
            u1 = next() * 0x1p-31;
            u2 = next() * 0x1p-31;
            s = u1 * u1 + u2 * u2;
        } while (s >= 1 || s == 0);
        const double f = std::sqrt(-2 * std::log(s) / s);
        d[i] = static_cast<Zor32f>(u2 * f);
        if (i + 1 < n) d[i + 1] = static_cast<Zor32f>(u1 * f);
    }
}

} // namespace

const PlainGenerateLoops PLAIN_LOOPS = {
    hannReal<Zor32f>, hannReal<Zor64f>, hann16s,    hann32fc,   blackman32f,
    kaiser<Zor32f>,   kaiser<Zor64f>,   uniform32f, uniform16s, gauss32f,
};

} // namespace zors::bench
