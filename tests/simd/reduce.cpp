#include "simd/reduce.h"

#include <gtest/gtest.h>
#include <random>

namespace zors::ZORS_VARIANT {
namespace {

// The pattern in scalar code; every rounding counts.
template <class T>
T sumOf32Lanes(const float* p, int len)
{
    T lane[32] = {};
    for (int n = 0; n < len; ++n) lane[n % 32] += p[n];
    for (const int half : {16, 8, 4, 2, 1})
        for (int i = 0; i < half; ++i) lane[i] += lane[i + half];
    return lane[0];
}

template <class T>
void expectSums()
{
    std::mt19937 random;
    std::uniform_real_distribution<float> number(-1, 1);
    float values[301];
    for (float& v : values) v = std::ldexp(number(random), static_cast<int>(random() % 20));
    for (int len = 0; len <= 300; ++len) {
        constexpr int step = lanes<T>;
        Lanes32<T> sums(0);
        thirtyTwos<step>(values + 1, len, [&](int j, Vec<float, step> v, int count) {
            for (int i = count; i < step; ++i) ASSERT_EQ(v[i], 0);
            if constexpr (std::is_same_v<T, double>)
                sums.part[j] += toDouble<step>(v);
            else
                sums.part[j] += v;
        });
        ASSERT_EQ(sums.joined([](T a, T b) { return a + b; }), sumOf32Lanes<T>(values + 1, len)) << len;
    }
}

TEST(Reduce, AddsIn32LanesAndOneTree)
{
    expectSums<float>();
    expectSums<double>();
}

} // namespace
} // namespace zors::ZORS_VARIANT
