// Allocation, with the program's own zorMalloc and zorFree before those of the core library.
#include <zorcore.h>
#include <zors.h>

#include <cstdint>
#include <cstring>
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <optional>
#include <vector>

namespace {

std::vector<int> sizesAsked;
std::vector<void*> pointersFreed;
std::optional<void*> reply; // instead of memory

template <class Function>
Function* next(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

} // namespace

void* zorMalloc(int size)
{
    sizesAsked.push_back(size);
    return reply ? *reply : next<void*(int)>("zorMalloc")(size);
}

void zorFree(void* pMemory)
{
    pointersFreed.push_back(pMemory);
    if (!reply) next<void(void*)>("zorFree")(pMemory);
}

namespace {

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
    void SetUp() override
    {
        sizesAsked.clear();
        pointersFreed.clear();
        reply.reset();
    }
};

TEST_P(Memory, IsAlignedAndUsable)
{
    for (const int len : {1, 3, 63, 64, 65, 1000}) {
        void* p = GetParam().allocate(len);
        ASSERT_NE(p, nullptr);
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(p) % 64, 0u);
        std::memset(p, 0x5a, static_cast<std::size_t>(len * GetParam().bytes));
        zorsFree(p);
    }
}

TEST_P(Memory, AsksForCountTimesSizeModulo2To32)
{
    const int bytes = GetParam().bytes;
    reply = nullptr;
    GetParam().allocate(1);
    GetParam().allocate(1001);
    std::vector<int> expected{bytes, 1001 * bytes};
    if (bytes > 2) { // 2^32 bytes of smaller elements are more than a count can tell
        const int wraps = static_cast<int>((INT64_C(1) << 32) / bytes);
        GetParam().allocate(wraps);
        GetParam().allocate(wraps + 5);
        expected.insert(expected.end(), {0, 5 * bytes});
    }
    EXPECT_EQ(sizesAsked, expected);
}

TEST_P(Memory, HandsTheResultOnUnchanged)
{
    int anything = 0;
    for (void* answer : {static_cast<void*>(&anything), static_cast<void*>(nullptr)}) {
        reply = answer;
        EXPECT_EQ(GetParam().allocate(7), answer);
    }
}

TEST_P(Memory, AsksForNothingBelowOneElement)
{
    for (const int len : {0, -1, INT32_MIN}) EXPECT_EQ(GetParam().allocate(len), nullptr);
    EXPECT_TRUE(sizesAsked.empty());
}

INSTANTIATE_TEST_SUITE_P(Members, Memory, testing::ValuesIn(members),
                         [](const auto& member) { return member.param.type; });

TEST_F(Memory, FreeHandsItsPointerOn)
{
    int anything = 0;
    reply = nullptr;
    zorsFree(&anything);
    zorsFree(nullptr);
    EXPECT_EQ(pointersFreed, (std::vector<void*>{&anything, nullptr}));
}

} // namespace
