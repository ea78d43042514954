// The entries of element-wise operations, one for each shape of arguments. A scale factor, where there is one, is
// the last argument of each.
#pragma once

#include "operations.h"
#include "simd/check.h"

namespace zors::ZORS_VARIANT {

template <class Operation, class T, class... ScaleFactor>
ZorStatus twoSources(const T* pSrc1, const T* pSrc2, T* pDst, int len, ScaleFactor... scaleFactor)
{
    if (const ZorStatus bad = check(pointers(pSrc1, pSrc2, pDst), length(len))) return bad;
    const bool inPlace = pDst == pSrc1 || pDst == pSrc2;
    return operate<Operation>(elements(pSrc1), elements(pSrc2), pDst, len, inPlace, scaleFactor...);
}

template <class Operation, class T, class... ScaleFactor>
ZorStatus twoSourcesInPlace(const T* pSrc, T* pSrcDst, int len, ScaleFactor... scaleFactor)
{
    return twoSources<Operation, T>(pSrc, pSrcDst, pSrcDst, len, scaleFactor...);
}

// The same as pairs of 16-bit parts. As in all versions of these four, the length is checked first.
template <class Operation, class... ScaleFactor>
ZorStatus twoSourcesLengthFirst(const Zor16sc* pSrc1, const Zor16sc* pSrc2, Zor16sc* pDst, int len,
                                ScaleFactor... scaleFactor)
{
    if (const ZorStatus bad = check(length(len))) return bad;
    return twoSources<Operation>(pSrc1, pSrc2, pDst, len, scaleFactor...);
}

template <class Operation, class... ScaleFactor>
ZorStatus twoSourcesLengthFirstInPlace(const Zor16sc* pSrc, Zor16sc* pSrcDst, int len,
                                       ScaleFactor... scaleFactor)
{
    return twoSourcesLengthFirst<Operation>(pSrc, pSrcDst, pSrcDst, len, scaleFactor...);
}

template <class Operation, class T, class... ScaleFactor>
ZorStatus sourceWithConstant(const T* pSrc, T val, T* pDst, int len, ScaleFactor... scaleFactor)
{
    if (const ZorStatus bad = check(pointers(pSrc, pDst), length(len))) return bad;
    return operate<Operation>(elements(pSrc), constant(val), pDst, len, pDst == pSrc, scaleFactor...);
}

template <class Operation, class T, class... ScaleFactor>
ZorStatus sourceWithConstantInPlace(T val, T* pSrcDst, int len, ScaleFactor... scaleFactor)
{
    return sourceWithConstant<Operation, T>(pSrcDst, val, pSrcDst, len, scaleFactor...);
}

template <class Operation, class T, class... ScaleFactor>
ZorStatus constantWithSource(const T* pSrc, T val, T* pDst, int len, ScaleFactor... scaleFactor)
{
    if (const ZorStatus bad = check(pointers(pSrc, pDst), length(len))) return bad;
    return operate<Operation>(constant(val), elements(pSrc), pDst, len, pDst == pSrc, scaleFactor...);
}

template <class Operation, class T, class... ScaleFactor>
ZorStatus constantWithSourceInPlace(T val, T* pSrcDst, int len, ScaleFactor... scaleFactor)
{
    return constantWithSource<Operation, T>(pSrcDst, val, pSrcDst, len, scaleFactor...);
}

} // namespace zors::ZORS_VARIANT
