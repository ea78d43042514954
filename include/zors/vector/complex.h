/**
 * @file
 * Taking complex vectors apart and putting them together.
 */
#include <zortypes.h>

/** @name Parts
 * @{
 */
/**
 * Takes the real or the imaginary parts: pDst[n] = pSrc[n].re, or pSrc[n].im.
 * @param pSrc complex source vector
 * @param pDst real destination vector
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsReal_16sc, (const Zor16sc* pSrc, Zor16s* pDst, int len))
ZORSAPI(ZorStatus, zorsReal_32fc, (const Zor32fc* pSrc, Zor32f* pDst, int len))
ZORSAPI(ZorStatus, zorsReal_64fc, (const Zor64fc* pSrc, Zor64f* pDst, int len))
ZORSAPI(ZorStatus, zorsImag_16sc, (const Zor16sc* pSrc, Zor16s* pDst, int len))
ZORSAPI(ZorStatus, zorsImag_32fc, (const Zor32fc* pSrc, Zor32f* pDst, int len))
ZORSAPI(ZorStatus, zorsImag_64fc, (const Zor64fc* pSrc, Zor64f* pDst, int len))
/** @} */

/** @name Split
 * @{
 */
/**
 * Splits a complex vector: pDstRe[n] = pSrc[n].re, pDstIm[n] = pSrc[n].im.
 * @param pSrc complex source vector
 * @param pDstRe destination of the real parts
 * @param pDstIm destination of the imaginary parts
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsCplxToReal_16sc, (const Zor16sc* pSrc, Zor16s* pDstRe, Zor16s* pDstIm, int len))
ZORSAPI(ZorStatus, zorsCplxToReal_32fc, (const Zor32fc* pSrc, Zor32f* pDstRe, Zor32f* pDstIm, int len))
ZORSAPI(ZorStatus, zorsCplxToReal_64fc, (const Zor64fc* pSrc, Zor64f* pDstRe, Zor64f* pDstIm, int len))
/** @} */

/** @name Join
 * @{
 */
/**
 * Joins two real vectors: pDst[n].re = pSrcRe[n], pDst[n].im = pSrcIm[n].
 * @param pSrcRe source of the real parts; null for parts of 0
 * @param pSrcIm source of the imaginary parts; null for parts of 0
 * @param pDst complex destination vector
 * @param len number of elements
 * @return zorStsNullPointer for a null @p pDst or two null sources, then zorStsBadSize for @p len below 1, else
 * zorStsOk
 */
ZORSAPI(ZorStatus, zorsRealToCplx_16s, (const Zor16s* pSrcRe, const Zor16s* pSrcIm, Zor16sc* pDst, int len))
ZORSAPI(ZorStatus, zorsRealToCplx_32f, (const Zor32f* pSrcRe, const Zor32f* pSrcIm, Zor32fc* pDst, int len))
ZORSAPI(ZorStatus, zorsRealToCplx_64f, (const Zor64f* pSrcRe, const Zor64f* pSrcIm, Zor64fc* pDst, int len))
/** @} */
