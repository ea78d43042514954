#include "support/oracle.h"

#include <zors.h>

#include <algorithm>

namespace {

using namespace zors::test;

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
            const T* pHeld = std::as_const(got).data() + most;
            const std::vector<T> held(pHeld, pHeld + len);
            std::copy(held.begin(), held.end(), want.data() + most + shift);
            ASSERT_EQ(move(got.data() + most, got.data() + most + shift, len), zorStsOk);
            ASSERT_TRUE(got == want) << "length " << len << ", shift " << shift << ", element size "
                                     << sizeof(T);
        }
}

TEST(Copy, CopiesEveryElement)
{
    expectCopies(zorsCopy_8u, zorsCopy_16s, zorsCopy_16sc, zorsCopy_32s, zorsCopy_32sc, zorsCopy_32f,
                 zorsCopy_32fc, zorsCopy_64s, zorsCopy_64sc, zorsCopy_64f, zorsCopy_64fc);
}

TEST(Move, CopiesEveryElement)
{
    expectCopies(zorsMove_8u, zorsMove_16s, zorsMove_16sc, zorsMove_32s, zorsMove_32sc, zorsMove_32f,
                 zorsMove_32fc, zorsMove_64s, zorsMove_64sc, zorsMove_64f, zorsMove_64fc);
}

TEST(Move, GivesWhatTheSourceHeldWhereTheVectorsOverlap)
{
    const auto each = [](auto... move) { (expectMoves(move), ...); };
    each(zorsMove_8u, zorsMove_16s, zorsMove_16sc, zorsMove_32s, zorsMove_32sc, zorsMove_32f, zorsMove_32fc,
         zorsMove_64s, zorsMove_64sc, zorsMove_64f, zorsMove_64fc);
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
