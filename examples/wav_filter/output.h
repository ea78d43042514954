// The file that is written.
#pragma once

#include "common/wav.h"

namespace wav {

// Stands under a name of its own until it is complete. After an error nothing is left of it, and what was there before
// is untouched.
class Output {
public:
    Output(const std::filesystem::path& path, const SF_INFO& info);
    ~Output();
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    SNDFILE* file() { return file_.get(); }
    void complete(); // after all samples
    [[noreturn]] void fail() const;

private:
    std::filesystem::path path_, part_;
    example::SoundFile file_;
};

} // namespace wav
