#include "support/oracle.h"

#include <zors.h>

#include <algorithm>

namespace {

using namespace zors::test;

TEST(Flip, ReversesTheElements)
{
    const auto each = []<class... T>(ZorStatus (*... flip)(const T*, T*, int)) {
        (expectSame<T, T>(flip, [](const T* p, T* pDst, int len) { std::reverse_copy(p, p + len, pDst); }),
         ...);
    };
    each(zorsFlip_8u, zorsFlip_16u, zorsFlip_32f, zorsFlip_64f, zorsFlip_32fc, zorsFlip_64fc);
}

TEST(Flip, ReversesTheElementsInPlace)
{
    const auto each = []<class... T>(ZorStatus (*... flip)(T*, int)) {
        (expectSame<T, T>([=](const T*, T* p, int len) { return flip(p, len); },
                          [](const T*, T* p, int len) { std::reverse(p, p + len); }),
         ...);
    };
    each(zorsFlip_8u_I, zorsFlip_16u_I, zorsFlip_32f_I, zorsFlip_64f_I, zorsFlip_32fc_I, zorsFlip_64fc_I);
}

// Elements of Size bytes, from one vector to another, to itself, and in place.
template <int Size, class T>
void expectSwapped(ZorStatus (*swap)(const T*, T*, int), ZorStatus (*swapInPlace)(T*, int))
{
    constexpr int units = Size / static_cast<int>(sizeof(T));
    constexpr Each each{units, units};
    const auto reverse = [](const T* pSrc, T* pDst, int len) {
        std::copy_n(pSrc, pSrc == pDst ? 0 : len * units, pDst);
        auto* bytes = reinterpret_cast<Zor8u*>(pDst);
        for (int n = 0; n < len; ++n) std::reverse(bytes + n * Size, bytes + (n + 1) * Size);
    };
    const auto reverseInPlace = [=](const T*, T* p, int len) { reverse(p, p, len); };
    expectSame<T, T>(swap, reverse, each);
    expectSame<T, T>([=](const T*, T* p, int len) { return swap(p, p, len); }, reverseInPlace, each);
    expectSame<T, T>([=](const T*, T* p, int len) { return swapInPlace(p, len); }, reverseInPlace, each);
}

TEST(SwapBytes, ReversesTheBytesOfEveryElement)
{
    expectSwapped<2>(zorsSwapBytes_16u, zorsSwapBytes_16u_I);
    expectSwapped<3>(zorsSwapBytes_24u, zorsSwapBytes_24u_I);
    expectSwapped<4>(zorsSwapBytes_32u, zorsSwapBytes_32u_I);
    expectSwapped<8>(zorsSwapBytes_64u, zorsSwapBytes_64u_I);
}

} // namespace
