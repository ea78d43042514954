/**
 * @file
 * Discrete Fourier transforms of any length N, with records of dft_spec.
 *
 * Forward: X[k] = sum over j of x[j] e^(-2 pi i j k / N); inverse: x[j] = sum over k of X[k] e^(2 pi i j k / N); each
 * multiplied by what the record's flag asks for. Spectra of real data are in the formats of fft_real.
 */
#include <zortypes.h>

/** @name Complex pairs
 * @{
 */
/**
 * The forward transform of N complex pairs, or the inverse one. Products of small factors are taken as two steps over
 * rows and columns (D. H. Bailey, FFTs in external or hierarchical memory, J. Supercomputing 4, 1990), short primes
 * by sums along the powers of a primitive root (C. M. Rader, Proc. IEEE 56, 1968), other lengths as convolutions with
 * a chirp (L. I. Bluestein, NEREM Record 10, 1968).
 *
 * The root mean square of the error is at most 0.60 eps sqrt(log2 N) of that of the result, eps being the element
 * type's, where N is a product of small factors or a prime to 50 (double precision: 90), 0.40 where it is a power of
 * two, and 1.20 at other lengths, which are convolutions; 1.5 eps at 16 points and fewer. Results do not depend on
 * alignment, on who supplied the work buffer, or on whether the call works in place; they may differ between
 * processor variants.
 * @param pSrc source vector of N elements
 * @param pDst destination vector of N elements; equal to @p pSrc or without overlap
 * @param pSpec record of the same kind; tells length and scaling
 * @param pBuffer work buffer of the size that zorsDFTGetBufSize tells, at any address; null to have it allocated for
 * the time of the call
 * @return zorStsNullPointer for a null @p pSpec, then zorStsWrongContext for a record of another kind, then
 * zorStsNullPointer for a null vector, then zorStsNoMemory where the work buffer cannot be allocated, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsDFTFwd_CToC_32fc,
        (const Zor32fc* pSrc, Zor32fc* pDst, const ZorsDFTSpec_C_32fc* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsDFTInv_CToC_32fc,
        (const Zor32fc* pSrc, Zor32fc* pDst, const ZorsDFTSpec_C_32fc* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsDFTFwd_CToC_64fc,
        (const Zor64fc* pSrc, Zor64fc* pDst, const ZorsDFTSpec_C_64fc* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsDFTInv_CToC_64fc,
        (const Zor64fc* pSrc, Zor64fc* pDst, const ZorsDFTSpec_C_64fc* pSpec, Zor8u* pBuffer))
/** @} */

/** @name Real and imaginary parts apart
 * @{
 */
/**
 * The same transforms of complex numbers whose parts stand in two arrays.
 * @param pSrcRe real parts of the source, N numbers
 * @param pSrcIm imaginary parts of the source
 * @param pDstRe real parts of the destination; equal to @p pSrcRe or without overlap with any source
 * @param pDstIm imaginary parts of the destination; equal to @p pSrcIm or without overlap with any source
 * @param pSpec record of the same kind; tells length and scaling
 * @param pBuffer work buffer of the size that zorsDFTGetBufSize tells, at any address; null to have it allocated for
 * the time of the call
 * @return zorStsNullPointer for a null @p pSpec, then zorStsWrongContext for a record of another kind, then
 * zorStsNullPointer for a null vector, then zorStsNoMemory where the work buffer cannot be allocated, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsDFTFwd_CToC_32f,
        (const Zor32f* pSrcRe, const Zor32f* pSrcIm, Zor32f* pDstRe, Zor32f* pDstIm,
         const ZorsDFTSpec_C_32f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsDFTInv_CToC_32f,
        (const Zor32f* pSrcRe, const Zor32f* pSrcIm, Zor32f* pDstRe, Zor32f* pDstIm,
         const ZorsDFTSpec_C_32f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsDFTFwd_CToC_64f,
        (const Zor64f* pSrcRe, const Zor64f* pSrcIm, Zor64f* pDstRe, Zor64f* pDstIm,
         const ZorsDFTSpec_C_64f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsDFTInv_CToC_64f,
        (const Zor64f* pSrcRe, const Zor64f* pSrcIm, Zor64f* pDstRe, Zor64f* pDstIm,
         const ZorsDFTSpec_C_64f* pSpec, Zor8u* pBuffer))
/** @} */

