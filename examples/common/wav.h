// WAV files that can be trusted to hold what their header announces.
#pragma once

#include <filesystem>
#include <memory>
#include <sndfile.h>

namespace example {

struct CloseSound {
    void operator()(SNDFILE* file) const { sf_close(file); }
};
using SoundFile = std::unique_ptr<SNDFILE, CloseSound>;

// For reading. Throws where the file is missing, of another kind or shorter than it says.
SoundFile openWav(const std::filesystem::path& path, SF_INFO& info);

} // namespace example
