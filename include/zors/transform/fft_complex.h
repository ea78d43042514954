/**
 * @file
 * Complex fast Fourier transforms of N = 2^order points.
 */
#include <zortypes.h>

/** @name Complex pairs
 * @{
 */
/**
 * Forward: X[k] = sum over j of x[j] e^(-2 pi i j k / N); inverse: x[j] = sum over k of X[k] e^(2 pi i j k / N); each
 * multiplied by what the record's flag asks for.
 *
 * The root mean square of the error is at most 0.40 eps sqrt(log2 N) of that of the result, eps being the element
 * type's, plus the rounding of a factor. Results do not depend on alignment, on who supplied the work buffer, or on
 * whether the call works in place; they may differ between processor variants. Passes sort themselves as in
 * T. G. Stockham, High-speed convolution and correlation, AFIPS 1966; orders beyond the caches go twice through
 * memory as in D. H. Bailey, FFTs in external or hierarchical memory, J. Supercomputing 4, 1990.
 * @param pSrc source vector of N elements
 * @param pDst destination vector of N elements; equal to @p pSrc or without overlap
 * @param pSpec record of the same kind; tells length and scaling
 * @param pBuffer work buffer of the size that zorsFFTGetBufSize tells, at any address; null to have it allocated for
 * the time of the call
 * @return zorStsNullPointer for a null @p pSpec, then zorStsWrongContext for a record of another kind, then
 * zorStsNullPointer for a null vector, then zorStsNoMemory where the work buffer cannot be allocated, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFFTFwd_CToC_32fc,
        (const Zor32fc* pSrc, Zor32fc* pDst, const ZorsFFTSpec_C_32fc* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_CToC_32fc,
        (const Zor32fc* pSrc, Zor32fc* pDst, const ZorsFFTSpec_C_32fc* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTFwd_CToC_64fc,
        (const Zor64fc* pSrc, Zor64fc* pDst, const ZorsFFTSpec_C_64fc* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_CToC_64fc,
        (const Zor64fc* pSrc, Zor64fc* pDst, const ZorsFFTSpec_C_64fc* pSpec, Zor8u* pBuffer))
/** @} */

/** @name Complex pairs in place
 * @{
 */
/**
 * The transforms of zorsFFTFwd_CToC_32fc() and its kin in place.
 * @param pSrcDst vector of N elements
 * @param pSpec record of the same kind; tells length and scaling
 * @param pBuffer work buffer of the size that zorsFFTGetBufSize tells, at any address; null to have it allocated for
 * the time of the call
 * @return zorStsNullPointer for a null @p pSpec, then zorStsWrongContext for a record of another kind, then
 * zorStsNullPointer for a null vector, then zorStsNoMemory where the work buffer cannot be allocated, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFFTFwd_CToC_32fc_I,
        (Zor32fc* pSrcDst, const ZorsFFTSpec_C_32fc* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_CToC_32fc_I,
        (Zor32fc* pSrcDst, const ZorsFFTSpec_C_32fc* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTFwd_CToC_64fc_I,
        (Zor64fc* pSrcDst, const ZorsFFTSpec_C_64fc* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_CToC_64fc_I,
        (Zor64fc* pSrcDst, const ZorsFFTSpec_C_64fc* pSpec, Zor8u* pBuffer))
/** @} */

/** @name Real and imaginary parts apart
 * @{
 */
/**
 * The same transforms of vectors whose real and imaginary parts stand in arrays of their own.
 * @param pSrcRe real parts of the source
 * @param pSrcIm imaginary parts of the source
 * @param pDstRe real parts of the destination; equal to @p pSrcRe or without overlap
 * @param pDstIm imaginary parts of the destination; equal to @p pSrcIm or without overlap
 * @param pSpec record of the same kind; tells length and scaling
 * @param pBuffer work buffer of the size that zorsFFTGetBufSize tells, at any address; null to have it allocated for
 * the time of the call
 * @return zorStsNullPointer for a null @p pSpec, then zorStsWrongContext for a record of another kind, then
 * zorStsNullPointer for a null vector, then zorStsNoMemory where the work buffer cannot be allocated, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFFTFwd_CToC_32f,
        (const Zor32f* pSrcRe, const Zor32f* pSrcIm, Zor32f* pDstRe, Zor32f* pDstIm,
         const ZorsFFTSpec_C_32f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_CToC_32f,
        (const Zor32f* pSrcRe, const Zor32f* pSrcIm, Zor32f* pDstRe, Zor32f* pDstIm,
         const ZorsFFTSpec_C_32f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTFwd_CToC_64f,
        (const Zor64f* pSrcRe, const Zor64f* pSrcIm, Zor64f* pDstRe, Zor64f* pDstIm,
         const ZorsFFTSpec_C_64f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_CToC_64f,
        (const Zor64f* pSrcRe, const Zor64f* pSrcIm, Zor64f* pDstRe, Zor64f* pDstIm,
         const ZorsFFTSpec_C_64f* pSpec, Zor8u* pBuffer))
/** @} */

