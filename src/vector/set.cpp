#include "set.h"

#include "frame/bind.h"
#include "simd/check.h"

namespace zors::ZORS_VARIANT {
namespace {

template <class T>
ZorStatus set(T val, T* pDst, int len)
{
    if (const ZorStatus bad = check(pointers(pDst), length(len))) return bad;
    fill(val, pDst, len);
    return zorStsOk;
}

template <class T>
ZorStatus zero(T* pDst, int len)
{
    if (const ZorStatus bad = check(pointers(pDst), length(len))) return bad;
    fill(Zor8u{0}, reinterpret_cast<Zor8u*>(pDst),
         std::ptrdiff_t{len} * static_cast<std::ptrdiff_t>(sizeof(T)));
    return zorStsOk;
}

} // namespace

ZORS_BIND(zorsSet_8u, set<Zor8u>)
ZORS_BIND(zorsSet_16s, set<Zor16s>)
ZORS_BIND(zorsSet_16sc, set<Zor16sc>)
ZORS_BIND(zorsSet_32s, set<Zor32s>)
ZORS_BIND(zorsSet_32sc, set<Zor32sc>)
ZORS_BIND(zorsSet_32f, set<Zor32f>)
ZORS_BIND(zorsSet_32fc, set<Zor32fc>)
ZORS_BIND(zorsSet_64s, set<Zor64s>)
ZORS_BIND(zorsSet_64sc, set<Zor64sc>)
ZORS_BIND(zorsSet_64f, set<Zor64f>)
ZORS_BIND(zorsSet_64fc, set<Zor64fc>)

ZORS_BIND(zorsZero_8u, zero<Zor8u>)
ZORS_BIND(zorsZero_16s, zero<Zor16s>)
ZORS_BIND(zorsZero_16sc, zero<Zor16sc>)
ZORS_BIND(zorsZero_32s, zero<Zor32s>)
ZORS_BIND(zorsZero_32sc, zero<Zor32sc>)
ZORS_BIND(zorsZero_32f, zero<Zor32f>)
ZORS_BIND(zorsZero_32fc, zero<Zor32fc>)
ZORS_BIND(zorsZero_64s, zero<Zor64s>)
ZORS_BIND(zorsZero_64sc, zero<Zor64sc>)
ZORS_BIND(zorsZero_64f, zero<Zor64f>)
ZORS_BIND(zorsZero_64fc, zero<Zor64fc>)

} // namespace zors::ZORS_VARIANT
