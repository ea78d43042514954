/**
 * @file
 * Multi-rate filters and stream filters: records that zorsFIR processes and zorsFIRFree releases.
 *
 * A multi-rate filter raises the sampling rate by upFactor = U with zeros, filters, and lowers it by downFactor = D:
 * with the samples at places upPhase + U i, the rest 0, and every D-th output kept from downPhase on,
 *
 *     y[j] = sum over i of h[D j + downPhase - upPhase - U i] * x[i],  taps outside 0 ... tapsLen-1 being 0.
 *
 * An iteration takes D samples and gives U of them. To resample a signal by U / D, the taps are a low-pass filter at
 * the rate U times the source's, with gain U. The delay line of a record holds ceil(tapsLen / U) samples, newest
 * first.
 *
 * Every output is one sum over its own taps and samples, formed over lanes of the processor's vectors: with u and
 * the products as in fir.h its error is at most (tapsLen / U + 4) u sum |h| |x|. Its bits do not depend on how the
 * stream is cut into calls. No factor 0 is multiplied with a sample outside a sum, which so may be infinite.
 * (Records with both factors 1 and those of streams of a single rate are single-rate filters, with the promises of
 * fir.h.)
 */
#include <zortypes.h>

/** @name Size of a multi-rate record
 * @{
 */
/**
 * The size in bytes of the memory that a multi-rate record needs, with room for aligning it. With both factors 1 it
 * is that of a single-rate record.
 * @param tapsLen number of taps
 * @param upFactor factor U of raising the rate
 * @param downFactor factor D of lowering the rate
 * @param pStateSize receives the size
 * @return zorStsNullPointer for a null @p pStateSize, then zorStsBadFirLength for @p tapsLen below 1, then
 * zorStsBadMultiRateFactor for a factor below 1, then zorStsBadSize for a size above 2^31 - 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIRMRGetStateSize_32f, (int tapsLen, int upFactor, int downFactor, int* pStateSize))
ZORSAPI(ZorStatus, zorsFIRMRGetStateSize_32fc, (int tapsLen, int upFactor, int downFactor, int* pStateSize))
ZORSAPI(ZorStatus, zorsFIRMRGetStateSize32f_16s, (int tapsLen, int upFactor, int downFactor, int* pStateSize))
ZORSAPI(ZorStatus, zorsFIRMRGetStateSize32fc_16sc, (int tapsLen, int upFactor, int downFactor, int* pStateSize))
ZORSAPI(ZorStatus, zorsFIRMRGetStateSize32s_16s, (int tapsLen, int upFactor, int downFactor, int* pStateSize))
ZORSAPI(ZorStatus, zorsFIRMRGetStateSize32sc_16sc, (int tapsLen, int upFactor, int downFactor, int* pStateSize))
ZORSAPI(ZorStatus, zorsFIRMRGetStateSize_64f, (int tapsLen, int upFactor, int downFactor, int* pStateSize))
ZORSAPI(ZorStatus, zorsFIRMRGetStateSize_64fc, (int tapsLen, int upFactor, int downFactor, int* pStateSize))
ZORSAPI(ZorStatus, zorsFIRMRGetStateSize64f_32f, (int tapsLen, int upFactor, int downFactor, int* pStateSize))
ZORSAPI(ZorStatus, zorsFIRMRGetStateSize64fc_32fc, (int tapsLen, int upFactor, int downFactor, int* pStateSize))
ZORSAPI(ZorStatus, zorsFIRMRGetStateSize64f_32s, (int tapsLen, int upFactor, int downFactor, int* pStateSize))
ZORSAPI(ZorStatus, zorsFIRMRGetStateSize64fc_32sc, (int tapsLen, int upFactor, int downFactor, int* pStateSize))
ZORSAPI(ZorStatus, zorsFIRMRGetStateSize64f_16s, (int tapsLen, int upFactor, int downFactor, int* pStateSize))
ZORSAPI(ZorStatus, zorsFIRMRGetStateSize64fc_16sc, (int tapsLen, int upFactor, int downFactor, int* pStateSize))
ZORSAPI(ZorStatus, zorsFIRMRGetStateSize_16s, (int tapsLen, int upFactor, int downFactor, int* pStateSize))
/** @} */

/** @name Initialisation of a multi-rate record in the caller's memory
 * @{
 */
