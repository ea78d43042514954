// Sample by sample: within the bound, and one stream with the blocks.
#include "filter/signal.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <utility>

namespace zors::test {
namespace {

TEST(One, IsWithinTheBound)
{
    Random random;
    for (const Kind& kind : singleRateKinds()) {
        for (int tapsLen = 1; tapsLen <= (timeIsShort() ? 12 : 130); ++tapsLen) {
            SCOPED_TRACE(kind.name + ", taps " + std::to_string(tapsLen));
            // Until the delay line has wandered through its memory, whatever length that has.
            const std::ptrdiff_t len = 4 * tapsLen + 40;
            const Signal s = randomSignal(kind, tapsLen, len, random);
            const Record record(s);
            const Vector got = runSingly(record, s, len);
            ASSERT_TRUE(within(ofBlocks(kind, tapsLen), kind, got, s.expected(len), s.scaleFactor));
            ASSERT_TRUE(record.delayLine(tapsLen) == s.delayLine(tapsLen, len)) << "delay line";
        }
        tellUse(kind);
    }
}

// Two numbers just above 1 whose product is rounded down by almost as much as can be.
std::pair<double, double> worstProduct(double unit, Random& random)
{
    const auto steps = static_cast<std::uint64_t>(0.1 / unit);
    const auto number = [&] { return 1 + 2 * unit * static_cast<double>(random() % steps); };
    for (;;) {
        const double a = number(), b = number();
        const long double lost = std::fmod(static_cast<long double>(a) * b, 2 * unit);
        if (lost > 0.99 * unit && lost < unit) return {a, b};
    }
}

// The newest product passes through all additions, each of which loses almost half a unit in the last place.
TEST(One, IsWithinTheBoundWhereEveryRoundingCounts)
{
    Random random;
    for (const char* name : {"_32f", "_32fc", "_64f", "_64fc"})
        for (int tapsLen = 1; tapsLen <= 20; ++tapsLen) {
            const Kind& k = kind(name);
            const double u = k.unit(), tiny = u * (1 - 2 * u);
            const auto [a, b] = worstProduct(u, random);
            Numbers taps, samples(static_cast<std::size_t>(tapsLen * k.data.parts)); // the history is silent
            for (int n = 0; n < tapsLen; ++n) {
                taps.push_back(n == 0 ? a : tiny);
                samples.push_back(n == tapsLen - 1 ? b : 1);
                if (k.isComplex()) taps.push_back(-tiny), samples.push_back(1);
            }
            const Signal s{k, tapsLen, tapsLen, taps, samples, 0, 0};
            const Record singly(s), block(s);
            ASSERT_TRUE(
                within(ofBlocks(k, tapsLen), k, runSingly(singly, s, tapsLen), s.expected(tapsLen), 0))
                << name << ", taps " << tapsLen;
            ASSERT_TRUE(within(ofBlocks(k, tapsLen), k, run(block, s, {tapsLen}), s.expected(tapsLen), 0))
                << name << ", taps " << tapsLen << ", a block";
        }
}

TEST(One, OfLongFilters)
{
    Random random;
    for (const Kind& kind : singleRateKinds())
        for (const int tapsLen : {255, 1024, 4096}) {
            if (timeIsShort() && tapsLen > 255) continue;
            SCOPED_TRACE(kind.name + ", taps " + std::to_string(tapsLen));
            const std::ptrdiff_t len = 3 * tapsLen + 10;
            const Signal s = randomSignal(kind, tapsLen, len, random);
            const Record record(s);
            const Vector got = runSingly(record, s, len);
            ASSERT_TRUE(within(ofBlocks(kind, tapsLen), kind, got, s.expected(len, {}, 37), s.scaleFactor));
            ASSERT_TRUE(record.delayLine(tapsLen) == s.delayLine(tapsLen, len)) << "delay line";
        }
}

// Samples and blocks in turn, of all lengths: the blocks have the bits of a stream of blocks.
TEST(One, MixesWithBlocks)
{
    Random random;
    for (const Kind& kind : singleRateKinds())
        for (const int tapsLen : {1, 2, 3, 5, 8, 17, 31, 33, 64, 100}) {
            if (timeIsShort() && tapsLen > 8) continue;
            SCOPED_TRACE(kind.name + ", taps " + std::to_string(tapsLen));
            constexpr std::ptrdiff_t len = 3000;
            const Signal s = randomSignal(kind, tapsLen, len, random);
            const Record blocks(s), mixed(s);
            const Vector want = run(blocks, s, equalCalls(len, 500));
            const Expected expected = s.expected(len);
            for (std::ptrdiff_t at = 0; at < len;) {
                const int count =
                    1 + below(static_cast<int>(std::min<std::ptrdiff_t>(len - at, 3 * tapsLen + 20)), random);
                Vector got(kind.data, len);
                if (random() % 2) {
                    got.copy(at, runSingly(mixed, s, count, at), 0, count);
                    Expected part = expected;
                    part.values.resize(static_cast<std::size_t>((at + count) * kind.data.parts));
                    ASSERT_TRUE(within(ofBlocks(kind, tapsLen), kind, got, part, s.scaleFactor, at))
                        << "sample by sample";
                } else {
                    got.copy(at, run(mixed, s, {count}, {random() % 2 == 0}, {}, at), 0, count);
                    ASSERT_GE(got.firstDifference(want, at), at + count) << "block at " << at;
                }
                at += count;
                ASSERT_TRUE(mixed.delayLine(tapsLen) == s.delayLine(tapsLen, at)) << "delay line";
            }
        }
}

} // namespace
} // namespace zors::test
