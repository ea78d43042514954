/**
 * @file
 * Element-wise integer arithmetic with a scale factor: sums, differences and products.
 *
 * The rule of all functions here: the exact result is multiplied by 2^-scaleFactor, rounded to nearest with ties to
 * even and saturated to the destination's type, the parts of complex numbers each for themselves. No scale factor is
 * an error: where every result rounds to 0 the destination is zeroed, and where every result but 0 is out of range it
 * holds the bounds of the type.
 */
#include <zortypes.h>

/** @name Scaled sum
 * @{
 */
/**
 * pDst[n] = pSrc1[n] + pSrc2[n], scaled.
 * `64s` sums are exact beyond 64 bits; a scale factor above 63 gives 0.
 * The `16sc` form checks the length before the pointers.
 * @param pSrc1 first summand
 * @param pSrc2 second summand
 * @param pDst destination vector; may be equal to a source
 * @param len number of elements
 * @param scaleFactor any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsAdd_8u_Sfs,
        (const Zor8u* pSrc1, const Zor8u* pSrc2, Zor8u* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsAdd_16u_Sfs,
        (const Zor16u* pSrc1, const Zor16u* pSrc2, Zor16u* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsAdd_16s_Sfs,
        (const Zor16s* pSrc1, const Zor16s* pSrc2, Zor16s* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsAdd_32s_Sfs,
        (const Zor32s* pSrc1, const Zor32s* pSrc2, Zor32s* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsAdd_16sc_Sfs,
        (const Zor16sc* pSrc1, const Zor16sc* pSrc2, Zor16sc* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsAdd_32sc_Sfs,
        (const Zor32sc* pSrc1, const Zor32sc* pSrc2, Zor32sc* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsAdd_64s_Sfs,
        (const Zor64s* pSrc1, const Zor64s* pSrc2, Zor64s* pDst, int len, int scaleFactor))
/** @} */

/** @name Scaled sum in place
 * @{
 */
/**
 * pSrcDst[n] = pSrcDst[n] + pSrc[n], scaled.
 * `64s` sums are exact beyond 64 bits; a scale factor above 63 gives 0.
 * The `16sc` form checks the length before the pointers.
 * @param pSrc first summand
 * @param pSrcDst second summand, overwritten by the result
 * @param len number of elements
 * @param scaleFactor any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsAdd_8u_ISfs, (const Zor8u* pSrc, Zor8u* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsAdd_16u_ISfs, (const Zor16u* pSrc, Zor16u* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsAdd_16s_ISfs, (const Zor16s* pSrc, Zor16s* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsAdd_32s_ISfs, (const Zor32s* pSrc, Zor32s* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsAdd_16sc_ISfs, (const Zor16sc* pSrc, Zor16sc* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsAdd_32sc_ISfs, (const Zor32sc* pSrc, Zor32sc* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsAdd_64s_ISfs, (const Zor64s* pSrc, Zor64s* pSrcDst, int len, int scaleFactor))
/** @} */

/** @name Scaled difference
 * @{
 */
/**
 * pDst[n] = pSrc2[n] - pSrc1[n], scaled.
 * The `16sc` form checks the length before the pointers.
 * @param pSrc1 subtrahend
 * @param pSrc2 minuend
 * @param pDst destination vector; may be equal to a source
 * @param len number of elements
 * @param scaleFactor any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsSub_8u_Sfs,
        (const Zor8u* pSrc1, const Zor8u* pSrc2, Zor8u* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsSub_16u_Sfs,
        (const Zor16u* pSrc1, const Zor16u* pSrc2, Zor16u* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsSub_16s_Sfs,
        (const Zor16s* pSrc1, const Zor16s* pSrc2, Zor16s* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsSub_32s_Sfs,
        (const Zor32s* pSrc1, const Zor32s* pSrc2, Zor32s* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsSub_16sc_Sfs,
        (const Zor16sc* pSrc1, const Zor16sc* pSrc2, Zor16sc* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsSub_32sc_Sfs,
        (const Zor32sc* pSrc1, const Zor32sc* pSrc2, Zor32sc* pDst, int len, int scaleFactor))
/** @} */

/** @name Scaled difference in place
 * @{
 */
