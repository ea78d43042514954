// The addresses of the rows that a butterfly takes, at equal distances: a base for every four, and the distance as
// an index. Left to itself the compiler keeps a pointer for every row, more than there are registers, and spends
// nearly as many instructions on them as on the arithmetic; so it is kept from seeing how they hang together.
#pragma once

#include "simd/opaque.h"

#include <cstddef>

namespace zors::ZORS_VARIANT {

// A distance in bytes, once and thrice; twice is an addressing mode.
struct Stride {
    std::ptrdiff_t once;
    std::ptrdiff_t thrice;

    explicit Stride(std::ptrdiff_t bytes) : once(opaque(bytes)), thrice(opaque(3 * bytes)) {}
};

template <int R, class T>
class Fan {
public:
    [[gnu::always_inline]] Fan(T* first, const Stride& stride) : stride_(stride)
    {
        bases_[0] = opaque(reinterpret_cast<char*>(first));
#pragma GCC unroll 4
        for (int i = 1; i < (R + 3) / 4; ++i) bases_[i] = opaque(bases_[i - 1] + 4 * stride.once);
    }
    [[gnu::always_inline]] T* operator[](int row) const
    {
        char* const base = bases_[row / 4];
        switch (row % 4) {
        case 0:
            return reinterpret_cast<T*>(base);
        case 1:
            return reinterpret_cast<T*>(base + stride_.once);
        case 2:
            return reinterpret_cast<T*>(base + 2 * stride_.once);
        default:
            return reinterpret_cast<T*>(base + stride_.thrice);
        }
    }

private:
    char* bases_[(R + 3) / 4];
    const Stride& stride_;
};

// The same where the distance is a constant: rows Step numbers apart.
template <int Step, class T>
struct Fixed {
    T* first;

    [[gnu::always_inline]] T* operator[](int row) const { return first + row * Step; }
};

} // namespace zors::ZORS_VARIANT
