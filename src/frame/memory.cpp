#include "bind.h"

#include <zorcore.h>

namespace {

template <class T>
T* allocate(int len)
{
    if (len < 1) return nullptr;
    const Zor32u size = static_cast<Zor32u>(len) * static_cast<Zor32u>(sizeof(T));
    return static_cast<T*>(zorMalloc(static_cast<Zor32s>(size)));
}

} // namespace

ZORS_BIND(zorsMalloc_8u, allocate<Zor8u>)
ZORS_BIND(zorsMalloc_8s, allocate<Zor8s>)
ZORS_BIND(zorsMalloc_16u, allocate<Zor16u>)
ZORS_BIND(zorsMalloc_16s, allocate<Zor16s>)
ZORS_BIND(zorsMalloc_32u, allocate<Zor32u>)
ZORS_BIND(zorsMalloc_32s, allocate<Zor32s>)
ZORS_BIND(zorsMalloc_64s, allocate<Zor64s>)
ZORS_BIND(zorsMalloc_32f, allocate<Zor32f>)
ZORS_BIND(zorsMalloc_64f, allocate<Zor64f>)
ZORS_BIND(zorsMalloc_8sc, allocate<Zor8sc>)
ZORS_BIND(zorsMalloc_16sc, allocate<Zor16sc>)
ZORS_BIND(zorsMalloc_32sc, allocate<Zor32sc>)
ZORS_BIND(zorsMalloc_64sc, allocate<Zor64sc>)
ZORS_BIND(zorsMalloc_32fc, allocate<Zor32fc>)
ZORS_BIND(zorsMalloc_64fc, allocate<Zor64fc>)
ZORS_BIND(zorsFree, zorFree)
