#include "support/oracle.h"

#include <zors.h>

namespace {

using namespace zors::test;

TEST(Parts, AreTakenFromEveryElement)
{
    const auto each = []<class... C, class... T>(auto part, ZorStatus (*... function)(const C*, T*, int)) {
        (expectSame<C, T>(function,
                          [=](const C* pSrc, T* pDst, int len) {
                              for (int n = 0; n < len; ++n) pDst[n] = pSrc[n].*part(C{});
                          }),
         ...);
    };
    each([]<class C>(C) { return &C::re; }, zorsReal_16sc, zorsReal_32fc, zorsReal_64fc);
    each([]<class C>(C) { return &C::im; }, zorsImag_16sc, zorsImag_32fc, zorsImag_64fc);
}

TEST(CplxToReal, SplitsEveryElement)
{
    const auto each = []<class... C, class... T>(ZorStatus (*... function)(const C*, T*, T*, int)) {
        (expectSame<C, T>([=](const C* pSrc, T* p, int len) { return function(pSrc, p, p + len, len); },
                          [](const C* pSrc, T* p, int len) {
                              for (int n = 0; n < len; ++n) p[n] = pSrc[n].re, p[len + n] = pSrc[n].im;
                          },
                          {.destination = 2}),
         ...);
    };
    each(zorsCplxToReal_16sc, zorsCplxToReal_32fc, zorsCplxToReal_64fc);
}

template <class C, class T>
void expectJoined(ZorStatus (*function)(const T*, const T*, C*, int))
{
    for (const bool re : {false, true})
        for (const bool im : {false, true}) {
            if (!re && !im) continue;
            expectSame<T, C>(
                [=](const T* p, C* pDst, int len) {
                    return function(re ? p : nullptr, im ? p + len : nullptr, pDst, len);
                },
                [=](const T* p, C* pDst, int len) {
                    for (int n = 0; n < len; ++n) pDst[n] = {re ? p[n] : T{}, im ? p[len + n] : T{}};
                },
                {.source = 2});
        }
    C untouched{1, 2};
    for (const int len : {1, 0}) EXPECT_EQ(function(nullptr, nullptr, &untouched, len), zorStsNullPointer);
    EXPECT_EQ(untouched.re, 1);
    EXPECT_EQ(untouched.im, 2);
}

TEST(RealToCplx, JoinsPartsOfWhichOneMayBeMissing)
{
    const auto each = [](auto... function) { (expectJoined(function), ...); };
    each(zorsRealToCplx_16s, zorsRealToCplx_32f, zorsRealToCplx_64f);
}

} // namespace
