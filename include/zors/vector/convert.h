/**
 * @file
 * Conversion between element types.
 *
 * Elements of `24s` and `24u` are three bytes each, least significant first, in vectors of Zor8u. `16f` is IEEE 754
 * binary16. No conversion depends on the caller's floating-point control word, and each leaves it as it was. A
 * source and a destination of equal element size may be the same vector; otherwise they must not overlap.
 */
#include <zortypes.h>

/** @name Exact conversion
 * @{
 */
/**
 * Converts to a type that has every value of the source's: pDst[n] = pSrc[n]. A half float that is not a number
 * becomes a quiet one with the same sign and payload.
 * @param pSrc source vector
 * @param pDst destination vector
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsConvert_8s16s, (const Zor8s* pSrc, Zor16s* pDst, int len))
ZORSAPI(ZorStatus, zorsConvert_16s32s, (const Zor16s* pSrc, Zor32s* pDst, int len))
ZORSAPI(ZorStatus, zorsConvert_8s32f, (const Zor8s* pSrc, Zor32f* pDst, int len))
ZORSAPI(ZorStatus, zorsConvert_8u32f, (const Zor8u* pSrc, Zor32f* pDst, int len))
ZORSAPI(ZorStatus, zorsConvert_16s32f, (const Zor16s* pSrc, Zor32f* pDst, int len))
ZORSAPI(ZorStatus, zorsConvert_16u32f, (const Zor16u* pSrc, Zor32f* pDst, int len))
ZORSAPI(ZorStatus, zorsConvert_32s64f, (const Zor32s* pSrc, Zor64f* pDst, int len))
ZORSAPI(ZorStatus, zorsConvert_24s32s, (const Zor8u* pSrc, Zor32s* pDst, int len))
ZORSAPI(ZorStatus, zorsConvert_24u32u, (const Zor8u* pSrc, Zor32u* pDst, int len))
ZORSAPI(ZorStatus, zorsConvert_24s32f, (const Zor8u* pSrc, Zor32f* pDst, int len))
ZORSAPI(ZorStatus, zorsConvert_24u32f, (const Zor8u* pSrc, Zor32f* pDst, int len))
ZORSAPI(ZorStatus, zorsConvert_16f32f, (const Zor16f* pSrc, Zor32f* pDst, int len))
ZORSAPI(ZorStatus, zorsConvert_32f64f, (const Zor32f* pSrc, Zor64f* pDst, int len))
/** @} */

/** @name Conversion to floats with rounding
 * @{
 */
/**
 * Converts to the nearest float, ties to even: pDst[n] = pSrc[n]. Doubles beyond the range become infinite.
 * @param pSrc source vector
 * @param pDst destination vector
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsConvert_32s32f, (const Zor32s* pSrc, Zor32f* pDst, int len))
ZORSAPI(ZorStatus, zorsConvert_64s64f, (const Zor64s* pSrc, Zor64f* pDst, int len))
ZORSAPI(ZorStatus, zorsConvert_64f32f, (const Zor64f* pSrc, Zor32f* pDst, int len))
/** @} */

/** @name Scaled conversion of integers to floats
 * @{
 */
/**
 * Converts integers to floats and scales them: pDst[n] = pSrc[n] * 2^-scaleFactor, rounded once to nearest, ties
 * to even, denormal results included.
 * @param pSrc source vector
 * @param pDst destination vector
 * @param len number of elements
 * @param scaleFactor any value; results beyond the range of the type are infinite or 0 with the element's sign
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsConvert_16s32f_Sfs, (const Zor16s* pSrc, Zor32f* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsConvert_32s32f_Sfs, (const Zor32s* pSrc, Zor32f* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsConvert_16s64f_Sfs, (const Zor16s* pSrc, Zor64f* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsConvert_32s64f_Sfs, (const Zor32s* pSrc, Zor64f* pDst, int len, int scaleFactor))
/** @} */

/** @name Saturating conversion of integers
 * @{
 */
/**
 * Converts to a narrower integer: pDst[n] = pSrc[n], saturated.
 * @param pSrc source vector
 * @param pDst destination vector
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsConvert_32s16s, (const Zor32s* pSrc, Zor16s* pDst, int len))
/** @} */

/** @name Scaled conversion of integers
 * @{
 */
