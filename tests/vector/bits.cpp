#include "support/count.h"
#include "support/random.h"

#include <gtest/gtest.h>
#include <zors.h>

#include <climits>

namespace {

using namespace zors::test;
using CopyBits = decltype(&zorsCopy_1u);

// One bit after the other; the offsets count within a byte.
void copyBits(bool mostFirst, const Zor8u* pSrc, int srcOffset, Zor8u* pDst, int dstOffset, int len)
{
    const auto mask = [=](int bit) { return mostFirst ? 128 >> bit % 8 : 1 << bit % 8; };
    for (int n = 0; n < len; ++n) {
        const int from = srcOffset % 8 + n, to = dstOffset % 8 + n;
        const bool set = pSrc[from / 8] & mask(from);
        pDst[to / 8] = static_cast<Zor8u>((pDst[to / 8] & ~mask(to)) | (set ? mask(to) : 0));
    }
}

void expectCopied(CopyBits function, bool mostFirst)
{
    Random random;
    const auto compare = [&](int srcOffset, int dstOffset, int len) {
        const RandomVector<Zor8u> src(len / 8 + 2, len % 7, random);
        RandomVector<Zor8u> got(len / 8 + 2, len % 5, random), want = got;
        ASSERT_EQ(function(src.data(), srcOffset, got.data(), dstOffset, len), zorStsOk);
        copyBits(mostFirst, src.data(), srcOffset, want.data(), dstOffset, len);
        compared(len);
        ASSERT_TRUE(got == want) << len << " bits from " << srcOffset << " to " << dstOffset << ", byte "
                                 << got.firstDifference(want);
    };
    for (int srcOffset = 0; srcOffset <= 17; ++srcOffset)
        for (int dstOffset = 0; dstOffset <= 17; ++dstOffset) {
            for (int len = 1; len <= 257; ++len) compare(srcOffset, dstOffset, len);
            compare(srcOffset, dstOffset, 12345);
            if (testing::Test::HasFatalFailure()) return;
        }
    compare(INT_MAX, INT_MAX - 3, 100);
}

TEST(BitCopy, CopiesTheBitsAndKeepsTheOthers)
{
    expectCopied(zorsCopy_1u, true);
    expectCopied(zorsCopyLE_1u, true);
    expectCopied(zorsCopyBE_1u, false);
}

TEST(BitCopy, NumbersBitsFromTheNamedEnd)
{
    const Zor8u src[] = {0x80, 0xff};
    Zor8u dst = 0;
    zorsCopy_1u(src, 8, &dst, 0, 3); // begins in the first byte all the same
    EXPECT_EQ(dst, 0x80);
    zorsCopyBE_1u(src, 15, &dst, 0, 1);
    EXPECT_EQ(dst, 0x81);
    dst = 0xe0;
    zorsCopy_1u(src + 1, 0, &dst, 3, 3);
    EXPECT_EQ(dst, 0xfc);
}

} // namespace