/** @name Real transforms
 * @{
 */
/**
 * The spectrum of N real numbers in the format that the name tells; inverse: the sum over all N points of the
 * spectrum. The zeros of the CCS format are written and not read. The bounds are those of the complex transforms; of
 * even lengths that of N / 2 points where that is larger.
 * @param pSrc source vector: N numbers, a CCS spectrum N + 2 (N odd: N + 1)
 * @param pDst destination vector of the same lengths; equal to @p pSrc or without overlap
 * @param pSpec record of the same kind; tells length and scaling
 * @param pBuffer work buffer of the size that zorsDFTGetBufSize tells, at any address; null to have it allocated for
 * the time of the call
 * @return zorStsNullPointer for a null @p pSpec, then zorStsWrongContext for a record of another kind, then
 * zorStsNullPointer for a null vector, then zorStsNoMemory where the work buffer cannot be allocated, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsDFTFwd_RToCCS_32f,
        (const Zor32f* pSrc, Zor32f* pDst, const ZorsDFTSpec_R_32f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsDFTInv_CCSToR_32f,
        (const Zor32f* pSrc, Zor32f* pDst, const ZorsDFTSpec_R_32f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsDFTFwd_RToPack_32f,
        (const Zor32f* pSrc, Zor32f* pDst, const ZorsDFTSpec_R_32f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsDFTInv_PackToR_32f,
        (const Zor32f* pSrc, Zor32f* pDst, const ZorsDFTSpec_R_32f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsDFTFwd_RToPerm_32f,
        (const Zor32f* pSrc, Zor32f* pDst, const ZorsDFTSpec_R_32f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsDFTInv_PermToR_32f,
        (const Zor32f* pSrc, Zor32f* pDst, const ZorsDFTSpec_R_32f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsDFTFwd_RToCCS_64f,
        (const Zor64f* pSrc, Zor64f* pDst, const ZorsDFTSpec_R_64f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsDFTInv_CCSToR_64f,
        (const Zor64f* pSrc, Zor64f* pDst, const ZorsDFTSpec_R_64f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsDFTFwd_RToPack_64f,
        (const Zor64f* pSrc, Zor64f* pDst, const ZorsDFTSpec_R_64f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsDFTInv_PackToR_64f,
        (const Zor64f* pSrc, Zor64f* pDst, const ZorsDFTSpec_R_64f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsDFTFwd_RToPerm_64f,
        (const Zor64f* pSrc, Zor64f* pDst, const ZorsDFTSpec_R_64f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsDFTInv_PermToR_64f,
        (const Zor64f* pSrc, Zor64f* pDst, const ZorsDFTSpec_R_64f* pSpec, Zor8u* pBuffer))
/** @} */

/** @name 16-bit data
 * @{
 */
/**
 * Transforms of 16-bit complex pairs. Computed in single precision; the result times 2^-scaleFactor is rounded to
 * nearest, ties to even, and saturated.
 * @param pSrc source vector of N elements
 * @param pDst destination vector of N elements; equal to @p pSrc or without overlap
 * @param pSpec record of the same kind; tells length and scaling
 * @param scaleFactor results are multiplied by 2^-scaleFactor
 * @param pBuffer work buffer of the size that zorsDFTGetBufSize tells, at any address; null to have it allocated for
 * the time of the call
 * @return zorStsNullPointer for a null @p pSpec, then zorStsWrongContext for a record of another kind, then
 * zorStsNullPointer for a null vector, then zorStsNoMemory where the work buffer cannot be allocated, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsDFTFwd_CToC_16sc_Sfs,
        (const Zor16sc* pSrc, Zor16sc* pDst, const ZorsDFTSpec_C_16sc* pSpec, int scaleFactor,
         Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsDFTInv_CToC_16sc_Sfs,
        (const Zor16sc* pSrc, Zor16sc* pDst, const ZorsDFTSpec_C_16sc* pSpec, int scaleFactor,
         Zor8u* pBuffer))
/** @} */

