// Filters that read what was before a block from the memory before it.
#include "filter/signal.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace zors::test {
namespace {

// The record of a stream, in memory of its own.
class Stream {
public:
    Stream(const StreamKind& stream, const Signal& s, Rates rates, bool multi) : kind_(*stream.kind)
    {
        int size = 0;
        EXPECT_EQ((multi ? stream.multiRateSize : stream.size)(s.tapsLen, &size), zorStsOk);
        memory_.resize(static_cast<std::size_t>(size));
        const Vector taps(kind_.taps, s.taps);
        EXPECT_EQ(
            multi ? stream.multiRateInit(&state_, taps.at(), s.tapsLen, s.tapsFactor, rates, memory_.data())
                  : stream.init(&state_, taps.at(), s.tapsLen, s.tapsFactor, memory_.data()),
            zorStsOk);
    }

    // The results of iterations of a signal from one on.
    Vector run(const Signal& s, Rates rates, int from, int iterations) const
    {
        const Vector samples(kind_.data, s.samples);
        Vector dst(kind_.data, std::ptrdiff_t{iterations} * rates.up, from % 4);
        EXPECT_EQ(kind_.run(samples.at(s.history + std::ptrdiff_t{from} * rates.down), dst.at(), iterations,
                            state_, s.scaleFactor),
                  zorStsOk);
        return dst;
    }

private:
    const Kind& kind_;
    std::vector<Zor8u> memory_;
    void* state_ = nullptr;
};

// All of it by blocks of random lengths, the last first.
Vector runBackwards(const Stream& stream, const Signal& s, Rates rates, int iterations, Random& random)
{
    Vector all(s.kind.data, std::ptrdiff_t{iterations} * rates.up);
    for (int end = iterations; end > 0;) {
        const int count = std::min(end, 1 + below(50, random));
        end -= count;
        all.copy(std::ptrdiff_t{end} * rates.up, stream.run(s, rates, end, count), 0,
                 std::ptrdiff_t{count} * rates.up);
    }
    return all;
}

TEST(Streams, AreSingleRateFilters)
{
    Random random;
    for (const StreamKind& stream : streamKinds())
        for (int tapsLen = 1; tapsLen <= 130; tapsLen += timeIsShort() ? 31 : 1) {
            const Kind& k = *stream.kind;
            SCOPED_TRACE(k.name + ", taps " + std::to_string(tapsLen));
            constexpr int len = 400;
            const Signal s = randomSignal(k, tapsLen, len, random);
            const Stream record(stream, s, {}, false);
            const Expected expected = s.expected(len);
            const Tolerance tolerance = ofBlocks(k, tapsLen);
            ASSERT_TRUE(within(tolerance, k, record.run(s, {}, 0, len), expected, s.scaleFactor));
            ASSERT_TRUE(
                within(tolerance, k, runBackwards(record, s, {}, len, random), expected, s.scaleFactor));
        }
}

// Long ones may go by transforms, as those of a filter that keeps its samples do.
TEST(Streams, TakeLongBlocks)
{
    Random random;
    for (const StreamKind& stream : streamKinds())
        for (const int tapsLen : {20, 64, 300}) {
            const Kind& k = *stream.kind;
            SCOPED_TRACE(k.name + ", taps " + std::to_string(tapsLen));
            constexpr int len = 3000;
            const Signal s = randomSignal(k, tapsLen, len, random);
            const Stream record(stream, s, {}, false);
            const Tolerance tolerance{ofBlocks(k, tapsLen).relative, errorOfTransforms * transformUnit(s)};
            ASSERT_TRUE(
                within(tolerance, k, record.run(s, {}, 0, len), s.expected(len, {}, 5), s.scaleFactor));
        }
}

TEST(Streams, AreMultiRateFilters)
{
    Random random;
    const int most = timeIsShort() ? 3 : 6;
    for (const StreamKind& stream : streamKinds())
        for (int up = 1; up <= most; ++up)
            for (int down = 1; down <= most; ++down)
                for (int phases = 0; phases < up * down; ++phases) {
                    const Kind& k = *stream.kind;
                    const Rates rates{up, phases % up, down, phases / up};
                    constexpr int lengths[] = {1, 5, 11, 24, 70}, iterations = 60;
                    const int tapsLen = lengths[(up + 3 * down + 7 * phases) % 5];
                    const Signal s = randomSignal(k, tapsLen, iterations * down, random, rates);
                    const Stream record(stream, s, rates, true);
                    const Expected expected = s.expected(iterations * up, rates);
                    const Vector want = record.run(s, rates, 0, iterations);
                    ASSERT_TRUE(within(ofMultiRate(k, tapsLen, up), k, want, expected, s.scaleFactor))
                        << k.name << ", taps " << tapsLen << ", rates " << up << '/' << down << ", phases "
                        << phases;
                    ASSERT_TRUE(runBackwards(record, s, rates, iterations, random) == want);
                }
}

} // namespace
} // namespace zors::test
