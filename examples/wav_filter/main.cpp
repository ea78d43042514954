// Converts the sampling rate of a WAV file by a rational factor, or filters it: for a band, or with taps from a text
// file.
#include "arguments.h"
#include "common/error.h"
#include "designs.h"
#include "interrupt.h"
#include "low_pass.h"
#include "plot_response.h"
#include "run.h"
#include "taps_file.h"

#include <cstdio>
#include <limits>

namespace {

namespace fs = std::filesystem;
using example::Error;

wav::Filter filterFor(const wav::Arguments& arguments, int rate)
{
    using Task = wav::Arguments::Task;
    using Kind = wav::Band::Kind;
    const auto band = [&](Kind kind, const char* option) {
        const wav::Band wanted = wav::parseBand(kind, option, arguments.value, rate);
        return arguments.iir ? wav::iirFilter(wanted, *arguments.iir, arguments.ripple, rate)
                             : wav::firFilter(wanted, arguments.fir, rate);
    };
    switch (arguments.task) {
    case Task::rate:
        return wav::rateConversion(wav::parseRatio(arguments.value));
    case Task::toRate:
        return wav::rateConversion(wav::ratioTo(arguments.value, rate));
    case Task::taps:
        return wav::readTaps(arguments.value);
    case Task::lowPass:
        return band(Kind::lowPass, "lowpass");
    case Task::highPass:
        return band(Kind::highPass, "highpass");
    case Task::bandPass:
        return band(Kind::bandPass, "bandpass");
    case Task::bandStop:
        return band(Kind::bandStop, "bandstop");
    case Task::help:
        break;
    }
    return {};
}

// What the header of the result says.
SF_INFO resultOf(const SF_INFO& source, const wav::Ratio& ratio)
{
    const Zor64s rate = ratio.of(source.samplerate);
    if (rate * ratio.down != Zor64s{source.samplerate} * ratio.up || rate > std::numeric_limits<int>::max())
        throw Error(std::to_string(source.samplerate) + " Hz times " + std::to_string(ratio.up) + "/" +
                    std::to_string(ratio.down) + " is not a rate that a WAV file can have: whole hertz");
    SF_INFO result{};
    result.samplerate = static_cast<int>(rate);
    result.channels = source.channels;
    result.format = source.format & (SF_FORMAT_TYPEMASK | SF_FORMAT_SUBMASK);
    return result;
}

void run(const wav::Arguments& arguments)
{
    wav::Input input(arguments.input);
    const wav::Filter filter = filterFor(arguments, input.info.samplerate);
    for (const fs::path& written : {arguments.output, arguments.response})
        if (fs::exists(written) && fs::equivalent(arguments.input, written))
            throw Error(written.string() + ": is the file that is read");
    if (fs::weakly_canonical(arguments.output) == fs::weakly_canonical(arguments.response))
        throw Error(arguments.output.string() + ": sound and picture need a file each");

    wav::Output output(arguments.output, resultOf(input.info, filter.ratio));
    const Zor64s saturated = wav::run(filter, input, output);
    if (!arguments.response.empty()) wav::drawResponse(arguments.response, filter, input.info.samplerate);
    output.complete();
    if (saturated > 0)
        std::fprintf(stderr, "wav_filter: %lld samples beyond full scale were clipped\n",
                     static_cast<long long>(saturated));
}

} // namespace

int main(int argc, char** argv)
try {
    const wav::Arguments arguments = wav::parse(argc, argv);
    if (arguments.task == wav::Arguments::Task::help) {
        std::fputs(wav::usage, stdout);
        return 0;
    }
    wav::catchInterrupts();
    run(arguments);
    return 0;
} catch (const std::exception& error) {
    std::fprintf(stderr, "wav_filter: %s\n", error.what());
    return 1;
}
