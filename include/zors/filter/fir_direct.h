/**
 * @file
 * Finite impulse response filters without a record: taps, delay line and index are the caller's.
 *
 * The delay line has 2 L samples for L taps, which hold every sample twice, so that the last L always stand
 * together: a sample is stored at pDlyLine[index] and pDlyLine[index + L], then the index moves on by one, from L -
 * 1 to 0; the last L samples are now those from pDlyLine[index] on, oldest first. A stream begins with zeros and
 * index 0.
 *
 * For taps in single precision every product is rounded to single precision, and the products are added in double
 * precision; for taps in double precision or of 32 bits both are in double precision. A complex product is (hr xr -
 * hi xi) + i (hr xi + hi xr), its four real products rounded so, their difference and sum in double precision. The
 * sum is formed in a fixed pattern of 32 lanes (complex: 16), product j counted from the oldest sample in lane j mod
 * 32 (16), joined by halves. So all processors give the same bits. Its error is at most (L/32 + 6) 2^-53 sum |p_j|
 * (complex: L/16 + 6) for the products p_j. 16-bit taps on 16-bit data are summed exactly. The result is rounded
 * once, to the type of the data.
 */
#include <zortypes.h>

/** @name Blocks
 * @{
 */
/**
 * Filters a block: pDst[n] = sum over k of h[k] * x[n-k]. Results in integers are multiplied by 2^-scaleFactor,
 * rounded to nearest, ties to even, and saturated. @p pSrc and @p pDst are the same vector or do not overlap.
 * @param pSrc samples
 * @param pDst receives the filtered samples
 * @param numIters number of samples
 * @param pTaps taps, h[0] first
 * @param tapsLen number L of taps
 * @param pDlyLine delay line of 2 L samples
 * @param pDlyLineIndex index of the delay line; receives the next one
 * @return zorStsNullPointer for a null @p pSrc or @p pDst, then zorStsBadSize for @p numIters below 1, then
 * zorStsNullPointer for null @p pTaps, then zorStsBadFirLength for @p tapsLen below 1, then zorStsNullPointer for a
 * null
 * @p pDlyLine or @p pDlyLineIndex, then zorStsBadDelayIndex for an index outside [0, tapsLen), else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIR_Direct_32f,
        (const Zor32f* pSrc, Zor32f* pDst, int numIters, const Zor32f* pTaps, int tapsLen, Zor32f* pDlyLine,
         int* pDlyLineIndex))
ZORSAPI(ZorStatus, zorsFIR_Direct_32fc,
        (const Zor32fc* pSrc, Zor32fc* pDst, int numIters, const Zor32fc* pTaps, int tapsLen, Zor32fc* pDlyLine,
         int* pDlyLineIndex))
ZORSAPI(ZorStatus, zorsFIR_Direct_64f,
        (const Zor64f* pSrc, Zor64f* pDst, int numIters, const Zor64f* pTaps, int tapsLen, Zor64f* pDlyLine,
         int* pDlyLineIndex))
ZORSAPI(ZorStatus, zorsFIR_Direct_64fc,
        (const Zor64fc* pSrc, Zor64fc* pDst, int numIters, const Zor64fc* pTaps, int tapsLen, Zor64fc* pDlyLine,
         int* pDlyLineIndex))
ZORSAPI(ZorStatus, zorsFIR64f_Direct_32f,
        (const Zor32f* pSrc, Zor32f* pDst, int numIters, const Zor64f* pTaps, int tapsLen, Zor32f* pDlyLine,
         int* pDlyLineIndex))
ZORSAPI(ZorStatus, zorsFIR64fc_Direct_32fc,
        (const Zor32fc* pSrc, Zor32fc* pDst, int numIters, const Zor64fc* pTaps, int tapsLen, Zor32fc* pDlyLine,
         int* pDlyLineIndex))
/** @} */

/** @name Blocks, with a scale factor
 * @{
 */
