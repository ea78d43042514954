// Reports on an electrocardiogram: statistics as text, the recording without its offset as WAV, a picture of it.
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
    const fs::path wav = stem.string() + "_centred.wav", png = stem.string() + ".png";
    ecg::writeWav(wav, recording);
    ecg::drawRecording(png, recording, captionOf(arguments.input));
    std::printf("\nwithout offset: %s\ndrawn:          %s\n", wav.c_str(), png.c_str());
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
