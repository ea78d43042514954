// Every window against its formula in extended precision: floats within the stated bounds, integers exactly.
#include "generate/window_oracle.h"
#include "support/count.h"

#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <vector>
#include <zors.h>

namespace zors::test {
namespace {

template <class T>
T element(std::mt19937& random)
{
    if constexpr (requires { T{}.re; })
        return {element<decltype(T::re)>(random), element<decltype(T::re)>(random)};
    else if constexpr (std::is_integral_v<T>)
        return static_cast<T>(random());
    else
        return static_cast<T>(std::uniform_real_distribution<double>(-4, 4)(random));
}

template <class T>
std::vector<T> elements(int len)
{
    std::mt19937 random(static_cast<unsigned>(len));
    std::vector<T> v(static_cast<std::size_t>(len));
    for (T& e : v) e = element<T>(random);
    return v;
}

Zor16s saturated(Wide v)
{
    return static_cast<Zor16s>(std::clamp<Wide>(v, -32768, 32767));
}

// The integer roundings, as the library states them.
Zor16s nearest(Zor16s source, Wide weight, int scaleFactor = 0)
{
    const float product = static_cast<float>(source) * static_cast<float>(weight);
    return saturated(std::nearbyint(std::ldexp(Wide(product), -scaleFactor)));
}

Zor16s halfAway(Zor16s source, Wide weight)
{
    return saturated(std::round(static_cast<double>(source) * static_cast<double>(weight)));
}

Zor16s truncatedEnd(Zor16s source)
{
    return static_cast<Zor16s>(static_cast<float>(source) * (0.54f - 0.46f));
}

// Bounds: of a double's weight absolutely, of a float in units of the last place of the rounded product.
struct Bound {
    Wide absolute = 4, relative = 0; // in units of 2^-53
};

void expectPart(Zor64f source, Zor64f got, Wide weight, Bound bound)
{
    const Wide unit = 0x1p-53L, exact = source * weight;
    const Wide most = (bound.absolute + bound.relative * std::abs(weight)) * unit * std::abs(Wide(source)) +
                      unit * std::abs(exact);
    ASSERT_LE(std::abs(got - exact), most) << source << " * " << static_cast<double>(weight);
}

void expectPart(Zor32f source, Zor32f got, Wide weight, Bound bound)
{
    const auto exact = static_cast<float>(source * weight);
    const auto unit = std::nextafter(std::abs(exact), INFINITY) - std::abs(exact);
    // Where the weight vanishes only its absolute error counts.
    const Wide rest = bound.absolute * 0x1p-53L * std::abs(Wide(source));
    ASSERT_LE(std::abs(Wide(got) - Wide(exact)), unit + rest)
        << source << " * " << static_cast<double>(weight);
}

void expectPart(Zor16s source, Zor16s got, Wide weight, Bound)
{
    ASSERT_EQ(got, nearest(source, weight)) << source << " * " << static_cast<double>(weight);
}

template <class T>
void expectElement(T source, T got, Wide weight, Bound bound)
{
    if constexpr (requires { source.re; }) {
        expectPart(source.re, got.re, weight, bound);
        expectPart(source.im, got.im, weight, bound);
    } else {
        expectPart(source, got, weight, bound);
    }
}

constexpr int lengths[] = {511, 512, 513, 1000, 4095, 9000};

// Runs body at all lengths from a first one to 257 and some longer ones, and stops at the first failure.
template <class Body>
void atLengths(int first, Body body)
{
    for (int len = first; len <= 257; ++len)
        if (body(len); testing::Test::HasFatalFailure()) return;
    for (const int len : lengths)
        if (body(len); testing::Test::HasFatalFailure()) return;
}

// A window of one type against its shape; an integer Hamming window has ends of its own.
template <bool OwnEnds = false, class T, class Shape, class... Parameters>
void expectWindow(ZorStatus (*window)(const T*, T*, int, Parameters...), Shape shape, int first,
                  Bound bound = {}, Parameters... parameters)
{
    atLengths(first, [&](int len) {
        const auto source = elements<T>(len);
        auto got = source;
        ASSERT_EQ(window(source.data(), got.data(), len, parameters...), zorStsOk);
        zors::test::compared(len);
        for (int n = OwnEnds; n < len - OwnEnds; ++n) {
            SCOPED_TRACE("element " + std::to_string(n) + " of " + std::to_string(len));
            const auto i = static_cast<std::size_t>(n);
            expectElement(source[i], got[i], weightAt(shape, n, len), bound);
            if (testing::Test::HasFatalFailure()) return;
        }
        if constexpr (OwnEnds && std::is_same_v<T, Zor16s>) {
            ASSERT_EQ(got.front(), truncatedEnd(source.front()));
            ASSERT_EQ(got.back(), truncatedEnd(source.back()));
        } else if constexpr (OwnEnds) {
            ASSERT_EQ(got.front().re, truncatedEnd(source.front().re));
            ASSERT_EQ(got.back().im, truncatedEnd(source.back().im));
        }
    });
}

TEST(Windows, Bartlett)
{
    expectWindow(zorsWinBartlett_16s, bartlett, 3);
    expectWindow(zorsWinBartlett_16sc, bartlett, 3);
    expectWindow(zorsWinBartlett_32f, bartlett, 3);
    expectWindow(zorsWinBartlett_32fc, bartlett, 3);
    expectWindow(zorsWinBartlett_64f, bartlett, 3, {0, 6});
    expectWindow(zorsWinBartlett_64fc, bartlett, 3, {0, 6});
}

TEST(Windows, Hamming)
{
    expectWindow<true>(zorsWinHamming_16s, hamming, 3);
    expectWindow<true>(zorsWinHamming_16sc, hamming, 3);
    expectWindow(zorsWinHamming_32f, hamming, 3);
    expectWindow(zorsWinHamming_32fc, hamming, 3);
    expectWindow(zorsWinHamming_64f, hamming, 3);
    expectWindow(zorsWinHamming_64fc, hamming, 3);
}

TEST(Windows, Hann)
{
    expectWindow(zorsWinHann_16s, hann, 3);
    expectWindow(zorsWinHann_16sc, hann, 3);
    expectWindow(zorsWinHann_32f, hann, 3);
    expectWindow(zorsWinHann_32fc, hann, 3);
    expectWindow(zorsWinHann_64f, hann, 3);
    expectWindow(zorsWinHann_64fc, hann, 3);
}

// The bound of the weights grows with the parameter.
Bound blackmanBound(double alpha)
{
    return {4 + 24 * std::abs(alpha)};
}

TEST(Windows, Blackman)
{
    for (const float alpha : {-0.16f, 0.0f, 0.7f, -3.0f}) {
        const auto shape = [=](int n, int len) { return blackman(n, len, alpha); };
        const Bound bound = blackmanBound(alpha);
        expectWindow(zorsWinBlackman_16s, shape, 3, bound, alpha);
        expectWindow(zorsWinBlackman_16sc, shape, 3, bound, alpha);
        expectWindow(zorsWinBlackman_32f, shape, 3, bound, alpha);
        expectWindow(zorsWinBlackman_32fc, shape, 3, bound, alpha);
        expectWindow(zorsWinBlackman_64f, shape, 3, bound, static_cast<double>(alpha));
        expectWindow(zorsWinBlackman_64fc, shape, 3, bound, static_cast<double>(alpha));
    }
    const auto q15 = [](int n, int len) { return blackman(n, len, -7777 / 32768.0L); };
    expectWindow(zorsWinBlackmanQ15_16s, q15, 3, {}, -7777);
    expectWindow(zorsWinBlackmanQ15_16sc, q15, 3, {}, -7777);
}

TEST(Windows, BlackmanWithItsOwnParameter)
{
    const auto standard = [](int n, int len) { return blackman(n, len, -0.16L); };
    const auto standardFloat = [](int n, int len) { return blackman(n, len, -0.16f); };
    const auto optimal = [](int n, int len) { return blackman(n, len, optimalAlpha(len)); };
    const auto optimalFloat = [](int n, int len) {
        return blackman(n, len, static_cast<float>(static_cast<double>(optimalAlpha(len))));
    };
    expectWindow(zorsWinBlackmanStd_16s, standardFloat, 3);
    expectWindow(zorsWinBlackmanStd_32fc, standardFloat, 3, blackmanBound(0.16));
    expectWindow(zorsWinBlackmanStd_64f, standard, 3, blackmanBound(0.16));
    expectWindow(zorsWinBlackmanOpt_16sc, optimalFloat, 4);
    expectWindow(zorsWinBlackmanOpt_32f, optimalFloat, 4, blackmanBound(1));
    expectWindow(zorsWinBlackmanOpt_64fc, optimal, 4, blackmanBound(1));
}

TEST(Windows, BlackmanScaled)
{
    for (const int scaleFactor : {0, 1, 5, 31, 2000, -1, -7, -40, -2000})
        for (int len = 3; len <= 257; ++len) {
            const auto source = elements<Zor16s>(len);
            auto got = source;
            ASSERT_EQ(zorsWinBlackmanQ15_16s_ISfs(got.data(), len, -5243, scaleFactor), zorStsOk);
            const auto shape = [](int n, int l) { return n == 0 ? 0 : blackman(n, l, -5243 / 32768.0L); };
            for (int n = 0; n < len; ++n) {
                const auto i = static_cast<std::size_t>(n);
                ASSERT_EQ(got[i], nearest(source[i], weightAt(shape, n, len), scaleFactor))
                    << "element " << n << " of " << len << ", scale factor " << scaleFactor;
            }
        }
}

// The parameter that gives a window of a length the beta that is asked for.
double alphaOf(double beta, int len)
{
    return len > 1 ? 2 * beta / (len - 1) : 0;
}

TEST(Windows, Kaiser)
{
    for (const double beta : {0.0, 3.0, -8.6, 37.5, 300.0}) {
        atLengths(2, [&](int len) {
            const auto alpha = static_cast<float>(alphaOf(beta, len));
            const auto shape = [=](int n, int l) { return kaiser(n, l, alpha); };
            const Bound bound{0, 12 + 3 * std::abs(static_cast<Wide>(beta))};
            const auto one = elements<Zor64fc>(len);
            const auto other = elements<Zor32fc>(len);
            auto got = one;
            auto gotFloat = other;
            ASSERT_EQ(zorsWinKaiser_64fc(one.data(), got.data(), len, alpha), zorStsOk);
            if (beta < 38) {
                ASSERT_EQ(zorsWinKaiser_32fc(other.data(), gotFloat.data(), len, alpha), zorStsOk);
            }
            for (int n = 0; n < len; ++n) {
                SCOPED_TRACE("element " + std::to_string(n) + " of " + std::to_string(len));
                const auto i = static_cast<std::size_t>(n);
                const Wide weight = weightAt(shape, n, len);
                expectElement(one[i], got[i], weight, bound);
                if (beta < 38) expectElement(other[i], gotFloat[i], weight, {0});
                if (testing::Test::HasFatalFailure()) return;
            }
        });
    }
}

TEST(Windows, KaiserInteger)
{
    atLengths(2, [](int len) {
        const int q15 = static_cast<int>(32768 * alphaOf(8.6, len));
        const auto shape = [=](int n, int l) { return kaiser(n, l, q15 / 32768.0L); };
        const auto source = elements<Zor16s>(len);
        auto got = source, same = source;
        ASSERT_EQ(zorsWinKaiserQ15_16s(source.data(), got.data(), len, q15), zorStsOk);
        ASSERT_EQ(zorsWinKaiser_16s(source.data(), same.data(), len, static_cast<float>(q15) / 32768.0f),
                  zorStsOk);
        ASSERT_EQ(got, same);
        for (int n = 0; n < len; ++n) {
            const auto i = static_cast<std::size_t>(n);
            ASSERT_EQ(got[i], halfAway(source[i], weightAt(shape, n, len)))
                << "element " << n << " of " << len;
        }
    });
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
        ASSERT_LE(std::abs(h[i] - q), 6 * 0x1p-53L * q) << n;
        ASSERT_LE(std::abs(b[i] - (q - 0.64L * q * (1 - q))), blackmanBound(0.16).absolute * 0x1p-53L) << n;
    }
}

// A checksum of all bits (Fowler, Noll and Vo).
template <class T>
Zor64u checksum(const std::vector<T>& v)
{
    Zor64u sum = 0xcbf29ce484222325u;
    const auto* bytes = reinterpret_cast<const unsigned char*>(v.data());
    for (std::size_t i = 0; i < v.size() * sizeof(T); ++i) sum = (sum ^ bytes[i]) * 0x100000001b3u;
    return sum;
}

// The contract tests compare the variants at short lengths; here many stretches of weights follow one another. The
// numbers are those of the baseline.
TEST(Windows, LongWindowsHaveTheSameBitsOnEveryVariant)
{
    constexpr int len = 9001;
    std::vector<Zor64f> d(len, 1.0);
    ASSERT_EQ(zorsWinHann_64f_I(d.data(), len), zorStsOk);
    EXPECT_EQ(checksum(d), 0x9a0c3437c4adf980u);
    ASSERT_EQ(zorsWinBlackman_64f_I(d.data(), len, 0.3), zorStsOk);
    EXPECT_EQ(checksum(d), 0x35f9ddafb961a4u);
    std::vector<Zor64f> k(len, 1.0);
    ASSERT_EQ(zorsWinKaiser_64f_I(k.data(), len, 0.002), zorStsOk);
    EXPECT_EQ(checksum(k), 0x4b3a18092e81d064u);
    std::vector<Zor32f> f(len, 1.0f);
    ASSERT_EQ(zorsWinHamming_32f_I(f.data(), len), zorStsOk);
    EXPECT_EQ(checksum(f), 0xd27c0913ed86bf10u);
    ASSERT_EQ(zorsWinKaiser_32f_I(f.data(), len, 0.002f), zorStsOk);
    EXPECT_EQ(checksum(f), 0x8264ad61567e0470u);
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

TEST(Windows, OutOfPlaceAcceptsEqualPointers)
{
    for (int len = 4; len <= 257; ++len) {
        const auto source = elements<Zor32f>(len);
        for (const auto window :
             {zorsWinBartlett_32f, zorsWinHamming_32f, zorsWinHann_32f, zorsWinBlackmanOpt_32f}) {
            auto apart = source, same = source;
            ASSERT_EQ(window(source.data(), apart.data(), len), zorStsOk);
            ASSERT_EQ(window(same.data(), same.data(), len), zorStsOk);
            ASSERT_EQ(apart, same) << len;
        }
    }
}

} // namespace
} // namespace zors::test
