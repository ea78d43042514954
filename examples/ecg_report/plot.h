// The recording in pictures. Each draws all channels into a PNG.
#pragma once

#include "beats.h"
#include "common/picture.h"

#include <filesystem>

namespace ecg {

using example::number, example::Picture, example::quoted;

// The trace: the whole of it as an envelope, and the first ten seconds.
void drawRecording(const std::filesystem::path& png, const Recording& recording, const std::string& caption);

// The power spectrum, and that of the activity, with the heart rate.
void drawSpectrum(const std::filesystem::path& png, const Recording& recording, const std::string& caption);

// The power spectrum as it changes with time.
void drawSpectrogram(const std::filesystem::path& png, const Recording& recording,
                     const std::string& caption);

// Ten seconds with their beats, and the signals that they were found in.
void drawBeats(const std::filesystem::path& png, const Recording& recording,
               const std::vector<std::optional<Beats>>& beats, const std::string& caption);

} // namespace ecg
