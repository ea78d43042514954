#include <zors.h>
#include <zorstatus.h>

#include <iostream>
#include <vector>

int main()
{
    const std::vector<Zor32f> signal = {1, 2, 3};
    Zor32f mean = 0, deviation = 0;
    const ZorStatus status =
        zorsMeanStdDev_32f(signal.data(), static_cast<int>(signal.size()), &mean, &deviation);

    std::cout << zorGetStatusName(status) << ' ' << mean << ' ' << deviation << '\n';
    return status == zorStsOk && mean == 2 && deviation == 1 ? 0 : 1;
}
