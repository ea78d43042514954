#include "support/count.h"

#include <gtest/gtest.h>
#include <zors.h>

#include <cmath>
#include <limits>
#include <vector>

namespace {

constexpr Zor32f infinity = std::numeric_limits<Zor32f>::infinity();

void expectMinMax(const Zor32f* pSrc, int len)
{
    Zor32f least = infinity, most = -infinity, gotLeast = 0, gotMost = 0;
    for (int n = 0; n < len; ++n) least = std::fmin(least, pSrc[n]), most = std::fmax(most, pSrc[n]);
    ASSERT_EQ(zorsMinMax_32f(pSrc, len, &gotLeast, &gotMost), zorStsOk);
    zors::test::compared(len);
    ASSERT_EQ(gotLeast, least) << len;
    ASSERT_EQ(gotMost, most) << len;
}

// Among what is near 0, which fills the lanes past the end, and what is not a number, which is passed over.
TEST(MinMax, FindsTheExtremesInEveryPlace)
{
    for (int len = 1; len <= 257; ++len)
        for (int place = 0; place < len; ++place) {
            for (const Zor32f level : {-5.0f, 5.0f, NAN})
                for (const Zor32f extreme : {-6.0f, -4.0f, 4.0f, 6.0f, infinity, -infinity, level}) {
                    std::vector<Zor32f> src(static_cast<std::size_t>(len), level);
                    src[static_cast<std::size_t>(place)] = extreme;
                    expectMinMax(src.data(), len);
                }
            if (testing::Test::HasFatalFailure()) return;
        }
}

} // namespace
