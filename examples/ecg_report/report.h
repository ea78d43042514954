// The report in words and figures.
#pragma once

#include "recording.h"

#include <string>

namespace ecg {

// Prints to the standard output: duration, statistics, in all and for each ten seconds, losses by transcoding, and the
// heart rate.
void printReport(const std::string& name, const Recording& recording);

} // namespace ecg
