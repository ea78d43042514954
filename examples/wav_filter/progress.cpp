#include "progress.h"

#include <cstdio>
#include <unistd.h>
#include <utility>

namespace wav {

Progress::Progress(Zor64s all) : all_(all), shown_(isatty(STDERR_FILENO) == 1) {}

Progress::~Progress()
{
    if (percent_ >= 0) std::fputs("\r     \r", stderr);
}

void Progress::at(Zor64s done)
{
    const Zor64s percent = 100 * done / all_;
    if (shown_ && std::exchange(percent_, percent) != percent)
        std::fprintf(stderr, "\r%3d %%", static_cast<int>(percent));
}

} // namespace wav
