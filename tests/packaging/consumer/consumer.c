#include <zors.h>
#include <zorstatus.h>

#include <stdio.h>

int main(void)
{
    const Zor16s samples[] = {-300, 0, 500};
    Zor32f volts[3];
    const ZorStatus status = zorsConvert_16s32f_Sfs(samples, volts, 3, 1);

    printf("%s: %s %g %g %g\n", zorsGetLibVersion()->versionText, zorGetStatusName(status), volts[0],
           volts[1], volts[2]);
    return status != zorStsOk || volts[0] != -150 || volts[1] != 0 || volts[2] != 250;
}
