/**
 * @file
 * Multi-rate filters without a record: taps and delay line are the caller's. The filter is that of fir_multirate.h,
 * the arithmetic that of fir_direct.h, where an output's products are counted from its oldest sample, and L is the
 * number of its own taps, ceil(tapsLen / U) at the most.
 */
#include <zortypes.h>

/** @name Blocks
 * @{
 */
/**
 * Filters a block: @p numIters iterations, each of D samples of @p pSrc and U of @p pDst. Results in integers are
 * multiplied by 2^-scaleFactor, rounded to nearest, ties to even, and saturated. @p pSrc and @p pDst must not
 * overlap; where they are the same vector the call is that of the form in place.
 * @param pSrc numIters * D samples
 * @param pDst receives numIters * U samples
 * @param numIters number of iterations
 * @param pTaps taps, h[0] first
 * @param tapsLen number of taps
 * @param upFactor factor U of raising the rate
 * @param upPhase place of the first sample among U, in [0, U)
 * @param downFactor factor D of lowering the rate
 * @param downPhase place of the first kept output among D, in [0, D)
 * @param pDlyLine the last ceil(tapsLen / U) samples, newest first; receives the newest ones
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p numIters below 1, then zorStsBadFirLength
 * for @p tapsLen below 1, then zorStsBadMultiRateFactor for a factor below 1, then zorStsBadMultiRatePhase for a
 * phase outside its range, then, where both are the same vector, zorStsNoMemory as in place, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIRMR_Direct_32f,
        (const Zor32f* pSrc, Zor32f* pDst, int numIters, const Zor32f* pTaps, int tapsLen, int upFactor,
         int upPhase, int downFactor, int downPhase, Zor32f* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRMR_Direct_32fc,
        (const Zor32fc* pSrc, Zor32fc* pDst, int numIters, const Zor32fc* pTaps, int tapsLen, int upFactor,
         int upPhase, int downFactor, int downPhase, Zor32fc* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRMR_Direct_64f,
        (const Zor64f* pSrc, Zor64f* pDst, int numIters, const Zor64f* pTaps, int tapsLen, int upFactor,
         int upPhase, int downFactor, int downPhase, Zor64f* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRMR_Direct_64fc,
        (const Zor64fc* pSrc, Zor64fc* pDst, int numIters, const Zor64fc* pTaps, int tapsLen, int upFactor,
         int upPhase, int downFactor, int downPhase, Zor64fc* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRMR64f_Direct_32f,
        (const Zor32f* pSrc, Zor32f* pDst, int numIters, const Zor64f* pTaps, int tapsLen, int upFactor,
         int upPhase, int downFactor, int downPhase, Zor32f* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRMR64fc_Direct_32fc,
        (const Zor32fc* pSrc, Zor32fc* pDst, int numIters, const Zor64fc* pTaps, int tapsLen, int upFactor,
         int upPhase, int downFactor, int downPhase, Zor32fc* pDlyLine))
/** @} */

/** @name Blocks, with a scale factor
 * @{
 */
/**
 * Filters a block: @p numIters iterations, each of D samples of @p pSrc and U of @p pDst. Results in integers are
 * multiplied by 2^-scaleFactor, rounded to nearest, ties to even, and saturated. @p pSrc and @p pDst must not
 * overlap; where they are the same vector the call is that of the form in place.
 * @param pSrc numIters * D samples
 * @param pDst receives numIters * U samples
 * @param numIters number of iterations
 * @param pTaps taps, h[0] first
 * @param tapsLen number of taps
 * @param upFactor factor U of raising the rate
 * @param upPhase place of the first sample among U, in [0, U)
 * @param downFactor factor D of lowering the rate
 * @param downPhase place of the first kept output among D, in [0, D)
 * @param pDlyLine the last ceil(tapsLen / U) samples, newest first; receives the newest ones
 * @param scaleFactor integer results are multiplied by 2^-scaleFactor; any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p numIters below 1, then zorStsBadFirLength
 * for @p tapsLen below 1, then zorStsBadMultiRateFactor for a factor below 1, then zorStsBadMultiRatePhase for a
 * phase outside its range, then, where both are the same vector, zorStsNoMemory as in place, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIRMR32f_Direct_16s_Sfs,
        (const Zor16s* pSrc, Zor16s* pDst, int numIters, const Zor32f* pTaps, int tapsLen, int upFactor,
         int upPhase, int downFactor, int downPhase, Zor16s* pDlyLine, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIRMR32fc_Direct_16sc_Sfs,
        (const Zor16sc* pSrc, Zor16sc* pDst, int numIters, const Zor32fc* pTaps, int tapsLen, int upFactor,
         int upPhase, int downFactor, int downPhase, Zor16sc* pDlyLine, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIRMR64f_Direct_32s_Sfs,
        (const Zor32s* pSrc, Zor32s* pDst, int numIters, const Zor64f* pTaps, int tapsLen, int upFactor,
         int upPhase, int downFactor, int downPhase, Zor32s* pDlyLine, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIRMR64fc_Direct_32sc_Sfs,
        (const Zor32sc* pSrc, Zor32sc* pDst, int numIters, const Zor64fc* pTaps, int tapsLen, int upFactor,
         int upPhase, int downFactor, int downPhase, Zor32sc* pDlyLine, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIRMR64f_Direct_16s_Sfs,
        (const Zor16s* pSrc, Zor16s* pDst, int numIters, const Zor64f* pTaps, int tapsLen, int upFactor,
         int upPhase, int downFactor, int downPhase, Zor16s* pDlyLine, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIRMR64fc_Direct_16sc_Sfs,
        (const Zor16sc* pSrc, Zor16sc* pDst, int numIters, const Zor64fc* pTaps, int tapsLen, int upFactor,
         int upPhase, int downFactor, int downPhase, Zor16sc* pDlyLine, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIRMR_Direct_16s_Sfs,
        (const Zor16s* pSrc, Zor16s* pDst, int numIters, const Zor16s* pTaps, int tapsLen, int upFactor,
         int upPhase, int downFactor, int downPhase, Zor16s* pDlyLine, int scaleFactor))
/** @} */

