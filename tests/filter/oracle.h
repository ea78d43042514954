// Filters from the definition, in wider arithmetic, and how far a result may be from it.
#pragma once

#include "filter/kinds.h"

#include <gtest/gtest.h>

namespace zors::test {

using Wide = long double;

// Numbers that should come out, and the sums of the magnitudes of their products, on which roundings depend.
struct Expected {
    std::vector<Wide> values;
    std::vector<double> magnitudes;
    std::ptrdiff_t step = 1; // every so-many-th element stands here

    void append(Wide value, double magnitude)
    {
        values.push_back(value);
        magnitudes.push_back(magnitude);
    }
};

// y[j] = sum over i of h[D j + downPhase - upPhase - U i] x[i], j = 0 ... count-1; x[0] follows the history.
Expected filtered(const Numbers& taps, const Numbers& samples, int parts, std::ptrdiff_t history,
                  std::ptrdiff_t count, Rates rates = {}, std::ptrdiff_t step = 1);

// Bounds of the error before the result is rounded to its type: so much of the magnitude, and so much anyway.
struct Tolerance {
    double relative, absolute = 0;
};
Tolerance ofBlocks(const Kind& kind, int tapsLen);
Tolerance ofMultiRate(const Kind& kind, int tapsLen, int upFactor);

// Whether the elements from a place on are within it; of integers, whether each is a rounding of what is.
testing::AssertionResult within(Tolerance tolerance, const Kind& kind, const Vector& got,
                                const Expected& expected, int scaleFactor, std::ptrdiff_t from = 0);

// Prints the largest part of a tolerance that was used since the last time, where no other rounding hides it.
void tellUse(const Kind& kind);

} // namespace zors::test