/**
 * Makes a multi-rate record in memory of the caller. The record points into itself and must not be moved. With both
 * factors 1 it is a single-rate record (`_16s`, which has none, excepted).
 * @param ppState receives the record
 * @param pTaps taps, h[0] first
 * @param tapsLen number of taps
 * @param upFactor factor U of raising the rate
 * @param upPhase place of the first sample among U, in [0, U)
 * @param downFactor factor D of lowering the rate
 * @param downPhase place of the first kept output among D, in [0, D)
 * @param pDlyLine the last ceil(tapsLen / U) samples, newest first, or null for zeros
 * @param pBuffer memory of the size that zorsFIRMRGetStateSize tells, for as long as the record is used
 * @return zorStsNullPointer for a null @p ppState, @p pTaps or @p pBuffer, then zorStsBadFirLength for @p tapsLen
 * below 1, then zorStsBadMultiRateFactor for a factor below 1, then zorStsBadMultiRatePhase for a phase outside its
 * range, then zorStsBadSize where the size is above 2^31 - 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIRMRInit_32f,
        (ZorsFIRState_32f** ppState, const Zor32f* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, const Zor32f* pDlyLine, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFIRMRInit_32fc,
        (ZorsFIRState_32fc** ppState, const Zor32fc* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, const Zor32fc* pDlyLine, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFIRMRInit32f_16s,
        (ZorsFIRState32f_16s** ppState, const Zor32f* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, const Zor16s* pDlyLine, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFIRMRInit32fc_16sc,
        (ZorsFIRState32fc_16sc** ppState, const Zor32fc* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, const Zor16sc* pDlyLine, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFIRMRInit_64f,
        (ZorsFIRState_64f** ppState, const Zor64f* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, const Zor64f* pDlyLine, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFIRMRInit_64fc,
        (ZorsFIRState_64fc** ppState, const Zor64fc* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, const Zor64fc* pDlyLine, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFIRMRInit64f_32f,
        (ZorsFIRState64f_32f** ppState, const Zor64f* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, const Zor32f* pDlyLine, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFIRMRInit64fc_32fc,
        (ZorsFIRState64fc_32fc** ppState, const Zor64fc* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, const Zor32fc* pDlyLine, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFIRMRInit64f_32s,
        (ZorsFIRState64f_32s** ppState, const Zor64f* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, const Zor32s* pDlyLine, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFIRMRInit64fc_32sc,
        (ZorsFIRState64fc_32sc** ppState, const Zor64fc* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, const Zor32sc* pDlyLine, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFIRMRInit64f_16s,
        (ZorsFIRState64f_16s** ppState, const Zor64f* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, const Zor16s* pDlyLine, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFIRMRInit64fc_16sc,
        (ZorsFIRState64fc_16sc** ppState, const Zor64fc* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, const Zor16sc* pDlyLine, Zor8u* pBuffer))
/** @} */

/** @name Initialisation of a multi-rate record in the caller's memory, of integer taps
 * @{
 */
/**
 * Makes a multi-rate record in memory of the caller. The record points into itself and must not be moved. With both
 * factors 1 it is a single-rate record (`_16s`, which has none, excepted).
 * @param ppState receives the record
 * @param pTaps taps, h[0] first
 * @param tapsLen number of taps
 * @param tapsFactor integer taps stand for pTaps * 2^-tapsFactor
 * @param upFactor factor U of raising the rate
 * @param upPhase place of the first sample among U, in [0, U)
 * @param downFactor factor D of lowering the rate
 * @param downPhase place of the first kept output among D, in [0, D)
 * @param pDlyLine the last ceil(tapsLen / U) samples, newest first, or null for zeros
 * @param pBuffer memory of the size that zorsFIRMRGetStateSize tells, for as long as the record is used
 * @return zorStsNullPointer for a null @p ppState, @p pTaps or @p pBuffer, then zorStsBadFirLength for @p tapsLen
 * below 1, then zorStsBadMultiRateFactor for a factor below 1, then zorStsBadMultiRatePhase for a phase outside its
 * range, then zorStsBadSize where the size is above 2^31 - 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIRMRInit32s_16s,
        (ZorsFIRState32s_16s** ppState, const Zor32s* pTaps, int tapsLen, int tapsFactor, int upFactor,
         int upPhase, int downFactor, int downPhase, const Zor16s* pDlyLine, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFIRMRInit32sc_16sc,
        (ZorsFIRState32sc_16sc** ppState, const Zor32sc* pTaps, int tapsLen, int tapsFactor, int upFactor,
         int upPhase, int downFactor, int downPhase, const Zor16sc* pDlyLine, Zor8u* pBuffer))
ZORSAPI(ZorStatus, zorsFIRMRInit_16s,
        (ZorsFIRState_16s** ppState, const Zor16s* pTaps, int tapsLen, int tapsFactor, int upFactor,
         int upPhase, int downFactor, int downPhase, const Zor16s* pDlyLine, Zor8u* pBuffer))
/** @} */

