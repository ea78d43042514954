// The processor variants, as the tests choose them.
#pragma once

#include <zorcore.h>

#include <string_view>

namespace zors::test {

struct Variant {
    std::string_view name;
    Zor64u features; // what the processor must have to run it
    Zor64u mask;     // what ZOR_CPU_FEATURES leaves for it to be the widest
};

inline constexpr Zor64u avx2Features = ZOR_CPU_AVX2 | ZOR_CPU_FMA | ZOR_CPU_F16C;
inline constexpr Zor64u avx512Features =
    avx2Features | ZOR_CPU_AVX512F | ZOR_CPU_AVX512DQ | ZOR_CPU_AVX512BW | ZOR_CPU_AVX512VL;

inline constexpr Variant variants[] = {
    {"r5", ZOR_CPU_SSE3, 0x7},
    {"avx2", avx2Features, 0xffff},
    {"avx512", avx512Features, 0xffffffff},
};

inline bool processorRuns(const Variant& variant)
{
    Zor64u features = 0;
    zorGetCpuFeatures(&features, nullptr);
    return (features & variant.features) == variant.features;
}

} // namespace zors::test
