/**
 * @file
 * Reversing the order of elements and of the bytes in them.
 */
#include <zortypes.h>

/** @name Flip
 * @{
 */
/**
 * Reverses the order of the elements: pDst[n] = pSrc[len - 1 - n]. The vectors must not overlap.
 * @param pSrc source vector
 * @param pDst destination vector
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFlip_8u, (const Zor8u* pSrc, Zor8u* pDst, int len))
ZORSAPI(ZorStatus, zorsFlip_16u, (const Zor16u* pSrc, Zor16u* pDst, int len))
ZORSAPI(ZorStatus, zorsFlip_32f, (const Zor32f* pSrc, Zor32f* pDst, int len))
ZORSAPI(ZorStatus, zorsFlip_64f, (const Zor64f* pSrc, Zor64f* pDst, int len))
ZORSAPI(ZorStatus, zorsFlip_32fc, (const Zor32fc* pSrc, Zor32fc* pDst, int len))
ZORSAPI(ZorStatus, zorsFlip_64fc, (const Zor64fc* pSrc, Zor64fc* pDst, int len))
/** @} */

/** @name Flip in place
 * @{
 */
/**
 * Reverses the order of the elements of a vector; the middle one of an odd length stays.
 * @param pSrcDst vector
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFlip_8u_I, (Zor8u* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsFlip_16u_I, (Zor16u* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsFlip_32f_I, (Zor32f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsFlip_64f_I, (Zor64f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsFlip_32fc_I, (Zor32fc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsFlip_64fc_I, (Zor64fc* pSrcDst, int len))
/** @} */

/** @name Byte order
 * @{
 */
/**
 * Reverses the byte order inside every element. Elements of `24u` are three bytes each.
 * @param pSrc source vector
 * @param pDst destination vector; equal to @p pSrc or without overlap
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsSwapBytes_16u, (const Zor16u* pSrc, Zor16u* pDst, int len))
ZORSAPI(ZorStatus, zorsSwapBytes_24u, (const Zor8u* pSrc, Zor8u* pDst, int len))
ZORSAPI(ZorStatus, zorsSwapBytes_32u, (const Zor32u* pSrc, Zor32u* pDst, int len))
ZORSAPI(ZorStatus, zorsSwapBytes_64u, (const Zor64u* pSrc, Zor64u* pDst, int len))
/** @} */

/** @name Byte order in place
 * @{
 */
/**
 * Reverses the byte order inside every element of a vector.
 * @param pSrcDst vector
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsSwapBytes_16u_I, (Zor16u* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsSwapBytes_24u_I, (Zor8u* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsSwapBytes_32u_I, (Zor32u* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsSwapBytes_64u_I, (Zor64u* pSrcDst, int len))
/** @} */
