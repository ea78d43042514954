// Converts the sampling rate of a WAV file by a rational factor, or filters it with taps from a text file.
#include "arguments.h"
#include "common/error.h"
#include "interrupt.h"
#include "low_pass.h"
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
    if (arguments.task == Task::taps) return wav::readTaps(arguments.value);
    return wav::rateConversion(arguments.task == Task::rate ? wav::parseRatio(arguments.value)
                                                            : wav::ratioTo(arguments.value, rate));
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
    if (fs::exists(arguments.output) && fs::equivalent(arguments.input, arguments.output))
        throw Error(arguments.output.string() + ": is the file that is read");

    wav::Output output(arguments.output, resultOf(input.info, filter.ratio));
    const Zor64s saturated = wav::run(filter, input, output);
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
