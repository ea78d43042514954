#include "centred_filter.h"

namespace ecg {
namespace {

struct Free {
    void operator()(ZorsFIRState_32f* state) const { zorsFIRFree_32f(state); }
};

} // namespace

Channel filteredAboutCentre(const Channel& channel, const Vector<Zor32f>& taps)
{
    const int len = channel.len(), half = taps.len() / 2;
    Channel signal(len + 2 * half);
    const auto fill = [&](Zor32f value, int begin) {
        if (half > 0) require(zorsSet_32f(value, signal.data() + begin, half), "continue the signal");
    };
    fill(channel.data()[0], 0);
    require(zorsCopy_32f(channel.data(), signal.data() + half, len), "copy the signal");
    fill(channel.data()[len - 1], half + len);

    ZorsFIRState_32f* made = nullptr;
    require(zorsFIRInitAlloc_32f(&made, taps.data(), taps.len(), nullptr), "prepare a filter");
    const std::unique_ptr<ZorsFIRState_32f, Free> state(made);
    require(zorsFIR_32f_I(signal.data(), signal.len(), made), "filter the signal");
    Channel result(len);
    require(zorsCopy_32f(signal.data() + 2 * half, result.data(), len), "copy the signal");
    return result;
}

} // namespace ecg
