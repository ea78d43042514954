/**
 * @file
 * Records of discrete Fourier transforms of any length: their sizes, and how they are made and released.
 *
 * A record is read-only once it is made: any number of threads may use one at a time, each with a work buffer of its
 * own. There is one kind for each type of data: complex in pairs (`C_32fc`, `C_64fc`, `C_16sc`), complex in two
 * arrays (`C_32f`, `C_64f`, `C_16s`) and real (`R_32f`, `R_64f`, `R_16s`), and two of pairs for transforms out of
 * order. The 16-bit kinds compute in single precision. A length is taken by one of these methods:
 *
 * | length N | method |
 * |---|---|
 * | to 16 | in registers; neither work buffer nor initialisation memory is needed |
 * | a power of two | the fast Fourier transform, with its bits |
 * | a product of small factors | passes of mixed radices |
 * | a prime to 50 (double precision: 90) | sums of products |
 * | any other below 2^26 (2^25) | convolution with a chirp |
 *
 * Small factors: when fours, then a two, then odd divisors d in ascending order, d^2 at most what is left, are taken
 * out of N, at least one is found, none is needed beyond 50 (90), and what is left is at most 50 (90), or 150 where N
 * is a multiple of four. The largest length of the second method is that of the kind's fast transform, that of the
 * third 2^27 - 1 (2^26 - 1).
 */
#include <zortypes.h>

/** @name Sizes
 * @{
 */
/**
 * The sizes in bytes of what a record needs. Each that is not 0 has room for aligning it to 64 bytes, so memory at
 * any address will do. To 16 points the record takes 832 bytes and nothing else is needed.
 * @param length number of points N, at least 1
 * @param flag one of ZOR_FFT_SCALE_FWD, ZOR_FFT_SCALE_INV, ZOR_FFT_SCALE_SQRT, ZOR_FFT_SCALE_NONE
 * @param hint kept in the record; any value, without influence on results
 * @param pSpecSize receives the size of the record
 * @param pInitSize receives the size of the memory that only the initialisation needs; 0 where it needs none
 * @param pBufferSize receives the size of the work buffer; 0 where a transform needs none
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p length below 1, then zorStsBadFftFlag for
 * an unknown @p flag, then zorStsBadSize for a length without a method or with a size beyond 2^31 - 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsDFTGetSize_C_16sc,
        (int length, int flag, ZorHintAlgorithm hint, int* pSpecSize, int* pInitSize, int* pBufferSize))
ZORSAPI(ZorStatus, zorsDFTGetSize_C_16s,
        (int length, int flag, ZorHintAlgorithm hint, int* pSpecSize, int* pInitSize, int* pBufferSize))
ZORSAPI(ZorStatus, zorsDFTGetSize_R_16s,
        (int length, int flag, ZorHintAlgorithm hint, int* pSpecSize, int* pInitSize, int* pBufferSize))
ZORSAPI(ZorStatus, zorsDFTGetSize_C_32fc,
        (int length, int flag, ZorHintAlgorithm hint, int* pSpecSize, int* pInitSize, int* pBufferSize))
ZORSAPI(ZorStatus, zorsDFTGetSize_C_32f,
        (int length, int flag, ZorHintAlgorithm hint, int* pSpecSize, int* pInitSize, int* pBufferSize))
ZORSAPI(ZorStatus, zorsDFTGetSize_R_32f,
        (int length, int flag, ZorHintAlgorithm hint, int* pSpecSize, int* pInitSize, int* pBufferSize))
ZORSAPI(ZorStatus, zorsDFTGetSize_C_64fc,
        (int length, int flag, ZorHintAlgorithm hint, int* pSpecSize, int* pInitSize, int* pBufferSize))
ZORSAPI(ZorStatus, zorsDFTGetSize_C_64f,
        (int length, int flag, ZorHintAlgorithm hint, int* pSpecSize, int* pInitSize, int* pBufferSize))
ZORSAPI(ZorStatus, zorsDFTGetSize_R_64f,
        (int length, int flag, ZorHintAlgorithm hint, int* pSpecSize, int* pInitSize, int* pBufferSize))
/** @} */

/** @name Initialisation in the caller's memory
 * @{
 */
