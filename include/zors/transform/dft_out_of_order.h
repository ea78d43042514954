/**
 * @file
 * Discrete Fourier transforms of any length whose spectra are in the order in which the passes leave them: for
 * those who multiply two spectra and transform back, and do not look at the points. That order belongs to a record's
 * length and kind. The passes of this library sort themselves, so today it is the natural one.
 */
#include <zortypes.h>

/** @name Allocation and initialisation
 * @{
 */
/**
 * Makes a record in memory of the library, to be released by zorsDFTOutOrdFree.
 * @param ppSpec receives the record; unchanged after an error
 * @param length number of points N, at least 1
 * @param flag one of ZOR_FFT_SCALE_FWD, ZOR_FFT_SCALE_INV, ZOR_FFT_SCALE_SQRT, ZOR_FFT_SCALE_NONE
 * @param hint kept in the record; any value, without influence on results
 * @return zorStsNullPointer for a null @p ppSpec, then zorStsBadSize and zorStsBadFftFlag as zorsDFTGetSize, then
 * zorStsNoMemory where an allocation fails, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsDFTOutOrdInitAlloc_C_32fc,
        (ZorsDFTOutOrdSpec_C_32fc** ppSpec, int length, int flag, ZorHintAlgorithm hint))
ZORSAPI(ZorStatus, zorsDFTOutOrdInitAlloc_C_64fc,
        (ZorsDFTOutOrdSpec_C_64fc** ppSpec, int length, int flag, ZorHintAlgorithm hint))
/** @} */

/** @name Release
 * @{
 */
/**
 * Invalidates a record, and releases its memory where it is the library's.
 * @param pSpec record
 * @return zorStsNullPointer for a null @p pSpec, then zorStsWrongContext for a record of another kind or one in the
 * caller's memory that was released, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsDFTOutOrdFree_C_32fc, (ZorsDFTOutOrdSpec_C_32fc* pSpec))
ZORSAPI(ZorStatus, zorsDFTOutOrdFree_C_64fc, (ZorsDFTOutOrdSpec_C_64fc* pSpec))
/** @} */

/** @name Size of the work buffer
 * @{
 */
/**
 * The size of the work buffer that the transforms take.
 * @param pSpec record
 * @param pBufferSize receives the size in bytes; 0 where none is needed
 * @return zorStsNullPointer for a null @p pSpec, then zorStsWrongContext for a record of another kind, then
 * zorStsNullPointer for a null @p pBufferSize, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsDFTOutOrdGetBufSize_C_32fc,
        (const ZorsDFTOutOrdSpec_C_32fc* pSpec, int* pBufferSize))
ZORSAPI(ZorStatus, zorsDFTOutOrdGetBufSize_C_64fc,
        (const ZorsDFTOutOrdSpec_C_64fc* pSpec, int* pBufferSize))
/** @} */

/** @name Transforms
 * @{
 */
/**
 * The transforms of zorsDFTFwd_CToC_32fc() and its kin, forward with a spectrum out of order, inverse from such a
 * spectrum to natural order; with their bounds.
 * @param pSrc source vector of N elements
 * @param pDst destination vector of N elements; equal to @p pSrc or without overlap
 * @param pSpec record of the same kind; tells length and scaling
 * @param pBuffer work buffer of the size that zorsDFTOutOrdGetBufSize tells, at any address; null to have it
 * allocated for the time of the call
 * @return zorStsNullPointer for a null @p pSpec, then zorStsWrongContext for a record of another kind, then
 * zorStsNullPointer for a null vector, then zorStsNoMemory where the work buffer cannot be allocated, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsDFTOutOrdFwd_CToC_32fc,
        (const Zor32fc* pSrc, Zor32fc* pDst, const ZorsDFTOutOrdSpec_C_32fc* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsDFTOutOrdInv_CToC_32fc,
        (const Zor32fc* pSrc, Zor32fc* pDst, const ZorsDFTOutOrdSpec_C_32fc* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsDFTOutOrdFwd_CToC_64fc,
        (const Zor64fc* pSrc, Zor64fc* pDst, const ZorsDFTOutOrdSpec_C_64fc* pSpec, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsDFTOutOrdInv_CToC_64fc,
        (const Zor64fc* pSrc, Zor64fc* pDst, const ZorsDFTOutOrdSpec_C_64fc* pSpec, Zor8u* pBuffer))
/** @} */
