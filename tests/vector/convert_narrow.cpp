// Integers to narrower integers.
#include "support/integers.h"
#include "support/oracle.h"

#include <zors.h>

#include <algorithm>
#include <climits>
#include <numeric>

namespace {

using namespace zors::test;

// In 128 bits nothing wraps: what is beyond is saturated before and after.
std::int64_t scaled(std::int64_t value, int scaleFactor, Range range)
{
    __int128 x = value;
    if (scaleFactor < 0) {
        x *= __int128{1} << std::min(64u, 0u - static_cast<unsigned>(scaleFactor));
        if (value == INT64_MIN && scaleFactor <= -63) return range.least;
    } else if (scaleFactor > 64) {
        x = 0;
    } else if (scaleFactor > 0) {
        const __int128 unit = __int128{1} << scaleFactor;
        const __int128 down = x >> scaleFactor, rest = x - down * unit;
        x = down + (2 * rest > unit || (2 * rest == unit && down % 2 != 0));
    }
    return static_cast<std::int64_t>(std::clamp<__int128>(x, range.least, range.most));
}

template <class S, class D>
using Narrowing = ZorStatus (*)(const S*, D*, int, int);

// Everything, or what lies on and beside the ties and bounds of each shift.
template <class S>
std::vector<S> awkward()
{
    std::vector<S> all;
    if constexpr (sizeof(S) == 2) {
        all.resize(65536);
        std::iota(all.begin(), all.end(), std::numeric_limits<S>::min());
    } else {
        using U = std::uint64_t; // wraps, and so may its low bits
        Random random;
        for (int bit = 0; bit < std::numeric_limits<S>::digits; ++bit) {
            const U power = U{1} << bit;
            for (const U odd : {U{1}, U{3}, U{5}, U{255}, U{256}})
                for (const U more : {U{0}, U{1}, U{2}})
                    for (const U v : {power * odd + more, power * odd - more})
                        all.insert(all.end(), {static_cast<S>(v), static_cast<S>(U{0} - v)});
            all.push_back(static_cast<S>(random() >> bit));
            all.push_back(static_cast<S>(random() << bit));
        }
        all.insert(all.end(), {std::numeric_limits<S>::min(), std::numeric_limits<S>::max(), 0});
    }
    return all;
}

template <class S, class D>
void expectNarrows(Narrowing<S, D> function, Range range)
{
    const auto oracle = [=](int scaleFactor) {
        return [=](const S* pSrc, D* pDst, int len) {
            for (int n = 0; n < len; ++n) range.store(scaled(pSrc[n], scaleFactor, range), pDst, n);
        };
    };
    const int parts = range.parts<D>();
    const std::vector<S> src = awkward<S>();
    std::vector<D> got(src.size() * static_cast<std::size_t>(parts)), want = got;
    const int len = static_cast<int>(src.size());
    std::vector<int> factors(140);
    std::iota(factors.begin(), factors.end(), -70);
    factors.insert(factors.end(), {INT_MIN, INT_MIN + 1, -256, 256, INT_MAX});
    for (const int scaleFactor : factors) {
        ASSERT_EQ(function(src.data(), got.data(), len, scaleFactor), zorStsOk);
        oracle(scaleFactor)(src.data(), want.data(), len);
        compared(len);
        const auto at = std::mismatch(got.begin(), got.end(), want.begin()).first - got.begin();
        ASSERT_EQ(at, static_cast<std::ptrdiff_t>(got.size()))
            << src[static_cast<std::size_t>(at / parts)] << ", scale factor " << scaleFactor;
    }
    for (const int scaleFactor : {0, 9, -3})
        expectSame<S, D>([=](auto* pSrc, auto* pDst, int n) { return function(pSrc, pDst, n, scaleFactor); },
                         oracle(scaleFactor), {1, parts},
                         scaleFactor == 9 ? Lengths::smallAndLong : Lengths::small);
}

TEST(Narrowing, ScalesRoundsAndSaturates)
{
    expectNarrows(zorsConvert_32s16s_Sfs, rangeOf<Zor16s>);
    expectNarrows(zorsConvert_16s8s_Sfs, rangeOf<Zor8s>);
    expectNarrows(zorsConvert_64s32s_Sfs, rangeOf<Zor32s>);
    expectNarrows(zorsConvert_32s24s_Sfs, range24s);
    expectNarrows(zorsConvert_32u24u_Sfs, range24u);
}

TEST(Narrowing, SaturatesWithoutScaling)
{
    const auto plain = [](const Zor32s* pSrc, Zor16s* pDst, int len, int) {
        return zorsConvert_32s16s(pSrc, pDst, len);
    };
    const std::vector<Zor32s> src = awkward<Zor32s>();
    std::vector<Zor16s> got(src.size());
    ASSERT_EQ(plain(src.data(), got.data(), static_cast<int>(src.size()), 0), zorStsOk);
    for (std::size_t n = 0; n < src.size(); ++n)
        ASSERT_EQ(got[n], std::clamp(src[n], -32768, 32767)) << src[n];
    expectSame<Zor32s, Zor16s>(zorsConvert_32s16s, [](const Zor32s* pSrc, Zor16s* pDst, int len) {
        for (int n = 0; n < len; ++n) pDst[n] = static_cast<Zor16s>(std::clamp(pSrc[n], -32768, 32767));
    });
}

} // namespace
