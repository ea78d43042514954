// Tones against cosines and sines in extended precision, within the stated bounds.
#include "support/count.h"
#include "support/random.h"

#include <gtest/gtest.h>
#include <zors.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <tuple>

namespace zors::test {
namespace {

using Wide = long double;

constexpr Wide twoPi = 2 * std::numbers::pi_v<Wide>;

// The part below 1 of frequency * n + phase / (2 pi): the products with the frequency's two parts are exact.
Wide turns(double frequency, int n, double phase)
{
    const double high = std::ldexp(std::trunc(std::ldexp(frequency, 31)), -31);
    const Wide whole = std::fmod(Wide(high) * n, 1.0L) + std::fmod(Wide(frequency - high) * n, 1.0L);
    return std::fmod(whole + phase / twoPi, 1.0L);
}

template <class T>
Wide unitOf(T v)
{
    return Wide(std::nextafter(std::abs(v), std::numeric_limits<T>::infinity())) - Wide(std::abs(v));
}

bool isNear(Zor64f got, Wide exact, Zor64f magn)
{
    return std::abs(got - exact) <= 1.5L * unitOf(magn);
}

bool isNear(Zor32f got, Wide exact, Zor32f magn)
{
    return std::abs(got - exact) <= unitOf(static_cast<Zor32f>(exact)) / 2 + 0x1p-50L * magn;
}

bool isNear(Zor16s got, Wide exact, Zor16s magn)
{
    return std::abs(got - exact) <= 0.5L + 0x1p-50L * magn;
}

template <class T>
T part(T v, int)
{
    return v;
}

template <Complex T>
auto part(T v, int which)
{
    return which == 0 ? v.re : v.im;
}

// A function with the types of its arguments.
template <class T, class M, class A>
struct Tone {
    using Element = T;
    using Magnitude = M;
    using Angle = A;
    static constexpr int parts = Complex<T> ? 2 : 1;
    static constexpr double highest = parts == 2 ? 1 : 0.5;
    ZorStatus (*function)(T*, int, M, A, A*, ZorHintAlgorithm);
};

template <class T, class M, class A>
Tone<T, M, A> toneOf(ZorStatus (*function)(T*, int, M, A, A*, ZorHintAlgorithm))
{
    return {function};
}

template <class Body>
void forAllTones(Body body)
{
    const auto all =
        std::tuple(toneOf(zorsTone_Direct_16s), toneOf(zorsTone_Direct_16sc), toneOf(zorsTone_Direct_32f),
                   toneOf(zorsTone_Direct_32fc), toneOf(zorsTone_Direct_64f), toneOf(zorsTone_Direct_64fc));
    std::apply([&](auto... tone) { (body(tone), ...); }, all);
}

template <class T, class M, class A>
void expectTone(const Tone<T, M, A>& tone, std::vector<T>& got, M magn, A rFreq, A phase, int step = 1,
                ZorHintAlgorithm hint = ZOR_ALG_ANY)
{
    const int len = static_cast<int>(got.size());
    A next = phase;
    ASSERT_EQ(tone.function(got.data(), len, magn, rFreq, &next, hint), zorStsOk);
    compared(len / step);
    for (int n = (len - 1) % step; n < len; n += step) {
        const Wide angle = twoPi * turns(rFreq, n, phase);
        for (int p = 0; p < tone.parts; ++p) {
            const Wide exact = magn * (p == 0 ? std::cos(angle) : std::sin(angle));
            ASSERT_TRUE(isNear(part(got[static_cast<std::size_t>(n)], p), exact, magn))
                << "part " << p << " of sample " << n << " is "
                << Wide(part(got[static_cast<std::size_t>(n)], p)) << ", not " << exact << "; frequency "
                << rFreq << ", phase " << phase << ", " << __PRETTY_FUNCTION__;
        }
    }
    // Of the phase nothing but its own rounding is lost; just below 2 pi it may come out as 0.
    ASSERT_TRUE(next >= 0 && next < 2 * std::numbers::pi);
    const Wide missed = std::abs(next - twoPi * turns(rFreq, len, phase));
    ASSERT_LE(std::min(missed, twoPi - missed), 0.501L * std::numeric_limits<A>::epsilon() * 4)
        << next << " after " << len << ", frequency " << rFreq;
}

// Frequencies and phases of all kinds, the ends of their ranges among them.
template <class Tone>
auto angles(Random& random)
{
    using A = typename Tone::Angle;
    const auto below = [](double limit) { // the largest number
        const A rounded = static_cast<A>(limit);
        return rounded < limit ? rounded : std::nextafter(rounded, A{0});
    };
    std::vector<std::pair<A, A>> all;
    for (const A rFreq : {A{0}, A(0.25), A(0.1), A(1e-9), below(Tone::highest)})
        for (const A phase : {A{0}, A(1.5), A(3), below(2 * std::numbers::pi)})
            all.emplace_back(rFreq, phase);
    std::uniform_real_distribution<A> uniform(0, 1);
    for (int i = 0; i < 40; ++i)
        all.emplace_back(uniform(random) * A(Tone::highest), uniform(random) * A(6.28));
    return all;
}

TEST(Tone, IsWithinItsBounds)
{
    Random random;
    forAllTones([&](auto tone) {
        using T = decltype(tone);
        using M = typename T::Magnitude;
        std::vector<M> magnitudes{1, 3, 32767};
        if constexpr (std::is_floating_point_v<M>) magnitudes.assign({1, M(1.999), M(1e-30), M(3e30)});
        std::vector<typename T::Element> got(1500);
        for (const auto& [rFreq, phase] : angles<T>(random))
            for (const M magn : magnitudes) expectTone(tone, got, magn, rFreq, phase);
        for (const ZorHintAlgorithm hint : {1, 2, -7})
            expectTone(tone, got, magnitudes.back(), typename T::Angle(0.2), typename T::Angle(1), 1, hint);
    });
}

// Where every rounding of the step would have grown to more than the bounds.
TEST(Tone, DoesNotDrift)
{
    std::vector<Zor64f> d(1 << 25);
    expectTone(toneOf(zorsTone_Direct_64f), d, 1.0, 0.49999999999999989, 1.0, 1021);
    expectTone(toneOf(zorsTone_Direct_64f), d, 1.5, 0x1p-30 / 3, 0.1, 1021);
    std::vector<Zor16sc> s(1 << 25);
    expectTone(toneOf(zorsTone_Direct_16sc), s, Zor16s{32767}, 0.7654321f, 0.0f, 1021);
}

TEST(Tone, CallsJoin)
{
    forAllTones([](auto tone) {
        using T = decltype(tone);
        using Element = typename T::Element;
        using A = typename T::Angle;
        const A rFreq = A(0.123456789);
        std::vector<Element> whole(3000), cut(whole.size());
        A phase = A(2.5), next = phase;
        ASSERT_EQ(tone.function(whole.data(), 3000, 100, rFreq, &phase, ZOR_ALG_ANY), zorStsOk);
        for (int n = 0, len = 1; n < 3000; n += len, len = std::min(len + 37, 3000 - n))
            ASSERT_EQ(tone.function(&cut[static_cast<std::size_t>(n)], len, 100, rFreq, &next, ZOR_ALG_ANY),
                      zorStsOk);
        // A call more rounds the phase once more.
        const double bound = 100 * 13 * 4 * double(std::numeric_limits<A>::epsilon());
        for (std::size_t n = 0; n < whole.size(); ++n)
            for (int p = 0; p < T::parts; ++p)
                ASSERT_NEAR(part(cut[n], p), part(whole[n], p), bound + (sizeof part(cut[n], p) == 2 ? 1 : 0))
                    << n;
    });
}

TEST(Tone, RefusesWhatItCannotMake)
{
    forAllTones([](auto tone) {
        using T = decltype(tone);
        using M = typename T::Magnitude;
        using A = typename T::Angle;
        const A nan = std::numeric_limits<A>::quiet_NaN(), tiny = std::numeric_limits<A>::denorm_min();
        typename T::Element element{};
        const auto call = [&](M magn, A rFreq, A phase) {
            const auto before = element;
            A next = phase;
            const ZorStatus status = tone.function(&element, 1, magn, rFreq, &next, ZOR_ALG_ANY);
            const bool untouched = std::memcmp(&before, &element, sizeof before) == 0 &&
                                   std::memcmp(&next, &phase, sizeof next) == 0;
            EXPECT_TRUE(status == zorStsOk || untouched);
            return status;
        };
        constexpr A limit = A(T::highest), full = A(2 * std::numbers::pi);
        EXPECT_EQ(call(1, 0, 0), zorStsOk);
        EXPECT_EQ(call(0, limit, full), zorStsBadToneMagnitude);
        EXPECT_EQ(call(-1, 0, 0), zorStsBadToneMagnitude);
        if constexpr (std::is_floating_point_v<M>) {
            EXPECT_EQ(call(std::numeric_limits<M>::quiet_NaN(), 0, 0), zorStsBadToneMagnitude);
        }
        for (const A bad : {limit, -tiny, nan}) EXPECT_EQ(call(1, bad, full), zorStsBadToneFreq);
        EXPECT_EQ(call(1, std::nextafter(limit, A{0}), 0), zorStsOk);
        for (const A bad : {full, -tiny, nan}) EXPECT_EQ(call(1, 0, bad), zorStsBadTonePhase);
        EXPECT_EQ(call(1, 0, std::nextafter(full, A{0})), zorStsOk);
    });
}

} // namespace
} // namespace zors::test