/**
 * Filters a block: pDst[n] = sum over k of h[k] * x[n-k]. Results in integers are multiplied by 2^-scaleFactor,
 * rounded to nearest, ties to even, and saturated. @p pSrc and @p pDst are the same vector or do not overlap.
 * @param pSrc samples
 * @param pDst receives the filtered samples
 * @param numIters number of samples
 * @param pTaps taps, h[0] first
 * @param tapsLen number L of taps
 * @param pDlyLine delay line of 2 L samples
 * @param pDlyLineIndex index of the delay line; receives the next one
 * @param scaleFactor integer results are multiplied by 2^-scaleFactor; any value
 * @return zorStsNullPointer for a null @p pSrc or @p pDst, then zorStsBadSize for @p numIters below 1, then
 * zorStsNullPointer for null @p pTaps, then zorStsBadFirLength for @p tapsLen below 1, then zorStsNullPointer for a
 * null
 * @p pDlyLine or @p pDlyLineIndex, then zorStsBadDelayIndex for an index outside [0, tapsLen), else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIR32f_Direct_16s_Sfs,
        (const Zor16s* pSrc, Zor16s* pDst, int numIters, const Zor32f* pTaps, int tapsLen, Zor16s* pDlyLine,
         int* pDlyLineIndex, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIR32fc_Direct_16sc_Sfs,
        (const Zor16sc* pSrc, Zor16sc* pDst, int numIters, const Zor32fc* pTaps, int tapsLen, Zor16sc* pDlyLine,
         int* pDlyLineIndex, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIR64f_Direct_32s_Sfs,
        (const Zor32s* pSrc, Zor32s* pDst, int numIters, const Zor64f* pTaps, int tapsLen, Zor32s* pDlyLine,
         int* pDlyLineIndex, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIR64fc_Direct_32sc_Sfs,
        (const Zor32sc* pSrc, Zor32sc* pDst, int numIters, const Zor64fc* pTaps, int tapsLen, Zor32sc* pDlyLine,
         int* pDlyLineIndex, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIR64f_Direct_16s_Sfs,
        (const Zor16s* pSrc, Zor16s* pDst, int numIters, const Zor64f* pTaps, int tapsLen, Zor16s* pDlyLine,
         int* pDlyLineIndex, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIR64fc_Direct_16sc_Sfs,
        (const Zor16sc* pSrc, Zor16sc* pDst, int numIters, const Zor64fc* pTaps, int tapsLen, Zor16sc* pDlyLine,
         int* pDlyLineIndex, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIR_Direct_16s_Sfs,
        (const Zor16s* pSrc, Zor16s* pDst, int numIters, const Zor16s* pTaps, int tapsLen, Zor16s* pDlyLine,
         int* pDlyLineIndex, int scaleFactor))
/** @} */

/** @name Blocks, of integer taps, with a scale factor
 * @{
 */
/**
 * Filters a block: pDst[n] = sum over k of h[k] * x[n-k]. Results in integers are multiplied by 2^-scaleFactor,
 * rounded to nearest, ties to even, and saturated. @p pSrc and @p pDst are the same vector or do not overlap.
 * @param pSrc samples
 * @param pDst receives the filtered samples
 * @param numIters number of samples
 * @param pTaps taps, h[0] first
 * @param tapsLen number L of taps
 * @param tapsFactor 32-bit taps stand for pTaps * 2^-tapsFactor
 * @param pDlyLine delay line of 2 L samples
 * @param pDlyLineIndex index of the delay line; receives the next one
 * @param scaleFactor integer results are multiplied by 2^-scaleFactor; any value
 * @return zorStsNullPointer for a null @p pSrc or @p pDst, then zorStsBadSize for @p numIters below 1, then
 * zorStsNullPointer for null @p pTaps, then zorStsBadFirLength for @p tapsLen below 1, then zorStsNullPointer for a
 * null
 * @p pDlyLine or @p pDlyLineIndex, then zorStsBadDelayIndex for an index outside [0, tapsLen), else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIR32s_Direct_16s_Sfs,
        (const Zor16s* pSrc, Zor16s* pDst, int numIters, const Zor32s* pTaps, int tapsLen, int tapsFactor,
         Zor16s* pDlyLine, int* pDlyLineIndex, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIR32sc_Direct_16sc_Sfs,
        (const Zor16sc* pSrc, Zor16sc* pDst, int numIters, const Zor32sc* pTaps, int tapsLen, int tapsFactor,
         Zor16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor))
/** @} */

