/**
 * @file
 * Fast Fourier transforms of N = 2^order real numbers.
 *
 * The spectrum X[k] = R[k] + i I[k] of real numbers is conjugate-symmetric, so half of it is kept, in one of three
 * formats. With h = (N - 1) / 2 rounded down (odd N occurs with other transforms):
 *
 * | Format | N even | N odd |
 * |---|---|---|
 * | CCS | R[0], 0, R[1], I[1], ..., R[h], I[h], R[N/2], 0 | R[0], 0, R[1], I[1], ..., R[h], I[h] |
 * | Pack | R[0], R[1], I[1], ..., R[h], I[h], R[N/2] | R[0], R[1], I[1], ..., R[h], I[h] |
 * | Perm | R[0], R[N/2], R[1], I[1], ..., R[h], I[h] | as Pack |
 */
#include <zortypes.h>

/** @name Real transforms
 * @{
 */
/**
 * Forward: the spectrum X[k] = sum over j of x[j] e^(-2 pi i j k / N) in the format that the name tells; inverse: the
 * sum over all N points of the spectrum, x[j] = sum over k of X[k] e^(2 pi i j k / N), so that both together give N
 * times the input. Each is multiplied by what the record's flag asks for. The zeros of the CCS format are
 * written and not read. Bounds are those of the complex transforms.
 * @param pSrc source vector: N numbers, a CCS spectrum N + 2 (2 for N = 1)
 * @param pDst destination vector of the same lengths; equal to @p pSrc or without overlap
 * @param pSpec record of the same kind; tells length and scaling
 * @param pBuffer work buffer of the size that zorsFFTGetBufSize tells, at any address; null to have it allocated for
 * the time of the call
 * @return zorStsNullPointer for a null @p pSpec, then zorStsWrongContext for a record of another kind, then
 * zorStsNullPointer for a null vector, then zorStsNoMemory where the work buffer cannot be allocated, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFFTFwd_RToCCS_32f,
        (const Zor32f* pSrc, Zor32f* pDst, const ZorsFFTSpec_R_32f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_CCSToR_32f,
        (const Zor32f* pSrc, Zor32f* pDst, const ZorsFFTSpec_R_32f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTFwd_RToPack_32f,
        (const Zor32f* pSrc, Zor32f* pDst, const ZorsFFTSpec_R_32f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_PackToR_32f,
        (const Zor32f* pSrc, Zor32f* pDst, const ZorsFFTSpec_R_32f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTFwd_RToPerm_32f,
        (const Zor32f* pSrc, Zor32f* pDst, const ZorsFFTSpec_R_32f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_PermToR_32f,
        (const Zor32f* pSrc, Zor32f* pDst, const ZorsFFTSpec_R_32f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTFwd_RToCCS_64f,
        (const Zor64f* pSrc, Zor64f* pDst, const ZorsFFTSpec_R_64f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_CCSToR_64f,
        (const Zor64f* pSrc, Zor64f* pDst, const ZorsFFTSpec_R_64f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTFwd_RToPack_64f,
        (const Zor64f* pSrc, Zor64f* pDst, const ZorsFFTSpec_R_64f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_PackToR_64f,
        (const Zor64f* pSrc, Zor64f* pDst, const ZorsFFTSpec_R_64f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTFwd_RToPerm_64f,
        (const Zor64f* pSrc, Zor64f* pDst, const ZorsFFTSpec_R_64f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_PermToR_64f,
        (const Zor64f* pSrc, Zor64f* pDst, const ZorsFFTSpec_R_64f* pSpec, Zor8u* pBuffer))
/** @} */

/** @name Real transforms in place
 * @{
 */
