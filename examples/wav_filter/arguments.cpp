#include "arguments.h"

#include "common/error.h"

#include <array>
#include <getopt.h>

namespace wav {

const char* const usage =
    "usage: wav_filter --rate L/M IN.wav OUT.wav     make the sampling rate L/M times what it is\n"
    "       wav_filter --to-rate HZ IN.wav OUT.wav   make it HZ\n"
    "       wav_filter --taps FILE IN.wav OUT.wav    filter with the taps in a text file\n"
    "\n"
    "Samples are 16, 24 or 32-bit integers or floats, of any number of channels, and stay what they are.\n"
    "Rate conversion passes 0.91 of the lower Nyquist frequency, holds aliases and images 100 dB down, and\n"
    "does not delay. Taps are numbers between blanks or line ends, h[0] first; # begins a comment.\n";

Arguments parse(int argc, char** argv)
{
    using Task = Arguments::Task;
    const std::array<option, 5> options = {
        {{"help", no_argument, nullptr, static_cast<int>(Task::help)},
         {"rate", required_argument, nullptr, static_cast<int>(Task::rate)},
         {"to-rate", required_argument, nullptr, static_cast<int>(Task::toRate)},
         {"taps", required_argument, nullptr, static_cast<int>(Task::taps)},
         {}}};
    const auto wrong = [](const std::string& what) {
        return example::Error(what + "; wav_filter --help tells the usage");
    };

    Arguments arguments{};
    int tasks = 0;
    opterr = 0;
    for (int found = 0; (found = getopt_long(argc, argv, "", options.data(), nullptr)) != -1; ++tasks) {
        if (found == '?') throw wrong("an option is unknown or lacks its value");
        arguments.task = static_cast<Task>(found);
        if (arguments.task == Task::help) return arguments;
        arguments.value = optarg;
    }
    if (tasks != 1) throw wrong("one of --rate, --to-rate and --taps is needed");
    if (argc - optind != 2) throw wrong("two files are needed");
    arguments.input = argv[optind];
    arguments.output = argv[optind + 1];
    return arguments;
}

} // namespace wav
