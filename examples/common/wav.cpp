#include "wav.h"

#include "error.h"

#include <zortypes.h>

#include <array>
#include <fstream>
#include <string_view>

namespace example {
namespace {

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

} // namespace

SoundFile openWav(const std::filesystem::path& path, SF_INFO& info)
{
    if (!std::filesystem::is_regular_file(path)) throw Error(path.string() + ": no such regular file");
    if (std::filesystem::is_empty(path)) throw Error(path.string() + ": the file is empty");
    info = {};
    SoundFile file(sf_open(path.c_str(), SFM_READ, &info));
    if (!file) throw Error(path.string() + ": not a readable WAV file: " + sf_strerror(nullptr));
    const int type = info.format & SF_FORMAT_TYPEMASK;
    if (type != SF_FORMAT_WAV && type != SF_FORMAT_WAVEX) throw Error(path.string() + ": not a WAV file");
    if (truncated(path)) throw Error(path.string() + ": the file is truncated");
    return file;
}

} // namespace example
