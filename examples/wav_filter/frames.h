// A block of a file: frames of one sample a channel, in the encoding of the file and as floating-point numbers.
#pragma once

#include "common/error.h"
#include "encodings.h"
#include "input.h"
#include "output.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace wav {

template <class Encoding>
class Frames {
    using Sample = typename Encoding::Sample;

public:
    Frames(int channels, int len)
        : channels_(channels), raw_(static_cast<std::size_t>(channels) * static_cast<std::size_t>(len)),
          samples_(raw_.size())
    {
    }

    // The next `count` frames; zeros behind them.
    void read(Input& input, int count)
    {
        if (Encoding::read(input.file.get(), raw_.data(), count) != count)
            throw example::Error(input.path.string() +
                                 ": cannot read all samples: " + sf_strerror(input.file.get()));
        std::fill(samples_.begin() + count * channels_, samples_.end(), Sample{0});
        if (count > 0)
            example::require(Encoding::decode(raw_.data(), samples_.data(), count * channels_),
                             "convert the samples");
    }

    // `count` frames from `first` on. Returns how many samples saturate.
    Zor64s write(Output& output, int first, int count)
    {
        const auto begin = samples_.begin() + first * channels_, end = begin + count * channels_;
        example::require(Encoding::encode(&*begin, raw_.data(), count * channels_), "convert the samples");
        if (Encoding::write(output.file(), raw_.data(), count) != count) output.fail();
        return Encoding::saturates ? std::count_if(begin, end, beyondRange) : 0;
    }

    // The samples of one channel, out of the frames and into them.
    void get(int channel, std::vector<Sample>& samples) const
    {
        for (int at = channel; auto& sample : samples) {
            sample = samples_.data()[at];
            at += channels_;
        }
    }
    void set(int channel, const std::vector<Sample>& samples)
    {
        for (int at = channel; const Sample sample : samples) {
            samples_.data()[at] = sample;
            at += channels_;
        }
    }

private:
    // Whether the sample rounds to an integer above the largest or below the least one.
    static bool beyondRange(Sample sample)
    {
        const Sample half = std::ldexp(Sample{1}, -Encoding::bits);
        return sample >= 1 - half || sample < -1 - half;
    }

    int channels_;
    std::vector<typename Encoding::Raw> raw_;
    std::vector<Sample> samples_;
};

} // namespace wav
