#include "frame/bind.h"
#include "simd/memory.h"
#include "vector/lane.h"
#include "vector/quotient.h"

#include <algorithm>

namespace zors::ZORS_VARIANT {
namespace {

constexpr int numbers = 8, width = std::min(numbers, lanes<Zor32f>);

// Some of the numbers in two halves, from the one numbered First on; they go round.
template <int First, class V>
[[gnu::always_inline]] inline V fromNumber(V low, V high)
{
    return [=]<int... I>(std::integer_sequence<int, I...>)
    {
        return __builtin_shufflevector(low, high, ((First + I) % numbers)...);
    }
    (std::make_integer_sequence<int, width>{});
}

// The sums of Points products each. The second vector has 8 numbers, those of a pair side by side, and is turned by a
// point from product to product.
template <int Points>
[[gnu::always_inline]] inline void cyclicSums(const Zor32f* a, const Zor32f* b, Zor32f* pDst)
{
    using V = Vec<Zor32f, width>;
    constexpr int each = numbers / Points, parts = numbers / width;
    const V low = load<width>(b), high = load<width>(b + numbers - width);
    V sums[parts];
    const auto add = [&](auto m) __attribute__((always_inline))
    {
        constexpr int first = numbers - each * decltype(m)::value;
        const auto part = [&](auto p) __attribute__((always_inline))
        {
            const V products = a[m] * fromNumber<first + decltype(p)::value * width>(low, high);
            sums[p] = m == 0 ? products : sums[p] + products;
        };
        part(std::integral_constant<int, 0>{});
        if constexpr (parts == 2) part(std::integral_constant<int, 1>{});
    };
    [&]<int... M>(std::integer_sequence<int, M...>)
    {
        (add(std::integral_constant<int, M>{}), ...);
    }
    (std::make_integer_sequence<int, Points>{});
    for (int p = 0; p < parts; ++p) store<width>(pDst + p * width, sums[p]);
}

ZorStatus cyclic4x4(const Zor32f* pSrc1, const Zor32fc* pSrc2, Zor32fc* pDst)
{
    cyclicSums<4>(pSrc1, asLanes(pSrc2), asLanes(pDst));
    return zorStsOk;
}

ZorStatus cyclic8x8(const Zor32f* pSrc1, const Zor32f* pSrc2, Zor32f* pDst)
{
    cyclicSums<8>(pSrc1, pSrc2, pDst);
    return zorStsOk;
}

ZorStatus cyclic8x8Scaled(const Zor16s* pSrc1, const Zor16s* pSrc2, Zor16s* pDst, int scaleFactor)
{
    Zor64s sums[8] = {};
    for (int m = 0; m < 8; ++m)
        for (int n = 0; n < 8; ++n) sums[n] += Zor64s{pSrc1[m]} * pSrc2[(n - m) & 7];
    for (int n = 0; n < 8; ++n) pDst[n] = scaledSum<Zor16s>(sums[n], scaleFactor);
    return zorStsOk;
}

} // namespace

ZORS_BIND(zorsConvCyclic4x4_32f32fc, cyclic4x4)
ZORS_BIND(zorsConvCyclic8x8_32f, cyclic8x8)
ZORS_BIND(zorsConvCyclic8x8_16s_Sfs, cyclic8x8Scaled)

} // namespace zors::ZORS_VARIANT
