// What happens when the library is loaded: the processor is asked once, and the slots are re-pointed to the
// widest variant that it can run.
#include "bind.h"

#include <zorcore.h>

#include <cstring>

using AnyRedirect = zors::Redirect<void()>;

// The linker's names for the ends of each variant's list.
extern "C" const AnyRedirect __start_zors_redirects_avx2[], __stop_zors_redirects_avx2[];
extern "C" const AnyRedirect __start_zors_redirects_avx512[], __stop_zors_redirects_avx512[];

// For builds that merge several libraries into one file; nothing here reads it.
extern "C" {
[[gnu::visibility("default")]] Zor32s zorJumpIndexForMergedDLL = 0;
}

namespace {

constexpr Zor64u mergedIndexFeatures = 0x30;
constexpr Zor64u avx2Features = ZOR_CPU_AVX2 | ZOR_CPU_FMA | ZOR_CPU_F16C;
constexpr Zor64u avx512Features =
    avx2Features | ZOR_CPU_AVX512F | ZOR_CPU_AVX512DQ | ZOR_CPU_AVX512BW | ZOR_CPU_AVX512VL;

bool hasAll(Zor64u mask, Zor64u features)
{
    return (mask & features) == features;
}

void redirect(const AnyRedirect* begin, const AnyRedirect* end)
{
    // A slot is an object of its own function's pointer type: written as bytes.
    for (const AnyRedirect* r = begin; r != end; ++r)
        std::memcpy(r->slot, &r->implementation, sizeof r->implementation);
}

[[gnu::constructor]] int initialise()
{
    zorGetCpuFeatures(nullptr, nullptr);
    const Zor64u mask = zorGetEnabledCpuFeatures();
    zorJumpIndexForMergedDLL = hasAll(mask, mergedIndexFeatures) ? 1 : 0;

    if (hasAll(mask, avx512Features))
        redirect(__start_zors_redirects_avx512, __stop_zors_redirects_avx512);
    else if (hasAll(mask, avx2Features))
        redirect(__start_zors_redirects_avx2, __stop_zors_redirects_avx2);
    return 1;
}

} // namespace
