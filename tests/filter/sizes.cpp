// The sizes that callers reserve: to the byte where they are settled.
#include "filter/kinds.h"

#include <climits>
#include <gtest/gtest.h>
#include <zors.h>

namespace zors::test {
namespace {

using Size = long long;

// The parts of a record with real taps, in the type that it computes with.
struct Formula {
    Size number, alignment, rest;
    decltype(&zorsFFTGetSize_R_32f) transformSize;

    Size ofTransform(int tapsLen) const
    {
        const int length = transformLength(tapsLen);
        int order = 0, spec = 0, init = 0, work = 0;
        while (1 << order < length) ++order;
        EXPECT_EQ(transformSize(order, ZOR_FFT_SCALE_INV, ZOR_ALG_ANY, &spec, &init, &work), zorStsOk);
        return Size{spec} + init + work + (number * length + 15) / 16 * 32;
    }
    Size single(int tapsLen, int transformedFrom) const
    {
        const Size taps = number * tapsLen, past = alignment - 1;
        const Size lines = (taps + past) / alignment;
        const Size delays = (3 * taps + 2 * alignment - 1) / alignment * alignment;
        const Size size = delays + lines * alignment + lines * 64 + rest;
        return size + (tapsLen >= transformedFrom ? ofTransform(tapsLen) : 0);
    }
};

constexpr Formula narrow{4, 16, 16576, zorsFFTGetSize_R_32f}, wide{8, 32, 33024, zorsFFTGetSize_R_64f};

constexpr int lengths[] = {1,  2,  3,  4,  5,   7,   8,   9,   15,   16,   17,   31,    32,
                           33, 63, 64, 65, 127, 128, 129, 255, 1023, 1024, 4096, 65535, 100000};

TEST(Sizes, OfRealFiltersAreSettled)
{
    for (const char* name : {"_32f", "32f_16s", "_64f", "64f_32f", "64f_32s", "64f_16s"}) {
        const Kind& k = kind(name);
        for (const int tapsLen : lengths) {
            int size = 0;
            ASSERT_EQ(k.size(tapsLen, &size), zorStsOk);
            EXPECT_EQ(size, (k.isNarrow() ? narrow : wide).single(tapsLen, k.transformedFrom()))
                << name << ", taps " << tapsLen;
        }
    }
    // Two lengths by hand, so that the formula is held to something, too.
    int size = 0;
    kind("_32f").size(63, &size);
    EXPECT_EQ(size, 784 + 256 + 1024 + 16576);
    kind("_64f").size(31, &size);
    EXPECT_EQ(size, 800 + 256 + 512 + 33024);
}

TEST(Sizes, OfStreamsAndOfEqualRatesAreThoseOfSingleRate)
{
    for (const int tapsLen : lengths) {
        for (const Kind& k : singleRateKinds()) {
            int size = 0, equalRates = 1;
            ASSERT_EQ(k.size(tapsLen, &size), zorStsOk);
            if (!k.multiRateSize) continue;
            ASSERT_EQ(k.multiRateSize(tapsLen, 1, 1, &equalRates), zorStsOk);
            EXPECT_EQ(size, equalRates) << k.name << ", taps " << tapsLen;
        }
        const StreamKind& stream = streamKinds().front();
        int size = 0, single = 1, multi = 2;
        ASSERT_EQ(stream.kind->size(tapsLen, &size), zorStsOk);
        ASSERT_EQ(stream.size(tapsLen, &single), zorStsOk);
        ASSERT_EQ(stream.multiRateSize(tapsLen, &multi), zorStsOk);
        EXPECT_EQ(size, single);
        EXPECT_EQ(size, multi);
    }
}

// Sizes that an int cannot tell, and taps that so cannot be.
TEST(Sizes, HaveALimit)
{
    char mark;
    void* state = &mark;
    Zor64f taps[2] = {};
    Zor8u memory[64];
    for (const Kind& k : singleRateKinds()) {
        SCOPED_TRACE(k.name);
        int size = 77;
        EXPECT_EQ(k.size(INT_MAX, &size), zorStsBadSize);
        EXPECT_EQ(k.init(&state, taps, INT_MAX, 0, nullptr, memory), zorStsBadSize);
        EXPECT_EQ(k.initAlloc(&state, taps, INT_MAX, 0, nullptr), zorStsBadSize);
        EXPECT_EQ(size, 77);
    }
    for (const Kind& k : multiRateKinds()) {
        SCOPED_TRACE(k.name);
        int size = 77;
        EXPECT_EQ(k.multiRateSize(INT_MAX, 1, 2, &size), zorStsBadSize);
        EXPECT_EQ(k.multiRateSize(INT_MAX, 3, 2, &size), zorStsBadSize);
        EXPECT_EQ(k.multiRateInit(&state, taps, INT_MAX, 0, Rates{3, 0, 2, 0}, nullptr, memory),
                  zorStsBadSize);
        EXPECT_EQ(size, 77);
    }
    EXPECT_EQ(state, &mark) << "a record was handed out in spite of an error";
}

} // namespace
} // namespace zors::test