/**
 * pSrcDst[n] = pSrcDst[n] - pSrc[n], scaled.
 * The `16sc` form checks the length before the pointers.
 * @param pSrc subtrahend
 * @param pSrcDst minuend, overwritten by the result
 * @param len number of elements
 * @param scaleFactor any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsSub_8u_ISfs, (const Zor8u* pSrc, Zor8u* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsSub_16u_ISfs, (const Zor16u* pSrc, Zor16u* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsSub_16s_ISfs, (const Zor16s* pSrc, Zor16s* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsSub_32s_ISfs, (const Zor32s* pSrc, Zor32s* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsSub_16sc_ISfs, (const Zor16sc* pSrc, Zor16sc* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsSub_32sc_ISfs, (const Zor32sc* pSrc, Zor32sc* pSrcDst, int len, int scaleFactor))
/** @} */

/** @name Scaled sum with a constant
 * @{
 */
/**
 * pDst[n] = pSrc[n] + val, scaled.
 * @param pSrc source vector
 * @param val the constant
 * @param pDst destination vector; may be equal to the source
 * @param len number of elements
 * @param scaleFactor any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsAddC_8u_Sfs, (const Zor8u* pSrc, Zor8u val, Zor8u* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsAddC_16u_Sfs, (const Zor16u* pSrc, Zor16u val, Zor16u* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsAddC_16s_Sfs, (const Zor16s* pSrc, Zor16s val, Zor16s* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsAddC_32s_Sfs, (const Zor32s* pSrc, Zor32s val, Zor32s* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsAddC_16sc_Sfs,
        (const Zor16sc* pSrc, Zor16sc val, Zor16sc* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsAddC_32sc_Sfs,
        (const Zor32sc* pSrc, Zor32sc val, Zor32sc* pDst, int len, int scaleFactor))
/** @} */

/** @name Scaled sum with a constant in place
 * @{
 */
/**
 * pSrcDst[n] = pSrcDst[n] + val, scaled.
 * @param val the constant
 * @param pSrcDst source vector, overwritten by the result
 * @param len number of elements
 * @param scaleFactor any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsAddC_8u_ISfs, (Zor8u val, Zor8u* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsAddC_16u_ISfs, (Zor16u val, Zor16u* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsAddC_16s_ISfs, (Zor16s val, Zor16s* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsAddC_32s_ISfs, (Zor32s val, Zor32s* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsAddC_16sc_ISfs, (Zor16sc val, Zor16sc* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsAddC_32sc_ISfs, (Zor32sc val, Zor32sc* pSrcDst, int len, int scaleFactor))
/** @} */

/** @name Scaled difference from a constant
 * @{
 */
/**
 * pDst[n] = pSrc[n] - val, scaled.
 * @param pSrc source vector
 * @param val the constant
 * @param pDst destination vector; may be equal to the source
 * @param len number of elements
 * @param scaleFactor any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsSubC_8u_Sfs, (const Zor8u* pSrc, Zor8u val, Zor8u* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsSubC_16u_Sfs, (const Zor16u* pSrc, Zor16u val, Zor16u* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsSubC_16s_Sfs, (const Zor16s* pSrc, Zor16s val, Zor16s* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsSubC_32s_Sfs, (const Zor32s* pSrc, Zor32s val, Zor32s* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsSubC_16sc_Sfs,
        (const Zor16sc* pSrc, Zor16sc val, Zor16sc* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsSubC_32sc_Sfs,
        (const Zor32sc* pSrc, Zor32sc val, Zor32sc* pDst, int len, int scaleFactor))
/** @} */

/** @name Scaled difference from a constant in place
 * @{
 */
/**
 * pSrcDst[n] = pSrcDst[n] - val, scaled.
 * @param val the constant
 * @param pSrcDst source vector, overwritten by the result
 * @param len number of elements
 * @param scaleFactor any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsSubC_8u_ISfs, (Zor8u val, Zor8u* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsSubC_16u_ISfs, (Zor16u val, Zor16u* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsSubC_16s_ISfs, (Zor16s val, Zor16s* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsSubC_32s_ISfs, (Zor32s val, Zor32s* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsSubC_16sc_ISfs, (Zor16sc val, Zor16sc* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsSubC_32sc_ISfs, (Zor32sc val, Zor32sc* pSrcDst, int len, int scaleFactor))
/** @} */