/** @name Real and imaginary parts apart, in place
 * @{
 */
/**
 * The same in place.
 * @param pSrcDstRe real parts
 * @param pSrcDstIm imaginary parts
 * @param pSpec record of the same kind; tells length and scaling
 * @param pBuffer work buffer of the size that zorsFFTGetBufSize tells, at any address; null to have it allocated for
 * the time of the call
 * @return zorStsNullPointer for a null @p pSpec, then zorStsWrongContext for a record of another kind, then
 * zorStsNullPointer for a null vector, then zorStsNoMemory where the work buffer cannot be allocated, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFFTFwd_CToC_32f_I,
        (Zor32f* pSrcDstRe, Zor32f* pSrcDstIm, const ZorsFFTSpec_C_32f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_CToC_32f_I,
        (Zor32f* pSrcDstRe, Zor32f* pSrcDstIm, const ZorsFFTSpec_C_32f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTFwd_CToC_64f_I,
        (Zor64f* pSrcDstRe, Zor64f* pSrcDstIm, const ZorsFFTSpec_C_64f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_CToC_64f_I,
        (Zor64f* pSrcDstRe, Zor64f* pSrcDstIm, const ZorsFFTSpec_C_64f* pSpec, Zor8u* pBuffer))
/** @} */

/** @name Integer pairs
 * @{
 */
/**
 * The transforms of integers, scaled: the result, with what the record's flag asks for, times 2^-scaleFactor,
 * rounded to nearest, ties to even, and saturated. 16-bit data are transformed in single precision, 32-bit data in
 * double precision; before the rounding the error is that of the floating transforms.
 * @param pSrc source vector of N elements
 * @param pDst destination vector of N elements; equal to @p pSrc or without overlap
 * @param pSpec record of the same kind; tells length and scaling
 * @param scaleFactor any value
 * @param pBuffer work buffer of the size that zorsFFTGetBufSize tells, at any address; null to have it allocated for
 * the time of the call
 * @return zorStsNullPointer for a null @p pSpec, then zorStsWrongContext for a record of another kind, then
 * zorStsNullPointer for a null vector, then zorStsNoMemory where the work buffer cannot be allocated, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFFTFwd_CToC_16sc_Sfs,
        (const Zor16sc* pSrc, Zor16sc* pDst, const ZorsFFTSpec_C_16sc* pSpec, int scaleFactor,
         Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_CToC_16sc_Sfs,
        (const Zor16sc* pSrc, Zor16sc* pDst, const ZorsFFTSpec_C_16sc* pSpec, int scaleFactor,
         Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTFwd_CToC_32sc_Sfs,
        (const Zor32sc* pSrc, Zor32sc* pDst, const ZorsFFTSpec_C_32sc* pSpec, int scaleFactor,
         Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_CToC_32sc_Sfs,
        (const Zor32sc* pSrc, Zor32sc* pDst, const ZorsFFTSpec_C_32sc* pSpec, int scaleFactor,
         Zor8u* pBuffer))
/** @} */

/** @name Integer pairs in place
 * @{
 */