/**
 * Makes a record in memory of the caller, at its first address that is a multiple of 64. The record points into
 * itself and must not be moved.
 * @param ppSpec receives the record
 * @param length number of points N, at least 1
 * @param flag one of ZOR_FFT_SCALE_FWD, ZOR_FFT_SCALE_INV, ZOR_FFT_SCALE_SQRT, ZOR_FFT_SCALE_NONE
 * @param hint kept in the record; any value, without influence on results
 * @param pSpecMemory memory of the size that zorsDFTGetSize tells, for as long as the record is used
 * @param pInitMemory memory for the time of this call; null where its size is 0
 * @return zorStsNullPointer for a null @p ppSpec or @p pSpecMemory, then zorStsBadSize for @p length below 1, then
 * zorStsBadFftFlag for an unknown @p flag, then zorStsBadSize as zorsDFTGetSize, then zorStsNullPointer for a null
 * @p pInitMemory that is needed, else zorStsOk; after an error nothing is written
 */
ZORSAPI(ZorStatus, zorsDFTInit_C_16sc,
        (ZorsDFTSpec_C_16sc** ppSpec, int length, int flag, ZorHintAlgorithm hint, Zor8u* pSpecMemory,
         Zor8u* pInitMemory))
ZORSAPI(ZorStatus, zorsDFTInit_C_16s,
        (ZorsDFTSpec_C_16s** ppSpec, int length, int flag, ZorHintAlgorithm hint, Zor8u* pSpecMemory,
         Zor8u* pInitMemory))
ZORSAPI(ZorStatus, zorsDFTInit_R_16s,
        (ZorsDFTSpec_R_16s** ppSpec, int length, int flag, ZorHintAlgorithm hint, Zor8u* pSpecMemory,
         Zor8u* pInitMemory))
ZORSAPI(ZorStatus, zorsDFTInit_C_32fc,
        (ZorsDFTSpec_C_32fc** ppSpec, int length, int flag, ZorHintAlgorithm hint, Zor8u* pSpecMemory,
         Zor8u* pInitMemory))
ZORSAPI(ZorStatus, zorsDFTInit_C_32f,
        (ZorsDFTSpec_C_32f** ppSpec, int length, int flag, ZorHintAlgorithm hint, Zor8u* pSpecMemory,
         Zor8u* pInitMemory))
ZORSAPI(ZorStatus, zorsDFTInit_R_32f,
        (ZorsDFTSpec_R_32f** ppSpec, int length, int flag, ZorHintAlgorithm hint, Zor8u* pSpecMemory,
         Zor8u* pInitMemory))
ZORSAPI(ZorStatus, zorsDFTInit_C_64fc,
        (ZorsDFTSpec_C_64fc** ppSpec, int length, int flag, ZorHintAlgorithm hint, Zor8u* pSpecMemory,
         Zor8u* pInitMemory))
ZORSAPI(ZorStatus, zorsDFTInit_C_64f,
        (ZorsDFTSpec_C_64f** ppSpec, int length, int flag, ZorHintAlgorithm hint, Zor8u* pSpecMemory,
         Zor8u* pInitMemory))
ZORSAPI(ZorStatus, zorsDFTInit_R_64f,
        (ZorsDFTSpec_R_64f** ppSpec, int length, int flag, ZorHintAlgorithm hint, Zor8u* pSpecMemory,
         Zor8u* pInitMemory))
/** @} */

/** @name Allocation and initialisation
 * @{
 */
