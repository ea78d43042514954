// A record is read-only: many threads use one at the same time, and all get the same bits.
#include "transform/samples.h"

#include <cstring>
#include <gtest/gtest.h>
#include <thread>

namespace zors::test {
namespace {

// size is what the record's making takes, an order or the length.
void shareARecord(const Transform& t, int size, std::size_t n, int repeats)
{
    constexpr int threads = 8;
    static Random random;
    const Spec spec(*t.kind, size, ZOR_FFT_SCALE_SQRT);
    int workSize = 0;
    ASSERT_EQ(t.kind->getBufSize(spec.get(), &workSize), zorStsOk);
    const Memory in = randomInput(t, n, random);
    Memory expected(t.out.bytes(n));
    ASSERT_EQ(t.run(in.get(), expected.get(), spec.get(), n, 0, nullptr), zorStsOk);
    std::vector<Memory> out(threads, Memory(t.out.bytes(n)));
    std::vector<std::thread> running;
    for (int i = 0; i < threads; ++i)
        running.emplace_back([&, i] {
            Memory work(static_cast<std::size_t>(workSize));
            // Half of them bring a buffer.
            auto* buffer = i % 2 ? static_cast<Zor8u*>(work.get()) : nullptr;
            for (int repeat = 0; repeat < repeats; ++repeat)
                t.run(in.get(), out[static_cast<std::size_t>(i)].get(), spec.get(), n, 0, buffer);
        });
    for (auto& thread : running) thread.join();
    for (const Memory& one : out)
        EXPECT_EQ(std::memcmp(one.get(), expected.get(), t.out.bytes(n)), 0)
            << t.name << ", " << n << " points";
}

TEST(Threads, ShareARecord)
{
    for (const Transform& t : transforms())
        for (const int order : {4, 8, 12, 18}) // the longest ones meet in one run
            shareARecord(t, order, pointsOf(order), order > 12 ? 1 : 3);
    for (const Transform& t : transformsOfAnyLength())
        for (const int length : {12, 47, 60, 1000, 1009})
            shareARecord(t, length, static_cast<std::size_t>(length), 3);
}

} // namespace
} // namespace zors::test
