#include "wav.h"

#include "samples.h"

#include <array>
#include <fstream>
#include <sndfile.h>
#include <string_view>

namespace ecg {
namespace {

struct Close {
    void operator()(SNDFILE* file) const { sf_close(file); }
};
using File = std::unique_ptr<SNDFILE, Close>;

// The size of a chunk is stored least significant byte first.
Zor64s littleEndian(const char* bytes)
{
    Zor64s value = 0;
    for (int i = 3; i >= 0; --i) value = value << 8 | static_cast<unsigned char>(bytes[i]);
    return value;
}

// Whether the header announces more samples than the file holds. The reading library takes such a file for a
// shorter recording, so the chunks are followed here.
bool truncated(const std::filesystem::path& path)
{
    const auto size = static_cast<Zor64s>(std::filesystem::file_size(path));
    std::ifstream file(path, std::ios::binary);
    std::array<char, 8> header{}; // name and size of a chunk
    constexpr Zor64s firstChunk = 12;
    for (Zor64s at = firstChunk; file.seekg(at) && file.read(header.data(), header.size());) {
        const Zor64s end = at + 8 + littleEndian(header.data() + 4);
        if (std::string_view(header.data(), 4) == "data") return end > size;
        at = end + end % 2; // chunks begin at even offsets
    }
    return false;
}

File open(const std::filesystem::path& path, SF_INFO& info)
{
    if (!std::filesystem::is_regular_file(path)) throw Error(path.string() + ": no such regular file");
    if (std::filesystem::is_empty(path)) throw Error(path.string() + ": the file is empty");
    File file(sf_open(path.c_str(), SFM_READ, &info));
    if (!file) throw Error(path.string() + ": not a readable WAV file: " + sf_strerror(nullptr));
    return file;
}

void checkFormat(const std::filesystem::path& path, const SF_INFO& info)
{
    const int type = info.format & SF_FORMAT_TYPEMASK, encoding = info.format & SF_FORMAT_SUBMASK;
    if (type != SF_FORMAT_WAV && type != SF_FORMAT_WAVEX) throw Error(path.string() + ": not a WAV file");
    if (encoding == SF_FORMAT_FLOAT || encoding == SF_FORMAT_DOUBLE)
        throw Error(path.string() + ": floating-point samples; integer samples are needed");
    if (info.channels > 2)
        throw Error(path.string() + ": " + std::to_string(info.channels) +
                    " channels; one or two are needed");
    if (truncated(path)) throw Error(path.string() + ": the file is truncated");
    if (info.frames < 1) throw Error(path.string() + ": the file holds no samples");
}

} // namespace

Recording readWav(const std::filesystem::path& path)
{
    SF_INFO info{};
    const File file = open(path, info);
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
    File file(sf_open(path.c_str(), SFM_WRITE, &info));
    if (!file) throw Error(path.string() + ": cannot create the file: " + sf_strerror(nullptr));

    const Vector<Zor16s> frames = toFrames(recording.channels);
    const bool written = sf_writef_short(file.get(), frames.data(), recording.len()) == recording.len();
    const bool closed = sf_close(file.release()) == 0;
    if (!written || !closed) throw Error(path.string() + ": cannot write all samples");
}

} // namespace ecg
