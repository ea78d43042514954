/**
 * @file
 * Element-wise arithmetic without a scale factor.
 *
 * Floating-point results are rounded as IEEE 754 says, every product and every sum once: nothing is fused, so all
 * variants give the same bits. Integer results saturate.
 */
#include <zortypes.h>

/** @name Sum
 * @{
 */
/**
 * pDst[n] = pSrc1[n] + pSrc2[n].
 * @param pSrc1 first summand
 * @param pSrc2 second summand
 * @param pDst destination vector; may be equal to a source
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsAdd_32f, (const Zor32f* pSrc1, const Zor32f* pSrc2, Zor32f* pDst, int len))
ZORSAPI(ZorStatus, zorsAdd_64f, (const Zor64f* pSrc1, const Zor64f* pSrc2, Zor64f* pDst, int len))
ZORSAPI(ZorStatus, zorsAdd_32fc, (const Zor32fc* pSrc1, const Zor32fc* pSrc2, Zor32fc* pDst, int len))
ZORSAPI(ZorStatus, zorsAdd_64fc, (const Zor64fc* pSrc1, const Zor64fc* pSrc2, Zor64fc* pDst, int len))
ZORSAPI(ZorStatus, zorsAdd_16s, (const Zor16s* pSrc1, const Zor16s* pSrc2, Zor16s* pDst, int len))
/** @} */

/** @name Sum in place
 * @{
 */
/**
 * pSrcDst[n] = pSrcDst[n] + pSrc[n].
 * @param pSrc first summand
 * @param pSrcDst second summand, overwritten by the result
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsAdd_32f_I, (const Zor32f* pSrc, Zor32f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsAdd_64f_I, (const Zor64f* pSrc, Zor64f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsAdd_32fc_I, (const Zor32fc* pSrc, Zor32fc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsAdd_64fc_I, (const Zor64fc* pSrc, Zor64fc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsAdd_16s_I, (const Zor16s* pSrc, Zor16s* pSrcDst, int len))
/** @} */

/** @name Difference
 * @{
 */
/**
 * pDst[n] = pSrc2[n] - pSrc1[n].
 * @param pSrc1 subtrahend
 * @param pSrc2 minuend
 * @param pDst destination vector; may be equal to a source
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsSub_32f, (const Zor32f* pSrc1, const Zor32f* pSrc2, Zor32f* pDst, int len))
ZORSAPI(ZorStatus, zorsSub_64f, (const Zor64f* pSrc1, const Zor64f* pSrc2, Zor64f* pDst, int len))
ZORSAPI(ZorStatus, zorsSub_32fc, (const Zor32fc* pSrc1, const Zor32fc* pSrc2, Zor32fc* pDst, int len))
ZORSAPI(ZorStatus, zorsSub_64fc, (const Zor64fc* pSrc1, const Zor64fc* pSrc2, Zor64fc* pDst, int len))
ZORSAPI(ZorStatus, zorsSub_16s, (const Zor16s* pSrc1, const Zor16s* pSrc2, Zor16s* pDst, int len))
/** @} */

/** @name Difference in place
 * @{
 */
/**
 * pSrcDst[n] = pSrcDst[n] - pSrc[n].
 * @param pSrc subtrahend
 * @param pSrcDst minuend, overwritten by the result
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsSub_32f_I, (const Zor32f* pSrc, Zor32f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsSub_64f_I, (const Zor64f* pSrc, Zor64f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsSub_32fc_I, (const Zor32fc* pSrc, Zor32fc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsSub_64fc_I, (const Zor64fc* pSrc, Zor64fc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsSub_16s_I, (const Zor16s* pSrc, Zor16s* pSrcDst, int len))
/** @} */

/** @name Product
 * @{
 */
/**
 * pDst[n] = pSrc1[n] * pSrc2[n].
 * A complex product is (a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re).
 * @param pSrc1 first factor
 * @param pSrc2 second factor
 * @param pDst destination vector; may be equal to a source
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsMul_32f, (const Zor32f* pSrc1, const Zor32f* pSrc2, Zor32f* pDst, int len))
ZORSAPI(ZorStatus, zorsMul_64f, (const Zor64f* pSrc1, const Zor64f* pSrc2, Zor64f* pDst, int len))
ZORSAPI(ZorStatus, zorsMul_32fc, (const Zor32fc* pSrc1, const Zor32fc* pSrc2, Zor32fc* pDst, int len))
ZORSAPI(ZorStatus, zorsMul_64fc, (const Zor64fc* pSrc1, const Zor64fc* pSrc2, Zor64fc* pDst, int len))
ZORSAPI(ZorStatus, zorsMul_16s, (const Zor16s* pSrc1, const Zor16s* pSrc2, Zor16s* pDst, int len))
/** @} */

/** @name Product in place
 * @{
 */
