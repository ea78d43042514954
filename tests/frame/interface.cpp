// Numbers and layouts that compiled programs rely on.
#include <zorcore.h>
#include <zors.h>

#include <cstddef>
#include <gtest/gtest.h>

namespace {

static_assert(zorRndZero == 0 && zorRndNear == 1 && zorRndFinancial == 2);
static_assert(ZOR_ALG_ANY == 0 && ZOR_ALG_SPEED == 1 && ZOR_ALG_PRECISION == 2);
static_assert(ZOR_CPU_SSE3 == 4 && ZOR_CPU_SSE4_1 == 0x10 && ZOR_CPU_SSE4_2 == 0x20);

static_assert(sizeof(Zor16sc) == 4 && sizeof(Zor32fc) == 8 && sizeof(Zor64fc) == 16 && sizeof(Zor8sc) == 2);
static_assert(offsetof(ZorLibraryVersion, versionMinor) == 4 &&
              offsetof(ZorLibraryVersion, versionUpdate) == 8);
static_assert(offsetof(ZorLibraryVersion, buildNumber) == 12 && offsetof(ZorLibraryVersion, cpuTag) == 16);
static_assert(offsetof(ZorLibraryVersion, libraryName) == 24 &&
              offsetof(ZorLibraryVersion, versionText) == 32);
static_assert(offsetof(ZorLibraryVersion, buildDate) == 40 && sizeof(ZorLibraryVersion) == 48);
static_assert(sizeof(ZorLibraryVersion::cpuTag) == 4);

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
