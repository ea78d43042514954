#include "support/oracle.h"

#include <zors.h>

namespace {

using zors::test::expectSame;

TEST(ConstantInPlace, OneRoundingOfTheExactResult)
{
    for (const Zor32f val : {0.1f, -3e38f, 1e-40f}) {
        expectSame<Zor32f, Zor32f>([=](auto*, Zor32f* p, int len) { return zorsSubC_32f_I(val, p, len); },
                                   [=](auto*, Zor32f* p, int len) {
                                       for (int n = 0; n < len; ++n) p[n] = p[n] - val;
                                   });
        expectSame<Zor32f, Zor32f>([=](auto*, Zor32f* p, int len) { return zorsMulC_32f_I(val, p, len); },
                                   [=](auto*, Zor32f* p, int len) {
                                       for (int n = 0; n < len; ++n) p[n] = p[n] * val;
                                   });
    }
}

} // namespace
