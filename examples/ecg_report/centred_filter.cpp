#include "centred_filter.h"

#include <algorithm>

namespace ecg {
namespace {

struct Free {
    void operator()(ZorsFIRState_32f* state) const { zorsFIRFree_32f(state); }
};

// With `half` samples more at either end, of the signal mirrored there: noise and waves go on about the same mean.
Channel continued(const Channel& channel, int half)
{
    const int len = channel.len(), last = len - 1;
    Channel result(len + 2 * half);
    require(zorsCopy_32f(channel.data(), result.data() + half, len), "copy the signal");
    const Zor32f *const from = channel.data(), *const to = from + last;
    for (int k = 1; k <= half; ++k) {
        const int distance = std::min(k, last);
        result.data()[half - k] = from[distance];
        result.data()[half + last + k] = *(to - distance);
    }
    return result;
}

} // namespace

Channel filteredAboutCentre(const Channel& channel, const Vector<Zor32f>& taps)
{
    const int len = channel.len(), half = taps.len() / 2;
    Channel signal = continued(channel, half);
    ZorsFIRState_32f* made = nullptr;
    require(zorsFIRInitAlloc_32f(&made, taps.data(), taps.len(), nullptr), "prepare a filter");
    const std::unique_ptr<ZorsFIRState_32f, Free> state(made);
    require(zorsFIR_32f_I(signal.data(), signal.len(), made), "filter the signal");
    Channel result(len);
    require(zorsCopy_32f(signal.data() + 2 * half, result.data(), len), "copy the signal");
    return result;
}

} // namespace ecg
