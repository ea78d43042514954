// What ends an example: one exception, with a message for the user.
#pragma once

#include <zorstatus.h>

#include <stdexcept>
#include <string>

namespace example {

struct Error : std::runtime_error {
    using runtime_error::runtime_error;
};

// Takes the status of a library call; `what` says what the call was to do.
inline void require(ZorStatus status, const char* what)
{
    if (status >= zorStsOk) return;
    throw Error(std::string("cannot ") + what + ": " + zorGetStatusName(status) + " (" +
                std::to_string(status) + ")");
}

} // namespace example
