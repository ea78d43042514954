/**
 * @file
 * Window functions: a vector is multiplied by a symmetric shape.
 *
 * Element n, 0 <= n < len, is multiplied by the weight w(n) = w(len - 1 - n); of a complex element both parts
 * are. All shapes are defined over n / (len - 1), so that the first and the last element lie on the ends of
 * the window. The centre of an odd length has the weight 1 and is copied. For the bare window, pass a vector
 * of ones.
 *
 * Rounding:
 * - `64f`, `64fc`: the weight is formed in double precision and multiplied in it.
 * - `32f`, `32fc`: the weight is formed in double precision, rounded to single and multiplied in single; the
 *   result is at most 1 unit in the last place from the exact product rounded once.
 * - `16s`, `16sc`: as `32f`, and the product is rounded to nearest, ties to even, and saturated. What is not
 *   a number gives 0. Hamming and Kaiser differ, see there.
 *
 * Error of the weights, in double precision and up to a length of 2^28: at most 4 * 2^-53 for Bartlett, Hamming
 * and Hann, also relatively 6 * 2^-53 for Bartlett and Hann, 2^-53 * (4 + 24 |alpha|) for Blackman. The weights
 * do not drift along the window: the recurrence behind them starts anew every 128 elements. It gives the squared
 * sine of pi n / (len - 1), which keeps its relative precision towards the ends where 1 - cos cancels.
 *
 * All functions may be called by any number of threads at once.
 */
#include <zortypes.h>

/** @name Bartlett
 * @{
 */
/**
 * The triangle: w(n) = 2 n / (len - 1) up to the centre, then mirrored. A length of 3 writes zeros to the
 * ends, whatever stands in the source.
 * @param pSrc source vector
 * @param pDst destination vector; equal to @p pSrc or without overlap
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 3, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsWinBartlett_16s, (const Zor16s* pSrc, Zor16s* pDst, int len))
ZORSAPI(ZorStatus, zorsWinBartlett_16sc, (const Zor16sc* pSrc, Zor16sc* pDst, int len))
ZORSAPI(ZorStatus, zorsWinBartlett_32f, (const Zor32f* pSrc, Zor32f* pDst, int len))
ZORSAPI(ZorStatus, zorsWinBartlett_32fc, (const Zor32fc* pSrc, Zor32fc* pDst, int len))
ZORSAPI(ZorStatus, zorsWinBartlett_64f, (const Zor64f* pSrc, Zor64f* pDst, int len))
ZORSAPI(ZorStatus, zorsWinBartlett_64fc, (const Zor64fc* pSrc, Zor64fc* pDst, int len))
/** @} */

/** @name Bartlett, in place
 * @{
 */
/**
 * zorsWinBartlett with one vector as source and destination.
 * @param pSrcDst vector
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 3, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsWinBartlett_16s_I, (Zor16s* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsWinBartlett_16sc_I, (Zor16sc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsWinBartlett_32f_I, (Zor32f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsWinBartlett_32fc_I, (Zor32fc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsWinBartlett_64f_I, (Zor64f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsWinBartlett_64fc_I, (Zor64fc* pSrcDst, int len))
/** @} */

/** @name Hamming
 * @{
 */
/**
 * w(n) = 0.54 - 0.46 cos(2 pi n / (len - 1)).
 *
 * The integer forms multiply the first and the last element by 0.54f - 0.46f in single precision and round
 * these two products toward zero, unlike all others.
 * @param pSrc source vector
 * @param pDst destination vector; equal to @p pSrc or without overlap
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 3, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsWinHamming_16s, (const Zor16s* pSrc, Zor16s* pDst, int len))
ZORSAPI(ZorStatus, zorsWinHamming_16sc, (const Zor16sc* pSrc, Zor16sc* pDst, int len))
ZORSAPI(ZorStatus, zorsWinHamming_32f, (const Zor32f* pSrc, Zor32f* pDst, int len))
ZORSAPI(ZorStatus, zorsWinHamming_32fc, (const Zor32fc* pSrc, Zor32fc* pDst, int len))
ZORSAPI(ZorStatus, zorsWinHamming_64f, (const Zor64f* pSrc, Zor64f* pDst, int len))
ZORSAPI(ZorStatus, zorsWinHamming_64fc, (const Zor64fc* pSrc, Zor64fc* pDst, int len))
/** @} */

