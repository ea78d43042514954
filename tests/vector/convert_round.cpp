// Floats to integers.
#include "support/integers.h"
#include "support/oracle.h"

#include <zors.h>

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
    using Limits = std::numeric_limits<S>;
    std::vector<S> all{INFINITY, NAN, Limits::max(), Limits::min(), Limits::denorm_min(), Limits::epsilon()};
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
    const std::vector<S> values = awkward<S>(range);
    const int parts = range.parts<D>();
    const auto oracle = [=](ZorRoundMode mode, int scaleFactor) {
        return stored(range, [=](S v) { return rounded(v, mode, scaleFactor, range); });
    };
    for (const int scaleFactor : {0,    1,     -1,   5,     -7,    15,   24,    -31,     63,     100,  120,
                                  121,  -120,  -121, -149,  150,   240,  241,   -240,    -241,   -999, 1000,
                                  1001, -1001, 1030, -1074, -1100, 2001, -2001, INT_MIN, INT_MAX}) {
        // At the boundaries after the scaling, as far as the type has such values.
        std::vector<S> scaledUp = values;
        for (S& v : scaledUp) v = std::ldexp(v, std::clamp(scaleFactor, -3000, 3000));
        for (const ZorRoundMode mode : modes) {
            SCOPED_TRACE(testing::Message() << "mode " << mode << ", scale factor " << scaleFactor);
            for (const std::vector<S>& all : {values, scaledUp})
                expectValues<D>(all, with(function, mode, scaleFactor), oracle(mode, scaleFactor), parts);
        }
    }
    for (const ZorRoundMode mode : modes)
        expectSame<S, D>(with(function, mode, -1), oracle(mode, -1), {1, parts},
                         mode == zorRndNear ? Lengths::smallAndLong : Lengths::small);
}

TEST(FloatToInteger, RoundsAndSaturates)
{
    expectRounds(zorsConvert_32f8s_Sfs, rangeOf<Zor8s>);
    expectRounds(zorsConvert_32f8u_Sfs, rangeOf<Zor8u>);
    expectRounds(zorsConvert_32f16s_Sfs, rangeOf<Zor16s>);
    expectRounds(zorsConvert_32f16u_Sfs, rangeOf<Zor16u>);
    expectRounds(zorsConvert_64f16s_Sfs, rangeOf<Zor16s>);
    expectRounds(zorsConvert_32f24s_Sfs, range24s);
    expectRounds(zorsConvert_32f24u_Sfs, range24u);
    expectRounds(zorsConvert_32f32s_Sfs, rangeOf<Zor32s>);
    expectRounds(zorsConvert_64f32s_Sfs, rangeOf<Zor32s>);
    expectRounds(zorsConvert_64f64s_Sfs, rangeOf<Zor64s>);
}

TEST(FloatToInteger, ValuesOfTheDefinition)
{
    const auto convert = [](Zor32f value, ZorRoundMode mode, int scaleFactor) {
        Zor16s result = 99;
        EXPECT_EQ(zorsConvert_32f16s_Sfs(&value, &result, 1, mode, scaleFactor), zorStsOk);
        return result;
    };
    for (const Zor32f sign : {1.0f, -1.0f}) {
        EXPECT_EQ(convert(sign * 2.5f, zorRndZero, 0), sign * 2);
        EXPECT_EQ(convert(sign * 2.5f, zorRndNear, 0), sign * 2);
        EXPECT_EQ(convert(sign * 2.5f, zorRndFinancial, 0), sign * 3);
        EXPECT_EQ(convert(sign * 1.5f, zorRndZero, 1), 0);
        EXPECT_EQ(convert(sign * 1.5f, zorRndNear, 1), sign);
    }
    for (const ZorRoundMode mode : modes) EXPECT_EQ(convert(40000, mode, 0), 32767);
}

} // namespace
