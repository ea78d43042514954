// Integers to narrower integers.
#include "support/integers.h"
#include "support/oracle.h"

#include <zors.h>

#include <climits>

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
    if constexpr (sizeof(S) == 2) return everyValue<S>();
    std::vector<S> all;
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
    return all;
}

template <class S, class D>
void expectNarrows(Narrowing<S, D> function, Range range)
{
    const int parts = range.parts<D>();
    const std::vector<S> src = awkward<S>();
    const auto oracle = [=](int scaleFactor) {
        return stored(range, [=](S v) { return scaled(v, scaleFactor, range); });
    };
    std::vector<int> factors(140);
    std::iota(factors.begin(), factors.end(), -70);
    factors.insert(factors.end(), {INT_MIN, INT_MIN + 1, -256, 256, INT_MAX});
    for (const int scaleFactor : factors) {
        SCOPED_TRACE(scaleFactor);
        expectValues<D>(src, with(function, scaleFactor), oracle(scaleFactor), parts);
    }
    for (const int scaleFactor : {0, 9, -3})
        expectSame<S, D>(with(function, scaleFactor), oracle(scaleFactor), {1, parts},
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
    expectAll<Zor32s, Zor16s>(awkward<Zor32s>(), zorsConvert_32s16s,
                              [](Zor32s v) { return static_cast<Zor16s>(std::clamp(v, -32768, 32767)); });
}

} // namespace
