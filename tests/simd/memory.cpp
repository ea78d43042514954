#include "simd/memory.h"

#include "support/random.h"

#include <gtest/gtest.h>

namespace zors::ZORS_VARIANT {
namespace {

using test::Random;
using test::RandomVector;

// Every part of a vector of N lanes, from the front and from the back, at an address aligned to a lane only.
template <class T, int N>
void expectParts()
{
    Random random;
    for (int count = 0; count <= N; ++count) {
        const RandomVector<T> memory(N, 1, random);
        const T* p = memory.data();
        const auto whole = load<N>(p), first = loadFirst<N>(p, count), last = loadLast<N>(p, count);
        RandomVector<T> stored(N, 3, random), wanted = stored;
        store<N>(stored.data(), whole);
        std::copy_n(p, N, wanted.data());
        EXPECT_TRUE(stored == wanted);
        for (int i = 0; i < N; ++i) {
            ASSERT_EQ(whole[i], p[i]);
            ASSERT_EQ(first[i], i < count ? p[i] : T{}) << "lane " << i << " of " << count;
            ASSERT_EQ(last[i], i >= N - count ? p[i - (N - count)] : T{}) << "lane " << i << " of " << count;
        }

        RandomVector<T> front(N, 1, random), back(N, 1, random), wantFront = front, wantBack = back;
        storeFirst<N>(front.data(), whole, count);
        storeLast<N>(back.data(), whole, count);
        std::copy_n(p, count, wantFront.data());
        std::copy_n(p + N - count, count, wantBack.data());
        EXPECT_TRUE(front == wantFront) << count << " of " << N << " lanes, element size " << sizeof(T);
        EXPECT_TRUE(back == wantBack) << count << " of " << N << " lanes, element size " << sizeof(T);
    }
    // Lanes of 8 bytes fill a register or, narrower, do not occur.
    if constexpr (N > 2 && sizeof(T) < 8) expectParts<T, N / 2>();
}

TEST(Memory, PartsTouchTheirLanesAndNoOthers)
{
    expectParts<std::uint8_t, lanes<std::uint8_t>>();
    expectParts<std::int16_t, lanes<std::int16_t>>();
    expectParts<std::uint32_t, lanes<std::uint32_t>>();
    expectParts<std::uint64_t, lanes<std::uint64_t>>();
}

TEST(Memory, StreamingStoresAVector)
{
    Random random;
    RandomVector<std::uint16_t> got(lanes<std::uint16_t>, 0, random), want = got;
    const auto v = iota<std::uint16_t>();
    storeStreaming<lanes<std::uint16_t>>(got.data(), v);
    streamFence();
    store<lanes<std::uint16_t>>(want.data(), v);
    EXPECT_TRUE(got == want);
}

} // namespace
} // namespace zors::ZORS_VARIANT
