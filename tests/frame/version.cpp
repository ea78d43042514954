#include <zors.h>

#include <gtest/gtest.h>

namespace {

TEST(Version, RecordIsComplete)
{
    const ZorLibraryVersion* version = zorsGetLibVersion();
    ASSERT_NE(version, nullptr);
    EXPECT_EQ(version->versionMajor, 8);
    EXPECT_EQ(version->versionMinor, 1);
    EXPECT_EQ(version->versionUpdate, 1);
    EXPECT_EQ(version->buildNumber, 42291);
    EXPECT_EQ(std::string_view(version->cpuTag, 4), std::string_view("r5\0", 4));
    EXPECT_STREQ(version->libraryName, "zorSP SSE3 (r5)");
    EXPECT_STREQ(version->versionText, "8.1.1 (r42291)");
    EXPECT_STREQ(version->buildDate, "Apr 10 2014");
    EXPECT_EQ(zorsGetLibVersion(), version);
}

} // namespace
