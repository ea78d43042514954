/**
 * @file
 * Linear convolution of two vectors, directly or by transforms, and cyclic convolution of 4 and of 8 points.
 *
 * pDst[k] = sum over i of pSrc1[i] * pSrc2[k - i], k = 0 ... src1Len + src2Len - 2, over all i for which both
 * elements exist. The destination must not overlap a source.
 *
 * With n elements in the shorter vector, the sums are formed directly where the destination has fewer than 512
 * elements or n < 64, otherwise by real fast Fourier transforms of blocks. Sums formed directly are of products of
 * the type of the elements, added in that type: an error of at most (n + 2) eps * (sum of the magnitudes of the
 * products), where eps is 2^-24 or 2^-53, and nothing beside the elements of a sum has a part in it. By transforms
 * the error of an output is at most eps log2(4 n) times the root of the sum of squares of the shorter vector, times
 * the same of those elements of the longer one that are less than 8 n away. There, an element that is not finite
 * makes others infinite or not a number. Processors may differ within these bounds.
 *
 * Blocks are as long as is fastest, which is seldom as long as the transforms that the size of a buffer goes by: a
 * long vector is cut into parts, because the tables of a long transform cost more than several short ones.
 */
#include <zortypes.h>

/** @name Linear convolution
 * @{
 */
/**
 * The convolution, with work memory that the call allocates and releases. Direct sums need none.
 * @param pSrc1 first vector
 * @param src1Len number of its elements
 * @param pSrc2 second vector
 * @param src2Len number of its elements
 * @param pDst destination vector of src1Len + src2Len - 1 elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for a length below 1, then, where vectors are
 * transformed, zorStsBadFftOrder for lengths beyond the transforms of zorsConvolveGetBufferSize() and zorStsNoMemory
 * where there is no work memory, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsConv_32f, (const Zor32f* pSrc1, int src1Len, const Zor32f* pSrc2, int src2Len, Zor32f* pDst))
ZORSAPI(ZorStatus, zorsConv_64f, (const Zor64f* pSrc1, int src1Len, const Zor64f* pSrc2, int src2Len, Zor64f* pDst))
/** @} */

/** @name Linear convolution with a scale factor
 * @{
 */
/**
 * The convolution times 2^-scaleFactor, rounded to nearest, ties to even, and saturated.
 *
 * It is computed in double precision. Direct sums are exact. By transforms they are rounded to integers before they
 * are scaled, which makes them exact as long as their error is below a half: for any data where the shorter vector
 * has up to 65536 elements.
 * @param pSrc1 first vector
 * @param src1Len number of its elements
 * @param pSrc2 second vector
 * @param src2Len number of its elements
 * @param pDst destination vector of src1Len + src2Len - 1 elements
 * @param scaleFactor any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for a length below 1, then, where vectors are
 * transformed, zorStsBadFftOrder for lengths beyond the transforms of zorsConvolveGetBufferSize() of `32f` and
 * zorStsNoMemory where there is no work memory, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsConv_16s_Sfs,
        (const Zor16s* pSrc1, int src1Len, const Zor16s* pSrc2, int src2Len, Zor16s* pDst, int scaleFactor))
/** @} */

/** @name Size of the buffer
 * @{
 */
/**
 * The size in bytes of the buffer of a convolution: 64 where sums are formed directly. For transforms, with n and m
 * elements in the shorter and the longer vector, the order of a real transform is ceil(log2(2 n)) + 1 where m >= 3 n,
 * otherwise ceil(log2(n + m - 1)); the size is that of its record, of the memory for its initialisation and of its
 * work buffer, each a multiple of 64, and of two vectors of as many points, and 64 bytes.
 * @param src1Len number of elements of the first vector
 * @param src2Len number of elements of the second vector
 * @param dataType zorDataType32f or zorDataType64f
 * @param algType ZOR_CONV_ALG_AUTO, ZOR_CONV_ALG_DIRECT or ZOR_CONV_ALG_FFT, in its lowest byte; the others are
 * ignored
 * @param pBufferSize receives the size; 0 with zorStsBadDataType and all statuses after it
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for a length below 1, then zorStsBadAlgType for
 * another @p algType, then zorStsBadDataType for another @p dataType, then, of transforms, what
 * zorsFFTGetSize_R_32f() or zorsFFTGetSize_R_64f() returns for the order, then zorStsBadSize where the size passes
 * 2^31 - 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsConvolveGetBufferSize,
        (int src1Len, int src2Len, ZorDataType dataType, ZorConvAlgType algType, int* pBufferSize))
/** @} */

/** @name Linear convolution with a buffer
 * @{
 */
/**
 * The convolution in work memory of the caller. With ZOR_CONV_ALG_AUTO as zorsConv_32f() has it; the other values of
 * @p algType have it direct, or by transforms, whatever the lengths.
 * @param pSrc1 first vector
 * @param src1Len number of its elements
 * @param pSrc2 second vector
 * @param src2Len number of its elements
 * @param pDst destination vector of src1Len + src2Len - 1 elements
 * @param algType the same as in zorsConvolveGetBufferSize()
 * @param pBuffer buffer of the size that zorsConvolveGetBufferSize() reports, at any address
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for a length below 1, then zorStsBadAlgType for
 * another @p algType, then, of transforms, the statuses of zorsConvolveGetBufferSize() for the lengths, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsConvolve_32f,
        (const Zor32f* pSrc1, int src1Len, const Zor32f* pSrc2, int src2Len, Zor32f* pDst, ZorConvAlgType algType,
         Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsConvolve_64f,
        (const Zor64f* pSrc1, int src1Len, const Zor64f* pSrc2, int src2Len, Zor64f* pDst, ZorConvAlgType algType,
         Zor8u* pBuffer))
/** @} */

/** @name Cyclic convolution
 * @{
 */
/**
 * pDst[n] = sum over m of pSrc1[m] * pSrc2[(n - m) mod N], with N = 4 or N = 8 points in each vector. Both sources
 * are read before anything is written: the destination may be either. Products and sums are rounded one by one, in
 * the order of m; all processors give the same bits. Nothing is checked.
 * @param pSrc1 first vector
 * @param pSrc2 second vector
 * @param pDst destination vector
 * @return zorStsOk
 */
ZORSAPI(ZorStatus, zorsConvCyclic4x4_32f32fc, (const Zor32f* pSrc1, const Zor32fc* pSrc2, Zor32fc* pDst))
ZORSAPI(ZorStatus, zorsConvCyclic8x8_32f, (const Zor32f* pSrc1, const Zor32f* pSrc2, Zor32f* pDst))
/** @} */

/** @name Cyclic convolution with a scale factor
 * @{
 */
/**
 * The same of 8 integers: the exact sum times 2^-scaleFactor, rounded to nearest, ties to even, and saturated.
 * Nothing is checked.
 * @param pSrc1 first vector
 * @param pSrc2 second vector
 * @param pDst destination vector
 * @param scaleFactor any value
 * @return zorStsOk
 */
ZORSAPI(ZorStatus, zorsConvCyclic8x8_16s_Sfs, (const Zor16s* pSrc1, const Zor16s* pSrc2, Zor16s* pDst, int scaleFactor))
/** @} */
