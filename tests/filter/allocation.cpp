// What happens when memory runs out, and who asks for any.
#include "filter/signal.h"
#include "support/allocator.h"

#include <gtest/gtest.h>

namespace zors::test {
namespace {

// Makes records while each allocation fails in turn, until none is left to fail. The first one is of the record; the
// others are of its transform, which a filter is as good without.
template <class Make>
void expectNothingLeft(const Kind& kind, Make make)
{
    for (int failing = 0;; ++failing) {
        allocator = {};
        allocator.untilFailure = failing;
        char mark;
        void* state = &mark;
        const ZorStatus status = make(&state);
        const bool hasFailed = allocator.untilFailure < 0;
        if (failing == 0) {
            ASSERT_TRUE(hasFailed) << "nothing was allocated";
            EXPECT_EQ(status, zorStsNoMemory);
            EXPECT_EQ(state, &mark) << "a record was handed out";
        } else {
            ASSERT_EQ(status, zorStsOk);
            EXPECT_EQ(kind.free(state), zorStsOk);
        }
        EXPECT_TRUE(allocator.live.empty()) << "allocation " << failing;
        EXPECT_FALSE(allocator.strayRelease);
        if (!hasFailed) return;
    }
}

TEST(Allocation, InitAllocLeavesNothingBehind)
{
    for (const Kind& k : singleRateKinds())
        for (const int tapsLen : {1, 31, 32, 63, 64, 1000, 5000}) {
            SCOPED_TRACE(k.name + ", taps " + std::to_string(tapsLen));
            const Vector taps(k.taps, tapsLen);
            expectNothingLeft(k, [&](void** pp) { return k.initAlloc(pp, taps.at(), tapsLen, 0, nullptr); });
        }
    for (const Kind& k : multiRateKinds())
        for (const Rates rates : {Rates{}, Rates{1, 0, 10, 0}, Rates{3, 0, 2, 0}}) {
            if (!k.multiRateInitAlloc) continue;
            constexpr int tapsLen = 100;
            SCOPED_TRACE(k.name + ", rates " + std::to_string(rates.up) + '/' + std::to_string(rates.down));
            const Vector taps(k.taps, tapsLen);
            expectNothingLeft(k, [&](void** pp) {
                return k.multiRateInitAlloc(pp, taps.at(), tapsLen, 0, rates, nullptr);
            });
        }
}

// Long calls of a filter without its transform go by sums of products.
TEST(Allocation, WithoutMemoryForATransformFiltersGoWithout)
{
    Random random;
    for (const Kind& k : singleRateKinds()) {
        allocator = {};
        const Signal s = randomSignal(k, 64, 600, random);
        const Vector taps(k.taps, s.taps), line = s.delayLine(s.history);
        const Record record(s);
        const Vector want = run(record, s, equalCalls(600, 100));
        allocator.untilFailure = 1;
        void* state = nullptr;
        ASSERT_EQ(k.initAlloc(&state, taps.at(), s.tapsLen, s.tapsFactor, line.at()), zorStsOk);
        allocator.untilFailure = -1;
        Vector got(k.data, 600);
        EXPECT_EQ(k.run(s.stream().at(), got.at(), 600, state, s.scaleFactor), zorStsOk);
        EXPECT_TRUE(got == want) << k.name;
        EXPECT_EQ(k.setTaps(taps.at(), state, s.tapsFactor), zorStsOk);
        EXPECT_EQ(k.free(state), zorStsOk);
    }
}

// A record in the caller's memory takes no more than that.
TEST(Allocation, InitTakesTheMemoryItIsGiven)
{
    for (const Kind& k : singleRateKinds())
        for (const int tapsLen : {1, 63, 64, 5000}) {
            allocator = {};
            const Vector taps(k.taps, tapsLen);
            int size = 0;
            ASSERT_EQ(k.size(tapsLen, &size), zorStsOk);
            std::vector<Zor8u> memory(static_cast<std::size_t>(size));
            void* state = nullptr;
            EXPECT_EQ(k.init(&state, taps.at(), tapsLen, 0, nullptr, memory.data()), zorStsOk);
            EXPECT_EQ(k.free(state), zorStsOk);
            EXPECT_TRUE(allocator.sizesAsked.empty() && allocator.pointersFreed.empty()) << k.name;
        }
}

TEST(Allocation, FiltersAskForNone)
{
    Random random;
    for (const Kind& k : singleRateKinds())
        for (const int tapsLen : {5, 64, 1000}) {
            const Signal s = randomSignal(k, tapsLen, 9000, random);
            const Record record(s);
            allocator.sizesAsked.clear();
            run(record, s, {511, 600});
            run(record, s, {5, 9000 - 5}, {true});
            runSingly(record, s, 3);
            EXPECT_TRUE(allocator.sizesAsked.empty()) << k.name << ", taps " << tapsLen;
        }
    for (const Kind& k : multiRateKinds())
        for (const Rates rates : {Rates{2, 0, 3, 0}, Rates{2, 1, 2, 1}, Rates{1, 0, 4, 0}}) {
            const Signal s = randomSignal(k, 50, 9000, random, rates);
            const Record record(s, rates);
            allocator.sizesAsked.clear();
            run(record, s, {7, 2200}, {false}, rates);
            run(record, s, {7, 2200}, {true}, rates);
            EXPECT_TRUE(allocator.sizesAsked.empty()) << k.name;
        }
}

// But for what has to be read before more than it is written in its place.
TEST(Allocation, RaisingTheRateInPlaceTakesACopy)
{
    Random random;
    constexpr Rates rates{3, 1, 2, 0};
    constexpr int iterations = 100;
    for (const Kind& k : multiRateKinds()) {
        SCOPED_TRACE(k.name);
        const Signal s = randomSignal(k, 20, iterations * rates.down, random, rates);
        const Record record(s, rates);
        const std::size_t before = allocator.live.size();
        allocator.sizesAsked.clear();
        run(record, s, {iterations}, {true}, rates);
        EXPECT_EQ(allocator.sizesAsked.size(), 1U);
        EXPECT_EQ(allocator.live.size(), before);
        const Vector line = record.delayLine(s.history);
        const Vector untouched(k.data, s.samples);
        Vector data = untouched;
        allocator.untilFailure = 0;
        EXPECT_EQ(k.runInPlace(data.at(), 60, record.get(), 0), zorStsNoMemory);
        allocator.untilFailure = -1;
        EXPECT_TRUE(data == untouched && record.delayLine(s.history) == line)
            << "changed in spite of an error";
        EXPECT_EQ(allocator.live.size(), before);
    }
}

} // namespace
} // namespace zors::test
