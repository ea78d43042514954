#include "simd/check.h"

#include <gtest/gtest.h>

namespace zors::ZORS_VARIANT {
namespace {

TEST(Check, FirstFailureWins)
{
    EXPECT_EQ(check(), zorStsOk);
    EXPECT_EQ(check(zorStsOk, zorStsOk), zorStsOk);
    EXPECT_EQ(check(zorStsOk, zorStsBadSize, zorStsOk, zorStsNullPointer), zorStsBadSize);

    const int here = 0;
    const int* const none = nullptr;
    EXPECT_EQ(pointers(&here, &here), zorStsOk);
    EXPECT_EQ(check(pointers(&here, none), length(0)), zorStsNullPointer);
    EXPECT_EQ(check(pointers(none, &here), length(1)), zorStsNullPointer);
    EXPECT_EQ(check(pointers(&here), length(0), require(false, zorStsBadShift)), zorStsBadSize);
    EXPECT_EQ(check(pointers(&here), length(1), require(false, zorStsBadShift)), zorStsBadShift);
    EXPECT_EQ(length(1, 2), zorStsBadSize);
    EXPECT_EQ(length(2, 2), zorStsOk);
}

} // namespace
} // namespace zors::ZORS_VARIANT
