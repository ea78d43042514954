// The report in words and figures.
#pragma once

#include "beats.h"

#include <string>

namespace ecg {

// Prints to the standard output: duration, statistics, in all and for each ten seconds, losses by transcoding, the
// heart rate by the spectrum, and what the beats tell.
void printReport(const std::string& name, const Recording& recording,
                 const std::vector<std::optional<Beats>>& beats);

} // namespace ecg