/** @name Hamming, in place
 * @{
 */
/**
 * zorsWinHamming with one vector as source and destination.
 * @param pSrcDst vector
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 3, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsWinHamming_16s_I, (Zor16s* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsWinHamming_16sc_I, (Zor16sc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsWinHamming_32f_I, (Zor32f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsWinHamming_32fc_I, (Zor32fc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsWinHamming_64f_I, (Zor64f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsWinHamming_64fc_I, (Zor64fc* pSrcDst, int len))
/** @} */

/** @name Hann
 * @{
 */
/**
 * w(n) = 0.5 - 0.5 cos(2 pi n / (len - 1)). A length of 3 writes zeros to the ends, whatever stands in the
 * source.
 * @param pSrc source vector
 * @param pDst destination vector; equal to @p pSrc or without overlap
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 3, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsWinHann_16s, (const Zor16s* pSrc, Zor16s* pDst, int len))
ZORSAPI(ZorStatus, zorsWinHann_16sc, (const Zor16sc* pSrc, Zor16sc* pDst, int len))
ZORSAPI(ZorStatus, zorsWinHann_32f, (const Zor32f* pSrc, Zor32f* pDst, int len))
ZORSAPI(ZorStatus, zorsWinHann_32fc, (const Zor32fc* pSrc, Zor32fc* pDst, int len))
ZORSAPI(ZorStatus, zorsWinHann_64f, (const Zor64f* pSrc, Zor64f* pDst, int len))
ZORSAPI(ZorStatus, zorsWinHann_64fc, (const Zor64fc* pSrc, Zor64fc* pDst, int len))
/** @} */

/** @name Hann, in place
 * @{
 */
/**
 * zorsWinHann with one vector as source and destination.
 * @param pSrcDst vector
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 3, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsWinHann_16s_I, (Zor16s* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsWinHann_16sc_I, (Zor16sc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsWinHann_32f_I, (Zor32f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsWinHann_32fc_I, (Zor32fc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsWinHann_64f_I, (Zor64f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsWinHann_64fc_I, (Zor64fc* pSrcDst, int len))
/** @} */

/** @name Blackman
 * @{
 */
/**
 * w(n) = (alpha + 1) / 2 - 0.5 cos(2 pi n / (len - 1)) - alpha / 2 cos(4 pi n / (len - 1)). A length of 3
 * writes zeros to the ends, whatever stands in the source.
 * @param pSrc source vector
 * @param pDst destination vector; equal to @p pSrc or without overlap
 * @param len number of elements
 * @param alpha parameter of the shape; -0.16 is the classic window
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 3, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsWinBlackman_16s, (const Zor16s* pSrc, Zor16s* pDst, int len, Zor32f alpha))
ZORSAPI(ZorStatus, zorsWinBlackman_16sc, (const Zor16sc* pSrc, Zor16sc* pDst, int len, Zor32f alpha))
ZORSAPI(ZorStatus, zorsWinBlackman_32f, (const Zor32f* pSrc, Zor32f* pDst, int len, Zor32f alpha))
ZORSAPI(ZorStatus, zorsWinBlackman_32fc, (const Zor32fc* pSrc, Zor32fc* pDst, int len, Zor32f alpha))
ZORSAPI(ZorStatus, zorsWinBlackman_64f, (const Zor64f* pSrc, Zor64f* pDst, int len, Zor64f alpha))
ZORSAPI(ZorStatus, zorsWinBlackman_64fc, (const Zor64fc* pSrc, Zor64fc* pDst, int len, Zor64f alpha))
/** @} */

