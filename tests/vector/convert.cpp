// Conversions that widen, and integers to floats.
#include "support/oracle.h"

#include <zors.h>

#include <climits>
#include <cmath>

namespace {

using namespace zors::test;

template <class S, class D>
using Conversion = ZorStatus (*)(const S*, D*, int);

constexpr auto cast = []<class S, class D>(Conversion<S, D>) {
    return [](S v) { return static_cast<D>(v); };
};

template <class... S, class... D>
void expectCasts(Conversion<S, D>... function)
{
    for (const unsigned control : controls)
        (expectSame<S, D>(under(control, function), elementwise(cast(function)), {},
                          control == standardControl ? Lengths::smallAndLong : Lengths::small),
         ...);
}

TEST(Widening, IntegersKeepTheirValues)
{
    expectCasts(zorsConvert_8s16s, zorsConvert_16s32s, zorsConvert_8s32f, zorsConvert_8u32f,
                zorsConvert_16s32f, zorsConvert_16u32f, zorsConvert_32s64f);
}

// Random bits are denormal, infinite and not a number often enough.
TEST(Rounding, ToTheNearestFloat)
{
    expectCasts(zorsConvert_32s32f, zorsConvert_64s64f, zorsConvert_32f64f, zorsConvert_64f32f);
}

// The cases that random bits do not meet: ties, the ends of the denormal and of the finite range.
TEST(Rounding, TiesOfDoubles)
{
    std::vector<Zor64f> src;
    for (const Zor64f v : {1.0, 0x1p-126, 0x1p-149, 0x1p-150, 0x1.8p-149, 0x1.fffffep127, 0x1.ffffffp127})
        for (const Zor64f ulps : {0.0, 0x1p-24, 0x1p-23, 0x1.8p-23, 0x1p-52, -0x1p-53, 0x1.000001p-24})
            src.insert(src.end(), {v * (1 + ulps), -v * (1 + ulps)});
    expectValues<Zor32f>(src, zorsConvert_64f32f, elementwise(cast(zorsConvert_64f32f)));
}

template <class S, class D>
void expectFrom24(Conversion<Zor8u, D> function)
{
    expectSame<Zor8u, D>(function,
                         [](const Zor8u* pSrc, D* pDst, int len) {
                             for (int n = 0; n < len; ++n) {
                                 S wide = 0;
                                 std::memcpy(reinterpret_cast<char*>(&wide) + 1, pSrc + 3 * n, 3);
                                 pDst[n] = static_cast<D>(wide >> 8);
                             }
                         },
                         {3, 1});
}

TEST(Widening, PackedIntegers)
{
    expectFrom24<Zor32s>(zorsConvert_24s32s);
    expectFrom24<Zor32u>(zorsConvert_24u32u);
    expectFrom24<Zor32s>(zorsConvert_24s32f);
    expectFrom24<Zor32u>(zorsConvert_24u32f);
}

constexpr int scaleFactors[] = {0,    1,    -1,   7,    16,    31,    100,   -96,     -97,     -112,
                                -113, -127, -128, 120,  121,   125,   126,   127,     128,     133,
                                149,  150,  157,  158,  179,   180,   181,   -120,    -121,    240,
                                241,  -240, 1000, -993, -1000, -1001, -1024, 1001,    1022,    1023,
                                1074, 1075, 1090, 1105, 1106,  2001,  -2001, INT_MAX, INT_MIN, INT_MIN + 1};

// A double holds every scaled integer but those that round as denormal, which it rounds once.
template <class S, class D>
void expectScales(ZorStatus (*function)(const S*, D*, int, int), const std::vector<S>& src)
{
    const auto scaled = [](int scaleFactor) {
        const int exponent = -std::clamp(scaleFactor, -3000, 3000);
        return elementwise([=](S v) { return static_cast<D>(std::ldexp(static_cast<double>(v), exponent)); });
    };
    for (const int scaleFactor : scaleFactors) {
        SCOPED_TRACE(scaleFactor);
        expectValues<D>(src, with(function, scaleFactor), scaled(scaleFactor));
    }
    for (const int scaleFactor : {3, 150}) // 150: by way of doubles
        expectSame<S, D>(with(function, scaleFactor), scaled(scaleFactor));
}

TEST(Scaling, IntegersToFloatsWithOneRounding)
{
    expectScales(zorsConvert_16s32f_Sfs, everyValue<Zor16s>());
    expectScales(zorsConvert_16s64f_Sfs, everyValue<Zor16s>());

    std::vector<Zor32s> all{INT_MIN, INT_MIN + 1, INT_MAX, INT_MAX - 1, 0};
    for (int bit = 0; bit < 31; ++bit)
        for (int more : {-3, -2, -1, 0, 1, 2, 3})
            all.insert(all.end(), {(1 << bit) + more, -(1 << bit) - more});
    // Ties of a float, and of a float that was a tie of 32 bits before.
    for (int low : {0x7f, 0x80, 0x81, 0x17f, 0x180, 0x181, 0x3f, 0x40, 0x41})
        for (int high : {0x40000000, 0x7fffff00, 0x55555400})
            all.insert(all.end(), {high - 256 + low, 256 - low - high});
    Random random;
    for (int i = 0; i < 1000; ++i) all.push_back(static_cast<Zor32s>(random()));
    expectScales(zorsConvert_32s32f_Sfs, all);
    expectScales(zorsConvert_32s64f_Sfs, all);
}

} // namespace
