/**
 * @file
 * Single points of a spectrum, at any frequency: the Goertzel transform.
 *
 * X(f) = sum over n of pSrc[n] * exp(-2 pi i f (n - len)), n = 0 ... len - 1; for f = k / len this is point k of the
 * discrete Fourier transform.
 *
 * The sum is formed as it stands, in double precision, in a fixed pattern of lanes, and not by a recurrence: it is as
 * precise near the frequencies 0, 1/2 and 1 as elsewhere. Before it is rounded to its type, each part of it is within
 * (28 + min(len, 512) / 8 + len / 500) * 2^-53 * (sum of |Re pSrc[n]| + |Im pSrc[n]|) of the exact one. Where f is a
 * multiple of 1/4, every angle is exact: X(0) of a real vector is its sum, with the imaginary part 0. All processors
 * give the same bits.
 */
#include <zortypes.h>

/** @name One frequency
 * @{
 */
/**
 * X(rFreq). What is not finite in the source makes the result infinite or not a number.
 * @param pSrc source vector
 * @param len number of elements
 * @param pVal receives X(rFreq)
 * @param rFreq frequency as a fraction of the sampling rate, in [0, 1)
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, then zorStsBadRelFreq for
 * @p rFreq outside its range or not a number, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsGoertz_32f, (const Zor32f* pSrc, int len, Zor32fc* pVal, Zor32f rFreq))
ZORSAPI(ZorStatus, zorsGoertz_64f, (const Zor64f* pSrc, int len, Zor64fc* pVal, Zor64f rFreq))
ZORSAPI(ZorStatus, zorsGoertz_32fc, (const Zor32fc* pSrc, int len, Zor32fc* pVal, Zor32f rFreq))
ZORSAPI(ZorStatus, zorsGoertz_64fc, (const Zor64fc* pSrc, int len, Zor64fc* pVal, Zor64f rFreq))
/** @} */

/** @name One frequency, of integers
 * @{
 */
/**
 * X(rFreq) * 2^-scaleFactor, rounded to nearest, ties to even, and saturated.
 * @param pSrc source vector
 * @param len number of elements
 * @param pVal receives the scaled X(rFreq)
 * @param scaleFactor any value
 * @param rFreq frequency as a fraction of the sampling rate, in [0, 1)
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, then zorStsBadRelFreq for
 * @p rFreq outside its range or not a number, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsGoertz_16s_Sfs, (const Zor16s* pSrc, int len, Zor16sc* pVal, int scaleFactor, Zor32f rFreq))
ZORSAPI(ZorStatus, zorsGoertz_16sc_Sfs, (const Zor16sc* pSrc, int len, Zor16sc* pVal, int scaleFactor, Zor32f rFreq))
/** @} */

/** @name One frequency in Q15, of integers
 * @{
 */
/**
 * The same for the frequency rFreqQ15 * 2^-15, with the same bits.
 * @param pSrc source vector
 * @param len number of elements
 * @param pVal receives the scaled X
 * @param rFreqQ15 frequency as a fraction of the sampling rate times 2^15, not negative
 * @param scaleFactor any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, then zorStsBadRelFreq for a
 * negative @p rFreqQ15, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsGoertzQ15_16sc_Sfs,
        (const Zor16sc* pSrc, int len, Zor16sc* pVal, Zor16s rFreqQ15, int scaleFactor))
/** @} */

/** @name Two frequencies
 * @{
 */
/**
 * X at two frequencies, in one pass over the source; each with the bits that a call for it alone gives.
 * @param pSrc source vector
 * @param len number of elements
 * @param pVal receives X(pFreq[0]) and X(pFreq[1])
 * @param pFreq two frequencies as fractions of the sampling rate, in [0, 1)
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, then zorStsBadRelFreq for a
 * frequency outside its range or not a number, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsGoertzTwo_32f, (const Zor32f* pSrc, int len, Zor32fc* pVal, const Zor32f* pFreq))
ZORSAPI(ZorStatus, zorsGoertzTwo_64f, (const Zor64f* pSrc, int len, Zor64fc* pVal, const Zor64f* pFreq))
ZORSAPI(ZorStatus, zorsGoertzTwo_32fc, (const Zor32fc* pSrc, int len, Zor32fc* pVal, const Zor32f* pFreq))
ZORSAPI(ZorStatus, zorsGoertzTwo_64fc, (const Zor64fc* pSrc, int len, Zor64fc* pVal, const Zor64f* pFreq))
/** @} */

/** @name Two frequencies, of integers
 * @{
 */
/**
 * X at two frequencies times 2^-scaleFactor, rounded to nearest, ties to even, and saturated; each with the bits that
 * a call for it alone gives.
 * @param pSrc source vector
 * @param len number of elements
 * @param pVal receives the scaled X(pFreq[0]) and X(pFreq[1])
 * @param scaleFactor any value
 * @param pFreq two frequencies as fractions of the sampling rate, in [0, 1)
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, then zorStsBadRelFreq for a
 * frequency outside its range or not a number, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsGoertzTwo_16sc_Sfs,
        (const Zor16sc* pSrc, int len, Zor16sc* pVal, int scaleFactor, const Zor32f* pFreq))
/** @} */

/** @name Two frequencies in Q15, of integers
 * @{
 */
/**
 * The same for the frequencies pFreqQ15[i] * 2^-15, with the same bits.
 * @param pSrc source vector
 * @param len number of elements
 * @param pVal receives two scaled X
 * @param pFreqQ15 two frequencies as fractions of the sampling rate times 2^15, not negative
 * @param scaleFactor any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, then zorStsBadRelFreq for a
 * negative frequency, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsGoertzTwoQ15_16sc_Sfs,
        (const Zor16sc* pSrc, int len, Zor16sc* pVal, const Zor16s* pFreqQ15, int scaleFactor))
/** @} */
