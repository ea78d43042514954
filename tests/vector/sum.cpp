#include "reduction.h"

namespace zors::test {
namespace {

// The rule of the real 16-bit sums, spelt out in double precision: the factor's biased exponent is limited.
double byDoubles(double v, int scaleFactor)
{
    const Zor64s exponent = std::clamp<Zor64s>(Zor64s{1023} - scaleFactor, 0, 2047);
    if (exponent == 0) return v * 0;
    return v * (exponent == 2047 ? HUGE_VAL : std::ldexp(1, static_cast<int>(exponent - 1023)));
}

// The limits of the product are taken from above first.
Zor32s sum32ByDoubles(Zor64s sum, int, int scaleFactor)
{
    double product = byDoubles(static_cast<double>(sum), scaleFactor);
    product = product > 2147483647.0 ? 2147483647.0 : product;
    product = product > -2147483648.0 ? product : -2147483648.0;
    return static_cast<Zor32s>(std::nearbyint(product));
}

Zor16s mean16ByDoubles(Zor64s sum, int len, int scaleFactor)
{
    const double product = byDoubles(static_cast<double>(sum) / len, scaleFactor);
    if (std::isnan(product)) return 0; // the low half of the conversion of what is not a number
    return static_cast<Zor16s>(std::nearbyint(std::clamp(product, -32768.0, 32767.0)));
}

template <class R>
R exactSum(Zor64s sum, int, int scaleFactor)
{
    return scaledFraction<R>(sum, 1, scaleFactor);
}

template <Zor32s (*sum)(Zor64s, int, int)>
Zor16s saturated(Zor64s total, int len, int scaleFactor)
{
    return static_cast<Zor16s>(std::clamp(sum(total, len, scaleFactor), -32768, 32767));
}

// Every part P of a result is the rule's for the sum of these parts of the elements.
template <class P, class T, class R, class Rule>
void expectScaled(ZorStatus (*function)(const T*, int, R*, int), Rule rule)
{
    constexpr int parts = sizeof(T) / sizeof(P), many = 1 << 21;
    const auto expect = [=](const P* p, int len, unsigned control = standardControl) {
        Zor64s sums[2] = {};
        for (int i = 0; i < parts * len; ++i) sums[i % parts] += p[i];
        for (const int s : scaleFactors) {
            R got;
            ASSERT_EQ(under(control, function)(reinterpret_cast<const T*>(p), len, &got, s), zorStsOk);
            for (int k = 0; k < parts; ++k) {
                const auto want = rule(sums[k], len, s);
                ASSERT_EQ(reinterpret_cast<decltype(&want)>(&got)[k], want) << len << " scale " << s;
            }
        }
    };
    const auto v = integers<P>(2 * longest);
    eachLength([&](std::size_t place, int len) { // of pairs, also between two pairs' places
        expect(v.data() + place, len);
    });
    // The ends of the type fill every accumulator as far as it goes.
    using Limits = std::numeric_limits<P>;
    for (const P end : {Limits::min(), Limits::max()}) expect(std::vector<P>(parts * many, end).data(), many);
    // Halves, thirds and zeros, whatever the caller's rounding.
    constexpr P most = Limits::max(), less = most - 2;
    constexpr P few[][6] = {{1, 1, 2, 2, 0, 0},
                            {1, 1, 4, 4, 7, 7},
                            {-1, -1, 0, 0, 1, 1},
                            {7, 7, -7, -7, -1, -1},
                            {most, most, most, most, less, less}};
    for (const unsigned control : roundings)
        for (const auto& p : few)
            for (int len = 1; len * parts <= 6; ++len) expect(p, len, control);
}

TEST(IntegerSum, FollowsItsRule)
{
    expectScaled<Zor16s>(zorsSum_16s32s_Sfs, sum32ByDoubles);
    expectScaled<Zor16s>(zorsSum_16s_Sfs, saturated<sum32ByDoubles>);
    expectScaled<Zor16s>(zorsMean_16s_Sfs, mean16ByDoubles);
    expectScaled<Zor16s>(zorsSum_16sc32sc_Sfs, exactSum<Zor32s>);
    expectScaled<Zor16s>(zorsSum_16sc_Sfs, saturated<exactSum<Zor32s>>);
    expectScaled<Zor16s>(zorsMean_16sc_Sfs, scaledFraction<Zor16s>);
    expectScaled<Zor32s>(zorsSum_32s_Sfs, exactSum<Zor32s>);
    expectScaled<Zor32s>(zorsMean_32s_Sfs, scaledFraction<Zor32s>);
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

// Sum and mean, part by part and bit for bit; the mean is made of the rounded sum.
template <class P, class T, class... Hint>
void expectPattern(ZorStatus (*sum)(const T*, int, T*, Hint...),
                   ZorStatus (*mean)(const T*, int, T*, Hint...))
{
    constexpr int parts = sizeof(T) / sizeof(P), whole = INT_MAX / 2;
    const auto v = normal<P>(2 * longest, 0.5, 1, 24);
    eachLength([&](std::size_t place, int len) {
        const auto* p = reinterpret_cast<const T*>(v.data() + place);
        for (const int hint : {0, 1, 2, -1}) {
            const bool fast = sizeof...(Hint) != 0 && hint == ZOR_ALG_SPEED;
            const T sums = reduced(sum, p, len, Hint(hint)...), means = reduced(mean, p, len, Hint(hint)...);
            for (int k = 0; k < parts; ++k) {
                const P* from = v.data() + place + k;
                const P total =
                    static_cast<P>(fast ? patternSum<float>(from, len, parts, 64 / parts, 1024)
                                        : patternSum<double>(from, len, parts, 32 / parts, whole));
                ASSERT_EQ(reinterpret_cast<const P*>(&sums)[k], total) << len;
                ASSERT_EQ(reinterpret_cast<const P*>(&means)[k],
                          static_cast<P>(static_cast<double>(total) / len))
                    << len;
            }
        }
    });
}

TEST(FloatingSum, AddsInItsPattern)
{
    expectPattern<Zor32f>(zorsSum_32f, zorsMean_32f);
    expectPattern<Zor32f>(zorsSum_32fc, zorsMean_32fc);
    expectPattern<Zor64f>(zorsSum_64f, zorsMean_64f);
    expectPattern<Zor64f>(zorsSum_64fc, zorsMean_64fc);
}

// The error bound that the documentation states, against 64-bit significands.
TEST(FloatingSum, StaysWithinItsBound)
{
    const auto v = normal<Zor32f>(longest, 0.5, 1, 24);
    eachLength([&](std::size_t place, int len) {
        const Zor32f* p = v.data() + place;
        long double exact = 0, magnitudes = 0;
        for (int i = 0; i < len; ++i) exact += p[i], magnitudes += std::fabs(p[i]);
        const Zor32f sum = reduced(zorsSum_32f, p, len, ZOR_ALG_ANY),
                     fast = reduced(zorsSum_32f, p, len, ZOR_ALG_SPEED);
        const long double precise = (len / 32 + 5) * 0x1p-53L * magnitudes,
                          rounding = 0x1p-24L * std::fabs(exact);
        ASSERT_LE(std::fabs(sum - exact), 1.001L * (precise + rounding)) << len;
        ASSERT_LE(std::fabs(fast - exact), 1.001L * (22 * 0x1p-24L * magnitudes + rounding)) << len;
    });
}

TEST(FloatingSum, PreciseWhereSingleIsNot)
{
    const Zor32f v[] = {1e8f, 1, -1e8f}, odd[] = {16777216, 1, 0}, huge[] = {3e38f, 3e38f};
    EXPECT_EQ(reduced(zorsSum_32f, v, 3, ZOR_ALG_ANY), 1);
    // The sum 2^24 + 1 is rounded before the division: the mean is not the exactly rounded one.
    EXPECT_EQ(reduced(zorsMean_32f, odd, 3, ZOR_ALG_ANY), static_cast<Zor32f>(16777216 / 3.0));
    EXPECT_EQ(reduced(zorsSum_32f, huge, 2, ZOR_ALG_ANY), HUGE_VALF);
}

} // namespace
} // namespace zors::test
