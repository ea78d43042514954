// A filter as a picture.
#pragma once

#include "filter.h"

#include <filesystem>

namespace wav {

// Draws level, phase and group delay over the logarithm of the frequency into a PNG.
void drawResponse(const std::filesystem::path& png, const Filter& filter, int rate);

} // namespace wav
