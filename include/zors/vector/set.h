/**
 * @file
 * Filling vectors.
 */
#include <zortypes.h>

/** @name Set
 * @{
 */
/**
 * Fills a vector with one value: pDst[n] = val.
 * @param val the value
 * @param pDst destination vector
 * @param len number of elements
 * @return zorStsNullPointer for a null @p pDst, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsSet_8u, (Zor8u val, Zor8u* pDst, int len))
ZORSAPI(ZorStatus, zorsSet_16s, (Zor16s val, Zor16s* pDst, int len))
ZORSAPI(ZorStatus, zorsSet_16sc, (Zor16sc val, Zor16sc* pDst, int len))
ZORSAPI(ZorStatus, zorsSet_32s, (Zor32s val, Zor32s* pDst, int len))
ZORSAPI(ZorStatus, zorsSet_32sc, (Zor32sc val, Zor32sc* pDst, int len))
ZORSAPI(ZorStatus, zorsSet_32f, (Zor32f val, Zor32f* pDst, int len))
ZORSAPI(ZorStatus, zorsSet_32fc, (Zor32fc val, Zor32fc* pDst, int len))
ZORSAPI(ZorStatus, zorsSet_64s, (Zor64s val, Zor64s* pDst, int len))
ZORSAPI(ZorStatus, zorsSet_64sc, (Zor64sc val, Zor64sc* pDst, int len))
ZORSAPI(ZorStatus, zorsSet_64f, (Zor64f val, Zor64f* pDst, int len))
ZORSAPI(ZorStatus, zorsSet_64fc, (Zor64fc val, Zor64fc* pDst, int len))
/** @} */

/** @name Zero
 * @{
 */
/**
 * Fills a vector with zeros, all bits zero.
 * @param pDst destination vector
 * @param len number of elements
 * @return zorStsNullPointer for a null @p pDst, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsZero_8u, (Zor8u* pDst, int len))
ZORSAPI(ZorStatus, zorsZero_16s, (Zor16s* pDst, int len))
ZORSAPI(ZorStatus, zorsZero_16sc, (Zor16sc* pDst, int len))
ZORSAPI(ZorStatus, zorsZero_32s, (Zor32s* pDst, int len))
ZORSAPI(ZorStatus, zorsZero_32sc, (Zor32sc* pDst, int len))
ZORSAPI(ZorStatus, zorsZero_32f, (Zor32f* pDst, int len))
ZORSAPI(ZorStatus, zorsZero_32fc, (Zor32fc* pDst, int len))
ZORSAPI(ZorStatus, zorsZero_64s, (Zor64s* pDst, int len))
ZORSAPI(ZorStatus, zorsZero_64sc, (Zor64sc* pDst, int len))
ZORSAPI(ZorStatus, zorsZero_64f, (Zor64f* pDst, int len))
ZORSAPI(ZorStatus, zorsZero_64fc, (Zor64fc* pDst, int len))
/** @} */
