#include <zorstatus.h>

#include <gtest/gtest.h>
#include <map>

namespace {

// The codes are part of the binary interface: numbers and names stand here once more.
const std::map<ZorStatus, std::string> names = {
    {0, "zorStsOk"},
    {3, "zorStsSqrtNegArg"},
    {6, "zorStsDivByZero"},
    {7, "zorStsLnZeroArg"},
    {8, "zorStsLnNegArg"},
    {-5, "zorStsBadArgument"},
    {-6, "zorStsBadSize"},
    {-7, "zorStsBadZeroCrossingType"},
    {-8, "zorStsNullPointer"},
    {-9, "zorStsNoMemory"},
    {-10, "zorStsDivByZeroError"},
    {-11, "zorStsBadCauchyParameter"},
    {-12, "zorStsBadDataType"},
    {-13, "zorStsBadTapsScale"},
    {-15, "zorStsBadFftOrder"},
    {-16, "zorStsBadFftFlag"},
    {-17, "zorStsWrongContext"},
    {-18, "zorStsBadThresholdOrder"},
    {-19, "zorStsNegativeThreshold"},
    {-24, "zorStsBadDelayIndex"},
    {-25, "zorStsBadIirOrder"},
    {-26, "zorStsBadFirLength"},
    {-27, "zorStsBadRelFreq"},
    {-28, "zorStsBadMultiRatePhase"},
    {-29, "zorStsBadMultiRateFactor"},
    {-30, "zorStsBadSamplePhase"},
    {-31, "zorStsBadSampleFactor"},
    {-32, "zorStsBadShift"},
    {-33, "zorStsBadWindowLength"},
    {-35, "zorStsBadWtOffset"},
    {-38, "zorStsBadJaehneMagnitude"},
    {-39, "zorStsBadKaiserAlpha"},
    {-40, "zorStsBadTrianglePhase"},
    {-41, "zorStsBadTriangleAsym"},
    {-42, "zorStsBadTriangleFreq"},
    {-43, "zorStsBadTriangleMagnitude"},
    {-44, "zorStsBadToneFreq"},
    {-45, "zorStsBadTonePhase"},
    {-46, "zorStsBadToneMagnitude"},
    {-47, "zorStsBadChannelCount"},
    {-53, "zorStsBadNumChannels"},
    {-194, "zorStsBadSparsePositions"},
    {-206, "zorStsBadIirGenOrder"},
    {-208, "zorStsBadIirGenFreq"},
    {-209, "zorStsBadIirGenTolerance"},
    {-213, "zorStsBadRoundMode"},
    {-228, "zorStsBadAlgType"},
};

TEST(Status, EveryCodeHasItsName)
{
    for (ZorStatus status = -1000; status <= 1000; ++status) {
        const auto known = names.find(status);
        EXPECT_EQ(zorGetStatusName(status), known == names.end() ? "unknown status" : known->second)
            << status;
    }
}

} // namespace