/** @name Scaled difference of a constant
 * @{
 */
/**
 * pDst[n] = val - pSrc[n], scaled.
 * @param pSrc source vector
 * @param val the constant
 * @param pDst destination vector; may be equal to the source
 * @param len number of elements
 * @param scaleFactor any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsSubCRev_8u_Sfs, (const Zor8u* pSrc, Zor8u val, Zor8u* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsSubCRev_16u_Sfs,
        (const Zor16u* pSrc, Zor16u val, Zor16u* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsSubCRev_16s_Sfs,
        (const Zor16s* pSrc, Zor16s val, Zor16s* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsSubCRev_32s_Sfs,
        (const Zor32s* pSrc, Zor32s val, Zor32s* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsSubCRev_16sc_Sfs,
        (const Zor16sc* pSrc, Zor16sc val, Zor16sc* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsSubCRev_32sc_Sfs,
        (const Zor32sc* pSrc, Zor32sc val, Zor32sc* pDst, int len, int scaleFactor))
/** @} */

/** @name Scaled difference of a constant in place
 * @{
 */
/**
 * pSrcDst[n] = val - pSrcDst[n], scaled.
 * @param val the constant
 * @param pSrcDst source vector, overwritten by the result
 * @param len number of elements
 * @param scaleFactor any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsSubCRev_8u_ISfs, (Zor8u val, Zor8u* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsSubCRev_16u_ISfs, (Zor16u val, Zor16u* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsSubCRev_16s_ISfs, (Zor16s val, Zor16s* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsSubCRev_32s_ISfs, (Zor32s val, Zor32s* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsSubCRev_16sc_ISfs, (Zor16sc val, Zor16sc* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsSubCRev_32sc_ISfs, (Zor32sc val, Zor32sc* pSrcDst, int len, int scaleFactor))
/** @} */

/** @name Scaled product
 * @{
 */
/**
 * pDst[n] = pSrc1[n] * pSrc2[n], scaled.
 * @param pSrc1 first factor
 * @param pSrc2 second factor
 * @param pDst destination vector; may be equal to a source
 * @param len number of elements
 * @param scaleFactor any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsMul_8u_Sfs,
        (const Zor8u* pSrc1, const Zor8u* pSrc2, Zor8u* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsMul_16u_Sfs,
        (const Zor16u* pSrc1, const Zor16u* pSrc2, Zor16u* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsMul_16s_Sfs,
        (const Zor16s* pSrc1, const Zor16s* pSrc2, Zor16s* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsMul_32s_Sfs,
        (const Zor32s* pSrc1, const Zor32s* pSrc2, Zor32s* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsMul_16sc_Sfs,
        (const Zor16sc* pSrc1, const Zor16sc* pSrc2, Zor16sc* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsMul_32sc_Sfs,
        (const Zor32sc* pSrc1, const Zor32sc* pSrc2, Zor32sc* pDst, int len, int scaleFactor))
/** @} */

/** @name Scaled product in place
 * @{
 */
/**
 * pSrcDst[n] = pSrcDst[n] * pSrc[n], scaled.
 * @param pSrc first factor
 * @param pSrcDst second factor, overwritten by the result
 * @param len number of elements
 * @param scaleFactor any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsMul_8u_ISfs, (const Zor8u* pSrc, Zor8u* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsMul_16u_ISfs, (const Zor16u* pSrc, Zor16u* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsMul_16s_ISfs, (const Zor16s* pSrc, Zor16s* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsMul_32s_ISfs, (const Zor32s* pSrc, Zor32s* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsMul_16sc_ISfs, (const Zor16sc* pSrc, Zor16sc* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsMul_32sc_ISfs, (const Zor32sc* pSrc, Zor32sc* pSrcDst, int len, int scaleFactor))
/** @} */

/** @name Scaled product with a constant
 * @{
 */