/** @name Blocks, of integer taps, with a scale factor
 * @{
 */
/**
 * Filters a block: @p numIters iterations, each of D samples of @p pSrc and U of @p pDst. Results in integers are
 * multiplied by 2^-scaleFactor, rounded to nearest, ties to even, and saturated. @p pSrc and @p pDst must not
 * overlap; where they are the same vector the call is that of the form in place.
 * @param pSrc numIters * D samples
 * @param pDst receives numIters * U samples
 * @param numIters number of iterations
 * @param pTaps taps, h[0] first
 * @param tapsLen number of taps
 * @param tapsFactor 32-bit taps stand for pTaps * 2^-tapsFactor
 * @param upFactor factor U of raising the rate
 * @param upPhase place of the first sample among U, in [0, U)
 * @param downFactor factor D of lowering the rate
 * @param downPhase place of the first kept output among D, in [0, D)
 * @param pDlyLine the last ceil(tapsLen / U) samples, newest first; receives the newest ones
 * @param scaleFactor integer results are multiplied by 2^-scaleFactor; any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p numIters below 1, then zorStsBadFirLength
 * for @p tapsLen below 1, then zorStsBadMultiRateFactor for a factor below 1, then zorStsBadMultiRatePhase for a
 * phase outside its range, then, where both are the same vector, zorStsNoMemory as in place, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIRMR32s_Direct_16s_Sfs,
        (const Zor16s* pSrc, Zor16s* pDst, int numIters, const Zor32s* pTaps, int tapsLen, int tapsFactor,
         int upFactor, int upPhase, int downFactor, int downPhase, Zor16s* pDlyLine, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIRMR32sc_Direct_16sc_Sfs,
        (const Zor16sc* pSrc, Zor16sc* pDst, int numIters, const Zor32sc* pTaps, int tapsLen, int tapsFactor,
         int upFactor, int upPhase, int downFactor, int downPhase, Zor16sc* pDlyLine, int scaleFactor))
/** @} */

/** @name Blocks in place
 * @{
 */
/**
 * Filters a block in place. The call allocates a copy of its input, of at most 2^31 - 1 bytes.
 * @param pSrcDst numIters * D samples; receives numIters * U
 * @param numIters number of iterations
 * @param pTaps taps, h[0] first
 * @param tapsLen number of taps
 * @param upFactor factor U of raising the rate
 * @param upPhase place of the first sample among U, in [0, U)
 * @param downFactor factor D of lowering the rate
 * @param downPhase place of the first kept output among D, in [0, D)
 * @param pDlyLine the last ceil(tapsLen / U) samples, newest first; receives the newest ones
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p numIters below 1, then zorStsBadFirLength
 * for @p tapsLen below 1, then zorStsBadMultiRateFactor for a factor below 1, then zorStsBadMultiRatePhase for a
 * phase outside its range, then zorStsNoMemory where there is no memory for the copy, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIRMR_Direct_32f_I,
        (Zor32f* pSrcDst, int numIters, const Zor32f* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, Zor32f* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRMR_Direct_32fc_I,
        (Zor32fc* pSrcDst, int numIters, const Zor32fc* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, Zor32fc* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRMR_Direct_64f_I,
        (Zor64f* pSrcDst, int numIters, const Zor64f* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, Zor64f* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRMR_Direct_64fc_I,
        (Zor64fc* pSrcDst, int numIters, const Zor64fc* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, Zor64fc* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRMR64f_Direct_32f_I,
        (Zor32f* pSrcDst, int numIters, const Zor64f* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, Zor32f* pDlyLine))
ZORSAPI(ZorStatus, zorsFIRMR64fc_Direct_32fc_I,
        (Zor32fc* pSrcDst, int numIters, const Zor64fc* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, Zor32fc* pDlyLine))
/** @} */

