#include "statistics.h"

namespace ecg {

Range rangeOf(std::span<const Zor32f> signal)
{
    Range range;
    require(zorsMinMax_32f(signal.data(), static_cast<int>(signal.size()), &range.min, &range.max),
            "find the range");
    return range;
}

Statistics statisticsOf(std::span<const Zor32f> signal)
{
    if (signal.size() == 1) return {signal[0], std::nullopt, {signal[0], signal[0]}};
    Zor32f mean, stdDev;
    require(zorsMeanStdDev_32f(signal.data(), static_cast<int>(signal.size()), &mean, &stdDev),
            "find mean and standard deviation");
    return {mean, stdDev, rangeOf(signal)};
}

double energyOf(const Channel& signal)
{
    Channel squares(signal.len());
    Zor32f sum = 0;
    require(zorsMul_32f(signal.data(), signal.data(), squares.data(), signal.len()), "square a signal");
    require(zorsSum_32f(squares.data(), squares.len(), &sum, ZOR_ALG_PRECISION), "sum a signal");
    return static_cast<double>(sum);
}

void removeOffset(Channel& channel)
{
    const Zor32f offset = statisticsOf(channel.all()).mean;
    require(zorsSubC_32f_I(offset, channel.data(), channel.len()), "remove the offset");
}

} // namespace ecg
