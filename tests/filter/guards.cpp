// With pages around them that nobody may touch: records need not be a byte longer than reported, at whatever
// address, and of samples none is read or written but those of the call.
#include "contract/arena.h"
#include "filter/signal.h"
#include "support/count.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>

namespace zors::test {
namespace {

using contract::Arena;

// Samples between forbidden pages, or taps.
class Guarded {
public:
    explicit Guarded(std::size_t capacity) : arena_(capacity) {}

    // Room for so many elements, some past an alignment, at the end or the beginning of the pages.
    std::byte* place(Element element, std::ptrdiff_t len, int elements, bool atEnd)
    {
        const auto bytes = static_cast<std::size_t>(element.bytes() * len);
        const auto offset = static_cast<std::size_t>(element.bytes() * elements);
        first_ = arena_.place(bytes, atEnd ? (128 - bytes % 64 - offset) % 64 : offset, atEnd);
        return first_;
    }
    std::byte* hold(const Vector& v, Element element, int elements, bool atEnd)
    {
        place(element, v.len(), elements, atEnd);
        std::memcpy(first_, v.at(), static_cast<std::size_t>(element.bytes() * v.len()));
        return first_;
    }
    Zor8u* bytes(int count, std::size_t offset, bool atEnd)
    {
        return reinterpret_cast<Zor8u*>(arena_.place(static_cast<std::size_t>(count), offset, atEnd));
    }
    bool intact() const { return arena_.canariesAlive(); }

private:
    Arena arena_;
    std::byte* first_ = nullptr;
};

// All that one does with a record.
void use(const Signal& s, void* state, Rates rates, const std::vector<int>& lengths)
{
    const Kind& k = s.kind;
    const Vector stream = s.stream(), taps(k.taps, s.taps);
    Vector dst(k.data, stream.len() * rates.up), tapsBack(k.taps, s.tapsLen), line(k.data, s.history);
    for (const int length : lengths) {
        EXPECT_EQ(k.run(stream.at(), dst.at(), length, state, s.scaleFactor), zorStsOk);
        EXPECT_EQ(k.runInPlace(dst.at(), length, state, s.scaleFactor), zorStsOk);
    }
    if (tagOf(state) == tag(k.single)) {
        for (int n = 0; n < 3 * s.tapsLen + 20; ++n)
            EXPECT_EQ(k.one(stream.at(n % stream.len()), dst.at(), state, s.scaleFactor), zorStsOk);
    }
    EXPECT_EQ(k.setTaps(taps.at(), state, s.tapsFactor), zorStsOk);
    EXPECT_EQ(k.getTaps(state, tapsBack.at(), s.tapsFactor), zorStsOk);
    EXPECT_EQ(k.getDlyLine(state, line.at()), zorStsOk);
    EXPECT_EQ(k.setDlyLine(state, line.at()), zorStsOk);
}

constexpr std::size_t bases = 64;

// The base alignments to try: all, or few.
std::size_t step()
{
    return timeIsShort() ? 21 : 1;
}

TEST(Guards, SingleRateRecordsEndWhereTheyShould)
{
    Random random;
    for (const Kind& k : singleRateKinds())
        for (const int tapsLen : {1, 6, 33, 64, 130}) {
            int size = 0;
            ASSERT_EQ(k.size(tapsLen, &size), zorStsOk);
            Guarded memory(static_cast<std::size_t>(size) + bases);
            const Signal s = randomSignal(k, tapsLen, 700, random);
            const Vector taps(k.taps, s.taps), line = s.delayLine(tapsLen);
            for (std::size_t base = 0; base < bases; base += step()) {
                SCOPED_TRACE(k.name + ", taps " + std::to_string(tapsLen) + ", base " + std::to_string(base));
                void* state = nullptr;
                Zor8u* buffer = memory.bytes(size, base, base % 3 != 0);
                ASSERT_EQ(k.init(&state, taps.at(), tapsLen, s.tapsFactor, line.at(), buffer), zorStsOk);
                ASSERT_TRUE(memory.intact()) << "initialisation wrote beside its memory";
                use(s, state, {}, {1, 5, tapsLen + 3, 511, 700});
                ASSERT_EQ(k.free(state), zorStsOk);
                ASSERT_TRUE(memory.intact());
            }
        }
}

TEST(Guards, MultiRateRecordsEndWhereTheyShould)
{
    Random random;
    for (const Kind& k : multiRateKinds())
        for (const Rates rates : {Rates{1, 0, 1, 0}, Rates{3, 1, 2, 1}, Rates{1, 0, 10, 4}, Rates{7, 6, 1, 0},
                                  Rates{5, 2, 12, 11}})
            for (const int tapsLen : {1, 9, 50}) {
                int size = 0;
                ASSERT_EQ(k.multiRateSize(tapsLen, rates.up, rates.down, &size), zorStsOk);
                Guarded memory(static_cast<std::size_t>(size) + bases);
                const Signal s = randomSignal(k, tapsLen, 600, random, rates);
                const Vector taps(k.taps, s.taps), line = s.delayLine(s.history);
                for (std::size_t base = 0; base < bases; base += step()) {
                    SCOPED_TRACE(k.name + ", taps " + std::to_string(tapsLen) + ", rates " +
                                 std::to_string(rates.up) + '/' + std::to_string(rates.down) + ", base " +
                                 std::to_string(base));
                    void* state = nullptr;
                    Zor8u* buffer = memory.bytes(size, base, base % 3 != 0);
                    ASSERT_EQ(
                        k.multiRateInit(&state, taps.at(), tapsLen, s.tapsFactor, rates, line.at(), buffer),
                        zorStsOk);
                    ASSERT_TRUE(memory.intact()) << "initialisation wrote beside its memory";
                    use(s, state, rates, {1, 2, 50});
                    ASSERT_EQ(k.free(state), zorStsOk);
                    ASSERT_TRUE(memory.intact());
                }
            }
}

// A block from and to guarded memory, both ways, beside what it gives elsewhere.
class Blocks {
public:
    Blocks(const Signal& signal, Rates rates, int longest)
        : s_(signal), rates_(rates), record_(signal, rates), stream_(signal.stream()), src_(bytes(longest)),
          dst_(bytes(longest))
    {
    }

