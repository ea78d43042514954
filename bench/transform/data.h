// Vectors for the benchmarks of transforms: ordinary numbers, because the smallest ones take a processor longer.
#pragma once

#include "support/vectors.h"
#include "transform/peers.h"

#include <random>

namespace zors::bench {

// Room for either side of a transform of n points.
template <class T>
std::shared_ptr<T[]> randomData(Shape shape, int n)
{
    const int count = shape == Shape::complexForward ? 2 * n : n + 2;
    auto v = vector<T>(count);
    std::minstd_rand random;
    std::uniform_real_distribution<T> numbers(-1, 1);
    // Making millions of them would take longer than the benchmark.
    constexpr int period = 4096;
    for (int i = 0; i < count; ++i) v[i] = i < period ? numbers(random) : v[i - period];
    return v;
}

} // namespace zors::bench
