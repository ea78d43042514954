// The file that is read.
#pragma once

#include "common/wav.h"

namespace wav {

struct Input {
    explicit Input(const std::filesystem::path& name) : path(name), file(example::openWav(name, info)) {}

    std::filesystem::path path;
    SF_INFO info{};
    example::SoundFile file;
};

} // namespace wav
