// Integer results: one rounding of the sum by the scale factor, and saturation.
#include "filter/signal.h"

#include <climits>
#include <gtest/gtest.h>

namespace zors::test {
namespace {

constexpr int factors[] = {0,    1,       2,  3,  7,  8,   15,  16,  31,  40,  62,  63,    64,
                           1000, INT_MAX, -1, -2, -5, -15, -16, -31, -32, -40, -63, -1000, INT_MIN};

// Exact sums leave the results no choice: ties, zeros and ends of the range included.
TEST(Integers, AreTheRoundedSums)
{
    Random random;
    for (const Kind& kind : singleRateKinds()) {
        if (kind.data.isFloating()) continue;
        for (const int tapsLen : {1, 2, 7, 33, 100})
            for (const int factor : factors) {
                if (timeIsShort() && tapsLen != 7) continue;
                SCOPED_TRACE(kind.name + ", taps " + std::to_string(tapsLen) + ", scale factor " +
                             std::to_string(factor));
                constexpr int len = 150;
                Signal s = exactSignal(kind, tapsLen, len, random);
                s.scaleFactor = factor;
                const Expected expected = s.expected(len);
                const Record blocks(s), inPlace(s), singly(s);
                ASSERT_TRUE(within({0}, kind, run(blocks, s, {90, 60}), expected, factor));
                ASSERT_TRUE(within({0}, kind, run(inPlace, s, {90, 60}, {true}), expected, factor));
                ASSERT_TRUE(within({0}, kind, runSingly(singly, s, len), expected, factor));
            }
    }
}

// Full ranges of samples at factors that keep them, lose most of them, or saturate most.
TEST(Integers, OfAllSizes)
{
    Random random;
    for (const Kind& kind : singleRateKinds()) {
        if (kind.data.isFloating()) continue;
        for (const int tapsLen : {1, 5, 64, 130})
            for (const int factor : {-4, 0, 3, 9, 14, 15, 16, 30, 31, 33}) {
                if (timeIsShort() && tapsLen > 5) continue;
                SCOPED_TRACE(kind.name + ", taps " + std::to_string(tapsLen) + ", scale factor " +
                             std::to_string(factor));
                constexpr int len = 700;
                Signal s = randomSignal(kind, tapsLen, len, random);
                s.scaleFactor = factor;
                const Expected expected = s.expected(len);
                const Record blocks(s), long_(s), singly(s);
                ASSERT_TRUE(
                    within(ofBlocks(kind, tapsLen), kind, run(blocks, s, {300, 400}), expected, factor));
                ASSERT_TRUE(
                    within(ofBlocks(kind, tapsLen), kind, runSingly(singly, s, len), expected, factor));
                const Tolerance both{ofBlocks(kind, tapsLen).relative, errorOfTransforms * transformUnit(s)};
                ASSERT_TRUE(within(both, kind, run(long_, s, {len}), expected, factor));
            }
    }
}

} // namespace
} // namespace zors::test
