/**
 * @file
 * Element-wise arithmetic.
 */
#include <zortypes.h>

/** @name Subtracting a constant in place
 * @{
 */
/**
 * Subtracts a constant from every element: pSrcDst[n] = pSrcDst[n] - val, in the element type.
 * @param val the constant
 * @param pSrcDst vector
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsSubC_32f_I, (Zor32f val, Zor32f* pSrcDst, int len))
/** @} */

/** @name Multiplying by a constant in place
 * @{
 */
/**
 * Multiplies every element by a constant: pSrcDst[n] = pSrcDst[n] * val, in the element type.
 * @param val the constant
 * @param pSrcDst vector
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsMulC_32f_I, (Zor32f val, Zor32f* pSrcDst, int len))
/** @} */