/** @name Blackman, in place
 * @{
 */
/**
 * zorsWinBlackman with one vector as source and destination.
 * @param pSrcDst vector
 * @param len number of elements
 * @param alpha parameter of the shape; -0.16 is the classic window
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 3, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsWinBlackman_16s_I, (Zor16s* pSrcDst, int len, Zor32f alpha))
ZORSAPI(ZorStatus, zorsWinBlackman_16sc_I, (Zor16sc* pSrcDst, int len, Zor32f alpha))
ZORSAPI(ZorStatus, zorsWinBlackman_32f_I, (Zor32f* pSrcDst, int len, Zor32f alpha))
ZORSAPI(ZorStatus, zorsWinBlackman_32fc_I, (Zor32fc* pSrcDst, int len, Zor32f alpha))
ZORSAPI(ZorStatus, zorsWinBlackman_64f_I, (Zor64f* pSrcDst, int len, Zor64f alpha))
ZORSAPI(ZorStatus, zorsWinBlackman_64fc_I, (Zor64fc* pSrcDst, int len, Zor64f alpha))
/** @} */

/** @name Blackman, classic
 * @{
 */
/**
 * zorsWinBlackman with alpha = -0.16: w(n) = 0.42 - 0.5 cos(2 pi n / (len - 1)) + 0.08 cos(4 pi n / (len -
 * 1)).
 * @param pSrc source vector
 * @param pDst destination vector; equal to @p pSrc or without overlap
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 3, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsWinBlackmanStd_16s, (const Zor16s* pSrc, Zor16s* pDst, int len))
ZORSAPI(ZorStatus, zorsWinBlackmanStd_16sc, (const Zor16sc* pSrc, Zor16sc* pDst, int len))
ZORSAPI(ZorStatus, zorsWinBlackmanStd_32f, (const Zor32f* pSrc, Zor32f* pDst, int len))
ZORSAPI(ZorStatus, zorsWinBlackmanStd_32fc, (const Zor32fc* pSrc, Zor32fc* pDst, int len))
ZORSAPI(ZorStatus, zorsWinBlackmanStd_64f, (const Zor64f* pSrc, Zor64f* pDst, int len))
ZORSAPI(ZorStatus, zorsWinBlackmanStd_64fc, (const Zor64fc* pSrc, Zor64fc* pDst, int len))
/** @} */

/** @name Blackman, classic, in place
 * @{
 */
/**
 * zorsWinBlackmanStd with one vector as source and destination.
 * @param pSrcDst vector
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 3, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsWinBlackmanStd_16s_I, (Zor16s* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsWinBlackmanStd_16sc_I, (Zor16sc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsWinBlackmanStd_32f_I, (Zor32f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsWinBlackmanStd_32fc_I, (Zor32fc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsWinBlackmanStd_64f_I, (Zor64f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsWinBlackmanStd_64fc_I, (Zor64fc* pSrcDst, int len))
/** @} */

/** @name Blackman, chosen from the length
 * @{
 */
/**
 * zorsWinBlackman with alpha = -(0.5 / cos(pi / (len - 1)))^2, formed in double precision: the parameter for
 * which the elements beside the ends vanish too.
 * @param pSrc source vector
 * @param pDst destination vector; equal to @p pSrc or without overlap
 * @param len number of elements
 * @return zorStsBadSize for @p len below 4, before anything else, then zorStsNullPointer for a null pointer,
 * else zorStsOk
 */
