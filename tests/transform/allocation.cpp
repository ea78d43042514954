// What happens when memory runs out.
#include "support/allocator.h"
#include "transform/samples.h"

#include <cstring>
#include <gtest/gtest.h>

namespace zors::test {
namespace {

constexpr int orders[] = {0, 3, 5, 7, 11, 12, 18, 19};

TEST(Allocation, InitAllocLeavesNothingBehind)
{
    for (const Kind& kind : kinds())
        for (const int order : orders) {
            SCOPED_TRACE(kind.name + ", order " + std::to_string(order));
            const std::size_t needed = sizesOf(kind, order).init > 0 ? 2 : 1;
            char mark;
            for (std::size_t k = 0; k < needed; ++k) {
                allocator = {};
                allocator.untilFailure = static_cast<int>(k);
                void* spec = &mark;
                EXPECT_EQ(kind.initAlloc(&spec, order, ZOR_FFT_SCALE_NONE, ZOR_ALG_ANY), zorStsNoMemory);
                EXPECT_EQ(spec, &mark) << "a record was handed out";
                EXPECT_TRUE(allocator.live.empty());
            }
            allocator = {};
            void* spec = nullptr;
            ASSERT_EQ(kind.initAlloc(&spec, order, ZOR_FFT_SCALE_NONE, ZOR_ALG_ANY), zorStsOk);
            EXPECT_EQ(allocator.sizesAsked.size(), needed);
            EXPECT_EQ(allocator.live.size(), 1U) << "the scratch memory is still there";
            EXPECT_EQ(kind.free(spec), zorStsOk);
            EXPECT_TRUE(allocator.live.empty());
            EXPECT_FALSE(allocator.strayRelease);
        }
}

TEST(Allocation, TransformsAllocateOnlyForANullBuffer)
{
    Random random;
    for (const Transform& t : transforms())
        for (const int order : orders) {
            SCOPED_TRACE(t.name + ", order " + std::to_string(order));
            allocator = {};
            const Spec spec(*t.kind, order);
            const Sizes sizes = sizesOf(*t.kind, order);
            const Memory in = randomInput(t, pointsOf(order), random);
            Memory out(t.out.bytes(pointsOf(order))), work(static_cast<std::size_t>(sizes.work));
            std::memset(out.get(), 0x77, t.out.bytes(pointsOf(order)));
            const std::size_t before = allocator.live.size();

            allocator.sizesAsked.clear();
            ASSERT_EQ(
                t.run(in.get(), out.get(), spec.get(), pointsOf(order), 0, static_cast<Zor8u*>(work.get())),
                zorStsOk);
            EXPECT_TRUE(allocator.sizesAsked.empty());
            EXPECT_EQ(t.run(in.get(), out.get(), spec.get(), pointsOf(order), 0, nullptr), zorStsOk);
            EXPECT_EQ(allocator.sizesAsked.size(), sizes.work > 0 ? 1U : 0U);
            EXPECT_EQ(allocator.live.size(), before);
            if (sizes.work == 0) continue;

            std::memset(out.get(), 0x77, t.out.bytes(pointsOf(order)));
            allocator.untilFailure = 0;
            EXPECT_EQ(t.run(in.get(), out.get(), spec.get(), pointsOf(order), 0, nullptr), zorStsNoMemory);
            allocator.untilFailure = -1;
            const auto* bytes = static_cast<const unsigned char*>(out.get());
            EXPECT_TRUE(
                std::all_of(bytes, bytes + t.out.bytes(pointsOf(order)), [](int b) { return b == 0x77; }));
            EXPECT_EQ(allocator.live.size(), before);
        }
}

} // namespace
} // namespace zors::test
