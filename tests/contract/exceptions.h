// What the declarations do not tell: parameters with conditions of their own. Everything that a check does not
// reach is listed in its output, with the reason given here or by the table of exports.
#pragma once

#include "exports.h"

#include <optional>
#include <string_view>

namespace zors::contract {

// Pointers that may be null, by the beginning of the function's name.
struct Optional {
    std::string_view function, parameter, reason;
};
inline constexpr Optional optionalPointers[] = {
    {"zorsRealToCplx_", "pSrcRe", "either part may be missing; both missing is tested with the family"},
    {"zorsRealToCplx_", "pSrcIm", "either part may be missing; both missing is tested with the family"},
};

// Sources that hold a CCS spectrum of a signal of len points: its first half as complex points, zeros included.
inline constexpr std::string_view ccsSources[] = {"zorsConjCcs_"};

// Vectors of two elements whatever the length.
struct TwoElements {
    std::string_view function, parameter;
};
inline constexpr TwoElements twoElements[] = {
    {"zorsGoertzTwo", "pVal"},
    {"zorsGoertzTwo", "pFreq"},
};

// Least lengths other than 1.
struct LeastLength {
    std::string_view function;
    int least;
};
inline constexpr LeastLength leastLengths[] = {
    {"zorsStdDev_", 2},     {"zorsMeanStdDev_", 2}, {"zorsWinBlackmanOpt_", 4}, {"zorsWinBartlett_", 3},
    {"zorsWinBlackman", 3}, {"zorsWinHamming_", 3}, {"zorsWinHann_", 3}};

// Functions that check the length before the pointers.
inline constexpr std::string_view lengthFirst[] = {"zorsAdd_16sc_", "zorsSub_16sc_", "zorsWinBlackmanOpt_"};

// Scalars with a forbidden value, -1 or 0, found behind the lengths in the order of the arguments, by the beginning
// of the function's name.
struct Forbidden {
    std::string_view function, parameter;
    ZorStatus status;
    bool negative = true;
};
inline constexpr Forbidden forbidden[] = {
    {"", "srcBitOffset", zorStsBadSize},
    {"", "dstBitOffset", zorStsBadSize},
    {"zorsVectorJaehne_", "magn", zorStsBadJaehneMagnitude},
    {"zorsTone_", "magn", zorStsBadToneMagnitude},
    {"zorsTone_", "rFreq", zorStsBadToneFreq},
    {"zorsGoertz_", "rFreq", zorStsBadRelFreq},
    {"zorsGoertzQ15_", "rFreqQ15", zorStsBadRelFreq},
    {"zorsDiv_Round_", "rndMode", zorStsBadRoundMode},
    {"zorsConvert_32f16f", "rndMode", zorStsBadRoundMode},
    {"zorsConvert_16s16f", "rndMode", zorStsBadRoundMode},
    {"zorsConvert_16f16s_Sfs", "rndMode", zorStsBadRoundMode},
    {"zorsDivC_8u", "val", zorStsDivByZeroError, false},
    {"zorsDivC_16s", "val", zorStsDivByZeroError, false},
    {"zorsDivC_32fc", "val", zorStsDivByZeroError, false},
    {"zorsDivC_64fc", "val", zorStsDivByZeroError, false},
};

} // namespace zors::contract
