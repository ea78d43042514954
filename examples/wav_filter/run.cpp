#include "run.h"

#include "channel.h"
#include "frames.h"
#include "interrupt.h"
#include "progress.h"

namespace wav {
namespace {

// About so many samples, of all channels, are in memory at a time.
constexpr int samplesInBlock = 1 << 16;

// A chunk of a WAV file counts its bytes in 32 bits; some are left for the header.
constexpr Zor64s mostBytes = (Zor64s{1} << 32) - (1 << 16);

template <class Encoding>
Zor64s runAs(const Filter& filter, Input& input, Output& output)
{
    using Sample = typename Encoding::Sample;
    const SF_INFO& info = input.info;
    const Zor64s all = filter.ratio.of(info.frames);
    if (all * info.channels > mostBytes / (Encoding::bits / 8))
        throw example::Error(input.path.string() + ": the result is too long for a WAV file");

    const auto [up, down] = filter.ratio;
    const int iterations = std::max(1, samplesInBlock / (info.channels * std::max(up, down)));
    const int taken = iterations * down, given = iterations * up;
    Frames<Encoding> source(info.channels, taken), result(info.channels, given);
    std::vector<Sample> before(static_cast<std::size_t>(taken)), after(static_cast<std::size_t>(given));
    std::vector<Channel<Sample>> channels;
    while (channels.size() < static_cast<std::size_t>(info.channels)) channels.emplace_back(filter);

    // As many outputs as the delay lasts are left out, and zeros behind the last sample bring out the rest.
    Zor64s unread = info.frames, delayed = filter.delay / down, saturated = 0;
    Progress progress(all);
    for (Zor64s written = 0; written < all;) {
        stopIfInterrupted();
        const auto count = static_cast<int>(std::min<Zor64s>(unread, taken));
        source.read(input, count);
        unread -= count;

        for (int c = 0; auto& channel : channels) {
            source.get(c, before);
            channel.filter(before.data(), after, iterations);
            result.set(c++, after);
        }

        const auto first = static_cast<int>(std::min<Zor64s>(delayed, given));
        delayed -= first;
        const auto kept = static_cast<int>(std::min<Zor64s>(all - written, given - first));
        if (kept > 0) saturated += result.write(output, first, kept);
        written += kept;
        progress.at(written);
    }
    return saturated;
}

} // namespace

Zor64s run(const Filter& filter, Input& input, Output& output)
{
    switch (input.info.format & SF_FORMAT_SUBMASK) {
    case SF_FORMAT_PCM_16:
        return runAs<Pcm16>(filter, input, output);
    case SF_FORMAT_PCM_24:
        return runAs<Pcm24>(filter, input, output);
    case SF_FORMAT_PCM_32:
        return runAs<Pcm32>(filter, input, output);
    case SF_FORMAT_FLOAT:
        return runAs<Float>(filter, input, output);
    case SF_FORMAT_DOUBLE:
        return runAs<Double>(filter, input, output);
    default:
        throw example::Error(input.path.string() + ": samples of 16, 24 or 32 bits or floats are needed");
    }
}

} // namespace wav
