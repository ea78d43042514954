/**
 * @file
 * Copying bit strings.
 */
#include <zortypes.h>

/** @name Bit strings, most significant bit first
 * @{
 */
/**
 * Copies a bit string; bit k of a byte is the one of mask 128 >> k. All other bits of the destination keep
 * their value. Source and destination must not overlap.
 *
 * Offsets count modulo 8 and never advance the byte pointers: an offset of 9 is an offset of 1 in the same byte.
 * zorsCopyLE_1u() is another name of zorsCopy_1u().
 * @param pSrc byte that holds the first source bit
 * @param srcBitOffset place of the first source bit in its byte
 * @param pDst byte that holds the first destination bit
 * @param dstBitOffset place of the first destination bit in its byte
 * @param len number of bits
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1 or a negative offset, else
 * zorStsOk
 */
ZORSAPI(ZorStatus, zorsCopy_1u, (const Zor8u* pSrc, int srcBitOffset, Zor8u* pDst, int dstBitOffset, int len))
ZORSAPI(ZorStatus, zorsCopyLE_1u,
        (const Zor8u* pSrc, int srcBitOffset, Zor8u* pDst, int dstBitOffset, int len))
/** @} */

/** @name Bit strings, least significant bit first
 * @{
 */
/**
 * Copies a bit string as zorsCopy_1u() does, with bit k of a byte being the one of mask 1 << k.
 * @param pSrc byte that holds the first source bit
 * @param srcBitOffset place of the first source bit in its byte
 * @param pDst byte that holds the first destination bit
 * @param dstBitOffset place of the first destination bit in its byte
 * @param len number of bits
 * @return as zorsCopy_1u()
 */
ZORSAPI(ZorStatus, zorsCopyBE_1u,
        (const Zor8u* pSrc, int srcBitOffset, Zor8u* pDst, int dstBitOffset, int len))
/** @} */
