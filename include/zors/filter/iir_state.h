/**
 * @file
 * Records of infinite impulse response filters: their sizes, how they are made and released, taps and delay lines.
 *
 * A filter has the response H(z) = (b0 + b1 z^-1 + ... + bN z^-N) / (a0 + a1 z^-1 + ... + aN z^-N), in one of two
 * structures: one section of any order N, whose taps are the 2 N + 2 numbers b0 ... bN, a0 ... aN; or, in functions
 * named BiQuad, a cascade of sections of the second order, whose taps are six numbers each, b0, b1, b2, a0, a1, a2,
 * the first section's first. The types in a name are the taps' and the data's: `zorsIIRInit64f_BiQuad_16s` filters
 * `Zor16s` data by sections with `Zor64f` taps; a single type is both.
 *
 * | Taps, data | arithmetic |
 * |---|---|
 * | `_32f`, `32f_16s`, `32s_16s` | `Zor32f` |
 * | `_32fc`, `32fc_16sc`, `32sc_16sc` (sections only) | `Zor32fc` |
 * | `_64f`, `64f_32f`, `64f_32s` (any order only), `64f_16s` | `Zor64f` |
 * | `_64fc`, `64fc_32fc`, `64fc_32sc`, `64fc_16sc` | `Zor64fc` |
 *
 * Integer taps stand for pTaps * 2^-tapsFactor, rounded to the arithmetic's type; the forms `16s32f` and `16sc32fc`
 * are other names of `32s_16s` and `32sc_16sc`.
 *
 * Taps are divided by a0 when they are set: those of any order are multiplied by 1/a0, which is rounded, those of a
 * section are quotients. A cascade is refused where b0 of a section is zero.
 *
 * A delay line holds numbers of the arithmetic's type, whatever the data. Of a filter of order N it holds the N
 * numbers d[0] ... d[N-1] of the transposed direct form II, which computes
 *
 *     y = b0 x + d[0];  d[k] = b[k+1] x - a[k+1] y + d[k+1], k = 0 ... N-1, with d[N] = 0;
 *
 * of a cascade the two of each section, the first section's first; of a cascade in direct form 1, whose sections
 * compute y[n] = b0 x[n] + b1 x[n-1] + b2 x[n-2] - a1 y[n-1] - a2 y[n-2], the four x[n-1], x[n-2], y[n-1], y[n-2] of
 * each. Zeros are a filter at rest.
 *
 * A record is changed by every call that filters, so one record serves one stream, and one thread at a time.
 */
#include <zortypes.h>

/** @name Size of a record, of any order
 * @{
 */
/**
 * The size in bytes of the memory that a record needs. It has room for aligning the record, so memory at any address
 * will do.
 * @param order order N of the filter; filters with integer taps may have order 0
 * @param pStateSize receives the size
 * @return zorStsNullPointer for a null @p pStateSize, then zorStsBadIirOrder for @p order below 1 (of integer taps:
 * below 0), then zorStsBadSize for a size above 2^31 - 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsIIRGetStateSize_32f, (int order, int* pStateSize))
ZORSAPI(ZorStatus, zorsIIRGetStateSize_32fc, (int order, int* pStateSize))
ZORSAPI(ZorStatus, zorsIIRGetStateSize32f_16s, (int order, int* pStateSize))
ZORSAPI(ZorStatus, zorsIIRGetStateSize32fc_16sc, (int order, int* pStateSize))
ZORSAPI(ZorStatus, zorsIIRGetStateSize32s_16s, (int order, int* pStateSize))
ZORSAPI(ZorStatus, zorsIIRGetStateSize32s_16s32f, (int order, int* pStateSize))
ZORSAPI(ZorStatus, zorsIIRGetStateSize_64f, (int order, int* pStateSize))
ZORSAPI(ZorStatus, zorsIIRGetStateSize_64fc, (int order, int* pStateSize))
ZORSAPI(ZorStatus, zorsIIRGetStateSize64f_32f, (int order, int* pStateSize))
ZORSAPI(ZorStatus, zorsIIRGetStateSize64fc_32fc, (int order, int* pStateSize))
ZORSAPI(ZorStatus, zorsIIRGetStateSize64f_32s, (int order, int* pStateSize))
ZORSAPI(ZorStatus, zorsIIRGetStateSize64fc_32sc, (int order, int* pStateSize))
ZORSAPI(ZorStatus, zorsIIRGetStateSize64f_16s, (int order, int* pStateSize))
ZORSAPI(ZorStatus, zorsIIRGetStateSize64fc_16sc, (int order, int* pStateSize))
/** @} */

