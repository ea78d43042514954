// A core library that reports the features it is told to and keeps a list of the calls it gets.
#pragma once

#include <zorcore.h>

#include <string>
#include <vector>

namespace zors::test {

struct SubstituteCore {
    Zor64u enabled = 0;
    std::vector<std::string> calls;
};

SubstituteCore& substituteCore();

} // namespace zors::test
