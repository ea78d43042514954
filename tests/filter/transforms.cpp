// Long calls on long filters go by transforms: which do shows in the bits, and errors are of whole blocks.
#include "filter/signal.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>
#include <map>
#include <numeric>

namespace zors::test {
namespace {

// On numbers whose sums are exact the direct path gives the rounded sums themselves, and transforms do not.
class Paths {
public:
    Paths(const Kind& kind, int tapsLen, std::ptrdiff_t len)
        : signal_(exactSignal(kind, tapsLen, len, random)), direct_(runDirect())
    {
    }

    // Filters so many samples by one call.
    void call(int count, bool inPlace)
    {
        const Record record(signal_);
        got_ = run(record, signal_, {count}, {inPlace, 1});
        EXPECT_TRUE(record.delayLine(signal_.tapsLen) == signal_.delayLine(signal_.tapsLen, count))
            << "delay line after " << count;
    }
    // Of the elements from first to last all are the direct path's, or not all.
    void expectDirect(std::ptrdiff_t first, std::ptrdiff_t last) const
    {
        EXPECT_GE(got_.firstDifference(direct_, first), last) << "not on the direct path";
    }
    void expectTransformed(std::ptrdiff_t first, std::ptrdiff_t last) const
    {
        EXPECT_LT(got_.firstDifference(direct_, first), last) << "not by transforms";
    }

private:
    Vector runDirect() const
    {
        const Record record(signal_);
        return run(record, signal_, equalCalls(signal_.len(), 20));
    }

    static inline Random random;
    Signal signal_;
    Vector direct_;
    Vector got_{signal_.kind.data, 0};
};

void checkPaths(const Kind& kind, int tapsLen)
{
    SCOPED_TRACE(kind.name + ", taps " + std::to_string(tapsLen));
    const bool transformed = tapsLen >= kind.transformedFrom();
    constexpr int chunk = 4096, longest = 9000;
    Paths paths(kind, tapsLen, longest);
    {
        Random random;
        const Signal s = exactSignal(kind, tapsLen, 100, random);
        const Record record(s);
        const Vector got = run(record, s, {100});
        ASSERT_TRUE(within({0}, kind, got, s.expected(100), s.scaleFactor)) << "sums are not exact";
    }
    paths.call(511, false);
    paths.expectDirect(0, 511);
    for (const int count : {512, 1000, longest}) {
        paths.call(count, false);
        if (transformed)
            paths.expectTransformed(0, count);
        else
            paths.expectDirect(0, count);
    }
    // A chunk in place goes by transforms where 512 samples or more follow it.
    for (const int count : {512, 4095, chunk, chunk + 1, chunk + 511, chunk + 512, longest}) {
        SCOPED_TRACE("in place, " + std::to_string(count));
        paths.call(count, true);
        int first = 0;
        for (; transformed && count - first - chunk >= 512; first += chunk)
            paths.expectTransformed(first, first + chunk);
        paths.expectDirect(first, count);
    }
}

TEST(Transforms, AreOfLongCallsOnLongFilters)
{
    for (const Kind& kind : singleRateKinds())
        for (const int tapsLen : {31, 32, 63, 64, 65, 130, 255, 1024}) {
            if (timeIsShort() && tapsLen > 65) continue;
            checkPaths(kind, tapsLen);
            if (HasFailure()) return;
        }
}

// Of the root mean square of the errors of a call, in units of transformUnit: the taps' transform, the
// block's and the one back have 0.40 each.
constexpr double boundOfMean = 0.70;

struct Errors {
    double mean = 0, most = 0;
};

// Errors of floating results in the unit of the bounds.
Errors errorsOf(const Vector& got, const Expected& expected, Wide unit)
{
    const Numbers numbers = got.numbers();
    Wide squares = 0, most = 0;
    for (std::size_t i = 0; i < expected.values.size(); ++i) {
        const Wide error = std::abs(numbers[i] - expected.values[i]);
        squares += error * error;
        most = std::max(most, error);
    }
    const auto count = static_cast<Wide>(expected.values.size());
    return {static_cast<double>(std::sqrt(squares / count) / unit), static_cast<double>(most / unit)};
}

// Calls of the transforms' own thresholds, each beyond 511 samples.
std::vector<int> lengthsAroundThresholds(int tapsLen)
{
    const int step = transformStep(tapsLen), some = (512 + step - 1) / step * step;
    return {512, some, some + 1, some + step / 2};
}

void checkErrors(const Kind& kind, int tapsLen, std::map<std::string, Errors>& worst)
{
    static Random random;
    for (const int count : lengthsAroundThresholds(tapsLen)) {
        SCOPED_TRACE(kind.name + ", taps " + std::to_string(tapsLen) + ", samples " + std::to_string(count));
        const Signal s = randomSignal(kind, tapsLen, count, random);
        const Record record(s);
        const Vector got = run(record, s, {count}, {false, count % 3, count % 5});
        EXPECT_TRUE(record.delayLine(tapsLen) == s.delayLine(tapsLen, count)) << "delay line";
        const std::ptrdiff_t step = std::ptrdiff_t{count} * tapsLen > 1000000 ? 29
                                    : kind.data.number == kind.arithmetic     ? 1
                                                                              : 3;
        const Expected expected = s.expected(count, {}, step);
        const double unit = transformUnit(s);
        ASSERT_TRUE(within({0, errorOfTransforms * unit}, kind, got, expected, s.scaleFactor));
        if (!kind.data.isFloating() || kind.data.number != kind.arithmetic || step != 1) continue;
        const Errors errors = errorsOf(got, expected, unit);
        EXPECT_LE(errors.mean, boundOfMean);
        Errors& most = worst[kind.name];
        most = {std::max(most.mean, errors.mean), std::max(most.most, errors.most)};
    }
}

TEST(Transforms, ErrorsAreOfTheWholeBlock)
{
    std::map<std::string, Errors> worst;
    for (const Kind& kind : singleRateKinds()) {
        const int most = timeIsShort() ? kind.transformedFrom() + 1 : 130;
        for (int tapsLen = kind.transformedFrom(); tapsLen <= most && !HasFailure(); ++tapsLen)
            checkErrors(kind, tapsLen, worst);
        for (const int tapsLen : {255, 1024, 4096})
            if (!timeIsShort() && !HasFailure()) checkErrors(kind, tapsLen, worst);
    }
    for (const auto& [name, errors] : worst)
        std::printf("%-6s mean error %.3f, greatest %.2f\n", name.c_str(), errors.mean, errors.most);
}

// What a call by transforms leaves behind, the next one starts from, by transforms or not.
TEST(Transforms, JoinTheStream)
{
    Random random;
    for (const Kind& kind : singleRateKinds())
        for (const int tapsLen : {64, 100, 1024}) {
            if (timeIsShort() && tapsLen > 64) continue;
            SCOPED_TRACE(kind.name + ", taps " + std::to_string(tapsLen));
            const std::vector<int> calls = {600, 3, 1500, 511, 512, 40, tapsLen + 7};
            const std::ptrdiff_t len = std::accumulate(calls.begin(), calls.end(), 0);
            const Signal s = randomSignal(kind, tapsLen, len, random);
            const Record record(s);
            const Vector got = run(record, s, calls);
            const Tolerance tolerance{ofBlocks(kind, tapsLen).relative, errorOfTransforms * transformUnit(s)};
            ASSERT_TRUE(
                within(tolerance, kind, got, s.expected(len, {}, tapsLen > 100 ? 7 : 1), s.scaleFactor));
        }
}

} // namespace
} // namespace zors::test
