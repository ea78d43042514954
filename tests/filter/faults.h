// Calls with faults in their arguments: the first in the order of the checks is the status, and nothing is written.
#pragma once

#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <vector>
#include <zortypes.h>

namespace zors::test {

// Calls with each fault alone and each pair. Faults are the bits of a mask, in the order of their checks.
template <class Call>
void expectOrder(const char* what, const std::vector<ZorStatus>& statuses, Call call)
{
    for (unsigned i = 0; i < statuses.size(); ++i)
        for (unsigned j = i; j < statuses.size(); ++j)
            EXPECT_EQ(call(1U << i | 1U << j), statuses[i]) << what << ", faults " << i << " and " << j;
}

template <class T>
T* unless(bool fault, T* p)
{
    return fault ? nullptr : p;
}

// Memory that nobody should write to.
class Untouched {
public:
    Untouched() { std::memset(bytes_, 0x5a, sizeof bytes_); }
    ~Untouched()
    {
        for (const Zor8u byte : bytes_) {
            EXPECT_EQ(byte, 0x5a) << "written to in spite of an error";
            if (byte != 0x5a) return;
        }
    }
    Zor8u* get() { return bytes_; }

private:
    alignas(64) Zor8u bytes_[4096];
};

inline constexpr int badLengths[] = {0, -1, INT_MIN};

} // namespace zors::test
