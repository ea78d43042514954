/**
 * @file
 * Names of the status codes, for messages and logs. Nothing here is exported by the library.
 */
#ifndef ZORSTATUS_H
#define ZORSTATUS_H

#include <zortypes.h>

/**
 * The name of a status code as its constant is spelt, such as "zorStsBadSize".
 * @param status what a function of the library returned
 * @return a static text; "unknown status" for a value that no function returns
 */
static inline const char* zorGetStatusName(ZorStatus status)
{
/** @cond */
#define ZOR_STATUS_CASE(name)                                                                                \
    case name:                                                                                               \
        return #name
    /** @endcond */
    switch (status) {
        ZOR_STATUS_CASE(zorStsOk);
        ZOR_STATUS_CASE(zorStsSqrtNegArg);
        ZOR_STATUS_CASE(zorStsDivByZero);
        ZOR_STATUS_CASE(zorStsLnZeroArg);
        ZOR_STATUS_CASE(zorStsLnNegArg);
        ZOR_STATUS_CASE(zorStsBadArgument);
        ZOR_STATUS_CASE(zorStsBadSize);
        ZOR_STATUS_CASE(zorStsBadZeroCrossingType);
        ZOR_STATUS_CASE(zorStsNullPointer);
        ZOR_STATUS_CASE(zorStsNoMemory);
        ZOR_STATUS_CASE(zorStsDivByZeroError);
        ZOR_STATUS_CASE(zorStsBadCauchyParameter);
        ZOR_STATUS_CASE(zorStsBadDataType);
        ZOR_STATUS_CASE(zorStsBadTapsScale);
        ZOR_STATUS_CASE(zorStsBadFftOrder);
        ZOR_STATUS_CASE(zorStsBadFftFlag);
        ZOR_STATUS_CASE(zorStsWrongContext);
        ZOR_STATUS_CASE(zorStsBadThresholdOrder);
        ZOR_STATUS_CASE(zorStsNegativeThreshold);
        ZOR_STATUS_CASE(zorStsBadDelayIndex);
        ZOR_STATUS_CASE(zorStsBadIirOrder);
        ZOR_STATUS_CASE(zorStsBadFirLength);
        ZOR_STATUS_CASE(zorStsBadRelFreq);
        ZOR_STATUS_CASE(zorStsBadMultiRatePhase);
        ZOR_STATUS_CASE(zorStsBadMultiRateFactor);
        ZOR_STATUS_CASE(zorStsBadSamplePhase);
        ZOR_STATUS_CASE(zorStsBadSampleFactor);
        ZOR_STATUS_CASE(zorStsBadShift);
        ZOR_STATUS_CASE(zorStsBadWindowLength);
        ZOR_STATUS_CASE(zorStsBadWtOffset);
        ZOR_STATUS_CASE(zorStsBadJaehneMagnitude);
        ZOR_STATUS_CASE(zorStsBadKaiserAlpha);
        ZOR_STATUS_CASE(zorStsBadTrianglePhase);
        ZOR_STATUS_CASE(zorStsBadTriangleAsym);
        ZOR_STATUS_CASE(zorStsBadTriangleFreq);
        ZOR_STATUS_CASE(zorStsBadTriangleMagnitude);
        ZOR_STATUS_CASE(zorStsBadToneFreq);
        ZOR_STATUS_CASE(zorStsBadTonePhase);
        ZOR_STATUS_CASE(zorStsBadToneMagnitude);
        ZOR_STATUS_CASE(zorStsBadChannelCount);
        ZOR_STATUS_CASE(zorStsBadNumChannels);
        ZOR_STATUS_CASE(zorStsBadSparsePositions);
        ZOR_STATUS_CASE(zorStsBadIirGenOrder);
        ZOR_STATUS_CASE(zorStsBadIirGenFreq);
        ZOR_STATUS_CASE(zorStsBadIirGenTolerance);
        ZOR_STATUS_CASE(zorStsBadRoundMode);
        ZOR_STATUS_CASE(zorStsBadAlgType);
    default:
        return "unknown status";
    }
#undef ZOR_STATUS_CASE
}

#endif