/** @name Size of a record, of sections
 * @{
 */
/**
 * The size in bytes of the memory that a record needs. It has room for aligning the record, so memory at any address
 * will do.
 * @param numBq number of sections
 * @param pStateSize receives the size
 * @return zorStsNullPointer for a null @p pStateSize, then zorStsBadIirOrder for @p numBq below 1, then zorStsBadSize
 * for a size above 2^31 - 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsIIRGetStateSize_BiQuad_32f, (int numBq, int* pStateSize))
ZORSAPI(ZorStatus, zorsIIRGetStateSize_BiQuad_32fc, (int numBq, int* pStateSize))
ZORSAPI(ZorStatus, zorsIIRGetStateSize32f_BiQuad_16s, (int numBq, int* pStateSize))
ZORSAPI(ZorStatus, zorsIIRGetStateSize32fc_BiQuad_16sc, (int numBq, int* pStateSize))
ZORSAPI(ZorStatus, zorsIIRGetStateSize32s_BiQuad_16s, (int numBq, int* pStateSize))
ZORSAPI(ZorStatus, zorsIIRGetStateSize32s_BiQuad_16s32f, (int numBq, int* pStateSize))
ZORSAPI(ZorStatus, zorsIIRGetStateSize32sc_BiQuad_16sc, (int numBq, int* pStateSize))
ZORSAPI(ZorStatus, zorsIIRGetStateSize32sc_BiQuad_16sc32fc, (int numBq, int* pStateSize))
ZORSAPI(ZorStatus, zorsIIRGetStateSize_BiQuad_64f, (int numBq, int* pStateSize))
ZORSAPI(ZorStatus, zorsIIRGetStateSize_BiQuad_64fc, (int numBq, int* pStateSize))
ZORSAPI(ZorStatus, zorsIIRGetStateSize64f_BiQuad_32f, (int numBq, int* pStateSize))
ZORSAPI(ZorStatus, zorsIIRGetStateSize64fc_BiQuad_32fc, (int numBq, int* pStateSize))
ZORSAPI(ZorStatus, zorsIIRGetStateSize64fc_BiQuad_32sc, (int numBq, int* pStateSize))
ZORSAPI(ZorStatus, zorsIIRGetStateSize64f_BiQuad_16s, (int numBq, int* pStateSize))
ZORSAPI(ZorStatus, zorsIIRGetStateSize64fc_BiQuad_16sc, (int numBq, int* pStateSize))
ZORSAPI(ZorStatus, zorsIIRGetStateSize_BiQuad_DF1_32f, (int numBq, int* pStateSize))
/** @} */

/** @name Initialisation in the caller's memory, of any order
 * @{
 */
/**
 * Makes a record in memory of the caller. The record points into itself and must not be moved.
 * @param ppState receives the record; unchanged after an error
 * @param pTaps taps
 * @param order order N of the filter; filters with integer taps may have order 0
 * @param pDlyLine delay line to begin with, or null for zeros
 * @param pBuffer memory of the size that zorsIIRGetStateSize tells, for as long as the record is used; unchanged
 * after an error
 * @return zorStsNullPointer for a null @p ppState, @p pTaps or @p pBuffer, then zorStsBadIirOrder for @p order below
 * 1 (of integer taps: below 0), then zorStsBadSize where the size is above 2^31 - 1, then zorStsNoMemory where
 * integer taps find no memory to be converted in, then zorStsDivByZeroError where a0, or b0 of a section, is zero (of
 * integer taps when converted), else zorStsOk
 */
