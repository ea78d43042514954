// What happens when the library is loaded on top of a core library with a given answer.
#include "substitute_core.h"

#include <zors.h>

#include <cstring>
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <stdexcept>

namespace {

using zors::test::substituteCore;
using Calls = std::vector<std::string>;

// The library, loaded afresh under a feature mask.
class Loaded {
public:
    explicit Loaded(Zor64u mask)
    {
        if (dlopen(ZORS_LIBRARY, RTLD_NOW | RTLD_NOLOAD)) throw std::runtime_error("loaded already");
        substituteCore() = {mask, {}};
        handle_ = dlopen(ZORS_LIBRARY, RTLD_NOW | RTLD_LOCAL);
        if (!handle_) throw std::runtime_error(dlerror());
    }
    ~Loaded() { dlclose(handle_); }
    Loaded(const Loaded&) = delete;
    Loaded& operator=(const Loaded&) = delete;

    template <class T>
    T* symbol(const char* name) const
    {
        return reinterpret_cast<T*>(dlsym(handle_, name));
    }

    int jumpIndex() const { return *symbol<Zor32s>("zorJumpIndexForMergedDLL"); }

    // Where in the library's file the slot of a copy function points.
    std::ptrdiff_t implementation() const
    {
        // The entry is mov slot(%rip), %rax: three bytes of instruction, then the distance from its end.
        const char* entry = symbol<const char>("zorsCopy_32f");
        std::int32_t distance;
        std::memcpy(&distance, entry + 3, sizeof distance);
        const char* target;
        std::memcpy(&target, entry + 7 + distance, sizeof target);
        Dl_info info;
        dladdr(entry, &info);
        return target - static_cast<const char*>(info.dli_fbase);
    }

private:
    void* handle_;
};

constexpr Zor64u avx2[] = {ZOR_CPU_AVX2, ZOR_CPU_FMA, ZOR_CPU_F16C};
constexpr Zor64u avx512[] = {ZOR_CPU_AVX512F, ZOR_CPU_AVX512DQ, ZOR_CPU_AVX512BW, ZOR_CPU_AVX512VL};
constexpr Zor64u allAvx2 = avx2[0] | avx2[1] | avx2[2];
constexpr Zor64u all = allAvx2 | avx512[0] | avx512[1] | avx512[2] | avx512[3];

TEST(Initialise, AsksTheCoreLibraryOnceAndInOrder)
{
    const Loaded library(0);
    EXPECT_EQ(substituteCore().calls, (Calls{"zorGetCpuFeatures(0, 0)", "zorGetEnabledCpuFeatures()"}));
}

TEST(Initialise, JumpIndexNeedsBothOfItsBits)
{
    const std::pair<Zor64u, int> expected[] = {{0, 0},    {0x10, 0}, {0x20, 0},
                                               {0x30, 1}, {0x37, 1}, {~0x10u, 0}};
    for (const auto& [mask, index] : expected) EXPECT_EQ(Loaded(mask).jumpIndex(), index) << mask;
}

TEST(Initialise, AVariantNeedsEveryFeatureThatItIsCompiledFor)
{
    const auto chosenFor = [](Zor64u mask) { return Loaded(mask).implementation(); };
    const auto baselineChosen = chosenFor(0), avx2Chosen = chosenFor(allAvx2), avx512Chosen = chosenFor(all);
    EXPECT_NE(baselineChosen, avx2Chosen);
    EXPECT_NE(baselineChosen, avx512Chosen);
    EXPECT_NE(avx2Chosen, avx512Chosen);
    for (const Zor64u feature : avx2) EXPECT_EQ(chosenFor(all & ~feature), baselineChosen) << feature;
    for (const Zor64u feature : avx512) EXPECT_EQ(chosenFor(all & ~feature), avx2Chosen) << feature;
}

} // namespace