/**
 * pSrcDst[n] = pSrcDst[n] * pSrc[n].
 * A complex product is (a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re).
 * @param pSrc first factor
 * @param pSrcDst second factor, overwritten by the result
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsMul_32f_I, (const Zor32f* pSrc, Zor32f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsMul_64f_I, (const Zor64f* pSrc, Zor64f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsMul_32fc_I, (const Zor32fc* pSrc, Zor32fc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsMul_64fc_I, (const Zor64fc* pSrc, Zor64fc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsMul_16s_I, (const Zor16s* pSrc, Zor16s* pSrcDst, int len))
/** @} */

/** @name Sum with a constant
 * @{
 */
/**
 * pDst[n] = pSrc[n] + val.
 * @param pSrc source vector
 * @param val the constant
 * @param pDst destination vector; may be equal to the source
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsAddC_32f, (const Zor32f* pSrc, Zor32f val, Zor32f* pDst, int len))
ZORSAPI(ZorStatus, zorsAddC_64f, (const Zor64f* pSrc, Zor64f val, Zor64f* pDst, int len))
ZORSAPI(ZorStatus, zorsAddC_32fc, (const Zor32fc* pSrc, Zor32fc val, Zor32fc* pDst, int len))
ZORSAPI(ZorStatus, zorsAddC_64fc, (const Zor64fc* pSrc, Zor64fc val, Zor64fc* pDst, int len))
ZORSAPI(ZorStatus, zorsAddC_16s, (const Zor16s* pSrc, Zor16s val, Zor16s* pDst, int len))
/** @} */

/** @name Sum with a constant in place
 * @{
 */
/**
 * pSrcDst[n] = pSrcDst[n] + val.
 * @param val the constant
 * @param pSrcDst source vector, overwritten by the result
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsAddC_32f_I, (Zor32f val, Zor32f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsAddC_64f_I, (Zor64f val, Zor64f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsAddC_32fc_I, (Zor32fc val, Zor32fc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsAddC_64fc_I, (Zor64fc val, Zor64fc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsAddC_16s_I, (Zor16s val, Zor16s* pSrcDst, int len))
/** @} */

/** @name Difference from a constant
 * @{
 */
/**
 * pDst[n] = pSrc[n] - val.
 * @param pSrc source vector
 * @param val the constant
 * @param pDst destination vector; may be equal to the source
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsSubC_32f, (const Zor32f* pSrc, Zor32f val, Zor32f* pDst, int len))
ZORSAPI(ZorStatus, zorsSubC_64f, (const Zor64f* pSrc, Zor64f val, Zor64f* pDst, int len))
ZORSAPI(ZorStatus, zorsSubC_32fc, (const Zor32fc* pSrc, Zor32fc val, Zor32fc* pDst, int len))
ZORSAPI(ZorStatus, zorsSubC_64fc, (const Zor64fc* pSrc, Zor64fc val, Zor64fc* pDst, int len))
ZORSAPI(ZorStatus, zorsSubC_16s, (const Zor16s* pSrc, Zor16s val, Zor16s* pDst, int len))
/** @} */

/** @name Difference from a constant in place
 * @{
 */
/**
 * pSrcDst[n] = pSrcDst[n] - val.
 * @param val the constant
 * @param pSrcDst source vector, overwritten by the result
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsSubC_32f_I, (Zor32f val, Zor32f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsSubC_64f_I, (Zor64f val, Zor64f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsSubC_32fc_I, (Zor32fc val, Zor32fc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsSubC_64fc_I, (Zor64fc val, Zor64fc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsSubC_16s_I, (Zor16s val, Zor16s* pSrcDst, int len))
/** @} */

/** @name Difference of a constant
 * @{
 */
/**
 * pDst[n] = val - pSrc[n].
 * @param pSrc source vector
 * @param val the constant
 * @param pDst destination vector; may be equal to the source
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsSubCRev_32f, (const Zor32f* pSrc, Zor32f val, Zor32f* pDst, int len))
ZORSAPI(ZorStatus, zorsSubCRev_64f, (const Zor64f* pSrc, Zor64f val, Zor64f* pDst, int len))
ZORSAPI(ZorStatus, zorsSubCRev_32fc, (const Zor32fc* pSrc, Zor32fc val, Zor32fc* pDst, int len))
ZORSAPI(ZorStatus, zorsSubCRev_64fc, (const Zor64fc* pSrc, Zor64fc val, Zor64fc* pDst, int len))
ZORSAPI(ZorStatus, zorsSubCRev_16s, (const Zor16s* pSrc, Zor16s val, Zor16s* pDst, int len))
/** @} */

/** @name Difference of a constant in place
 * @{
 */
/**
 * pSrcDst[n] = val - pSrcDst[n].
 * @param val the constant
 * @param pSrcDst source vector, overwritten by the result
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsSubCRev_32f_I, (Zor32f val, Zor32f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsSubCRev_64f_I, (Zor64f val, Zor64f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsSubCRev_32fc_I, (Zor32fc val, Zor32fc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsSubCRev_64fc_I, (Zor64fc val, Zor64fc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsSubCRev_16s_I, (Zor16s val, Zor16s* pSrcDst, int len))
/** @} */

