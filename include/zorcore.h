/**
 * @file
 * The core library: aligned memory and processor features. Other libraries of the family stand on it too.
 */
#ifndef ZORCORE_H
#define ZORCORE_H

#include <zortypes.h>

/** @name Feature bits of zorGetCpuFeatures() and zorGetEnabledCpuFeatures()
 * A bit is set only when the processor has the instructions and the operating system keeps their registers.
 * @{
 */
/** The instruction-set extension of this name may be used. */
#define ZOR_CPU_SSE UINT64_C(0x1)
#define ZOR_CPU_SSE2 UINT64_C(0x2)
#define ZOR_CPU_SSE3 UINT64_C(0x4)
#define ZOR_CPU_SSSE3 UINT64_C(0x8)
#define ZOR_CPU_SSE4_1 UINT64_C(0x10)
#define ZOR_CPU_SSE4_2 UINT64_C(0x20)
#define ZOR_CPU_POPCNT UINT64_C(0x40)
#define ZOR_CPU_AVX UINT64_C(0x80)
#define ZOR_CPU_F16C UINT64_C(0x100)
#define ZOR_CPU_FMA UINT64_C(0x200)
#define ZOR_CPU_AVX2 UINT64_C(0x400)
#define ZOR_CPU_BMI1 UINT64_C(0x800)
#define ZOR_CPU_BMI2 UINT64_C(0x1000)
#define ZOR_CPU_LZCNT UINT64_C(0x2000)
#define ZOR_CPU_AVX512F UINT64_C(0x10000)
#define ZOR_CPU_AVX512DQ UINT64_C(0x20000)
#define ZOR_CPU_AVX512BW UINT64_C(0x40000)
#define ZOR_CPU_AVX512VL UINT64_C(0x80000)
/** @} */

/** Which processor this is. */
typedef struct {
    char vendor[16]; /**< the vendor's identification, zero-terminated, such as "AuthenticAMD" */
    Zor32s family;   /**< family, the extended family added */
    Zor32s model;    /**< model, the extended model included */
    Zor32s stepping; /**< stepping */
} ZorCpuInfo;

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Detects the processor and reads the environment variable `ZOR_CPU_FEATURES`, a hexadecimal mask of feature
 * bits that may be used. A text that is not a hexadecimal number is ignored. The signal-processing library
 * calls this once when it is loaded, so the variable must be set before the program starts.
 * @param pFeatures receives the features of the processor, whatever the environment says; may be null
 * @param pInfo receives the identification of the processor; may be null
 * @return zorStsOk
 */
ZorStatus zorGetCpuFeatures(Zor64u* pFeatures, ZorCpuInfo* pInfo);

/**
 * The features that the libraries use: what the processor has and-ed with `ZOR_CPU_FEATURES`, as found by the
 * last zorGetCpuFeatures(), which is called where nobody has yet.
 * @return mask of `ZOR_CPU_...` bits
 */
Zor64u zorGetEnabledCpuFeatures(void);

/**
 * Allocates memory aligned to 64 bytes. Its content is undefined.
 * @param size number of bytes
 * @return the memory, to be released by zorFree(); null when @p size is below 1 or memory has run out
 */
void* zorMalloc(int size);

/**
 * Releases memory of zorMalloc().
 * @param pMemory what zorMalloc() returned, or null
 */
void zorFree(void* pMemory);

/**
 * Rounds an address up.
 * @param pMemory an address
 * @param alignment a power of two
 * @return the first multiple of @p alignment at or behind @p pMemory
 */
void* zorAlignPtr(void* pMemory, int alignment);

#ifdef __cplusplus
}
#endif

#endif
