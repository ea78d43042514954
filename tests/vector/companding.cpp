#include "support/oracle.h"

#include <zors.h>

#include <cmath>

namespace {

using namespace zors::test;

// A law by its decoder output values and its decision values, magnitudes in 16-bit samples: number n of 128.
struct Law {
    int (*output)(int n);
    int (*decision)(int n); // the least magnitude of the interval
    int inverted;
    double fullScale;      // the decision value after the last one
    double fullScaleLevel; // of a sine that reaches it, in dBm0
};

constexpr Law aLaw{[](int n) { return n < 16 ? 16 * n + 8 : (2 * (n % 16) + 33) << (n / 16 + 2); },
                   [](int n) { return n < 16 ? 16 * n : (n % 16 + 16) << (n / 16 + 3); }, 0x55, 32768, 3.14};
constexpr Law muLaw{[](int n) { return (((2 * (n % 16) + 33) << n / 16) - 33) * 4; },
                    [](int n) { return std::max(0, (((n % 16 + 16) << (n / 16 + 1)) - 33) * 4); }, 0x7f,
                    32636, 3.17};

int numberOf(const Law& law, Zor8u code)
{
    return (code ^ law.inverted) & 0x7f;
}

Zor8u codeOf(const Law& law, int number, bool positive)
{
    return static_cast<Zor8u>((number ^ law.inverted) | (positive ? 0x80 : 0));
}

int decoded(const Law& law, Zor8u code)
{
    const int magnitude = law.output(numberOf(law, code));
    return code & 0x80 ? magnitude : -magnitude;
}

// The last interval that begins at or below a magnitude.
int intervalOf(const Law& law, double magnitude)
{
    int n = 127;
    while (n > 0 && magnitude < law.decision(n)) --n;
    return n;
}

// A sample on a decision value belongs to the interval above it, so a negative one to that of the lesser magnitude.
Zor8u encoded(const Law& law, double sample)
{
    if (std::isnan(sample)) sample = 0;
    if (sample >= 0) return codeOf(law, intervalOf(law, sample), true);
    return codeOf(law, intervalOf(law, std::nextafter(-sample, 0)), false);
}

template <class T>
void expectDecodes(const Law& law, ZorStatus (*function)(const Zor8u*, T*, int))
{
    expectAll<Zor8u, T>(everyValue<Zor8u>(), function, [=](Zor8u code) {
        return static_cast<T>(std::copysign(decoded(law, code), code & 0x80 ? 1 : -1));
    });
}

TEST(Companding, Expands)
{
    expectDecodes(aLaw, zorsALawToLin_8u16s);
    expectDecodes(aLaw, zorsALawToLin_8u32f);
    expectDecodes(muLaw, zorsMuLawToLin_8u16s);
    expectDecodes(muLaw, zorsMuLawToLin_8u32f);
    Zor8u code = 0;
    Zor16s sample = 0;
    EXPECT_TRUE(zorsALawToLin_8u16s(&code, &sample, 1) == zorStsOk && sample == -5504);
    EXPECT_TRUE(zorsMuLawToLin_8u16s(&code, &sample, 1) == zorStsOk && sample == -32124);
}

template <class T>
void expectEncodes(const Law& law, ZorStatus (*function)(const T*, Zor8u*, int), const std::vector<T>& src)
{
    const auto code = [=](T sample) { return encoded(law, static_cast<double>(sample)); };
    expectAll<T, Zor8u>(src, function, code, Lengths::small);
}

// On and beside every decision value and every decoded one, and beyond them.
std::vector<Zor32f> floatsBetween(const Law& law)
{
    std::vector<Zor32f> all{NAN, INFINITY, 3e38f, 1e-45f, 40000, 32767.5f, 32768};
    for (int n = 0; n < 128; ++n)
        for (const int v : {law.decision(n), law.output(n)}) {
            const auto middle = static_cast<Zor32f>(v);
            for (const Zor32f beside : {0.0f, 0.25f, 1.0f})
                all.insert(all.end(), {middle + beside, middle - beside});
            all.insert(all.end(), {std::nextafter(middle, INFINITY), std::nextafter(middle, -INFINITY)});
        }
    const std::size_t count = all.size();
    for (std::size_t i = 0; i < count; ++i) all.push_back(-all[i]);
    return all;
}

TEST(Companding, Compresses)
{
    expectEncodes(aLaw, zorsLinToALaw_16s8u, everyValue<Zor16s>());
    expectEncodes(muLaw, zorsLinToMuLaw_16s8u, everyValue<Zor16s>());
    expectEncodes(aLaw, zorsLinToALaw_32f8u, floatsBetween(aLaw));
    expectEncodes(muLaw, zorsLinToMuLaw_32f8u, floatsBetween(muLaw));
}

void expectConverts(const Law& from, const Law& to, ZorStatus (*function)(const Zor8u*, Zor8u*, int))
{
    const auto amplitude = [](const Law& law) {
        return law.fullScale / std::pow(10, law.fullScaleLevel / 20);
    };
    const double ratio = amplitude(to) / amplitude(from);
    std::vector<Zor8u> converted;
    for (const Zor8u code : everyValue<Zor8u>())
        converted.push_back(
            codeOf(to, intervalOf(to, ratio * from.output(numberOf(from, code))), code & 0x80));
    expectAll<Zor8u, Zor8u>(everyValue<Zor8u>(), function, [&](Zor8u code) { return converted[code]; });
}

TEST(Companding, ConvertsBetweenTheLaws)
{
    expectConverts(aLaw, muLaw, zorsALawToMuLaw_8u);
    expectConverts(muLaw, aLaw, zorsMuLawToALaw_8u);
    // Entries of the Recommendation's conversion tables.
    Zor8u codes[] = {0xff, 0xfe, 0xfd, 0x80, 0x00, codeOf(muLaw, 48, true), codeOf(muLaw, 80, true)};
    ASSERT_EQ(zorsMuLawToALaw_8u(codes, codes, 7), zorStsOk);
    constexpr int numbers[] = {0, 0, 1, 127, 127, 45, 80};
    for (int n = 0; n < 7; ++n) EXPECT_EQ(codes[n], codeOf(aLaw, numbers[n], n != 4)) << n;
}

} // namespace
