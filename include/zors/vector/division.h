/**
 * @file
 * Element-wise division.
 *
 * In the forms with two sources the first one is the divisor. Sources and destinations may be the same vector, and
 * must not overlap otherwise. No scale factor is an error.
 *
 * The integer members round the exact quotient, scaled by 2^-scaleFactor, once, and saturate it. The caller's
 * rounding control has no influence and is left as it was. A zero divisor gives the bound of the type that has the
 * sign of the dividend, for a zero dividend 0, and the warning zorStsDivByZero; the other elements are not affected.
 */
#include <zortypes.h>

/** @name Scaled division
 * @{
 */
/**
 * Divides vectors of integers: pDst[n] = pSrc2[n] / pSrc1[n] * 2^-scaleFactor, or
 * pSrcDst[n] = pSrcDst[n] / pSrc[n] * 2^-scaleFactor, rounded to nearest, ties to even, and saturated.
 *
 * The parts of a complex quotient are exact, rounded and saturated each for itself; a zero complex divisor gives each
 * part its substitute by the sign of the dividend's part.
 * @param pSrc1 divisors
 * @param pSrc2 dividends
 * @param pDst destination vector
 * @param len number of elements
 * @param scaleFactor any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1; zorStsDivByZero if a divisor was
 * zero, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsDiv_8u_Sfs, (const Zor8u* pSrc1, const Zor8u* pSrc2, Zor8u* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsDiv_16u_Sfs, (const Zor16u* pSrc1, const Zor16u* pSrc2, Zor16u* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsDiv_16s_Sfs, (const Zor16s* pSrc1, const Zor16s* pSrc2, Zor16s* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsDiv_16sc_Sfs,
        (const Zor16sc* pSrc1, const Zor16sc* pSrc2, Zor16sc* pDst, int len, int scaleFactor))
/** @} */

/** @name Scaled division in place
 * @{
 */
/**
 * Divides vectors of integers: pDst[n] = pSrc2[n] / pSrc1[n] * 2^-scaleFactor, or
 * pSrcDst[n] = pSrcDst[n] / pSrc[n] * 2^-scaleFactor, rounded to nearest, ties to even, and saturated.
 *
 * The parts of a complex quotient are exact, rounded and saturated each for itself; a zero complex divisor gives each
 * part its substitute by the sign of the dividend's part.
 * @param pSrc divisors
 * @param pSrcDst dividends, receives the quotients
 * @param len number of elements
 * @param scaleFactor any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1; zorStsDivByZero if a divisor was
 * zero, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsDiv_8u_ISfs, (const Zor8u* pSrc, Zor8u* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsDiv_16u_ISfs, (const Zor16u* pSrc, Zor16u* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsDiv_16s_ISfs, (const Zor16s* pSrc, Zor16s* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsDiv_16sc_ISfs, (const Zor16sc* pSrc, Zor16sc* pSrcDst, int len, int scaleFactor))
/** @} */

/** @name Scaled division with a rounding mode
 * @{
 */
/**
 * Divides vectors of integers as the members without a rounding mode do, and rounds as asked.
 * @param pSrc1 divisors
 * @param pSrc2 dividends
 * @param pDst destination vector
 * @param len number of elements
 * @param scaleFactor any value
 * @param rndMode zorRndZero, zorRndNear or zorRndFinancial
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, then zorStsBadRoundMode for any
 * other @p rndMode; zorStsDivByZero if a divisor was zero, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsDiv_Round_8u_Sfs,
        (const Zor8u* pSrc1, const Zor8u* pSrc2, Zor8u* pDst, int len, int scaleFactor, ZorRoundMode rndMode))
ZORSAPI(ZorStatus, zorsDiv_Round_16u_Sfs,
        (const Zor16u* pSrc1, const Zor16u* pSrc2, Zor16u* pDst, int len, int scaleFactor, ZorRoundMode rndMode))
ZORSAPI(ZorStatus, zorsDiv_Round_16s_Sfs,
        (const Zor16s* pSrc1, const Zor16s* pSrc2, Zor16s* pDst, int len, int scaleFactor, ZorRoundMode rndMode))
/** @} */

/** @name Scaled division with a rounding mode in place
 * @{
 */
/**
 * Divides vectors of integers as the members without a rounding mode do, and rounds as asked.
 * @param pSrc divisors
 * @param pSrcDst dividends, receives the quotients
 * @param len number of elements
 * @param scaleFactor any value
 * @param rndMode zorRndZero, zorRndNear or zorRndFinancial
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, then zorStsBadRoundMode for any
 * other @p rndMode; zorStsDivByZero if a divisor was zero, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsDiv_Round_8u_ISfs,
        (const Zor8u* pSrc, Zor8u* pSrcDst, int len, int scaleFactor, ZorRoundMode rndMode))
ZORSAPI(ZorStatus, zorsDiv_Round_16u_ISfs,
        (const Zor16u* pSrc, Zor16u* pSrcDst, int len, int scaleFactor, ZorRoundMode rndMode))
ZORSAPI(ZorStatus, zorsDiv_Round_16s_ISfs,
        (const Zor16s* pSrc, Zor16s* pSrcDst, int len, int scaleFactor, ZorRoundMode rndMode))
/** @} */

