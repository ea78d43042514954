// A record is read-only: many threads use one at the same time, and all get the same bits.
#include "transform/samples.h"

#include <cstring>
#include <gtest/gtest.h>
#include <thread>

namespace zors::test {
namespace {

TEST(Threads, ShareARecord)
{
    constexpr int threads = 8;
    Random random;
    for (const Transform& t : transforms())
        for (const int order : {4, 8, 12, 18}) {
            const Spec spec(*t.kind, order, ZOR_FFT_SCALE_SQRT);
            const Sizes sizes = sizesOf(*t.kind, order);
            const Memory in = randomInput(t, pointsOf(order), random);
            Memory expected(t.out.bytes(pointsOf(order)));
            ASSERT_EQ(t.run(in.get(), expected.get(), spec.get(), pointsOf(order), 0, nullptr), zorStsOk);
            const int repeats = order > 12 ? 1 : 3; // the longest ones meet in one run
            std::vector<Memory> out(threads, Memory(t.out.bytes(pointsOf(order))));
            std::vector<std::thread> running;
            for (int i = 0; i < threads; ++i)
                running.emplace_back([&, i] {
                    Memory work(static_cast<std::size_t>(sizes.work));
                    // Half of them bring a buffer.
                    auto* buffer = i % 2 ? static_cast<Zor8u*>(work.get()) : nullptr;
                    for (int repeat = 0; repeat < repeats; ++repeat)
                        t.run(in.get(), out[static_cast<std::size_t>(i)].get(), spec.get(), pointsOf(order),
                              0, buffer);
                });
            for (auto& thread : running) thread.join();
            for (const Memory& one : out)
                EXPECT_EQ(std::memcmp(one.get(), expected.get(), t.out.bytes(pointsOf(order))), 0)
                    << t.name << ", order " << order;
        }
}

} // namespace
} // namespace zors::test
