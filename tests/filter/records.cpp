// What a record remembers: its kind, its taps, and the samples that went through it.
#include "filter/signal.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <gtest/gtest.h>

namespace zors::test {
namespace {

constexpr int lengths[] = {1, 2, 3, 4, 5, 16, 31, 32, 63, 64, 65, 130, 1000};

TEST(Records, BeginWithTheirTag)
{
    Random random;
    for (const Kind& k : singleRateKinds()) {
        const Signal s = randomSignal(k, 5, 0, random);
        EXPECT_EQ(tagOf(Record(s).get()), tag(k.single)) << k.name;
    }
    constexpr Rates rates{3, 1, 2, 0}, equal{1, 0, 1, 0};
    for (const Kind& k : multiRateKinds()) {
        const Signal s = randomSignal(k, 5, 0, random, rates);
        EXPECT_EQ(tagOf(Record(s, rates).get()), tag(k.multiRate)) << k.name;
        const Signal e = randomSignal(k, 5, 0, random, equal);
        EXPECT_EQ(tagOf(Record(e, equal).get()), tag(k.single ? k.single : k.multiRate)) << k.name;
    }
}

// Given by Init or by InitAlloc, replaced by SetDlyLine, wherever in the record they stand by then.
TEST(Records, RememberSamples)
{
    Random random;
    for (const Kind& k : singleRateKinds())
        for (const int tapsLen : lengths) {
            SCOPED_TRACE(k.name + ", taps " + std::to_string(tapsLen));
            const Signal s = randomSignal(k, tapsLen, 2 * tapsLen + 20, random);
            const Vector zeros(k.data, tapsLen), given = s.delayLine(tapsLen);
            const Vector taps(k.taps, s.taps);
            const Record record(s);
            EXPECT_TRUE(record.delayLine(tapsLen) == given);
            const Vector want = run(record, s, {20});
            int size = 0;
            ASSERT_EQ(k.size(tapsLen, &size), zorStsOk);
            std::vector<Zor8u> memory(static_cast<std::size_t>(size));
            void* inMemory = nullptr;
            Vector got(k.data, tapsLen);
            for (const Vector* delays : {&given, &zeros}) {
                const void* line = delays == &zeros ? nullptr : delays->at();
                ASSERT_EQ(k.init(&inMemory, taps.at(), tapsLen, s.tapsFactor, line, memory.data()), zorStsOk);
                ASSERT_EQ(k.getDlyLine(inMemory, got.at()), zorStsOk);
                EXPECT_TRUE(got == *delays);
                runSingly(record, s, tapsLen + 3);
                ASSERT_EQ(k.setDlyLine(record.get(), line), zorStsOk);
                EXPECT_TRUE(record.delayLine(tapsLen) == *delays);
            }
            // The stream starts anew, by blocks and by samples.
            Vector sample(k.data, 1);
            ASSERT_EQ(k.setDlyLine(record.get(), given.at()), zorStsOk);
            ASSERT_EQ(k.one(s.stream().at(), sample.at(), record.get(), s.scaleFactor), zorStsOk);
            EXPECT_TRUE(record.delayLine(tapsLen) == s.delayLine(tapsLen, 1));
            ASSERT_EQ(k.setDlyLine(record.get(), given.at()), zorStsOk);
            EXPECT_TRUE(run(record, s, {20}) == want);
        }
}

TEST(Records, KeepFloatingTaps)
{
    Random random;
    for (const Kind& k : singleRateKinds()) {
        if (!k.taps.isFloating()) continue;
        for (const int tapsLen : lengths) {
            const Signal s = randomSignal(k, tapsLen, 0, random), other = randomSignal(k, tapsLen, 0, random);
            const Record record(s);
            const Vector taps(k.taps, s.taps), otherTaps(k.taps, other.taps);
            Vector got(k.taps, tapsLen);
            ASSERT_EQ(k.getTaps(record.get(), got.at(), 0), zorStsOk);
            EXPECT_TRUE(got == taps) << k.name << ", taps " << tapsLen;
            ASSERT_EQ(k.setTaps(otherTaps.at(), record.get(), 0), zorStsOk);
            ASSERT_EQ(k.getTaps(record.get(), got.at(), 0), zorStsOk);
            EXPECT_TRUE(got == otherTaps) << k.name << ", taps " << tapsLen;
        }
    }
}

// Integer taps mean themselves times a power of two. Asked for with another, they are rounded and saturated.
void checkIntegerTaps(const Kind& k, const Record& record, int tapsLen, Random& random)
{
    for (const int factor : {0, 15, 31, -3, 40, 1100, -1100, INT_MAX, INT_MIN}) {
        const Numbers set = randomNumbers(k.taps, tapsLen, random);
        const Vector taps(k.taps, set);
        ASSERT_EQ(k.setTaps(taps.at(), record.get(), factor), zorStsOk);
        for (const int more : {0, -1, -5, 1, 7, -40, 40}) {
            if (more != 0 && std::abs(Zor64s{factor}) > 2000) continue;
            Vector got(k.taps, tapsLen);
            ASSERT_EQ(k.getTaps(record.get(), got.at(), factor + more), zorStsOk);
            Numbers want = set;
            for (double& h : want)
                h = std::clamp(std::nearbyint(std::ldexp(h, more)), k.taps.least(), k.taps.most());
            ASSERT_TRUE(got == Vector(k.taps, want)) << k.name << ", factor " << factor << " and " << more;
        }
    }
}

TEST(Records, KeepIntegerTaps)
{
    Random random;
    constexpr Rates rates{2, 0, 3, 1};
    for (const Kind& k : multiRateKinds()) {
        if (k.taps.isFloating()) continue;
        for (const int tapsLen : {1, 4, 40}) {
            const Signal s = randomSignal(k, tapsLen, 0, random, rates);
            checkIntegerTaps(k, Record(s, rates), tapsLen, random);
            if (!k.single) continue;
            checkIntegerTaps(k, Record(randomSignal(k, tapsLen, 0, random)), tapsLen, random);
        }
    }
}

// Records of 32s_16s may be made from either taps: set as one, they can be asked for as the other.
TEST(Records, OfIntegerTapsTakeFloatingOnes)
{
    Random random;
    const std::vector<Kind>& all = singleRateKinds();
    for (const Kind& floating : all) {
        if (floating.name != "32s_16s32f" && floating.name != "32sc_16sc32fc") continue;
        const Kind& integer = kind(floating.isComplex() ? "32sc_16sc" : "32s_16s");
        constexpr int tapsLen = 9;
        const Signal s = randomSignal(floating, tapsLen, 0, random);
        const Record record(s);
        Numbers want = s.taps;
        for (double& h : want) h = std::nearbyint(std::ldexp(h, 20));
        Vector integers(integer.taps, tapsLen), floats(floating.taps, tapsLen);
        ASSERT_EQ(integer.getTaps(record.get(), integers.at(), 20), zorStsOk);
        EXPECT_TRUE(integers == Vector(integer.taps, want)) << floating.name;
        ASSERT_EQ(integer.setTaps(integers.at(), record.get(), 20), zorStsOk);
        for (double& h : want) h = std::ldexp(h, -20);
        ASSERT_EQ(floating.getTaps(record.get(), floats.at(), 0), zorStsOk);
        EXPECT_TRUE(floats == Vector(floating.taps, want)) << floating.name;
    }
}

// New taps reach every path, and leave the samples.
TEST(Records, FilterWithNewTaps)
{
    Random random;
    for (const Kind& k : singleRateKinds())
        for (const int tapsLen : {3, 31, 64, 200}) {
            SCOPED_TRACE(k.name + ", taps " + std::to_string(tapsLen));
            const Signal s = randomSignal(k, tapsLen, 6000, random);
            Signal other = s;
            other.taps = randomNumbers(k.taps, tapsLen, random);
            const std::vector<int> calls = {7, 300, 1000, 4000};
            const Record fresh(other), changed(s);
            const Vector taps(k.taps, other.taps);
            ASSERT_EQ(k.setTaps(taps.at(), changed.get(), k.tapsFactor()), zorStsOk);
            EXPECT_TRUE(changed.delayLine(tapsLen) == s.delayLine(tapsLen));
            EXPECT_TRUE(run(changed, s, calls) == run(fresh, other, calls));
            EXPECT_TRUE(runSingly(changed, s, 5) == runSingly(fresh, other, 5));
        }
}

// Released in the caller's memory a record is none any more, and the memory is his.
TEST(Records, EndInMemoryOfTheCaller)
{
    for (const Kind& k : singleRateKinds()) {
        int size = 0;
        ASSERT_EQ(k.size(70, &size), zorStsOk);
        std::vector<Zor8u> memory(static_cast<std::size_t>(size));
        const Vector taps(k.taps, 70);
        void* state = nullptr;
        ASSERT_EQ(k.init(&state, taps.at(), 70, 0, nullptr, memory.data()), zorStsOk);
        EXPECT_EQ(k.free(state), zorStsOk) << k.name;
        EXPECT_EQ(k.free(state), zorStsWrongContext) << k.name;
        Vector line(k.data, 70);
        EXPECT_EQ(k.run(line.at(), line.at(), 1, state, 0), zorStsWrongContext) << k.name;
    }
}

} // namespace
} // namespace zors::test
