/**
 * @file
 * Records of finite impulse response filters: their sizes, how they are made and released, taps and delay lines.
 *
 * A filter of L taps h[0] ... h[L-1] computes y[n] = sum over k of h[k] * x[n-k] over a stream that arrives in calls
 * of any length, and keeps the last samples between them. The types in a name are the taps' and the data's:
 * `zorsFIRInit64f_16s` filters `Zor16s` data with `Zor64f` taps; a single type is both.
 *
 * | Taps, data | arithmetic |
 * |---|---|
 * | `_32f`, `32f_16s` | `Zor32f` |
 * | `_32fc`, `32fc_16sc` | `Zor32fc` |
 * | `_64f`, `64f_32f`, `64f_32s`, `64f_16s`, `32s_16s`, `_16s` | `Zor64f` |
 * | `_64fc`, `64fc_32fc`, `64fc_32sc`, `64fc_16sc`, `32sc_16sc` | `Zor64fc` |
 *
 * Integer taps stand for pTaps * 2^-tapsFactor; the forms `16s32f` and `16sc32fc` make the same records as `32s_16s`
 * and `32sc_16sc` from floating taps.
 *
 * A delay line, in the caller's memory, holds the last samples newest first: pDlyLine[0] is x[-1], pDlyLine[1]
 * x[-2]. That of a single-rate record has L samples, that of a multi-rate one ceil(L / upFactor).
 *
 * Filters of 64 taps and more (in double precision 32) have their taps transformed too when the record is made, and
 * long calls then filter by overlap-save; see zorsFIR. (Not those of `_16s`, whose sums are exact up to 2^53 units.)
 * A record is changed by every call that filters, so one record serves one stream, and one thread at a time. `_16s`
 * records are made by the multi-rate and the stream initialisations alone.
 */
#include <zortypes.h>

/** @name Size of a record
 * @{
 */
/**
 * The size in bytes of the memory that a record of @p tapsLen taps needs. It has room for aligning the record, so
 * memory at any address will do.
 * @param tapsLen number of taps
 * @param pStateSize receives the size
 * @return zorStsNullPointer for a null @p pStateSize, then zorStsBadFirLength for @p tapsLen below 1, then
 * zorStsBadSize for a size above 2^31 - 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIRGetStateSize_32f, (int tapsLen, int* pStateSize))
ZORSAPI(ZorStatus, zorsFIRGetStateSize_32fc, (int tapsLen, int* pStateSize))
ZORSAPI(ZorStatus, zorsFIRGetStateSize32f_16s, (int tapsLen, int* pStateSize))
ZORSAPI(ZorStatus, zorsFIRGetStateSize32fc_16sc, (int tapsLen, int* pStateSize))
ZORSAPI(ZorStatus, zorsFIRGetStateSize32s_16s, (int tapsLen, int* pStateSize))
ZORSAPI(ZorStatus, zorsFIRGetStateSize32s_16s32f, (int tapsLen, int* pStateSize))
ZORSAPI(ZorStatus, zorsFIRGetStateSize32sc_16sc, (int tapsLen, int* pStateSize))
ZORSAPI(ZorStatus, zorsFIRGetStateSize32sc_16sc32fc, (int tapsLen, int* pStateSize))
ZORSAPI(ZorStatus, zorsFIRGetStateSize_64f, (int tapsLen, int* pStateSize))
ZORSAPI(ZorStatus, zorsFIRGetStateSize_64fc, (int tapsLen, int* pStateSize))
ZORSAPI(ZorStatus, zorsFIRGetStateSize64f_32f, (int tapsLen, int* pStateSize))
ZORSAPI(ZorStatus, zorsFIRGetStateSize64fc_32fc, (int tapsLen, int* pStateSize))
ZORSAPI(ZorStatus, zorsFIRGetStateSize64f_32s, (int tapsLen, int* pStateSize))
ZORSAPI(ZorStatus, zorsFIRGetStateSize64fc_32sc, (int tapsLen, int* pStateSize))
ZORSAPI(ZorStatus, zorsFIRGetStateSize64f_16s, (int tapsLen, int* pStateSize))
ZORSAPI(ZorStatus, zorsFIRGetStateSize64fc_16sc, (int tapsLen, int* pStateSize))
/** @} */

/** @name Initialisation in the caller's memory
 * @{
 */
