#include "support/oracle.h"

#include <zors.h>

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <limits>

namespace {

using namespace zors::test;

template <class T>
using Generator = ZorStatus (*)(T*, int, Zor32f, Zor32f);

template <class T>
T elementOf(Zor32f value)
{
    if constexpr (std::is_floating_point_v<T>) return value;
    if (std::isnan(value)) return 0;
    const double wide = value, rounded = std::trunc(wide > 0 ? wide + 0.5 : wide - 0.5);
    return static_cast<T>(
        std::clamp<double>(rounded, std::numeric_limits<T>::min(), std::numeric_limits<T>::max()));
}

struct Straight {
    Zor32f offset, slope;
};

template <class T>
void expectLine(Generator<T> function, Straight line, Lengths lengths = Lengths::small)
{
    SCOPED_TRACE(testing::Message() << "offset " << line.offset << ", slope " << line.slope);
    expectSame<T, T>([=](auto*, T* pDst, int len) { return function(pDst, len, line.offset, line.slope); },
                     [=](auto*, T* pDst, int len) {
                         for (int n = 0; n < len; ++n)
                             pDst[n] = elementOf<T>(static_cast<Zor32f>(n) * line.slope + line.offset);
                     },
                     {}, lengths);
}

// Half-way values, and the last ones before them; through, along and just inside each type's range; beyond single
// precision.
constexpr Zor32f infinity = std::numeric_limits<Zor32f>::infinity();
constexpr Straight lines[] = {{0.5f, 0},           {-0.5f, 0},
                              {0, 0.5f},           {100.5f, -1},
                              {0.49999997f, 0},    {-0.49999997f, 1},
                              {8388607.5f, -0.5f}, {-300.25f, 2.3f},
                              {300, -2.3f},        {-40000, 300},
                              {70000, -500},       {-3e9f, 5e7f},
                              {6e9f, -7e7f},       {127, -1e-6f},
                              {254.5f, 0.004f},    {32767.5f, -0.004f},
                              {65535, 0.004f},     {2147483520, 64},
                              {4294967040, 64},    {40000, 0},
                              {-5e9f, 0},          {-0.0f, 0},
                              {-0.0f, -0.0f},      {0, 1e-40f},
                              {FLT_MAX, FLT_MAX},  {-FLT_MAX, FLT_MAX / 100},
                              {infinity, 0},       {infinity, -1},
                              {-infinity, 1},      {0, infinity},
                              {0, -infinity},      {1, NAN}};

// Numbers on and beside every bound and every kind of tie, of either sign, and random bits.
std::vector<Zor32f> offsets()
{
    std::vector<Zor32f> all;
    for (const Zor32f bound :
         {0.0f,       0.5f,        1.5f,          2.5f,          126.5f,   127.5f,   128.5f,     254.5f,
          255.5f,     32766.5f,    32767.5f,      32768.5f,      65534.5f, 65535.5f, 4194304.5f, 8388607.5f,
          8388609.0f, 16777215.0f, 2147483648.0f, 4294967296.0f, 9e18f,    2e19f})
        for (const Zor32f v : {bound, std::nextafter(bound, -1.0f), std::nextafter(bound, infinity)})
            all.insert(all.end(), {v, -v});
    Random random;
    const RandomVector<Zor32f> bits(20000, 0, random);
    all.insert(all.end(), bits.data(), bits.data() + 20000);
    return all;
}

template <class T>
void expectLines(Generator<T> ramp, Generator<T> slope)
{
    for (const auto function : {ramp, slope}) {
        for (const Straight line : lines) expectLine(function, line);
        Random random;
        std::uniform_real_distribution<float> exponent(-8, 33), sign(-1, 1);
        for (int i = 0; i < 20; ++i) {
            const float offset = std::copysign(std::exp2(exponent(random)), sign(random));
            expectLine(function, {offset, std::copysign(std::exp2(exponent(random) - 7), sign(random))});
        }
        for (const Zor32f offset : offsets()) {
            T got;
            ASSERT_EQ(function(&got, 1, offset, 0), zorStsOk);
            compared(1);
            ASSERT_TRUE(same(got, elementOf<T>(0 + offset))) << offset << " gave " << +got;
        }
    }
    expectLine(ramp, {-100, 0.01f}, Lengths::smallAndLong);
    expectLine(slope, {100, 0}, Lengths::smallAndLong);
    expectLine(slope, {-1000, 0.01f}, Lengths::smallAndLong);
}

TEST(Line, RoundsHalfAwayAndSaturates)
{
    expectLines(zorsVectorRamp_8u, zorsVectorSlope_8u);
    expectLines(zorsVectorRamp_8s, zorsVectorSlope_8s);
    expectLines(zorsVectorRamp_16u, zorsVectorSlope_16u);
    expectLines(zorsVectorRamp_16s, zorsVectorSlope_16s);
    expectLines(zorsVectorRamp_32u, zorsVectorSlope_32u);
    expectLines(zorsVectorRamp_32s, zorsVectorSlope_32s);
}

TEST(Line, StoresFloatsAsTheyAre)
{
    expectLines(zorsVectorRamp_32f, zorsVectorSlope_32f);
    expectLines(zorsVectorRamp_64f, zorsVectorSlope_64f);
}

// From 2^24 on the index itself is rounded.
TEST(Line, IndexesBeyondSinglePrecision)
{
    constexpr int len = (1 << 24) + 1027;
    std::vector<Zor32s> dst(len);
    for (const auto function : {zorsVectorRamp_32s, zorsVectorSlope_32s}) {
        ASSERT_EQ(function(dst.data(), len, -1e7f, 200), zorStsOk);
        for (int n = 0; n < len; ++n)
            ASSERT_EQ(dst[static_cast<std::size_t>(n)],
                      elementOf<Zor32s>(static_cast<Zor32f>(n) * 200 + -1e7f))
                << n;
    }
}

} // namespace
