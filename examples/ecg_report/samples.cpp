#include "samples.h"

namespace ecg {
namespace {

constexpr Zor32f unitsPerMillivolt = 200;

Channel channelOf(const Vector<Zor16s>& samples)
{
    Channel channel(samples.len());
    require(zorsConvert_16s32f_Sfs(samples.data(), channel.data(), samples.len(), 0), "convert the samples");
    require(zorsMulC_32f_I(1 / unitsPerMillivolt, channel.data(), channel.len()), "scale to millivolts");
    return channel;
}

} // namespace

Vector<Zor16s> samplesOf(const Channel& channel)
{
    Channel units(channel.len());
    require(zorsCopy_32f(channel.data(), units.data(), channel.len()), "copy a channel");
    require(zorsMulC_32f_I(unitsPerMillivolt, units.data(), units.len()), "scale from millivolts");
    Vector<Zor16s> samples(channel.len());
    require(zorsConvert_32f16s_Sfs(units.data(), samples.data(), samples.len(), zorRndNear, 0),
            "convert to samples");
    return samples;
}

// A stereo frame has the layout of a complex number.
std::vector<Channel> toMillivolts(const Vector<Zor16s>& frames, int channels)
{
    std::vector<Channel> result;
    if (channels == 1) {
        result.push_back(channelOf(frames));
    } else {
        const int len = frames.len() / 2;
        Vector<Zor16s> left(len), right(len);
        require(zorsCplxToReal_16sc(reinterpret_cast<const Zor16sc*>(frames.data()), left.data(),
                                    right.data(), len),
                "split the channels");
        result.push_back(channelOf(left));
        result.push_back(channelOf(right));
    }
    return result;
}

Vector<Zor16s> toFrames(const std::vector<Channel>& channels)
{
    Vector<Zor16s> left = samplesOf(channels.front());
    if (channels.size() == 1) return left;
    const Vector<Zor16s> right = samplesOf(channels.back());
    Vector<Zor16s> frames(2 * left.len());
    require(
        zorsRealToCplx_16s(left.data(), right.data(), reinterpret_cast<Zor16sc*>(frames.data()), left.len()),
        "join the channels");
    return frames;
}

} // namespace ecg
