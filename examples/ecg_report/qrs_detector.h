// Where the QRS complexes are: the humps of the integrated signal above a threshold that goes with the recording.
#pragma once

#include "qrs_stages.h"

#include <vector>

namespace ecg {

struct Detection {
    std::vector<int> humps; // of complexes: where the integrated signal is largest
    Channel threshold;      // at each sample
};

// None where what is above the threshold does not stand out of the signal, as in noise.
Detection detectQrs(const QrsStages& stages, int rate);

} // namespace ecg
