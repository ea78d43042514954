// Reports on an electrocardiogram: statistics and heart rate as text, the recording without its offset as WAV, pictures
// of it and of its spectrum.
#include "plot.h"
#include "report.h"
#include "statistics.h"
#include "wav.h"

#include <cstdio>
#include <filesystem>
#include <string_view>
#include <utility>

namespace {

namespace fs = std::filesystem;

struct Arguments {
    fs::path input = ECG_RECORDING;
    fs::path out = ".";
};

Arguments parse(int argc, char** argv)
{
    Arguments arguments;
    bool inputGiven = false;
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument == "--out" && i + 1 < argc)
            arguments.out = argv[++i];
        else if (!argument.starts_with("--") && !std::exchange(inputGiven, true))
            arguments.input = argument;
        else
            throw ecg::Error("usage: ecg_report [input.wav] [--out FOLDER]");
    }
    return arguments;
}

std::string captionOf(const fs::path& input)
{
    if (input != ECG_RECORDING) return input.filename().string();
    return "MIT-BIH Arrhythmia Database, record 208, lead MLII (Moody and Mark 2001), from PhysioNet, ODC-By "
           "1.0";
}

void run(const Arguments& arguments)
{
    ecg::Recording recording = ecg::readWav(arguments.input);
    ecg::printReport(arguments.input.filename().string(), recording);

    for (ecg::Channel& channel : recording.channels) ecg::removeOffset(channel);

    fs::create_directories(arguments.out);
    const fs::path stem = arguments.out / arguments.input.stem();
    const auto file = [&](const char* ending) { return fs::path(stem.string() + ending); };
    const fs::path wav = file("_centred.wav"), trace = file(".png"), spectrum = file("_spectrum.png"),
                   spectrogram = file("_spectrogram.png");
    const std::string caption = captionOf(arguments.input);
    ecg::writeWav(wav, recording);
    ecg::drawRecording(trace, recording, caption);
    ecg::drawSpectrum(spectrum, recording, caption);
    ecg::drawSpectrogram(spectrogram, recording, caption);
    std::printf("\nwithout offset: %s\ntrace:          %s\nspectrum:       %s\nspectrogram:    %s\n",
                wav.c_str(), trace.c_str(), spectrum.c_str(), spectrogram.c_str());
    if (std::fflush(stdout) != 0 || std::ferror(stdout))
        throw ecg::Error("cannot write to the standard output");
}

} // namespace

int main(int argc, char** argv)
try {
    run(parse(argc, argv));
    return 0;
} catch (const std::exception& error) {
    std::fprintf(stderr, "ecg_report: %s\n", error.what());
    return 1;
}