/**
 * The same in place.
 * @param pSrcDst vector of N numbers, with a CCS spectrum of N + 2 (2 for N = 1)
 * @param pSpec record of the same kind; tells length and scaling
 * @param pBuffer work buffer of the size that zorsFFTGetBufSize tells, at any address; null to have it allocated for
 * the time of the call
 * @return zorStsNullPointer for a null @p pSpec, then zorStsWrongContext for a record of another kind, then
 * zorStsNullPointer for a null vector, then zorStsNoMemory where the work buffer cannot be allocated, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFFTFwd_RToCCS_32f_I, (Zor32f* pSrcDst, const ZorsFFTSpec_R_32f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_CCSToR_32f_I, (Zor32f* pSrcDst, const ZorsFFTSpec_R_32f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTFwd_RToPack_32f_I,
        (Zor32f* pSrcDst, const ZorsFFTSpec_R_32f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_PackToR_32f_I,
        (Zor32f* pSrcDst, const ZorsFFTSpec_R_32f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTFwd_RToPerm_32f_I,
        (Zor32f* pSrcDst, const ZorsFFTSpec_R_32f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_PermToR_32f_I,
        (Zor32f* pSrcDst, const ZorsFFTSpec_R_32f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTFwd_RToCCS_64f_I, (Zor64f* pSrcDst, const ZorsFFTSpec_R_64f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_CCSToR_64f_I, (Zor64f* pSrcDst, const ZorsFFTSpec_R_64f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTFwd_RToPack_64f_I,
        (Zor64f* pSrcDst, const ZorsFFTSpec_R_64f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_PackToR_64f_I,
        (Zor64f* pSrcDst, const ZorsFFTSpec_R_64f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTFwd_RToPerm_64f_I,
        (Zor64f* pSrcDst, const ZorsFFTSpec_R_64f* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_PermToR_64f_I,
        (Zor64f* pSrcDst, const ZorsFFTSpec_R_64f* pSpec, Zor8u* pBuffer))
/** @} */

/** @name Real transforms of integers
 * @{
 */
/**
 * The transforms of integers, scaled: the result, with what the record's flag asks for, times 2^-scaleFactor,
 * rounded to nearest, ties to even, and saturated. 16-bit data, and those with 32-bit spectra, are transformed in
 * single precision, 32-bit data in double precision; before the rounding the error is that of the floating transforms,
 * and that of 32-bit numbers in single precision where these are taken.
 * @param pSrc source vector: N numbers, a CCS spectrum N + 2 (2 for N = 1)
 * @param pDst destination vector of the same lengths; equal to @p pSrc or without overlap
 * @param pSpec record of the same kind; tells length and scaling
 * @param scaleFactor any value
 * @param pBuffer work buffer of the size that zorsFFTGetBufSize tells, at any address; null to have it allocated for
 * the time of the call
 * @return zorStsNullPointer for a null @p pSpec, then zorStsWrongContext for a record of another kind, then
 * zorStsNullPointer for a null vector, then zorStsNoMemory where the work buffer cannot be allocated, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFFTFwd_RToCCS_16s_Sfs,
        (const Zor16s* pSrc, Zor16s* pDst, const ZorsFFTSpec_R_16s* pSpec, int scaleFactor, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_CCSToR_16s_Sfs,
        (const Zor16s* pSrc, Zor16s* pDst, const ZorsFFTSpec_R_16s* pSpec, int scaleFactor, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTFwd_RToPack_16s_Sfs,
        (const Zor16s* pSrc, Zor16s* pDst, const ZorsFFTSpec_R_16s* pSpec, int scaleFactor, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_PackToR_16s_Sfs,
        (const Zor16s* pSrc, Zor16s* pDst, const ZorsFFTSpec_R_16s* pSpec, int scaleFactor, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTFwd_RToPerm_16s_Sfs,
        (const Zor16s* pSrc, Zor16s* pDst, const ZorsFFTSpec_R_16s* pSpec, int scaleFactor, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_PermToR_16s_Sfs,
        (const Zor16s* pSrc, Zor16s* pDst, const ZorsFFTSpec_R_16s* pSpec, int scaleFactor, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTFwd_RToCCS_32s_Sfs,
        (const Zor32s* pSrc, Zor32s* pDst, const ZorsFFTSpec_R_32s* pSpec, int scaleFactor, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_CCSToR_32s_Sfs,
        (const Zor32s* pSrc, Zor32s* pDst, const ZorsFFTSpec_R_32s* pSpec, int scaleFactor, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTFwd_RToPack_32s_Sfs,
        (const Zor32s* pSrc, Zor32s* pDst, const ZorsFFTSpec_R_32s* pSpec, int scaleFactor, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_PackToR_32s_Sfs,
        (const Zor32s* pSrc, Zor32s* pDst, const ZorsFFTSpec_R_32s* pSpec, int scaleFactor, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTFwd_RToPerm_32s_Sfs,
        (const Zor32s* pSrc, Zor32s* pDst, const ZorsFFTSpec_R_32s* pSpec, int scaleFactor, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_PermToR_32s_Sfs,
        (const Zor32s* pSrc, Zor32s* pDst, const ZorsFFTSpec_R_32s* pSpec, int scaleFactor, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTFwd_RToCCS_16s32s_Sfs,
        (const Zor16s* pSrc, Zor32s* pDst, const ZorsFFTSpec_R_16s32s* pSpec, int scaleFactor,
         Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_CCSToR_32s16s_Sfs,
        (const Zor32s* pSrc, Zor16s* pDst, const ZorsFFTSpec_R_16s32s* pSpec, int scaleFactor,
         Zor8u* pBuffer))
/** @} */

