// A filter, what went through it before, and what shall go through it; and records that do it.
#pragma once

#include "filter/oracle.h"

namespace zors::test {

struct Signal {
    const Kind& kind;
    int tapsLen, history;
    Numbers taps;    // as the records take them
    Numbers samples; // in time order, the history first
    int tapsFactor, scaleFactor;

    std::ptrdiff_t len() const { return std::ssize(samples) / kind.data.parts - history; }
    Vector stream() const;
    // So many samples before a place of the stream, newest first.
    Vector delayLine(int delays, std::ptrdiff_t at = 0) const;
    Expected expected(std::ptrdiff_t count, Rates rates = {}, std::ptrdiff_t step = 1) const;
};

// Numbers to their last bit; the scale factor keeps most integer results in range.
Signal randomSignal(const Kind& kind, int tapsLen, std::ptrdiff_t len, Random& random, Rates rates = {});
// Halves and small integers: sums of up to 1024 are exact in any order, and many are ties of a rounding.
Signal exactSignal(const Kind& kind, int tapsLen, std::ptrdiff_t len, Random& random, Rates rates = {});

// A record with the taps and the history of a signal, released at the end: the library's, or where the kind
// has none of them, in memory of its own.
class Record {
public:
    explicit Record(const Signal& signal);
    Record(const Signal& signal, Rates rates);
    ~Record();
    Record(const Record&) = delete;
    Record& operator=(const Record&) = delete;

    void* get() const { return state_; }
    Vector delayLine(int delays) const;

private:
    const Kind& kind_;
    void* state_ = nullptr;
    std::vector<Zor8u> memory_;
};

struct How {
    bool inPlace = false;
    int source = 0, destination = 0; // elements past a cache line
};

// What a record makes of a signal from an iteration on, by calls of so many iterations.
Vector run(const Record& record, const Signal& signal, const std::vector<int>& calls, How how = {},
           Rates rates = {}, std::ptrdiff_t from = 0);
// The same by a call a sample.
Vector runSingly(const Record& record, const Signal& signal, std::ptrdiff_t count, std::ptrdiff_t from = 0);

// Calls of random lengths that together have so many iterations.
std::vector<int> randomCalls(std::ptrdiff_t all, int longest, Random& random);
// Calls of one length, and the rest.
std::vector<int> equalCalls(std::ptrdiff_t all, int length);

// The unit of errors of a call by transforms on a random signal: eps sqrt(log2 N) of the root mean square of
// its results, which is the norm of the taps times that of a sample. No error is greater than so many.
double transformUnit(const Signal& signal);
inline constexpr double errorOfTransforms = 3;

// Where time is short, as under sanitizers and emulation, the environment limits transforms, and this too.
bool timeIsShort();

} // namespace zors::test
