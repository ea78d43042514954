// A recursive filter, what shall go through it, and what should come out, from the definition in wider arithmetic.
#pragma once

#include "filter/iir_kinds.h"
#include "filter/signal.h"

#include <climits>

namespace zors::test {

struct IirSignal {
    const IirKind& kind;
    int count; // the order, or the number of sections
    Vector taps, delay, samples;
    int tapsFactor, scaleFactor;
    Expected expected;  // its magnitudes are the bounds of the errors
    Expected ofSamples; // the same where calls go sample by sample
};

// Poles all around the circle, up to a radius; a delay line of random numbers, or zeros. The scale factor keeps
// integer results in range, or saturates the largest.
IirSignal randomIirSignal(const IirKind& kind, int count, int len, Random& random, double radius = 0.95,
                          bool atRest = false);

// The same for given taps; of the samples all behind a burst may be zeros.
IirSignal iirSignalOf(const IirKind& kind, int count, Numbers taps, int len, Random& random, bool atRest,
                      int burst = INT_MAX);

// A record with the taps and the delay line of a signal, in memory of the library.
class IirRecord {
public:
    explicit IirRecord(const IirSignal& signal);
    ~IirRecord();
    IirRecord(const IirRecord&) = delete;
    IirRecord& operator=(const IirRecord&) = delete;

    void* get() const { return state_; }
    Vector delayLine() const;

private:
    const IirSignal& signal_;
    void* state_ = nullptr;
};

// What a record makes of a signal from a sample on, by calls of so many samples; a call of 1 may be of a single one.
Vector run(const IirRecord& record, const IirSignal& signal, const std::vector<int>& calls, How how = {},
           std::ptrdiff_t from = 0, bool singly = false);

inline testing::AssertionResult within(const IirSignal& s, const Vector& got)
{
    return within({1}, s.kind.kind, got, s.expected, s.scaleFactor);
}

inline testing::AssertionResult withinOfSamples(const IirSignal& s, const Vector& got)
{
    return within({1}, s.kind.kind, got, s.ofSamples, s.scaleFactor);
}

} // namespace zors::test
