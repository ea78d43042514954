#include "reduction.h"

#include <cmath>

namespace zors::test {
namespace {

struct ExactMoments {
    Wide sum = 0, squares = 0;
};

ExactMoments momentsOf(const Zor16s* p, int len)
{
    ExactMoments m;
    for (int i = 0; i < len; ++i) m.sum += p[i], m.squares += Wide{p[i]} * p[i];
    return m;
}

// The result is r when the value lies between r - 1/2 and r + 1/2, a tie only where r is even: held with the square,
// whose terms are integers.
template <class R>
void expectRoot(const ExactMoments& m, int len, int scaleFactor, R result)
{
    using Term = unsigned __int128;
    const auto n = static_cast<Term>(len);
    Term numerator = 4 * static_cast<Term>(m.squares * len - m.sum * m.sum), denominator = n * (n - 1);
    if (scaleFactor > 20 || numerator == 0) {
        EXPECT_EQ(result, 0);
        return;
    }
    const long double estimate =
        std::sqrt(static_cast<long double>(numerator) / static_cast<long double>(denominator)) / 2;
    if (scaleFactor < -70 || std::ldexp(estimate, -scaleFactor) > std::numeric_limits<R>::max()) {
        EXPECT_EQ(result, std::numeric_limits<R>::max()) << len << " scale " << scaleFactor;
        return;
    }
    (scaleFactor < 0 ? numerator : denominator) <<= 2 * std::abs(scaleFactor);
    const auto twice = 2 * static_cast<Term>(result);
    const Term above = (twice + 1) * (twice + 1) * denominator;
    const Term below = result ? (twice - 1) * (twice - 1) * denominator : 0;
    const bool even = result % 2 == 0;
    EXPECT_TRUE(even ? numerator <= above : numerator < above)
        << len << " scale " << scaleFactor << ": " << result;
    EXPECT_TRUE(even ? numerator >= below : numerator > below)
        << len << " scale " << scaleFactor << ": " << result;
}

void expectScaled(const Zor16s* p, int len, int scaleFactor)
{
    const ExactMoments m = momentsOf(p, len);
    Zor16s mean = 0, deviation = 0, alone = 0;
    Zor32s wideMean = 0, wideDeviation = 0, wideAlone = 0;
    ASSERT_EQ(zorsMeanStdDev_16s_Sfs(p, len, &mean, &deviation, scaleFactor), zorStsOk);
    ASSERT_EQ(zorsMeanStdDev_16s32s_Sfs(p, len, &wideMean, &wideDeviation, scaleFactor), zorStsOk);
    ASSERT_EQ(zorsStdDev_16s_Sfs(p, len, &alone, scaleFactor), zorStsOk);
    ASSERT_EQ(zorsStdDev_16s32s_Sfs(p, len, &wideAlone, scaleFactor), zorStsOk);
    EXPECT_EQ(mean, scaledFraction<Zor16s>(m.sum, len, scaleFactor)) << len << " scale " << scaleFactor;
    EXPECT_EQ(wideMean, scaledFraction<Zor32s>(m.sum, len, scaleFactor)) << len << " scale " << scaleFactor;
    expectRoot(m, len, scaleFactor, deviation);
    expectRoot(m, len, scaleFactor, wideDeviation);
    EXPECT_EQ(alone, deviation);
    EXPECT_EQ(wideAlone, wideDeviation);
}

TEST(IntegerDeviation, ExactAtEveryLengthAndScale)
{
    const auto v = integers<Zor16s>(longest);
    eachLength([&](std::size_t place, int len) {
        if (len < 2 || len > 70000 || testing::Test::HasFailure()) return;
        for (const int s : scaleFactors) expectScaled(v.data() + place, len, s);
    });
    expectScaled(v.data() + 3, (1 << 20) + 3, -15);
}

// Four elements -k, -k, k, k + d reach ties and their neighbours; the ends of the type reach the largest squares.
TEST(IntegerDeviation, AtTiesAndAtTheEndsOfTheType)
{
    const Zor16s tie[] = {0, 3, 3, 3}; // 3 / 2
    Zor16s deviation = 0;
    inEveryRoundingMode([&] {
        EXPECT_EQ(zorsStdDev_16s_Sfs(tie, 4, &deviation, 0), zorStsOk);
        EXPECT_EQ(deviation, 2);
        const Zor16s lower[] = {0, 1, 1, 1}; // 1 / 2
        EXPECT_EQ(zorsStdDev_16s_Sfs(lower, 4, &deviation, 0), zorStsOk);
        EXPECT_EQ(deviation, 0);
    });
    for (int k = 1; k < 2000; ++k)
        for (int d = -1; d <= 1; ++d) {
            const Zor16s v[] = {0, static_cast<Zor16s>(k), static_cast<Zor16s>(k),
                                static_cast<Zor16s>(k + d)};
            for (const int s : {0, 1, 4}) expectScaled(v, 4, s);
        }
    std::vector<Zor16s> ends(1 << 18, -32768);
    expectScaled(ends.data(), 1 << 18, 0);
    for (std::size_t i = 0; i < ends.size(); i += 2) ends[i] = 32767;
    for (const int s : {0, 1, -16, 16, 17}) expectScaled(ends.data(), 1 << 18, s);
    expectScaled(ends.data(), 2, 0);
}

template <class T>
std::vector<T> normal(std::size_t count)
{
    std::mt19937_64 bits(count);
    std::normal_distribution<double> distribution(3, 20);
    std::vector<T> v(count);
    for (T& e : v) e = static_cast<T>(distribution(bits));
    return v;
}

// Small integers: the sums and everything made of them up to the last divisions and roots are exact.
TEST(FloatingDeviation, FollowsItsFormulaExactly)
{
    const auto elements = integers<Zor16s>(longest);
    const std::vector<Zor32f> v(elements.begin(), elements.begin() + 2050);
    for (int len = 2; len <= 2049; ++len) {
        const ExactMoments m = momentsOf(elements.data() + 1, len);
        const double n = len, sum = static_cast<double>(m.sum), squares = static_cast<double>(m.squares);
        Zor32f mean = 0, deviation = 0;
        ASSERT_EQ(zorsMeanStdDev_32f(v.data() + 1, len, &mean, &deviation), zorStsOk);
        EXPECT_EQ(mean, static_cast<Zor32f>(static_cast<Zor32f>(sum) / n)) << len;
        EXPECT_EQ(deviation, static_cast<Zor32f>(std::sqrt((n * squares - sum * sum) / ((n - 1) * n))))
            << len;
    }
}

// A sum is off by fewer than n / 16 + 5 roundings of the sum of magnitudes (16 lanes, then a tree), the radicand by
// three times as many of n * Q.
template <class T, class Formula>
void expectDeviation(const T* p, int len, T result, Formula roundings)
{
    long double mean = 0, squares = 0, centred = 0;
    for (int i = 0; i < len; ++i)
        mean += static_cast<long double>(p[i]) / len, squares += static_cast<long double>(p[i]) * p[i];
    for (int i = 0; i < len; ++i) centred += (p[i] - mean) * (p[i] - mean);
    const long double exact = std::sqrt(centred / (len - 1));
    const long double radicand = 3 * roundings(len) * squares / (len - 1);
    const long double last = std::numeric_limits<T>::epsilon();
    ASSERT_LE(std::fabs(result - exact), radicand / exact + last * exact) << len;
}

TEST(FloatingDeviation, StaysWithinTheBoundOfItsSums)
{
    const auto single = normal<Zor32f>(longest);
    const auto wide = normal<Zor64f>(longest);
    eachLength([&](std::size_t place, int len) {
        if (len < 2) return;
        Zor32f mean = 0, deviation = 0, alone = 0, fast = 0;
        const Zor32f* p = single.data() + place;
        const auto precise = [](int n) { return (n / 16 + 5) * 0x1p-53L; };
        ASSERT_EQ(zorsMeanStdDev_32f(p, len, &mean, &deviation), zorStsOk);
        ASSERT_EQ(zorsStdDev_32f(p, len, &alone, ZOR_ALG_PRECISION), zorStsOk);
        ASSERT_EQ(zorsStdDev_32f(p, len, &fast, ZOR_ALG_SPEED), zorStsOk);
        ASSERT_EQ(alone, deviation);
        expectDeviation(p, len, deviation, precise);
        expectDeviation(p, len, fast, [](int) { return 38 * 0x1p-24L; });

        Zor64f wideMean = 0, wideDeviation = 0, wideAlone = 0;
        const Zor64f* q = wide.data() + place;
        ASSERT_EQ(zorsMeanStdDev_64f(q, len, &wideMean, &wideDeviation), zorStsOk);
        ASSERT_EQ(zorsStdDev_64f(q, len, &wideAlone), zorStsOk);
        ASSERT_EQ(wideAlone, wideDeviation);
        expectDeviation(q, len, wideDeviation, precise);

        long double sum = 0, wideSum = 0, magnitudes = 0;
        for (int i = 0; i < len; ++i) sum += p[i], wideSum += q[i], magnitudes += std::fabs(q[i]);
        ASSERT_LE(std::fabs(mean - sum / len), 0x1.1p-23L * std::fabs(sum / len) + precise(len)) << len;
        ASSERT_LE(std::fabs(wideMean - wideSum / len),
                  precise(len) * magnitudes / len + 0x1p-51L * std::fabs(wideMean))
            << len;
    });
}

TEST(FloatingDeviation, ValuesOfTheDefinition)
{
    const Zor32f same[] = {1, 1}, rising[] = {1, 3}, infinite[] = {1, HUGE_VALF}, none[] = {1, NAN, 2};
    Zor32f deviation = 5;
    for (const ZorHintAlgorithm hint : {ZOR_ALG_ANY, ZOR_ALG_SPEED}) {
        EXPECT_EQ(zorsStdDev_32f(same, 2, &deviation, hint), zorStsOk);
        EXPECT_EQ(deviation, 0);
        EXPECT_EQ(zorsStdDev_32f(rising, 2, &deviation, hint), zorStsOk);
        EXPECT_EQ(deviation, std::sqrt(2.0f));
        EXPECT_EQ(zorsStdDev_32f(infinite, 2, &deviation, hint), zorStsOk);
        EXPECT_TRUE(std::isnan(deviation));
        EXPECT_EQ(zorsStdDev_32f(none, 3, &deviation, hint), zorStsOk);
        EXPECT_TRUE(std::isnan(deviation));
        // Rounding makes the radicand of a constant negative at some of these lengths.
        const std::vector<Zor32f> tenths(257, 0.1f);
        for (int len = 2; len <= 257; ++len) {
            EXPECT_EQ(zorsStdDev_32f(tenths.data(), len, &deviation, hint), zorStsOk);
            EXPECT_LE(deviation, 1e-3f) << len;
        }
    }
    deviation = 5;
    EXPECT_EQ(zorsStdDev_32f(rising, 1, &deviation, ZOR_ALG_ANY), zorStsBadSize);
    const Zor64f wide[] = {1, 3};
    Zor64f mean = 5;
    EXPECT_EQ(zorsMeanStdDev_64f(wide, 1, &mean, nullptr), zorStsNullPointer);
    EXPECT_EQ(zorsMeanStdDev_64f(wide, 1, nullptr, &mean), zorStsNullPointer);
    EXPECT_TRUE(deviation == 5 && mean == 5);
}

} // namespace
} // namespace zors::test
