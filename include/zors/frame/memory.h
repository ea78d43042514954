/**
 * @file
 * Aligned memory for vectors, records and work buffers.
 */
#include <zortypes.h>

/** @name Allocation
 * @{
 */
/**
 * Allocates a vector, aligned to 64 bytes, with undefined content.
 *
 * The number of bytes is formed as a 32-bit product and wraps: ask for at most 2^31 - 1 bytes.
 * @param len number of elements
 * @return the vector, to be released by zorsFree(); null when @p len is below 1 or memory has run out
 */
ZORSAPI(Zor8u*, zorsMalloc_8u, (int len))
ZORSAPI(Zor8s*, zorsMalloc_8s, (int len))
ZORSAPI(Zor16u*, zorsMalloc_16u, (int len))
ZORSAPI(Zor16s*, zorsMalloc_16s, (int len))
ZORSAPI(Zor32u*, zorsMalloc_32u, (int len))
ZORSAPI(Zor32s*, zorsMalloc_32s, (int len))
ZORSAPI(Zor64s*, zorsMalloc_64s, (int len))
ZORSAPI(Zor32f*, zorsMalloc_32f, (int len))
ZORSAPI(Zor64f*, zorsMalloc_64f, (int len))
ZORSAPI(Zor8sc*, zorsMalloc_8sc, (int len))
ZORSAPI(Zor16sc*, zorsMalloc_16sc, (int len))
ZORSAPI(Zor32sc*, zorsMalloc_32sc, (int len))
ZORSAPI(Zor64sc*, zorsMalloc_64sc, (int len))
ZORSAPI(Zor32fc*, zorsMalloc_32fc, (int len))
ZORSAPI(Zor64fc*, zorsMalloc_64fc, (int len))
/** @} */

/**
 * Releases a vector.
 * @param pVector what a zorsMalloc function returned, or null
 */
ZORSAPI(void, zorsFree, (void* pVector))
