#include "arguments.h"

#include "common/error.h"
#include "numbers.h"

#include <array>
#include <getopt.h>

namespace wav {

const char* const usage =
    "usage: wav_filter TASK [OPTIONS] IN.wav OUT.wav\n"
    "\n"
    "tasks  --rate L/M            make the sampling rate L/M times what it is\n"
    "       --to-rate HZ          make it HZ\n"
    "       --taps FILE           filter with the taps in a text file\n"
    "       --lowpass HZ          pass what is below HZ\n"
    "       --highpass HZ         pass what is above HZ\n"
    "       --bandpass LOW:HIGH   pass what is between LOW and HIGH, in hertz\n"
    "       --bandstop LOW:HIGH   pass what is not\n"
    "\n"
    "how    --fir TAPS            by so many taps, an odd number; without, as many as the band asks for\n"
    "       --iir ORDER           with feedback, of order 1 to 12: a Butterworth filter\n"
    "       --ripple DB           a Chebyshev filter with this ripple of its pass band, up to 29 dB\n"
    "also   --response FILE.png   draw level, phase and group delay of the filter over the frequency\n"
    "\n"
    "Samples are 16, 24 or 32-bit integers or floats, of any number of channels, and stay what they are.\n"
    "Rate conversion passes 0.91 of the lower Nyquist frequency, holds aliases and images 100 dB down, and\n"
    "does not delay. Taps are numbers between blanks or line ends, h[0] first; # begins a comment.\n"
    "Filters for a band have a Hamming window, linear phase and no delay: 6 dB down at the edges, and 53 dB\n"
    "from 1.65 sampling rates / TAPS beyond. With feedback they delay, and are 3 dB down at the edges; with\n"
    "ripple by as much in odd orders, in even ones 0 dB, the ripple above. A band is passed by two of them,\n"
    "and cannot be stopped.\n";

namespace {

example::Error wrong(const std::string& what)
{
    return example::Error(what + "; wav_filter --help tells the usage");
}

int positiveOption(const std::string& option, const char* text)
{
    const auto value = positiveInteger(text);
    if (!value) throw example::Error("--" + option + " " + text + ": a positive whole number is needed");
    return *value;
}

double realOption(const std::string& option, const char* text)
{
    const auto value = finiteNumber(text);
    if (!value) throw example::Error("--" + option + " " + text + ": a number is needed");
    return *value;
}

void checkTogether(const Arguments& arguments)
{
    if ((arguments.fir || arguments.iir) && !arguments.isBand())
        throw wrong("--fir and --iir go with --lowpass, --highpass, --bandpass and --bandstop");
    if (arguments.fir && arguments.iir) throw wrong("a filter is either --fir or --iir");
    if (arguments.ripple && !arguments.iir) throw wrong("--ripple goes with --iir");
    if (!arguments.response.empty() && arguments.isRate())
        throw wrong("--response draws filters that keep the sampling rate");
}

} // namespace

Arguments parse(int argc, char** argv)
{
    using Task = Arguments::Task;
    enum Option { fir = static_cast<int>(Task::bandStop) + 1, iir, ripple, response };
    const auto task = [](const char* name, Task which) {
        const int argument = which == Task::help ? no_argument : required_argument;
        return option{name, argument, nullptr, static_cast<int>(which)};
    };
    const std::array<option, 13> options = {{task("help", Task::help),
                                             task("rate", Task::rate),
                                             task("to-rate", Task::toRate),
                                             task("taps", Task::taps),
                                             task("lowpass", Task::lowPass),
                                             task("highpass", Task::highPass),
                                             task("bandpass", Task::bandPass),
                                             task("bandstop", Task::bandStop),
                                             {"fir", required_argument, nullptr, fir},
                                             {"iir", required_argument, nullptr, iir},
                                             {"ripple", required_argument, nullptr, ripple},
                                             {"response", required_argument, nullptr, response},
                                             {}}};
    Arguments arguments{};
    int tasks = 0;
    opterr = 0;
    for (int found = 0; (found = getopt_long(argc, argv, "", options.data(), nullptr)) != -1;) {
        switch (found) {
        case '?':
            throw wrong("an option is unknown or lacks its value");
        case fir:
            arguments.fir = positiveOption("fir", optarg);
            break;
        case iir:
            arguments.iir = positiveOption("iir", optarg);
            break;
        case ripple:
            arguments.ripple = realOption("ripple", optarg);
            break;
        case response:
            arguments.response = optarg;
            break;
        default:
            arguments.task = static_cast<Task>(found);
            if (arguments.task == Task::help) return arguments;
            arguments.value = optarg;
            ++tasks;
        }
    }
    if (tasks != 1) throw wrong("one task is needed");
    if (argc - optind != 2) throw wrong("two files are needed");
    checkTogether(arguments);
    arguments.input = argv[optind];
    arguments.output = argv[optind + 1];
    return arguments;
}

} // namespace wav
