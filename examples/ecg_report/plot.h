// The recording as a picture.
#pragma once

#include "recording.h"

#include <filesystem>

namespace ecg {

// Draws each channel into a PNG by gnuplot: the whole of it as an envelope, and the first ten seconds.
void drawRecording(const std::filesystem::path& png, const Recording& recording, const std::string& caption);

} // namespace ecg
