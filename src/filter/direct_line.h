// The doubled delay line of a filter without a record: every sample stands in it twice, so that the last ones always
// stand together.
#pragma once

#include "samples.h"

namespace zors::ZORS_VARIANT {

template <class Data>
class DoubledLine {
public:
    DoubledLine(Data* pDlyLine, std::ptrdiff_t len, int* pIndex) : line_(pDlyLine), len_(len), pIndex_(pIndex)
    {
    }

    // Takes a sample and returns the last len ones, oldest first.
    const Data* push(Data sample)
    {
        const std::ptrdiff_t index = *pIndex_, next = index + 1 == len_ ? 0 : index + 1;
        line_[index] = line_[index + len_] = sample;
        *pIndex_ = static_cast<int>(next);
        return line_ + next;
    }

    // The last len - 1 samples, oldest first.
    const Data* past() const { return line_ + *pIndex_ + 1; }

    // 2 len samples, for work between the last look at the past and what comes to stand there.
    Data* room() const { return line_; }

    // Leaves the line as it is after count pushes, of which these, oldest first, are the last len samples. They may
    // stand in the line itself.
    void hold(const Data* samples, std::ptrdiff_t count)
    {
        const std::ptrdiff_t index = (*pIndex_ + count) % len_, upper = len_ - index;
        moveSamples(samples, line_, len_);
        copySamples(line_, line_ + len_ + index, upper);
        copySamples(line_ + upper, line_ + len_, index);
        copySamples(line_ + len_, line_, len_);
        *pIndex_ = static_cast<int>(index);
    }

private:
    Data* line_;
    std::ptrdiff_t len_;
    int* pIndex_;
};

} // namespace zors::ZORS_VARIANT
