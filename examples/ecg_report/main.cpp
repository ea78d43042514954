// Reports on an electrocardiogram: statistics, heart rate and its variability as text, the beats as a table, the
// recording without its offset as WAV, pictures of it, of its spectrum and of its beats.
#include "beats_csv.h"
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

void tell(const char* what, const fs::path& path)
{
    std::printf("%-15s %s\n", what, path.c_str());
}

// A table for each channel; its name tells which, where there are several.
void writeBeats(const fs::path& stem, const std::vector<std::optional<ecg::Beats>>& beats)
{
    for (std::size_t i = 0; i < beats.size(); ++i) {
        if (!beats[i]) continue;
        std::string csv = stem.string() + "_beats";
        if (beats.size() > 1) csv.append("_").append(std::to_string(i + 1));
        csv += ".csv";
        ecg::writeBeats(csv, *beats[i]);
        tell("table of beats:", csv);
    }
}

void run(const Arguments& arguments)
{
    ecg::Recording recording = ecg::readWav(arguments.input);
    std::vector<std::optional<ecg::Beats>> beats;
    for (const ecg::Channel& channel : recording.channels)
        beats.push_back(ecg::beatsOf(channel, recording.rate));
    ecg::printReport(arguments.input.filename().string(), recording, beats);

    for (ecg::Channel& channel : recording.channels) ecg::removeOffset(channel);

    fs::create_directories(arguments.out);
    const fs::path stem = arguments.out / arguments.input.stem();
    const auto file = [&](const char* ending) { return fs::path(stem.string() + ending); };
    const fs::path wav = file("_centred.wav"), trace = file(".png"), spectrum = file("_spectrum.png"),
                   spectrogram = file("_spectrogram.png"), marked = file("_beats.png");
    const std::string caption = captionOf(arguments.input);
    ecg::writeWav(wav, recording);
    ecg::drawRecording(trace, recording, caption);
    ecg::drawSpectrum(spectrum, recording, caption);
    ecg::drawSpectrogram(spectrogram, recording, caption);
    ecg::drawBeats(marked, recording, beats, caption);
    std::printf("\n");
    tell("without offset:", wav);
    tell("trace:", trace);
    tell("spectrum:", spectrum);
    tell("spectrogram:", spectrogram);
    tell("marked beats:", marked);
    writeBeats(stem, beats);
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