    void check(int iterations, int place, bool atEnd)
    {
        const Kind& k = s_.kind;
        const std::ptrdiff_t in = std::ptrdiff_t{iterations} * rates_.down,
                             out = std::ptrdiff_t{iterations} * rates_.up;
        Vector input(k.data, in), both(k.data, std::max(in, out));
        input.copy(0, stream_, 0, in);
        both.copy(0, stream_, 0, in);
        std::byte* src = src_.hold(input, k.data, place, atEnd);
        std::byte* dst = dst_.place(k.data, out, 2 * place + 1, atEnd);
        ASSERT_EQ(k.run(src, dst, iterations, record_.get(), s_.scaleFactor), zorStsOk);
        ASSERT_TRUE(src_.intact() && dst_.intact());
        ASSERT_EQ(std::memcmp(src, input.at(), static_cast<std::size_t>(in * k.data.bytes())), 0)
            << "the source was changed";
        dst = dst_.hold(both, k.data, place, atEnd);
        ASSERT_EQ(k.runInPlace(dst, iterations, record_.get(), s_.scaleFactor), zorStsOk);
        ASSERT_TRUE(dst_.intact()) << "in place";
        compared(out);
    }

private:
    std::size_t bytes(int iterations) const
    {
        return static_cast<std::size_t>(s_.kind.data.bytes() *
                                        (std::max(rates_.up, rates_.down) * iterations + 128));
    }

