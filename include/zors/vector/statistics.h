/**
 * @file
 * Reductions of a vector to a few numbers.
 *
 * Floating sums are added in a fixed pattern of lanes that does not depend on the processor: the same vector gives
 * the same bits on every machine. Integer sums are exact at every length and rounded once, whatever the caller's
 * rounding control says. An empty lane is +0, so a sum of zeros of either sign is +0.
 */
#include <zortypes.h>

/** @name Sum
 * @{
 */
/**
 * The sum of all elements, of a complex vector by real and imaginary parts.
 *
 * The single-precision members add in double precision and round once. With the hint ZOR_ALG_SPEED they add blocks
 * of 1024 elements in single precision and the blocks in double precision. The error of the sum of n elements is at
 * most (n / 32 + 5) u times the sum of their magnitudes, u = 2^-53, for complex vectors (n / 16 + 4) u, and half a
 * unit in the last place of the result; with the hint it is 22 u in single precision, u = 2^-24, for complex vectors
 * 37 u, and (n / 1024) u in double precision.
 * @param pSrc source vector
 * @param len number of elements
 * @param pSum receives the sum
 * @param hint ZOR_ALG_SPEED for speed; every other value stands for precision
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsSum_32f, (const Zor32f* pSrc, int len, Zor32f* pSum, ZorHintAlgorithm hint))
ZORSAPI(ZorStatus, zorsSum_32fc, (const Zor32fc* pSrc, int len, Zor32fc* pSum, ZorHintAlgorithm hint))
/** @} */

/** @name Sum in double precision
 * @{
 */
/**
 * The sum of all elements, of a complex vector by real and imaginary parts.
 *
 * The single-precision members add in double precision and round once. With the hint ZOR_ALG_SPEED they add blocks
 * of 1024 elements in single precision and the blocks in double precision. The error of the sum of n elements is at
 * most (n / 32 + 5) u times the sum of their magnitudes, u = 2^-53, for complex vectors (n / 16 + 4) u, and half a
 * unit in the last place of the result; with the hint it is 22 u in single precision, u = 2^-24, for complex vectors
 * 37 u, and (n / 1024) u in double precision.
 * @param pSrc source vector
 * @param len number of elements
 * @param pSum receives the sum
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsSum_64f, (const Zor64f* pSrc, int len, Zor64f* pSum))
ZORSAPI(ZorStatus, zorsSum_64fc, (const Zor64fc* pSrc, int len, Zor64fc* pSum))
/** @} */

/** @name Scaled sum
 * @{
 */
/**
 * The sum of all elements times 2^-scaleFactor, of a complex vector by real and imaginary parts: exact, then rounded
 * once to nearest, ties to even, and saturated.
 *
 * Every scale factor is good. In zorsSum_16s_Sfs() and zorsSum_16s32s_Sfs() the factor is infinite from a scale
 * factor of -1024 down, and a sum of 0 then gives the smallest value of the result's type.
 * @param pSrc source vector
 * @param len number of elements
 * @param pSum receives the scaled sum
 * @param scaleFactor negated exponent of the power of two
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsSum_16s_Sfs, (const Zor16s* pSrc, int len, Zor16s* pSum, int scaleFactor))
ZORSAPI(ZorStatus, zorsSum_16s32s_Sfs, (const Zor16s* pSrc, int len, Zor32s* pSum, int scaleFactor))
ZORSAPI(ZorStatus, zorsSum_16sc_Sfs, (const Zor16sc* pSrc, int len, Zor16sc* pSum, int scaleFactor))
ZORSAPI(ZorStatus, zorsSum_16sc32sc_Sfs, (const Zor16sc* pSrc, int len, Zor32sc* pSum, int scaleFactor))
ZORSAPI(ZorStatus, zorsSum_32s_Sfs, (const Zor32s* pSrc, int len, Zor32s* pSum, int scaleFactor))
/** @} */

/** @name Mean
 * @{
 */
/**
 * The mean of all elements, of a complex vector by real and imaginary parts: the result of the sum, rounded to its
 * type, divided by @p len in double precision and rounded again.
 * @param pSrc source vector
 * @param len number of elements
 * @param pMean receives the mean
 * @param hint as of the sum
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsMean_32f, (const Zor32f* pSrc, int len, Zor32f* pMean, ZorHintAlgorithm hint))
ZORSAPI(ZorStatus, zorsMean_32fc, (const Zor32fc* pSrc, int len, Zor32fc* pMean, ZorHintAlgorithm hint))
/** @} */

/** @name Mean in double precision
 * @{
 */
/**
 * The mean of all elements, of a complex vector by real and imaginary parts: the result of the sum, rounded to its
 * type, divided by @p len in double precision and rounded again.
 * @param pSrc source vector
 * @param len number of elements
 * @param pMean receives the mean
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsMean_64f, (const Zor64f* pSrc, int len, Zor64f* pMean))
ZORSAPI(ZorStatus, zorsMean_64fc, (const Zor64fc* pSrc, int len, Zor64fc* pMean))
/** @} */