/** @name Product with a constant
 * @{
 */
/**
 * pDst[n] = pSrc[n] * val.
 * A complex product is (a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re).
 * @param pSrc source vector
 * @param val the constant
 * @param pDst destination vector; may be equal to the source
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsMulC_32f, (const Zor32f* pSrc, Zor32f val, Zor32f* pDst, int len))
ZORSAPI(ZorStatus, zorsMulC_64f, (const Zor64f* pSrc, Zor64f val, Zor64f* pDst, int len))
ZORSAPI(ZorStatus, zorsMulC_32fc, (const Zor32fc* pSrc, Zor32fc val, Zor32fc* pDst, int len))
ZORSAPI(ZorStatus, zorsMulC_64fc, (const Zor64fc* pSrc, Zor64fc val, Zor64fc* pDst, int len))
ZORSAPI(ZorStatus, zorsMulC_16s, (const Zor16s* pSrc, Zor16s val, Zor16s* pDst, int len))
/** @} */

/** @name Product with a constant in place
 * @{
 */
/**
 * pSrcDst[n] = pSrcDst[n] * val.
 * A complex product is (a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re).
 * @param val the constant
 * @param pSrcDst source vector, overwritten by the result
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsMulC_32f_I, (Zor32f val, Zor32f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsMulC_64f_I, (Zor64f val, Zor64f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsMulC_32fc_I, (Zor32fc val, Zor32fc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsMulC_64fc_I, (Zor64fc val, Zor64fc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsMulC_16s_I, (Zor16s val, Zor16s* pSrcDst, int len))
/** @} */

/** @name Sum with a product
 * @{
 */
/**
 * pSrcDst[n] = pSrcDst[n] + pSrc1[n] * pSrc2[n].
 * A complex product is (a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re).
 * @param pSrc1 first factor
 * @param pSrc2 second factor
 * @param pSrcDst summand, overwritten by the result
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsAddProduct_32f, (const Zor32f* pSrc1, const Zor32f* pSrc2, Zor32f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsAddProduct_64f, (const Zor64f* pSrc1, const Zor64f* pSrc2, Zor64f* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsAddProduct_32fc,
        (const Zor32fc* pSrc1, const Zor32fc* pSrc2, Zor32fc* pSrcDst, int len))
ZORSAPI(ZorStatus, zorsAddProduct_64fc,
        (const Zor64fc* pSrc1, const Zor64fc* pSrc2, Zor64fc* pSrcDst, int len))
/** @} */

/** @name Sums and differences into wider types
 * @{
 */
/**
 * pDst[n] = pSrc1[n] + pSrc2[n], exact; zorsSub_16s32f() gives pSrc2[n] - pSrc1[n].
 * @param pSrc1 first summand, or subtrahend
 * @param pSrc2 second summand, or minuend
 * @param pDst destination vector
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsAdd_8u16u, (const Zor8u* pSrc1, const Zor8u* pSrc2, Zor16u* pDst, int len))
ZORSAPI(ZorStatus, zorsAdd_16s32f, (const Zor16s* pSrc1, const Zor16s* pSrc2, Zor32f* pDst, int len))
ZORSAPI(ZorStatus, zorsSub_16s32f, (const Zor16s* pSrc1, const Zor16s* pSrc2, Zor32f* pDst, int len))
/** @} */

/** @name Sum into a wider type in place
 * @{
 */
/**
 * pSrcDst[n] = pSrcDst[n] + pSrc[n], saturated.
 * @param pSrc first summand
 * @param pSrcDst second summand, overwritten by the result
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsAdd_16s32s_I, (const Zor16s* pSrc, Zor32s* pSrcDst, int len))
/** @} */

/** @name Products of other types
 * @{
 */
/**
 * pDst[n] = pSrc1[n] * pSrc2[n], rounded once, as of floating-point numbers: 0 times a negative one is -0.
 * @param pSrc1 first factor
 * @param pSrc2 second factor
 * @param pDst destination vector; may be equal to a source
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsMul_16s32f, (const Zor16s* pSrc1, const Zor16s* pSrc2, Zor32f* pDst, int len))
ZORSAPI(ZorStatus, zorsMul_32f32fc, (const Zor32f* pSrc1, const Zor32fc* pSrc2, Zor32fc* pDst, int len))
/** @} */

/** @name Product of real and complex in place
 * @{
 */
/**
 * pSrcDst[n] = pSrc[n] * pSrcDst[n].
 * @param pSrc real factor
 * @param pSrcDst complex factor, overwritten by the result
 * @param len number of elements
 * @return zorStsNullPointer for a null pointer, then zorStsBadSize for @p len below 1, else zorStsOk
 */
ZORSAPI(ZorStatus, zorsMul_32f32fc_I, (const Zor32f* pSrc, Zor32fc* pSrcDst, int len))
/** @} */
