// Bad arguments: the first fault in the order of the checks is the status, and nothing is written.
#include "filter/order_of_use.h"
#include "filter/signal.h"

namespace zors::test {
namespace {

constexpr ZorStatus null = zorStsNullPointer, length = zorStsBadFirLength, factor = zorStsBadMultiRateFactor,
                    phase = zorStsBadMultiRatePhase, wrong = zorStsWrongContext;

TEST(Statuses, OfMakingSingleRateRecords)
{
    for (const Kind& k : singleRateKinds()) {
        SCOPED_TRACE(k.name);
        Untouched memory;
        const Vector taps(k.taps, 9);
        char mark;
        void* state = &mark;
        int size = 77;
        for (const int bad : badLengths) {
            expectOrder("GetStateSize", {null, length}, [&](unsigned faults) {
                return k.size(faults & 2 ? bad : 9, unless(faults & 1, &size));
            });
            expectOrder("Init", {null, null, null, length}, [&](unsigned faults) {
                return k.init(unless(faults & 1, &state), unless(faults & 2, taps.at()), faults & 8 ? bad : 9,
                              0, nullptr, unless(faults & 4, memory.get()));
            });
            expectOrder("InitAlloc", {null, null, length}, [&](unsigned faults) {
                return k.initAlloc(unless(faults & 1, &state), unless(faults & 2, taps.at()),
                                   faults & 4 ? bad : 9, 0, nullptr);
            });
        }
        EXPECT_EQ(size, 77);
        EXPECT_EQ(state, &mark);
    }
}

Rates withFaults(unsigned faults, int bad)
{
    return {faults & 1 ? bad : 3, faults & 4 ? 3 : 2, faults & 2 ? bad : 5, faults & 8 ? -1 : 4};
}

TEST(Statuses, OfMakingMultiRateRecords)
{
    for (const Kind& k : multiRateKinds()) {
        SCOPED_TRACE(k.name);
        Untouched memory;
        const Vector taps(k.taps, 9);
        char mark;
        void* state = &mark;
        int size = 77;
        for (const int bad : badLengths) {
            expectOrder("GetStateSize", {null, length, factor, factor}, [&](unsigned faults) {
                return k.multiRateSize(faults & 2 ? bad : 9, faults & 4 ? bad : 3, faults & 8 ? bad : 5,
                                       unless(faults & 1, &size));
            });
            expectOrder("Init", {null, null, null, length, factor, factor, phase, phase},
                        [&](unsigned faults) {
                            return k.multiRateInit(unless(faults & 1, &state), unless(faults & 2, taps.at()),
                                                   faults & 8 ? bad : 9, 0, withFaults(faults >> 4, bad),
                                                   nullptr, unless(faults & 4, memory.get()));
                        });
            if (!k.multiRateInitAlloc) continue;
            expectOrder("InitAlloc", {null, null, length, factor, factor, phase, phase},
                        [&](unsigned faults) {
                            return k.multiRateInitAlloc(unless(faults & 1, &state),
                                                        unless(faults & 2, taps.at()), faults & 4 ? bad : 9,
                                                        0, withFaults(faults >> 3, bad), nullptr);
                        });
        }
        for (const Rates rates :
             {Rates{3, -1, 5, 0}, Rates{3, 0, 5, 5}, Rates{1, 1, 1, 0}, Rates{1, 0, 1, 1}})
            EXPECT_EQ(k.multiRateInit(&state, taps.at(), 9, 0, rates, nullptr, memory.get()), phase);
        EXPECT_EQ(size, 77);
        EXPECT_EQ(state, &mark);
    }
}

TEST(Statuses, OfMakingStreamRecords)
{
    for (const StreamKind& s : streamKinds()) {
        SCOPED_TRACE(s.kind->name);
        Untouched memory;
        const Vector taps(s.kind->taps, 9);
        char mark;
        void* state = &mark;
        int size = 77;
        for (const int bad : badLengths) {
            for (const auto getSize : {s.size, s.multiRateSize})
                expectOrder("GetStateSize", {null, length}, [&](unsigned faults) {
                    return getSize(faults & 2 ? bad : 9, unless(faults & 1, &size));
                });
            expectOrder("Init", {null, null, null, length}, [&](unsigned faults) {
                return s.init(unless(faults & 1, &state), unless(faults & 2, taps.at()), faults & 8 ? bad : 9,
                              0, unless(faults & 4, memory.get()));
            });
            expectOrder("MRInit", {null, null, null, length, factor, factor, phase, phase},
                        [&](unsigned faults) {
                            return s.multiRateInit(unless(faults & 1, &state), unless(faults & 2, taps.at()),
                                                   faults & 8 ? bad : 9, 0, withFaults(faults >> 4, bad),
                                                   unless(faults & 4, memory.get()));
                        });
        }
        EXPECT_EQ(size, 77);
        EXPECT_EQ(state, &mark);
    }
}

TEST(Statuses, OfUse)
{
    Random random;
    constexpr Rates rates{3, 1, 2, 0};
    for (const Kind& k : multiRateKinds()) {
        SCOPED_TRACE(k.name);
        const Signal s = randomSignal(k, 9, 0, random, rates);
        const Record good(s, rates), tampered(s, rates);
        auto& first = *static_cast<Zor32u*>(tampered.get());
        const Zor32u before = first;
        for (const Zor32u other : {before + 0x40U, before ^ 0x80000000U, 0U}) {
            first = other;
            expectOrderOfUse(k, good.get(), tampered.get());
        }
        first = before;
        EXPECT_TRUE(good.delayLine(3) == s.delayLine(3)) << "changed in spite of an error";
    }
    for (const Kind& k : singleRateKinds()) {
        SCOPED_TRACE(k.name);
        const Signal s = randomSignal(k, 9, 0, random);
        const Record good(s), tampered(s);
        auto& first = *static_cast<Zor32u*>(tampered.get());
        const Zor32u before = first;
        first = 0x46493039U + 0x7000U;
        expectOrderOfUse(k, good.get(), tampered.get());
        first = before;
        EXPECT_TRUE(good.delayLine(9) == s.delayLine(9)) << "changed in spite of an error";
    }
}

// All of a kind's functions on a record of another.
void expectWrong(const Kind& k, void* state)
{
    Untouched src, dst;
    EXPECT_EQ(k.run(src.get(), dst.get(), 4, state, 0), wrong);
    EXPECT_EQ(k.runInPlace(dst.get(), 4, state, 0), wrong);
    EXPECT_EQ(k.setTaps(src.get(), state, 0), wrong);
    EXPECT_EQ(k.getTaps(state, dst.get(), 0), wrong);
    EXPECT_EQ(k.setDlyLine(state, src.get()), wrong);
    EXPECT_EQ(k.getDlyLine(state, dst.get()), wrong);
    EXPECT_EQ(k.free(state), wrong);
    if (k.one) {
        EXPECT_EQ(k.one(src.get(), dst.get(), state, 0), wrong);
    }
}

TEST(Statuses, OfRecordsOfOtherKinds)
{
    Random random;
    constexpr Rates rates{3, 1, 2, 0};
    std::vector<Kind> all = singleRateKinds();
    all.push_back(multiRateKinds().back());
    for (const Kind& owner : all)
        for (const Kind& user : all) {
            // Records of one type from other taps.
            if (owner.single && owner.single == user.single) continue;
            if (owner.name == user.name) continue;
            SCOPED_TRACE("a record of " + owner.name + " and functions of " + user.name);
            if (owner.single) {
                const Signal s = randomSignal(owner, 9, 0, random);
                expectWrong(user, Record(s).get());
            }
            if (owner.multiRate) {
                const Signal s = randomSignal(owner, 9, 0, random, rates);
                expectWrong(user, Record(s, rates).get());
            }
        }
}

TEST(Statuses, OneSampleNeedsASingleRate)
{
    Random random;
    for (const Kind& k : multiRateKinds()) {
        if (!k.one) continue;
        Untouched sample;
        constexpr Rates rates{2, 0, 1, 0};
        const Signal s = randomSignal(k, 9, 0, random, rates);
        const Record record(s, rates);
        EXPECT_EQ(k.one(sample.get(), sample.get(), record.get(), 0), wrong) << k.name;
    }
}

// Streams keep nothing that could be asked for, and read what in place would be overwritten.
TEST(Statuses, StreamsOnlyFilterOutOfPlace)
{
    for (const StreamKind& stream : streamKinds())
        for (const bool multi : {false, true}) {
            const Kind& k = *stream.kind;
            SCOPED_TRACE(k.name);
            Untouched src, dst;
            const Vector taps(k.taps, 9);
            int size = 0;
            ASSERT_EQ((multi ? stream.multiRateSize : stream.size)(9, &size), zorStsOk);
            std::vector<Zor8u> memory(static_cast<std::size_t>(size));
            void* state = nullptr;
            ASSERT_EQ(multi ? stream.multiRateInit(&state, taps.at(), 9, 0, Rates{3, 0, 2, 0}, memory.data())
                            : stream.init(&state, taps.at(), 9, 0, memory.data()),
                      zorStsOk);
            EXPECT_EQ(tagOf(state), tag(multi ? stream.multiRate : stream.single));
            EXPECT_EQ(k.run(dst.get() + 512, dst.get() + 512, 4, state, 0), wrong);
            EXPECT_EQ(k.runInPlace(dst.get() + 512, 4, state, 0), wrong);
            EXPECT_EQ(k.setTaps(src.get(), state, 0), wrong);
            EXPECT_EQ(k.getTaps(state, dst.get(), 0), wrong);
            EXPECT_EQ(k.setDlyLine(state, src.get()), wrong);
            EXPECT_EQ(k.getDlyLine(state, dst.get()), wrong);
            if (k.one) {
                EXPECT_EQ(k.one(src.get(), dst.get(), state, 0), wrong);
            }
            for (const Kind& other : singleRateKinds())
                if (other.name != k.name) expectWrong(other, state);
            EXPECT_EQ(k.free(state), zorStsOk);
            EXPECT_EQ(k.free(state), wrong);
        }
}

} // namespace
} // namespace zors::test
