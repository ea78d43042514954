// With pages around them that nobody may touch: records need not be a byte longer than reported, at whatever address,
// and of samples none is read or written but those of the call.
#include "contract/arena.h"
#include "filter/iir_signal.h"
#include "support/count.h"

#include <cstring>
#include <gtest/gtest.h>

namespace zors::test {
namespace {

TEST(IirGuards, RecordsAndBlocksEndWhereTheyShould)
{
    Random random;
    constexpr std::size_t bases = 64;
    for (const IirKind& k : iirKinds())
        for (const int count : {1, 2, 3, 7, 20}) {
            if (timeIsShort() && count != 3) continue;
            const IirSignal s = randomIirSignal(k, count, 1100, random, 0.6);
            int size = 0;
            ASSERT_EQ(k.kind.size(count, &size), zorStsOk);
            const auto element = static_cast<std::size_t>(k.kind.data.bytes());
            contract::Arena memory(static_cast<std::size_t>(size) + bases), src(1100 * element + 128),
                dst(1100 * element + 128);
            const IirRecord reference(s);
            const std::vector<int> calls = {1, 2, 7, 16, 17, 33, 1024};
            const Vector want = run(reference, s, calls);
            for (std::size_t base = 0; base < bases; base += timeIsShort() ? 21 : 3) {
                SCOPED_TRACE(k.kind.name + ", " + std::to_string(count) + ", base " + std::to_string(base));
                const bool atEnd = base % 2;
                auto* buffer =
                    reinterpret_cast<Zor8u*>(memory.place(static_cast<std::size_t>(size), base, atEnd));
                void* state = nullptr;
                ASSERT_EQ(k.kind.init(&state, s.taps.at(), count, s.tapsFactor, s.delay.at(), buffer),
                          zorStsOk);
                int done = 0;
                for (const int len : calls) {
                    const std::size_t bytes = static_cast<std::size_t>(len) * element;
                    std::byte* from = src.place(bytes, (base * element) % 64, atEnd);
                    std::byte* to = dst.place(bytes, (base / 3 * element) % 64, atEnd);
                    std::memcpy(from, s.samples.at(done), bytes);
                    ASSERT_EQ(k.kind.run(from, to, len, state, s.scaleFactor), zorStsOk);
                    ASSERT_EQ(std::memcmp(from, s.samples.at(done), bytes), 0) << "the source was changed";
                    ASSERT_EQ(std::memcmp(to, want.at(done), bytes), 0) << "other bits, length " << len;
                    ASSERT_TRUE(memory.canariesAlive() && src.canariesAlive() && dst.canariesAlive());
                    compared(len);
                    done += len;
                }
                Vector line(k.number(), k.delays(count));
                ASSERT_EQ(k.kind.setTaps(s.taps.at(), state, s.tapsFactor), zorStsOk);
                ASSERT_EQ(k.kind.getDlyLine(state, line.at()), zorStsOk);
                ASSERT_EQ(k.kind.setDlyLine(state, line.at()), zorStsOk);
                ASSERT_EQ(k.kind.free(state), zorStsOk);
                ASSERT_TRUE(memory.canariesAlive());
            }
        }
}

} // namespace
} // namespace zors::test