/**
 * Makes a record in memory of the caller. The record points into itself and must not be moved. zorsFIRInit_32s is
 * zorsFIRInit64f_32s: its size is of zorsFIRGetStateSize64f_32s, and its record belongs to the functions of
 * `64f_32s`.
 * @param ppState receives the record
 * @param pTaps taps, h[0] first
 * @param tapsLen number of taps
 * @param pDlyLine the last @p tapsLen samples, newest first, or null for zeros
 * @param pBuffer memory of the size that zorsFIRGetStateSize tells, for as long as the record is used
 * @return zorStsNullPointer for a null @p ppState, @p pTaps or @p pBuffer, then zorStsBadFirLength for @p tapsLen
 * below 1, then zorStsBadSize where the size is above 2^31 - 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIRInit_32f,
        (ZorsFIRState_32f** ppState, const Zor32f* pTaps, int tapsLen, const Zor32f* pDlyLine, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFIRInit_32fc,
        (ZorsFIRState_32fc** ppState, const Zor32fc* pTaps, int tapsLen, const Zor32fc* pDlyLine, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFIRInit32f_16s,
        (ZorsFIRState32f_16s** ppState, const Zor32f* pTaps, int tapsLen, const Zor16s* pDlyLine, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFIRInit32fc_16sc,
        (ZorsFIRState32fc_16sc** ppState, const Zor32fc* pTaps, int tapsLen, const Zor16sc* pDlyLine,
         Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFIRInit32s_16s32f,
        (ZorsFIRState32s_16s** ppState, const Zor32f* pTaps, int tapsLen, const Zor16s* pDlyLine, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFIRInit32sc_16sc32fc,
        (ZorsFIRState32sc_16sc** ppState, const Zor32fc* pTaps, int tapsLen, const Zor16sc* pDlyLine,
         Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFIRInit_64f,
        (ZorsFIRState_64f** ppState, const Zor64f* pTaps, int tapsLen, const Zor64f* pDlyLine, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFIRInit_64fc,
        (ZorsFIRState_64fc** ppState, const Zor64fc* pTaps, int tapsLen, const Zor64fc* pDlyLine, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFIRInit64f_32f,
        (ZorsFIRState64f_32f** ppState, const Zor64f* pTaps, int tapsLen, const Zor32f* pDlyLine, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFIRInit64fc_32fc,
        (ZorsFIRState64fc_32fc** ppState, const Zor64fc* pTaps, int tapsLen, const Zor32fc* pDlyLine,
         Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFIRInit64f_32s,
        (ZorsFIRState64f_32s** ppState, const Zor64f* pTaps, int tapsLen, const Zor32s* pDlyLine, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFIRInit64fc_32sc,
        (ZorsFIRState64fc_32sc** ppState, const Zor64fc* pTaps, int tapsLen, const Zor32sc* pDlyLine,
         Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFIRInit64f_16s,
        (ZorsFIRState64f_16s** ppState, const Zor64f* pTaps, int tapsLen, const Zor16s* pDlyLine, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFIRInit64fc_16sc,
        (ZorsFIRState64fc_16sc** ppState, const Zor64fc* pTaps, int tapsLen, const Zor16sc* pDlyLine,
         Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFIRInit_32s,
        (ZorsFIRState64f_32s** ppState, const Zor64f* pTaps, int tapsLen, const Zor32s* pDlyLine, Zor8u* pBuffer))
/** @} */

/** @name Initialisation in the caller's memory, of integer taps
 * @{
 */
/**
 * Makes a record in memory of the caller. The record points into itself and must not be moved. zorsFIRInit_32s is
 * zorsFIRInit64f_32s: its size is of zorsFIRGetStateSize64f_32s, and its record belongs to the functions of
 * `64f_32s`.
 * @param ppState receives the record
 * @param pTaps taps, h[0] first
 * @param tapsLen number of taps
 * @param tapsFactor integer taps stand for pTaps * 2^-tapsFactor
 * @param pDlyLine the last @p tapsLen samples, newest first, or null for zeros
 * @param pBuffer memory of the size that zorsFIRGetStateSize tells, for as long as the record is used
 * @return zorStsNullPointer for a null @p ppState, @p pTaps or @p pBuffer, then zorStsBadFirLength for @p tapsLen
 * below 1, then zorStsBadSize where the size is above 2^31 - 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIRInit32s_16s,
        (ZorsFIRState32s_16s** ppState, const Zor32s* pTaps, int tapsLen, int tapsFactor,
         const Zor16s* pDlyLine, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFIRInit32sc_16sc,
        (ZorsFIRState32sc_16sc** ppState, const Zor32sc* pTaps, int tapsLen, int tapsFactor,
         const Zor16sc* pDlyLine, Zor8u* pBuffer))
/** @} */

