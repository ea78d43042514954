// Elements that find faults, and vectors of random bits, placed as unluckily as a caller may place them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <type_traits>
#include <vector>

namespace zors::test {

using Random = std::mt19937_64;

// No vector of this size is kept in the caches.
inline constexpr std::ptrdiff_t longBytes = std::ptrdiff_t{16} << 20;

inline int below(int limit, Random& random)
{
    return static_cast<int>(random() % static_cast<std::uint64_t>(limit));
}

template <class T>
concept Complex = requires
{
    T{}.re;
};

// Numbers of all sizes, the ends of the range and their neighbours, zeros and halves: all of them finite.
template <class T>
T element(Random& random)
{
    using Limits = std::numeric_limits<T>;
    const std::uint64_t bits = random();
    if constexpr (Complex<T>) {
        return {element<decltype(T::re)>(random), element<decltype(T::im)>(random)};
    } else if constexpr (std::is_floating_point_v<T>) {
        const T sign = bits & 1 ? T(-1) : T(1);
        if (bits >> 60 == 0) return sign * T(0);
        if (bits >> 60 == 1) return sign * (T(bits >> 1 & 1023) + T(0.5));
        return sign * T(bits >> 8) / T(std::uint64_t{1} << (20 + (bits >> 1 & 31)));
    } else {
        if (bits >> 62 == 0) return static_cast<T>(Limits::min() + static_cast<T>(bits % 3));
        if (bits >> 62 == 1) return static_cast<T>(Limits::max() - static_cast<T>(bits % 3));
        return static_cast<T>(static_cast<T>(random()) >> bits % (8 * sizeof(T)));
    }
}

// Bytes that begin so many past a 64-byte boundary, between other random bytes.
class RandomBytes {
public:
    RandomBytes(std::ptrdiff_t count, std::ptrdiff_t offset, Random& random);

    std::byte* first() { return lines_[1].bytes + offset_; }
    const std::byte* first() const { return lines_[1].bytes + offset_; }

    bool operator==(const RandomBytes& other) const;

    // Where two of them, or what surrounds them, first differ, in bytes from the first one.
    std::ptrdiff_t firstDifference(const RandomBytes& other) const;

private:
    struct alignas(64) Line {
        std::byte bytes[64];
    };

    std::ptrdiff_t offset_;
    std::vector<Line> lines_;
};

// Elements that begin offset alignments of their type past a boundary.
template <class T>
class RandomVector : public RandomBytes {
public:
    RandomVector(std::ptrdiff_t len, std::ptrdiff_t offset, Random& random)
        : RandomBytes(len * std::ptrdiff_t{sizeof(T)}, offset * std::ptrdiff_t{alignof(T)}, random)
    {
    }

    T* data() { return reinterpret_cast<T*>(first()); }
    const T* data() const { return reinterpret_cast<const T*>(first()); }
};

} // namespace zors::test
