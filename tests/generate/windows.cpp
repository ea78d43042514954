// Every window against its formula in extended precision: floats within the stated bounds, integers exactly.
#include "support/oracle.h"

#include <zors.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <numbers>

namespace zors::test {
namespace {

using Wide = long double;

constexpr Wide pi = std::numbers::pi_v<Wide>;

// The weight of the element n places from the nearer end; len above 1.
Wide cosine(int n, int len, int multiple = 1)
{
    return std::cos(2 * pi * multiple * n / (len - 1));
}

Wide bartlett(int n, int len)
{
    return Wide(2) * n / (len - 1);
}

Wide hamming(int n, int len)
{
    return 0.54L - 0.46L * cosine(n, len);
}

Wide hann(int n, int len)
{
    return 0.5L - 0.5L * cosine(n, len);
}

Wide blackman(int n, int len, Wide alpha)
{
    return (alpha + 1) / 2 - 0.5L * cosine(n, len) - alpha / 2 * cosine(n, len, 2);
}

Wide optimalAlpha(int len)
{
    return -std::pow(0.5L / std::cos(pi / (len - 1)), 2);
}

Wide power(Wide x, int n)
{
    return n == 0 ? 1 : x * power(x, n - 1);
}

// Abramowitz and Stegun 9.8.1 and 9.8.2, term by term.
Wide besselI0(Wide x)
{
    constexpr Wide below[] = {1, 3.5156229L, 3.0899424L, 1.2067492L, 0.2659732L, 0.0360768L, 0.0045813L};
    constexpr Wide above[] = {0.39894228L,  0.01328592L, 0.00225319L,  -0.00157565L, 0.00916281L,
                              -0.02057706L, 0.02635537L, -0.01647633L, 0.00392377L};
    Wide sum = 0;
    if (x < 3.75L) {
        for (int k = 0; k < 7; ++k) sum += below[k] * power(x / 3.75L, 2 * k);
        return sum;
    }
    for (int k = 0; k < 9; ++k) sum += above[k] * power(3.75L / x, k);
    return std::exp(x) / std::sqrt(x) * sum;
}

Wide kaiser(int n, int len, Wide alpha)
{
    const Wide a = std::abs(alpha);
    return besselI0(a * std::sqrt(Wide(n) * (len - 1 - n))) / besselI0(a * (len - 1) / 2);
}

// A shape over the whole window: mirrored, and 1 at the centre.
template <class Shape>
Wide weightAt(Shape shape, int n, int len)
{
    if (2 * n == len - 1) return 1;
    return shape(std::min(n, len - 1 - n), len);
}

Zor16s saturated(Wide v)
{
    return static_cast<Zor16s>(std::clamp<Wide>(v, -32768, 32767));
}

// The integer roundings, as the library states them.
Zor16s nearest(Zor16s source, Wide weight, int scaleFactor)
{
    const float product = static_cast<float>(source) * static_cast<float>(weight);
    return saturated(std::nearbyint(std::ldexp(Wide(product), -scaleFactor)));
}

Zor16s halfAway(Zor16s source, Wide weight)
{
    return saturated(std::round(static_cast<double>(source) * static_cast<double>(weight)));
}

Zor16s truncatedEnd(Zor16s source, Wide)
{
    return static_cast<Zor16s>(static_cast<float>(source) * (0.54f - 0.46f));
}

// A window by the weight of the element n places from the nearer end, and how near its functions come.
struct Window {
    std::function<Wide(int n, int len)> shape;
    Wide absolute = 4, relative = 0; // bounds of a double's weight, in units of 2^-53
    std::function<double(int len)> parameter = [](int) { return 0; };
    int shortest = 3;
    std::function<Zor16s(Zor16s source, Wide weight)> integer = [](auto... a) { return nearest(a..., 0); };
    std::function<Zor16s(Zor16s source, Wide weight)> integerEnd = integer;
};

bool isNear(Zor64f got, Zor64f source, Wide weight, const Window& window, bool)
{
    const Wide unit = 0x1p-53L, exact = source * weight;
    const Wide bound = (window.absolute + window.relative * std::abs(weight)) * std::abs(Wide(source));
    return std::abs(got - exact) <= unit * (bound + std::abs(exact));
}

// Of a float, the last place of the rounded product; where the weight vanishes only its absolute error counts.
bool isNear(Zor32f got, Zor32f source, Wide weight, const Window& window, bool)
{
    const auto exact = static_cast<float>(source * weight);
    const auto unit = std::nextafter(std::abs(exact), INFINITY) - std::abs(exact);
    return std::abs(Wide(got) - Wide(exact)) <= unit + window.absolute * 0x1p-53L * std::abs(Wide(source));
}

// Of an integer nothing, but that beside the middle of two floats the weight's error decides which it is rounded to.
bool isNear(Zor16s got, Zor16s source, Wide weight, const Window& window, bool end)
{
    const auto& rounded = end ? window.integerEnd : window.integer;
    const Wide error = window.absolute * 0x1p-53L;
    return got == rounded(source, weight) || got == rounded(source, weight - error) ||
           got == rounded(source, weight + error);
}

template <Complex T>
bool isNear(T got, T source, Wide weight, const Window& window, bool end)
{
    return isNear(got.re, source.re, weight, window, end) && isNear(got.im, source.im, weight, window, end);
}

// Calls function(pSrc, pDst, len) at all lengths from the shortest to 257 and some longer ones, also in place.
template <class T, class Function>
void expectWeights(const Window& window, Function function)
{
    Random random;
    std::vector<int> lengths{511, 512, 513, 1000, 4095, 9000};
    for (int len = window.shortest; len <= 257; ++len) lengths.push_back(len);
    for (const int len : lengths) {
        std::vector<T> source(static_cast<std::size_t>(len)), got = source;
        for (T& e : source) e = element<T>(random);
        auto inPlace = source;
        ASSERT_EQ(function(source.data(), got.data(), len), zorStsOk);
        ASSERT_EQ(function(inPlace.data(), inPlace.data(), len), zorStsOk);
        ASSERT_TRUE(std::equal(got.begin(), got.end(), inPlace.begin(), same<T>)) << len;
        compared(len);
        for (int n = 0; n < len; ++n) {
            const auto i = static_cast<std::size_t>(n);
            const Wide weight = weightAt(window.shape, n, len);
            ASSERT_TRUE(isNear(got[i], source[i], weight, window, n == 0 || n == len - 1))
                << testing::PrintToString(source[i]) << " * " << static_cast<double>(weight) << " gave "
                << testing::PrintToString(got[i]) << ", element " << n << " of " << len << ", "
                << __PRETTY_FUNCTION__;
        }
    }
}

// Functions of no parameter or of the window's.
template <class... Function>
void expectWindows(const Window& window, Function... functions)
{
    const auto expect = [&]<class T, class... P>(ZorStatus (*function)(const T*, T*, int, P...)) {
        expectWeights<T>(window, [&](const T* pSrc, T* pDst, int len) {
            return function(pSrc, pDst, len, static_cast<P>(window.parameter(len))...);
        });
    };
    (expect(functions), ...);
}

#define ALL_TYPES(name)                                                                                      \
    zorsWin##name##_16s, zorsWin##name##_16sc, zorsWin##name##_32f, zorsWin##name##_32fc,                    \
        zorsWin##name##_64f, zorsWin##name##_64fc

TEST(Windows, WithoutParameters)
{
    expectWindows({.shape = bartlett, .absolute = 0, .relative = 6}, ALL_TYPES(Bartlett));
    expectWindows({.shape = hamming, .integerEnd = truncatedEnd}, ALL_TYPES(Hamming));
    expectWindows({.shape = hann}, ALL_TYPES(Hann));
}

// The bound of the weights grows with the parameter.
Wide blackmanBound(double alpha)
{
    return 4 + 24 * std::abs(alpha);
}

Window blackmanWindow(Wide alpha, double parameter)
{
    return {.shape = [=](int n, int len) { return blackman(n, len, alpha); },
            .absolute = blackmanBound(static_cast<double>(alpha)),
            .parameter = [=](int) { return parameter; }};
}

TEST(Windows, Blackman)
{
    for (const float alpha : {-0.16f, 0.0f, 0.7f, -3.0f})
        expectWindows(blackmanWindow(alpha, alpha), ALL_TYPES(Blackman));
    expectWindows(blackmanWindow(-7777 / 32768.0L, -7777), zorsWinBlackmanQ15_16s, zorsWinBlackmanQ15_16sc);
}

TEST(Windows, BlackmanWithItsOwnParameter)
{
    expectWindows(blackmanWindow(-0.16f, 0), zorsWinBlackmanStd_16s, zorsWinBlackmanStd_32fc);
    expectWindows(blackmanWindow(-0.16L, 0), zorsWinBlackmanStd_64f);
    Window optimal = {.shape = [](int n, int len) { return blackman(n, len, optimalAlpha(len)); },
                      .absolute = blackmanBound(1),
                      .shortest = 4};
    expectWindows(optimal, zorsWinBlackmanOpt_64fc);
    optimal.shape = [](int n, int len) {
        return blackman(n, len, static_cast<float>(static_cast<double>(optimalAlpha(len))));
    };
    expectWindows(optimal, zorsWinBlackmanOpt_16sc, zorsWinBlackmanOpt_32f);
}

TEST(Windows, BlackmanScaled)
{
    for (const int scaleFactor : {0, 1, 5, 31, 2000, -1, -7, -40, -2000})
        expectWeights<Zor16s>(
            {.shape = [](int n, int len) { return n == 0 ? 0 : blackman(n, len, -5243 / 32768.0L); },
             .integer = [=](Zor16s source, Wide weight) { return nearest(source, weight, scaleFactor); }},
            [=](const Zor16s* pSrc, Zor16s* pDst, int len) {
                if (pSrc != pDst) std::copy_n(pSrc, len, pDst);
                return zorsWinBlackmanQ15_16s_ISfs(pDst, len, -5243, scaleFactor);
            });
}

Window kaiserWindow(double beta, double (*parameter)(double alpha))
{
    const auto alpha = [=](int len) { return parameter(2 * beta / (len - 1)); };
    return {.shape = [=](int n, int len) { return kaiser(n, len, alpha(len)); },
            .absolute = 0,
            .relative = 12 + 3 * std::abs(beta),
            .parameter = alpha,
            .shortest = 2,
            .integer = halfAway};
}

TEST(Windows, Kaiser)
{
    for (const double beta : {0.0, 3.0, -8.6, 37.5, 300.0}) {
        const Window window =
            kaiserWindow(beta, [](double alpha) -> double { return static_cast<float>(alpha); });
        expectWindows(window, zorsWinKaiser_64fc);
        if (beta < 38) expectWindows(window, zorsWinKaiser_32fc);
    }
    Window q15 = kaiserWindow(8.6, [](double alpha) { return std::trunc(0x1p15 * alpha) / 0x1p15; });
    expectWindows(q15, zorsWinKaiser_16s);
    q15.parameter = [alpha = q15.parameter](int len) { return 0x1p15 * alpha(len); };
    expectWindows(q15, zorsWinKaiserQ15_16s);
}

// The stated bounds far from the start of a long window: nothing drifts.
TEST(Windows, LongWindowsKeepTheirPrecision)
{
    constexpr int len = (4 << 20) + 1;
    std::vector<Zor64f> h(len, 1.0), b(len, 1.0);
    ASSERT_EQ(zorsWinHann_64f_I(h.data(), len), zorStsOk);
    ASSERT_EQ(zorsWinBlackmanStd_64f_I(b.data(), len), zorStsOk);
    for (int n = 0; n < len; n += n < 1000 ? 1 : 97) {
        const auto i = static_cast<std::size_t>(n);
        const Wide sine = std::sin(pi * std::min(n, len - 1 - n) / (len - 1)), q = sine * sine;
        ASSERT_LE(std::abs(h[i] - q), 0x1p-53L * std::min(4.0L, 6 * q)) << n;
        ASSERT_LE(std::abs(b[i] - (q - 0.64L * q * (1 - q))), blackmanBound(0.16) * 0x1p-53L) << n;
    }
}

TEST(Windows, KaiserLimits)
{
    std::vector<Zor32f> f(78, 1.0f);
    std::vector<Zor64f> d(78, 1.0);
    EXPECT_EQ(zorsWinKaiser_32f_I(f.data(), 78, 1.0f), zorStsBadKaiserAlpha); // beta 38.5
    EXPECT_EQ(f, std::vector<Zor32f>(78, 1.0f));
    EXPECT_EQ(zorsWinKaiser_32f_I(f.data(), 77, 1.0f), zorStsOk);
    EXPECT_EQ(zorsWinKaiser_64f_I(d.data(), 78, 1.0), zorStsOk);
    EXPECT_EQ(zorsWinKaiser_64f_I(d.data(), 78, 8.01), zorStsBadKaiserAlpha);
    EXPECT_EQ(zorsWinKaiser_64f_I(d.data(), 78, std::numeric_limits<double>::quiet_NaN()),
              zorStsBadKaiserAlpha);
    EXPECT_EQ(zorsWinKaiser_64f_I(d.data(), 1, 1e300), zorStsOk);
}

// Zeros, not products: also where the source is no number.
TEST(Windows, ShortestHasZeroEnds)
{
    const Zor32f nan = std::numeric_limits<Zor32f>::quiet_NaN();
    const std::vector<Zor32f> expected = {0, 5, 0};
    for (const auto window : {zorsWinBartlett_32f_I, zorsWinHann_32f_I, zorsWinBlackmanStd_32f_I}) {
        std::vector<Zor32f> v = {nan, 5, -INFINITY};
        ASSERT_EQ(window(v.data(), 3), zorStsOk);
        EXPECT_EQ(v, expected);
    }
}

} // namespace
} // namespace zors::test
