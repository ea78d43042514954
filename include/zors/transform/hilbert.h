/**
 * @file
 * The analytic signal z of N real numbers x, by discrete Fourier transforms: Re z = x, and Im z is the discrete
 * Hilbert transform of x. Its spectrum is that of x, doubled between the points 0 and N/2 and zero above N/2.
 *
 * A record is read-only once it is made: any number of threads may use one at a time. Records and transforms take
 * memory of their own, as zorsDFTFwd_CToC_32fc() does without a work buffer.
 */
#include <zortypes.h>

/** @name Records
 * @{
 */
/**
 * Makes a record in memory of the library, to be released by zorsHilbertFree.
 * @param ppSpec receives the record; unchanged after an error
 * @param length number of points N, at least 1
 * @param hint kept in the record; any value, without influence on results
 * @return zorStsNullPointer for a null @p ppSpec, then zorStsBadSize for @p length below 1, then what
 * zorsDFTInitAlloc_C_32fc() and zorsDFTInitAlloc_R_32f() return: zorStsBadSize for lengths without a method,
 * zorStsNoMemory where an allocation fails; else zorStsOk
 */
ZORSAPI(ZorStatus, zorsHilbertInitAlloc_32f32fc,
        (ZorsHilbertSpec_32f32fc** ppSpec, int length, ZorHintAlgorithm hint))
ZORSAPI(ZorStatus, zorsHilbertInitAlloc_16s32fc,
        (ZorsHilbertSpec_16s32fc** ppSpec, int length, ZorHintAlgorithm hint))
ZORSAPI(ZorStatus, zorsHilbertInitAlloc_16s16sc,
        (ZorsHilbertSpec_16s16sc** ppSpec, int length, ZorHintAlgorithm hint))
/** @} */

/** @name Release
 * @{
 */
/**
 * Releases a record and its transforms.
 * @param pSpec record
 * @return zorStsNullPointer for a null @p pSpec, then zorStsWrongContext for a record of another kind, then the first
 * error of the release of its transforms, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsHilbertFree_32f32fc, (ZorsHilbertSpec_32f32fc* pSpec))
ZORSAPI(ZorStatus, zorsHilbertFree_16s32fc, (ZorsHilbertSpec_16s32fc* pSpec))
ZORSAPI(ZorStatus, zorsHilbertFree_16s16sc, (ZorsHilbertSpec_16s16sc* pSpec))
/** @} */

/** @name Transforms
 * @{
 */
/**
 * The analytic signal in single precision. Of one and two points the imaginary parts are zero. The error is that of
 * the two transforms: its root mean square is at most twice the bound of zorsDFTFwd_CToC_32fc() relative to that of
 * the result.
 * @param pSrc source vector of N numbers; without overlap with @p pDst
 * @param pDst destination vector of N elements
 * @param pSpec record of the same kind
 * @return zorStsNullPointer for a null pointer, then zorStsWrongContext for a record of another kind, then
 * zorStsNoMemory where work memory cannot be allocated (what @p pDst holds then is undefined), else zorStsOk
 */
ZORSAPI(ZorStatus, zorsHilbert_32f32fc,
        (const Zor32f* pSrc, Zor32fc* pDst, const ZorsHilbertSpec_32f32fc* pSpec))
ZORSAPI(ZorStatus, zorsHilbert_16s32fc,
        (const Zor16s* pSrc, Zor32fc* pDst, const ZorsHilbertSpec_16s32fc* pSpec))
/** @} */

/** @name 16-bit data
 * @{
 */
/**
 * The analytic signal of 16-bit data, computed in single precision; the result times 2^-scaleFactor is rounded to
 * nearest, ties to even, and saturated.
 * @param pSrc source vector of N numbers
 * @param pDst destination vector of N elements; may begin where @p pSrc does
 * @param pSpec record of the same kind
 * @param scaleFactor results are multiplied by 2^-scaleFactor
 * @return zorStsNullPointer for a null pointer, then zorStsWrongContext for a record of another kind, then
 * zorStsNoMemory where work memory cannot be allocated, and nothing is written; else zorStsOk
 */
ZORSAPI(ZorStatus, zorsHilbert_16s16sc_Sfs,
        (const Zor16s* pSrc, Zor16sc* pDst, const ZorsHilbertSpec_16s16sc* pSpec, int scaleFactor))
/** @} */
