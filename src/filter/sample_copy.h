// A copy of samples that lives as long as a call, for filters in place that would overtake their source.
#pragma once

#include "samples.h"

#include <limits>
#include <zorcore.h>

namespace zors::ZORS_VARIANT {

// Without data where there was no memory for it.
template <class Data>
class SampleCopy {
public:
    SampleCopy(const Data* p, std::ptrdiff_t count)
    {
        constexpr std::ptrdiff_t limit = std::numeric_limits<int>::max() / std::ptrdiff_t{sizeof(Data)};
        if (count > limit) return;
        memory_ = static_cast<Data*>(zorMalloc(static_cast<int>(count * std::ptrdiff_t{sizeof(Data)})));
        if (memory_) copySamples(p, memory_, count);
    }
    ~SampleCopy() { zorFree(memory_); }
    SampleCopy(const SampleCopy&) = delete;
    SampleCopy& operator=(const SampleCopy&) = delete;

    const Data* data() const { return memory_; }

private:
    Data* memory_ = nullptr;
};

} // namespace zors::ZORS_VARIANT
