/**
 * @file
 * Words of few bits packed into bytes.
 */
#include <zortypes.h>

/** @name Packing
 * @{
 */
/**
 * Writes the lowest pSrcBits[n] bits of pSrc[n] one after the other, each word's most significant bit first, into
 * bytes that are filled from their most significant bit. A last byte that is not full ends in bits of 0. The bits
 * above a word's count are ignored.
 * @param pSrc words
 * @param pSrcBits numbers of bits, 0 to 32
 * @param pDst destination of (pSrcBits[0] + ... + pSrcBits[len - 1] + 7) / 8 bytes, 4 * @p len at the most
 * @param len number of words
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, then zorStsBadArgument for a
 * number of bits below 0 or above 32, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsPackBits_32u8u, (const Zor32u* pSrc, const Zor32s* pSrcBits, Zor8u* pDst, int len))
/** @} */
