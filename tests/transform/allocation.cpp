// What happens when memory runs out.
#include "support/allocator.h"
#include "transform/samples.h"

#include <cstring>
#include <gtest/gtest.h>

namespace zors::test {
namespace {

constexpr int orders[] = {0, 3, 5, 7, 11, 12, 18, 19};
constexpr int lengths[] = {1, 15, 47, 60, 64, 1000, 1009};

// size is what the record's making takes, an order or the length.
void leavesNothingBehind(const Kind& kind, int size)
{
    SCOPED_TRACE(kind.name + ", order or length " + std::to_string(size));
    const std::size_t needed = sizesOf(kind, size).init > 0 ? 2 : 1;
    char mark;
    for (std::size_t k = 0; k < needed; ++k) {
        allocator = {};
        allocator.untilFailure = static_cast<int>(k);
        void* spec = &mark;
        EXPECT_EQ(kind.initAlloc(&spec, size, ZOR_FFT_SCALE_NONE, ZOR_ALG_ANY), zorStsNoMemory);
        EXPECT_EQ(spec, &mark) << "a record was handed out";
        EXPECT_TRUE(allocator.live.empty());
    }
    allocator = {};
    void* spec = nullptr;
    ASSERT_EQ(kind.initAlloc(&spec, size, ZOR_FFT_SCALE_NONE, ZOR_ALG_ANY), zorStsOk);
    EXPECT_EQ(allocator.sizesAsked.size(), needed);
    EXPECT_EQ(allocator.live.size(), 1U) << "the scratch memory is still there";
    EXPECT_EQ(kind.free(spec), zorStsOk);
    EXPECT_TRUE(allocator.live.empty());
    EXPECT_FALSE(allocator.strayRelease);
}

TEST(Allocation, InitAllocLeavesNothingBehind)
{
    for (const Kind& kind : kinds())
        for (const int order : orders) leavesNothingBehind(kind, order);
    for (const Kind& kind : kindsOfAnyLength())
        for (const int length : lengths)
            if (kind.getSize) leavesNothingBehind(kind, length);
}

void allocatesOnlyForANullBuffer(const Transform& t, int size, std::size_t n)
{
    static Random random;
    SCOPED_TRACE(t.name + ", " + std::to_string(n) + " points");
    allocator = {};
    const Spec spec(*t.kind, size);
    int workSize = 0;
    ASSERT_EQ(t.kind->getBufSize(spec.get(), &workSize), zorStsOk);
    const Memory in = randomInput(t, n, random);
    Memory out(t.out.bytes(n)), work(static_cast<std::size_t>(workSize));
    std::memset(out.get(), 0x77, t.out.bytes(n));
    const std::size_t before = allocator.live.size();

    allocator.sizesAsked.clear();
    ASSERT_EQ(t.run(in.get(), out.get(), spec.get(), n, 0, static_cast<Zor8u*>(work.get())), zorStsOk);
    EXPECT_TRUE(allocator.sizesAsked.empty());
    EXPECT_EQ(t.run(in.get(), out.get(), spec.get(), n, 0, nullptr), zorStsOk);
    EXPECT_EQ(allocator.sizesAsked.size(), workSize > 0 ? 1U : 0U);
    EXPECT_EQ(allocator.live.size(), before);
    if (workSize == 0) return;

    std::memset(out.get(), 0x77, t.out.bytes(n));
    allocator.untilFailure = 0;
    EXPECT_EQ(t.run(in.get(), out.get(), spec.get(), n, 0, nullptr), zorStsNoMemory);
    allocator.untilFailure = -1;
    const auto* bytes = static_cast<const unsigned char*>(out.get());
    EXPECT_TRUE(std::all_of(bytes, bytes + t.out.bytes(n), [](int b) { return b == 0x77; }));
    EXPECT_EQ(allocator.live.size(), before);
}

TEST(Allocation, TransformsAllocateOnlyForANullBuffer)
{
    for (const Transform& t : transforms())
        for (const int order : orders) allocatesOnlyForANullBuffer(t, order, pointsOf(order));
    for (const Transform& t : transformsOfAnyLength())
        for (const int length : lengths)
            allocatesOnlyForANullBuffer(t, length, static_cast<std::size_t>(length));
}

} // namespace
} // namespace zors::test
