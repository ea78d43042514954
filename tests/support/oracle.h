// A function beside the plain form of what it promises.
#pragma once

#include "support/count.h"
#include "support/random.h"

#include <gtest/gtest.h>
#include <zortypes.h>

namespace zors::test {

// How many elements a source and a destination have for each of a length.
struct Each {
    int source = 1;
    int destination = 1;
};

// No destination of this size is kept in the caches.
inline constexpr std::ptrdiff_t longBytes = std::ptrdiff_t{16} << 20;

enum class Lengths { small, smallAndLong };

// Calls function(pSrc, pDst, len) and oracle(pSrc, pDst, len) on the same random bits, at every length up to 257
// and at long ones, and wants the same bits in and around pDst.
template <class S, class D, class Function, class Oracle>
void expectSame(Function function, Oracle oracle, Each each = {}, Lengths lengths = Lengths::smallAndLong)
{
    Random random;
    const auto compare = [&](int len, int srcOffset, int dstOffset) {
        const RandomVector<S> src(std::ptrdiff_t{len} * each.source, srcOffset, random);
        RandomVector<D> got(std::ptrdiff_t{len} * each.destination, dstOffset, random), want = got;
        ASSERT_EQ(function(src.data(), got.data(), len), zorStsOk);
        oracle(src.data(), want.data(), len);
        compared(std::ptrdiff_t{len} * each.destination);
        ASSERT_TRUE(got == want) << "byte " << got.firstDifference(want) << " of the destination, length "
                                 << len << ", offsets " << srcOffset << " and " << dstOffset << ", "
                                 << __PRETTY_FUNCTION__;
    };
    constexpr int offsets[][2] = {{0, 0}, {1, 0}, {0, 1}, {1, 1}, {3, 5}, {7, 2}};
    for (int len = 1; len <= 257; ++len)
        for (const auto& [src, dst] : offsets) {
            compare(len, src, dst);
            if (testing::Test::HasFatalFailure()) return;
        }
    if (lengths == Lengths::small) return;
    constexpr auto size = static_cast<std::ptrdiff_t>(sizeof(D));
    const int many = static_cast<int>(longBytes / size);
    compare(many + 3, 1, 1);
    compare(many + 64, 2, 6); // several destinations have the same alignment
}

} // namespace zors::test
