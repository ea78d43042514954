#include "support/random.h"

#include <gtest/gtest.h>
#include <zors.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using zors::test::Random;

constexpr Zor32f infinity = std::numeric_limits<Zor32f>::infinity();

struct MeanStdDev {
    Zor32f mean, deviation;
};

MeanStdDev meanStdDev(const Zor32f* pSrc, int len)
{
    MeanStdDev result{-1, -1};
    EXPECT_EQ(zorsMeanStdDev_32f(pSrc, len, &result.mean, &result.deviation), zorStsOk);
    return result;
}

// Vectors of every length, one element past the start of a buffer.
template <class Body>
void eachLength(std::vector<Zor32f>& buffer, Body body)
{
    for (int len = 2; len <= 257; ++len) body(buffer.data() + 1, len);
    body(buffer.data() + 1, static_cast<int>(buffer.size()) - 1);
}

// Small integers: both sums and everything made of them up to the last divisions and roots are exact.
TEST(MeanStdDev, FollowsItsFormulaExactly)
{
    Random random;
    std::vector<Zor32f> buffer(2050);
    for (Zor32f& v : buffer) v = static_cast<Zor32f>(static_cast<int>(random() % 8001) - 4000);
    eachLength(buffer, [](const Zor32f* p, int len) {
        double sum = 0, squares = 0, n = len;
        for (int i = 0; i < len; ++i) sum += p[i], squares += double{p[i]} * p[i];
        const auto [mean, deviation] = meanStdDev(p, len);
        EXPECT_EQ(mean, static_cast<Zor32f>(static_cast<Zor32f>(sum) / n)) << len;
        EXPECT_EQ(deviation, static_cast<Zor32f>(std::sqrt((n * squares - sum * sum) / ((n - 1) * n))))
            << len;
    });
}

// Each of 32 lanes adds len / 32 terms and a tree joins them: a sum is off by fewer than len / 32 + 8 double
// roundings of the sum of magnitudes, the radicand by three times as many of len * Q.
TEST(MeanStdDev, StaysWithinTheBoundOfItsSums)
{
    Random random;
    std::normal_distribution<Zor32f> number(3, 20);
    std::vector<Zor32f> buffer((1 << 20) + 4);
    for (Zor32f& v : buffer) v = number(random);
    eachLength(buffer, [](const Zor32f* p, int len) {
        long double sum = 0, squares = 0, magnitudes = 0, n = len;
        for (int i = 0; i < len; ++i) {
            const long double v = p[i];
            sum += v, squares += v * v, magnitudes += std::fabs(v);
        }
        const long double radicand = (n * squares - sum * sum) / ((n - 1) * n), exact = std::sqrt(radicand);
        const long double roundings = (n / 32 + 8) * 0x1p-53L;
        const auto [mean, deviation] = meanStdDev(p, len);
        EXPECT_LE(std::fabs(mean - sum / n), 0x1.1p-23L * std::fabs(sum / n) + roundings * magnitudes / n)
            << len;
        EXPECT_LE(std::fabs(deviation - exact),
                  0x1.1p-24L * exact + 3 * roundings * squares / ((n - 1) * exact))
            << len;
    });
}

TEST(MeanStdDev, RoundsTheSumBeforeTheMean)
{
    const Zor32f src[] = {16777216, 5, 0}; // no float is the sum of these
    EXPECT_EQ(meanStdDev(src, 3).mean, static_cast<Zor32f>(16777220 / 3.0));
    ASSERT_NE(static_cast<Zor32f>(16777220 / 3.0), static_cast<Zor32f>(16777221 / 3.0));
}

TEST(MeanStdDev, ValuesOfTheDefinition)
{
    const Zor32f rising[] = {1, 3}, constant[] = {1, 1};
    EXPECT_EQ(meanStdDev(rising, 2).mean, 2);
    EXPECT_EQ(meanStdDev(rising, 2).deviation, std::sqrt(2.0f));
    EXPECT_EQ(meanStdDev(constant, 2).deviation, 0);
    // Rounding makes the radicand of a constant negative at some of these lengths.
    const std::vector<Zor32f> tenths(257, 0.1f);
    for (int len = 2; len <= 257; ++len) EXPECT_LE(meanStdDev(tenths.data(), len).deviation, 1e-8f) << len;
    Zor32f mean = 5, deviation = 6;
    EXPECT_EQ(zorsMeanStdDev_32f(rising, 1, &mean, &deviation), zorStsBadSize);
    EXPECT_EQ(zorsMeanStdDev_32f(rising, 1, nullptr, &deviation), zorStsNullPointer);
    EXPECT_EQ(zorsMeanStdDev_32f(rising, 1, &mean, nullptr), zorStsNullPointer);
    EXPECT_TRUE(mean == 5 && deviation == 6);
}

void expectMinMax(const Zor32f* pSrc, int len)
{
    Zor32f least = infinity, most = -infinity, gotLeast = 0, gotMost = 0;
    for (int n = 0; n < len; ++n) least = std::fmin(least, pSrc[n]), most = std::fmax(most, pSrc[n]);
    ASSERT_EQ(zorsMinMax_32f(pSrc, len, &gotLeast, &gotMost), zorStsOk);
    ASSERT_EQ(gotLeast, least) << len;
    ASSERT_EQ(gotMost, most) << len;
}

TEST(MinMax, FindsTheExtremesInEveryPlace)
{
    for (int len = 1; len <= 257; ++len)
        for (int place = 0; place < len; ++place) {
            // Neither extreme is near 0, which fills the lanes past the end.
            for (const Zor32f level : {-5.0f, 5.0f, NAN}) {
                std::vector<Zor32f> src(static_cast<std::size_t>(len), level);
                src[static_cast<std::size_t>(place)] = level < 0 ? -4.0f : 4.0f;
                expectMinMax(src.data(), len);
                src[static_cast<std::size_t>(place)] = level < 0 ? -6.0f : 6.0f;
                expectMinMax(src.data(), len);
            }
            if (testing::Test::HasFatalFailure()) return;
        }
}

TEST(MinMax, PassesOverWhatIsNotANumber)
{
    for (int len = 1; len <= 257; ++len) {
        std::vector<Zor32f> src(static_cast<std::size_t>(len), NAN);
        expectMinMax(src.data(), len); // the infinities the wrong way round
        src.back() = -infinity;
        expectMinMax(src.data(), len);
        src.front() = infinity;
        expectMinMax(src.data(), len);
    }
}

} // namespace