/**
 * Scales integers and converts them to narrower ones: pDst[n] = pSrc[n] * 2^-scaleFactor, rounded to nearest, ties
 * to even, and saturated.
 * @param pSrc source vector
 * @param pDst destination vector
 * @param len number of elements
 * @param scaleFactor any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsConvert_32s16s_Sfs, (const Zor32s* pSrc, Zor16s* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsConvert_16s8s_Sfs, (const Zor16s* pSrc, Zor8s* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsConvert_32s24s_Sfs, (const Zor32s* pSrc, Zor8u* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsConvert_32u24u_Sfs, (const Zor32u* pSrc, Zor8u* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsConvert_64s32s_Sfs, (const Zor64s* pSrc, Zor32s* pDst, int len, int scaleFactor))
/** @} */

/** @name Scaled conversion of floats to integers
 * @{
 */
/**
 * Scales floats and converts them to integers: pDst[n] = pSrc[n] * 2^-scaleFactor, rounded as asked and
 * saturated. The scaling itself is exact. A value that is not a number gives 0.
 * @param pSrc source vector
 * @param pDst destination vector
 * @param len number of elements
 * @param rndMode zorRndZero, zorRndNear; any other value is zorRndFinancial
 * @param scaleFactor any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsConvert_32f8s_Sfs,
        (const Zor32f* pSrc, Zor8s* pDst, int len, ZorRoundMode rndMode, int scaleFactor))
ZORSAPI(ZorStatus, zorsConvert_32f8u_Sfs,
        (const Zor32f* pSrc, Zor8u* pDst, int len, ZorRoundMode rndMode, int scaleFactor))
ZORSAPI(ZorStatus, zorsConvert_32f16s_Sfs,
        (const Zor32f* pSrc, Zor16s* pDst, int len, ZorRoundMode rndMode, int scaleFactor))
ZORSAPI(ZorStatus, zorsConvert_32f16u_Sfs,
        (const Zor32f* pSrc, Zor16u* pDst, int len, ZorRoundMode rndMode, int scaleFactor))
ZORSAPI(ZorStatus, zorsConvert_32f24s_Sfs,
        (const Zor32f* pSrc, Zor8u* pDst, int len, ZorRoundMode rndMode, int scaleFactor))
ZORSAPI(ZorStatus, zorsConvert_32f24u_Sfs,
        (const Zor32f* pSrc, Zor8u* pDst, int len, ZorRoundMode rndMode, int scaleFactor))
ZORSAPI(ZorStatus, zorsConvert_32f32s_Sfs,
        (const Zor32f* pSrc, Zor32s* pDst, int len, ZorRoundMode rndMode, int scaleFactor))
ZORSAPI(ZorStatus, zorsConvert_64f16s_Sfs,
        (const Zor64f* pSrc, Zor16s* pDst, int len, ZorRoundMode rndMode, int scaleFactor))
ZORSAPI(ZorStatus, zorsConvert_64f32s_Sfs,
        (const Zor64f* pSrc, Zor32s* pDst, int len, ZorRoundMode rndMode, int scaleFactor))
ZORSAPI(ZorStatus, zorsConvert_64f64s_Sfs,
        (const Zor64f* pSrc, Zor64s* pDst, int len, ZorRoundMode rndMode, int scaleFactor))
/** @} */

/** @name Conversion to half floats
 * @{
 */
/**
 * Converts to half floats: pDst[n] = pSrc[n], rounded as asked. Beyond the range, 65504, the result is infinite
 * with zorRndNear and 65504 with zorRndZero; infinities stay infinite. Denormal halves are formed. What is not a
 * number becomes a quiet one with the same sign and the upper bits of the payload.
 * @param pSrc source vector
 * @param pDst destination vector
 * @param len number of elements
 * @param rndMode zorRndZero or zorRndNear
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, then zorStsBadRoundMode for
 * any other @p rndMode, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsConvert_32f16f, (const Zor32f* pSrc, Zor16f* pDst, int len, ZorRoundMode rndMode))
ZORSAPI(ZorStatus, zorsConvert_16s16f, (const Zor16s* pSrc, Zor16f* pDst, int len, ZorRoundMode rndMode))
/** @} */

/** @name Scaled conversion of half floats to integers
 * @{
 */
/**
 * Scales half floats and converts them to integers: pDst[n] = pSrc[n] * 2^-scaleFactor, rounded as asked and
 * saturated. A value that is not a number gives 0.
 * @param pSrc source vector
 * @param pDst destination vector
 * @param len number of elements
 * @param rndMode zorRndZero or zorRndNear
 * @param scaleFactor any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, then zorStsBadRoundMode for
 * any other @p rndMode, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsConvert_16f16s_Sfs,
        (const Zor16f* pSrc, Zor16s* pDst, int len, ZorRoundMode rndMode, int scaleFactor))
/** @} */
