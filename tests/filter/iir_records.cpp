// Records of recursive filters: sizes, tags, taps and delay lines, faults, memory.
#include "filter/iir_signal.h"
#include "filter/order_of_use.h"
#include "support/allocator.h"

#include <gtest/gtest.h>
#include <zors.h>

namespace zors::test {
namespace {

constexpr ZorStatus null = zorStsNullPointer, order = zorStsBadIirOrder, wrong = zorStsWrongContext,
                    zero = zorStsDivByZeroError, memory_ = zorStsNoMemory, size_ = zorStsBadSize;

// The least order or number of sections.
int leastOf(const IirKind& k)
{
    return k.kind.taps.isFloating() || k.isCascade() ? 1 : 0;
}

// The divisors of a filter, made zero: a0, or b0 of a section.
Vector withoutDivisor(const IirSignal& s, int section, bool b0 = false)
{
    Numbers taps = s.taps.numbers();
    const int at = b0 ? 6 * section : s.kind.isCascade() ? 6 * section + 3 : s.count + 1;
    for (int part = 0; part < s.kind.kind.taps.parts; ++part)
        taps[static_cast<std::size_t>(at * s.kind.kind.taps.parts + part)] = 0;
    return {s.kind.kind.taps, taps};
}

TEST(IirRecords, OfSinglePrecisionHaveSettledSizes)
{
    using Size = long long;
    for (const IirKind& k : iirKinds()) {
        if (!k.kind.isNarrow() || k.kind.isComplex() || k.structure == Structure::directForm1) continue;
        const Size chunks = k.kind.data.isFloating() ? 1024 : 2048;
        for (const int n : {1, 2, 3, 4, 5, 7, 8, 11, 12, 13, 100, 1001, 1000000}) {
            const Size count = n;
            const Size want = k.isCascade() ? (20 * count + 15) / 16 * 16 + (8 * count + 15) / 16 * 16 +
                                                  (chunks + 40 * count) * 4 + 168
                                            : (8 * count + 19) / 16 * 16 + (4 * count + 19) / 16 * 16 +
                                                  (8 * count + 16 + chunks) * 4 + 168;
            int size = 0;
            ASSERT_EQ(k.kind.size(n, &size), zorStsOk);
            EXPECT_EQ(size, want) << k.kind.name << ", " << n;
        }
    }
    // One of each by hand, so that the formula is held to something, too.
    int size = 0;
    zorsIIRGetStateSize_32f(4, &size);
    EXPECT_EQ(size, 48 + 32 + 4288 + 168);
    zorsIIRGetStateSize32f_BiQuad_16s(3, &size);
    EXPECT_EQ(size, 64 + 32 + 8672 + 168);
}

TEST(IirRecords, RememberTheirDelayLine)
{
    Random random;
    for (const IirKind& k : iirKinds())
        for (const int count : {1, 2, 3, 9}) {
            SCOPED_TRACE(k.kind.name + ", " + std::to_string(count));
            const IirSignal s = randomIirSignal(k, count, 40, random);
            const Vector zeros(k.number(), k.delays(count));
            int size = 0;
            ASSERT_EQ(k.kind.size(count, &size), zorStsOk);
            std::vector<Zor8u> memory(static_cast<std::size_t>(size));
            const IirRecord record(s);
            EXPECT_EQ(tagOf(record.get()), tag(k.kind.single, 'I'));
            const Vector want = run(record, s, {40});
            for (const Vector* delay : {&s.delay, &zeros}) {
                const void* line = delay == &zeros ? nullptr : delay->at();
                Vector got(k.number(), k.delays(count));
                void* state = nullptr;
                ASSERT_EQ(k.kind.init(&state, s.taps.at(), count, s.tapsFactor, line, memory.data()),
                          zorStsOk);
                EXPECT_EQ(tagOf(state), tag(k.kind.single, 'I'));
                ASSERT_EQ(k.kind.getDlyLine(state, got.at()), zorStsOk);
                EXPECT_TRUE(got == *delay);
                ASSERT_EQ(k.kind.setDlyLine(record.get(), line), zorStsOk);
                EXPECT_TRUE(record.delayLine() == *delay);
                // Released in the caller's memory a record is none any more, and the memory is his.
                EXPECT_EQ(k.kind.free(state), zorStsOk);
                EXPECT_EQ(k.kind.free(state), wrong);
            }
            ASSERT_EQ(k.kind.setDlyLine(record.get(), s.delay.at()), zorStsOk);
            EXPECT_TRUE(run(record, s, {40}) == want) << "the stream anew";
        }
}

// New taps are a new filter; refused ones are none, or those before the section that is refused.
TEST(IirRecords, TakeNewTaps)
{
    Random random;
    constexpr int count = 4, len = 60;
    for (const IirKind& k : iirKinds()) {
        SCOPED_TRACE(k.kind.name);
        const IirSignal old = randomIirSignal(k, count, len, random);
        IirSignal next = randomIirSignal(k, count, len, random);
        next.delay = old.delay;
        next.samples = old.samples;
        next.scaleFactor = old.scaleFactor;
        const IirRecord before(old), after(next), changed(old), refused(old);
        ASSERT_EQ(k.kind.setTaps(next.taps.at(), changed.get(), next.tapsFactor), zorStsOk);
        EXPECT_TRUE(changed.delayLine() == old.delay);
        EXPECT_TRUE(run(changed, old, {len}) == run(after, old, {len}));
        if (!k.isCascade()) {
            EXPECT_EQ(k.kind.setTaps(withoutDivisor(next, 0).at(), refused.get(), next.tapsFactor), zero);
            EXPECT_TRUE(run(refused, old, {len}) == run(before, old, {len}));
            continue;
        }
        for (const bool b0 : {false, true}) {
            EXPECT_EQ(k.kind.setTaps(withoutDivisor(next, 2, b0).at(), refused.get(), next.tapsFactor), zero);
            Numbers mixed = old.taps.numbers();
            const Numbers taps = next.taps.numbers();
            std::copy_n(taps.begin(), 12 * k.kind.taps.parts, mixed.begin());
            if (!k.kind.taps.isFloating() && old.tapsFactor != next.tapsFactor) continue;
            IirSignal both = old;
            both.taps = Vector(k.kind.taps, mixed);
            const IirRecord reference(both);
            ASSERT_EQ(k.kind.setDlyLine(refused.get(), old.delay.at()), zorStsOk);
            EXPECT_TRUE(run(refused, old, {len}) == run(reference, old, {len})) << "b0 " << b0;
        }
    }
}

// Taps that leave nothing to feed back.
TEST(IirRecords, OfIntegerTapsMayHaveOrderZero)
{
    const Zor32s taps[] = {3 << 20, 2 << 20};
    ZorsIIRState32s_16s* state = nullptr;
    ASSERT_EQ(zorsIIRInitAlloc32s_16s(&state, taps, 0, 20, nullptr), zorStsOk);
    Zor16s x[] = {2, 4, -3, 1}, y[4];
    ASSERT_EQ(zorsIIR32s_16s_Sfs(x, y, 4, state, 0), zorStsOk);
    EXPECT_EQ(std::vector<Zor16s>(y, y + 4), std::vector<Zor16s>({3, 6, -4, 2}));
    EXPECT_EQ(zorsIIRFree32s_16s(state), zorStsOk);
}

TEST(IirRecords, CheckWhatTheyAreMadeOf)
{
    Random random;
    for (const IirKind& k : iirKinds()) {
        SCOPED_TRACE(k.kind.name);
        Untouched buffer;
        const IirSignal s = randomIirSignal(k, 4, 1, random);
        char mark;
        void* state = &mark;
        int size = 77;
        const auto init = [&](const void* taps, int count) {
            return k.kind.init(&state, taps, count, s.tapsFactor, nullptr, buffer.get());
        };
        const auto initAlloc = [&](const void* taps, int count) {
            return k.kind.initAlloc(&state, taps, count, s.tapsFactor, nullptr);
        };
        for (const int bad : {leastOf(k) - 1, -7, INT_MIN}) {
            const Vector none = withoutDivisor(s, 0);
            const auto taps = [&](unsigned faults, unsigned isNull, unsigned isZero) {
                return unless(faults & isNull, (faults & isZero ? none : s.taps).at());
            };
            expectOrder("GetStateSize", {null, order},
                        [&](unsigned f) { return k.kind.size(f & 2 ? bad : 4, unless(f & 1, &size)); });
            expectOrder("Init", {null, null, null, order, zero}, [&](unsigned f) {
                return k.kind.init(unless(f & 1, &state), taps(f, 2, 16), f & 8 ? bad : 4, s.tapsFactor,
                                   nullptr, unless(f & 4, buffer.get()));
            });
            expectOrder("InitAlloc", {null, null, order, zero}, [&](unsigned f) {
                return k.kind.initAlloc(unless(f & 1, &state), taps(f, 2, 8), f & 4 ? bad : 4, s.tapsFactor,
                                        nullptr);
            });
        }
        for (int section = 0; section < (k.isCascade() ? 4 : 0); ++section)
            for (const bool b0 : {false, true}) {
                EXPECT_EQ(init(withoutDivisor(s, section, b0).at(), 4), zero);
                EXPECT_EQ(initAlloc(withoutDivisor(s, section, b0).at(), 4), zero);
            }
        EXPECT_EQ(k.kind.size(INT_MAX, &size), size_);
        EXPECT_EQ(init(s.taps.at(), INT_MAX), size_);
        EXPECT_EQ(initAlloc(s.taps.at(), INT_MAX), size_);
        EXPECT_EQ(size, 77);
        EXPECT_EQ(state, &mark) << "a record was handed out in spite of an error";
    }
}

TEST(IirRecords, CheckTheirUse)
{
    Random random;
    for (const IirKind& k : iirKinds()) {
        SCOPED_TRACE(k.kind.name);
        const IirSignal s = randomIirSignal(k, 3, 1, random);
        const IirRecord good(s), tampered(s);
        auto& first = *static_cast<Zor32u*>(tampered.get());
        const Zor32u before = first;
        for (const Zor32u other : {before ^ 0x0f000000U, before + 0x4000U, 0U}) {
            first = other;
            expectOrderOfUse(k.kind, good.get(), tampered.get());
        }
        first = before;
        EXPECT_TRUE(good.delayLine() == s.delay) << "changed in spite of an error";
        // Records of other types; the structures of one type, and its other names, share most functions.
        for (const IirKind& owner : iirKinds()) {
            if (owner.kind.free == k.kind.free) continue;
            const IirSignal other = randomIirSignal(owner, 3, 1, random);
            const IirRecord record(other);
            expectOrderOfUse(k.kind, good.get(), record.get());
        }
        if (k.structure == Structure::directForm1) {
            Untouched sample;
            EXPECT_EQ(iirKinds()[0].kind.one(sample.get(), sample.get(), good.get(), 0), wrong);
        }
    }
}

// Each allocation fails in turn, until none is left to fail. Only integer taps take memory beside the record's.
TEST(IirRecords, LeaveNothingBehind)
{
    Random random;
    for (const IirKind& k : iirKinds()) {
        SCOPED_TRACE(k.kind.name);
        const IirSignal s = randomIirSignal(k, 3, 1, random);
        const std::size_t temporary = k.kind.taps.isFloating() ? 0 : 1;
        int size = 0;
        ASSERT_EQ(k.kind.size(3, &size), zorStsOk);
        std::vector<Zor8u> memory(static_cast<std::size_t>(size));
        const auto count = [&](auto call) {
            for (int failing = 0;; ++failing) {
                allocator = {};
                allocator.untilFailure = failing;
                const ZorStatus status = call();
                if (allocator.untilFailure >= 0) {
                    EXPECT_EQ(status, zorStsOk);
                    return allocator.sizesAsked.size();
                }
                EXPECT_EQ(status, memory_);
                EXPECT_TRUE(allocator.live.empty()) << "allocation " << failing;
            }
        };
        char mark;
        void* state = &mark;
        EXPECT_EQ(count([&] {
                      EXPECT_EQ(state, &mark) << "a record was handed out";
                      return k.kind.initAlloc(&state, s.taps.at(), 3, s.tapsFactor, nullptr);
                  }),
                  temporary + 1);
        EXPECT_EQ(k.kind.free(state), zorStsOk);
        EXPECT_TRUE(allocator.live.empty() && !allocator.strayRelease);
        EXPECT_EQ(
            count([&] { return k.kind.init(&state, s.taps.at(), 3, s.tapsFactor, nullptr, memory.data()); }),
            temporary);
        EXPECT_EQ(count([&] { return k.kind.setTaps(s.taps.at(), state, s.tapsFactor); }), temporary);
        EXPECT_TRUE(allocator.live.empty() && !allocator.strayRelease);
    }
}

} // namespace
} // namespace zors::test
