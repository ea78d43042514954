// Argument checks. An entry lists them in their fixed order, and the first that fails is its status:
//
//     if (const ZorStatus bad = check(pointers(pSrc, pDst), length(len))) return bad;
#pragma once

#include <zortypes.h>

namespace zors::ZORS_VARIANT {

template <class... Checks>
inline ZorStatus check(Checks... statuses)
{
    ZorStatus first = zorStsOk;
    (void)((first = statuses, first != zorStsOk) || ...);
    return first;
}

inline ZorStatus require(bool holds, ZorStatus otherwise)
{
    return holds ? zorStsOk : otherwise;
}

template <class... T>
inline ZorStatus pointers(T*... p)
{
    return require((p && ...), zorStsNullPointer);
}

inline ZorStatus length(int len, int least = 1)
{
    return require(len >= least, zorStsBadSize);
}

} // namespace zors::ZORS_VARIANT
