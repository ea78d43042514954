/**
 * @file
 * Copying vectors.
 */
#include <zortypes.h>

/** @name Copy
 * @{
 */
/**
 * Copies a vector: pDst[n] = pSrc[n]. The vectors must not overlap; equal pointers are accepted. Long copies
 * bypass the caches.
 * @param pSrc source vector
 * @param pDst destination vector
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsCopy_8u, (const Zor8u* pSrc, Zor8u* pDst, int len))
ZORSAPI(ZorStatus, zorsCopy_16s, (const Zor16s* pSrc, Zor16s* pDst, int len))
ZORSAPI(ZorStatus, zorsCopy_16sc, (const Zor16sc* pSrc, Zor16sc* pDst, int len))
ZORSAPI(ZorStatus, zorsCopy_32s, (const Zor32s* pSrc, Zor32s* pDst, int len))
ZORSAPI(ZorStatus, zorsCopy_32sc, (const Zor32sc* pSrc, Zor32sc* pDst, int len))
ZORSAPI(ZorStatus, zorsCopy_32f, (const Zor32f* pSrc, Zor32f* pDst, int len))
ZORSAPI(ZorStatus, zorsCopy_32fc, (const Zor32fc* pSrc, Zor32fc* pDst, int len))
ZORSAPI(ZorStatus, zorsCopy_64s, (const Zor64s* pSrc, Zor64s* pDst, int len))
ZORSAPI(ZorStatus, zorsCopy_64sc, (const Zor64sc* pSrc, Zor64sc* pDst, int len))
ZORSAPI(ZorStatus, zorsCopy_64f, (const Zor64f* pSrc, Zor64f* pDst, int len))
ZORSAPI(ZorStatus, zorsCopy_64fc, (const Zor64fc* pSrc, Zor64fc* pDst, int len))
/** @} */

/** @name Move
 * @{
 */
/**
 * Copies a vector that may overlap its destination in any way: the destination holds what the source held
 * before the call.
 * @param pSrc source vector
 * @param pDst destination vector
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsMove_8u, (const Zor8u* pSrc, Zor8u* pDst, int len))
ZORSAPI(ZorStatus, zorsMove_16s, (const Zor16s* pSrc, Zor16s* pDst, int len))
ZORSAPI(ZorStatus, zorsMove_16sc, (const Zor16sc* pSrc, Zor16sc* pDst, int len))
ZORSAPI(ZorStatus, zorsMove_32s, (const Zor32s* pSrc, Zor32s* pDst, int len))
ZORSAPI(ZorStatus, zorsMove_32sc, (const Zor32sc* pSrc, Zor32sc* pDst, int len))
ZORSAPI(ZorStatus, zorsMove_32f, (const Zor32f* pSrc, Zor32f* pDst, int len))
ZORSAPI(ZorStatus, zorsMove_32fc, (const Zor32fc* pSrc, Zor32fc* pDst, int len))
ZORSAPI(ZorStatus, zorsMove_64s, (const Zor64s* pSrc, Zor64s* pDst, int len))
ZORSAPI(ZorStatus, zorsMove_64sc, (const Zor64sc* pSrc, Zor64sc* pDst, int len))
ZORSAPI(ZorStatus, zorsMove_64f, (const Zor64f* pSrc, Zor64f* pDst, int len))
ZORSAPI(ZorStatus, zorsMove_64fc, (const Zor64fc* pSrc, Zor64fc* pDst, int len))
/** @} */
