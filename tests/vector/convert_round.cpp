// Floats to integers.
#include "support/control.h"
#include "support/integers.h"
#include "support/oracle.h"

#include <zors.h>

#include <algorithm>
#include <cfloat>
#include <climits>
#include <cmath>

namespace {

using namespace zors::test;

template <class S, class D>
using Conversion = ZorStatus (*)(const S*, D*, int, ZorRoundMode, int);

constexpr ZorRoundMode modes[] = {zorRndZero, zorRndNear, zorRndFinancial, 7, -1};

// A double holds every scaled value to which rounding can matter.
std::int64_t rounded(double value, ZorRoundMode rndMode, int scaleFactor, Range range)
{
    const double exact = std::ldexp(value, -std::clamp(scaleFactor, -3000, 3000));
    if (std::isnan(exact)) return 0;
    const double whole = rndMode == zorRndZero   ? std::trunc(exact)
                         : rndMode == zorRndNear ? std::nearbyint(exact)
                                                 : std::round(exact);
    if (whole >= static_cast<double>(range.most)) return range.most;
    return whole <= static_cast<double>(range.least) ? range.least : static_cast<std::int64_t>(whole);
}

// Values on and beside every kind of boundary, with either sign.
template <class S>
std::vector<S> awkward(Range range)
{
    std::vector<S> all{INFINITY,
                       NAN,
                       std::numeric_limits<S>::max(),
                       std::numeric_limits<S>::min(),
                       std::numeric_limits<S>::denorm_min(),
                       std::numeric_limits<S>::epsilon()};
    for (const double around :
         {0.0, 2.0, static_cast<double>(range.most), static_cast<double>(range.least), 0x1p22, 0x1p23, 0x1p24,
          0x1p31, 0x1p32, 0x1p51, 0x1p52, 0x1p53, 0x1p63, 0x1p64})
        for (const double more : {-1.5, -1.0, -0.5, 0.0, 0.5, 1.0, 1.5}) {
            const S v = static_cast<S>(around + more);
            all.insert(all.end(), {v, std::nextafter(v, S{0}), std::nextafter(v, S{INFINITY})});
        }
    Random random;
    std::uniform_real_distribution<S> number(static_cast<S>(range.least), static_cast<S>(range.most));
    for (int i = 0; i < 100; ++i)
        all.insert(all.end(), {std::round(number(random)) + S{0.5}, number(random)});
    const std::size_t count = all.size();
    for (std::size_t i = 0; i < count; ++i) all.push_back(-all[i]);
    return all;
}

template <class S, class D>
void expectRounds(Conversion<S, D> function, Range range)
{
    SCOPED_TRACE(__PRETTY_FUNCTION__);
    const std::vector<S> values = awkward<S>(range);
    const int len = static_cast<int>(values.size()), parts = range.parts<D>();
    std::vector<D> got(values.size() * static_cast<std::size_t>(parts)), want = got;
    for (const int scaleFactor : {0,    1,     -1,   5,     -7,    15,   24,    -31,     63,     100,  120,
                                  121,  -120,  -121, -149,  150,   240,  241,   -240,    -241,   -999, 1000,
                                  1001, -1001, 1030, -1074, -1100, 2001, -2001, INT_MIN, INT_MAX}) {
        // At the boundaries after the scaling, as far as the type has such values.
        std::vector<S> scaledUp = values;
        for (S& v : scaledUp) v = std::ldexp(v, std::clamp(scaleFactor, -3000, 3000));
        for (const std::vector<S>& all : {values, scaledUp})
            for (const ZorRoundMode mode : modes) {
                for (int n = 0; n < len; ++n)
                    range.store(rounded(all[static_cast<std::size_t>(n)], mode, scaleFactor, range),
                                want.data(), n);
                for (const unsigned control : controls) {
                    ZorStatus status = zorStsOk;
                    underControl(control,
                                 [&] { status = function(all.data(), got.data(), len, mode, scaleFactor); });
                    ASSERT_EQ(status, zorStsOk);
                    compared(len);
                    const auto at = std::mismatch(got.begin(), got.end(), want.begin()).first - got.begin();
                    ASSERT_EQ(at, static_cast<std::ptrdiff_t>(got.size()))
                        << all[static_cast<std::size_t>(at / parts)] << ", mode " << mode << ", scale factor "
                        << scaleFactor << ", control " << std::hex << control;
                }
            }
    }
    for (const ZorRoundMode mode : modes)
        expectSame<S, D>([=](auto* pSrc, auto* pDst, int n) { return function(pSrc, pDst, n, mode, -1); },
                         [=](auto* pSrc, auto* pDst, int n) {
                             for (int i = 0; i < n; ++i)
                                 range.store(rounded(pSrc[i], mode, -1, range), pDst, i);
                         },
                         {1, parts}, mode == zorRndNear ? Lengths::smallAndLong : Lengths::small);
}

TEST(FloatToInteger, Bytes)
{
    expectRounds(zorsConvert_32f8s_Sfs, rangeOf<Zor8s>);
    expectRounds(zorsConvert_32f8u_Sfs, rangeOf<Zor8u>);
}

TEST(FloatToInteger, Words)
{
    expectRounds(zorsConvert_32f16s_Sfs, rangeOf<Zor16s>);
    expectRounds(zorsConvert_32f16u_Sfs, rangeOf<Zor16u>);
    expectRounds(zorsConvert_64f16s_Sfs, rangeOf<Zor16s>);
}

TEST(FloatToInteger, Packed)
{
    expectRounds(zorsConvert_32f24s_Sfs, range24s);
    expectRounds(zorsConvert_32f24u_Sfs, range24u);
}

TEST(FloatToInteger, DoubleWords)
{
    expectRounds(zorsConvert_32f32s_Sfs, rangeOf<Zor32s>);
    expectRounds(zorsConvert_64f32s_Sfs, rangeOf<Zor32s>);
}

TEST(FloatToInteger, QuadWords)
{
    expectRounds(zorsConvert_64f64s_Sfs, rangeOf<Zor64s>);
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
