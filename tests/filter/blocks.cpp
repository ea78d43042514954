// Blocks on the direct path: within the bound, and the same bits however a stream is cut and wherever it is.
#include "filter/signal.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <numeric>
#include <utility>

namespace zors::test {
namespace {

// Where the ways of a short call part.
int blockLimit(int tapsLen)
{
    return ((tapsLen + 3) & ~3) + 1;
}

// Calls that stay on the direct path: the longer ones in place, up to one of 4096 samples.
void appendFitting(std::vector<int>& calls, int length, bool inPlace, const Kind& kind, int tapsLen)
{
    const bool transformed = tapsLen >= kind.transformedFrom();
    if (!transformed || length < (inPlace ? 4097 : 512)) calls.push_back(length);
}

std::vector<int> lengthsAroundThresholds(const Kind& kind, int tapsLen, bool inPlace)
{
    std::vector<int> calls(20);
    std::iota(calls.begin(), calls.end(), 1);
    const int limit = blockLimit(tapsLen);
    for (const int length : {limit - 1, limit, limit + 1, 511, 512, 2 * limit + 3})
        appendFitting(calls, length, inPlace, kind, tapsLen);
    return calls;
}

void expectBits(const Signal& s, const Vector& want, const std::vector<int>& calls, How how, const char* what)
{
    const Record record(s);
    const Vector got = run(record, s, calls, how);
    const std::ptrdiff_t n = got.firstDifference(want);
    EXPECT_EQ(n, got.len()) << what << ": other bits from element " << n << " on";
    EXPECT_TRUE(record.delayLine(s.tapsLen) == s.delayLine(s.tapsLen, got.len())) << what << ": delay line";
}

void checkDirectPath(const Kind& kind, int tapsLen, bool thorough)
{
    static Random random;
    SCOPED_TRACE(kind.name + ", taps " + std::to_string(tapsLen));
    const std::vector<int> outOfPlace = lengthsAroundThresholds(kind, tapsLen, false),
                           inPlace = lengthsAroundThresholds(kind, tapsLen, true);
    const auto len = std::max(std::accumulate(outOfPlace.begin(), outOfPlace.end(), 0),
                              std::accumulate(inPlace.begin(), inPlace.end(), 0));
    const Signal s = randomSignal(kind, tapsLen, len, random);
    const Record record(s);
    const Vector want = run(record, s, equalCalls(len, 13));
    const std::ptrdiff_t step = thorough ? 1 : 13;
    ASSERT_TRUE(within(ofBlocks(kind, tapsLen), kind, want, s.expected(len, {}, step), s.scaleFactor));

    expectBits(s, want, outOfPlace, {false, 1, 3}, "lengths around thresholds");
    expectBits(s, want, inPlace, {true, 5}, "lengths around thresholds, in place");
    expectBits(s, want, randomCalls(len, 511, random), {false, 2, 0}, "random cuts");
    expectBits(s, want, randomCalls(len, 60, random), {true, 1}, "short random cuts, in place");
    if (!thorough) return;
    for (int place = 0; place < 16; place += 3)
        expectBits(s, want, {std::min<int>(static_cast<int>(len), 300)}, {false, place, 15 - place},
                   "alignment");
}

TEST(Blocks, ShortFilters)
{
    const int most = timeIsShort() ? 24 : 130;
    for (const Kind& kind : singleRateKinds()) {
        for (int tapsLen = 1; tapsLen <= most && !HasFailure(); ++tapsLen)
            checkDirectPath(kind, tapsLen, true);
        tellUse(kind);
    }
}

TEST(Blocks, LongFilters)
{
    for (const Kind& kind : singleRateKinds())
        for (const int tapsLen : {255, 1024, 4096}) {
            if (timeIsShort() && tapsLen > 255) continue;
            checkDirectPath(kind, tapsLen, false);
            if (HasFailure()) return;
        }
}

// A sample that has left the window, or has not come yet, may be infinite. Each place in the stream is tried.
void checkWindow(const Kind& kind, int tapsLen, bool singly)
{
    static Random random;
    constexpr std::ptrdiff_t len = 90;
    Signal s = randomSignal(kind, tapsLen, len, random);
    const Record clean(s);
    const Vector want = singly ? runSingly(clean, s, len) : run(clean, s, equalCalls(len, 13));
    for (std::ptrdiff_t at = -s.history; at < len; at += 1 + (at + s.history) % 3) {
        const auto first = static_cast<std::size_t>((s.history + at) * kind.data.parts);
        const double before = std::exchange(s.samples[first], std::numeric_limits<double>::infinity());
        const Record record(s);
        const Vector got = singly ? runSingly(record, s, len) : run(record, s, randomCalls(len, 40, random));
        s.samples[first] = before;
        const Numbers numbers = got.numbers();
        for (std::ptrdiff_t n = 0; n < len; ++n) {
            const bool reached = n >= at && n < at + tapsLen;
            if (reached)
                ASSERT_FALSE(std::isfinite(numbers[static_cast<std::size_t>(n * kind.data.parts)]));
            else
                ASSERT_NE(got.firstDifference(want, n), n) << "output " << n << ", infinity at " << at;
        }
    }
}

TEST(Blocks, NothingOutsideTheWindowCounts)
{
    for (const Kind& kind : singleRateKinds()) {
        if (!kind.data.isFloating()) continue;
        for (const bool singly : {false, true})
            for (int tapsLen = 1; tapsLen <= (timeIsShort() ? 9 : 40); ++tapsLen) {
                SCOPED_TRACE(kind.name + ", taps " + std::to_string(tapsLen) + (singly ? ", singly" : ""));
                checkWindow(kind, tapsLen, singly);
                if (HasFailure()) return;
            }
    }
}

} // namespace
} // namespace zors::test