/** @name Allocation and initialisation of a multi-rate record
 * @{
 */
/**
 * Makes a multi-rate record in memory of the library, to be released by zorsFIRFree.
 * @param ppState receives the record; unchanged after an error
 * @param pTaps taps, h[0] first
 * @param tapsLen number of taps
 * @param upFactor factor U of raising the rate
 * @param upPhase place of the first sample among U, in [0, U)
 * @param downFactor factor D of lowering the rate
 * @param downPhase place of the first kept output among D, in [0, D)
 * @param pDlyLine the last ceil(tapsLen / U) samples, newest first, or null for zeros
 * @return zorStsNullPointer for a null @p ppState or @p pTaps, then as zorsFIRMRInit, then zorStsNoMemory where an
 * allocation fails, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIRMRInitAlloc_32f,
        (ZorsFIRState_32f** ppState, const Zor32f* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, const Zor32f* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRMRInitAlloc_32fc,
        (ZorsFIRState_32fc** ppState, const Zor32fc* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, const Zor32fc* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRMRInitAlloc32f_16s,
        (ZorsFIRState32f_16s** ppState, const Zor32f* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, const Zor16s* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRMRInitAlloc32fc_16sc,
        (ZorsFIRState32fc_16sc** ppState, const Zor32fc* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, const Zor16sc* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRMRInitAlloc_64f,
        (ZorsFIRState_64f** ppState, const Zor64f* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, const Zor64f* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRMRInitAlloc_64fc,
        (ZorsFIRState_64fc** ppState, const Zor64fc* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, const Zor64fc* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRMRInitAlloc64f_32f,
        (ZorsFIRState64f_32f** ppState, const Zor64f* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, const Zor32f* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRMRInitAlloc64fc_32fc,
        (ZorsFIRState64fc_32fc** ppState, const Zor64fc* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, const Zor32fc* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRMRInitAlloc64f_32s,
        (ZorsFIRState64f_32s** ppState, const Zor64f* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, const Zor32s* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRMRInitAlloc64fc_32sc,
        (ZorsFIRState64fc_32sc** ppState, const Zor64fc* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, const Zor32sc* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRMRInitAlloc64f_16s,
        (ZorsFIRState64f_16s** ppState, const Zor64f* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, const Zor16s* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRMRInitAlloc64fc_16sc,
        (ZorsFIRState64fc_16sc** ppState, const Zor64fc* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, const Zor16sc* pDlyLine))
/** @} */

/** @name Allocation and initialisation of a multi-rate record, of integer taps
 * @{
 */
/**
 * Makes a multi-rate record in memory of the library, to be released by zorsFIRFree.
 * @param ppState receives the record; unchanged after an error
 * @param pTaps taps, h[0] first
 * @param tapsLen number of taps
 * @param tapsFactor integer taps stand for pTaps * 2^-tapsFactor
 * @param upFactor factor U of raising the rate
 * @param upPhase place of the first sample among U, in [0, U)
 * @param downFactor factor D of lowering the rate
 * @param downPhase place of the first kept output among D, in [0, D)
 * @param pDlyLine the last ceil(tapsLen / U) samples, newest first, or null for zeros
 * @return zorStsNullPointer for a null @p ppState or @p pTaps, then as zorsFIRMRInit, then zorStsNoMemory where an
 * allocation fails, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIRMRInitAlloc32s_16s,
        (ZorsFIRState32s_16s** ppState, const Zor32s* pTaps, int tapsLen, int tapsFactor, int upFactor,
         int upPhase, int downFactor, int downPhase, const Zor16s* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRMRInitAlloc32sc_16sc,
        (ZorsFIRState32sc_16sc** ppState, const Zor32sc* pTaps, int tapsLen, int tapsFactor, int upFactor,
         int upPhase, int downFactor, int downPhase, const Zor16sc* pDlyLine))
/** @} */

/** @name Size of a stream record
 * @{
 */
/**
 * The size in bytes of the memory that a stream record needs: for `_32f` that of a single-rate record.
 * @param tapsLen number of taps
 * @param pStateSize receives the size
 * @return zorStsNullPointer for a null @p pStateSize, then zorStsBadFirLength for @p tapsLen below 1, then
 * zorStsBadSize for a size above 2^31 - 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIRStreamGetStateSize_16s, (int tapsLen, int* pStateSize))
ZORSAPI(ZorStatus, zorsFIRStreamGetStateSize_32f, (int tapsLen, int* pStateSize))
ZORSAPI(ZorStatus, zorsFIRMRStreamGetStateSize_16s, (int tapsLen, int* pStateSize))
ZORSAPI(ZorStatus, zorsFIRMRStreamGetStateSize_32f, (int tapsLen, int* pStateSize))
/** @} */

