// The core library: memory, and the features of the processor under a mask.
#include <zorcore.h>

#include <climits>
#include <cpuid.h>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <gtest/gtest.h>
#include <string>

namespace {

TEST(CoreMemory, IsAligned)
{
    for (const int size : {1, 63, 64, 65, 100000}) {
        void* p = zorMalloc(size);
        ASSERT_NE(p, nullptr);
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(p) % 64, 0u);
        std::memset(p, 1, static_cast<std::size_t>(size));
        zorFree(p);
    }
    for (const int size : {0, -1, INT_MIN}) EXPECT_EQ(zorMalloc(size), nullptr);
    zorFree(nullptr);
}

TEST(CoreMemory, AddressesAreRoundedUp)
{
    alignas(128) char memory[256];
    EXPECT_EQ(zorAlignPtr(memory, 64), memory);
    EXPECT_EQ(zorAlignPtr(memory + 1, 64), memory + 64);
    EXPECT_EQ(zorAlignPtr(memory + 63, 64), memory + 64);
    EXPECT_EQ(zorAlignPtr(memory + 65, 128), memory + 128);
    EXPECT_EQ(zorAlignPtr(memory + 5, 1), memory + 5);
}

// Nothing has asked for the features before this.
const Zor64u enabledAtFirst = zorGetEnabledCpuFeatures();

Zor64u foundFeatures()
{
    Zor64u found = 0;
    EXPECT_EQ(zorGetCpuFeatures(&found, nullptr), zorStsOk);
    return found;
}

TEST(CpuFeatures, AgreeWithTheCompilersView)
{
    Zor64u expected = 0;
    const auto add = [&](int supported, Zor64u feature) { expected |= supported ? feature : 0; };
    add(__builtin_cpu_supports("sse"), ZOR_CPU_SSE);
    add(__builtin_cpu_supports("sse2"), ZOR_CPU_SSE2);
    add(__builtin_cpu_supports("sse3"), ZOR_CPU_SSE3);
    add(__builtin_cpu_supports("ssse3"), ZOR_CPU_SSSE3);
    add(__builtin_cpu_supports("sse4.1"), ZOR_CPU_SSE4_1);
    add(__builtin_cpu_supports("sse4.2"), ZOR_CPU_SSE4_2);
    add(__builtin_cpu_supports("popcnt"), ZOR_CPU_POPCNT);
    add(__builtin_cpu_supports("avx"), ZOR_CPU_AVX);
    add(__builtin_cpu_supports("fma"), ZOR_CPU_FMA);
    add(__builtin_cpu_supports("avx2"), ZOR_CPU_AVX2);
    add(__builtin_cpu_supports("bmi"), ZOR_CPU_BMI1);
    add(__builtin_cpu_supports("bmi2"), ZOR_CPU_BMI2);
    add(__builtin_cpu_supports("avx512f"), ZOR_CPU_AVX512F);
    add(__builtin_cpu_supports("avx512dq"), ZOR_CPU_AVX512DQ);
    add(__builtin_cpu_supports("avx512bw"), ZOR_CPU_AVX512BW);
    add(__builtin_cpu_supports("avx512vl"), ZOR_CPU_AVX512VL);

    // Two that not every compiler can be asked for.
    unsigned a = 0, b = 0, c = 0, d = 0;
    __get_cpuid(1, &a, &b, &c, &d);
    add(__builtin_cpu_supports("avx") && (c & bit_F16C), ZOR_CPU_F16C);
    __get_cpuid(0x80000001, &a, &b, &c, &d);
    add((c & bit_LZCNT) != 0, ZOR_CPU_LZCNT);
    EXPECT_EQ(foundFeatures(), expected);
}

TEST(CpuFeatures, AreDetectedByWhoAsksFirst)
{
    const Zor64u all = std::getenv("ZOR_CPU_FEATURES") ? zorGetEnabledCpuFeatures() : foundFeatures();
    EXPECT_EQ(enabledAtFirst, all);
}

TEST(CpuFeatures, ProcessorIsIdentified)
{
    ZorCpuInfo info{};
    EXPECT_EQ(zorGetCpuFeatures(nullptr, &info), zorStsOk);
    EXPECT_EQ(std::string(info.vendor).size(), 12u);
    EXPECT_EQ(__builtin_cpu_is("intel") != 0, std::string(info.vendor) == "GenuineIntel");
    EXPECT_EQ(__builtin_cpu_is("amd") != 0, std::string(info.vendor) == "AuthenticAMD");
    EXPECT_GE(info.family, 6);
}

// What is enabled while the variable has this text.
Zor64u enabledUnder(const char* text)
{
    setenv("ZOR_CPU_FEATURES", text, 1);
    zorGetCpuFeatures(nullptr, nullptr);
    const Zor64u enabled = zorGetEnabledCpuFeatures();
    unsetenv("ZOR_CPU_FEATURES");
    zorGetCpuFeatures(nullptr, nullptr);
    return enabled;
}

TEST(CpuFeatureMask, LeavesWhatItAllows)
{
    const Zor64u found = foundFeatures();
    EXPECT_EQ(enabledUnder("7"), found & 7);
    EXPECT_EQ(enabledUnder("0x7"), found & 7);
    EXPECT_EQ(enabledUnder("2a"), found & 0x2a);
    EXPECT_EQ(enabledUnder("0"), 0u);
    EXPECT_EQ(enabledUnder("ffffffffffffffff"), found);
    EXPECT_EQ(foundFeatures(), found);
}

TEST(CpuFeatureMask, NonsenseIsIgnored)
{
    const Zor64u found = foundFeatures();
    for (const char* text : {"", "none", "7 or so", "0xg", "-", "-7", "+7", " 7"})
        EXPECT_EQ(enabledUnder(text), found) << text;
}

} // namespace
