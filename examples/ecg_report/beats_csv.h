// The beats as a table for other programs.
#pragma once

#include "beats.h"

#include <filesystem>

namespace ecg {

// A line a beat: its number from 1, its time, the interval since the beat before it and the rate that this is; both
// are empty for the first beat and behind an interruption.
void writeBeats(const std::filesystem::path& path, const Beats& beats);

} // namespace ecg
