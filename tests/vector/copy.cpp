#include "support/oracle.h"

#include <zors.h>

#include <algorithm>

namespace {

using namespace zors::test;

#define ALL_TYPES(name)                                                                                      \
    name##_8u, name##_16s, name##_16sc, name##_32s, name##_32sc, name##_32f, name##_32fc, name##_64s,        \
        name##_64sc, name##_64f, name##_64fc

template <class... T>
void expectCopies(ZorStatus (*... function)(const T*, T*, int))
{
    const auto oracle = [](const auto* pSrc, auto* pDst, int len) { std::copy_n(pSrc, len, pDst); };
    (expectSame<T, T>(function, oracle), ...);
}

template <class T>
void expectMoves(ZorStatus (*move)(const T*, T*, int))
{
    constexpr int most = 67;
    Random random;
    for (int shift = -most; shift <= most; ++shift)
        for (const int len : {1, 2, 15, 64, 257, 1000}) {
            RandomVector<T> got(len + 2 * most, 1, random), want = got;
            std::memmove(want.data() + most + shift, want.data() + most,
                         static_cast<std::size_t>(len) * sizeof(T));
            ASSERT_EQ(move(got.data() + most, got.data() + most + shift, len), zorStsOk);
            ASSERT_TRUE(got == want) << "length " << len << ", shift " << shift << ", element size "
                                     << sizeof(T);
        }
}

TEST(Copy, CopiesEveryElement)
{
    expectCopies(ALL_TYPES(zorsCopy));
    expectCopies(ALL_TYPES(zorsMove));
}

TEST(Move, GivesWhatTheSourceHeldWhereTheVectorsOverlap)
{
    const auto each = [](auto... move) { (expectMoves(move), ...); };
    each(ALL_TYPES(zorsMove));
}

// Where the caches cannot hold the vectors.
TEST(Move, OverlapsInLongVectors)
{
    constexpr int len = 14 << 20, most = 300;
    Random random;
    RandomVector<Zor8u> got(len + 2 * most, 1, random);
    for (const int shift : {-most, -64, -1, 1, 17, 64, most}) {
        RandomVector<Zor8u> want = got;
        std::memmove(want.data() + most + shift, want.data() + most, len);
        ASSERT_EQ(zorsMove_8u(got.data() + most, got.data() + most + shift, len), zorStsOk);
        ASSERT_TRUE(got == want) << "shift " << shift;
    }
}

} // namespace
