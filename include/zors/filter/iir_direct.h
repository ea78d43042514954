/**
 * @file
 * Infinite impulse response filters of 16-bit data without a record: taps and delay line are the caller's.
 *
 * The taps are integers with a factor of their own in the place of a0: b0 ... bN, f, a1 ... aN of a filter of order
 * N, b0, b1, b2, f, a1, a2 of each section of a cascade. An output is
 *
 *     y[n] = (sum over k = 0 ... N of b[k] x[n-k] - sum over k = 1 ... N of a[k] y[n-k]) * 2^-f,
 *
 * the sums exact, rounded to nearest, ties to even, and saturated; what is fed back, and what the next section takes,
 * are these 16 bits. So all processors give the same bits, however a stream is cut into calls.
 *
 * The delay line has N elements, of a cascade 2 a section, the first section's first: an element a past sample,
 * newest first, with x[n-k] in its low 16 bits and y[n-k] in its high ones. A stream begins with zeros.
 */
#include <zortypes.h>

/** @name Blocks, of any order
 * @{
 */
/**
 * Filters a block. @p pSrc and @p pDst are the same vector or do not overlap.
 * @param pSrc samples
 * @param pDst receives the filtered samples
 * @param numIters number of samples
 * @param pTaps taps
 * @param order order N of the filter
 * @param pDlyLine delay line of N elements, of a cascade 2 numBq
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p numIters below 1, then zorStsBadIirOrder
 * for @p order or @p numBq below 1, then zorStsBadTapsScale for a negative f, of any section, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsIIR_Direct_16s,
        (const Zor16s* pSrc, Zor16s* pDst, int numIters, const Zor16s* pTaps, int order, Zor32s* pDlyLine))
/** @} */

/** @name Blocks, of sections
 * @{
 */
/**
 * Filters a block. @p pSrc and @p pDst are the same vector or do not overlap.
 * @param pSrc samples
 * @param pDst receives the filtered samples
 * @param numIters number of samples
 * @param pTaps taps
 * @param numBq number of sections
 * @param pDlyLine delay line of N elements, of a cascade 2 numBq
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p numIters below 1, then zorStsBadIirOrder
 * for @p order or @p numBq below 1, then zorStsBadTapsScale for a negative f, of any section, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsIIR_BiQuadDirect_16s,
        (const Zor16s* pSrc, Zor16s* pDst, int numIters, const Zor16s* pTaps, int numBq, Zor32s* pDlyLine))
/** @} */

/** @name Blocks in place, of any order
 * @{
 */
/**
 * Filters a block in place, as above.
 * @param pSrcDst samples; receives the filtered samples
 * @param numIters number of samples
 * @param pTaps taps
 * @param order order N of the filter
 * @param pDlyLine delay line of N elements, of a cascade 2 numBq
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p numIters below 1, then zorStsBadIirOrder
 * for @p order or @p numBq below 1, then zorStsBadTapsScale for a negative f, of any section, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsIIR_Direct_16s_I,
        (Zor16s* pSrcDst, int numIters, const Zor16s* pTaps, int order, Zor32s* pDlyLine))
/** @} */

/** @name Blocks in place, of sections
 * @{
 */
/**
 * Filters a block in place, as above.
 * @param pSrcDst samples; receives the filtered samples
 * @param numIters number of samples
 * @param pTaps taps
 * @param numBq number of sections
 * @param pDlyLine delay line of N elements, of a cascade 2 numBq
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p numIters below 1, then zorStsBadIirOrder
 * for @p order or @p numBq below 1, then zorStsBadTapsScale for a negative f, of any section, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsIIR_BiQuadDirect_16s_I,
        (Zor16s* pSrcDst, int numIters, const Zor16s* pTaps, int numBq, Zor32s* pDlyLine))
/** @} */

/** @name One sample, of any order
 * @{
 */
/**
 * Filters one sample: the next of the stream.
 * @param src sample
 * @param pDst receives the filtered sample
 * @param pTaps taps
 * @param order order N of the filter
 * @param pDlyLine delay line of N elements, of a cascade 2 numBq
 * @return zorStsNullPointer for a null pointer, then zorStsBadIirOrder for @p order or @p numBq below 1, then
 * zorStsBadTapsScale for a negative f, of any section, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsIIROne_Direct_16s,
        (Zor16s src, Zor16s* pDst, const Zor16s* pTaps, int order, Zor32s* pDlyLine))
/** @} */

/** @name One sample, of sections
 * @{
 */
/**
 * Filters one sample: the next of the stream.
 * @param src sample
 * @param pDst receives the filtered sample
 * @param pTaps taps
 * @param numBq number of sections
 * @param pDlyLine delay line of N elements, of a cascade 2 numBq
 * @return zorStsNullPointer for a null pointer, then zorStsBadIirOrder for @p order or @p numBq below 1, then
 * zorStsBadTapsScale for a negative f, of any section, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsIIROne_BiQuadDirect_16s,
        (Zor16s src, Zor16s* pDst, const Zor16s* pTaps, int numBq, Zor32s* pDlyLine))
/** @} */

/** @name One sample in place, of any order
 * @{
 */
/**
 * Filters one sample in place, as above.
 * @param pSrcDst sample; receives the filtered sample
 * @param pTaps taps
 * @param order order N of the filter
 * @param pDlyLine delay line of N elements, of a cascade 2 numBq
 * @return zorStsNullPointer for a null pointer, then zorStsBadIirOrder for @p order or @p numBq below 1, then
 * zorStsBadTapsScale for a negative f, of any section, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsIIROne_Direct_16s_I, (Zor16s* pSrcDst, const Zor16s* pTaps, int order, Zor32s* pDlyLine))
/** @} */

/** @name One sample in place, of sections
 * @{
 */
/**
 * Filters one sample in place, as above.
 * @param pSrcDst sample; receives the filtered sample
 * @param pTaps taps
 * @param numBq number of sections
 * @param pDlyLine delay line of N elements, of a cascade 2 numBq
 * @return zorStsNullPointer for a null pointer, then zorStsBadIirOrder for @p order or @p numBq below 1, then
 * zorStsBadTapsScale for a negative f, of any section, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsIIROne_BiQuadDirect_16s_I,
        (Zor16s* pSrcDst, const Zor16s* pTaps, int numBq, Zor32s* pDlyLine))
/** @} */
