// The filter of one channel: a record of the library and what it remembers of the stream.
#pragma once

#include "common/error.h"
#include "filter.h"

#include <zors.h>

#include <memory>
#include <vector>

namespace wav {

template <class Sample>
struct Fir;
template <>
struct Fir<Zor32f> {
    using State = ZorsFIRState_32f;
    static constexpr auto convert = zorsConvert_64f32f;
    static constexpr auto init = zorsFIRMRInitAlloc_32f;
    static constexpr auto filter = zorsFIR_32f;
    static constexpr auto free = zorsFIRFree_32f;
};
template <>
struct Fir<Zor64f> {
    using State = ZorsFIRState_64f;
    static constexpr auto convert = zorsCopy_64f;
    static constexpr auto init = zorsFIRMRInitAlloc_64f;
    static constexpr auto filter = zorsFIR_64f;
    static constexpr auto free = zorsFIRFree_64f;
};

template <class Sample>
class Channel {
public:
    // The first of every ratio.down outputs that is kept is the one at which the delay ends.
    explicit Channel(const Filter& filter)
    {
        const auto len = static_cast<int>(filter.taps.size());
        std::vector<Sample> taps(filter.taps.size());
        example::require(Fir<Sample>::convert(filter.taps.data(), taps.data(), len), "convert the taps");
        const auto [up, down] = filter.ratio;
        State* state = nullptr;
        example::require(
            Fir<Sample>::init(&state, taps.data(), len, up, 0, down, filter.delay % down, nullptr),
            "prepare the filter");
        state_.reset(state);
    }

    // An iteration takes ratio.down samples and gives ratio.up of them.
    void filter(const Sample* source, Sample* result, int iterations)
    {
        example::require(Fir<Sample>::filter(source, result, iterations, state_.get()), "filter");
    }

private:
    using State = typename Fir<Sample>::State;
    struct Free {
        void operator()(State* state) const { Fir<Sample>::free(state); }
    };
    std::unique_ptr<State, Free> state_;
};

} // namespace wav
