// The command line.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace wav {

struct Arguments {
    enum class Task { help, rate, toRate, taps, lowPass, highPass, bandPass, bandStop };
    Task task;
    std::string value;              // of the option that gives the task
    std::optional<int> fir, iir;    // taps, order; of a band
    std::optional<double> ripple;   // dB
    std::filesystem::path response; // of the picture; none where it is empty
    std::filesystem::path input, output;

    bool isRate() const { return task == Task::rate || task == Task::toRate; }
    bool isBand() const { return task >= Task::lowPass; }
};

extern const char* const usage;

Arguments parse(int argc, char** argv);

} // namespace wav
