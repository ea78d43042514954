#include "support/oracle.h"

#include <zors.h>

#include <algorithm>
#include <cfenv>
#include <cfloat>
#include <climits>
#include <cmath>
#include <numeric>
#include <xmmintrin.h>

namespace {

using namespace zors::test;

// Every element here has 24 significant bits at the most, so that a double holds it scaled without rounding.
double scaled(double value, int scaleFactor)
{
    return std::ldexp(value, -std::clamp(scaleFactor, -700, 700));
}

std::vector<int> scaleFactors(int first, int last)
{
    std::vector<int> all(static_cast<std::size_t>(last - first + 1));
    std::iota(all.begin(), all.end(), first);
    all.insert(all.end(), {INT_MIN, INT_MIN + 1, -1025, -221, -220, 219, 220, 221, 1025, INT_MAX});
    return all;
}

TEST(IntegerToFloat, ScalesWithOneRounding)
{
    std::vector<Zor16s> src(65536);
    std::iota(src.begin(), src.end(), std::numeric_limits<Zor16s>::min());
    std::vector<Zor32f> got(src.size()), want(src.size());
    for (const int scaleFactor : scaleFactors(-130, 170)) {
        ASSERT_EQ(zorsConvert_16s32f_Sfs(src.data(), got.data(), 65536, scaleFactor), zorStsOk);
        std::transform(src.begin(), src.end(), want.begin(),
                       [=](Zor16s v) { return static_cast<Zor32f>(scaled(v, scaleFactor)); });
        ASSERT_EQ(std::memcmp(got.data(), want.data(), got.size() * sizeof got[0]), 0) << scaleFactor;
    }
}

TEST(IntegerToFloat, EveryLengthAndOffset)
{
    expectSame<Zor16s, Zor32f>(
        [](auto* pSrc, auto* pDst, int len) { return zorsConvert_16s32f_Sfs(pSrc, pDst, len, 3); },
        [](auto* pSrc, auto* pDst, int len) {
            for (int n = 0; n < len; ++n) pDst[n] = static_cast<Zor32f>(pSrc[n]) / 8;
        });
}

Zor16s to16s(Zor32f value, ZorRoundMode rndMode, int scaleFactor)
{
    const double exact = scaled(value, scaleFactor);
    if (std::isnan(exact)) return 0;
    const double whole = rndMode == zorRndZero   ? std::trunc(exact)
                         : rndMode == zorRndNear ? std::nearbyint(exact)
                                                 : std::round(exact);
    return static_cast<Zor16s>(std::clamp(whole, -32768.0, 32767.0));
}

// Values on, beside and far from every kind of boundary, with either sign.
std::vector<Zor32f> awkwardFloats()
{
    std::vector<Zor32f> all;
    const auto around = [&](Zor32f v) {
        for (const Zor32f w : {v, std::nextafter(v, 0.0f), std::nextafter(v, INFINITY)})
            all.insert(all.end(), {w, -w});
    };
    for (const Zor32f v :
         {0.0f, 0.5f, 1.0f, 1.5f, 2.5f, 3.5f, 32766.5f, 32767.0f, 32767.5f, 32768.0f, 32768.5f, 32769.0f,
          40000.0f, 8388608.0f, 2147483648.0f, 4294967296.0f, FLT_MIN, FLT_MAX})
        around(v);
    all.insert(all.end(), {FLT_TRUE_MIN, -FLT_TRUE_MIN, INFINITY, -INFINITY, NAN, -NAN});
    Random random;
    std::uniform_real_distribution<Zor32f> number(-40000, 40000);
    for (int i = 0; i < 300; ++i)
        all.push_back(std::round(2 * number(random)) / 2), all.push_back(number(random));
    return all;
}

constexpr ZorRoundMode modes[] = {zorRndZero, zorRndNear, zorRndFinancial, 7, -1};

TEST(FloatToInteger, RoundsAsAskedWhateverTheRoundingControl)
{
    constexpr unsigned control = 0xffc0; // all of the register but the exception flags
    const std::vector<Zor32f> src = awkwardFloats();
    const int len = static_cast<int>(src.size());
    std::vector<Zor16s> got(src.size()), want(src.size());
    for (const ZorRoundMode mode : modes)
        for (const int scaleFactor : scaleFactors(-170, 150)) {
            std::transform(src.begin(), src.end(), want.begin(),
                           [=](Zor32f v) { return to16s(v, mode, scaleFactor); });
            for (const int direction : {FE_TONEAREST, FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO}) {
                std::fesetround(direction);
                const unsigned before = _mm_getcsr() & control;
                const ZorStatus status =
                    zorsConvert_32f16s_Sfs(src.data(), got.data(), len, mode, scaleFactor);
                const unsigned after = _mm_getcsr() & control;
                std::fesetround(FE_TONEAREST);
                ASSERT_EQ(status, zorStsOk);
                ASSERT_EQ(before, after);
                const auto at = std::mismatch(got.begin(), got.end(), want.begin());
                ASSERT_TRUE(at.first == got.end())
                    << src[static_cast<std::size_t>(at.first - got.begin())] << " gives " << *at.first
                    << ", not " << *at.second << ": mode " << mode << ", scale factor " << scaleFactor
                    << ", direction " << direction;
            }
        }
}

TEST(FloatToInteger, EveryLengthAndOffset)
{
    for (const ZorRoundMode mode : modes)
        expectSame<Zor32f, Zor16s>([=](auto* pSrc, auto* pDst,
                                       int len) { return zorsConvert_32f16s_Sfs(pSrc, pDst, len, mode, -1); },
                                   [=](auto* pSrc, auto* pDst, int len) {
                                       for (int n = 0; n < len; ++n) pDst[n] = to16s(pSrc[n], mode, -1);
                                   },
                                   {}, Lengths::small);
}

TEST(FloatToInteger, ValuesOfTheDefinition)
{
    const auto convert = [](Zor32f value, ZorRoundMode mode, int scaleFactor) {
        Zor16s result = 99;
        EXPECT_EQ(zorsConvert_32f16s_Sfs(&value, &result, 1, mode, scaleFactor), zorStsOk);
        return result;
    };
    EXPECT_EQ(convert(2.5f, zorRndZero, 0), 2);
    EXPECT_EQ(convert(2.5f, zorRndNear, 0), 2);
    EXPECT_EQ(convert(2.5f, zorRndFinancial, 0), 3);
    EXPECT_EQ(convert(-2.5f, zorRndZero, 0), -2);
    EXPECT_EQ(convert(-2.5f, zorRndNear, 0), -2);
    EXPECT_EQ(convert(-2.5f, zorRndFinancial, 0), -3);
    EXPECT_EQ(convert(1.5f, zorRndZero, 1), 0);
    EXPECT_EQ(convert(1.5f, zorRndNear, 1), 1);
    EXPECT_EQ(convert(1.5f, zorRndFinancial, 1), 1);
    for (const ZorRoundMode mode : modes) EXPECT_EQ(convert(40000, mode, 0), 32767);
}

} // namespace
