#include "substitute_core.h"

namespace zors::test {

SubstituteCore& substituteCore()
{
    static SubstituteCore core;
    return core;
}

} // namespace zors::test

using zors::test::substituteCore;

ZorStatus zorGetCpuFeatures(Zor64u* pFeatures, ZorCpuInfo* pInfo)
{
    substituteCore().calls.push_back(pFeatures || pInfo ? "zorGetCpuFeatures" : "zorGetCpuFeatures(0, 0)");
    return zorStsOk;
}

Zor64u zorGetEnabledCpuFeatures()
{
    substituteCore().calls.push_back("zorGetEnabledCpuFeatures()");
    return substituteCore().enabled;
}

void* zorMalloc(int)
{
    substituteCore().calls.push_back("zorMalloc");
    return nullptr;
}

void zorFree(void*)
{
    substituteCore().calls.push_back("zorFree");
}

void* zorAlignPtr(void*, int)
{
    substituteCore().calls.push_back("zorAlignPtr");
    return nullptr;
}
