#include <zorcore.h>

#include "export.h"

#include <atomic>
#include <cctype>
#include <cpuid.h>
#include <cstdlib>
#include <cstring>

namespace {

struct Registers {
    unsigned eax = 0, ebx = 0, ecx = 0, edx = 0;
};

Registers cpuid(unsigned leaf, unsigned subleaf = 0)
{
    Registers r;
    __get_cpuid_count(leaf, subleaf, &r.eax, &r.ebx, &r.ecx, &r.edx);
    return r;
}

// The register sets that the operating system saves and restores.
constexpr Zor64u stateYmm = 0x06;
constexpr Zor64u stateZmm = 0xe6;

Zor64u savedStates(const Registers& leaf1)
{
    if (!(leaf1.ecx & bit_OSXSAVE)) return 0;
    unsigned low = 0, high = 0;
    __asm__("xgetbv" : "=a"(low), "=d"(high) : "c"(0));
    return static_cast<Zor64u>(high) << 32 | low;
}

struct FeatureBit {
    unsigned word;
    unsigned bit;
    Zor64u feature;
    Zor64u states;
};

Zor64u detectFeatures()
{
    const Registers leaf1 = cpuid(1);
    const Registers leaf7 = cpuid(7);
    const Registers extended = cpuid(0x80000001u);
    const Zor64u states = savedStates(leaf1);

    const FeatureBit table[] = {
        {leaf1.edx, bit_SSE, ZOR_CPU_SSE, 0},
        {leaf1.edx, bit_SSE2, ZOR_CPU_SSE2, 0},
        {leaf1.ecx, bit_SSE3, ZOR_CPU_SSE3, 0},
        {leaf1.ecx, bit_SSSE3, ZOR_CPU_SSSE3, 0},
        {leaf1.ecx, bit_SSE4_1, ZOR_CPU_SSE4_1, 0},
        {leaf1.ecx, bit_SSE4_2, ZOR_CPU_SSE4_2, 0},
        {leaf1.ecx, bit_POPCNT, ZOR_CPU_POPCNT, 0},
        {leaf1.ecx, bit_AVX, ZOR_CPU_AVX, stateYmm},
        {leaf1.ecx, bit_F16C, ZOR_CPU_F16C, stateYmm},
        {leaf1.ecx, bit_FMA, ZOR_CPU_FMA, stateYmm},
        {leaf7.ebx, bit_AVX2, ZOR_CPU_AVX2, stateYmm},
        {leaf7.ebx, bit_BMI, ZOR_CPU_BMI1, 0},
        {leaf7.ebx, bit_BMI2, ZOR_CPU_BMI2, 0},
        {extended.ecx, bit_LZCNT, ZOR_CPU_LZCNT, 0},
        {leaf7.ebx, bit_AVX512F, ZOR_CPU_AVX512F, stateZmm},
        {leaf7.ebx, bit_AVX512DQ, ZOR_CPU_AVX512DQ, stateZmm},
        {leaf7.ebx, bit_AVX512BW, ZOR_CPU_AVX512BW, stateZmm},
        {leaf7.ebx, bit_AVX512VL, ZOR_CPU_AVX512VL, stateZmm},
    };
    Zor64u found = 0;
    for (const FeatureBit& f : table)
        if ((f.word & f.bit) && (states & f.states) == f.states) found |= f.feature;
    return found;
}

Zor64u allowedFeatures()
{
    const char* text = std::getenv("ZOR_CPU_FEATURES");
    // Neither a sign nor a blank begins a mask.
    if (!text || !std::isxdigit(static_cast<unsigned char>(*text))) return ~UINT64_C(0);
    char* end = nullptr;
    const Zor64u mask = std::strtoull(text, &end, 16);
    return *end ? ~UINT64_C(0) : mask;
}

ZorCpuInfo identify()
{
    ZorCpuInfo info{};
    const Registers leaf0 = cpuid(0);
    std::memcpy(info.vendor, &leaf0.ebx, 4);
    std::memcpy(info.vendor + 4, &leaf0.edx, 4);
    std::memcpy(info.vendor + 8, &leaf0.ecx, 4);

    // The extended fields count from family 6 (model) and family 15 (both) on.
    const unsigned signature = cpuid(1).eax;
    const unsigned family = signature >> 8 & 15;
    const unsigned model = signature >> 4 & 15;
    info.family = static_cast<Zor32s>(family == 15 ? family + (signature >> 20 & 255) : family);
    info.model = static_cast<Zor32s>(family == 15 || family == 6 ? model + (signature >> 12 & 240) : model);
    info.stepping = static_cast<Zor32s>(signature & 15);
    return info;
}

// Features found and allowed; the top bit, which no feature uses, tells that detection has run.
constexpr Zor64u detected = UINT64_C(1) << 63;
std::atomic<Zor64u> enabledFeatures{0};

} // namespace

ZORCORE_EXPORT ZorStatus zorGetCpuFeatures(Zor64u* pFeatures, ZorCpuInfo* pInfo)
{
    const Zor64u found = detectFeatures();
    enabledFeatures.store((found & allowedFeatures()) | detected, std::memory_order_relaxed);
    if (pFeatures) *pFeatures = found;
    if (pInfo) *pInfo = identify();
    return zorStsOk;
}

ZORCORE_EXPORT Zor64u zorGetEnabledCpuFeatures(void)
{
    if (!enabledFeatures.load(std::memory_order_relaxed)) zorGetCpuFeatures(nullptr, nullptr);
    return enabledFeatures.load(std::memory_order_relaxed) & ~detected;
}
