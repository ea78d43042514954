/**
 * @file
 * Reductions of a vector to a few numbers.
 */
#include <zortypes.h>

/** @name Mean and standard deviation
 * @{
 */
/**
 * The mean and the sample standard deviation (divisor len - 1).
 *
 * S, the sum, and Q, the sum of squares, are added in double precision. The mean is S rounded to single
 * precision, divided by len in double precision and rounded; the deviation is the rounded square root of
 * max(0, len * Q - S * S) / ((len - 1) * len).
 * @param pSrc source vector
 * @param len number of elements
 * @param pMean receives the mean
 * @param pStdDev receives the standard deviation
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 2, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsMeanStdDev_32f, (const Zor32f* pSrc, int len, Zor32f* pMean, Zor32f* pStdDev))
/** @} */

/** @name Smallest and largest element
 * @{
 */
/**
 * The smallest and the largest element. Elements that are not numbers are passed over; a vector of nothing else
 * gives the positive and the negative infinity. Zeros of either sign are equal, and the first one met of the
 * smallest or largest is not promised.
 * @param pSrc source vector
 * @param len number of elements
 * @param pMin receives the smallest element
 * @param pMax receives the largest element
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsMinMax_32f, (const Zor32f* pSrc, int len, Zor32f* pMin, Zor32f* pMax))
/** @} */
