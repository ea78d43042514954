// The command line.
#pragma once

#include <filesystem>
#include <string>

namespace wav {

struct Arguments {
    enum class Task { help, rate, toRate, taps };
    Task task;
    std::string value; // of the option that gives the task
    std::filesystem::path input, output;
};

extern const char* const usage;

Arguments parse(int argc, char** argv);

} // namespace wav