/** @name Blocks in place
 * @{
 */
/**
 * Filters a block in place, as above.
 * @param pSrcDst samples; receives the filtered samples
 * @param numIters number of samples
 * @param pTaps taps, h[0] first
 * @param tapsLen number L of taps
 * @param pDlyLine delay line of 2 L samples
 * @param pDlyLineIndex index of the delay line; receives the next one
 * @return zorStsNullPointer for a null @p pSrcDst, then as above
 */
ZORSAPI(ZorStatus, zorsFIR_Direct_32f_I,
        (Zor32f* pSrcDst, int numIters, const Zor32f* pTaps, int tapsLen, Zor32f* pDlyLine, int* pDlyLineIndex))
ZORSAPI(ZorStatus, zorsFIR_Direct_32fc_I,
        (Zor32fc* pSrcDst, int numIters, const Zor32fc* pTaps, int tapsLen, Zor32fc* pDlyLine,
         int* pDlyLineIndex))
ZORSAPI(ZorStatus, zorsFIR_Direct_64f_I,
        (Zor64f* pSrcDst, int numIters, const Zor64f* pTaps, int tapsLen, Zor64f* pDlyLine, int* pDlyLineIndex))
ZORSAPI(ZorStatus, zorsFIR_Direct_64fc_I,
        (Zor64fc* pSrcDst, int numIters, const Zor64fc* pTaps, int tapsLen, Zor64fc* pDlyLine,
         int* pDlyLineIndex))
ZORSAPI(ZorStatus, zorsFIR64f_Direct_32f_I,
        (Zor32f* pSrcDst, int numIters, const Zor64f* pTaps, int tapsLen, Zor32f* pDlyLine, int* pDlyLineIndex))
ZORSAPI(ZorStatus, zorsFIR64fc_Direct_32fc_I,
        (Zor32fc* pSrcDst, int numIters, const Zor64fc* pTaps, int tapsLen, Zor32fc* pDlyLine,
         int* pDlyLineIndex))
/** @} */

/** @name Blocks in place, with a scale factor
 * @{
 */
/**
 * Filters a block in place, as above.
 * @param pSrcDst samples; receives the filtered samples
 * @param numIters number of samples
 * @param pTaps taps, h[0] first
 * @param tapsLen number L of taps
 * @param pDlyLine delay line of 2 L samples
 * @param pDlyLineIndex index of the delay line; receives the next one
 * @param scaleFactor integer results are multiplied by 2^-scaleFactor; any value
 * @return zorStsNullPointer for a null @p pSrcDst, then as above
 */
ZORSAPI(ZorStatus, zorsFIR32f_Direct_16s_ISfs,
        (Zor16s* pSrcDst, int numIters, const Zor32f* pTaps, int tapsLen, Zor16s* pDlyLine, int* pDlyLineIndex,
         int scaleFactor))