ZORSAPI(ZorStatus, zorsIIRInit_32f,
        (ZorsIIRState_32f** ppState, const Zor32f* pTaps, int order, const Zor32f* pDlyLine, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsIIRInit_32fc,
        (ZorsIIRState_32fc** ppState, const Zor32fc* pTaps, int order, const Zor32fc* pDlyLine,
         Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsIIRInit32f_16s,
        (ZorsIIRState32f_16s** ppState, const Zor32f* pTaps, int order, const Zor32f* pDlyLine,
         Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsIIRInit32fc_16sc,
        (ZorsIIRState32fc_16sc** ppState, const Zor32fc* pTaps, int order, const Zor32fc* pDlyLine,
         Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsIIRInit_64f,
        (ZorsIIRState_64f** ppState, const Zor64f* pTaps, int order, const Zor64f* pDlyLine, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsIIRInit_64fc,
        (ZorsIIRState_64fc** ppState, const Zor64fc* pTaps, int order, const Zor64fc* pDlyLine,
         Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsIIRInit64f_32f,
        (ZorsIIRState64f_32f** ppState, const Zor64f* pTaps, int order, const Zor64f* pDlyLine,
         Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsIIRInit64fc_32fc,
        (ZorsIIRState64fc_32fc** ppState, const Zor64fc* pTaps, int order, const Zor64fc* pDlyLine,
         Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsIIRInit64f_32s,
        (ZorsIIRState64f_32s** ppState, const Zor64f* pTaps, int order, const Zor64f* pDlyLine,
         Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsIIRInit64fc_32sc,
        (ZorsIIRState64fc_32sc** ppState, const Zor64fc* pTaps, int order, const Zor64fc* pDlyLine,
         Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsIIRInit64f_16s,
        (ZorsIIRState64f_16s** ppState, const Zor64f* pTaps, int order, const Zor64f* pDlyLine,
         Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsIIRInit64fc_16sc,
        (ZorsIIRState64fc_16sc** ppState, const Zor64fc* pTaps, int order, const Zor64fc* pDlyLine,
         Zor8u* pBuffer))
/** @} */

/** @name Initialisation in the caller's memory, of any order, of integer taps
 * @{
 */
/**
 * Makes a record in memory of the caller. The record points into itself and must not be moved.
 * @param ppState receives the record; unchanged after an error
 * @param pTaps taps
 * @param order order N of the filter; filters with integer taps may have order 0
 * @param tapsFactor integer taps stand for pTaps * 2^-tapsFactor
 * @param pDlyLine delay line to begin with, or null for zeros
 * @param pBuffer memory of the size that zorsIIRGetStateSize tells, for as long as the record is used; unchanged
 * after an error
 * @return zorStsNullPointer for a null @p ppState, @p pTaps or @p pBuffer, then zorStsBadIirOrder for @p order below
 * 1 (of integer taps: below 0), then zorStsBadSize where the size is above 2^31 - 1, then zorStsNoMemory where
 * integer taps find no memory to be converted in, then zorStsDivByZeroError where a0, or b0 of a section, is zero (of
 * integer taps when converted), else zorStsOk
 */
ZORSAPI(ZorStatus, zorsIIRInit32s_16s,
        (ZorsIIRState32s_16s** ppState, const Zor32s* pTaps, int order, int tapsFactor,
         const Zor32f* pDlyLine, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsIIRInit32s_16s32f,
        (ZorsIIRState32s_16s** ppState, const Zor32s* pTaps, int order, int tapsFactor,
         const Zor32f* pDlyLine, Zor8u* pBuffer))
/** @} */

/** @name Initialisation in the caller's memory, of sections
 * @{
 */
/**
 * Makes a record in memory of the caller. The record points into itself and must not be moved.
 * @param ppState receives the record; unchanged after an error
 * @param pTaps taps
 * @param numBq number of sections
 * @param pDlyLine delay line to begin with, or null for zeros
 * @param pBuffer memory of the size that zorsIIRGetStateSize tells, for as long as the record is used; unchanged
 * after an error
 * @return zorStsNullPointer for a null @p ppState, @p pTaps or @p pBuffer, then zorStsBadIirOrder for @p numBq below
 * 1, then zorStsBadSize where the size is above 2^31 - 1, then zorStsNoMemory where integer taps find no memory to be
 * converted in, then zorStsDivByZeroError where a0, or b0 of a section, is zero (of integer taps when converted),
 * else zorStsOk
 */
ZORSAPI(ZorStatus, zorsIIRInit_BiQuad_32f,
        (ZorsIIRState_32f** ppState, const Zor32f* pTaps, int numBq, const Zor32f* pDlyLine, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsIIRInit_BiQuad_32fc,
        (ZorsIIRState_32fc** ppState, const Zor32fc* pTaps, int numBq, const Zor32fc* pDlyLine,
         Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsIIRInit32f_BiQuad_16s,
        (ZorsIIRState32f_16s** ppState, const Zor32f* pTaps, int numBq, const Zor32f* pDlyLine,
         Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsIIRInit32fc_BiQuad_16sc,
        (ZorsIIRState32fc_16sc** ppState, const Zor32fc* pTaps, int numBq, const Zor32fc* pDlyLine,
         Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsIIRInit_BiQuad_64f,
        (ZorsIIRState_64f** ppState, const Zor64f* pTaps, int numBq, const Zor64f* pDlyLine, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsIIRInit_BiQuad_64fc,
        (ZorsIIRState_64fc** ppState, const Zor64fc* pTaps, int numBq, const Zor64fc* pDlyLine,
         Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsIIRInit64f_BiQuad_32f,
        (ZorsIIRState64f_32f** ppState, const Zor64f* pTaps, int numBq, const Zor64f* pDlyLine,
         Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsIIRInit64fc_BiQuad_32fc,
        (ZorsIIRState64fc_32fc** ppState, const Zor64fc* pTaps, int numBq, const Zor64fc* pDlyLine,
         Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsIIRInit64fc_BiQuad_32sc,
        (ZorsIIRState64fc_32sc** ppState, const Zor64fc* pTaps, int numBq, const Zor64fc* pDlyLine,
         Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsIIRInit64f_BiQuad_16s,
        (ZorsIIRState64f_16s** ppState, const Zor64f* pTaps, int numBq, const Zor64f* pDlyLine,
         Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsIIRInit64fc_BiQuad_16sc,
        (ZorsIIRState64fc_16sc** ppState, const Zor64fc* pTaps, int numBq, const Zor64fc* pDlyLine,
         Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsIIRInit_BiQuad_DF1_32f,
        (ZorsIIRState_32f** ppState, const Zor32f* pTaps, int numBq, const Zor32f* pDlyLine, Zor8u* pBuffer))
/** @} */

/** @name Initialisation in the caller's memory, of sections, of integer taps
 * @{
 */
/**
 * Makes a record in memory of the caller. The record points into itself and must not be moved.
 * @param ppState receives the record; unchanged after an error
 * @param pTaps taps
 * @param numBq number of sections
 * @param tapsFactor integer taps stand for pTaps * 2^-tapsFactor
 * @param pDlyLine delay line to begin with, or null for zeros
 * @param pBuffer memory of the size that zorsIIRGetStateSize tells, for as long as the record is used; unchanged
 * after an error
 * @return zorStsNullPointer for a null @p ppState, @p pTaps or @p pBuffer, then zorStsBadIirOrder for @p numBq below
 * 1, then zorStsBadSize where the size is above 2^31 - 1, then zorStsNoMemory where integer taps find no memory to be
 * converted in, then zorStsDivByZeroError where a0, or b0 of a section, is zero (of integer taps when converted),
 * else zorStsOk
 */
ZORSAPI(ZorStatus, zorsIIRInit32s_BiQuad_16s,
        (ZorsIIRState32s_16s** ppState, const Zor32s* pTaps, int numBq, int tapsFactor,
         const Zor32f* pDlyLine, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsIIRInit32s_BiQuad_16s32f,
        (ZorsIIRState32s_16s** ppState, const Zor32s* pTaps, int numBq, int tapsFactor,
         const Zor32f* pDlyLine, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsIIRInit32sc_BiQuad_16sc,
        (ZorsIIRState32sc_16sc** ppState, const Zor32sc* pTaps, int numBq, int tapsFactor,
         const Zor32fc* pDlyLine, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsIIRInit32sc_BiQuad_16sc32fc,
        (ZorsIIRState32sc_16sc** ppState, const Zor32sc* pTaps, int numBq, int tapsFactor,
         const Zor32fc* pDlyLine, Zor8u* pBuffer))
/** @} */

/** @name Allocation and initialisation, of any order
 * @{
 */
/**
 * Makes a record in memory of the library, to be released by zorsIIRFree.
 * @param ppState receives the record; unchanged after an error
 * @param pTaps taps
 * @param order order N of the filter; filters with integer taps may have order 0
 * @param pDlyLine delay line to begin with, or null for zeros
 * @return zorStsNullPointer for a null @p ppState or @p pTaps, then zorStsBadIirOrder for @p order below 1 (of
 * integer taps: below 0), then zorStsBadSize where the size is above 2^31 - 1, then zorStsNoMemory where integer taps
 * find no memory to be converted in, then zorStsDivByZeroError where a0, or b0 of a section, is zero (of integer taps
 * when converted), then zorStsNoMemory where there is no memory for the record, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsIIRInitAlloc_32f,
        (ZorsIIRState_32f** ppState, const Zor32f* pTaps, int order, const Zor32f* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRInitAlloc_32fc,
        (ZorsIIRState_32fc** ppState, const Zor32fc* pTaps, int order, const Zor32fc* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRInitAlloc32f_16s,
        (ZorsIIRState32f_16s** ppState, const Zor32f* pTaps, int order, const Zor32f* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRInitAlloc32fc_16sc,
        (ZorsIIRState32fc_16sc** ppState, const Zor32fc* pTaps, int order, const Zor32fc* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRInitAlloc_64f,
        (ZorsIIRState_64f** ppState, const Zor64f* pTaps, int order, const Zor64f* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRInitAlloc_64fc,
        (ZorsIIRState_64fc** ppState, const Zor64fc* pTaps, int order, const Zor64fc* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRInitAlloc64f_32f,
        (ZorsIIRState64f_32f** ppState, const Zor64f* pTaps, int order, const Zor64f* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRInitAlloc64fc_32fc,
        (ZorsIIRState64fc_32fc** ppState, const Zor64fc* pTaps, int order, const Zor64fc* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRInitAlloc64f_32s,
        (ZorsIIRState64f_32s** ppState, const Zor64f* pTaps, int order, const Zor64f* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRInitAlloc64fc_32sc,
        (ZorsIIRState64fc_32sc** ppState, const Zor64fc* pTaps, int order, const Zor64fc* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRInitAlloc64f_16s,
        (ZorsIIRState64f_16s** ppState, const Zor64f* pTaps, int order, const Zor64f* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRInitAlloc64fc_16sc,
        (ZorsIIRState64fc_16sc** ppState, const Zor64fc* pTaps, int order, const Zor64fc* pDlyLine))
/** @} */

/** @name Allocation and initialisation, of any order, of integer taps
 * @{
 */
/**
 * Makes a record in memory of the library, to be released by zorsIIRFree.
 * @param ppState receives the record; unchanged after an error
 * @param pTaps taps
 * @param order order N of the filter; filters with integer taps may have order 0
 * @param tapsFactor integer taps stand for pTaps * 2^-tapsFactor
 * @param pDlyLine delay line to begin with, or null for zeros
 * @return zorStsNullPointer for a null @p ppState or @p pTaps, then zorStsBadIirOrder for @p order below 1 (of
 * integer taps: below 0), then zorStsBadSize where the size is above 2^31 - 1, then zorStsNoMemory where integer taps
 * find no memory to be converted in, then zorStsDivByZeroError where a0, or b0 of a section, is zero (of integer taps
 * when converted), then zorStsNoMemory where there is no memory for the record, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsIIRInitAlloc32s_16s,
        (ZorsIIRState32s_16s** ppState, const Zor32s* pTaps, int order, int tapsFactor,
         const Zor32f* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRInitAlloc32s_16s32f,
        (ZorsIIRState32s_16s** ppState, const Zor32s* pTaps, int order, int tapsFactor,
         const Zor32f* pDlyLine))
/** @} */

/** @name Allocation and initialisation, of sections
 * @{
 */
/**
 * Makes a record in memory of the library, to be released by zorsIIRFree.
 * @param ppState receives the record; unchanged after an error
 * @param pTaps taps
 * @param numBq number of sections
 * @param pDlyLine delay line to begin with, or null for zeros
 * @return zorStsNullPointer for a null @p ppState or @p pTaps, then zorStsBadIirOrder for @p numBq below 1, then
 * zorStsBadSize where the size is above 2^31 - 1, then zorStsNoMemory where integer taps find no memory to be
 * converted in, then zorStsDivByZeroError where a0, or b0 of a section, is zero (of integer taps when converted),
 * then zorStsNoMemory where there is no memory for the record, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsIIRInitAlloc_BiQuad_32f,
        (ZorsIIRState_32f** ppState, const Zor32f* pTaps, int numBq, const Zor32f* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRInitAlloc_BiQuad_32fc,
        (ZorsIIRState_32fc** ppState, const Zor32fc* pTaps, int numBq, const Zor32fc* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRInitAlloc32f_BiQuad_16s,
        (ZorsIIRState32f_16s** ppState, const Zor32f* pTaps, int numBq, const Zor32f* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRInitAlloc32fc_BiQuad_16sc,
        (ZorsIIRState32fc_16sc** ppState, const Zor32fc* pTaps, int numBq, const Zor32fc* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRInitAlloc_BiQuad_64f,
        (ZorsIIRState_64f** ppState, const Zor64f* pTaps, int numBq, const Zor64f* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRInitAlloc_BiQuad_64fc,
        (ZorsIIRState_64fc** ppState, const Zor64fc* pTaps, int numBq, const Zor64fc* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRInitAlloc64f_BiQuad_32f,
        (ZorsIIRState64f_32f** ppState, const Zor64f* pTaps, int numBq, const Zor64f* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRInitAlloc64fc_BiQuad_32fc,
        (ZorsIIRState64fc_32fc** ppState, const Zor64fc* pTaps, int numBq, const Zor64fc* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRInitAlloc64fc_BiQuad_32sc,
        (ZorsIIRState64fc_32sc** ppState, const Zor64fc* pTaps, int numBq, const Zor64fc* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRInitAlloc64f_BiQuad_16s,
        (ZorsIIRState64f_16s** ppState, const Zor64f* pTaps, int numBq, const Zor64f* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRInitAlloc64fc_BiQuad_16sc,
        (ZorsIIRState64fc_16sc** ppState, const Zor64fc* pTaps, int numBq, const Zor64fc* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRInitAlloc_BiQuad_DF1_32f,
        (ZorsIIRState_32f** ppState, const Zor32f* pTaps, int numBq, const Zor32f* pDlyLine))
/** @} */

/** @name Allocation and initialisation, of sections, of integer taps
 * @{
 */
/**
 * Makes a record in memory of the library, to be released by zorsIIRFree.
 * @param ppState receives the record; unchanged after an error
 * @param pTaps taps
 * @param numBq number of sections
 * @param tapsFactor integer taps stand for pTaps * 2^-tapsFactor
 * @param pDlyLine delay line to begin with, or null for zeros
 * @return zorStsNullPointer for a null @p ppState or @p pTaps, then zorStsBadIirOrder for @p numBq below 1, then
 * zorStsBadSize where the size is above 2^31 - 1, then zorStsNoMemory where integer taps find no memory to be
 * converted in, then zorStsDivByZeroError where a0, or b0 of a section, is zero (of integer taps when converted),
 * then zorStsNoMemory where there is no memory for the record, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsIIRInitAlloc32s_BiQuad_16s,
        (ZorsIIRState32s_16s** ppState, const Zor32s* pTaps, int numBq, int tapsFactor,
         const Zor32f* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRInitAlloc32s_BiQuad_16s32f,
        (ZorsIIRState32s_16s** ppState, const Zor32s* pTaps, int numBq, int tapsFactor,
         const Zor32f* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRInitAlloc32sc_BiQuad_16sc,
        (ZorsIIRState32sc_16sc** ppState, const Zor32sc* pTaps, int numBq, int tapsFactor,
         const Zor32fc* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRInitAlloc32sc_BiQuad_16sc32fc,
        (ZorsIIRState32sc_16sc** ppState, const Zor32sc* pTaps, int numBq, int tapsFactor,
         const Zor32fc* pDlyLine))
/** @} */

/** @name Release
 * @{
 */
/**
 * Invalidates a record of whichever structure, and releases its memory where it is the library's.
 * @param pState record
 * @return zorStsNullPointer for a null @p pState, then zorStsWrongContext for a record of other types or one in the
 * caller's memory that was released, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsIIRFree_32f, (ZorsIIRState_32f* pState))
ZORSAPI(ZorStatus, zorsIIRFree_32fc, (ZorsIIRState_32fc* pState))
ZORSAPI(ZorStatus, zorsIIRFree32f_16s, (ZorsIIRState32f_16s* pState))
ZORSAPI(ZorStatus, zorsIIRFree32fc_16sc, (ZorsIIRState32fc_16sc* pState))
ZORSAPI(ZorStatus, zorsIIRFree32s_16s, (ZorsIIRState32s_16s* pState))
ZORSAPI(ZorStatus, zorsIIRFree32sc_16sc, (ZorsIIRState32sc_16sc* pState))
ZORSAPI(ZorStatus, zorsIIRFree_64f, (ZorsIIRState_64f* pState))
ZORSAPI(ZorStatus, zorsIIRFree_64fc, (ZorsIIRState_64fc* pState))
ZORSAPI(ZorStatus, zorsIIRFree64f_32f, (ZorsIIRState64f_32f* pState))
ZORSAPI(ZorStatus, zorsIIRFree64fc_32fc, (ZorsIIRState64fc_32fc* pState))
ZORSAPI(ZorStatus, zorsIIRFree64f_32s, (ZorsIIRState64f_32s* pState))
ZORSAPI(ZorStatus, zorsIIRFree64fc_32sc, (ZorsIIRState64fc_32sc* pState))
ZORSAPI(ZorStatus, zorsIIRFree64f_16s, (ZorsIIRState64f_16s* pState))
ZORSAPI(ZorStatus, zorsIIRFree64fc_16sc, (ZorsIIRState64fc_16sc* pState))
/** @} */

/** @name New taps
 * @{
 */
/**
 * Replaces the taps, as many and in the layout that the record was made with. The delay line stays. Where a0 of a
 * filter of any order is zero its taps stay too; of a cascade, the sections before the one that is refused have their
 * new taps, and that one and the following ones their old.
 * @param pTaps taps
 * @param pState record
 * @return zorStsNullPointer for a null pointer, then zorStsWrongContext for a record of other types, then
 * zorStsNoMemory where integer taps find no memory to be converted in, then zorStsDivByZeroError where a0, or b0 of a
 * section, is zero, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsIIRSetTaps_32f, (const Zor32f* pTaps, ZorsIIRState_32f* pState))
ZORSAPI(ZorStatus, zorsIIRSetTaps_32fc, (const Zor32fc* pTaps, ZorsIIRState_32fc* pState))
ZORSAPI(ZorStatus, zorsIIRSetTaps32f_16s, (const Zor32f* pTaps, ZorsIIRState32f_16s* pState))
ZORSAPI(ZorStatus, zorsIIRSetTaps32fc_16sc, (const Zor32fc* pTaps, ZorsIIRState32fc_16sc* pState))
ZORSAPI(ZorStatus, zorsIIRSetTaps_64f, (const Zor64f* pTaps, ZorsIIRState_64f* pState))
ZORSAPI(ZorStatus, zorsIIRSetTaps_64fc, (const Zor64fc* pTaps, ZorsIIRState_64fc* pState))
ZORSAPI(ZorStatus, zorsIIRSetTaps64f_32f, (const Zor64f* pTaps, ZorsIIRState64f_32f* pState))
ZORSAPI(ZorStatus, zorsIIRSetTaps64fc_32fc, (const Zor64fc* pTaps, ZorsIIRState64fc_32fc* pState))
ZORSAPI(ZorStatus, zorsIIRSetTaps64f_32s, (const Zor64f* pTaps, ZorsIIRState64f_32s* pState))
ZORSAPI(ZorStatus, zorsIIRSetTaps64fc_32sc, (const Zor64fc* pTaps, ZorsIIRState64fc_32sc* pState))
ZORSAPI(ZorStatus, zorsIIRSetTaps64f_16s, (const Zor64f* pTaps, ZorsIIRState64f_16s* pState))
ZORSAPI(ZorStatus, zorsIIRSetTaps64fc_16sc, (const Zor64fc* pTaps, ZorsIIRState64fc_16sc* pState))
/** @} */

/** @name New taps, of integer taps
 * @{
 */
/**
 * Replaces the taps, as many and in the layout that the record was made with. The delay line stays. Where a0 of a
 * filter of any order is zero its taps stay too; of a cascade, the sections before the one that is refused have their
 * new taps, and that one and the following ones their old.
 * @param pTaps taps
 * @param pState record
 * @param tapsFactor integer taps stand for pTaps * 2^-tapsFactor
 * @return zorStsNullPointer for a null pointer, then zorStsWrongContext for a record of other types, then
 * zorStsNoMemory where integer taps find no memory to be converted in, then zorStsDivByZeroError where a0, or b0 of a
 * section, is zero, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsIIRSetTaps32s_16s, (const Zor32s* pTaps, ZorsIIRState32s_16s* pState, int tapsFactor))
ZORSAPI(ZorStatus, zorsIIRSetTaps32s_16s32f, (const Zor32s* pTaps, ZorsIIRState32s_16s* pState, int tapsFactor))
ZORSAPI(ZorStatus, zorsIIRSetTaps32sc_16sc,
        (const Zor32sc* pTaps, ZorsIIRState32sc_16sc* pState, int tapsFactor))
ZORSAPI(ZorStatus, zorsIIRSetTaps32sc_16sc32fc,
        (const Zor32sc* pTaps, ZorsIIRState32sc_16sc* pState, int tapsFactor))
/** @} */

/** @name New delay line
 * @{
 */
/**
 * Replaces the delay line as it is: the stream starts anew or goes on.
 * @param pState record
 * @param pDlyLine delay line: order, 2 numBq or in direct form 1 4 numBq numbers; null for zeros
 * @return zorStsNullPointer for a null @p pState, then zorStsWrongContext for a record of other types, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsIIRSetDlyLine_32f, (ZorsIIRState_32f* pState, const Zor32f* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRSetDlyLine_32fc, (ZorsIIRState_32fc* pState, const Zor32fc* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRSetDlyLine32f_16s, (ZorsIIRState32f_16s* pState, const Zor32f* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRSetDlyLine32fc_16sc, (ZorsIIRState32fc_16sc* pState, const Zor32fc* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRSetDlyLine32s_16s, (ZorsIIRState32s_16s* pState, const Zor32f* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRSetDlyLine32sc_16sc, (ZorsIIRState32sc_16sc* pState, const Zor32fc* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRSetDlyLine_64f, (ZorsIIRState_64f* pState, const Zor64f* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRSetDlyLine_64fc, (ZorsIIRState_64fc* pState, const Zor64fc* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRSetDlyLine64f_32f, (ZorsIIRState64f_32f* pState, const Zor64f* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRSetDlyLine64fc_32fc, (ZorsIIRState64fc_32fc* pState, const Zor64fc* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRSetDlyLine64f_32s, (ZorsIIRState64f_32s* pState, const Zor64f* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRSetDlyLine64fc_32sc, (ZorsIIRState64fc_32sc* pState, const Zor64fc* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRSetDlyLine64f_16s, (ZorsIIRState64f_16s* pState, const Zor64f* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRSetDlyLine64fc_16sc, (ZorsIIRState64fc_16sc* pState, const Zor64fc* pDlyLine))
/** @} */

/** @name Delay line of a record
 * @{
 */
/**
 * The delay line of a record, from which another with the same taps goes on with the stream.
 * @param pState record
 * @param pDlyLine receives the delay line: order, 2 numBq or in direct form 1 4 numBq numbers
 * @return zorStsNullPointer for a null pointer, then zorStsWrongContext for a record of other types, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsIIRGetDlyLine_32f, (const ZorsIIRState_32f* pState, Zor32f* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRGetDlyLine_32fc, (const ZorsIIRState_32fc* pState, Zor32fc* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRGetDlyLine32f_16s, (const ZorsIIRState32f_16s* pState, Zor32f* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRGetDlyLine32fc_16sc, (const ZorsIIRState32fc_16sc* pState, Zor32fc* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRGetDlyLine32s_16s, (const ZorsIIRState32s_16s* pState, Zor32f* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRGetDlyLine32sc_16sc, (const ZorsIIRState32sc_16sc* pState, Zor32fc* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRGetDlyLine_64f, (const ZorsIIRState_64f* pState, Zor64f* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRGetDlyLine_64fc, (const ZorsIIRState_64fc* pState, Zor64fc* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRGetDlyLine64f_32f, (const ZorsIIRState64f_32f* pState, Zor64f* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRGetDlyLine64fc_32fc, (const ZorsIIRState64fc_32fc* pState, Zor64fc* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRGetDlyLine64f_32s, (const ZorsIIRState64f_32s* pState, Zor64f* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRGetDlyLine64fc_32sc, (const ZorsIIRState64fc_32sc* pState, Zor64fc* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRGetDlyLine64f_16s, (const ZorsIIRState64f_16s* pState, Zor64f* pDlyLine))
ZORSAPI(ZorStatus, zorsIIRGetDlyLine64fc_16sc, (const ZorsIIRState64fc_16sc* pState, Zor64fc* pDlyLine))
/** @} */
