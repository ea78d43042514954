#include "simd/round.h"

#include "simd/memory.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <numeric>
#include <random>
#include <vector>

namespace zors::ZORS_VARIANT {
namespace {

constexpr int step = lanes<float>;

// Both sides of every tie and bound of the integer types, and random bits.
std::vector<float> floats()
{
    std::vector<float> all{NAN, -NAN, INFINITY, -INFINITY, 1e-45f, 3e38f};
    for (const float bound :
         {0.0f,       0.5f,        1.5f,          2.5f,          126.5f,   127.5f,   128.5f,     254.5f,
          255.5f,     32766.5f,    32767.5f,      32768.5f,      65534.5f, 65535.5f, 4194304.5f, 8388607.5f,
          8388609.0f, 16777215.0f, 2147483648.0f, 4294967296.0f, 9e18f,    2e19f})
        for (const float v : {bound, std::nextafter(bound, -1.0f), std::nextafter(bound, INFINITY)})
            all.insert(all.end(), {v, -v});
    std::mt19937 random;
    for (int i = 0; i < 20000; ++i) {
        const auto bits = static_cast<std::uint32_t>(random());
        float v;
        __builtin_memcpy(&v, &bits, sizeof v);
        all.push_back(v);
    }
    all.resize(all.size() / step * step);
    return all;
}

template <class T, Rounding rounding>
void expectRounded(const std::vector<float>& all)
{
    for (std::size_t at = 0; at < all.size(); at += step) {
        const auto got = rounded<T, rounding>(load<step>(all.data() + at));
        for (int i = 0; i < step; ++i) {
            const double exact = all[at + static_cast<std::size_t>(i)];
            const double whole = rounding == Rounding::zero          ? std::trunc(exact)
                                 : rounding == Rounding::nearestEven ? std::nearbyint(exact)
                                                                     : std::round(exact);
            using Limits = std::numeric_limits<T>;
            const double wanted =
                std::isnan(exact) ? 0 : std::clamp<double>(whole, Limits::min(), Limits::max());
            ASSERT_EQ(got[i], static_cast<T>(wanted)) << exact << ", rounding " << static_cast<int>(rounding);
        }
    }
}

TEST(Convert, RoundsAndSaturates)
{
    const std::vector<float> all = floats();
    const auto each = [&]<class... T>(std::type_identity<T>...) {
        (expectRounded<T, Rounding::zero>(all), ...);
        (expectRounded<T, Rounding::nearestEven>(all), ...);
        (expectRounded<T, Rounding::halfAway>(all), ...);
    };
    each(std::type_identity<std::int8_t>{}, std::type_identity<std::uint8_t>{},
         std::type_identity<std::int16_t>{}, std::type_identity<std::uint16_t>{},
         std::type_identity<std::int32_t>{}, std::type_identity<std::uint32_t>{});
}

TEST(Convert, WidensExactly)
{
    constexpr int half = lanes<double>;
    const std::vector<float> all = floats();
    std::vector<std::int16_t> shorts(65536);
    std::iota(shorts.begin(), shorts.end(), std::numeric_limits<std::int16_t>::min());
    for (std::size_t at = 0; at < all.size(); at += half) {
        const auto v = toDouble<half>(load<half>(all.data() + at));
        for (int i = 0; i < half; ++i) {
            const double wanted = all[at + static_cast<std::size_t>(i)];
            ASSERT_TRUE(v[i] == wanted || (std::isnan(v[i]) && std::isnan(wanted))) << wanted;
        }
    }
    for (std::size_t at = 0; at < shorts.size(); at += step) {
        const auto v = toFloat<step>(load<step>(shorts.data() + at));
        for (int i = 0; i < step; ++i) ASSERT_EQ(v[i], shorts[at + static_cast<std::size_t>(i)]);
    }
}

} // namespace
} // namespace zors::ZORS_VARIANT