/**
 * Makes a record in memory of the library, to be released by zorsDFTFree.
 * @param ppSpec receives the record; unchanged after an error
 * @param length number of points N, at least 1
 * @param flag one of ZOR_FFT_SCALE_FWD, ZOR_FFT_SCALE_INV, ZOR_FFT_SCALE_SQRT, ZOR_FFT_SCALE_NONE
 * @param hint kept in the record; any value, without influence on results
 * @return zorStsNullPointer for a null @p ppSpec, then zorStsBadSize and zorStsBadFftFlag as zorsDFTGetSize, then
 * zorStsNoMemory where an allocation fails, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsDFTInitAlloc_C_16sc,
        (ZorsDFTSpec_C_16sc** ppSpec, int length, int flag, ZorHintAlgorithm hint))
ZORSAPI(ZorStatus, zorsDFTInitAlloc_C_16s,
        (ZorsDFTSpec_C_16s** ppSpec, int length, int flag, ZorHintAlgorithm hint))
ZORSAPI(ZorStatus, zorsDFTInitAlloc_R_16s,
        (ZorsDFTSpec_R_16s** ppSpec, int length, int flag, ZorHintAlgorithm hint))
ZORSAPI(ZorStatus, zorsDFTInitAlloc_C_32fc,
        (ZorsDFTSpec_C_32fc** ppSpec, int length, int flag, ZorHintAlgorithm hint))
ZORSAPI(ZorStatus, zorsDFTInitAlloc_C_32f,
        (ZorsDFTSpec_C_32f** ppSpec, int length, int flag, ZorHintAlgorithm hint))
ZORSAPI(ZorStatus, zorsDFTInitAlloc_R_32f,
        (ZorsDFTSpec_R_32f** ppSpec, int length, int flag, ZorHintAlgorithm hint))
ZORSAPI(ZorStatus, zorsDFTInitAlloc_C_64fc,
        (ZorsDFTSpec_C_64fc** ppSpec, int length, int flag, ZorHintAlgorithm hint))
ZORSAPI(ZorStatus, zorsDFTInitAlloc_C_64f,
        (ZorsDFTSpec_C_64f** ppSpec, int length, int flag, ZorHintAlgorithm hint))
ZORSAPI(ZorStatus, zorsDFTInitAlloc_R_64f,
        (ZorsDFTSpec_R_64f** ppSpec, int length, int flag, ZorHintAlgorithm hint))
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
ZORSAPI(ZorStatus, zorsDFTFree_C_16sc, (ZorsDFTSpec_C_16sc* pSpec))
ZORSAPI(ZorStatus, zorsDFTFree_C_16s, (ZorsDFTSpec_C_16s* pSpec))
ZORSAPI(ZorStatus, zorsDFTFree_R_16s, (ZorsDFTSpec_R_16s* pSpec))
ZORSAPI(ZorStatus, zorsDFTFree_C_32fc, (ZorsDFTSpec_C_32fc* pSpec))
ZORSAPI(ZorStatus, zorsDFTFree_C_32f, (ZorsDFTSpec_C_32f* pSpec))
ZORSAPI(ZorStatus, zorsDFTFree_R_32f, (ZorsDFTSpec_R_32f* pSpec))
ZORSAPI(ZorStatus, zorsDFTFree_C_64fc, (ZorsDFTSpec_C_64fc* pSpec))
ZORSAPI(ZorStatus, zorsDFTFree_C_64f, (ZorsDFTSpec_C_64f* pSpec))
ZORSAPI(ZorStatus, zorsDFTFree_R_64f, (ZorsDFTSpec_R_64f* pSpec))
/** @} */

/** @name Size of the work buffer
 * @{
 */
/**
 * The size of the work buffer that the transforms take, as zorsDFTGetSize tells it.
 * @param pSpec record
 * @param pBufferSize receives the size in bytes; 0 where none is needed
 * @return zorStsNullPointer for a null @p pSpec, then zorStsWrongContext for a record of another kind, then
 * zorStsNullPointer for a null @p pBufferSize, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsDFTGetBufSize_C_16sc, (const ZorsDFTSpec_C_16sc* pSpec, int* pBufferSize))
ZORSAPI(ZorStatus, zorsDFTGetBufSize_C_16s, (const ZorsDFTSpec_C_16s* pSpec, int* pBufferSize))
ZORSAPI(ZorStatus, zorsDFTGetBufSize_R_16s, (const ZorsDFTSpec_R_16s* pSpec, int* pBufferSize))
ZORSAPI(ZorStatus, zorsDFTGetBufSize_C_32fc, (const ZorsDFTSpec_C_32fc* pSpec, int* pBufferSize))
ZORSAPI(ZorStatus, zorsDFTGetBufSize_C_32f, (const ZorsDFTSpec_C_32f* pSpec, int* pBufferSize))
ZORSAPI(ZorStatus, zorsDFTGetBufSize_R_32f, (const ZorsDFTSpec_R_32f* pSpec, int* pBufferSize))
ZORSAPI(ZorStatus, zorsDFTGetBufSize_C_64fc, (const ZorsDFTSpec_C_64fc* pSpec, int* pBufferSize))
ZORSAPI(ZorStatus, zorsDFTGetBufSize_C_64f, (const ZorsDFTSpec_C_64f* pSpec, int* pBufferSize))
ZORSAPI(ZorStatus, zorsDFTGetBufSize_R_64f, (const ZorsDFTSpec_R_64f* pSpec, int* pBufferSize))
/** @} */