/** @name Allocation and initialisation
 * @{
 */
/**
 * Makes a record in memory of the library, to be released by zorsFIRFree.
 * @param ppState receives the record; unchanged after an error
 * @param pTaps taps, h[0] first
 * @param tapsLen number of taps
 * @param pDlyLine the last @p tapsLen samples, newest first, or null for zeros
 * @return zorStsNullPointer for a null @p ppState or @p pTaps, then zorStsBadFirLength for @p tapsLen below 1, then
 * zorStsBadSize where the size is above 2^31 - 1, then zorStsNoMemory where there is no memory for the record, else
 * zorStsOk. (Without memory for the transform of a long filter it goes without: it is slower so, and not a mistake.)
 */
ZORSAPI(ZorStatus, zorsFIRInitAlloc_32f,
        (ZorsFIRState_32f** ppState, const Zor32f* pTaps, int tapsLen, const Zor32f* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRInitAlloc_32fc,
        (ZorsFIRState_32fc** ppState, const Zor32fc* pTaps, int tapsLen, const Zor32fc* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRInitAlloc32f_16s,
        (ZorsFIRState32f_16s** ppState, const Zor32f* pTaps, int tapsLen, const Zor16s* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRInitAlloc32fc_16sc,
        (ZorsFIRState32fc_16sc** ppState, const Zor32fc* pTaps, int tapsLen, const Zor16sc* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRInitAlloc32s_16s32f,
        (ZorsFIRState32s_16s** ppState, const Zor32f* pTaps, int tapsLen, const Zor16s* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRInitAlloc32sc_16sc32fc,
        (ZorsFIRState32sc_16sc** ppState, const Zor32fc* pTaps, int tapsLen, const Zor16sc* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRInitAlloc_64f,
        (ZorsFIRState_64f** ppState, const Zor64f* pTaps, int tapsLen, const Zor64f* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRInitAlloc_64fc,
        (ZorsFIRState_64fc** ppState, const Zor64fc* pTaps, int tapsLen, const Zor64fc* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRInitAlloc64f_32f,
        (ZorsFIRState64f_32f** ppState, const Zor64f* pTaps, int tapsLen, const Zor32f* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRInitAlloc64fc_32fc,
        (ZorsFIRState64fc_32fc** ppState, const Zor64fc* pTaps, int tapsLen, const Zor32fc* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRInitAlloc64f_32s,
        (ZorsFIRState64f_32s** ppState, const Zor64f* pTaps, int tapsLen, const Zor32s* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRInitAlloc64fc_32sc,
        (ZorsFIRState64fc_32sc** ppState, const Zor64fc* pTaps, int tapsLen, const Zor32sc* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRInitAlloc64f_16s,
        (ZorsFIRState64f_16s** ppState, const Zor64f* pTaps, int tapsLen, const Zor16s* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRInitAlloc64fc_16sc,
        (ZorsFIRState64fc_16sc** ppState, const Zor64fc* pTaps, int tapsLen, const Zor16sc* pDlyLine))
/** @} */

/** @name Allocation and initialisation, of integer taps
 * @{
 */
/**
 * Makes a record in memory of the library, to be released by zorsFIRFree.
 * @param ppState receives the record; unchanged after an error
 * @param pTaps taps, h[0] first
 * @param tapsLen number of taps
 * @param tapsFactor integer taps stand for pTaps * 2^-tapsFactor
 * @param pDlyLine the last @p tapsLen samples, newest first, or null for zeros
 * @return zorStsNullPointer for a null @p ppState or @p pTaps, then zorStsBadFirLength for @p tapsLen below 1, then
 * zorStsBadSize where the size is above 2^31 - 1, then zorStsNoMemory where there is no memory for the record, else
 * zorStsOk. (Without memory for the transform of a long filter it goes without: it is slower so, and not a mistake.)
 */
ZORSAPI(ZorStatus, zorsFIRInitAlloc32s_16s,
        (ZorsFIRState32s_16s** ppState, const Zor32s* pTaps, int tapsLen, int tapsFactor, const Zor16s* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRInitAlloc32sc_16sc,
        (ZorsFIRState32sc_16sc** ppState, const Zor32sc* pTaps, int tapsLen, int tapsFactor,
         const Zor16sc* pDlyLine))
/** @} */

/** @name Release
 * @{
 */
/**
 * Invalidates a record, be it of a single-rate, a multi-rate or a stream filter, and releases its memory where it is
 * the library's.
 * @param pState record
 * @return zorStsNullPointer for a null @p pState, then zorStsWrongContext for a record of other types or one in the
 * caller's memory that was released, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIRFree_32f, (ZorsFIRState_32f* pState))
ZORSAPI(ZorStatus, zorsFIRFree_32fc, (ZorsFIRState_32fc* pState))
ZORSAPI(ZorStatus, zorsFIRFree32f_16s, (ZorsFIRState32f_16s* pState))
ZORSAPI(ZorStatus, zorsFIRFree32fc_16sc, (ZorsFIRState32fc_16sc* pState))
ZORSAPI(ZorStatus, zorsFIRFree32s_16s, (ZorsFIRState32s_16s* pState))
ZORSAPI(ZorStatus, zorsFIRFree32sc_16sc, (ZorsFIRState32sc_16sc* pState))
ZORSAPI(ZorStatus, zorsFIRFree_64f, (ZorsFIRState_64f* pState))
ZORSAPI(ZorStatus, zorsFIRFree_64fc, (ZorsFIRState_64fc* pState))
ZORSAPI(ZorStatus, zorsFIRFree64f_32f, (ZorsFIRState64f_32f* pState))
ZORSAPI(ZorStatus, zorsFIRFree64fc_32fc, (ZorsFIRState64fc_32fc* pState))
ZORSAPI(ZorStatus, zorsFIRFree64f_32s, (ZorsFIRState64f_32s* pState))
ZORSAPI(ZorStatus, zorsFIRFree64fc_32sc, (ZorsFIRState64fc_32sc* pState))
ZORSAPI(ZorStatus, zorsFIRFree64f_16s, (ZorsFIRState64f_16s* pState))
ZORSAPI(ZorStatus, zorsFIRFree64fc_16sc, (ZorsFIRState64fc_16sc* pState))
ZORSAPI(ZorStatus, zorsFIRFree_16s, (ZorsFIRState_16s* pState))
/** @} */

/** @name New taps
 * @{
 */
/**
 * Replaces the taps, as many as the record was made with. The delay line stays.
 * @param pTaps taps, h[0] first
 * @param pState single-rate or multi-rate record
 * @return zorStsNullPointer for a null pointer, then zorStsWrongContext for a record of other types or of a stream,
 * else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIRSetTaps_32f, (const Zor32f* pTaps, ZorsFIRState_32f* pState))
ZORSAPI(ZorStatus, zorsFIRSetTaps_32fc, (const Zor32fc* pTaps, ZorsFIRState_32fc* pState))
ZORSAPI(ZorStatus, zorsFIRSetTaps32f_16s, (const Zor32f* pTaps, ZorsFIRState32f_16s* pState))
ZORSAPI(ZorStatus, zorsFIRSetTaps32fc_16sc, (const Zor32fc* pTaps, ZorsFIRState32fc_16sc* pState))
ZORSAPI(ZorStatus, zorsFIRSetTaps32s_16s32f, (const Zor32f* pTaps, ZorsFIRState32s_16s* pState))
ZORSAPI(ZorStatus, zorsFIRSetTaps32sc_16sc32fc, (const Zor32fc* pTaps, ZorsFIRState32sc_16sc* pState))
ZORSAPI(ZorStatus, zorsFIRSetTaps_64f, (const Zor64f* pTaps, ZorsFIRState_64f* pState))
ZORSAPI(ZorStatus, zorsFIRSetTaps_64fc, (const Zor64fc* pTaps, ZorsFIRState_64fc* pState))
ZORSAPI(ZorStatus, zorsFIRSetTaps64f_32f, (const Zor64f* pTaps, ZorsFIRState64f_32f* pState))
ZORSAPI(ZorStatus, zorsFIRSetTaps64fc_32fc, (const Zor64fc* pTaps, ZorsFIRState64fc_32fc* pState))
ZORSAPI(ZorStatus, zorsFIRSetTaps64f_32s, (const Zor64f* pTaps, ZorsFIRState64f_32s* pState))
ZORSAPI(ZorStatus, zorsFIRSetTaps64fc_32sc, (const Zor64fc* pTaps, ZorsFIRState64fc_32sc* pState))
ZORSAPI(ZorStatus, zorsFIRSetTaps64f_16s, (const Zor64f* pTaps, ZorsFIRState64f_16s* pState))
ZORSAPI(ZorStatus, zorsFIRSetTaps64fc_16sc, (const Zor64fc* pTaps, ZorsFIRState64fc_16sc* pState))
/** @} */

/** @name New taps, of integer taps
 * @{
 */
/**
 * Replaces the taps, as many as the record was made with. The delay line stays.
 * @param pTaps taps, h[0] first
 * @param pState single-rate or multi-rate record
 * @param tapsFactor integer taps stand for pTaps * 2^-tapsFactor
 * @return zorStsNullPointer for a null pointer, then zorStsWrongContext for a record of other types or of a stream,
 * else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIRSetTaps32s_16s, (const Zor32s* pTaps, ZorsFIRState32s_16s* pState, int tapsFactor))
ZORSAPI(ZorStatus, zorsFIRSetTaps32sc_16sc,
        (const Zor32sc* pTaps, ZorsFIRState32sc_16sc* pState, int tapsFactor))
ZORSAPI(ZorStatus, zorsFIRSetTaps_16s, (const Zor16s* pTaps, ZorsFIRState_16s* pState, int tapsFactor))
/** @} */

/** @name Taps of a record
 * @{
 */
/**
 * The taps of a record, h[0] first. Integer ones are its taps times 2^tapsFactor, rounded to nearest, ties to even,
 * and saturated: with the factor that they were set with, the very numbers that were set. Taps that were set as
 * floats come back as they were.
 * @param pState single-rate or multi-rate record
 * @param pTaps receives the taps
 * @return zorStsNullPointer for a null pointer, then zorStsWrongContext for a record of other types or of a stream,
 * else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIRGetTaps_32f, (const ZorsFIRState_32f* pState, Zor32f* pTaps))
ZORSAPI(ZorStatus, zorsFIRGetTaps_32fc, (const ZorsFIRState_32fc* pState, Zor32fc* pTaps))
ZORSAPI(ZorStatus, zorsFIRGetTaps32f_16s, (const ZorsFIRState32f_16s* pState, Zor32f* pTaps))
ZORSAPI(ZorStatus, zorsFIRGetTaps32fc_16sc, (const ZorsFIRState32fc_16sc* pState, Zor32fc* pTaps))
ZORSAPI(ZorStatus, zorsFIRGetTaps32s_16s32f, (const ZorsFIRState32s_16s* pState, Zor32f* pTaps))
ZORSAPI(ZorStatus, zorsFIRGetTaps32sc_16sc32fc, (const ZorsFIRState32sc_16sc* pState, Zor32fc* pTaps))
ZORSAPI(ZorStatus, zorsFIRGetTaps_64f, (const ZorsFIRState_64f* pState, Zor64f* pTaps))
ZORSAPI(ZorStatus, zorsFIRGetTaps_64fc, (const ZorsFIRState_64fc* pState, Zor64fc* pTaps))
ZORSAPI(ZorStatus, zorsFIRGetTaps64f_32f, (const ZorsFIRState64f_32f* pState, Zor64f* pTaps))
ZORSAPI(ZorStatus, zorsFIRGetTaps64fc_32fc, (const ZorsFIRState64fc_32fc* pState, Zor64fc* pTaps))
ZORSAPI(ZorStatus, zorsFIRGetTaps64f_32s, (const ZorsFIRState64f_32s* pState, Zor64f* pTaps))
ZORSAPI(ZorStatus, zorsFIRGetTaps64fc_32sc, (const ZorsFIRState64fc_32sc* pState, Zor64fc* pTaps))
ZORSAPI(ZorStatus, zorsFIRGetTaps64f_16s, (const ZorsFIRState64f_16s* pState, Zor64f* pTaps))
ZORSAPI(ZorStatus, zorsFIRGetTaps64fc_16sc, (const ZorsFIRState64fc_16sc* pState, Zor64fc* pTaps))
/** @} */

/** @name Taps of a record, of integer taps
 * @{
 */
/**
 * The taps of a record, h[0] first. Integer ones are its taps times 2^tapsFactor, rounded to nearest, ties to even,
 * and saturated: with the factor that they were set with, the very numbers that were set. Taps that were set as
 * floats come back as they were.
 * @param pState single-rate or multi-rate record
 * @param pTaps receives the taps
 * @param tapsFactor integer taps stand for pTaps * 2^-tapsFactor
 * @return zorStsNullPointer for a null pointer, then zorStsWrongContext for a record of other types or of a stream,
 * else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIRGetTaps32s_16s, (const ZorsFIRState32s_16s* pState, Zor32s* pTaps, int tapsFactor))
ZORSAPI(ZorStatus, zorsFIRGetTaps32sc_16sc,
        (const ZorsFIRState32sc_16sc* pState, Zor32sc* pTaps, int tapsFactor))
ZORSAPI(ZorStatus, zorsFIRGetTaps_16s, (const ZorsFIRState_16s* pState, Zor16s* pTaps, int tapsFactor))
/** @} */

/** @name New delay line
 * @{
 */
/**
 * Replaces the samples that a filter remembers: the stream starts anew.
 * @param pState single-rate or multi-rate record
 * @param pDlyLine samples, newest first: as many as taps, of a multi-rate record ceil(taps / upFactor); null for
 * zeros
 * @return zorStsNullPointer for a null @p pState, then zorStsWrongContext for a record of other types or of a
 * stream, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIRSetDlyLine_32f, (ZorsFIRState_32f* pState, const Zor32f* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRSetDlyLine_32fc, (ZorsFIRState_32fc* pState, const Zor32fc* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRSetDlyLine32f_16s, (ZorsFIRState32f_16s* pState, const Zor16s* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRSetDlyLine32fc_16sc, (ZorsFIRState32fc_16sc* pState, const Zor16sc* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRSetDlyLine32s_16s, (ZorsFIRState32s_16s* pState, const Zor16s* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRSetDlyLine32sc_16sc, (ZorsFIRState32sc_16sc* pState, const Zor16sc* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRSetDlyLine_64f, (ZorsFIRState_64f* pState, const Zor64f* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRSetDlyLine_64fc, (ZorsFIRState_64fc* pState, const Zor64fc* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRSetDlyLine64f_32f, (ZorsFIRState64f_32f* pState, const Zor32f* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRSetDlyLine64fc_32fc, (ZorsFIRState64fc_32fc* pState, const Zor32fc* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRSetDlyLine64f_32s, (ZorsFIRState64f_32s* pState, const Zor32s* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRSetDlyLine64fc_32sc, (ZorsFIRState64fc_32sc* pState, const Zor32sc* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRSetDlyLine64f_16s, (ZorsFIRState64f_16s* pState, const Zor16s* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRSetDlyLine64fc_16sc, (ZorsFIRState64fc_16sc* pState, const Zor16sc* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRSetDlyLine_16s, (ZorsFIRState_16s* pState, const Zor16s* pDlyLine))
/** @} */

/** @name Delay line of a record
 * @{
 */
/**
 * The samples that a filter remembers.
 * @param pState single-rate or multi-rate record
 * @param pDlyLine receives the samples, newest first: as many as taps, of a multi-rate record ceil(taps / upFactor)
 * @return zorStsNullPointer for a null pointer, then zorStsWrongContext for a record of other types or of a stream,
 * else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIRGetDlyLine_32f, (const ZorsFIRState_32f* pState, Zor32f* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRGetDlyLine_32fc, (const ZorsFIRState_32fc* pState, Zor32fc* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRGetDlyLine32f_16s, (const ZorsFIRState32f_16s* pState, Zor16s* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRGetDlyLine32fc_16sc, (const ZorsFIRState32fc_16sc* pState, Zor16sc* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRGetDlyLine32s_16s, (const ZorsFIRState32s_16s* pState, Zor16s* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRGetDlyLine32sc_16sc, (const ZorsFIRState32sc_16sc* pState, Zor16sc* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRGetDlyLine_64f, (const ZorsFIRState_64f* pState, Zor64f* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRGetDlyLine_64fc, (const ZorsFIRState_64fc* pState, Zor64fc* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRGetDlyLine64f_32f, (const ZorsFIRState64f_32f* pState, Zor32f* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRGetDlyLine64fc_32fc, (const ZorsFIRState64fc_32fc* pState, Zor32fc* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRGetDlyLine64f_32s, (const ZorsFIRState64f_32s* pState, Zor32s* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRGetDlyLine64fc_32sc, (const ZorsFIRState64fc_32sc* pState, Zor32sc* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRGetDlyLine64f_16s, (const ZorsFIRState64f_16s* pState, Zor16s* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRGetDlyLine64fc_16sc, (const ZorsFIRState64fc_16sc* pState, Zor16sc* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRGetDlyLine_16s, (const ZorsFIRState_16s* pState, Zor16s* pDlyLine))
/** @} */
