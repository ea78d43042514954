// The filter of one channel: records of the library and what they remember of the stream.
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

// Double precision inside, whatever the samples: feedback adds up what is rounded.
template <class Sample>
struct Iir;
template <>
struct Iir<Zor32f> {
    using State = ZorsIIRState64f_32f;
    static constexpr auto init = zorsIIRInitAlloc64f_32f;
    static constexpr auto filter = zorsIIR64f_32f_I;
    static constexpr auto free = zorsIIRFree64f_32f;
};
template <>
struct Iir<Zor64f> {
    using State = ZorsIIRState_64f;
    static constexpr auto init = zorsIIRInitAlloc_64f;
    static constexpr auto filter = zorsIIR_64f_I;
    static constexpr auto free = zorsIIRFree_64f;
};

template <class Kind>
struct Free {
    void operator()(typename Kind::State* state) const { Kind::free(state); }
};
template <class Kind>
using State = std::unique_ptr<typename Kind::State, Free<Kind>>;

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
        typename Fir<Sample>::State* state = nullptr;
        example::require(
            Fir<Sample>::init(&state, taps.data(), len, up, 0, down, filter.delay % down, nullptr),
            "prepare the filter");
        fir_.reset(state);

        for (const Recursive& recursive : filter.recursive) {
            typename Iir<Sample>::State* made = nullptr;
            example::require(Iir<Sample>::init(&made, recursive.taps.data(), recursive.order, nullptr),
                             "prepare the filter");
            iir_.emplace_back(made);
        }
    }

    // An iteration takes ratio.down samples and gives ratio.up of them.
    void filter(const Sample* source, std::vector<Sample>& result, int iterations)
    {
        example::require(Fir<Sample>::filter(source, result.data(), iterations, fir_.get()), "filter");
        const auto len = static_cast<int>(result.size());
        for (const auto& state : iir_)
            example::require(Iir<Sample>::filter(result.data(), len, state.get()), "filter");
    }

private:
    State<Fir<Sample>> fir_;
    std::vector<State<Iir<Sample>>> iir_;
};

} // namespace wav
