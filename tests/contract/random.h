// Elements that find faults: all sizes of numbers, the ends of the range, zeros and halves.
#pragma once

#include <cstdint>
#include <limits>
#include <type_traits>

namespace zors::contract {

// SplitMix64 (Steele, Lea and Flood, 2014).
class Random {
public:
    explicit Random(std::uint64_t seed) : state_(seed) {}

    std::uint64_t bits()
    {
        std::uint64_t z = state_ += 0x9e3779b97f4a7c15u;
        z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9u;
        z = (z ^ (z >> 27)) * 0x94d049bb133111ebu;
        return z ^ (z >> 31);
    }

    int below(int limit) { return static_cast<int>(bits() % static_cast<std::uint64_t>(limit)); }

    template <class T>
    T element()
    {
        if constexpr (requires(T t) { t.re; })
            return {element<decltype(T::re)>(), element<decltype(T::im)>()};
        else if constexpr (std::is_floating_point_v<T>)
            return real<T>();
        else
            return integer<T>();
    }

private:
    template <class T>
    T integer()
    {
        const std::uint64_t b = bits();
        switch (b >> 60) {
        case 0:
            return std::numeric_limits<T>::min();
        case 1:
            return std::numeric_limits<T>::max();
        case 2:
            return static_cast<T>(b % 5 - 2);
        default:
            return static_cast<T>(static_cast<std::int64_t>(b << 4) >> (4 + (b >> 8) % 60));
        }
    }

    template <class T>
    T real()
    {
        const std::uint64_t b = bits();
        const T sign = b & 1 ? T(-1) : T(1);
        switch (b >> 60) {
        case 0:
            return sign * T(0);
        case 1:
            return sign * (T(b >> 1 & 1023) + T(0.5));
        default:
            return sign * T(b >> 8) / T(std::uint64_t{1} << (20 + (b >> 1 & 31)));
        }
    }

    std::uint64_t state_;
};

} // namespace zors::contract
