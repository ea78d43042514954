/**
 * @file
 * Channels in rows of their own and channels interleaved in frames.
 *
 * Frame n holds element n of every channel: pFrames[n * numChannels + c] = pRows[c][n]. Elements of `24s` are three
 * bytes each, least significant first.
 */
#include <zortypes.h>

/** @name Join rows
 * @{
 */
/**
 * Joins rows of floats to interleaved integers at full scale: pDst[n * numChannels + c] = pSrc[c][n] * 2^15
 * (`24s`: 2^23), rounded to nearest, ties to even, and saturated. A value that is not a number gives 0.
 * @param pSrc one row a channel, of @p len elements each
 * @param pDst frames, @p len * @p numChannels elements
 * @param numChannels number of channels
 * @param len number of frames
 * @return zorStsNullPointer for a null pointer or row, then zorStsBadSize for @p len below 1, then
 * zorStsBadNumChannels for @p numChannels below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsJoinScaled_32f16s_D2L,
        (const Zor32f* const* pSrc, Zor16s* pDst, int numChannels, int len))
ZORSAPI(ZorStatus, zorsJoinScaled_32f24s_D2L,
        (const Zor32f* const* pSrc, Zor8u* pDst, int numChannels, int len))
/** @} */

/** @name Split to rows
 * @{
 */
/**
 * Splits interleaved integers to rows of floats: pDst[c][n] = pSrc[n * numChannels + c] / 2^15 (`24s`: 2^23),
 * which is exact and from -1 on below 1.
 * @param pSrc frames, @p len * @p numChannels elements
 * @param pDst one row a channel, of @p len elements each
 * @param numChannels number of channels
 * @param len number of frames
 * @return zorStsNullPointer for a null pointer or row, then zorStsBadSize for @p len below 1, then
 * zorStsBadNumChannels for @p numChannels below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsSplitScaled_16s32f_D2L,
        (const Zor16s* pSrc, Zor32f* const* pDst, int numChannels, int len))
ZORSAPI(ZorStatus, zorsSplitScaled_24s32f_D2L,
        (const Zor8u* pSrc, Zor32f* const* pDst, int numChannels, int len))
/** @} */
