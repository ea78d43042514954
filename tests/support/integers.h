// Ranges of integers, and their elements in memory whatever their number of bytes.
#pragma once

#include <zortypes.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>

namespace zors::test {

// The range of an element and its bytes, least significant first.
struct Range {
    std::int64_t least, most;
    int bytes;

    void store(std::int64_t value, void* p, std::ptrdiff_t n) const
    {
        std::memcpy(static_cast<char*>(p) + n * bytes, &value, static_cast<std::size_t>(bytes));
    }
    template <class D>
    int parts() const
    {
        return bytes / static_cast<int>(sizeof(D));
    }
};

// The plain form of what makes one integer of the range of each element.
template <class Operation>
auto stored(Range range, Operation operation)
{
    return [=](const auto* pSrc, auto* pDst, int len) {
        for (int n = 0; n < len; ++n) range.store(operation(pSrc[n]), pDst, n);
    };
}

template <class T>
inline constexpr Range rangeOf{std::numeric_limits<T>::min(), std::numeric_limits<T>::max(), sizeof(T)};
inline constexpr Range range24s{-(1 << 23), (1 << 23) - 1, 3}, range24u{0, (1 << 24) - 1, 3};

} // namespace zors::test
