/**
 * @file
 * Conversion between element types.
 */
#include <zortypes.h>

/** @name Scaled conversion of integers to floats
 * @{
 */
/**
 * Converts integers to floats and scales them: pDst[n] = pSrc[n] * 2^-scaleFactor, rounded once.
 * @param pSrc source vector
 * @param pDst destination vector
 * @param len number of elements
 * @param scaleFactor any value; results beyond the range of the type are infinite or 0 with the element's sign
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsConvert_16s32f_Sfs, (const Zor16s* pSrc, Zor32f* pDst, int len, int scaleFactor))
/** @} */

/** @name Scaled conversion of floats to integers
 * @{
 */
/**
 * Scales floats and converts them to integers: pDst[n] = pSrc[n] * 2^-scaleFactor, rounded as asked and
 * saturated. The scaling itself is exact. A value that is not a number gives 0. The caller's rounding control
 * has no influence and is left as it was.
 * @param pSrc source vector
 * @param pDst destination vector
 * @param len number of elements
 * @param rndMode zorRndZero, zorRndNear; any other value is zorRndFinancial
 * @param scaleFactor any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsConvert_32f16s_Sfs,
        (const Zor32f* pSrc, Zor16s* pDst, int len, ZorRoundMode rndMode, int scaleFactor))
/** @} */
