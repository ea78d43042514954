// What makes QRS complexes stand out of an electrocardiogram, step by step (Pan and Tompkins, IEEE Trans. Biomed. Eng.
// 32, 230, 1985). No step delays, so that all signals keep the time of the recording.
#pragma once

#include "recording.h"

namespace ecg {

struct QrsStages {
    Channel bandPassed;   // millivolts, from 5 to 15 Hz, where the complexes are strongest
    Channel squaredSlope; // of that, (mV/s)^2
    Channel integrated;   // the mean of that over the time of a complex: a hump for each
};

// Sampling rates, in Hz. Below the least the band is not there; above the most the filters are as long as some
// recordings.
constexpr int leastRateForQrs = 50, mostRateForQrs = 100'000;

QrsStages qrsStagesOf(const Channel& channel, int rate);

} // namespace ecg
