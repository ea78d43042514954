/**
 * @file
 * Records of fast Fourier transforms: their sizes, and how they are made and released.
 *
 * A record is read-only once it is made: any number of threads may use one at a time, each with a work
 * buffer of its own. There is one kind for each type of data:
 *
 * | Kind | data | largest order | arithmetic |
 * |---|---|---:|---|
 * | `C_32fc`, `C_32f` | complex, in pairs or in two arrays | 28 | `Zor32f` |
 * | `R_32f` | real | 29 | `Zor32f` |
 * | `C_64fc`, `C_64f` | complex, in pairs or in two arrays | 27 | `Zor64f` |
 * | `R_64f` | real | 28 | `Zor64f` |
 * | `C_16sc`, `C_16s` | complex, in pairs or in two arrays | 27 | `Zor32f` |
 * | `R_16s`, `R_16s32s` | real; the spectra of the latter are `Zor32s` | 28 | `Zor32f` |
 * | `C_32sc`, `C_32s` | complex, in pairs or in two arrays | 26 | `Zor64f` |
 * | `R_32s` | real | 27 | `Zor64f` |
 */
#include <zortypes.h>

/** @name Sizes
 * @{
 */
/**
 * The sizes in bytes of what a record needs. Each that is not 0 has room for aligning it to 64 bytes, so
 * memory at any address will do.
 * @param order the transform's length is N = 2^order
 * @param flag one of ZOR_FFT_SCALE_FWD, ZOR_FFT_SCALE_INV, ZOR_FFT_SCALE_SQRT, ZOR_FFT_SCALE_NONE
 * @param hint kept in the record; any value, without influence on results
 * @param pSpecSize receives the size of the record
 * @param pInitSize receives the size of the memory that only the initialisation needs; 0 below order 11
 * @param pBufferSize receives the size of the work buffer; 0 where a transform needs none
 * @return zorStsBadFftOrder for @p order below 0 or above 30, then zorStsNullPointer for a null pointer, then
 * zorStsBadFftFlag for an unknown @p flag, then zorStsBadFftOrder for @p order above the kind's largest, else
 * zorStsOk
 */
ZORSAPI(ZorStatus, zorsFFTGetSize_C_16sc,
        (int order, int flag, ZorHintAlgorithm hint, int* pSpecSize, int* pInitSize, int* pBufferSize))
ZORSAPI(ZorStatus, zorsFFTGetSize_C_16s,
        (int order, int flag, ZorHintAlgorithm hint, int* pSpecSize, int* pInitSize, int* pBufferSize))
ZORSAPI(ZorStatus, zorsFFTGetSize_R_16s,
        (int order, int flag, ZorHintAlgorithm hint, int* pSpecSize, int* pInitSize, int* pBufferSize))
ZORSAPI(ZorStatus, zorsFFTGetSize_C_32fc,
        (int order, int flag, ZorHintAlgorithm hint, int* pSpecSize, int* pInitSize, int* pBufferSize))
ZORSAPI(ZorStatus, zorsFFTGetSize_C_32f,
        (int order, int flag, ZorHintAlgorithm hint, int* pSpecSize, int* pInitSize, int* pBufferSize))
ZORSAPI(ZorStatus, zorsFFTGetSize_R_32f,
        (int order, int flag, ZorHintAlgorithm hint, int* pSpecSize, int* pInitSize, int* pBufferSize))
ZORSAPI(ZorStatus, zorsFFTGetSize_C_64fc,
        (int order, int flag, ZorHintAlgorithm hint, int* pSpecSize, int* pInitSize, int* pBufferSize))
ZORSAPI(ZorStatus, zorsFFTGetSize_C_64f,
        (int order, int flag, ZorHintAlgorithm hint, int* pSpecSize, int* pInitSize, int* pBufferSize))
ZORSAPI(ZorStatus, zorsFFTGetSize_R_64f,
        (int order, int flag, ZorHintAlgorithm hint, int* pSpecSize, int* pInitSize, int* pBufferSize))
ZORSAPI(ZorStatus, zorsFFTGetSize_C_32sc,
        (int order, int flag, ZorHintAlgorithm hint, int* pSpecSize, int* pInitSize, int* pBufferSize))
ZORSAPI(ZorStatus, zorsFFTGetSize_C_32s,
        (int order, int flag, ZorHintAlgorithm hint, int* pSpecSize, int* pInitSize, int* pBufferSize))