/** @name Scaled division by a constant
 * @{
 */
/**
 * Divides integers by a constant: pDst[n] = pSrc[n] / val * 2^-scaleFactor, or
 * pSrcDst[n] = pSrcDst[n] / val * 2^-scaleFactor, rounded to nearest, ties to even, and saturated.
 *
 * A zero constant is an error. Only the 16-bit unsigned and the 64-bit members take it as a zero divisor of every
 * element.
 * @param pSrc dividends
 * @param val divisor
 * @param pDst destination vector
 * @param len number of elements
 * @param scaleFactor any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, then for a zero @p val
 * zorStsDivByZeroError (16u and 64s: zorStsDivByZero, with the substitutes written), else zorStsOk
 */
ZORSAPI(ZorStatus, zorsDivC_8u_Sfs, (const Zor8u* pSrc, Zor8u val, Zor8u* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsDivC_16u_Sfs, (const Zor16u* pSrc, Zor16u val, Zor16u* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsDivC_16s_Sfs, (const Zor16s* pSrc, Zor16s val, Zor16s* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsDivC_16sc_Sfs, (const Zor16sc* pSrc, Zor16sc val, Zor16sc* pDst, int len, int scaleFactor))
/** @} */

/** @name Scaled division by a constant in place
 * @{
 */
/**
 * Divides integers by a constant: pDst[n] = pSrc[n] / val * 2^-scaleFactor, or
 * pSrcDst[n] = pSrcDst[n] / val * 2^-scaleFactor, rounded to nearest, ties to even, and saturated.
 *
 * A zero constant is an error. Only the 16-bit unsigned and the 64-bit members take it as a zero divisor of every
 * element.
 * @param val divisor
 * @param pSrcDst dividends, receives the quotients
 * @param len number of elements
 * @param scaleFactor any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, then for a zero @p val
 * zorStsDivByZeroError (16u and 64s: zorStsDivByZero, with the substitutes written), else zorStsOk
 */
ZORSAPI(ZorStatus, zorsDivC_8u_ISfs, (Zor8u val, Zor8u* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsDivC_16u_ISfs, (Zor16u val, Zor16u* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsDivC_16s_ISfs, (Zor16s val, Zor16s* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsDivC_16sc_ISfs, (Zor16sc val, Zor16sc* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsDivC_64s_ISfs, (Zor64s val, Zor64s* pSrcDst, int len, int scaleFactor))
/** @} */

/** @name Division of a constant
 * @{
 */
/**
 * Divides a constant by a vector: pDst[n] = val / pSrc[n], or pSrcDst[n] = val / pSrcDst[n]. Integer quotients are
 * rounded to nearest, ties to even; floating ones are IEEE quotients, also where the divisor is zero.
 * @param pSrc divisors
 * @param val dividend
 * @param pDst destination vector
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1; zorStsDivByZero if an integer
 * divisor was zero, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsDivCRev_16u, (const Zor16u* pSrc, Zor16u val, Zor16u* pDst, int len))
ZORSAPI(ZorStatus, zorsDivCRev_32f, (const Zor32f* pSrc, Zor32f val, Zor32f* pDst, int len))
/** @} */

/** @name Division of a constant in place
 * @{
 */
/**
 * Divides a constant by a vector: pDst[n] = val / pSrc[n], or pSrcDst[n] = val / pSrcDst[n]. Integer quotients are
 * rounded to nearest, ties to even; floating ones are IEEE quotients, also where the divisor is zero.
 * @param val dividend
 * @param pSrcDst divisors, receives the quotients
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1; zorStsDivByZero if an integer
 * divisor was zero, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsDivCRev_16u_I, (Zor16u val, Zor16u* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsDivCRev_32f_I, (Zor32f val, Zor32f* pSrcDst, int len))
/** @} */

/** @name Floating division
 * @{
 */
/**
 * Divides vectors: pDst[n] = pSrc2[n] / pSrc1[n], or pSrcDst[n] = pSrcDst[n] / pSrc[n].
 *
 * Real quotients are those of IEEE arithmetic. Complex quotients x / y are x * conj(y) / |y|^2:
 * - 32fc computes in double precision, where nothing overflows and the products are exact, and rounds each part once:
 *   within 0.5 + 2^-26 units in the last place of the part while it is a normal number.
 * - 64fc first scales x and y by powers of two (after D. M. Priest, "Efficient scaling for complex division", ACM
 *   Transactions on Mathematical Software 30(4), 2004), so that a quotient overflows or vanishes only if its own value
 *   does. The error, as a complex number, is within 6 * 2^-53 * |x / y| while the parts of x, y and of the quotient
 *   are normal numbers: 2^-53 times sqrt(5) for the product (R. Brent, C. Percival, P. Zimmermann, "Error bounds on
 *   complex floating-point multiplication", Mathematics of Computation 76, 2007), 2 for |y|^2, 1 for the quotient.
 *
 * A complex zero divides both parts as the real number y.re does: infinities, or no number for a zero part. Parts
 * that are infinite or not a number give what the formula gives.
 * @param pSrc1 divisors
 * @param pSrc2 dividends
 * @param pDst destination vector
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsDiv_32f, (const Zor32f* pSrc1, const Zor32f* pSrc2, Zor32f* pDst, int len))
ZORSAPI(ZorStatus, zorsDiv_64f, (const Zor64f* pSrc1, const Zor64f* pSrc2, Zor64f* pDst, int len))
ZORSAPI(ZorStatus, zorsDiv_32fc, (const Zor32fc* pSrc1, const Zor32fc* pSrc2, Zor32fc* pDst, int len))
ZORSAPI(ZorStatus, zorsDiv_64fc, (const Zor64fc* pSrc1, const Zor64fc* pSrc2, Zor64fc* pDst, int len))
/** @} */

/** @name Floating division in place
 * @{
 */
/**
 * Divides vectors: pDst[n] = pSrc2[n] / pSrc1[n], or pSrcDst[n] = pSrcDst[n] / pSrc[n].
 *
 * Real quotients are those of IEEE arithmetic. Complex quotients x / y are x * conj(y) / |y|^2:
 * - 32fc computes in double precision, where nothing overflows and the products are exact, and rounds each part once:
 *   within 0.5 + 2^-26 units in the last place of the part while it is a normal number.
 * - 64fc first scales x and y by powers of two (after D. M. Priest, "Efficient scaling for complex division", ACM
 *   Transactions on Mathematical Software 30(4), 2004), so that a quotient overflows or vanishes only if its own value
 *   does. The error, as a complex number, is within 6 * 2^-53 * |x / y| while the parts of x, y and of the quotient
 *   are normal numbers: 2^-53 times sqrt(5) for the product (R. Brent, C. Percival, P. Zimmermann, "Error bounds on
 *   complex floating-point multiplication", Mathematics of Computation 76, 2007), 2 for |y|^2, 1 for the quotient.
 *
 * A complex zero divides both parts as the real number y.re does: infinities, or no number for a zero part. Parts
 * that are infinite or not a number give what the formula gives.
 * @param pSrc divisors
 * @param pSrcDst dividends, receives the quotients
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsDiv_32f_I, (const Zor32f* pSrc, Zor32f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsDiv_64f_I, (const Zor64f* pSrc, Zor64f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsDiv_32fc_I, (const Zor32fc* pSrc, Zor32fc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsDiv_64fc_I, (const Zor64fc* pSrc, Zor64fc* pSrcDst, int len))
/** @} */

/** @name Floating division by a constant
 * @{
 */
/**
 * Divides by a constant: pDst[n] = pSrc[n] / val, or pSrcDst[n] = pSrcDst[n] / val, with the bits that the division
 * by a vector of this constant gives.
 * @param pSrc dividends
 * @param val divisor
 * @param pDst destination vector
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, then zorStsDivByZeroError for a
 * zero complex @p val, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsDivC_32f, (const Zor32f* pSrc, Zor32f val, Zor32f* pDst, int len))
ZORSAPI(ZorStatus, zorsDivC_64f, (const Zor64f* pSrc, Zor64f val, Zor64f* pDst, int len))
ZORSAPI(ZorStatus, zorsDivC_32fc, (const Zor32fc* pSrc, Zor32fc val, Zor32fc* pDst, int len))
ZORSAPI(ZorStatus, zorsDivC_64fc, (const Zor64fc* pSrc, Zor64fc val, Zor64fc* pDst, int len))
/** @} */

/** @name Floating division by a constant in place
 * @{
 */
/**
 * Divides by a constant: pDst[n] = pSrc[n] / val, or pSrcDst[n] = pSrcDst[n] / val, with the bits that the division
 * by a vector of this constant gives.
 * @param val divisor
 * @param pSrcDst dividends, receives the quotients
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, then zorStsDivByZeroError for a
 * zero complex @p val, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsDivC_32f_I, (Zor32f val, Zor32f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsDivC_64f_I, (Zor64f val, Zor64f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsDivC_32fc_I, (Zor32fc val, Zor32fc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsDivC_64fc_I, (Zor64fc val, Zor64fc* pSrcDst, int len))
/** @} */
