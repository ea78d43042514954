#include "frame/bind.h"
#include "simd/check.h"
#include "simd/loop.h"

#include <cstring>

namespace zors::ZORS_VARIANT {
namespace {

template <class T>
std::ptrdiff_t bytesOf(int len)
{
    return std::ptrdiff_t{len} * static_cast<std::ptrdiff_t>(sizeof(T));
}

void copyBytes(const Zor8u* pSrc, Zor8u* pDst, std::ptrdiff_t count)
{
    blocksInto<lanes<Zor8u>>(
        count, [=](auto at) { store(pDst, at, load(pSrc, at)); }, pDst);
}

template <class T>
ZorStatus copy(const T* pSrc, T* pDst, int len)
{
    if (const ZorStatus bad = check(pointers(pSrc, pDst), length(len))) return bad;
    copyBytes(reinterpret_cast<const Zor8u*>(pSrc), reinterpret_cast<Zor8u*>(pDst), bytesOf<T>(len));
    return zorStsOk;
}

template <class T>
ZorStatus move(const T* pSrc, T* pDst, int len)
{
    if (const ZorStatus bad = check(pointers(pSrc, pDst), length(len))) return bad;
    const auto* from = reinterpret_cast<const Zor8u*>(pSrc);
    auto* to = reinterpret_cast<Zor8u*>(pDst);
    const std::ptrdiff_t bytes = bytesOf<T>(len);
    // Upwards is safe unless the destination starts inside the source.
    if (reinterpret_cast<std::uintptr_t>(to) - reinterpret_cast<std::uintptr_t>(from) >=
        static_cast<std::uintptr_t>(bytes))
        copyBytes(from, to, bytes);
    else
        std::memmove(to, from, static_cast<std::size_t>(bytes));
    return zorStsOk;
}

} // namespace

ZORS_BIND(zorsCopy_8u, copy<Zor8u>)
ZORS_BIND(zorsCopy_16s, copy<Zor16s>)
ZORS_BIND(zorsCopy_16sc, copy<Zor16sc>)
ZORS_BIND(zorsCopy_32s, copy<Zor32s>)
ZORS_BIND(zorsCopy_32sc, copy<Zor32sc>)
ZORS_BIND(zorsCopy_32f, copy<Zor32f>)
ZORS_BIND(zorsCopy_32fc, copy<Zor32fc>)
ZORS_BIND(zorsCopy_64s, copy<Zor64s>)
ZORS_BIND(zorsCopy_64sc, copy<Zor64sc>)
ZORS_BIND(zorsCopy_64f, copy<Zor64f>)
ZORS_BIND(zorsCopy_64fc, copy<Zor64fc>)

ZORS_BIND(zorsMove_8u, move<Zor8u>)
ZORS_BIND(zorsMove_16s, move<Zor16s>)
ZORS_BIND(zorsMove_16sc, move<Zor16sc>)
ZORS_BIND(zorsMove_32s, move<Zor32s>)
ZORS_BIND(zorsMove_32sc, move<Zor32sc>)
ZORS_BIND(zorsMove_32f, move<Zor32f>)
ZORS_BIND(zorsMove_32fc, move<Zor32fc>)
ZORS_BIND(zorsMove_64s, move<Zor64s>)
ZORS_BIND(zorsMove_64sc, move<Zor64sc>)
ZORS_BIND(zorsMove_64f, move<Zor64f>)
ZORS_BIND(zorsMove_64fc, move<Zor64fc>)

} // namespace zors::ZORS_VARIANT
