// The transforms that filters go by, through the public functions: real ones with spectra in the Perm format, and
// complex ones. The inverse is scaled by 1/N.
#pragma once

#include "frame/slots.h"

namespace zors::ZORS_VARIANT {

// Each name stands for a slot, because the slots are filled when the library is loaded.
#define ZORS_FILTER_TRANSFORM(kind, forward_, inverse_, multiply_)                                           \
    using Spec = ZorsFFTSpec_##kind;                                                                         \
    static constexpr auto getSize = &::zorsFFTGetSize_##kind##_arraddr;                                      \
    static constexpr auto init = &::zorsFFTInit_##kind##_arraddr;                                            \
    static constexpr auto initAlloc = &::zorsFFTInitAlloc_##kind##_arraddr;                                  \
    static constexpr auto release = &::zorsFFTFree_##kind##_arraddr;                                         \
    static constexpr auto forward = &::forward_##_arraddr;                                                   \
    static constexpr auto inverse = &::inverse_##_arraddr;                                                   \
    static constexpr auto multiply = &::multiply_##_arraddr;

template <class E>
struct FilterTransform;
template <>
struct FilterTransform<Zor32f> {
    ZORS_FILTER_TRANSFORM(R_32f, zorsFFTFwd_RToPerm_32f, zorsFFTInv_PermToR_32f, zorsMulPerm_32f_I)
};
template <>
struct FilterTransform<Zor64f> {
    ZORS_FILTER_TRANSFORM(R_64f, zorsFFTFwd_RToPerm_64f, zorsFFTInv_PermToR_64f, zorsMulPerm_64f_I)
};
template <>
struct FilterTransform<Zor32fc> {
    ZORS_FILTER_TRANSFORM(C_32fc, zorsFFTFwd_CToC_32fc, zorsFFTInv_CToC_32fc, zorsMul_32fc_I)
};
template <>
struct FilterTransform<Zor64fc> {
    ZORS_FILTER_TRANSFORM(C_64fc, zorsFFTFwd_CToC_64fc, zorsFFTInv_CToC_64fc, zorsMul_64fc_I)
};

#undef ZORS_FILTER_TRANSFORM

} // namespace zors::ZORS_VARIANT
