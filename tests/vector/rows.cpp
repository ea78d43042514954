// Channels in rows and in frames. The rows are arrays of pointers, which the contract tests do not make: so this
// also looks at what is beside the vectors and at every fault.
#include "support/integers.h"
#include "support/oracle.h"

#include <zors.h>

#include <climits>
#include <cmath>

namespace {

using namespace zors::test;

std::int64_t joined(Zor32f v, Range range)
{
    if (std::isnan(v)) return 0;
    const double full = std::nearbyint(v * (static_cast<double>(range.most) + 1));
    return static_cast<std::int64_t>(
        std::clamp(full, static_cast<double>(range.least), static_cast<double>(range.most)));
}

// Values of all kinds: at full scale, beyond it, on ties, and random bits.
void spread(RandomVector<Zor32f>& row, int len, Range range, Random& random)
{
    std::uniform_real_distribution<Zor32f> number(-1.1f, 1.1f);
    const double unit = static_cast<double>(range.most) + 1;
    for (int n = 0; n < len; ++n)
        if (const auto kind = random() % 4; kind > 1)
            row.data()[n] = number(random);
        else if (kind == 1)
            row.data()[n] = static_cast<Zor32f>((std::round(number(random) * unit) + 0.5) / unit);
}

// Joins rows, and splits frames over them.
template <class T>
void expectBoth(ZorStatus (*join)(const Zor32f* const*, T*, int, int),
                ZorStatus (*split)(const T*, Zor32f* const*, int, int), Range range)
{
    Random random;
    const auto compare = [&](int channels, int len, unsigned control) {
        const int parts = channels * len * range.parts<T>();
        std::vector<RandomVector<Zor32f>> rows;
        std::vector<Zor32f*> pointers;
        for (int c = 0; c < channels; ++c) spread(rows.emplace_back(len, c % 5, random), len, range, random);
        for (auto& row : rows) pointers.push_back(row.data());
        const RandomVector<T> frames(parts, 1, random);
        RandomVector<T> got(parts, len % 3, random), want = got;
        auto wanted = rows;
        for (int n = 0; n < len; ++n)
            for (int c = 0; c < channels; ++c) {
                Zor32f& element = wanted[static_cast<std::size_t>(c)].data()[n];
                const std::ptrdiff_t at = std::ptrdiff_t{n} * channels + c;
                range.store(joined(element, range), want.data(), at);
                std::int64_t v = 0;
                std::memcpy(reinterpret_cast<char*>(&v) + 8 - range.bytes,
                            reinterpret_cast<const char*>(frames.data()) + at * range.bytes,
                            static_cast<std::size_t>(range.bytes));
                element = static_cast<Zor32f>(std::ldexp(static_cast<double>(v), -63));
            }
        SCOPED_TRACE(testing::Message()
                     << channels << " channels, " << len << " frames, control " << control);
        ASSERT_EQ(under(control, join)(pointers.data(), got.data(), channels, len), zorStsOk);
        ASSERT_TRUE(got == want) << "byte " << got.firstDifference(want);
        ASSERT_EQ(under(control, split)(frames.data(), pointers.data(), channels, len), zorStsOk);
        ASSERT_TRUE(rows == wanted);
        compared(2 * channels * len);
    };
    for (int channels = 1; channels <= 9; ++channels)
        for (const int len : {1, 2, 3, 7, 8, 15, 16, 17, 31, 33, 64, 100, 129, 257, 1023, 1024, 1025, 2500})
            compare(channels, len, standardControl);
    for (const unsigned control : controls) compare(2, 777, control);
    compare(67, 40, standardControl);
}

TEST(Rows, JoinAndSplit)
{
    expectBoth(zorsJoinScaled_32f16s_D2L, zorsSplitScaled_16s32f_D2L, rangeOf<Zor16s>);
    expectBoth(zorsJoinScaled_32f24s_D2L, zorsSplitScaled_24s32f_D2L, range24s);
}

template <class Function, class Row, class T>
void expectFaults(Function call, Row* row, T* frames)
{
    Row* rows[] = {row, row};
    Row* missing[] = {row, nullptr};
    Row** none = nullptr;
    T* nothing = nullptr;
    EXPECT_EQ(call(none, frames, 2, 1), zorStsNullPointer);
    EXPECT_EQ(call(rows, nothing, 2, 1), zorStsNullPointer);
    EXPECT_EQ(call(missing, frames, 2, 0), zorStsNullPointer);
    EXPECT_EQ(call(none, nothing, -1, -1), zorStsNullPointer);
    for (const int bad : {0, -1, INT_MIN}) {
        EXPECT_EQ(call(rows, frames, 2, bad), zorStsBadSize);
        EXPECT_EQ(call(rows, frames, bad, bad), zorStsBadSize);
        EXPECT_EQ(call(rows, frames, bad, 1), zorStsBadNumChannels);
        EXPECT_EQ(call(missing, frames, bad, 1), zorStsBadNumChannels);
    }
}

TEST(Rows, FaultsInTheirOrder)
{
    Zor32f row[1] = {0.25f};
    Zor16s words[2] = {1, 2};
    Zor8u bytes[6] = {1, 2, 3, 4, 5, 6};
    expectFaults(zorsJoinScaled_32f16s_D2L, static_cast<const Zor32f*>(row), words);
    expectFaults(zorsJoinScaled_32f24s_D2L, static_cast<const Zor32f*>(row), bytes);
    const auto turned = [](auto split) {
        return [=](auto** rows, auto* frames, auto... sizes) { return split(frames, rows, sizes...); };
    };
    expectFaults(turned(zorsSplitScaled_16s32f_D2L), row, words);
    expectFaults(turned(zorsSplitScaled_24s32f_D2L), row, bytes);
    EXPECT_TRUE(row[0] == 0.25f && words[0] == 1 && words[1] == 2 && bytes[0] == 1 && bytes[5] == 6);
}

} // namespace
