/**
 * @file
 * Finite impulse response filters over a record: blocks and single samples.
 *
 * The sum of a real filter is formed from two chains, one over the even taps and one over the odd ones, and their
 * sum; that of a complex filter from one chain for the real and one for the imaginary parts of the taps. A chain
 * begins with the newest sample; with AVX2 and AVX-512 each step is one fused multiplication and addition. So with u
 * = 2^-24 (`Zor32f` arithmetic) or 2^-53 an output of the direct path has an error of at most (L/2 + 2) u sum |h[k]|
 * |x[n-k]|, of a complex filter (L + 2) u in each part, with the sum over all products of the part. Data of another
 * type than the arithmetic, integers above all, then are rounded once more. Processors differ in rounding; on one
 * processor an output of the direct path has the same bits whatever the alignment of the vectors and however the
 * stream is cut into calls.
 *
 * Calls of 512 samples and more on filters that are transformed (see fir_state.h) go by overlap-save: blocks of N =
 * 2^(k+1) samples, 2^k being the least power of two above L, are transformed, multiplied by the transformed taps and
 * transformed back, which gives N - L + 1 outputs each. The error is one of the whole block: its root mean square is
 * at most 0.7 of the unit 2 u sqrt(log2 N) |h| rms(x) (measured: 0.68, complex 0.43), and none is greater than 3
 * units; |h| is the root of the sum of the squares of the taps, rms(x) that of the mean square of the block's
 * samples.
 */
#include <zortypes.h>

/** @name Blocks
 * @{
 */
/**
 * Filters a block. A single-rate record: pDst[n] = y[n] for n = 0 ... numIters-1. A multi-rate record: @p numIters
 * iterations, each of downFactor samples of @p pSrc and upFactor of @p pDst; see fir_multirate.h. A stream record
 * reads the samples before the block from the memory before @p pSrc, see there too. Results in integers are y *
 * 2^-scaleFactor, rounded to nearest, ties to even, and saturated.
 * @p pSrc and @p pDst must not overlap; where they are the same vector the call is that of the form in place.
 * @param pSrc samples
 * @param pDst receives the filtered samples
 * @param numIters number of iterations
 * @param pState record
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p numIters below 1, then zorStsWrongContext
 * for a record of other types, in place also for one of a stream, then zorStsNoMemory where a multi-rate filter in
 * place with upFactor above downFactor finds no memory for a copy of its input, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIR_32f, (const Zor32f* pSrc, Zor32f* pDst, int numIters, ZorsFIRState_32f* pState))
ZORSAPI(ZorStatus, zorsFIR_32fc, (const Zor32fc* pSrc, Zor32fc* pDst, int numIters, ZorsFIRState_32fc* pState))
ZORSAPI(ZorStatus, zorsFIR_64f, (const Zor64f* pSrc, Zor64f* pDst, int numIters, ZorsFIRState_64f* pState))
ZORSAPI(ZorStatus, zorsFIR_64fc, (const Zor64fc* pSrc, Zor64fc* pDst, int numIters, ZorsFIRState_64fc* pState))
ZORSAPI(ZorStatus, zorsFIR64f_32f,
        (const Zor32f* pSrc, Zor32f* pDst, int numIters, ZorsFIRState64f_32f* pState))
ZORSAPI(ZorStatus, zorsFIR64fc_32fc,
        (const Zor32fc* pSrc, Zor32fc* pDst, int numIters, ZorsFIRState64fc_32fc* pState))
/** @} */

/** @name Blocks, with a scale factor
 * @{
 */
