// The error of every transform at every order, beside a transform in wider arithmetic.
#include "support/count.h"
#include "transform/samples.h"

#include <cstdio>
#include <gtest/gtest.h>
#include <map>

namespace zors::test {
namespace {

// Root mean squares, relative to the result, in units of eps sqrt(log2 N).
constexpr double bound = 0.40;
constexpr double roundingOfFactor = 0.30; // in units of eps: 1 / sqrt(12) and a little

struct Sample {
    std::vector<Wide> input;
    WideVector expected;
};

// Transforms share their samples: the same numbers as pairs, or as the parts of a spectrum.
const std::vector<Sample>& samplesFor(const Transform& t, int order)
{
    static std::map<std::tuple<Format, Number, bool>, std::vector<Sample>> all;
    static int orderOfSamples = -1;
    if (order != orderOfSamples) all.clear();
    orderOfSamples = order;
    std::vector<Sample>& samples = all[{t.in.format, t.in.number, t.inverse}];
    Random random;
    while (static_cast<int>(samples.size()) < RelativeError::samples(order)) {
        const auto input = randomNumbers(t.in, pointsOf(order), random);
        const WideVector forward = dft(pointsFrom(input, t.in.format, pointsOf(order)));
        samples.push_back({input, t.inverse ? inverseFromForward(forward) : forward});
    }
    return samples;
}

std::vector<Wide> run(const Transform& t, const Spec& spec, const std::vector<Wide>& input, int order,
                      int scaleFactor)
{
    Memory in(t.in.bytes(pointsOf(order))), out(t.out.bytes(pointsOf(order)));
    writeNumbers(input, t.in.number, in.get());
    EXPECT_EQ(t.run(in.get(), out.get(), spec.get(), pointsOf(order), scaleFactor, nullptr), zorStsOk);
    return readNumbers(out.get(), t.out.number, t.out.numbers(pointsOf(order)));
}

double errorOf(const Transform& t, int order, int flag)
{
    const Spec spec(*t.kind, order, flag);
    const Wide factor = factorOf(flag, t.inverse, pointsOf(order));
    RelativeError error;
    for (const Sample& sample : samplesFor(t, order)) {
        const WideVector got =
            pointsFrom(run(t, spec, sample.input, order, 0), t.out.format, pointsOf(order));
        WideVector expected = sample.expected;
        for (auto& p : expected) p *= factor;
        error.add(got, expected);
        compared(static_cast<long long>(expected.size()));
    }
    return error.value() / t.epsilon();
}

TEST(Accuracy, FloatingTransforms)
{
    std::map<std::string, double> worst;
    for (int order = 0; order <= longestOrder(22); ++order)
        for (const Transform& t : transforms()) {
            if (!isFloating(t.in.number)) continue;
            // Long ones differ from CCS no more than short ones do.
            const bool packed = std::max(t.in.format, t.out.format) > Format::ccs;
            if (packed && order > 18 && order != 20) continue;
            for (const int flag : flags) {
                // Long transforms take their time: one with and one without a factor, the longest only without.
                if (order > 14 && flag != ZOR_FFT_SCALE_SQRT && flag != ZOR_FFT_SCALE_NONE) continue;
                if (order > 18 && flag != ZOR_FFT_SCALE_NONE) continue;
                const double error = errorOf(t, order, flag);
                const double more = factorOf(flag, t.inverse, pointsOf(order)) == 1 ? 0 : roundingOfFactor;
                const double unit = std::sqrt(order);
                EXPECT_LE(error, bound * unit + more) << t.name << ", order " << order << ", flag " << flag;
                if (order > 0 && more == 0) worst[t.name] = std::max(worst[t.name], error / unit);
            }
        }
    for (const auto& [name, error] : worst)
        std::printf("%-18s at most %.3f eps sqrt(log2 N)\n", name.c_str(), error);
}

// Integer results are the rounded ones, and where the exact value is out of range the nearest there is.
TEST(Accuracy, IntegerTransforms)
{
    for (int order = 0; order <= longestOrder(14); ++order)
        for (const Transform& t : transforms()) {
            if (isFloating(t.in.number)) continue;
            const Sample& sample = samplesFor(t, order).front();
            const std::vector<Wide> expected = numbersFrom(sample.expected, t.out.format);
            Wide power = 0;
            for (const Wide x : expected) power += x * x;
            const Wide size = std::sqrt(power / static_cast<Wide>(expected.size()));
            const Wide most = t.out.number == Number::int16 ? 0x7fffL : 0x7fffffffL;
            for (const int flag : flags) {
                const Spec spec(*t.kind, order, flag);
                for (const int scaleFactor : {0, order, order / 2 + 1, order - 20, 40}) {
                    const Wide factor = std::ldexp(factorOf(flag, t.inverse, pointsOf(order)), -scaleFactor);
                    // No single error is ten times the root mean square.
                    const Wide slack = 0.5L + 10 * (bound * order + roundingOfFactor) *
                                                  static_cast<Wide>(t.epsilon()) * size * factor;
                    const std::vector<Wide> got = run(t, spec, sample.input, order, scaleFactor);
                    compared(static_cast<long long>(got.size()));
                    for (std::size_t i = 0; i < got.size(); ++i) {
                        const Wide want = expected[i] * factor;
                        const Wide low = std::clamp(want - slack, -most - 1, most);
                        const Wide high = std::clamp(want + slack, -most - 1, most);
                        ASSERT_TRUE(got[i] >= low && got[i] <= high)
                            << t.name << ", order " << order << ", flag " << flag << ", scale factor "
                            << scaleFactor << ", number " << i << ": " << got[i] << " instead of " << want;
                    }
                }
            }
        }
}

} // namespace
} // namespace zors::test