/** @name 16-bit parts apart
 * @{
 */
/**
 * Transforms of 16-bit complex numbers whose parts stand in two arrays. Computed in single precision; the result
 * times 2^-scaleFactor is rounded to nearest, ties to even, and saturated.
 * @param pSrcRe real parts of the source, N numbers
 * @param pSrcIm imaginary parts of the source
 * @param pDstRe real parts of the destination; equal to @p pSrcRe or without overlap with any source
 * @param pDstIm imaginary parts of the destination; equal to @p pSrcIm or without overlap with any source
 * @param pSpec record of the same kind; tells length and scaling
 * @param scaleFactor results are multiplied by 2^-scaleFactor
 * @param pBuffer work buffer of the size that zorsDFTGetBufSize tells, at any address; null to have it allocated for
 * the time of the call
 * @return zorStsNullPointer for a null @p pSpec, then zorStsWrongContext for a record of another kind, then
 * zorStsNullPointer for a null vector, then zorStsNoMemory where the work buffer cannot be allocated, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsDFTFwd_CToC_16s_Sfs,
        (const Zor16s* pSrcRe, const Zor16s* pSrcIm, Zor16s* pDstRe, Zor16s* pDstIm,
         const ZorsDFTSpec_C_16s* pSpec, int scaleFactor, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsDFTInv_CToC_16s_Sfs,
        (const Zor16s* pSrcRe, const Zor16s* pSrcIm, Zor16s* pDstRe, Zor16s* pDstIm,
         const ZorsDFTSpec_C_16s* pSpec, int scaleFactor, Zor8u* pBuffer))
/** @} */

/** @name Real 16-bit data
 * @{
 */
/**
 * Transforms of real 16-bit data, with 16-bit spectra in the format that the name tells. Computed in single
 * precision; the result times 2^-scaleFactor is rounded to nearest, ties to even, and saturated.
 * @param pSrc source vector: N numbers, a CCS spectrum N + 2 (N odd: N + 1)
 * @param pDst destination vector of the same lengths; equal to @p pSrc or without overlap
 * @param pSpec record of the same kind; tells length and scaling
 * @param scaleFactor results are multiplied by 2^-scaleFactor
 * @param pBuffer work buffer of the size that zorsDFTGetBufSize tells, at any address; null to have it allocated for
 * the time of the call
 * @return zorStsNullPointer for a null @p pSpec, then zorStsWrongContext for a record of another kind, then
 * zorStsNullPointer for a null vector, then zorStsNoMemory where the work buffer cannot be allocated, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsDFTFwd_RToCCS_16s_Sfs,
        (const Zor16s* pSrc, Zor16s* pDst, const ZorsDFTSpec_R_16s* pSpec, int scaleFactor, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsDFTInv_CCSToR_16s_Sfs,
        (const Zor16s* pSrc, Zor16s* pDst, const ZorsDFTSpec_R_16s* pSpec, int scaleFactor, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsDFTFwd_RToPack_16s_Sfs,
        (const Zor16s* pSrc, Zor16s* pDst, const ZorsDFTSpec_R_16s* pSpec, int scaleFactor, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsDFTInv_PackToR_16s_Sfs,
        (const Zor16s* pSrc, Zor16s* pDst, const ZorsDFTSpec_R_16s* pSpec, int scaleFactor, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsDFTFwd_RToPerm_16s_Sfs,
        (const Zor16s* pSrc, Zor16s* pDst, const ZorsDFTSpec_R_16s* pSpec, int scaleFactor, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsDFTInv_PermToR_16s_Sfs,
        (const Zor16s* pSrc, Zor16s* pDst, const ZorsDFTSpec_R_16s* pSpec, int scaleFactor, Zor8u* pBuffer))
/** @} */
