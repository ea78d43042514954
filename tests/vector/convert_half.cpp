// Half floats.
#include "support/oracle.h"

#include <zors.h>

#include <bit>
#include <climits>
#include <cmath>

namespace {

using namespace zors::test;

constexpr ZorRoundMode modes[] = {zorRndZero, zorRndNear};

bool isFinite(Zor16f h)
{
    return (h & 0x7c00) != 0x7c00;
}

Zor32f fromHalf(Zor16f h)
{
    const int exponent = h >> 10 & 31, fraction = h & 1023;
    if (!isFinite(h))
        return std::bit_cast<Zor32f>((h & 0x8000u) << 16 | 0x7f800000u | (fraction ? 0x400000u : 0) |
                                     static_cast<std::uint32_t>(fraction) << 13);
    const double magnitude =
        exponent ? std::ldexp(1024 + fraction, exponent - 25) : std::ldexp(fraction, -24);
    return static_cast<Zor32f>(h & 0x8000 ? -magnitude : magnitude);
}

// A half counts up with its bits, and so do its units: in the place of the value they are whole numbers.
Zor16f toHalf(Zor32f v, ZorRoundMode rndMode)
{
    const std::uint32_t bits = std::bit_cast<std::uint32_t>(v), sign = bits >> 16 & 0x8000,
                        payload = bits >> 13 & 0x3ff;
    if (std::isnan(v)) return static_cast<Zor16f>(sign | 0x7e00 | payload);
    if (std::isinf(v)) return static_cast<Zor16f>(sign | 0x7c00);
    const double magnitude = std::fabs(v);
    const int exponent = std::max(magnitude > 0 ? std::ilogb(magnitude) : -14, -14);
    const double units = std::ldexp(magnitude, 10 - exponent);
    const double whole = rndMode == zorRndZero ? std::trunc(units) : std::nearbyint(units);
    const double code = whole + (exponent + 14) * 1024.0;
    return static_cast<Zor16f>(
        sign | static_cast<std::uint32_t>(std::min(code, rndMode == zorRndZero ? 31743.0 : 31744.0)));
}

// Every half, what lies between it and the next one, and the neighbours of all these; what is not a number.
std::vector<Zor32f> aroundHalves()
{
    std::vector<Zor32f> all{0x1p-149f, 0x1p-126f, 3e38f, 65519.996f, 65520, 65535.996f, 65536, INFINITY};
    const auto add = [&](std::uint32_t bits) { all.push_back(std::bit_cast<Zor32f>(bits)); };
    for (const std::uint32_t bits : {0x7f800001u, 0x7fc00000u, 0x7fffffffu, 0x7f80a000u}) add(bits);
    for (Zor16f h = 0; isFinite(h); ++h) {
        const Zor32f v = fromHalf(h), next = isFinite(h + 1) ? fromHalf(h + 1) : 65536;
        const auto bits = std::bit_cast<std::uint32_t>(v),
                   between = std::bit_cast<std::uint32_t>(v + (next - v) / 2);
        for (const std::uint32_t b : {bits, bits + 1, between - 1, between, between + 1}) add(b);
    }
    const std::size_t count = all.size();
    for (std::size_t i = 0; i < count; ++i) all.push_back(-all[i]);
    return all;
}

TEST(Half, ToFloat)
{
    expectAll<Zor16f, Zor32f>(everyValue<Zor16f>(), zorsConvert_16f32f, fromHalf);
}

TEST(Half, FromFloatAndInteger)
{
    for (const ZorRoundMode mode : modes) {
        const auto half = [=](auto v) { return toHalf(v, mode); };
        expectAll<Zor32f, Zor16f>(aroundHalves(), with(zorsConvert_32f16f, mode), half);
        expectAll<Zor16s, Zor16f>(everyValue<Zor16s>(), with(zorsConvert_16s16f, mode), half);
    }
}

TEST(Half, ToInteger)
{
    for (const ZorRoundMode mode : modes)
        for (const int scaleFactor : {0, 1, -1, 5, 16, -24, -39, 121, -121, INT_MIN, INT_MAX}) {
            SCOPED_TRACE(scaleFactor);
            const auto integer = [=](Zor16f h) {
                const double exact = std::ldexp(fromHalf(h), -std::clamp(scaleFactor, -1000, 1000));
                const double whole = mode == zorRndZero ? std::trunc(exact) : std::nearbyint(exact);
                return static_cast<Zor16s>(std::isnan(exact) ? 0 : std::clamp(whole, -32768.0, 32767.0));
            };
            expectAll<Zor16f, Zor16s>(everyValue<Zor16f>(), with(zorsConvert_16f16s_Sfs, mode, scaleFactor),
                                      integer, scaleFactor == 1 ? Lengths::smallAndLong : Lengths::small);
        }
}

TEST(Half, HasTwoRoundingModes)
{
    const Zor32f one = 1;
    const Zor16s two = 2;
    const Zor16f three = 0x4200;
    Zor16f half = 7;
    Zor16s word = 8;
    for (const ZorRoundMode mode : {ZorRoundMode{zorRndFinancial}, ZorRoundMode{3}, ZorRoundMode{INT_MIN}}) {
        EXPECT_EQ(zorsConvert_32f16f(&one, &half, 1, mode), zorStsBadRoundMode);
        EXPECT_EQ(zorsConvert_16s16f(&two, &half, 1, mode), zorStsBadRoundMode);
        EXPECT_EQ(zorsConvert_16f16s_Sfs(&three, &word, 1, mode, 0), zorStsBadRoundMode);
    }
    EXPECT_EQ(half, 7);
    EXPECT_EQ(word, 8);
}

} // namespace
