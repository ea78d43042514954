// Runs the tests of a program on the variant that the environment names, or says loudly that it cannot.
#include "support/count.h"
#include "support/variant.h"

#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>

namespace {

constexpr int leftOut = 77; // CTest counts this exit status as skipped

} // namespace

int main(int argc, char** argv)
{
    const char* wanted = std::getenv("ZORS_TEST_VARIANT");
    for (const auto& variant : zors::test::variants) {
        if (!wanted || variant.name != wanted || zors::test::processorRuns(variant)) continue;
        std::printf("LEFT OUT: this processor cannot run the %s variant; nothing was tested\n", wanted);
        return leftOut;
    }
    testing::InitGoogleTest(&argc, argv);
    const int failed = RUN_ALL_TESTS();
    std::printf("%lld elements held against oracles\n", zors::test::elementsCompared);
    return failed;
}
