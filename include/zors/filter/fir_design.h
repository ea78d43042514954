/**
 * @file
 * Design of finite impulse response filters by windows.
 *
 * The taps are the impulse response of the ideal filter about the filter's centre c = (tapsLen - 1) / 2, times a
 * window. With s(f, p) = sin(2 pi f p) / (pi p), and 2 f at p = 0, a tap p = n - c from the centre is
 *
 *     low-pass     s(rFreq, p)
 *     high-pass    s(1/2, p) - s(rFreq, p)
 *     band-pass    s(rHighFreq, p) - s(rLowFreq, p)
 *     band-stop    s(1/2, p) - s(rHighFreq, p) + s(rLowFreq, p)
 *
 * before the window, within 2^-50 / max(1, |p|) and half a unit in the last place. Taps are symmetric to the last
 * bit: the phase is linear. Frequencies are fractions of the sampling rate. All processors give the same bits.
 */
#include <zortypes.h>

/** @name Low-pass and high-pass
 * @{
 */
/**
 * Taps of a low-pass or a high-pass filter. Where the gain is normalised, a low-pass filter's at frequency 0 and a
 * high-pass filter's at half the sampling rate is 1, or -1 where it was negative. A high-pass filter of even length
 * has none there, and is left as it is.
 * @param rFreq cut-off frequency
 * @param pTaps receives the taps
 * @param tapsLen number of taps
 * @param winType window, a value of @ref ZorWinType; any other stands for none
 * @param doNormal 0 leaves the gain as it is, any other value normalises it
 * @return zorStsNullPointer for null @p pTaps, then zorStsBadSize for @p tapsLen below 5 or @p rFreq outside (0, 0.5),
 * then zorStsNullPointer where there is no memory, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIRGenLowpass_64f,
        (Zor64f rFreq, Zor64f* pTaps, int tapsLen, ZorWinType winType, int doNormal))
ZORSAPI(ZorStatus, zorsFIRGenHighpass_64f,
        (Zor64f rFreq, Zor64f* pTaps, int tapsLen, ZorWinType winType, int doNormal))
/** @} */

/** @name Band-pass and band-stop
 * @{
 */
/**
 * Taps of a band-pass or a band-stop filter. Where the gain is normalised, a band-pass filter's at (rLowFreq +
 * rHighFreq) / 2 and a band-stop filter's at frequency 0 is 1, or -1 where it was negative.
 * @param rLowFreq lower edge of the band
 * @param rHighFreq upper edge of the band
 * @param pTaps receives the taps
 * @param tapsLen number of taps
 * @param winType window, a value of @ref ZorWinType; any other stands for none
 * @param doNormal 0 leaves the gain as it is, any other value normalises it
 * @return zorStsNullPointer for null @p pTaps, then zorStsBadSize for @p tapsLen below 5, an edge outside (0, 0.5) or
 * @p rLowFreq not below @p rHighFreq, then zorStsNullPointer where there is no memory, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsFIRGenBandpass_64f,
        (Zor64f rLowFreq, Zor64f rHighFreq, Zor64f* pTaps, int tapsLen, ZorWinType winType, int doNormal))
ZORSAPI(ZorStatus, zorsFIRGenBandstop_64f,
        (Zor64f rLowFreq, Zor64f rHighFreq, Zor64f* pTaps, int tapsLen, ZorWinType winType, int doNormal))
/** @} */
