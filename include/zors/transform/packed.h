/**
 * @file
 * Operations on packed spectra of real signals, in the formats of fft_real.h. The length of the signal, N, may be
 * odd.
 */
#include <zortypes.h>

/** @name Expansion to a whole spectrum
 * @{
 */
/**
 * All N points of the spectrum: pDst[k] = X[k], and pDst[N - k] = conj(X[k]). The imaginary parts of X[0] and, for
 * even N, X[N/2] are 0.
 * @param pSrc packed spectrum
 * @param pDst destination vector of N points; equal to @p pSrc or without overlap
 * @param len the signal's length N
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsConjPack_32fc, (const Zor32f* pSrc, Zor32fc* pDst, int len))
ZORSAPI(ZorStatus, zorsConjPack_64fc, (const Zor64f* pSrc, Zor64fc* pDst, int len))
ZORSAPI(ZorStatus, zorsConjPack_16sc, (const Zor16s* pSrc, Zor16sc* pDst, int len))
ZORSAPI(ZorStatus, zorsConjPerm_32fc, (const Zor32f* pSrc, Zor32fc* pDst, int len))
ZORSAPI(ZorStatus, zorsConjPerm_64fc, (const Zor64f* pSrc, Zor64fc* pDst, int len))
ZORSAPI(ZorStatus, zorsConjPerm_16sc, (const Zor16s* pSrc, Zor16sc* pDst, int len))
ZORSAPI(ZorStatus, zorsConjCcs_32fc, (const Zor32f* pSrc, Zor32fc* pDst, int len))
ZORSAPI(ZorStatus, zorsConjCcs_64fc, (const Zor64f* pSrc, Zor64fc* pDst, int len))
ZORSAPI(ZorStatus, zorsConjCcs_16sc, (const Zor16s* pSrc, Zor16sc* pDst, int len))
/** @} */

/** @name Expansion in place
 * @{
 */
/**
 * The same for a packed spectrum at the start of the vector. Of a CCS spectrum of N = 1 only the first number is read.
 * @param pSrcDst vector of N points
 * @param len the signal's length N
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsConjPack_32fc_I, (Zor32fc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsConjPack_64fc_I, (Zor64fc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsConjPack_16sc_I, (Zor16sc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsConjPerm_32fc_I, (Zor32fc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsConjPerm_64fc_I, (Zor64fc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsConjPerm_16sc_I, (Zor16sc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsConjCcs_32fc_I, (Zor32fc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsConjCcs_64fc_I, (Zor64fc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsConjCcs_16sc_I, (Zor16sc* pSrcDst, int len))
/** @} */

/** @name Conjugated reversal
 * @{
 */
/**
 * pDst[n] = conj(pSrc[len - 1 - n]). The conjugate of the least integer is the greatest. The vectors must not overlap.
 * @param pSrc source vector
 * @param pDst destination vector
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsConjFlip_32fc, (const Zor32fc* pSrc, Zor32fc* pDst, int len))
ZORSAPI(ZorStatus, zorsConjFlip_64fc, (const Zor64fc* pSrc, Zor64fc* pDst, int len))
ZORSAPI(ZorStatus, zorsConjFlip_16sc, (const Zor16sc* pSrc, Zor16sc* pDst, int len))
/** @} */

/** @name Products
 * @{
 */
/**
 * The product of two spectra in the same format, point by point. Products and sums of a complex product are each rounded
 * once; nothing is fused.
 * @param pSrc1 first spectrum
 * @param pSrc2 second spectrum
 * @param pDst destination; equal to a source or without overlap
 * @param len the signal's length N
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsMulPack_32f, (const Zor32f* pSrc1, const Zor32f* pSrc2, Zor32f* pDst, int len))
ZORSAPI(ZorStatus, zorsMulPack_64f, (const Zor64f* pSrc1, const Zor64f* pSrc2, Zor64f* pDst, int len))
ZORSAPI(ZorStatus, zorsMulPerm_32f, (const Zor32f* pSrc1, const Zor32f* pSrc2, Zor32f* pDst, int len))
ZORSAPI(ZorStatus, zorsMulPerm_64f, (const Zor64f* pSrc1, const Zor64f* pSrc2, Zor64f* pDst, int len))
/** @} */

/** @name Products in place
 * @{
 */
/**
 * The same in place.
 * @param pSrc first spectrum
 * @param pSrcDst second spectrum, and the product
 * @param len the signal's length N
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsMulPack_32f_I, (const Zor32f* pSrc, Zor32f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsMulPack_64f_I, (const Zor64f* pSrc, Zor64f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsMulPerm_32f_I, (const Zor32f* pSrc, Zor32f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsMulPerm_64f_I, (const Zor64f* pSrc, Zor64f* pSrcDst, int len))
/** @} */

/** @name Scaled products
 * @{
 */
/**
 * The product of two spectra of integers, point by point: the exact product times 2^-scaleFactor, rounded to nearest,
 * ties to even, and saturated.
 * @param pSrc1 first spectrum
 * @param pSrc2 second spectrum
 * @param pDst destination; equal to a source or without overlap
 * @param len the signal's length N
 * @param scaleFactor any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsMulPack_16s_Sfs,
        (const Zor16s* pSrc1, const Zor16s* pSrc2, Zor16s* pDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsMulPerm_16s_Sfs,
        (const Zor16s* pSrc1, const Zor16s* pSrc2, Zor16s* pDst, int len, int scaleFactor))
/** @} */

/** @name Scaled products in place
 * @{
 */
/**
 * The same in place.
 * @param pSrc first spectrum
 * @param pSrcDst second spectrum, and the product
 * @param len the signal's length N
 * @param scaleFactor any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsMulPack_16s_ISfs, (const Zor16s* pSrc, Zor16s* pSrcDst, int len, int scaleFactor))
ZORSAPI(ZorStatus, zorsMulPerm_16s_ISfs, (const Zor16s* pSrc, Zor16s* pSrcDst, int len, int scaleFactor))
/** @} */

/** @name Products with the conjugate
 * @{
 */
/**
 * pSrc times the conjugate of pSrcDst, point by point, in the Pack format.
 * @param pSrc first spectrum
 * @param pSrcDst second spectrum, and the product
 * @param len the signal's length N
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsMulPackConj_32f_I, (const Zor32f* pSrc, Zor32f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsMulPackConj_64f_I, (const Zor64f* pSrc, Zor64f* pSrcDst, int len))
/** @} */
