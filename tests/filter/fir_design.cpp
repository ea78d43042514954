// Designs by windows beside their formula in extended precision, and beside those of SciPy.
#include "filter/design_values.h"
#include "support/allocator.h"
#include "support/count.h"

#include <gtest/gtest.h>
#include <zors.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <numbers>

namespace zors::test {
namespace {

using Wide = long double;

constexpr Wide pi = std::numbers::pi_v<Wide>;
constexpr Band bands[] = {Band::lowpass, Band::highpass, Band::bandpass, Band::bandstop};

ZorStatus design(Band band, double low, double high, Zor64f* pTaps, int tapsLen, int winType, int doNormal)
{
    switch (band) {
    case Band::lowpass:
        return zorsFIRGenLowpass_64f(low, pTaps, tapsLen, winType, doNormal);
    case Band::highpass:
        return zorsFIRGenHighpass_64f(low, pTaps, tapsLen, winType, doNormal);
    case Band::bandpass:
        return zorsFIRGenBandpass_64f(low, high, pTaps, tapsLen, winType, doNormal);
    default:
        return zorsFIRGenBandstop_64f(low, high, pTaps, tapsLen, winType, doNormal);
    }
}

std::vector<Zor64f> taps(Band band, double low, double high, int tapsLen, int winType, int doNormal)
{
    std::vector<Zor64f> t(static_cast<std::size_t>(tapsLen), NAN);
    EXPECT_EQ(design(band, low, high, t.data(), tapsLen, winType, doNormal), zorStsOk);
    return t;
}

// The distance of a tap from the centre.
Wide distance(std::size_t n, std::size_t tapsLen)
{
    return Wide(n) - Wide(tapsLen - 1) / 2;
}

Wide lowpass(Wide f, Wide p)
{
    return p == 0 ? 2 * f : std::sin(2 * pi * f * p) / (pi * p);
}

Wide ideal(Band band, Wide low, Wide high, Wide p)
{
    switch (band) {
    case Band::lowpass:
        return lowpass(low, p);
    case Band::highpass:
        return lowpass(0.5L, p) - lowpass(low, p);
    case Band::bandpass:
        return lowpass(high, p) - lowpass(low, p);
    default:
        return lowpass(0.5L, p) - lowpass(high, p) + lowpass(low, p);
    }
}

// The gain, with the sign that the linear phase leaves.
Wide gain(const std::vector<Zor64f>& taps, Wide frequency)
{
    Wide sum = 0;
    for (std::size_t n = 0; n < taps.size(); ++n)
        sum += taps[n] * std::cos(2 * pi * frequency * distance(n, taps.size()));
    return sum;
}

Wide normalFrequency(Band band, Wide low, Wide high)
{
    return band == Band::highpass ? 0.5L : band == Band::bandpass ? (low + high) / 2 : 0;
}

TEST(FirDesign, IsThatOfSciPy)
{
    for (const FirDesign& d : firDesigns) {
        const auto got = taps(d.band, d.low, d.high, d.tapsLen, d.winType, d.doNormal);
        compared(d.tapsLen);
        for (std::size_t n = 0; n < d.taps.size(); ++n)
            ASSERT_NEAR(got[n], d.taps[n], 1e-15)
                << "tap " << n << " of " << d.tapsLen << ", band " << int(d.band) << ", window " << d.winType;
    }
}

TEST(FirDesign, SamplesTheIdealResponse)
{
    for (const Band band : bands)
        for (const auto& [low, high] : {std::pair{0.001, 0.4999}, {0.2, 0.21}, {0.25, 0.3}, {0.499, 0.49999}})
            for (int tapsLen = 5; tapsLen < 3000; tapsLen += tapsLen < 70 ? 1 : 977) {
                const auto got = taps(band, low, high, tapsLen, zorWinRect, 0);
                compared(tapsLen);
                for (std::size_t n = 0; n < got.size(); ++n) {
                    const Wide p = distance(n, got.size());
                    const Wide want = ideal(band, low, high, p);
                    ASSERT_LE(std::abs(got[n] - want),
                              0x1p-50L / std::max(1.0L, std::abs(p)) + 0x1p-53L * std::abs(want))
                        << "tap " << n << " of " << tapsLen << ", band " << int(band) << ", " << low;
                }
            }
}

// The window multiplies the taps; every one is symmetric to the last bit.
TEST(FirDesign, AppliesTheWindow)
{
    constexpr ZorStatus (*windows[])(Zor64f*, int) = {zorsWinBartlett_64f_I, zorsWinBlackmanOpt_64f_I,
                                                      zorsWinHamming_64f_I, zorsWinHann_64f_I};
    for (const Band band : bands)
        for (const int tapsLen : {5, 6, 7, 100, 257, 1000, 1001})
            for (const int winType : {0, 1, 2, 3, 4, 7, -1}) {
                const auto got = taps(band, 0.1, 0.3, tapsLen, winType, 0);
                auto want = taps(band, 0.1, 0.3, tapsLen, zorWinRect, 0);
                if (winType >= 0 && winType < 4) windows[winType](want.data(), tapsLen);
                ASSERT_EQ(got, want) << "window " << winType;
                const auto normal = taps(band, 0.1, 0.3, tapsLen, winType, -3);
                ASSERT_TRUE(std::equal(normal.begin(), normal.end(), normal.rbegin()));
            }
}

TEST(FirDesign, NormalisesTheGain)
{
    for (const Band band : bands)
        for (const auto& [low, high] : {std::pair{0.01, 0.45}, {0.2, 0.3}})
            for (int tapsLen = 5; tapsLen < 200; ++tapsLen)
                for (int winType = 0; winType < 5; ++winType) {
                    const auto plain = taps(band, low, high, tapsLen, winType, 0);
                    const auto got = taps(band, low, high, tapsLen, winType, 1);
                    const Wide frequency = normalFrequency(band, low, high);
                    const Wide before = gain(plain, frequency);
                    if (band == Band::highpass && tapsLen % 2 == 0) {
                        ASSERT_EQ(got, plain) << "there is no gain";
                        continue;
                    }
                    Wide sum = 0;
                    for (const Zor64f tap : got) sum += std::abs(tap);
                    const Wide error = (tapsLen / 2 + 4) * 0x1p-53L * sum; // of a sum of so many
                    ASSERT_LE(std::abs(gain(got, frequency) - (before < 0 ? -1 : 1)), error)
                        << tapsLen << ", band " << int(band) << ", window " << winType;
                }
    // Two edges near each other, the overshoot of a short filter: the gain is negative, and stays so.
    EXPECT_LE(std::abs(gain(taps(Band::bandstop, 1e-4, 0.0476, 21, zorWinRect, 1), 0) + 1), 1e-14L);
}

TEST(FirDesign, RefusesWhatItCannotMake)
{
    std::vector<Zor64f> t(5, 7.0);
    const auto status = [&](Band band, double low, double high, int tapsLen) {
        const ZorStatus s = design(band, low, high, t.data(), tapsLen, zorWinHann, 1);
        EXPECT_EQ(t, std::vector<Zor64f>(5, 7.0));
        return s;
    };
    allocator = {};
    for (const Band band : bands) {
        EXPECT_EQ(design(band, -1, 2, nullptr, 4, 0, 0), zorStsNullPointer);
        EXPECT_EQ(status(band, 0.1, 0.2, 4), zorStsBadSize);
        EXPECT_EQ(status(band, 0.1, 0.2, INT_MIN), zorStsBadSize);
        for (const double bad : {0.0, -0.1, 0.5, double(NAN)}) {
            EXPECT_EQ(status(band, bad, 0.2, 5), zorStsBadSize);
            if (band == Band::bandpass || band == Band::bandstop) {
                EXPECT_EQ(status(band, 0.1, bad, 5), zorStsBadSize);
                EXPECT_EQ(status(band, 0.2, 0.2, 5), zorStsBadSize);
                EXPECT_EQ(status(band, 0.2, 0.1, 5), zorStsBadSize);
            }
        }
        EXPECT_TRUE(allocator.sizesAsked.empty());
    }
    EXPECT_EQ(design(Band::lowpass, 0.49999, 0, t.data(), 5, 0, 1), zorStsOk);
}

TEST(FirDesign, ReturnsItsMemory)
{
    for (const Band band : bands)
        for (const int tapsLen : {5, 6}) {
            std::vector<Zor64f> t(static_cast<std::size_t>(tapsLen), 7.0);
            const auto before = t;
            allocator = {};
            allocator.untilFailure = 0;
            EXPECT_EQ(design(band, 0.1, 0.2, t.data(), tapsLen, zorWinHann, 1), zorStsNullPointer);
            EXPECT_EQ(t, before);
            EXPECT_EQ(design(band, 0.1, 0.2, t.data(), tapsLen, zorWinHann, 1), zorStsOk);
            EXPECT_TRUE(allocator.live.empty() && !allocator.strayRelease);
            for (const int size : allocator.sizesAsked) EXPECT_EQ(size, (tapsLen / 2 + 1) * 8);
        }
    // More than can be asked for: not a tap is written.
    EXPECT_EQ(design(Band::lowpass, 0.1, 0, std::vector<Zor64f>(1).data(), INT_MAX, 0, 1), zorStsNullPointer);
}

} // namespace
} // namespace zors::test
