// The parts of a record's memory, each on a cache line. Without memory it only counts, so that the size that is
// reported and the places that are used cannot disagree.
#pragma once

#include "record.h"

namespace zors::ZORS_VARIANT {

class Layout {
public:
    explicit Layout(void* memory = nullptr) : memory_(static_cast<char*>(memory)) {}

    // Room for a table; null while counting.
    template <class T>
    void take(T*& table, std::int64_t bytes)
    {
        end_ = wholeLines(end_);
        table = memory_ ? reinterpret_cast<T*>(memory_ + end_) : nullptr;
        end_ += wholeLines(bytes);
    }
    void header(std::int64_t bytes) { end_ += bytes; }

    // With room to align the record.
    std::int64_t size() const { return end_ + lineBytes; }

private:
    char* memory_;
    std::int64_t end_ = 0;
};

} // namespace zors::ZORS_VARIANT
