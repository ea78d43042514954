/**
 * @file
 * Infinite impulse response filters over a record: blocks, single samples and several channels.
 *
 * With u = 2^-24 (`Zor32f` arithmetic) or 2^-53 each section makes roundings at sample n that amount to an error of
 * at most e[n] = (2 N + 6) u (sum |b[k]| |x[n-k]| + sum |a[k]| |y[n-k]|) at its output, of complex filters (6 N + 16)
 * u of the same magnitudes, N being its order and the taps divided by a0; x, y and the taps are those without
 * rounding. (With AVX2 and AVX-512 a product is added in one rounding.) What was not exact goes round the loop with
 * the output, so the error of the output is at most the sum over k of |g[k]| e[n-k], g being the impulse response of
 * 1 / (1 + a1 z^-1 + ... + aN z^-N); the next section filters the error together with the signal. Poles at radius
 * 0.999 may so cost three decimal digits. Where a single section goes by steps (below), e[n] is the largest of the
 * last 32 samples, complex 16: what is left of a signal that stops may decay by many powers of ten in a step. Tests
 * hold filters with poles all around the circle and filters with all poles in one place to this.
 *
 * Data of types other than the arithmetic's are converted to it, and the results back: to `Zor32f` and `Zor32fc` with
 * one more rounding; to integers times 2^-scaleFactor, rounded to nearest, ties to even, and saturated. What a filter
 * feeds back is neither scaled nor saturated.
 *
 * Filters of order up to 16, and at least the first eight sections of cascades, filter calls of 16 samples and more
 * (complex ones of 8) by steps of so many: the outputs of a step and the delay line behind it are formed from its
 * samples and the delay line before it, by tables that the recurrence makes in double precision when taps are set.
 * All others go sample by sample: steps that have or make numbers that are not finite, and single sections of a high
 * order whose poles are close to one another, as low cut-offs have them, because steps would lose their digits. Both
 * are within the bound. Processors differ in rounding, and so do different cuts of a stream into calls; on one
 * processor the same calls have the same bits whatever the alignment of the vectors, in place or not.
 *
 * In blocks denormal numbers count as zeros: what a filter feeds back decays into them, and they would take a hundred
 * times as long. In single samples they do as soon as samples or outputs of sections are below 2^-100 (`Zor64f`
 * arithmetic: 2^-970). Fed a sample of zero then, the first sections whose delay lines are all below that come to
 * rest: their delay lines become zeros.
 */
#include <zortypes.h>

/** @name Blocks
 * @{
 */
/**
 * Filters a block: the next @p len samples of the stream. @p pSrc and @p pDst are the same vector or do not overlap.
 * @param pSrc samples
 * @param pDst receives the filtered samples
 * @param len number of samples
 * @param pState record
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, then zorStsWrongContext for a
 * record of other types, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsIIR_32f, (const Zor32f* pSrc, Zor32f* pDst, int len, ZorsIIRState_32f* pState))
ZORSAPI(ZorStatus, zorsIIR_32fc, (const Zor32fc* pSrc, Zor32fc* pDst, int len, ZorsIIRState_32fc* pState))
ZORSAPI(ZorStatus, zorsIIR_64f, (const Zor64f* pSrc, Zor64f* pDst, int len, ZorsIIRState_64f* pState))
ZORSAPI(ZorStatus, zorsIIR_64fc, (const Zor64fc* pSrc, Zor64fc* pDst, int len, ZorsIIRState_64fc* pState))
ZORSAPI(ZorStatus, zorsIIR64f_32f, (const Zor32f* pSrc, Zor32f* pDst, int len, ZorsIIRState64f_32f* pState))
ZORSAPI(ZorStatus, zorsIIR64fc_32fc,
        (const Zor32fc* pSrc, Zor32fc* pDst, int len, ZorsIIRState64fc_32fc* pState))
/** @} */

/** @name Blocks, with a scale factor
 * @{
 */
/**
 * Filters a block: the next @p len samples of the stream. @p pSrc and @p pDst are the same vector or do not overlap.
 * @param pSrc samples
 * @param pDst receives the filtered samples
 * @param len number of samples
 * @param pState record
 * @param scaleFactor integer results are multiplied by 2^-scaleFactor; any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, then zorStsWrongContext for a
 * record of other types, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsIIR32f_16s_Sfs,
        (const Zor16s* pSrc, Zor16s* pDst, int len, ZorsIIRState32f_16s* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsIIR32fc_16sc_Sfs,
        (const Zor16sc* pSrc, Zor16sc* pDst, int len, ZorsIIRState32fc_16sc* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsIIR32s_16s_Sfs,
        (const Zor16s* pSrc, Zor16s* pDst, int len, ZorsIIRState32s_16s* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsIIR32sc_16sc_Sfs,
        (const Zor16sc* pSrc, Zor16sc* pDst, int len, ZorsIIRState32sc_16sc* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsIIR64f_32s_Sfs,
        (const Zor32s* pSrc, Zor32s* pDst, int len, ZorsIIRState64f_32s* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsIIR64fc_32sc_Sfs,
        (const Zor32sc* pSrc, Zor32sc* pDst, int len, ZorsIIRState64fc_32sc* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsIIR64f_16s_Sfs,
        (const Zor16s* pSrc, Zor16s* pDst, int len, ZorsIIRState64f_16s* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsIIR64fc_16sc_Sfs,
        (const Zor16sc* pSrc, Zor16sc* pDst, int len, ZorsIIRState64fc_16sc* pState, int scaleFactor))
/** @} */

