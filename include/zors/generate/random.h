/**
 * @file
 * Random numbers, uniform and normal.
 *
 * The generator is a subtract-with-borrow sequence combined with a linear congruence, all in 32-bit words
 * that wrap (after Marsaglia and Zaman, Computers in Physics 8, 117, 1994). One step:
 *
 *     t = x2 - x3 + c;  if the top bit of t is set { t -= 18; c = -1 } else c = 0
 *     x3 = x2;  x2 = x1;  x1 = t
 *     y = 69069 y + 1013904243
 *     r = t + y, read as a signed integer
 *
 * It starts from x1 = seed, x2 = 69069 x1 + 1013904243, x3 = 69069 x2 + 1013904243, c = -1, y = 1131199209.
 * Not for cryptography.
 *
 * A sequence does not depend on how it is cut into calls, nor on the processor; the normal one takes the
 * logarithm from the platform's mathematical library. A record is advanced by every call and may be used by
 * one thread at a time.
 */
#include <zortypes.h>

/** @name Uniform: size of the record
 * @{
 */
/**
 * The size of a record of a uniform generator: 56 bytes for every type. A record may lie at any address that
 * is a multiple of 8.
 * @param pSize receives the number of bytes
 * @return zorStsNullPointer for a null @p pSize, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsRandUniformGetSize_8u, (int* pSize))
ZORSAPI(ZorStatus, zorsRandUniformGetSize_16s, (int* pSize))
ZORSAPI(ZorStatus, zorsRandUniformGetSize_32f, (int* pSize))
/** @} */

/** @name Uniform: start a record
 * @{
 */
/**
 * Builds a record in memory of the caller, at the very address that is given. On a record in use it starts the
 * sequence again; the memory then is the caller's, also that of a record that the library allocated: it goes back
 * by zorsFree.
 * @param pState memory of the reported size
 * @param low smallest value
 * @param high largest value
 * @param seed start of the sequence
 * @return zorStsNullPointer for a null @p pState, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsRandUniformInit_8u,
        (ZorRandUniformState_8u* pState, Zor8u low, Zor8u high, Zor32u seed))
ZORSAPI(ZorStatus, zorsRandUniformInit_16s,
        (ZorRandUniformState_16s* pState, Zor16s low, Zor16s high, Zor32u seed))
ZORSAPI(ZorStatus, zorsRandUniformInit_32f,
        (ZorRandUniformState_32f* pState, Zor32f low, Zor32f high, Zor32u seed))
/** @} */

/** @name Uniform: allocate and start a record
 * @{
 */
/**
 * Allocates a record, to be released by zorsRandUniformFree, and builds it.
 * @param ppState receives the record
 * @param low smallest value
 * @param high largest value
 * @param seed start of the sequence
 * @return zorStsNullPointer for a null @p ppState, then zorStsNoMemory when memory has run out, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsRandUniformInitAlloc_8u,
        (ZorRandUniformState_8u** ppState, Zor8u low, Zor8u high, Zor32u seed))
ZORSAPI(ZorStatus, zorsRandUniformInitAlloc_16s,
        (ZorRandUniformState_16s** ppState, Zor16s low, Zor16s high, Zor32u seed))
ZORSAPI(ZorStatus, zorsRandUniformInitAlloc_32f,
        (ZorRandUniformState_32f** ppState, Zor32f low, Zor32f high, Zor32u seed))
/** @} */

/** @name Uniform: release a record
 * @{
 */
/**
 * Makes a record invalid and releases its memory if the library allocated it.
 * @param pState record
 * @return zorStsNullPointer for a null @p pState, then zorStsWrongContext for a record of another kind, else
 * zorStsOk
 */
ZORSAPI(ZorStatus, zorsRandUniformFree_8u, (ZorRandUniformState_8u* pState))
ZORSAPI(ZorStatus, zorsRandUniformFree_16s, (ZorRandUniformState_16s* pState))
ZORSAPI(ZorStatus, zorsRandUniformFree_32f, (ZorRandUniformState_32f* pState))
/** @} */

/** @name Uniform: numbers
 * @{
 */
/**
 * Random numbers with a uniform distribution over [low, high]: pDst[n] = (low + high) / 2 + (high - low) *
 * 2.3283064365387e-10 * r, formed in double precision. `32f` rounds it to single precision; integers round it
 * to the nearest, ties to even.
 * @param pDst destination vector
 * @param len number of elements
 * @param pState record
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, then
 * zorStsWrongContext for a record of another kind, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsRandUniform_8u, (Zor8u* pDst, int len, ZorRandUniformState_8u* pState))
ZORSAPI(ZorStatus, zorsRandUniform_16s, (Zor16s* pDst, int len, ZorRandUniformState_16s* pState))
ZORSAPI(ZorStatus, zorsRandUniform_32f, (Zor32f* pDst, int len, ZorRandUniformState_32f* pState))
/** @} */

/** @name Uniform: numbers without a record
 * @{
 */
/**
 * The first numbers of the sequence that starts from a seed, as a record would give them. The last
 * subtract-with-borrow word x1 is left as the seed of the next call.
 * @param pDst destination vector
 * @param len number of elements
 * @param low smallest value
 * @param high largest value
 * @param pSeed start of the sequence; receives the next one
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsRandUniform_Direct_16s,
        (Zor16s* pDst, int len, Zor16s low, Zor16s high, Zor32u* pSeed))
ZORSAPI(ZorStatus, zorsRandUniform_Direct_32f,
        (Zor32f* pDst, int len, Zor32f low, Zor32f high, Zor32u* pSeed))
ZORSAPI(ZorStatus, zorsRandUniform_Direct_64f,
        (Zor64f* pDst, int len, Zor64f low, Zor64f high, Zor32u* pSeed))
/** @} */