ZORSAPI(ZorStatus, zorsFFTGetSize_R_32s,
        (int order, int flag, ZorHintAlgorithm hint, int* pSpecSize, int* pInitSize, int* pBufferSize))
ZORSAPI(ZorStatus, zorsFFTGetSize_R_16s32s,
        (int order, int flag, ZorHintAlgorithm hint, int* pSpecSize, int* pInitSize, int* pBufferSize))
/** @} */

/** @name Initialisation in the caller's memory
 * @{
 */
/**
 * Makes a record in memory of the caller, at its first address that is a multiple of 64. The record
 * points into itself and must not be moved.
 * @param ppSpec receives the record
 * @param order the transform's length is N = 2^order
 * @param flag one of ZOR_FFT_SCALE_FWD, ZOR_FFT_SCALE_INV, ZOR_FFT_SCALE_SQRT, ZOR_FFT_SCALE_NONE
 * @param hint kept in the record; any value, without influence on results
 * @param pSpecMemory memory of the size that zorsFFTGetSize tells, for as long as the record is used
 * @param pInitMemory memory for the time of this call; null where its size is 0
 * @return zorStsNullPointer for a null @p ppSpec, then zorStsBadFftOrder for @p order outside its range (integer
 * kinds: 0 to 30), then zorStsNullPointer for a null @p pSpecMemory, then zorStsBadFftFlag for an unknown @p flag,
 * then for integer kinds zorStsBadFftOrder above the largest order, then zorStsNullPointer for a null
 * @p pInitMemory that is needed, else zorStsOk. From the flag on an error leaves no valid record in the memory.
 */
ZORSAPI(ZorStatus, zorsFFTInit_C_16sc,
        (ZorsFFTSpec_C_16sc** ppSpec, int order, int flag, ZorHintAlgorithm hint, Zor8u* pSpecMemory,
         Zor8u* pInitMemory))
ZORSAPI(ZorStatus, zorsFFTInit_C_16s,
        (ZorsFFTSpec_C_16s** ppSpec, int order, int flag, ZorHintAlgorithm hint, Zor8u* pSpecMemory,
         Zor8u* pInitMemory))
ZORSAPI(ZorStatus, zorsFFTInit_R_16s,
        (ZorsFFTSpec_R_16s** ppSpec, int order, int flag, ZorHintAlgorithm hint, Zor8u* pSpecMemory,
         Zor8u* pInitMemory))
ZORSAPI(ZorStatus, zorsFFTInit_C_32fc,
        (ZorsFFTSpec_C_32fc** ppSpec, int order, int flag, ZorHintAlgorithm hint, Zor8u* pSpecMemory,
         Zor8u* pInitMemory))
ZORSAPI(ZorStatus, zorsFFTInit_C_32f,
        (ZorsFFTSpec_C_32f** ppSpec, int order, int flag, ZorHintAlgorithm hint, Zor8u* pSpecMemory,
         Zor8u* pInitMemory))
ZORSAPI(ZorStatus, zorsFFTInit_R_32f,
        (ZorsFFTSpec_R_32f** ppSpec, int order, int flag, ZorHintAlgorithm hint, Zor8u* pSpecMemory,
         Zor8u* pInitMemory))
ZORSAPI(ZorStatus, zorsFFTInit_C_64fc,
        (ZorsFFTSpec_C_64fc** ppSpec, int order, int flag, ZorHintAlgorithm hint, Zor8u* pSpecMemory,
         Zor8u* pInitMemory))
ZORSAPI(ZorStatus, zorsFFTInit_C_64f,
        (ZorsFFTSpec_C_64f** ppSpec, int order, int flag, ZorHintAlgorithm hint, Zor8u* pSpecMemory,
         Zor8u* pInitMemory))
ZORSAPI(ZorStatus, zorsFFTInit_R_64f,
        (ZorsFFTSpec_R_64f** ppSpec, int order, int flag, ZorHintAlgorithm hint, Zor8u* pSpecMemory,
         Zor8u* pInitMemory))
ZORSAPI(ZorStatus, zorsFFTInit_C_32sc,
        (ZorsFFTSpec_C_32sc** ppSpec, int order, int flag, ZorHintAlgorithm hint, Zor8u* pSpecMemory,
         Zor8u* pInitMemory))