/**
 * Filters a block. A single-rate record: pDst[n] = y[n] for n = 0 ... numIters-1. A multi-rate record: @p numIters
 * iterations, each of downFactor samples of @p pSrc and upFactor of @p pDst; see fir_multirate.h. A stream record
 * reads the samples before the block from the memory before @p pSrc, see there too. Results in integers are y *
 * 2^-scaleFactor, rounded to nearest, ties to even, and saturated.
 * @p pSrc and @p pDst must not overlap; where they are the same vector the call is that of the form in place.
 * @param pSrc samples
 * @param pDst receives the filtered samples
 * @param numIters number of iterations
 * @param pState record
 * @param scaleFactor integer results are multiplied by 2^-scaleFactor; any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p numIters below 1, then zorStsWrongContext
 * for a record of other types, in place also for one of a stream, then zorStsNoMemory where a multi-rate filter in
 * place with upFactor above downFactor finds no memory for a copy of its input, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIR32f_16s_Sfs,
        (const Zor16s* pSrc, Zor16s* pDst, int numIters, ZorsFIRState32f_16s* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIR32fc_16sc_Sfs,
        (const Zor16sc* pSrc, Zor16sc* pDst, int numIters, ZorsFIRState32fc_16sc* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIR32s_16s_Sfs,
        (const Zor16s* pSrc, Zor16s* pDst, int numIters, ZorsFIRState32s_16s* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIR32sc_16sc_Sfs,
        (const Zor16sc* pSrc, Zor16sc* pDst, int numIters, ZorsFIRState32sc_16sc* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIR64f_32s_Sfs,
        (const Zor32s* pSrc, Zor32s* pDst, int numIters, ZorsFIRState64f_32s* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIR64fc_32sc_Sfs,
        (const Zor32sc* pSrc, Zor32sc* pDst, int numIters, ZorsFIRState64fc_32sc* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIR64f_16s_Sfs,
        (const Zor16s* pSrc, Zor16s* pDst, int numIters, ZorsFIRState64f_16s* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIR64fc_16sc_Sfs,
        (const Zor16sc* pSrc, Zor16sc* pDst, int numIters, ZorsFIRState64fc_16sc* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIR_16s_Sfs,
        (const Zor16s* pSrc, Zor16s* pDst, int numIters, ZorsFIRState_16s* pState, int scaleFactor))
/** @} */

/** @name Blocks in place
 * @{
 */
/**
 * Filters a block in place, as above. A single-rate filter takes chunks of 4096 samples, and a chunk goes by
 * overlap-save only where at least 512 samples follow it. A multi-rate filter leaves upFactor * numIters samples
 * where downFactor * numIters were; with upFactor above downFactor it works from a copy of at most 2^31 - 1 bytes,
 * which it allocates.
 * @param pSrcDst samples; receives the filtered samples
 * @param numIters number of iterations
 * @param pState record
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p numIters below 1, then zorStsWrongContext
 * for a record of other types or of a stream, then zorStsNoMemory where there is no memory for the copy, else
 * zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIR_32f_I, (Zor32f* pSrcDst, int numIters, ZorsFIRState_32f* pState))
ZORSAPI(ZorStatus, zorsFIR_32fc_I, (Zor32fc* pSrcDst, int numIters, ZorsFIRState_32fc* pState))
ZORSAPI(ZorStatus, zorsFIR_64f_I, (Zor64f* pSrcDst, int numIters, ZorsFIRState_64f* pState))
ZORSAPI(ZorStatus, zorsFIR_64fc_I, (Zor64fc* pSrcDst, int numIters, ZorsFIRState_64fc* pState))
ZORSAPI(ZorStatus, zorsFIR64f_32f_I, (Zor32f* pSrcDst, int numIters, ZorsFIRState64f_32f* pState))
ZORSAPI(ZorStatus, zorsFIR64fc_32fc_I, (Zor32fc* pSrcDst, int numIters, ZorsFIRState64fc_32fc* pState))
/** @} */

/** @name Blocks in place, with a scale factor
 * @{
 */
