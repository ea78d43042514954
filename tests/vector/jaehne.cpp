#include "support/oracle.h"

#include <zors.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <type_traits>

namespace {

using namespace zors::test;

template <class T>
T elementOf(double value)
{
    if constexpr (std::is_floating_point_v<T>) return static_cast<T>(value);
    if (std::is_unsigned_v<T> && value < 0) return 0;
    return static_cast<T>(value > 0 ? value + 0.5 : value - 0.5);
}

TEST(Jaehne, IsASineOfRisingFrequency)
{
    const auto expect = []<class T>(ZorStatus (*function)(T*, int, T)) {
        for (const T magn : {T{0}, T{1}, T{100}, std::numeric_limits<T>::max()})
            expectSame<T, T>([=](auto*, T* pDst, int len) { return function(pDst, len, magn); },
                             [=](auto*, T* pDst, int len) {
                                 const double rate = std::numbers::pi / 2 / len;
                                 for (int n = 0; n < len; ++n)
                                     pDst[n] =
                                         elementOf<T>(static_cast<double>(magn) * std::sin(rate * n * n));
                             },
                             {}, Lengths::small);
    };
    const auto each = [=](auto... function) { (expect(function), ...); };
    each(zorsVectorJaehne_8u, zorsVectorJaehne_8s, zorsVectorJaehne_16u, zorsVectorJaehne_16s,
         zorsVectorJaehne_32u, zorsVectorJaehne_32s, zorsVectorJaehne_32f, zorsVectorJaehne_64f);
}

TEST(Jaehne, ValuesOfTheDefinition)
{
    Zor16s wave[4] = {9, 9, 9, 9};
    EXPECT_EQ(zorsVectorJaehne_16s(wave, 4, 100), zorStsOk);
    EXPECT_TRUE(wave[0] == 0 && wave[1] == 38 && wave[2] == 100 && wave[3] == -38);
    Zor8u half[4] = {9, 9, 9, 9};
    EXPECT_EQ(zorsVectorJaehne_8u(half, 4, 100), zorStsOk);
    EXPECT_TRUE(half[0] == 0 && half[1] == 38 && half[2] == 100 && half[3] == 0);
    Zor32f alone = 9;
    EXPECT_EQ(zorsVectorJaehne_32f(&alone, 1, NAN), zorStsOk);
    EXPECT_EQ(alone, 0); // whatever the magnitude
}

} // namespace
