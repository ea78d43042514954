// The beats of a recording, and how their intervals vary.
#pragma once

#include "qrs_detector.h"

#include <optional>

namespace ecg {

struct Beats {
    QrsStages stages;
    Channel threshold;             // of stages.integrated
    std::vector<int> places;       // of the R peaks, in samples
    std::vector<Zor64f> seconds;   // the same in time
    std::vector<Zor64f> intervals; // R-R, from each beat to the next, in seconds
};

// Where the sampling rate does not serve to find any there is no value; where nothing stands out of the noise there
// are no beats.
std::optional<Beats> beatsOf(const Channel& channel, int rate);

// Longer than any pause of a heart that goes on beating: the trace was lost, and beats with it.
inline bool isInterruption(Zor64f interval)
{
    return interval > 2;
}

// Over all intervals but interruptions, those of premature beats too. What there are too few for has no value.
struct Variability {
    std::optional<double> rate;  // beats a minute: 60 over the mean interval
    std::optional<double> sdnn;  // seconds: the standard deviation of the intervals
    std::optional<double> rmssd; // seconds: the root mean square of the differences of successive intervals
};

Variability variabilityOf(const Beats& beats);

} // namespace ecg