/** @name Initialisation of a stream record, of integer taps
 * @{
 */
/**
 * Makes the record of a filter that keeps no samples: zorsFIR, out of place, reads those before the block from the
 * memory before it. The caller's pSrc points at the first new sample, and tapsLen - 1 older ones stand before it in
 * time order. Blocks of one long vector so can be filtered in any order.
 * @param ppState receives the record
 * @param pTaps taps, h[0] first
 * @param tapsLen number of taps
 * @param tapsFactor integer taps stand for pTaps * 2^-tapsFactor
 * @param pBuffer memory of the size that zorsFIRStreamGetStateSize tells, for as long as the record is used
 * @return zorStsNullPointer for a null pointer, then zorStsBadFirLength for @p tapsLen below 1, then zorStsBadSize
 * where the size is above 2^31 - 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIRStreamInit_16s,
        (ZorsFIRState_16s** ppState, const Zor16s* pTaps, int tapsLen, int tapsFactor, Zor8u* pBuffer))
/** @} */

/** @name Initialisation of a stream record
 * @{
 */
/**
 * Makes the record of a filter that keeps no samples: zorsFIR, out of place, reads those before the block from the
 * memory before it. The caller's pSrc points at the first new sample, and tapsLen - 1 older ones stand before it in
 * time order. Blocks of one long vector so can be filtered in any order.
 * @param ppState receives the record
 * @param pTaps taps, h[0] first
 * @param tapsLen number of taps
 * @param pBuffer memory of the size that zorsFIRStreamGetStateSize tells, for as long as the record is used
 * @return zorStsNullPointer for a null pointer, then zorStsBadFirLength for @p tapsLen below 1, then zorStsBadSize
 * where the size is above 2^31 - 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIRStreamInit_32f,
        (ZorsFIRState_32f** ppState, const Zor32f* pTaps, int tapsLen, Zor8u* pBuffer))
/** @} */

/** @name Initialisation of a multi-rate stream record, of integer taps
 * @{
 */
/**
 * The same for a multi-rate filter: before pSrc stand the samples that the first outputs need, at most ceil(tapsLen
 * / U) of them, and ceil(tapsLen / U) - 1 where downPhase is not below upPhase.
 * @param ppState receives the record
 * @param pTaps taps, h[0] first
 * @param tapsLen number of taps
 * @param tapsFactor integer taps stand for pTaps * 2^-tapsFactor
 * @param upFactor factor U of raising the rate
 * @param upPhase place of the first sample among U, in [0, U)
 * @param downFactor factor D of lowering the rate
 * @param downPhase place of the first kept output among D, in [0, D)
 * @param pBuffer memory of the size that zorsFIRMRStreamGetStateSize tells, for as long as the record is used
 * @return zorStsNullPointer for a null pointer, then zorStsBadFirLength for @p tapsLen below 1, then
 * zorStsBadMultiRateFactor for a factor below 1, then zorStsBadMultiRatePhase for a phase outside its range, then
 * zorStsBadSize where the size is above 2^31 - 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIRMRStreamInit_16s,
        (ZorsFIRState_16s** ppState, const Zor16s* pTaps, int tapsLen, int tapsFactor, int upFactor,
         int upPhase, int downFactor, int downPhase, Zor8u* pBuffer))
/** @} */

/** @name Initialisation of a multi-rate stream record
 * @{
 */
/**
 * The same for a multi-rate filter: before pSrc stand the samples that the first outputs need, at most ceil(tapsLen
 * / U) of them, and ceil(tapsLen / U) - 1 where downPhase is not below upPhase.
 * @param ppState receives the record
 * @param pTaps taps, h[0] first
 * @param tapsLen number of taps
 * @param upFactor factor U of raising the rate
 * @param upPhase place of the first sample among U, in [0, U)
 * @param downFactor factor D of lowering the rate
 * @param downPhase place of the first kept output among D, in [0, D)
 * @param pBuffer memory of the size that zorsFIRMRStreamGetStateSize tells, for as long as the record is used
 * @return zorStsNullPointer for a null pointer, then zorStsBadFirLength for @p tapsLen below 1, then
 * zorStsBadMultiRateFactor for a factor below 1, then zorStsBadMultiRatePhase for a phase outside its range, then
 * zorStsBadSize where the size is above 2^31 - 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIRMRStreamInit_32f,
        (ZorsFIRState_32f** ppState, const Zor32f* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, Zor8u* pBuffer))
/** @} */