/** @name Blocks in place
 * @{
 */
/**
 * Filters a block in place, as above.
 * @param pSrcDst samples; receives the filtered samples
 * @param len number of samples
 * @param pState record
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, then zorStsWrongContext for a
 * record of other types, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsIIR_32f_I, (Zor32f* pSrcDst, int len, ZorsIIRState_32f* pState))
ZORSAPI(ZorStatus, zorsIIR_32fc_I, (Zor32fc* pSrcDst, int len, ZorsIIRState_32fc* pState))
ZORSAPI(ZorStatus, zorsIIR_64f_I, (Zor64f* pSrcDst, int len, ZorsIIRState_64f* pState))
ZORSAPI(ZorStatus, zorsIIR_64fc_I, (Zor64fc* pSrcDst, int len, ZorsIIRState_64fc* pState))
ZORSAPI(ZorStatus, zorsIIR64f_32f_I, (Zor32f* pSrcDst, int len, ZorsIIRState64f_32f* pState))
ZORSAPI(ZorStatus, zorsIIR64fc_32fc_I, (Zor32fc* pSrcDst, int len, ZorsIIRState64fc_32fc* pState))
/** @} */

/** @name Blocks in place, with a scale factor
 * @{
 */
/**
 * Filters a block in place, as above.
 * @param pSrcDst samples; receives the filtered samples
 * @param len number of samples
 * @param pState record
 * @param scaleFactor integer results are multiplied by 2^-scaleFactor; any value
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, then zorStsWrongContext for a
 * record of other types, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsIIR32f_16s_ISfs,
        (Zor16s* pSrcDst, int len, ZorsIIRState32f_16s* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsIIR32fc_16sc_ISfs,
        (Zor16sc* pSrcDst, int len, ZorsIIRState32fc_16sc* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsIIR32s_16s_ISfs,
        (Zor16s* pSrcDst, int len, ZorsIIRState32s_16s* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsIIR32sc_16sc_ISfs,
        (Zor16sc* pSrcDst, int len, ZorsIIRState32sc_16sc* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsIIR64f_32s_ISfs,
        (Zor32s* pSrcDst, int len, ZorsIIRState64f_32s* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsIIR64fc_32sc_ISfs,
        (Zor32sc* pSrcDst, int len, ZorsIIRState64fc_32sc* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsIIR64f_16s_ISfs,
        (Zor16s* pSrcDst, int len, ZorsIIRState64f_16s* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsIIR64fc_16sc_ISfs,
        (Zor16sc* pSrcDst, int len, ZorsIIRState64fc_16sc* pState, int scaleFactor))
/** @} */

/** @name One sample
 * @{
 */
/**
 * Filters one sample: the next of the stream.
 * @param src sample
 * @param pDst receives the filtered sample
 * @param pState record that is not in direct form 1
 * @return zorStsNullPointer for a null pointer, then zorStsWrongContext for a record of other types or in direct form
 * 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsIIROne_32f, (Zor32f src, Zor32f* pDst, ZorsIIRState_32f* pState))
ZORSAPI(ZorStatus, zorsIIROne_32fc, (Zor32fc src, Zor32fc* pDst, ZorsIIRState_32fc* pState))
ZORSAPI(ZorStatus, zorsIIROne_64f, (Zor64f src, Zor64f* pDst, ZorsIIRState_64f* pState))
ZORSAPI(ZorStatus, zorsIIROne_64fc, (Zor64fc src, Zor64fc* pDst, ZorsIIRState_64fc* pState))
ZORSAPI(ZorStatus, zorsIIROne64f_32f, (Zor32f src, Zor32f* pDst, ZorsIIRState64f_32f* pState))
ZORSAPI(ZorStatus, zorsIIROne64fc_32fc, (Zor32fc src, Zor32fc* pDst, ZorsIIRState64fc_32fc* pState))
/** @} */

/** @name One sample, with a scale factor
 * @{
 */
