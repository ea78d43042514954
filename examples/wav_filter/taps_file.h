// Taps from a text file.
#pragma once

#include "filter.h"

#include <filesystem>

namespace wav {

// Numbers between blanks or line ends, h[0] first; a # begins a comment, to the end of the line.
Filter readTaps(const std::filesystem::path& path);

} // namespace wav