/**
 * Filters a block in place, as above. A single-rate filter takes chunks of 4096 samples, and a chunk goes by
 * overlap-save only where at least 512 samples follow it. A multi-rate filter leaves upFactor * numIters samples
 * where downFactor * numIters were; with upFactor above downFactor it works from a copy of at most 2^31 - 1 bytes,
 * which it allocates.
 * @param pSrcDst samples; receives the filtered samples
 * @param numIters number of iterations
 * @param pState record
 * @param scaleFactor integer results are multiplied by 2^-scaleFactor; any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p numIters below 1, then zorStsWrongContext
 * for a record of other types or of a stream, then zorStsNoMemory where there is no memory for the copy, else
 * zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIR32f_16s_ISfs,
        (Zor16s* pSrcDst, int numIters, ZorsFIRState32f_16s* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIR32fc_16sc_ISfs,
        (Zor16sc* pSrcDst, int numIters, ZorsFIRState32fc_16sc* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIR32s_16s_ISfs,
        (Zor16s* pSrcDst, int numIters, ZorsFIRState32s_16s* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIR32sc_16sc_ISfs,
        (Zor16sc* pSrcDst, int numIters, ZorsFIRState32sc_16sc* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIR64f_32s_ISfs,
        (Zor32s* pSrcDst, int numIters, ZorsFIRState64f_32s* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIR64fc_32sc_ISfs,
        (Zor32sc* pSrcDst, int numIters, ZorsFIRState64fc_32sc* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIR64f_16s_ISfs,
        (Zor16s* pSrcDst, int numIters, ZorsFIRState64f_16s* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIR64fc_16sc_ISfs,
        (Zor16sc* pSrcDst, int numIters, ZorsFIRState64fc_16sc* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIR_16s_ISfs, (Zor16s* pSrcDst, int numIters, ZorsFIRState_16s* pState, int scaleFactor))
/** @} */

/** @name One sample
 * @{
 */
/**
 * Filters one sample: the next of the stream. The sum is formed in another order than in blocks, over lanes of the
 * processor's vectors, within the same bound.
 * @param src sample
 * @param pDst receives the filtered sample
 * @param pState single-rate record
 * @return zorStsNullPointer for a null pointer, then zorStsWrongContext for a record that is not of a single-rate
 * filter of these types, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIROne_32f, (Zor32f src, Zor32f* pDst, ZorsFIRState_32f* pState))
ZORSAPI(ZorStatus, zorsFIROne_32fc, (Zor32fc src, Zor32fc* pDst, ZorsFIRState_32fc* pState))
ZORSAPI(ZorStatus, zorsFIROne_64f, (Zor64f src, Zor64f* pDst, ZorsFIRState_64f* pState))
ZORSAPI(ZorStatus, zorsFIROne_64fc, (Zor64fc src, Zor64fc* pDst, ZorsFIRState_64fc* pState))
ZORSAPI(ZorStatus, zorsFIROne64f_32f, (Zor32f src, Zor32f* pDst, ZorsFIRState64f_32f* pState))
ZORSAPI(ZorStatus, zorsFIROne64fc_32fc, (Zor32fc src, Zor32fc* pDst, ZorsFIRState64fc_32fc* pState))
/** @} */

/** @name One sample, with a scale factor
 * @{
 */
/**
 * Filters one sample: the next of the stream. The sum is formed in another order than in blocks, over lanes of the
 * processor's vectors, within the same bound.
 * @param src sample
 * @param pDst receives the filtered sample
 * @param pState single-rate record
 * @param scaleFactor integer results are multiplied by 2^-scaleFactor; any value
 * @return zorStsNullPointer for a null pointer, then zorStsWrongContext for a record that is not of a single-rate
 * filter of these types, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIROne32f_16s_Sfs,
        (Zor16s src, Zor16s* pDst, ZorsFIRState32f_16s* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIROne32fc_16sc_Sfs,
        (Zor16sc src, Zor16sc* pDst, ZorsFIRState32fc_16sc* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIROne32s_16s_Sfs,
        (Zor16s src, Zor16s* pDst, ZorsFIRState32s_16s* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIROne32sc_16sc_Sfs,
        (Zor16sc src, Zor16sc* pDst, ZorsFIRState32sc_16sc* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIROne64f_32s_Sfs,
        (Zor32s src, Zor32s* pDst, ZorsFIRState64f_32s* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIROne64fc_32sc_Sfs,
        (Zor32sc src, Zor32sc* pDst, ZorsFIRState64fc_32sc* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIROne64f_16s_Sfs,
        (Zor16s src, Zor16s* pDst, ZorsFIRState64f_16s* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsFIROne64fc_16sc_Sfs,
        (Zor16sc src, Zor16sc* pDst, ZorsFIRState64fc_16sc* pState, int scaleFactor))
/** @} */
