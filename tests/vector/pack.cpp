#include "support/oracle.h"

#include <zors.h>

#include <climits>

namespace {

using namespace zors::test;

// Bit by bit.
std::vector<Zor8u> packed(const std::vector<Zor32u>& words, const std::vector<Zor32s>& bits)
{
    std::vector<Zor8u> bytes;
    int at = 0;
    for (std::size_t n = 0; n < words.size(); ++n)
        for (int k = bits[n] - 1; k >= 0; --k, ++at) {
            if (at % 8 == 0) bytes.push_back(0);
            bytes.back() = static_cast<Zor8u>(bytes.back() | (words[n] >> k & 1) << (7 - at % 8));
        }
    return bytes;
}

TEST(PackBits, MostSignificantBitFirst)
{
    Random random;
    for (int round = 0; round < 3000; ++round) {
        const int most = round % 33;
        std::vector<Zor32u> words(1 + random() % 20);
        std::vector<Zor32s> bits(words.size());
        for (Zor32u& w : words) w = static_cast<Zor32u>(random());
        for (Zor32s& b : bits) b = static_cast<Zor32s>(random() % static_cast<unsigned>(most + 1));
        std::vector<Zor8u> want = packed(words, bits), got(want.size() + 4, 0xa5);
        want.insert(want.end(), 4, 0xa5); // not a byte more is written
        ASSERT_EQ(zorsPackBits_32u8u(words.data(), bits.data(), got.data(), static_cast<int>(words.size())),
                  zorStsOk);
        compared(static_cast<int>(words.size()));
        ASSERT_EQ(got, want);
    }
}

TEST(PackBits, RefusesImpossibleCounts)
{
    const Zor32u words[] = {1, 2, 3};
    Zor8u bytes[12] = {9};
    for (const Zor32s bad : {-1, 33, INT_MIN, INT_MAX}) {
        const Zor32s bits[] = {8, 8, bad};
        EXPECT_EQ(zorsPackBits_32u8u(words, bits, bytes, 3), zorStsBadArgument);
        EXPECT_EQ(bytes[0], 9);
        EXPECT_EQ(zorsPackBits_32u8u(words, bits, bytes, 2), zorStsOk);
        bytes[0] = 9;
    }
}

} // namespace