ZORSAPI(ZorStatus, zorsFIR32fc_Direct_16sc_ISfs,
        (Zor16sc* pSrcDst, int numIters, const Zor32fc* pTaps, int tapsLen, Zor16sc* pDlyLine,
         int* pDlyLineIndex, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIR64f_Direct_32s_ISfs,
        (Zor32s* pSrcDst, int numIters, const Zor64f* pTaps, int tapsLen, Zor32s* pDlyLine, int* pDlyLineIndex,
         int scaleFactor))
ZORSAPI(ZorStatus, zorsFIR64fc_Direct_32sc_ISfs,
        (Zor32sc* pSrcDst, int numIters, const Zor64fc* pTaps, int tapsLen, Zor32sc* pDlyLine,
         int* pDlyLineIndex, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIR64f_Direct_16s_ISfs,
        (Zor16s* pSrcDst, int numIters, const Zor64f* pTaps, int tapsLen, Zor16s* pDlyLine, int* pDlyLineIndex,
         int scaleFactor))
ZORSAPI(ZorStatus, zorsFIR64fc_Direct_16sc_ISfs,
        (Zor16sc* pSrcDst, int numIters, const Zor64fc* pTaps, int tapsLen, Zor16sc* pDlyLine,
         int* pDlyLineIndex, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIR_Direct_16s_ISfs,
        (Zor16s* pSrcDst, int numIters, const Zor16s* pTaps, int tapsLen, Zor16s* pDlyLine, int* pDlyLineIndex,
         int scaleFactor))
/** @} */

/** @name Blocks in place, of integer taps, with a scale factor
 * @{
 */
/**
 * Filters a block in place, as above.
 * @param pSrcDst samples; receives the filtered samples
 * @param numIters number of samples
 * @param pTaps taps, h[0] first
 * @param tapsLen number L of taps
 * @param tapsFactor 32-bit taps stand for pTaps * 2^-tapsFactor
 * @param pDlyLine delay line of 2 L samples
 * @param pDlyLineIndex index of the delay line; receives the next one
 * @param scaleFactor integer results are multiplied by 2^-scaleFactor; any value
 * @return zorStsNullPointer for a null @p pSrcDst, then as above
 */
ZORSAPI(ZorStatus, zorsFIR32s_Direct_16s_ISfs,
        (Zor16s* pSrcDst, int numIters, const Zor32s* pTaps, int tapsLen, int tapsFactor, Zor16s* pDlyLine,
         int* pDlyLineIndex, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIR32sc_Direct_16sc_ISfs,
        (Zor16sc* pSrcDst, int numIters, const Zor32sc* pTaps, int tapsLen, int tapsFactor, Zor16sc* pDlyLine,
         int* pDlyLineIndex, int scaleFactor))
/** @} */

/** @name One sample
 * @{
 */
/**
 * Filters one sample, with the bits that a block gives.
 * @param src sample
 * @param pDst receives the filtered sample
 * @param pTaps taps, h[0] first
 * @param tapsLen number L of taps
 * @param pDlyLine delay line of 2 L samples
 * @param pDlyLineIndex index of the delay line; receives the next one
 * @return zorStsNullPointer for a null @p pDst or @p pTaps, then zorStsBadFirLength for @p tapsLen below 1, then
 * zorStsNullPointer for a null @p pDlyLine or @p pDlyLineIndex, then zorStsBadDelayIndex for an index outside [0,
 * tapsLen), else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIROne_Direct_32f,
        (Zor32f src, Zor32f* pDst, const Zor32f* pTaps, int tapsLen, Zor32f* pDlyLine, int* pDlyLineIndex))
ZORSAPI(ZorStatus, zorsFIROne_Direct_32fc,
        (Zor32fc src, Zor32fc* pDst, const Zor32fc* pTaps, int tapsLen, Zor32fc* pDlyLine, int* pDlyLineIndex))
ZORSAPI(ZorStatus, zorsFIROne_Direct_64f,
        (Zor64f src, Zor64f* pDst, const Zor64f* pTaps, int tapsLen, Zor64f* pDlyLine, int* pDlyLineIndex))
ZORSAPI(ZorStatus, zorsFIROne_Direct_64fc,
        (Zor64fc src, Zor64fc* pDst, const Zor64fc* pTaps, int tapsLen, Zor64fc* pDlyLine, int* pDlyLineIndex))
ZORSAPI(ZorStatus, zorsFIROne64f_Direct_32f,
        (Zor32f src, Zor32f* pDst, const Zor64f* pTaps, int tapsLen, Zor32f* pDlyLine, int* pDlyLineIndex))
ZORSAPI(ZorStatus, zorsFIROne64fc_Direct_32fc,
        (Zor32fc src, Zor32fc* pDst, const Zor64fc* pTaps, int tapsLen, Zor32fc* pDlyLine, int* pDlyLineIndex))
/** @} */

/** @name One sample, with a scale factor
 * @{
 */
/**
 * Filters one sample, with the bits that a block gives.
 * @param src sample
 * @param pDst receives the filtered sample
 * @param pTaps taps, h[0] first
 * @param tapsLen number L of taps
 * @param pDlyLine delay line of 2 L samples
 * @param pDlyLineIndex index of the delay line; receives the next one
 * @param scaleFactor integer results are multiplied by 2^-scaleFactor; any value
 * @return zorStsNullPointer for a null @p pDst or @p pTaps, then zorStsBadFirLength for @p tapsLen below 1, then
 * zorStsNullPointer for a null @p pDlyLine or @p pDlyLineIndex, then zorStsBadDelayIndex for an index outside [0,
 * tapsLen), else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIROne32f_Direct_16s_Sfs,
        (Zor16s src, Zor16s* pDst, const Zor32f* pTaps, int tapsLen, Zor16s* pDlyLine, int* pDlyLineIndex,
         int scaleFactor))
ZORSAPI(ZorStatus, zorsFIROne32fc_Direct_16sc_Sfs,
        (Zor16sc src, Zor16sc* pDst, const Zor32fc* pTaps, int tapsLen, Zor16sc* pDlyLine, int* pDlyLineIndex,
         int scaleFactor))
ZORSAPI(ZorStatus, zorsFIROne64f_Direct_32s_Sfs,
        (Zor32s src, Zor32s* pDst, const Zor64f* pTaps, int tapsLen, Zor32s* pDlyLine, int* pDlyLineIndex,
         int scaleFactor))
ZORSAPI(ZorStatus, zorsFIROne64fc_Direct_32sc_Sfs,
        (Zor32sc src, Zor32sc* pDst, const Zor64fc* pTaps, int tapsLen, Zor32sc* pDlyLine, int* pDlyLineIndex,
         int scaleFactor))
ZORSAPI(ZorStatus, zorsFIROne64f_Direct_16s_Sfs,
        (Zor16s src, Zor16s* pDst, const Zor64f* pTaps, int tapsLen, Zor16s* pDlyLine, int* pDlyLineIndex,
         int scaleFactor))
ZORSAPI(ZorStatus, zorsFIROne64fc_Direct_16sc_Sfs,
        (Zor16sc src, Zor16sc* pDst, const Zor64fc* pTaps, int tapsLen, Zor16sc* pDlyLine, int* pDlyLineIndex,
         int scaleFactor))
ZORSAPI(ZorStatus, zorsFIROne_Direct_16s_Sfs,
        (Zor16s src, Zor16s* pDst, const Zor16s* pTaps, int tapsLen, Zor16s* pDlyLine, int* pDlyLineIndex,
         int scaleFactor))
/** @} */

/** @name One sample, of integer taps, with a scale factor
 * @{
 */
/**
 * Filters one sample, with the bits that a block gives.
 * @param src sample
 * @param pDst receives the filtered sample
 * @param pTaps taps, h[0] first
 * @param tapsLen number L of taps
 * @param tapsFactor 32-bit taps stand for pTaps * 2^-tapsFactor
 * @param pDlyLine delay line of 2 L samples
 * @param pDlyLineIndex index of the delay line; receives the next one
 * @param scaleFactor integer results are multiplied by 2^-scaleFactor; any value
 * @return zorStsNullPointer for a null @p pDst or @p pTaps, then zorStsBadFirLength for @p tapsLen below 1, then
 * zorStsNullPointer for a null @p pDlyLine or @p pDlyLineIndex, then zorStsBadDelayIndex for an index outside [0,
 * tapsLen), else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIROne32s_Direct_16s_Sfs,
        (Zor16s src, Zor16s* pDst, const Zor32s* pTaps, int tapsLen, int tapsFactor, Zor16s* pDlyLine,
         int* pDlyLineIndex, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIROne32sc_Direct_16sc_Sfs,
        (Zor16sc src, Zor16sc* pDst, const Zor32sc* pTaps, int tapsLen, int tapsFactor, Zor16sc* pDlyLine,
         int* pDlyLineIndex, int scaleFactor))
/** @} */
