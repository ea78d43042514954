/**
 * @file
 * Tones: a cosine, or a complex exponential.
 *
 * Angles are kept as fractions of a turn, exact modulo 1 at every sample: a tone does not drift, however long it is.
 */
#include <zortypes.h>

/** @name Tone
 * @{
 */
/**
 * A tone: pDst[n] = magn * cos(2 pi * rFreq * n + phase); complex, with magn * sin of the same angle as the imaginary
 * part. A call goes on where the one before ended, within the rounding of the phase between them.
 *
 * `64f` is within 1.5 units in the last place of @p magn. `32f` is the value in double precision, within 2^-50 magn,
 * rounded to single precision; integers round the value in double precision to nearest, ties to even. All processors
 * give the same bits. The products with frequencies are exact for every @p len.
 * @param pDst destination vector
 * @param len number of elements
 * @param magn magnitude, above 0
 * @param rFreq frequency as a fraction of the sampling rate: in [0, 0.5), complex in [0, 1)
 * @param pPhase phase in radians, in [0, 2 pi); receives that of the next sample
 * @param hint any value: all give the same tone
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, then zorStsBadToneMagnitude
 * for @p magn not above 0, then zorStsBadToneFreq for @p rFreq and zorStsBadTonePhase for a phase outside its range,
 * else zorStsOk
 */
ZORSAPI(ZorStatus, zorsTone_Direct_16s,
        (Zor16s* pDst, int len, Zor16s magn, Zor32f rFreq, Zor32f* pPhase, ZorHintAlgorithm hint))
ZORSAPI(ZorStatus, zorsTone_Direct_16sc,
        (Zor16sc* pDst, int len, Zor16s magn, Zor32f rFreq, Zor32f* pPhase, ZorHintAlgorithm hint))
ZORSAPI(ZorStatus, zorsTone_Direct_32f,
        (Zor32f* pDst, int len, Zor32f magn, Zor32f rFreq, Zor32f* pPhase, ZorHintAlgorithm hint))
ZORSAPI(ZorStatus, zorsTone_Direct_32fc,
        (Zor32fc* pDst, int len, Zor32f magn, Zor32f rFreq, Zor32f* pPhase, ZorHintAlgorithm hint))
ZORSAPI(ZorStatus, zorsTone_Direct_64f,
        (Zor64f* pDst, int len, Zor64f magn, Zor64f rFreq, Zor64f* pPhase, ZorHintAlgorithm hint))
ZORSAPI(ZorStatus, zorsTone_Direct_64fc,
        (Zor64fc* pDst, int len, Zor64f magn, Zor64f rFreq, Zor64f* pPhase, ZorHintAlgorithm hint))
/** @} */