/**
 * The same in place.
 * @param pSrcDst vector of N elements
 * @param pSpec record of the same kind; tells length and scaling
 * @param scaleFactor any value
 * @param pBuffer work buffer of the size that zorsFFTGetBufSize tells, at any address; null to have it allocated for
 * the time of the call
 * @return zorStsNullPointer for a null @p pSpec, then zorStsWrongContext for a record of another kind, then
 * zorStsNullPointer for a null vector, then zorStsNoMemory where the work buffer cannot be allocated, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFFTFwd_CToC_16sc_ISfs,
        (Zor16sc* pSrcDst, const ZorsFFTSpec_C_16sc* pSpec, int scaleFactor, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_CToC_16sc_ISfs,
        (Zor16sc* pSrcDst, const ZorsFFTSpec_C_16sc* pSpec, int scaleFactor, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTFwd_CToC_32sc_ISfs,
        (Zor32sc* pSrcDst, const ZorsFFTSpec_C_32sc* pSpec, int scaleFactor, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_CToC_32sc_ISfs,
        (Zor32sc* pSrcDst, const ZorsFFTSpec_C_32sc* pSpec, int scaleFactor, Zor8u* pBuffer))
/** @} */

/** @name Integers, real and imaginary parts apart
 * @{
 */
/**
 * The same with real and imaginary parts in arrays of their own.
 * @param pSrcRe real parts of the source
 * @param pSrcIm imaginary parts of the source
 * @param pDstRe real parts of the destination; equal to @p pSrcRe or without overlap
 * @param pDstIm imaginary parts of the destination; equal to @p pSrcIm or without overlap
 * @param pSpec record of the same kind; tells length and scaling
 * @param scaleFactor any value
 * @param pBuffer work buffer of the size that zorsFFTGetBufSize tells, at any address; null to have it allocated for
 * the time of the call
 * @return zorStsNullPointer for a null @p pSpec, then zorStsWrongContext for a record of another kind, then
 * zorStsNullPointer for a null vector, then zorStsNoMemory where the work buffer cannot be allocated, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFFTFwd_CToC_16s_Sfs,
        (const Zor16s* pSrcRe, const Zor16s* pSrcIm, Zor16s* pDstRe, Zor16s* pDstIm,
         const ZorsFFTSpec_C_16s* pSpec, int scaleFactor, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_CToC_16s_Sfs,
        (const Zor16s* pSrcRe, const Zor16s* pSrcIm, Zor16s* pDstRe, Zor16s* pDstIm,
         const ZorsFFTSpec_C_16s* pSpec, int scaleFactor, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTFwd_CToC_32s_Sfs,
        (const Zor32s* pSrcRe, const Zor32s* pSrcIm, Zor32s* pDstRe, Zor32s* pDstIm,
         const ZorsFFTSpec_C_32s* pSpec, int scaleFactor, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_CToC_32s_Sfs,
        (const Zor32s* pSrcRe, const Zor32s* pSrcIm, Zor32s* pDstRe, Zor32s* pDstIm,
         const ZorsFFTSpec_C_32s* pSpec, int scaleFactor, Zor8u* pBuffer))
/** @} */

/** @name Integers, real and imaginary parts apart, in place
 * @{
 */
/**
 * The same in place.
 * @param pSrcDstRe real parts
 * @param pSrcDstIm imaginary parts
 * @param pSpec record of the same kind; tells length and scaling
 * @param scaleFactor any value
 * @param pBuffer work buffer of the size that zorsFFTGetBufSize tells, at any address; null to have it allocated for
 * the time of the call
 * @return zorStsNullPointer for a null @p pSpec, then zorStsWrongContext for a record of another kind, then
 * zorStsNullPointer for a null vector, then zorStsNoMemory where the work buffer cannot be allocated, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFFTFwd_CToC_16s_ISfs,
        (Zor16s* pSrcDstRe, Zor16s* pSrcDstIm, const ZorsFFTSpec_C_16s* pSpec, int scaleFactor,
         Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_CToC_16s_ISfs,
        (Zor16s* pSrcDstRe, Zor16s* pSrcDstIm, const ZorsFFTSpec_C_16s* pSpec, int scaleFactor,
         Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTFwd_CToC_32s_ISfs,
        (Zor32s* pSrcDstRe, Zor32s* pSrcDstIm, const ZorsFFTSpec_C_32s* pSpec, int scaleFactor,
         Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_CToC_32s_ISfs,
        (Zor32s* pSrcDstRe, Zor32s* pSrcDstIm, const ZorsFFTSpec_C_32s* pSpec, int scaleFactor,
         Zor8u* pBuffer))
/** @} */