/** @name Scaled mean
 * @{
 */
/**
 * The mean of all elements times 2^-scaleFactor, of a complex vector by real and imaginary parts: the exact quotient
 * of the exact sum and @p len, rounded once to nearest, ties to even, and saturated. Every scale factor is good; the
 * mean 0 stays 0.
 * @param pSrc source vector
 * @param len number of elements
 * @param pMean receives the scaled mean
 * @param scaleFactor negated exponent of the power of two
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsMean_16s_Sfs, (const Zor16s* pSrc, int len, Zor16s* pMean, int scaleFactor))
ZORSAPI(ZorStatus, zorsMean_16sc_Sfs, (const Zor16sc* pSrc, int len, Zor16sc* pMean, int scaleFactor))
ZORSAPI(ZorStatus, zorsMean_32s_Sfs, (const Zor32s* pSrc, int len, Zor32s* pMean, int scaleFactor))
/** @} */

/** @name Standard deviation
 * @{
 */
/**
 * The sample standard deviation (divisor len - 1): the rounded square root of
 * max(0, len * Q - S * S) / ((len - 1) * len).
 *
 * S, the sum, and Q, the sum of squares, are added in double precision; with the hint ZOR_ALG_SPEED in single
 * precision inside blocks of 1024 elements and in double precision across them. The difference loses the digits that
 * the mean has more than the deviation: where the mean is large beside the deviation, subtract it first. An element
 * that is infinite or not a number gives what is not a number.
 * @param pSrc source vector
 * @param len number of elements
 * @param pStdDev receives the standard deviation
 * @param hint ZOR_ALG_SPEED for speed; every other value stands for precision
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 2, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsStdDev_32f, (const Zor32f* pSrc, int len, Zor32f* pStdDev, ZorHintAlgorithm hint))
/** @} */

/** @name Standard deviation in double precision
 * @{
 */
/**
 * The sample standard deviation (divisor len - 1): the rounded square root of
 * max(0, len * Q - S * S) / ((len - 1) * len).
 *
 * S, the sum, and Q, the sum of squares, are added in double precision; with the hint ZOR_ALG_SPEED in single
 * precision inside blocks of 1024 elements and in double precision across them. The difference loses the digits that
 * the mean has more than the deviation: where the mean is large beside the deviation, subtract it first. An element
 * that is infinite or not a number gives what is not a number.
 * @param pSrc source vector
 * @param len number of elements
 * @param pStdDev receives the standard deviation
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 2, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsStdDev_64f, (const Zor64f* pSrc, int len, Zor64f* pStdDev))
/** @} */

/** @name Scaled standard deviation
 * @{
 */
/**
 * The sample standard deviation (divisor len - 1) times 2^-scaleFactor: the exact value of the root, rounded once to
 * nearest, ties to even, and saturated. Every scale factor is good; the deviation 0 stays 0.
 * @param pSrc source vector
 * @param len number of elements
 * @param pStdDev receives the scaled standard deviation
 * @param scaleFactor negated exponent of the power of two
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 2, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsStdDev_16s_Sfs, (const Zor16s* pSrc, int len, Zor16s* pStdDev, int scaleFactor))
ZORSAPI(ZorStatus, zorsStdDev_16s32s_Sfs, (const Zor16s* pSrc, int len, Zor32s* pStdDev, int scaleFactor))
/** @} */

/** @name Mean and standard deviation
 * @{
 */
/**
 * The mean and the sample standard deviation (divisor len - 1) of one pass.
 *
 * The deviation is that of zorsStdDev_32f() with a hint for precision, and of zorsStdDev_64f(). The mean is made of
 * the same sum S, which is rounded to the type, divided by @p len in double precision and rounded.
 * @param pSrc source vector
 * @param len number of elements
 * @param pMean receives the mean
 * @param pStdDev receives the standard deviation
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 2, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsMeanStdDev_32f, (const Zor32f* pSrc, int len, Zor32f* pMean, Zor32f* pStdDev))
ZORSAPI(ZorStatus, zorsMeanStdDev_64f, (const Zor64f* pSrc, int len, Zor64f* pMean, Zor64f* pStdDev))
/** @} */

/** @name Scaled mean and standard deviation
 * @{
 */
/**
 * The mean and the sample standard deviation (divisor len - 1), each times 2^-scaleFactor: the exact values, rounded
 * once to nearest, ties to even, and saturated. Every scale factor is good; 0 stays 0.
 * @param pSrc source vector
 * @param len number of elements
 * @param pMean receives the scaled mean
 * @param pStdDev receives the scaled standard deviation
 * @param scaleFactor negated exponent of the power of two
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 2, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsMeanStdDev_16s_Sfs,
        (const Zor16s* pSrc, int len, Zor16s* pMean, Zor16s* pStdDev, int scaleFactor))
ZORSAPI(ZorStatus, zorsMeanStdDev_16s32s_Sfs,
        (const Zor16s* pSrc, int len, Zor32s* pMean, Zor32s* pStdDev, int scaleFactor))
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
