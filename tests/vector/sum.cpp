#include "reduction.h"

#include <cmath>

namespace zors::test {
namespace {

template <class R, class T>
R scaledSum(ZorStatus (*f)(const T*, int, R*, int), const T* p, int len, int scaleFactor)
{
    R result{};
    EXPECT_EQ(f(p, len, &result, scaleFactor), zorStsOk);
    return result;
}

// The rule of the real 16-bit sums, spelt out in double precision: the factor's biased exponent is limited, and the
// limits of the product are taken from above first.
Zor32s sum32ByDoubles(Zor64s sum, int scaleFactor)
{
    const Zor64s exponent = std::clamp<Zor64s>(Zor64s{1023} - scaleFactor, 0, 2047);
    const double factor = exponent == 0      ? 0
                          : exponent == 2047 ? HUGE_VAL
                                             : std::ldexp(1, static_cast<int>(exponent - 1023));
    double product = static_cast<double>(sum) * factor;
    product = product > 2147483647.0 ? 2147483647.0 : product;
    product = product > -2147483648.0 ? product : -2147483648.0;
    return static_cast<Zor32s>(std::nearbyint(product));
}

Zor16s mean16ByDoubles(Zor64s sum, int len, int scaleFactor)
{
    const Zor64s exponent = std::clamp<Zor64s>(Zor64s{1023} - scaleFactor, 0, 2047);
    const double factor = exponent == 0      ? 0
                          : exponent == 2047 ? HUGE_VAL
                                             : std::ldexp(1, static_cast<int>(exponent - 1023));
    const double product = static_cast<double>(sum) / len * factor;
    if (std::isnan(product)) return 0; // the low half of the conversion of what is not a number
    return static_cast<Zor16s>(std::nearbyint(std::clamp(product, -32768.0, 32767.0)));
}

Zor16s saturated16(Zor32s v)
{
    return static_cast<Zor16s>(std::clamp(v, -32768, 32767));
}

TEST(IntegerSum, Of16Bits)
{
    const auto v = integers<Zor16s>(longest);
    eachLength([&](std::size_t place, int len) {
        const Zor16s* p = v.data() + place;
        Zor64s sum = 0;
        for (int i = 0; i < len; ++i) sum += p[i];
        for (const int s : scaleFactors) {
            const Zor32s expected = sum32ByDoubles(sum, s);
            ASSERT_EQ(scaledSum(zorsSum_16s32s_Sfs, p, len, s), expected) << len << " scale " << s;
            ASSERT_EQ(scaledSum(zorsSum_16s_Sfs, p, len, s), saturated16(expected)) << len << " scale " << s;
            ASSERT_EQ(scaledSum(zorsMean_16s_Sfs, p, len, s), mean16ByDoubles(sum, len, s))
                << len << " scale " << s;
        }
    });
}

TEST(IntegerSum, Of16BitPairs)
{
    const auto v = integers<Zor16s>(2 * longest);
    eachLength([&](std::size_t place, int len) {
        const auto* p = reinterpret_cast<const Zor16sc*>(v.data() + place); // also between two pairs' places
        Wide re = 0, im = 0;
        for (int i = 0; i < len; ++i) re += p[i].re, im += p[i].im;
        for (const int s : scaleFactors) {
            const Zor32sc wide = scaledSum(zorsSum_16sc32sc_Sfs, p, len, s);
            ASSERT_EQ(wide.re, scaledFraction<Zor32s>(re, 1, s)) << len << " scale " << s;
            ASSERT_EQ(wide.im, scaledFraction<Zor32s>(im, 1, s)) << len << " scale " << s;
            const Zor16sc sum = scaledSum(zorsSum_16sc_Sfs, p, len, s),
                          mean = scaledSum(zorsMean_16sc_Sfs, p, len, s);
            ASSERT_EQ(sum.re, saturated16(wide.re));
            ASSERT_EQ(sum.im, saturated16(wide.im));
            ASSERT_EQ(mean.re, scaledFraction<Zor16s>(re, len, s)) << len << " scale " << s;
            ASSERT_EQ(mean.im, scaledFraction<Zor16s>(im, len, s)) << len << " scale " << s;
        }
    });
}

TEST(IntegerSum, Of32Bits)
{
    const auto v = integers<Zor32s>(longest);
    eachLength([&](std::size_t place, int len) {
        const Zor32s* p = v.data() + place;
        Wide sum = 0;
        for (int i = 0; i < len; ++i) sum += p[i];
        for (const int s : scaleFactors) {
            ASSERT_EQ(scaledSum(zorsSum_32s_Sfs, p, len, s), scaledFraction<Zor32s>(sum, 1, s))
                << len << " " << s;
            ASSERT_EQ(scaledSum(zorsMean_32s_Sfs, p, len, s), scaledFraction<Zor32s>(sum, len, s))
                << len << " " << s;
        }
    });
}

// The ends of the types fill every accumulator as far as it goes.
TEST(IntegerSum, OfTheEndsOfTheTypes)
{
    constexpr int len = 1 << 21;
    for (const bool low : {true, false}) {
        const Zor16s end16 = low ? -32768 : 32767;
        const Zor32s end32 = low ? INT_MIN : INT_MAX;
        const std::vector<Zor16s> v16(2 * len, end16);
        const std::vector<Zor32s> v32(len, end32);
        EXPECT_EQ(scaledSum(zorsSum_16s32s_Sfs, v16.data(), 2 * len, 22), end16);
        EXPECT_EQ(scaledSum(zorsMean_16s_Sfs, v16.data(), 2 * len, 0), end16);
        EXPECT_EQ(scaledSum(zorsSum_32s_Sfs, v32.data(), len, 21), end32);
        EXPECT_EQ(scaledSum(zorsMean_32s_Sfs, v32.data(), len, 0), end32);
        const Zor32sc sum =
            scaledSum(zorsSum_16sc32sc_Sfs, reinterpret_cast<const Zor16sc*>(v16.data()), len, 21);
        EXPECT_TRUE(sum.re == end16 && sum.im == end16);
    }
}

TEST(IntegerSum, RoundsToEvenAndSaturates)
{
    const Zor16s big[] = {32767, 32767}, three[] = {1, 2}, five[] = {1, 4}, zero[] = {7, -7},
                 minus[] = {-1, 0};
    inEveryRoundingMode([&] {
        EXPECT_EQ(scaledSum(zorsSum_16s_Sfs, big, 2, 0), 32767);
        EXPECT_EQ(scaledSum(zorsSum_16s_Sfs, big, 2, 1), 32767);
        EXPECT_EQ(scaledSum(zorsSum_16s_Sfs, three, 2, 1), 2);
        EXPECT_EQ(scaledSum(zorsSum_16s_Sfs, five, 2, 1), 2);
        EXPECT_EQ(scaledSum(zorsMean_16s_Sfs, three, 2, 0), 2);
        EXPECT_EQ(scaledSum(zorsMean_16s_Sfs, five, 2, 0), 2);
        EXPECT_EQ(scaledSum(zorsMean_16s_Sfs, minus, 2, 0), 0);
        const Zor32s thirds[] = {INT_MAX, INT_MAX, INT_MAX - 2};
        EXPECT_EQ(scaledSum(zorsMean_32s_Sfs, thirds, 3, 0), INT_MAX - 1);
    });
    for (const int s : {2000, INT_MAX}) {
        EXPECT_EQ(scaledSum(zorsSum_16s32s_Sfs, big, 2, s), 0);
        EXPECT_EQ(scaledSum(zorsMean_16s_Sfs, big, 2, s), 0);
    }
    for (const int s : {-2000, INT_MIN}) {
        EXPECT_EQ(scaledSum(zorsSum_16s32s_Sfs, big, 2, s), INT_MAX);
        EXPECT_EQ(scaledSum(zorsSum_16s32s_Sfs, minus, 2, s), INT_MIN);
        EXPECT_EQ(scaledSum(zorsMean_16s_Sfs, minus, 2, s), -32768);
    }
    for (const int s : {-1024, -2000, INT_MIN}) {
        EXPECT_EQ(scaledSum(zorsSum_16s32s_Sfs, zero, 2, s), INT_MIN);
        EXPECT_EQ(scaledSum(zorsSum_16s_Sfs, zero, 2, s), -32768);
        EXPECT_EQ(scaledSum(zorsMean_16s_Sfs, zero, 2, s), 0);
        EXPECT_EQ(scaledSum(zorsSum_16sc32sc_Sfs, reinterpret_cast<const Zor16sc*>(minus), 1, s).im, 0);
    }
    EXPECT_EQ(scaledSum(zorsSum_16s32s_Sfs, zero, 2, -1023), 0);
}

// The pattern that the documentation promises, in plain arithmetic: element n in lane n mod L, the lanes joined by
// halves; with a block, sums of blocks in Lane precision added in double.
template <class Lane, class T>
double patternSum(const T* p, int len, int stride, int L, int block)
{
    double total = 0;
    for (int begin = 0; begin < len; begin += block) {
        std::vector<Lane> lane(static_cast<std::size_t>(L));
        const int end = std::min(len, begin + block);
        for (int n = begin; n < end; ++n)
            lane[static_cast<std::size_t>((n - begin) % L)] += static_cast<Lane>(p[n * stride]);
        for (std::size_t half = lane.size() / 2; half > 0; half /= 2)
            for (std::size_t i = 0; i < half; ++i) lane[i] += lane[i + half];
        total += static_cast<double>(lane[0]);
    }
    return total;
}

template <class T>
std::vector<T> reals(std::size_t count)
{
    std::mt19937_64 bits(count);
    std::normal_distribution<double> normal(0.5, 1);
    std::vector<T> v(count);
    for (T& e : v) e = static_cast<T>(std::ldexp(normal(bits), static_cast<int>(bits() % 24) - 12));
    return v;
}

// Sum, mean and their two roundings, bit for bit.
template <class T>
void expectSumAndMean(double total, int len, T sum, T mean)
{
    ASSERT_EQ(sum, static_cast<T>(total)) << len;
    ASSERT_EQ(mean, static_cast<T>(static_cast<double>(static_cast<T>(total)) / len)) << len;
}

constexpr int whole = INT_MAX / 2;

TEST(FloatingSum, Single)
{
    const auto v = reals<Zor32f>(2 * longest);
    eachLength([&](std::size_t place, int len) {
        const Zor32f* p = v.data() + place;
        const auto* c = reinterpret_cast<const Zor32fc*>(p);
        for (const ZorHintAlgorithm hint : {0, 1, 2, -1}) {
            Zor32f sum = 0, mean = 0;
            Zor32fc sums{}, means{};
            ASSERT_EQ(zorsSum_32f(p, len, &sum, hint), zorStsOk);
            ASSERT_EQ(zorsMean_32f(p, len, &mean, hint), zorStsOk);
            ASSERT_EQ(zorsSum_32fc(c, len, &sums, hint), zorStsOk);
            ASSERT_EQ(zorsMean_32fc(c, len, &means, hint), zorStsOk);
            const auto total = [=](const Zor32f* from, int stride) {
                return hint == ZOR_ALG_SPEED ? patternSum<float>(from, len, stride, 64 / stride, 1024)
                                             : patternSum<double>(from, len, stride, 32 / stride, whole);
            };
            expectSumAndMean(total(p, 1), len, sum, mean);
            expectSumAndMean(total(p, 2), len, sums.re, means.re);
            expectSumAndMean(total(p + 1, 2), len, sums.im, means.im);
        }
    });
}

TEST(FloatingSum, Double)
{
    const auto v = reals<Zor64f>(2 * longest);
    eachLength([&](std::size_t place, int len) {
        const Zor64f* p = v.data() + place;
        const auto* c = reinterpret_cast<const Zor64fc*>(p);
        Zor64f sum = 0, mean = 0;
        Zor64fc sums{}, means{};
        ASSERT_EQ(zorsSum_64f(p, len, &sum), zorStsOk);
        ASSERT_EQ(zorsMean_64f(p, len, &mean), zorStsOk);
        ASSERT_EQ(zorsSum_64fc(c, len, &sums), zorStsOk);
        ASSERT_EQ(zorsMean_64fc(c, len, &means), zorStsOk);
        expectSumAndMean(patternSum<double>(p, len, 1, 32, whole), len, sum, mean);
        expectSumAndMean(patternSum<double>(p, len, 2, 16, whole), len, sums.re, means.re);
        expectSumAndMean(patternSum<double>(p + 1, len, 2, 16, whole), len, sums.im, means.im);
    });
}

// The error bound that the documentation states, against 64-bit significands.
TEST(FloatingSum, StaysWithinItsBound)
{
    const auto v = reals<Zor32f>(longest);
    eachLength([&](std::size_t place, int len) {
        const Zor32f* p = v.data() + place;
        long double exact = 0, magnitudes = 0;
        for (int i = 0; i < len; ++i) exact += p[i], magnitudes += std::fabs(p[i]);
        Zor32f sum = 0, fast = 0;
        zorsSum_32f(p, len, &sum, ZOR_ALG_ANY);
        zorsSum_32f(p, len, &fast, ZOR_ALG_SPEED);
        const long double precise = (len / 32 + 5) * 0x1p-53L * magnitudes,
                          rounding = 0x1p-24L * std::fabs(exact);
        ASSERT_LE(std::fabs(sum - exact), 1.001L * (precise + rounding)) << len;
        ASSERT_LE(std::fabs(fast - exact), 1.001L * (22 * 0x1p-24L * magnitudes + rounding)) << len;
    });
}

TEST(FloatingSum, PreciseWhereSingleIsNot)
{
    const Zor32f v[] = {1e8f, 1, -1e8f};
    Zor32f sum = 0;
    EXPECT_EQ(zorsSum_32f(v, 3, &sum, ZOR_ALG_ANY), zorStsOk);
    EXPECT_EQ(sum, 1);
    // The sum 2^24 + 1 is rounded before the division: the mean is not the exactly rounded one.
    const Zor32f odd[] = {16777216, 1, 0};
    Zor32f mean = 0;
    EXPECT_EQ(zorsMean_32f(odd, 3, &mean, ZOR_ALG_ANY), zorStsOk);
    EXPECT_EQ(mean, static_cast<Zor32f>(16777216 / 3.0));
    const Zor32f huge[] = {3e38f, 3e38f};
    EXPECT_EQ(zorsSum_32f(huge, 2, &sum, ZOR_ALG_ANY), zorStsOk);
    EXPECT_EQ(sum, HUGE_VALF);
}

} // namespace
} // namespace zors::test