ZORSAPI(ZorStatus, zorsFFTInit_C_32s,
        (ZorsFFTSpec_C_32s** ppSpec, int order, int flag, ZorHintAlgorithm hint, Zor8u* pSpecMemory,
         Zor8u* pInitMemory))
ZORSAPI(ZorStatus, zorsFFTInit_R_32s,
        (ZorsFFTSpec_R_32s** ppSpec, int order, int flag, ZorHintAlgorithm hint, Zor8u* pSpecMemory,
         Zor8u* pInitMemory))
ZORSAPI(ZorStatus, zorsFFTInit_R_16s32s,
        (ZorsFFTSpec_R_16s32s** ppSpec, int order, int flag, ZorHintAlgorithm hint, Zor8u* pSpecMemory,
         Zor8u* pInitMemory))
/** @} */

/** @name Allocation and initialisation
 * @{
 */
/**
 * Makes a record in memory of the library, to be released by zorsFFTFree.
 * @param ppSpec receives the record; unchanged after an error
 * @param order the transform's length is N = 2^order
 * @param flag one of ZOR_FFT_SCALE_FWD, ZOR_FFT_SCALE_INV, ZOR_FFT_SCALE_SQRT, ZOR_FFT_SCALE_NONE
 * @param hint kept in the record; any value, without influence on results
 * @return zorStsNullPointer for a null @p ppSpec, then zorStsBadFftOrder and zorStsBadFftFlag as zorsFFTGetSize, then
 * zorStsNoMemory where an allocation fails, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFFTInitAlloc_C_16sc,
        (ZorsFFTSpec_C_16sc** ppSpec, int order, int flag, ZorHintAlgorithm hint))
ZORSAPI(ZorStatus, zorsFFTInitAlloc_C_16s,
        (ZorsFFTSpec_C_16s** ppSpec, int order, int flag, ZorHintAlgorithm hint))
ZORSAPI(ZorStatus, zorsFFTInitAlloc_R_16s,
        (ZorsFFTSpec_R_16s** ppSpec, int order, int flag, ZorHintAlgorithm hint))
ZORSAPI(ZorStatus, zorsFFTInitAlloc_C_32fc,
        (ZorsFFTSpec_C_32fc** ppSpec, int order, int flag, ZorHintAlgorithm hint))
ZORSAPI(ZorStatus, zorsFFTInitAlloc_C_32f,
        (ZorsFFTSpec_C_32f** ppSpec, int order, int flag, ZorHintAlgorithm hint))
ZORSAPI(ZorStatus, zorsFFTInitAlloc_R_32f,
        (ZorsFFTSpec_R_32f** ppSpec, int order, int flag, ZorHintAlgorithm hint))
ZORSAPI(ZorStatus, zorsFFTInitAlloc_C_64fc,
        (ZorsFFTSpec_C_64fc** ppSpec, int order, int flag, ZorHintAlgorithm hint))
ZORSAPI(ZorStatus, zorsFFTInitAlloc_C_64f,
        (ZorsFFTSpec_C_64f** ppSpec, int order, int flag, ZorHintAlgorithm hint))
ZORSAPI(ZorStatus, zorsFFTInitAlloc_R_64f,
        (ZorsFFTSpec_R_64f** ppSpec, int order, int flag, ZorHintAlgorithm hint))
ZORSAPI(ZorStatus, zorsFFTInitAlloc_C_32sc,
        (ZorsFFTSpec_C_32sc** ppSpec, int order, int flag, ZorHintAlgorithm hint))
ZORSAPI(ZorStatus, zorsFFTInitAlloc_C_32s,
        (ZorsFFTSpec_C_32s** ppSpec, int order, int flag, ZorHintAlgorithm hint))
ZORSAPI(ZorStatus, zorsFFTInitAlloc_R_32s,
        (ZorsFFTSpec_R_32s** ppSpec, int order, int flag, ZorHintAlgorithm hint))
ZORSAPI(ZorStatus, zorsFFTInitAlloc_R_16s32s,
        (ZorsFFTSpec_R_16s32s** ppSpec, int order, int flag, ZorHintAlgorithm hint))
/** @} */

/** @name Release
 * @{
 */
/**
 * Invalidates a record, and releases its memory where it is the library's.
 * @param pSpec record
 * @return zorStsNullPointer for a null @p pSpec, then zorStsWrongContext for a record of another kind or one in the
 * caller's memory that was released, else zorStsOk. (One of the library's is no longer there to be asked.)
 */
