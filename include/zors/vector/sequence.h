/**
 * @file
 * Generated sequences: ramps and the Jaehne signal.
 */
#include <zortypes.h>

/** @name Ramp
 * @{
 */
/**
 * A straight line: pDst[n] = offset + slope * n.
 *
 * The value is formed in single precision with two roundings, one of the product (n converted to float) * slope
 * and one of the sum. Integer types round it half away from zero and saturate; a value that is not a number
 * gives 0. Floating types store it.
 * @param pDst destination vector
 * @param len number of elements
 * @param offset value of the first element
 * @param slope difference between neighbours
 * @return zorStsNullPointer for a null @p pDst, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsVectorRamp_8u, (Zor8u* pDst, int len, Zor32f offset, Zor32f slope))
ZORSAPI(ZorStatus, zorsVectorRamp_8s, (Zor8s* pDst, int len, Zor32f offset, Zor32f slope))
ZORSAPI(ZorStatus, zorsVectorRamp_16u, (Zor16u* pDst, int len, Zor32f offset, Zor32f slope))
ZORSAPI(ZorStatus, zorsVectorRamp_16s, (Zor16s* pDst, int len, Zor32f offset, Zor32f slope))
ZORSAPI(ZorStatus, zorsVectorRamp_32u, (Zor32u* pDst, int len, Zor32f offset, Zor32f slope))
ZORSAPI(ZorStatus, zorsVectorRamp_32s, (Zor32s* pDst, int len, Zor32f offset, Zor32f slope))
ZORSAPI(ZorStatus, zorsVectorRamp_32f, (Zor32f* pDst, int len, Zor32f offset, Zor32f slope))
ZORSAPI(ZorStatus, zorsVectorRamp_64f, (Zor64f* pDst, int len, Zor32f offset, Zor32f slope))
/** @} */

/** @name Slope
 * @{
 */
/**
 * The same line as zorsVectorRamp gives, value for value, found another way: where it lies outside the range of
 * the type the destination is filled with the bound, and only the part inside is computed.
 * @param pDst destination vector
 * @param len number of elements
 * @param offset value of the first element
 * @param slope difference between neighbours
 * @return zorStsNullPointer for a null @p pDst, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsVectorSlope_8u, (Zor8u* pDst, int len, Zor32f offset, Zor32f slope))
ZORSAPI(ZorStatus, zorsVectorSlope_8s, (Zor8s* pDst, int len, Zor32f offset, Zor32f slope))
ZORSAPI(ZorStatus, zorsVectorSlope_16u, (Zor16u* pDst, int len, Zor32f offset, Zor32f slope))
ZORSAPI(ZorStatus, zorsVectorSlope_16s, (Zor16s* pDst, int len, Zor32f offset, Zor32f slope))
ZORSAPI(ZorStatus, zorsVectorSlope_32u, (Zor32u* pDst, int len, Zor32f offset, Zor32f slope))
ZORSAPI(ZorStatus, zorsVectorSlope_32s, (Zor32s* pDst, int len, Zor32f offset, Zor32f slope))
ZORSAPI(ZorStatus, zorsVectorSlope_32f, (Zor32f* pDst, int len, Zor32f offset, Zor32f slope))
ZORSAPI(ZorStatus, zorsVectorSlope_64f, (Zor64f* pDst, int len, Zor32f offset, Zor32f slope))
/** @} */

/** @name Jaehne signal
 * @{
 */
/**
 * A sine whose frequency rises from 0 to half the sampling rate: pDst[n] = magn * sin(((pi / 2 / len) * n) * n),
 * formed in double precision. A length of 1 gives a single 0.
 *
 * Integer types round half away from zero; unsigned types give 0 where the sine is negative. The sine is that
 * of the platform's mathematical library.
 * @param pDst destination vector
 * @param len number of elements
 * @param magn magnitude
 * @return zorStsNullPointer for a null @p pDst, then zorStsBadSize for @p len below 1, then
 * zorStsBadJaehneMagnitude for a negative @p magn, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsVectorJaehne_8u, (Zor8u* pDst, int len, Zor8u magn))
ZORSAPI(ZorStatus, zorsVectorJaehne_8s, (Zor8s* pDst, int len, Zor8s magn))
ZORSAPI(ZorStatus, zorsVectorJaehne_16u, (Zor16u* pDst, int len, Zor16u magn))
ZORSAPI(ZorStatus, zorsVectorJaehne_16s, (Zor16s* pDst, int len, Zor16s magn))
ZORSAPI(ZorStatus, zorsVectorJaehne_32u, (Zor32u* pDst, int len, Zor32u magn))
ZORSAPI(ZorStatus, zorsVectorJaehne_32s, (Zor32s* pDst, int len, Zor32s magn))
ZORSAPI(ZorStatus, zorsVectorJaehne_32f, (Zor32f* pDst, int len, Zor32f magn))
ZORSAPI(ZorStatus, zorsVectorJaehne_64f, (Zor64f* pDst, int len, Zor64f magn))
/** @} */
