// The windows as a picture.
#pragma once

#include "windows.h"

namespace windows {

// Draws every window and its spectrum into a PNG by gnuplot.
void draw(const std::string& png, int len);

} // namespace windows
