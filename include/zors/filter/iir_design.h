/**
 * @file
 * Design of infinite impulse response filters: Butterworth, and Chebyshev of type I, of orders 1 to 12.
 *
 * The poles of the analog low-pass filter are carried to the z-plane by the bilinear transform, its frequencies bent
 * so that the cut-off keeps its place. That is where a Butterworth filter has 1/sqrt(2) of its gain, and where a
 * Chebyshev filter leaves the ripple of its pass-band.
 */
#include <zortypes.h>

/** @name Low-pass and high-pass
 * @{
 */
/**
 * Taps of a low-pass or a high-pass filter, as filters of any order take them: order + 1 of the numerator, b[0]
 * first, then order + 1 of the denominator, a[0] first, which is 1.
 *
 *     H(z) = (b[0] + b[1] z^-1 + ... + b[order] z^-order) / (1 + a[1] z^-1 + ... + a[order] z^-order)
 *
 * The gain of a low-pass filter at frequency 0, and that of a high-pass filter at half the sampling rate, is 1. A
 * Chebyshev filter's gain lies between that and @p ripple below it for odd orders, above it for even ones, up to the
 * cut-off.
 *
 * The taps of the denominator are rounded once, from extended precision. Those of the numerator are exact products of
 * binomial coefficients with one number, itself within 2^(order - 54) of its value: the gain at the other end of the
 * spectrum is 0. Still, the rounding of the taps moves poles that stand close together, those of high orders with low
 * cut-offs, by much: sections in a cascade serve better there.
 * @param rFreq cut-off frequency as a fraction of the sampling rate
 * @param ripple of the pass-band, in dB; Butterworth filters have none, and it may have any value
 * @param order order of the filter
 * @param pTaps receives the 2 (order + 1) taps
 * @param filterType zorIirButterworth or zorIirChebyshev1
 * @return zorStsNullPointer for null @p pTaps, then zorStsBadIirGenFreq for @p rFreq outside (0, 0.5), then
 * zorStsBadIirGenOrder for @p order outside [1, 12], then zorStsBadIirGenTolerance for a Chebyshev filter's
 * @p ripple outside (0, 29], else zorStsOk; also for another @p filterType, when nothing is written
 */
ZORSAPI(ZorStatus, zorsIIRGenLowpass_64f,
        (Zor64f rFreq, Zor64f ripple, int order, Zor64f* pTaps, ZorIirFilterType filterType))
ZORSAPI(ZorStatus, zorsIIRGenHighpass_64f,
        (Zor64f rFreq, Zor64f ripple, int order, Zor64f* pTaps, ZorIirFilterType filterType))
/** @} */