/** @name Blocks in place, with a scale factor
 * @{
 */
/**
 * Filters a block in place. The call allocates a copy of its input, of at most 2^31 - 1 bytes.
 * @param pSrcDst numIters * D samples; receives numIters * U
 * @param numIters number of iterations
 * @param pTaps taps, h[0] first
 * @param tapsLen number of taps
 * @param upFactor factor U of raising the rate
 * @param upPhase place of the first sample among U, in [0, U)
 * @param downFactor factor D of lowering the rate
 * @param downPhase place of the first kept output among D, in [0, D)
 * @param pDlyLine the last ceil(tapsLen / U) samples, newest first; receives the newest ones
 * @param scaleFactor integer results are multiplied by 2^-scaleFactor; any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p numIters below 1, then zorStsBadFirLength
 * for @p tapsLen below 1, then zorStsBadMultiRateFactor for a factor below 1, then zorStsBadMultiRatePhase for a
 * phase outside its range, then zorStsNoMemory where there is no memory for the copy, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIRMR32f_Direct_16s_ISfs,
        (Zor16s* pSrcDst, int numIters, const Zor32f* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, Zor16s* pDlyLine, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIRMR32fc_Direct_16sc_ISfs,
        (Zor16sc* pSrcDst, int numIters, const Zor32fc* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, Zor16sc* pDlyLine, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIRMR64f_Direct_32s_ISfs,
        (Zor32s* pSrcDst, int numIters, const Zor64f* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, Zor32s* pDlyLine, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIRMR64fc_Direct_32sc_ISfs,
        (Zor32sc* pSrcDst, int numIters, const Zor64fc* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, Zor32sc* pDlyLine, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIRMR64f_Direct_16s_ISfs,
        (Zor16s* pSrcDst, int numIters, const Zor64f* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, Zor16s* pDlyLine, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIRMR64fc_Direct_16sc_ISfs,
        (Zor16sc* pSrcDst, int numIters, const Zor64fc* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, Zor16sc* pDlyLine, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIRMR_Direct_16s_ISfs,
        (Zor16s* pSrcDst, int numIters, const Zor16s* pTaps, int tapsLen, int upFactor, int upPhase,
         int downFactor, int downPhase, Zor16s* pDlyLine, int scaleFactor))
/** @} */

/** @name Blocks in place, of integer taps, with a scale factor
 * @{
 */
/**
 * Filters a block in place. The call allocates a copy of its input, of at most 2^31 - 1 bytes.
 * @param pSrcDst numIters * D samples; receives numIters * U
 * @param numIters number of iterations
 * @param pTaps taps, h[0] first
 * @param tapsLen number of taps
 * @param tapsFactor 32-bit taps stand for pTaps * 2^-tapsFactor
 * @param upFactor factor U of raising the rate
 * @param upPhase place of the first sample among U, in [0, U)
 * @param downFactor factor D of lowering the rate
 * @param downPhase place of the first kept output among D, in [0, D)
 * @param pDlyLine the last ceil(tapsLen / U) samples, newest first; receives the newest ones
 * @param scaleFactor integer results are multiplied by 2^-scaleFactor; any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p numIters below 1, then zorStsBadFirLength
 * for @p tapsLen below 1, then zorStsBadMultiRateFactor for a factor below 1, then zorStsBadMultiRatePhase for a
 * phase outside its range, then zorStsNoMemory where there is no memory for the copy, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIRMR32s_Direct_16s_ISfs,
        (Zor16s* pSrcDst, int numIters, const Zor32s* pTaps, int tapsLen, int tapsFactor, int upFactor,
         int upPhase, int downFactor, int downPhase, Zor16s* pDlyLine, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIRMR32sc_Direct_16sc_ISfs,
        (Zor16sc* pSrcDst, int numIters, const Zor32sc* pTaps, int tapsLen, int tapsFactor, int upFactor,
         int upPhase, int downFactor, int downPhase, Zor16sc* pDlyLine, int scaleFactor))
/** @} */
