// The windows of the library and what they do to a spectrum.
#pragma once

#include <zors.h>

#include <string>
#include <vector>

namespace windows {

struct Window {
    std::string name;
    ZorStatus (*apply)(Zor32f* pSrcDst, int len);
};

const std::vector<Window>& allWindows();

// The window itself: what it makes of ones.
std::vector<Zor32f> weights(const Window& window, int len);

struct Level {
    double bin;     // frequency in units of the sampling rate over the length
    double decibel; // of the largest one
};

// The window's spectrum from zero to half the sampling rate.
std::vector<Level> spectrum(const Window& window, int len);

// The highest level behind the first minimum, which ends the main lobe.
double highestSideLobe(const std::vector<Level>& spectrum);

} // namespace windows
