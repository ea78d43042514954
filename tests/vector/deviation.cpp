#include "reduction.h"

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
    const bool inside = below < numerator && numerator < above,
               tie = numerator == above || numerator == below;
    EXPECT_TRUE(inside || (tie && result % 2 == 0)) << len << " scale " << scaleFactor << ": " << result;
}

// Mean and deviation of all members of a type.
template <class R>
void expectBoth(ZorStatus (*both)(const Zor16s*, int, R*, R*, int),
                ZorStatus (*alone)(const Zor16s*, int, R*, int), const Zor16s* p, int len, int scaleFactor)
{
    const ExactMoments m = momentsOf(p, len);
    R mean = 0, deviation = 0;
    ASSERT_EQ(both(p, len, &mean, &deviation, scaleFactor), zorStsOk);
    EXPECT_EQ(mean, scaledFraction<R>(m.sum, len, scaleFactor)) << len << " scale " << scaleFactor;
    expectRoot(m, len, scaleFactor, deviation);
    EXPECT_EQ(reduced(alone, p, len, scaleFactor), deviation);
}

void expectScaled(const Zor16s* p, int len, int scaleFactor)
{
    expectBoth(zorsMeanStdDev_16s_Sfs, zorsStdDev_16s_Sfs, p, len, scaleFactor);
    expectBoth(zorsMeanStdDev_16s32s_Sfs, zorsStdDev_16s32s_Sfs, p, len, scaleFactor);
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

// Four elements 0, k, k, k + d reach ties and their neighbours; the ends of the type reach the largest squares.
TEST(IntegerDeviation, AtTiesAndAtTheEndsOfTheType)
{
    for (int k = 1; k < 2000; ++k)
        for (int d = -1; d <= 1; ++d) {
            const auto most = static_cast<Zor16s>(k), last = static_cast<Zor16s>(k + d);
            const Zor16s v[] = {0, most, most, last};
            for (const int s : {0, 1, 4, -31})
                underControl(roundings[k / 2 % 4], [&] { expectScaled(v, 4, s); });
        }
    std::vector<Zor16s> ends(1 << 18, -32768);
    expectScaled(ends.data(), 1 << 18, 0);
    for (std::size_t i = 0; i < ends.size(); i += 2) ends[i] = 32767;
    for (const int s : {0, 1, -16, 16, 17}) expectScaled(ends.data(), 1 << 18, s);
    expectScaled(ends.data(), 2, 0);
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

template <class T>
void expectWithinBound(ZorStatus (*both)(const T*, int, T*, T*), auto alone)
{
    const auto v = normal<T>(longest, 3, 20, 1);
    eachLength([&](std::size_t place, int len) {
        if (len < 2) return;
        const T* p = v.data() + place;
        T mean = 0, deviation = 0;
        const auto roundings = [](int n) { return (n / 16 + 5) * 0x1p-53L; };
        ASSERT_EQ(both(p, len, &mean, &deviation), zorStsOk);
        ASSERT_EQ(alone(p, len), deviation);
        expectDeviation(p, len, deviation, roundings);
        long double sum = 0, magnitudes = 0;
        for (int i = 0; i < len; ++i) sum += p[i], magnitudes += std::fabs(p[i]);
        const long double last = 0x1.1p0L * std::numeric_limits<T>::epsilon() * std::fabs(sum / len);
        ASSERT_LE(std::fabs(mean - sum / len), roundings(len) * magnitudes / len + last) << len;
    });
}

TEST(FloatingDeviation, StaysWithinTheBoundOfItsSums)
{
    expectWithinBound(zorsMeanStdDev_32f, [](const Zor32f* p, int len) {
        expectDeviation(p, len, reduced(zorsStdDev_32f, p, len, ZOR_ALG_SPEED),
                        [](int) { return 38 * 0x1p-24L; });
        return reduced(zorsStdDev_32f, p, len, ZOR_ALG_PRECISION);
    });
    expectWithinBound(zorsMeanStdDev_64f,
                      [](const Zor64f* p, int len) { return reduced(zorsStdDev_64f, p, len); });
}

TEST(FloatingDeviation, ValuesOfTheDefinition)
{
    const Zor32f infinite[] = {1, HUGE_VALF}, none[] = {1, NAN, 2};
    const std::vector<Zor32f> tenths(257, 0.1f);
    for (const ZorHintAlgorithm hint : {ZOR_ALG_ANY, ZOR_ALG_SPEED}) {
        const auto deviation = [=](const Zor32f* p, int len) {
            return reduced(zorsStdDev_32f, p, len, hint);
        };
        EXPECT_TRUE(std::isnan(deviation(infinite, 2)));
        EXPECT_TRUE(std::isnan(deviation(none, 3)));
        // Rounding makes the radicand of a constant negative at some of these lengths.
        for (int len = 2; len <= 257; ++len) EXPECT_LE(deviation(tenths.data(), len), 1e-3f) << len;
    }
}

} // namespace
} // namespace zors::test
