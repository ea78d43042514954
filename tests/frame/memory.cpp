// Allocation, seen from the core library's place.
#include "support/allocator.h"

#include <zors.h>

#include <cstdint>
#include <gtest/gtest.h>

namespace {

using zors::test::allocator;

struct Member {
    const char* type;
    void* (*allocate)(int len);
    int bytes;
};

template <auto function>
void* allocate(int len)
{
    return function(len);
}

const Member members[] = {
    {"8u", allocate<zorsMalloc_8u>, 1},      {"8s", allocate<zorsMalloc_8s>, 1},
    {"16u", allocate<zorsMalloc_16u>, 2},    {"16s", allocate<zorsMalloc_16s>, 2},
    {"8sc", allocate<zorsMalloc_8sc>, 2},    {"32u", allocate<zorsMalloc_32u>, 4},
    {"32s", allocate<zorsMalloc_32s>, 4},    {"32f", allocate<zorsMalloc_32f>, 4},
    {"16sc", allocate<zorsMalloc_16sc>, 4},  {"64s", allocate<zorsMalloc_64s>, 8},
    {"64f", allocate<zorsMalloc_64f>, 8},    {"32sc", allocate<zorsMalloc_32sc>, 8},
    {"32fc", allocate<zorsMalloc_32fc>, 8},  {"64sc", allocate<zorsMalloc_64sc>, 16},
    {"64fc", allocate<zorsMalloc_64fc>, 16},
};

class Memory : public testing::TestWithParam<Member> {
protected:
    void SetUp() override { allocator = {}; }
};

TEST_P(Memory, AsksForCountTimesSizeModulo2To32AndHandsTheResultOn)
{
    const int bytes = GetParam().bytes;
    int anything = 0;
    allocator.reply = &anything;
    EXPECT_EQ(GetParam().allocate(1), &anything);
    allocator.reply = nullptr;
    EXPECT_EQ(GetParam().allocate(1001), nullptr);
    std::vector<int> expected{bytes, 1001 * bytes};
    if (bytes > 2) { // 2^32 bytes of smaller elements are more than a count can tell
        const int wraps = static_cast<int>((INT64_C(1) << 32) / bytes);
        GetParam().allocate(wraps);
        GetParam().allocate(wraps + 5);
        expected.insert(expected.end(), {0, 5 * bytes});
    }
    EXPECT_EQ(allocator.sizesAsked, expected);
}

TEST_P(Memory, AsksForNothingBelowOneElement)
{
    for (const int len : {0, -1, INT32_MIN}) EXPECT_EQ(GetParam().allocate(len), nullptr);
    EXPECT_TRUE(allocator.sizesAsked.empty());
}

INSTANTIATE_TEST_SUITE_P(Members, Memory, testing::ValuesIn(members),
                         [](const auto& member) { return member.param.type; });

TEST_F(Memory, FreeHandsItsPointerOn)
{
    int anything = 0;
    zorsFree(&anything);
    zorsFree(nullptr);
    EXPECT_EQ(allocator.pointersFreed, (std::vector<void*>{&anything, nullptr}));
}

} // namespace
