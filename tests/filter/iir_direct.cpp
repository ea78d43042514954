// Recursive filters of 16-bit data without a record, beside their formula in exact integers.
#include "support/count.h"
#include "support/random.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <gtest/gtest.h>
#include <zors.h>

namespace zors::test {
namespace {

using Samples = std::vector<Zor16s>;
using Line = std::vector<Zor32s>;

// b0 ... bN, f, a1 ... aN; the sums as long doubles, which hold them exactly.
Samples section(const Zor16s* taps, std::ptrdiff_t order, const Samples& x)
{
    Samples y(x.size());
    for (std::ptrdiff_t n = 0; n < std::ssize(x); ++n) {
        const auto past = [n](const Samples& v, std::ptrdiff_t k) {
            return k <= n ? static_cast<long double>(v[static_cast<std::size_t>(n - k)]) : 0;
        };
        long double sum = taps[0] * past(x, 0);
        for (std::ptrdiff_t k = 1; k <= order; ++k)
            sum += taps[k] * past(x, k) - taps[order + 1 + k] * past(y, k);
        y[static_cast<std::size_t>(n)] = static_cast<Zor16s>(
            std::clamp(std::nearbyint(std::ldexp(sum, -taps[order + 1])), -32768.0L, 32767.0L));
    }
    return y;
}

// The functions of either structure.
struct Form {
    bool cascade;
    decltype(&zorsIIR_Direct_16s) block;
    decltype(&zorsIIR_Direct_16s_I) blockInPlace;
    decltype(&zorsIIROne_Direct_16s) one;
    decltype(&zorsIIROne_Direct_16s_I) oneInPlace;

    std::ptrdiff_t taps(int count) const { return cascade ? 6 * count : 2 * count + 2; }
    std::size_t delays(int count) const { return static_cast<std::size_t>(cascade ? 2 * count : count); }
    // Where the factors are.
    std::ptrdiff_t factor(int count, int s) const { return cascade ? 6 * s + 3 : count + 1; }
    Samples expected(const Zor16s* pTaps, int count, Samples x) const
    {
        if (!cascade) return section(pTaps, count, x);
        for (int s = 0; s < count; ++s) x = section(pTaps + 6 * s, 2, x);
        return x;
    }
};

constexpr Form forms[] = {
    {false, zorsIIR_Direct_16s, zorsIIR_Direct_16s_I, zorsIIROne_Direct_16s, zorsIIROne_Direct_16s_I},
    {true, zorsIIR_BiQuadDirect_16s, zorsIIR_BiQuadDirect_16s_I, zorsIIROne_BiQuadDirect_16s,
     zorsIIROne_BiQuadDirect_16s_I}};

// By blocks and samples of random lengths, in place and not.
Samples filtered(const Form& form, const Samples& x, const Zor16s* taps, int count, Random& random)
{
    Samples y = x;
    Line line(form.delays(count));
    for (int n = 0, len; n < std::ssize(x); n += len) {
        len = std::min(1 + below(40, random), static_cast<int>(std::ssize(x)) - n);
        ZorStatus status = zorStsOk;
        switch (below(4, random)) {
        case 0:
            status = form.block(x.data() + n, y.data() + n, len, taps, count, line.data());
            break;
        case 1:
            status = form.blockInPlace(y.data() + n, len, taps, count, line.data());
            break;
        case 2:
            len = 1;
            status = form.one(x[static_cast<std::size_t>(n)], y.data() + n, taps, count, line.data());
            break;
        default:
            len = 1;
            status = form.oneInPlace(y.data() + n, taps, count, line.data());
        }
        EXPECT_EQ(status, zorStsOk);
    }
    return y;
}

// Taps of all sizes, which overflow and saturate, and small ones, which meet ties; factors until nothing is left.
TEST(IirDirect, IsTheExactFormula)
{
    Random random;
    for (const Form& form : forms)
        for (int count = 1; count <= 12; ++count)
            for (const int factor : {0, 1, 2, 7, 14, 15, 17, 30, 33, 34, 63, 64, 1000, 32767})
                for (const bool small : {false, true}) {
                    Samples taps(static_cast<std::size_t>(form.taps(count))), x(300);
                    for (Zor16s& tap : taps)
                        tap = small ? static_cast<Zor16s>(below(7, random) - 3) : element<Zor16s>(random);
                    for (Zor16s& sample : x) sample = element<Zor16s>(random);
                    for (int s = 0; s < (form.cascade ? count : 1); ++s)
                        taps[static_cast<std::size_t>(form.factor(count, s))] = static_cast<Zor16s>(factor);
                    ASSERT_EQ(filtered(form, x, taps.data(), count, random),
                              form.expected(taps.data(), count, x))
                        << (form.cascade ? "sections " : "order ") << count << ", factor " << factor;
                    compared(std::ssize(x));
                }
}

TEST(IirDirect, ChecksInOrder)
{
    for (const Form& form : forms) {
        Samples taps(12, 1), x(5, 7), y(5, 9);
        Line line(4, 3);
        const auto all = [&](const Zor16s* pSrc, Zor16s* pDst, int len, const Zor16s* pTaps, int count,
                             Zor32s* pLine, ZorStatus expected) {
            EXPECT_EQ(form.block(pSrc, pDst, len, pTaps, count, pLine), expected);
            if (pSrc) {
                EXPECT_EQ(form.blockInPlace(pDst, len, pTaps, count, pLine), expected);
                if (len < 1) return;
                EXPECT_EQ(form.one(*pSrc, pDst, pTaps, count, pLine), expected);
                EXPECT_EQ(form.oneInPlace(pDst, pTaps, count, pLine), expected);
            }
        };
        all(nullptr, y.data(), 0, taps.data(), 0, line.data(), zorStsNullPointer);
        all(x.data(), nullptr, 0, taps.data(), 0, line.data(), zorStsNullPointer);
        all(x.data(), y.data(), 5, nullptr, 0, line.data(), zorStsNullPointer);
        all(x.data(), y.data(), 5, taps.data(), 0, nullptr, zorStsNullPointer);
        taps[static_cast<std::size_t>(form.factor(2, 1))] = -1;
        for (const int bad : {0, -1, INT_MIN}) {
            all(x.data(), y.data(), bad, taps.data(), 0, line.data(), zorStsBadSize);
            all(x.data(), y.data(), 5, taps.data(), bad, line.data(), zorStsBadIirOrder);
        }
        all(x.data(), y.data(), 5, taps.data(), 2, line.data(), zorStsBadTapsScale);
        EXPECT_TRUE(y == Samples(5, 9) && line == Line(4, 3)) << "written to in spite of an error";
    }
}

} // namespace
} // namespace zors::test