ZORSAPI(ZorStatus, zorsWinBlackmanOpt_16s, (const Zor16s* pSrc, Zor16s* pDst, int len))
ZORSAPI(ZorStatus, zorsWinBlackmanOpt_16sc, (const Zor16sc* pSrc, Zor16sc* pDst, int len))
ZORSAPI(ZorStatus, zorsWinBlackmanOpt_32f, (const Zor32f* pSrc, Zor32f* pDst, int len))
ZORSAPI(ZorStatus, zorsWinBlackmanOpt_32fc, (const Zor32fc* pSrc, Zor32fc* pDst, int len))
ZORSAPI(ZorStatus, zorsWinBlackmanOpt_64f, (const Zor64f* pSrc, Zor64f* pDst, int len))
ZORSAPI(ZorStatus, zorsWinBlackmanOpt_64fc, (const Zor64fc* pSrc, Zor64fc* pDst, int len))
/** @} */

/** @name Blackman, chosen from the length, in place
 * @{
 */
/**
 * zorsWinBlackmanOpt with one vector as source and destination.
 * @param pSrcDst vector
 * @param len number of elements
 * @return zorStsBadSize for @p len below 4, before anything else, then zorStsNullPointer for a null pointer,
 * else zorStsOk
 */
ZORSAPI(ZorStatus, zorsWinBlackmanOpt_16s_I, (Zor16s* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsWinBlackmanOpt_16sc_I, (Zor16sc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsWinBlackmanOpt_32f_I, (Zor32f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsWinBlackmanOpt_32fc_I, (Zor32fc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsWinBlackmanOpt_64f_I, (Zor64f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsWinBlackmanOpt_64fc_I, (Zor64fc* pSrcDst, int len))
/** @} */

/** @name Blackman, parameter in Q15
 * @{
 */
/**
 * zorsWinBlackman with alpha = alphaQ15 / 32768, rounded to single precision.
 * @param pSrc source vector
 * @param pDst destination vector; equal to @p pSrc or without overlap
 * @param len number of elements
 * @param alphaQ15 parameter of the shape times 32768
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 3, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsWinBlackmanQ15_16s, (const Zor16s* pSrc, Zor16s* pDst, int len, int alphaQ15))
ZORSAPI(ZorStatus, zorsWinBlackmanQ15_16sc, (const Zor16sc* pSrc, Zor16sc* pDst, int len, int alphaQ15))
/** @} */

/** @name Blackman, parameter in Q15, in place
 * @{
 */
/**
 * zorsWinBlackmanQ15 with one vector as source and destination.
 * @param pSrcDst vector
 * @param len number of elements
 * @param alphaQ15 parameter of the shape times 32768
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 3, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsWinBlackmanQ15_16s_I, (Zor16s* pSrcDst, int len, int alphaQ15))
ZORSAPI(ZorStatus, zorsWinBlackmanQ15_16sc_I, (Zor16sc* pSrcDst, int len, int alphaQ15))
/** @} */

/** @name Blackman, parameter in Q15, scaled
 * @{
 */
/**
 * zorsWinBlackmanQ15_16s_I with every product, the centre's included, multiplied by 2^-scaleFactor in single
 * precision before it is rounded to nearest, ties to even, and saturated.
 * @param pSrcDst vector
 * @param len number of elements
 * @param alphaQ15 parameter of the shape times 32768
 * @param scaleFactor any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 3, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsWinBlackmanQ15_16s_ISfs, (Zor16s* pSrcDst, int len, int alphaQ15, int scaleFactor))
/** @} */

/** @name Kaiser
 * @{
 */
/**
 * w(n) = I0(|alpha| sqrt(n (len - 1 - n))) / I0(|alpha| (len - 1) / 2), with I0 the modified Bessel function
 * of the first kind and order zero. Its beta, as the literature calls it, is |alpha| (len - 1) / 2. The limit
 * of beta is 38 for `32f` and `32fc` and 308 for the other types. A length of 1 copies.
 *
 * I0 is evaluated by the polynomials 9.8.1 and 9.8.2 of Abramowitz and Stegun, Handbook of Mathematical
 * Functions, 1964, whose own error is below 2e-7 relatively; against these polynomials the weights are
 * relatively within 2^-53 * (12 + 3 beta). The integer forms multiply in double precision, saturate and round
 * half away from zero.
 * @param pSrc source vector
 * @param pDst destination vector; equal to @p pSrc or without overlap
 * @param len number of elements
 * @param alpha parameter of the shape; its sign has no influence
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, then
 * zorStsBadKaiserAlpha for |alpha| (len - 1) / 2 above the limit or not a number, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsWinKaiser_16s, (const Zor16s* pSrc, Zor16s* pDst, int len, Zor32f alpha))
ZORSAPI(ZorStatus, zorsWinKaiser_16sc, (const Zor16sc* pSrc, Zor16sc* pDst, int len, Zor32f alpha))
ZORSAPI(ZorStatus, zorsWinKaiser_32f, (const Zor32f* pSrc, Zor32f* pDst, int len, Zor32f alpha))
ZORSAPI(ZorStatus, zorsWinKaiser_32fc, (const Zor32fc* pSrc, Zor32fc* pDst, int len, Zor32f alpha))
ZORSAPI(ZorStatus, zorsWinKaiser_64f, (const Zor64f* pSrc, Zor64f* pDst, int len, Zor64f alpha))
ZORSAPI(ZorStatus, zorsWinKaiser_64fc, (const Zor64fc* pSrc, Zor64fc* pDst, int len, Zor64f alpha))
/** @} */

/** @name Kaiser, in place
 * @{
 */
/**
 * zorsWinKaiser with one vector as source and destination.
 * @param pSrcDst vector
 * @param len number of elements
 * @param alpha parameter of the shape; its sign has no influence
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, then
 * zorStsBadKaiserAlpha for |alpha| (len - 1) / 2 above the limit or not a number, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsWinKaiser_16s_I, (Zor16s* pSrcDst, int len, Zor32f alpha))
ZORSAPI(ZorStatus, zorsWinKaiser_16sc_I, (Zor16sc* pSrcDst, int len, Zor32f alpha))
ZORSAPI(ZorStatus, zorsWinKaiser_32f_I, (Zor32f* pSrcDst, int len, Zor32f alpha))
ZORSAPI(ZorStatus, zorsWinKaiser_32fc_I, (Zor32fc* pSrcDst, int len, Zor32f alpha))
ZORSAPI(ZorStatus, zorsWinKaiser_64f_I, (Zor64f* pSrcDst, int len, Zor64f alpha))
ZORSAPI(ZorStatus, zorsWinKaiser_64fc_I, (Zor64fc* pSrcDst, int len, Zor64f alpha))
/** @} */

/** @name Kaiser, parameter in Q15
 * @{
 */
/**
 * zorsWinKaiser with alpha = alphaQ15 / 32768 in double precision; the limit of beta is 308.
 * @param pSrc source vector
 * @param pDst destination vector; equal to @p pSrc or without overlap
 * @param len number of elements
 * @param alphaQ15 parameter of the shape times 32768
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, then
 * zorStsBadKaiserAlpha for |alpha| (len - 1) / 2 above the limit or not a number, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsWinKaiserQ15_16s, (const Zor16s* pSrc, Zor16s* pDst, int len, int alphaQ15))
ZORSAPI(ZorStatus, zorsWinKaiserQ15_16sc, (const Zor16sc* pSrc, Zor16sc* pDst, int len, int alphaQ15))
/** @} */

/** @name Kaiser, parameter in Q15, in place
 * @{
 */
/**
 * zorsWinKaiserQ15 with one vector as source and destination.
 * @param pSrcDst vector
 * @param len number of elements
 * @param alphaQ15 parameter of the shape times 32768
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, then
 * zorStsBadKaiserAlpha for |alpha| (len - 1) / 2 above the limit or not a number, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsWinKaiserQ15_16s_I, (Zor16s* pSrcDst, int len, int alphaQ15))
ZORSAPI(ZorStatus, zorsWinKaiserQ15_16sc_I, (Zor16sc* pSrcDst, int len, int alphaQ15))
/** @} */