ZORSAPI(ZorStatus, zorsFFTFree_C_16sc, (ZorsFFTSpec_C_16sc* pSpec))
ZORSAPI(ZorStatus, zorsFFTFree_C_16s, (ZorsFFTSpec_C_16s* pSpec))
ZORSAPI(ZorStatus, zorsFFTFree_R_16s, (ZorsFFTSpec_R_16s* pSpec))
ZORSAPI(ZorStatus, zorsFFTFree_C_32fc, (ZorsFFTSpec_C_32fc* pSpec))
ZORSAPI(ZorStatus, zorsFFTFree_C_32f, (ZorsFFTSpec_C_32f* pSpec))
ZORSAPI(ZorStatus, zorsFFTFree_R_32f, (ZorsFFTSpec_R_32f* pSpec))
ZORSAPI(ZorStatus, zorsFFTFree_C_64fc, (ZorsFFTSpec_C_64fc* pSpec))
ZORSAPI(ZorStatus, zorsFFTFree_C_64f, (ZorsFFTSpec_C_64f* pSpec))
ZORSAPI(ZorStatus, zorsFFTFree_R_64f, (ZorsFFTSpec_R_64f* pSpec))
ZORSAPI(ZorStatus, zorsFFTFree_C_32sc, (ZorsFFTSpec_C_32sc* pSpec))
ZORSAPI(ZorStatus, zorsFFTFree_C_32s, (ZorsFFTSpec_C_32s* pSpec))
ZORSAPI(ZorStatus, zorsFFTFree_R_32s, (ZorsFFTSpec_R_32s* pSpec))
ZORSAPI(ZorStatus, zorsFFTFree_R_16s32s, (ZorsFFTSpec_R_16s32s* pSpec))
/** @} */

/** @name Size of the work buffer
 * @{
 */
/**
 * The size of the work buffer that the transforms take, as zorsFFTGetSize tells it.
 * @param pSpec record
 * @param pBufferSize receives the size in bytes; 0 where none is needed
 * @return zorStsNullPointer for a null @p pSpec, then zorStsWrongContext for a record of another kind, then
 * zorStsNullPointer for a null @p pBufferSize, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFFTGetBufSize_C_16sc, (const ZorsFFTSpec_C_16sc* pSpec, int* pBufferSize))
ZORSAPI(ZorStatus, zorsFFTGetBufSize_C_16s, (const ZorsFFTSpec_C_16s* pSpec, int* pBufferSize))
ZORSAPI(ZorStatus, zorsFFTGetBufSize_R_16s, (const ZorsFFTSpec_R_16s* pSpec, int* pBufferSize))
ZORSAPI(ZorStatus, zorsFFTGetBufSize_C_32fc, (const ZorsFFTSpec_C_32fc* pSpec, int* pBufferSize))
ZORSAPI(ZorStatus, zorsFFTGetBufSize_C_32f, (const ZorsFFTSpec_C_32f* pSpec, int* pBufferSize))
ZORSAPI(ZorStatus, zorsFFTGetBufSize_R_32f, (const ZorsFFTSpec_R_32f* pSpec, int* pBufferSize))
ZORSAPI(ZorStatus, zorsFFTGetBufSize_C_64fc, (const ZorsFFTSpec_C_64fc* pSpec, int* pBufferSize))
ZORSAPI(ZorStatus, zorsFFTGetBufSize_C_64f, (const ZorsFFTSpec_C_64f* pSpec, int* pBufferSize))
ZORSAPI(ZorStatus, zorsFFTGetBufSize_R_64f, (const ZorsFFTSpec_R_64f* pSpec, int* pBufferSize))
ZORSAPI(ZorStatus, zorsFFTGetBufSize_C_32sc, (const ZorsFFTSpec_C_32sc* pSpec, int* pBufferSize))
ZORSAPI(ZorStatus, zorsFFTGetBufSize_C_32s, (const ZorsFFTSpec_C_32s* pSpec, int* pBufferSize))
ZORSAPI(ZorStatus, zorsFFTGetBufSize_R_32s, (const ZorsFFTSpec_R_32s* pSpec, int* pBufferSize))
ZORSAPI(ZorStatus, zorsFFTGetBufSize_R_16s32s, (const ZorsFFTSpec_R_16s32s* pSpec, int* pBufferSize))
/** @} */
