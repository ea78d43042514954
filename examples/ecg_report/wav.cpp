#include "wav.h"

#include "common/wav.h"
#include "samples.h"

namespace ecg {
namespace {

void checkFormat(const std::filesystem::path& path, const SF_INFO& info)
{
    const int encoding = info.format & SF_FORMAT_SUBMASK;
    if (encoding == SF_FORMAT_FLOAT || encoding == SF_FORMAT_DOUBLE)
        throw Error(path.string() + ": floating-point samples; integer samples are needed");
    if (info.channels > 2)
        throw Error(path.string() + ": " + std::to_string(info.channels) +
                    " channels; one or two are needed");
    if (info.frames < 1) throw Error(path.string() + ": the file holds no samples");
}

} // namespace

Recording readWav(const std::filesystem::path& path)
{
    SF_INFO info{};
    const example::SoundFile file = example::openWav(path, info);
    checkFormat(path, info);

    const sf_count_t count = info.frames * info.channels;
    if (count > std::numeric_limits<int>::max()) throw Error(path.string() + ": the recording is too long");
    Vector<Zor16s> frames(static_cast<int>(count));
    if (sf_readf_short(file.get(), frames.data(), info.frames) != info.frames)
        throw Error(path.string() + ": cannot read all samples: " + sf_strerror(file.get()));
    return {info.samplerate, toMillivolts(frames, info.channels)};
}

void writeWav(const std::filesystem::path& path, const Recording& recording)
{
    SF_INFO info{};
    info.samplerate = recording.rate;
    info.channels = static_cast<int>(recording.channels.size());
    info.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    example::SoundFile file(sf_open(path.c_str(), SFM_WRITE, &info));
    if (!file) throw Error(path.string() + ": cannot create the file: " + sf_strerror(nullptr));

    const Vector<Zor16s> frames = toFrames(recording.channels);
    const bool written = sf_writef_short(file.get(), frames.data(), recording.len()) == recording.len();
    const bool closed = sf_close(file.release()) == 0;
    if (!written || !closed) throw Error(path.string() + ": cannot write all samples");
}

} // namespace ecg