    const Signal& s_;
    Rates rates_;
    Record record_;
    Vector stream_;
    Guarded src_, dst_;
};

TEST(Guards, NoSampleBesideTheBlockIsTouched)
{
    Random random;
    const int most = timeIsShort() ? 12 : 70;
    for (const Kind& k : multiRateKinds())
        for (int tapsLen = 1; tapsLen <= most; ++tapsLen) {
            constexpr int longest = 600;
            const Signal s = randomSignal(k, tapsLen, longest, random);
            Blocks blocks(s, {}, longest);
            for (int length = 1; length <= longest;
                 length = length == most ? 511 : length + (length < 511 ? 1 : 29))
                for (const int place : {0, 1, 3})
                    for (const bool atEnd : {false, true}) {
                        blocks.check(length, place, atEnd);
                        ASSERT_FALSE(HasFatalFailure()) << k.name << ", taps " << tapsLen << ", samples "
                                                        << length << ", place " << place;
                    }
        }
}

TEST(Guards, NoSampleBesideTheIterationsIsTouched)
{
    Random random;
    for (const Kind& k : multiRateKinds())
        for (const Rates rates :
             {Rates{2, 1, 3, 0}, Rates{3, 0, 2, 1}, Rates{1, 0, 8, 7}, Rates{1, 0, 10, 0}, Rates{6, 5, 1, 0}})
            for (int tapsLen = 1; tapsLen <= 70; tapsLen += timeIsShort() ? 23 : 1) {
                constexpr int longest = 20;
                const Signal s = randomSignal(k, tapsLen, longest * rates.down, random, rates);
                Blocks blocks(s, rates, longest);
                for (int length = 1; length <= longest; length += length < 9 ? 1 : 11)
                    for (const int place : {0, 1})
                        for (const bool atEnd : {false, true}) {
                            blocks.check(length, place, atEnd);
                            ASSERT_FALSE(HasFatalFailure())
                                << k.name << ", taps " << tapsLen << ", rates " << rates.up << '/'
                                << rates.down << ", iterations " << length;
                        }
            }
}

// Streams read as many samples before the block as the documentation says, and none more.
TEST(Guards, StreamsReadTheSamplesBeforeTheBlock)
{
    Random random;
    for (const StreamKind& stream : streamKinds())
        for (const Rates rates :
             {Rates{}, Rates{2, 1, 3, 0}, Rates{3, 0, 2, 1}, Rates{5, 2, 2, 1}, Rates{1, 0, 8, 7}})
            for (int tapsLen = 1; tapsLen <= 70; tapsLen += timeIsShort() ? 23 : 1)
                for (const int iterations : {1, 2, 3, 7, 33, 600}) {
                    const Kind& k = *stream.kind;
                    const int before = rates.delays(tapsLen) - (rates.downPhase >= rates.upPhase ? 1 : 0);
                    const std::ptrdiff_t in = std::ptrdiff_t{iterations} * rates.down;
                    Signal s = randomSignal(k, tapsLen, in, random, rates);
                    s.samples.resize(static_cast<std::size_t>(before + in));
                    int size = 0;
                    const bool multi = rates.up * rates.down > 1;
                    ASSERT_EQ((multi ? stream.multiRateSize : stream.size)(tapsLen, &size), zorStsOk);
                    std::vector<Zor8u> memory(static_cast<std::size_t>(size));
                    const Vector taps(k.taps, s.taps), samples(k.data, s.samples);
                    void* state = nullptr;
                    ASSERT_EQ(multi ? stream.multiRateInit(&state, taps.at(), tapsLen, s.tapsFactor, rates,
                                                           memory.data())
                                    : stream.init(&state, taps.at(), tapsLen, s.tapsFactor, memory.data()),
                              zorStsOk);
                    Guarded src(static_cast<std::size_t>(k.data.bytes() * samples.len()) + 64);
                    for (const bool atEnd : {false, true}) {
                        const std::byte* first = src.hold(samples, k.data, 0, atEnd);
                        Vector dst(k.data, std::ptrdiff_t{iterations} * rates.up);
                        ASSERT_EQ(k.run(first + before * k.data.bytes(), dst.at(), iterations, state,
                                        s.scaleFactor),
                                  zorStsOk);
                        compared(dst.len());
                    }
                }
}

} // namespace
} // namespace zors::test
