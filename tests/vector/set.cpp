#include "support/oracle.h"

#include <zors.h>

#include <algorithm>

namespace {

using namespace zors::test;

TEST(Set, WritesTheValueToEveryElement)
{
    const auto each = []<class... T>(ZorStatus (*... set)(T, T*, int)) {
        (expectSame<T, T>([=](const T* pVal, T* pDst, int len) { return set(*pVal, pDst, len); },
                          [](const T* pVal, T* pDst, int len) { std::fill_n(pDst, len, *pVal); }),
         ...);
    };
    each(zorsSet_8u, zorsSet_16s, zorsSet_16sc, zorsSet_32s, zorsSet_32sc, zorsSet_32f, zorsSet_32fc,
         zorsSet_64s, zorsSet_64sc, zorsSet_64f, zorsSet_64fc);
}

TEST(Zero, ClearsEveryElement)
{
    const auto each = []<class... T>(ZorStatus (*... zero)(T*, int)) {
        (expectSame<T, T>([=](const T*, T* pDst, int len) { return zero(pDst, len); },
                          [](const T*, T* pDst, int len) { std::fill_n(pDst, len, T{}); }),
         ...);
    };
    each(zorsZero_8u, zorsZero_16s, zorsZero_16sc, zorsZero_32s, zorsZero_32sc, zorsZero_32f, zorsZero_32fc,
         zorsZero_64s, zorsZero_64sc, zorsZero_64f, zorsZero_64fc);
}

} // namespace