/**
 * Filters one sample: the next of the stream.
 * @param src sample
 * @param pDst receives the filtered sample
 * @param pState record that is not in direct form 1
 * @param scaleFactor integer results are multiplied by 2^-scaleFactor; any value
 * @return zorStsNullPointer for a null pointer, then zorStsWrongContext for a record of other types or in direct form
 * 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsIIROne32f_16s_Sfs,
        (Zor16s src, Zor16s* pDst, ZorsIIRState32f_16s* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsIIROne32fc_16sc_Sfs,
        (Zor16sc src, Zor16sc* pDst, ZorsIIRState32fc_16sc* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsIIROne32s_16s_Sfs,
        (Zor16s src, Zor16s* pDst, ZorsIIRState32s_16s* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsIIROne32sc_16sc_Sfs,
        (Zor16sc src, Zor16sc* pDst, ZorsIIRState32sc_16sc* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsIIROne64f_32s_Sfs,
        (Zor32s src, Zor32s* pDst, ZorsIIRState64f_32s* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsIIROne64fc_32sc_Sfs,
        (Zor32sc src, Zor32sc* pDst, ZorsIIRState64fc_32sc* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsIIROne64f_16s_Sfs,
        (Zor16s src, Zor16s* pDst, ZorsIIRState64f_16s* pState, int scaleFactor))
ZORSAPI(ZorStatus, zorsIIROne64fc_16sc_Sfs,
        (Zor16sc src, Zor16sc* pDst, ZorsIIRState64fc_16sc* pState, int scaleFactor))
/** @} */

/** @name Channels
 * @{
 */
/**
 * Filters a block of each of several channels by a record of its own. Each has the bits that the function of one
 * channel gives. All is checked before the first sample is filtered.
 * @param ppSrc samples, a vector a channel
 * @param ppDst receives the filtered samples, a vector a channel: that of the samples, or one that overlaps no vector
 * @param len number of samples of each channel
 * @param nChannels number of channels
 * @param ppState records, one a channel, no two the same
 * @return zorStsNullPointer for a null @p ppSrc, @p ppDst or @p ppState, then zorStsBadSize for @p len below 1, then
 * for @p nChannels below 1 zorStsBadNumChannels (`32s` data: zorStsBadChannelCount), then channel by channel
 * zorStsNullPointer for a null vector or record and zorStsWrongContext for a record of other types, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsIIR_32f_P,
        (const Zor32f* const* ppSrc, Zor32f* const* ppDst, int len, int nChannels,
         ZorsIIRState_32f* const* ppState))
/** @} */

/** @name Channels, with a scale factor
 * @{
 */
/**
 * Filters a block of each of several channels by a record of its own. Each has the bits that the function of one
 * channel gives. All is checked before the first sample is filtered.
 * @param ppSrc samples, a vector a channel
 * @param ppDst receives the filtered samples, a vector a channel: that of the samples, or one that overlaps no vector
 * @param len number of samples of each channel
 * @param nChannels number of channels
 * @param ppState records, one a channel, no two the same
 * @param scaleFactor integer results are multiplied by 2^-scaleFactor; any value
 * @return zorStsNullPointer for a null @p ppSrc, @p ppDst or @p ppState, then zorStsBadSize for @p len below 1, then
 * for @p nChannels below 1 zorStsBadNumChannels (`32s` data: zorStsBadChannelCount), then channel by channel
 * zorStsNullPointer for a null vector or record and zorStsWrongContext for a record of other types, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsIIR64f_32s_PSfs,
        (const Zor32s* const* ppSrc, Zor32s* const* ppDst, int len, int nChannels,
         ZorsIIRState64f_32s* const* ppState, int scaleFactor))
/** @} */

/** @name Channels in place
 * @{
 */
/**
 * Filters a block of each of several channels in place, as above.
 * @param ppSrcDst samples, a vector a channel; receive the filtered samples
 * @param len number of samples of each channel
 * @param nChannels number of channels
 * @param ppState records, one a channel, no two the same
 * @return zorStsNullPointer for a null @p ppSrcDst or @p ppState, then zorStsBadSize for @p len below 1, then for @p
 * nChannels below 1 zorStsBadNumChannels (`32s` data: zorStsBadChannelCount), then channel by channel
 * zorStsNullPointer for a null vector or record and zorStsWrongContext for a record of other types, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsIIR_32f_IP,
        (Zor32f* const* ppSrcDst, int len, int nChannels, ZorsIIRState_32f* const* ppState))
/** @} */

/** @name Channels in place, with a scale factor
 * @{
 */
/**
 * Filters a block of each of several channels in place, as above.
 * @param ppSrcDst samples, a vector a channel; receive the filtered samples
 * @param len number of samples of each channel
 * @param nChannels number of channels
 * @param ppState records, one a channel, no two the same
 * @param scaleFactor integer results are multiplied by 2^-scaleFactor; any value
 * @return zorStsNullPointer for a null @p ppSrcDst or @p ppState, then zorStsBadSize for @p len below 1, then for @p
 * nChannels below 1 zorStsBadNumChannels (`32s` data: zorStsBadChannelCount), then channel by channel
 * zorStsNullPointer for a null vector or record and zorStsWrongContext for a record of other types, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsIIR64f_32s_IPSfs,
        (Zor32s* const* ppSrcDst, int len, int nChannels, ZorsIIRState64f_32s* const* ppState,
         int scaleFactor))
/** @} */