/** @name Real transforms of integers in place
 * @{
 */
/**
 * The same in place.
 * @param pSrcDst vector of N numbers, with a CCS spectrum of N + 2 (2 for N = 1)
 * @param pSpec record of the same kind; tells length and scaling
 * @param scaleFactor any value
 * @param pBuffer work buffer of the size that zorsFFTGetBufSize tells, at any address; null to have it allocated for
 * the time of the call
 * @return zorStsNullPointer for a null @p pSpec, then zorStsWrongContext for a record of another kind, then
 * zorStsNullPointer for a null vector, then zorStsNoMemory where the work buffer cannot be allocated, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFFTFwd_RToCCS_16s_ISfs,
        (Zor16s* pSrcDst, const ZorsFFTSpec_R_16s* pSpec, int scaleFactor, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_CCSToR_16s_ISfs,
        (Zor16s* pSrcDst, const ZorsFFTSpec_R_16s* pSpec, int scaleFactor, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTFwd_RToPack_16s_ISfs,
        (Zor16s* pSrcDst, const ZorsFFTSpec_R_16s* pSpec, int scaleFactor, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_PackToR_16s_ISfs,
        (Zor16s* pSrcDst, const ZorsFFTSpec_R_16s* pSpec, int scaleFactor, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTFwd_RToPerm_16s_ISfs,
        (Zor16s* pSrcDst, const ZorsFFTSpec_R_16s* pSpec, int scaleFactor, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_PermToR_16s_ISfs,
        (Zor16s* pSrcDst, const ZorsFFTSpec_R_16s* pSpec, int scaleFactor, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTFwd_RToCCS_32s_ISfs,
        (Zor32s* pSrcDst, const ZorsFFTSpec_R_32s* pSpec, int scaleFactor, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_CCSToR_32s_ISfs,
        (Zor32s* pSrcDst, const ZorsFFTSpec_R_32s* pSpec, int scaleFactor, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTFwd_RToPack_32s_ISfs,
        (Zor32s* pSrcDst, const ZorsFFTSpec_R_32s* pSpec, int scaleFactor, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_PackToR_32s_ISfs,
        (Zor32s* pSrcDst, const ZorsFFTSpec_R_32s* pSpec, int scaleFactor, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTFwd_RToPerm_32s_ISfs,
        (Zor32s* pSrcDst, const ZorsFFTSpec_R_32s* pSpec, int scaleFactor, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFFTInv_PermToR_32s_ISfs,
        (Zor32s* pSrcDst, const ZorsFFTSpec_R_32s* pSpec, int scaleFactor, Zor8u* pBuffer))
/** @} */
