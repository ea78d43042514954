// Recordings in WAV files of 16-bit samples.
#pragma once

#include "recording.h"

#include <filesystem>

namespace ecg {

Recording readWav(const std::filesystem::path& path);
void writeWav(const std::filesystem::path& path, const Recording& recording);

} // namespace ecg
