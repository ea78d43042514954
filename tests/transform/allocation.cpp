// What happens when memory runs out. The allocator of this program takes the core library's place: the loader finds
// it first.
#include "transform/samples.h"

#include <cstdlib>
#include <cstring>
#include <gtest/gtest.h>
#include <set>
#include <zorcore.h>

namespace {

// Counts allocations, fails the one it is told to, and knows what was not released.
struct Allocator {
    int untilFailure = -1;
    int calls = 0;
    std::set<void*> live;
    bool strayRelease = false;
} allocator;

} // namespace

void* zorMalloc(int length)
{
    ++allocator.calls;
    if (allocator.untilFailure == 0) return nullptr;
    if (allocator.untilFailure > 0) --allocator.untilFailure;
    void* p = std::aligned_alloc(64, (static_cast<std::size_t>(length) + 63) / 64 * 64);
    allocator.live.insert(p);
    return p;
}

void zorFree(void* p)
{
    if (p && allocator.live.erase(p) == 0) allocator.strayRelease = true;
    std::free(p);
}

namespace zors::test {
namespace {

constexpr int orders[] = {0, 3, 5, 7, 11, 12, 17, 18};

TEST(Allocation, InitAllocLeavesNothingBehind)
{
    for (const Kind& kind : kinds())
        for (const int order : orders) {
            SCOPED_TRACE(kind.name + ", order " + std::to_string(order));
            const int needed = sizesOf(kind, order).init > 0 ? 2 : 1;
            char mark;
            for (int k = 0; k < needed; ++k) {
                allocator = {};
                allocator.untilFailure = k;
                void* spec = &mark;
                EXPECT_EQ(kind.initAlloc(&spec, order, ZOR_FFT_SCALE_NONE, ZOR_ALG_ANY), zorStsNoMemory);
                EXPECT_EQ(spec, &mark) << "a record was handed out";
                EXPECT_TRUE(allocator.live.empty());
            }
            allocator = {};
            void* spec = nullptr;
            ASSERT_EQ(kind.initAlloc(&spec, order, ZOR_FFT_SCALE_NONE, ZOR_ALG_ANY), zorStsOk);
            EXPECT_EQ(allocator.calls, needed);
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
            Memory in(t.in.bytes(order)), out(t.out.bytes(order)), work(static_cast<std::size_t>(sizes.work));
            writeNumbers(randomNumbers(t.in, order, random), t.in.number, in.get());
            std::memset(out.get(), 0x77, t.out.bytes(order));
            const std::size_t before = allocator.live.size();

            allocator.calls = 0;
            ASSERT_EQ(t.run(in.get(), out.get(), spec.get(), order, 0, static_cast<Zor8u*>(work.get())),
                      zorStsOk);
            EXPECT_EQ(allocator.calls, 0);
            EXPECT_EQ(t.run(in.get(), out.get(), spec.get(), order, 0, nullptr), zorStsOk);
            EXPECT_EQ(allocator.calls, sizes.work > 0 ? 1 : 0);
            EXPECT_EQ(allocator.live.size(), before);
            if (sizes.work == 0) continue;

            std::memset(out.get(), 0x77, t.out.bytes(order));
            allocator.untilFailure = 0;
            EXPECT_EQ(t.run(in.get(), out.get(), spec.get(), order, 0, nullptr), zorStsNoMemory);
            allocator.untilFailure = -1;
            const auto* bytes = static_cast<const unsigned char*>(out.get());
            EXPECT_TRUE(std::all_of(bytes, bytes + t.out.bytes(order), [](int b) { return b == 0x77; }));
            EXPECT_EQ(allocator.live.size(), before);
        }
}

} // namespace
} // namespace zors::test
