/**
 * @file
 * Companding by ITU-T G.711: 8-bit codes of A-law and mu-law, 16-bit linear samples or floats at the same scale.
 */
#include <zortypes.h>

/** @name Expansion
 * @{
 */
/**
 * Expands codes to linear samples by the decoding tables of G.711: A-law's 13-bit values times 8 (-32256 to 32256),
 * mu-law's 14-bit values times 4 (-32124 to 32124). Mu-law's negative zero, code 0x7f, gives -0 as a float.
 * @param pSrc codes
 * @param pDst samples
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsALawToLin_8u16s, (const Zor8u* pSrc, Zor16s* pDst, int len))
ZORSAPI(ZorStatus, zorsALawToLin_8u32f, (const Zor8u* pSrc, Zor32f* pDst, int len))
ZORSAPI(ZorStatus, zorsMuLawToLin_8u16s, (const Zor8u* pSrc, Zor16s* pDst, int len))
ZORSAPI(ZorStatus, zorsMuLawToLin_8u32f, (const Zor8u* pSrc, Zor32f* pDst, int len))
/** @} */

/** @name Compression
 * @{
 */
/**
 * Compresses linear samples to the code of the interval, between the decision values of G.711, that they lie in;
 * beyond the last decision value, to the last code. Where the steps are equal a decision value is half-way between
 * two decoded ones. A sample on a decision value belongs to the interval above it. A code has its sample's sign:
 * what is below 0 and nearest to mu-law's 0 becomes its negative zero, code 0x7f. Every code decodes to a sample
 * that encodes to the same code, but for that one, which becomes the positive zero. Floats are taken at the
 * decoders' scale, 32768 for full scale, and compared with the same decision values; one that is not a number
 * counts as 0.
 * @param pSrc samples
 * @param pDst codes
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsLinToALaw_16s8u, (const Zor16s* pSrc, Zor8u* pDst, int len))
ZORSAPI(ZorStatus, zorsLinToALaw_32f8u, (const Zor32f* pSrc, Zor8u* pDst, int len))
ZORSAPI(ZorStatus, zorsLinToMuLaw_16s8u, (const Zor16s* pSrc, Zor8u* pDst, int len))
ZORSAPI(ZorStatus, zorsLinToMuLaw_32f8u, (const Zor32f* pSrc, Zor8u* pDst, int len))
/** @} */

/** @name Conversion between the laws
 * @{
 */
/**
 * Converts codes of one law to those of the other at the same level and with the same sign. A sine that reaches the
 * largest decision value is at 3.14 dBm0 in A-law and at 3.17 dBm0 in mu-law, so a decoded magnitude of mu-law is
 * multiplied by 1.00752 (of A-law: divided) before it is compared with the decision values of the other law.
 * @param pSrc codes
 * @param pDst codes; equal to @p pSrc or without overlap
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsALawToMuLaw_8u, (const Zor8u* pSrc, Zor8u* pDst, int len))
ZORSAPI(ZorStatus, zorsMuLawToALaw_8u, (const Zor8u* pSrc, Zor8u* pDst, int len))
/** @} */
