// The report in words and figures.
#pragma once

#include "recording.h"

#include <string>

namespace ecg {

// Prints duration, statistics, in all and for each ten seconds, and losses by transcoding to the standard output.
void printReport(const std::string& name, const Recording& recording);

} // namespace ecg
