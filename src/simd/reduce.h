// Reductions in a fixed pattern: element n goes to lane n mod 32, and the lanes are joined by one tree, lane i
// with lane i + 16, then with i + 8 and so on. The width of the vectors changes neither, so every variant gives
// the same bits.
#pragma once

#include "convert.h"
#include "loop.h"

namespace zors::ZORS_VARIANT {

inline constexpr int reductionLanes = 32;

template <class T>
struct Lanes32 {
    static constexpr int count = reductionLanes / lanes<T>;
    Vec<T> part[count];

    explicit Lanes32(T start)
    {
        for (auto& p : part) p = splat(start);
    }

    template <class Join>
    T joined(Join join) const
    {
        T lane[reductionLanes];
        __builtin_memcpy(lane, part, sizeof lane);
        for (int half = reductionLanes / 2; half > 0; half /= 2)
            for (int i = 0; i < half; ++i) lane[i] = join(lane[i], lane[i + half]);
        return lane[0];
    }
};

// Calls body(j, v, count) for the vectors v of N elements that make up each 32: j is the place of v among
// them, and only its first count lanes are elements, the others are 0.
template <int N, class T, class Body>
inline void thirtyTwos(const T* p, std::ptrdiff_t len, Body body)
{
    constexpr int vectors = reductionLanes / N;
    std::ptrdiff_t i = 0;
    for (; i + reductionLanes <= len; i += reductionLanes)
        for (int j = 0; j < vectors; ++j) body(j, load<N>(p + i + j * N), N);
    for (int j = 0; i < len; ++j, i += N) {
        const int count = len - i < N ? static_cast<int>(len - i) : N;
        body(j, loadFirst<N>(p + i, count), count);
    }
}

} // namespace zors::ZORS_VARIANT