/**
 * pDst[n] = pSrc[n] * val, scaled.
 * @param pSrc source vector
 * @param val the constant
 * @param pDst destination vector; may be equal to the source
 * @param len number of elements
 * @param scaleFactor any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsMulC_8u_Sfs, (const Zor8u* pSrc, Zor8u val, Zor8u* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsMulC_16u_Sfs, (const Zor16u* pSrc, Zor16u val, Zor16u* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsMulC_16s_Sfs, (const Zor16s* pSrc, Zor16s val, Zor16s* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsMulC_32s_Sfs, (const Zor32s* pSrc, Zor32s val, Zor32s* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsMulC_16sc_Sfs,
        (const Zor16sc* pSrc, Zor16sc val, Zor16sc* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsMulC_32sc_Sfs,
        (const Zor32sc* pSrc, Zor32sc val, Zor32sc* pDst, int len, int scaleFactor))
/** @} */

/** @name Scaled product with a constant in place
 * @{
 */
/**
 * pSrcDst[n] = pSrcDst[n] * val, scaled.
 * @param val the constant
 * @param pSrcDst source vector, overwritten by the result
 * @param len number of elements
 * @param scaleFactor any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsMulC_8u_ISfs, (Zor8u val, Zor8u* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsMulC_16u_ISfs, (Zor16u val, Zor16u* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsMulC_16s_ISfs, (Zor16s val, Zor16s* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsMulC_32s_ISfs, (Zor32s val, Zor32s* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsMulC_16sc_ISfs, (Zor16sc val, Zor16sc* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsMulC_32sc_ISfs, (Zor32sc val, Zor32sc* pSrcDst, int len, int scaleFactor))
/** @} */

/** @name Scaled products of other types
 * @{
 */
/**
 * pDst[n] = pSrc1[n] * pSrc2[n], scaled. `Low` is allowed to be less exact than zorsMul_32s_Sfs() and is not.
 * @param pSrc1 first factor
 * @param pSrc2 second factor
 * @param pDst destination vector; may be equal to a source
 * @param len number of elements
 * @param scaleFactor any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsMul_Low_32s_Sfs,
        (const Zor32s* pSrc1, const Zor32s* pSrc2, Zor32s* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsMul_16u16s_Sfs,
        (const Zor16u* pSrc1, const Zor16s* pSrc2, Zor16s* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsMul_16s32s_Sfs,
        (const Zor16s* pSrc1, const Zor16s* pSrc2, Zor32s* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsMul_32s32sc_Sfs,
        (const Zor32s* pSrc1, const Zor32sc* pSrc2, Zor32sc* pDst, int len, int scaleFactor))
/** @} */

/** @name Scaled product of real and complex in place
 * @{
 */
/**
 * pSrcDst[n] = pSrc[n] * pSrcDst[n], scaled.
 * @param pSrc real factor
 * @param pSrcDst complex factor, overwritten by the result
 * @param len number of elements
 * @param scaleFactor any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsMul_32s32sc_ISfs, (const Zor32s* pSrc, Zor32sc* pSrcDst, int len, int scaleFactor))
/** @} */

/** @name Scaled product of floats
 * @{
 */
/**
 * pDst[n] = pSrc[n] * val, the exact product, scaled. Infinities saturate, what is not a number gives 0.
 * @param pSrc source vector
 * @param val factor
 * @param pDst destination vector
 * @param len number of elements
 * @param scaleFactor any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsMulC_32f16s_Sfs, (const Zor32f* pSrc, Zor32f val, Zor16s* pDst, int len, int scaleFactor))
/** @} */

/** @name Scaled sum with a product
 * @{
 */
/**
 * pSrcDst[n] = pSrcDst[n] + pSrc1[n] * pSrc2[n], scaled. In `32s` a scale factor above 62 gives 0.
 * @param pSrc1 first factor
 * @param pSrc2 second factor
 * @param pSrcDst summand, overwritten by the result
 * @param len number of elements
 * @param scaleFactor any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsAddProduct_16s_Sfs,
        (const Zor16s* pSrc1, const Zor16s* pSrc2, Zor16s* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsAddProduct_32s_Sfs,
        (const Zor32s* pSrc1, const Zor32s* pSrc2, Zor32s* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsAddProduct_16s32s_Sfs,
        (const Zor16s* pSrc1, const Zor16s* pSrc2, Zor32s* pSrcDst, int len, int scaleFactor))
/** @} */