/** @name Gauss: size of the record
 * @{
 */
/**
 * The size of a record of a normal generator: 64 bytes for `8u` and `16s`, 72 for `32f`. A record may lie at
 * any address that is a multiple of 8.
 * @param pSize receives the number of bytes
 * @return zorStsNullPointer for a null @p pSize, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsRandGaussGetSize_8u, (int* pSize))
ZORSAPI(ZorStatus, zorsRandGaussGetSize_16s, (int* pSize))
ZORSAPI(ZorStatus, zorsRandGaussGetSize_32f, (int* pSize))
/** @} */

/** @name Gauss: start a record
 * @{
 */
/**
 * Builds a record in memory of the caller, at the very address that is given. On a record in use it starts the
 * sequence again; the memory then is the caller's, also that of a record that the library allocated: it goes back
 * by zorsFree.
 * @param pState memory of the reported size
 * @param mean mean
 * @param stdDev standard deviation
 * @param seed start of the sequence
 * @return zorStsNullPointer for a null @p pState, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsRandGaussInit_8u,
        (ZorRandGaussState_8u* pState, Zor8u mean, Zor8u stdDev, Zor32u seed))
ZORSAPI(ZorStatus, zorsRandGaussInit_16s,
        (ZorRandGaussState_16s* pState, Zor16s mean, Zor16s stdDev, Zor32u seed))
ZORSAPI(ZorStatus, zorsRandGaussInit_32f,
        (ZorRandGaussState_32f* pState, Zor32f mean, Zor32f stdDev, Zor32u seed))
/** @} */

/** @name Gauss: allocate and start a record
 * @{
 */
/**
 * Allocates a record, to be released by zorsRandGaussFree, and builds it.
 * @param ppState receives the record
 * @param mean mean
 * @param stdDev standard deviation
 * @param seed start of the sequence
 * @return zorStsNullPointer for a null @p ppState, then zorStsNoMemory when memory has run out, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsRandGaussInitAlloc_8u,
        (ZorRandGaussState_8u** ppState, Zor8u mean, Zor8u stdDev, Zor32u seed))
ZORSAPI(ZorStatus, zorsRandGaussInitAlloc_16s,
        (ZorRandGaussState_16s** ppState, Zor16s mean, Zor16s stdDev, Zor32u seed))
ZORSAPI(ZorStatus, zorsRandGaussInitAlloc_32f,
        (ZorRandGaussState_32f** ppState, Zor32f mean, Zor32f stdDev, Zor32u seed))
/** @} */

/** @name Gauss: release a record
 * @{
 */
/**
 * Makes a record invalid and releases its memory if the library allocated it.
 * @param pState record
 * @return zorStsNullPointer for a null @p pState, then zorStsWrongContext for a record of another kind, else
 * zorStsOk
 */
ZORSAPI(ZorStatus, zorsRandGaussFree_8u, (ZorRandGaussState_8u* pState))
ZORSAPI(ZorStatus, zorsRandGaussFree_16s, (ZorRandGaussState_16s* pState))
ZORSAPI(ZorStatus, zorsRandGaussFree_32f, (ZorRandGaussState_32f* pState))
/** @} */

/** @name Gauss: numbers
 * @{
 */
/**
 * Random numbers with a normal distribution, by the polar method (Marsaglia and Bray, SIAM Review 6, 260,
 * 1964) in double precision: two steps give u1 = r1 * 4.656612873077e-10 and u2 likewise, drawn again unless
 * 0 < s = u1^2 + u2^2 < 1; then with f = sqrt(-2 ln(s) / s) the next two numbers are u2 (stdDev f) + mean and
 * u1 (stdDev f) + mean. `32f` rounds to single precision; integers round to nearest, ties to even, and
 * saturate.
 * @param pDst destination vector
 * @param len number of elements
 * @param pState record
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, then
 * zorStsWrongContext for a record of another kind, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsRandGauss_8u, (Zor8u* pDst, int len, ZorRandGaussState_8u* pState))
ZORSAPI(ZorStatus, zorsRandGauss_16s, (Zor16s* pDst, int len, ZorRandGaussState_16s* pState))
ZORSAPI(ZorStatus, zorsRandGauss_32f, (Zor32f* pDst, int len, ZorRandGaussState_32f* pState))
/** @} */

/** @name Gauss: numbers without a record
 * @{
 */
/**
 * The first numbers of the sequence that starts from a seed, as a record would give them. The last
 * subtract-with-borrow word x1 is left as the seed of the next call; a number left over of the last pair is
 * dropped.
 * @param pDst destination vector
 * @param len number of elements
 * @param mean mean
 * @param stdDev standard deviation
 * @param pSeed start of the sequence; receives the next one
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsRandGauss_Direct_16s,
        (Zor16s* pDst, int len, Zor16s mean, Zor16s stdDev, Zor32u* pSeed))
ZORSAPI(ZorStatus, zorsRandGauss_Direct_32f,
        (Zor32f* pDst, int len, Zor32f mean, Zor32f stdDev, Zor32u* pSeed))
ZORSAPI(ZorStatus, zorsRandGauss_Direct_64f,
        (Zor64f* pDst, int len, Zor64f mean, Zor64f stdDev, Zor32u* pSeed))
/** @} */
