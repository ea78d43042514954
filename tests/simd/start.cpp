#include <cstdlib>
#include <gtest/gtest.h>
#include <string>

namespace {

TEST(Simd, TestsOfTheVariantPass)
{
    const char* variant = std::getenv("ZORS_TEST_VARIANT");
    const std::string program = std::string(ZORS_SIMD_PROGRAM) + (variant ? variant : "r5");
    EXPECT_EQ(std::system(('"' + program + '"').c_str()), 0) << program;
}

} // namespace
