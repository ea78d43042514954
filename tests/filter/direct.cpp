// Single-rate filters whose taps and delay line are the caller's.
#include "filter/direct.h"

namespace zors::test {
namespace {

template <class T, class D, class B, class I, class O>
struct Kind {
    using Tap = T;
    using Data = D;
    B blockFunction;
    I inPlaceFunction;
    O oneFunction;

    // The call with the factors that the kind has.
    template <class F, class... First>
    static ZorStatus call(F f, ScaleFactors s, const T* taps, int tapsLen, D* line, int* index,
                          First... first)
    {
        if constexpr (hasIntegerTaps<T>)
            return f(first..., taps, tapsLen, s.taps, line, index, s.result);
        else if constexpr (isScaled<D>)
            return f(first..., taps, tapsLen, line, index, s.result);
        else
            return f(first..., taps, tapsLen, line, index);
    }
    ZorStatus block(const D* src, D* dst, int n, const T* taps, int tapsLen, D* line, int* index,
                    ScaleFactors s) const
    {
        return call(blockFunction, s, taps, tapsLen, line, index, src, dst, n);
    }
    ZorStatus inPlace(D* srcDst, int n, const T* taps, int tapsLen, D* line, int* index, ScaleFactors s) const
    {
        return call(inPlaceFunction, s, taps, tapsLen, line, index, srcDst, n);
    }
    ZorStatus one(D src, D* dst, const T* taps, int tapsLen, D* line, int* index, ScaleFactors s) const
    {
        return call(oneFunction, s, taps, tapsLen, line, index, src, dst);
    }
};

template <class T, class D, class B, class I, class O>
Kind<T, D, B, I, O> kind(B block, I inPlace, O one)
{
    return {block, inPlace, one};
}

// Calls test(kind) for each of the kinds.
template <class Test>
void eachKind(Test test)
{
#define DIRECT(types, T, D) test(kind<T, D>(zorsFIR##types, zorsFIR##types##_I, zorsFIROne##types));
#define DIRECT_SCALED(types, T, D)                                                                           \
    test(kind<T, D>(zorsFIR##types##_Sfs, zorsFIR##types##_ISfs, zorsFIROne##types##_Sfs));
    DIRECT(_Direct_32f, Zor32f, Zor32f)
    DIRECT(_Direct_32fc, Zor32fc, Zor32fc)
    DIRECT(_Direct_64f, Zor64f, Zor64f)
    DIRECT(_Direct_64fc, Zor64fc, Zor64fc)
    DIRECT(64f_Direct_32f, Zor64f, Zor32f)
    DIRECT(64fc_Direct_32fc, Zor64fc, Zor32fc)
    DIRECT_SCALED(32f_Direct_16s, Zor32f, Zor16s)
    DIRECT_SCALED(32fc_Direct_16sc, Zor32fc, Zor16sc)
    DIRECT_SCALED(64f_Direct_32s, Zor64f, Zor32s)
    DIRECT_SCALED(64fc_Direct_32sc, Zor64fc, Zor32sc)
    DIRECT_SCALED(64f_Direct_16s, Zor64f, Zor16s)
    DIRECT_SCALED(64fc_Direct_16sc, Zor64fc, Zor16sc)
    DIRECT_SCALED(_Direct_16s, Zor16s, Zor16s)
    DIRECT_SCALED(32s_Direct_16s, Zor32s, Zor16s)
    DIRECT_SCALED(32sc_Direct_16sc, Zor32sc, Zor16sc)
#undef DIRECT
#undef DIRECT_SCALED
}

// A filter in the middle of a stream, and what a block of it must give.
template <class Kind>
struct Stream {
    using Tap = typename Kind::Tap;
    using Data = typename Kind::Data;

    RandomVector<Tap> taps;
    RandomVector<Data> line, src;
    std::vector<Data> past, result;
    RandomVector<Data> lineAfter;
    int tapsLen, len, index, indexAfter;
    ScaleFactors scale;

    Stream(int tapsLen_, int len_, int index_, Random& random)
        : taps(tapsLen_, below(5, random), random), line(2 * tapsLen_, below(5, random), random),
          src(len_, below(5, random), random), past(static_cast<std::size_t>(tapsLen_)), lineAfter(line),
          tapsLen(tapsLen_), len(len_), index(index_), indexAfter(index_)
    {
        fillWithNumbers(taps.data(), tapsLen, random);
        fillWithNumbers(past.data(), tapsLen, random);
        fillWithNumbers(src.data(), len, random);
        scale = fittingFactors<Tap, Data>(taps.data(), tapsLen, random);
        for (int j = 0; j < tapsLen; ++j) {
            const int at = (index + j) % tapsLen;
            line.data()[at] = line.data()[at + tapsLen] = past[static_cast<std::size_t>(j)];
        }
        expect();
    }

    // The sample n after the first of the block, or before it.
    Data sample(std::ptrdiff_t n) const
    {
        return n < 0 ? past[static_cast<std::size_t>(tapsLen + n)] : src.data()[n];
    }

    void expect()
    {
        result.clear();
        lineAfter = line;
        indexAfter = index;
        for (int n = 0; n < len; ++n) {
            lineAfter.data()[indexAfter] = lineAfter.data()[indexAfter + tapsLen] = sample(n);
            indexAfter = (indexAfter + 1) % tapsLen;
            const auto sums = patternSums<Tap, Data>(
                [&](std::ptrdiff_t j) { return sample(n - tapsLen + 1 + j); },
                [&](std::ptrdiff_t j) { return taps.data()[tapsLen - 1 - j]; }, tapsLen);
            result.push_back(roundedSums<Data>(sums, scale.both()));
        }
        compared(len);
    }

    // Runs run(src, dst, line, index), with dst among other bytes, and compares all that it leaves.
    template <class Run>
    void check(const char* form, bool inPlace, Random& random, Run run) const
    {
        RandomVector<Data> got(len, below(5, random), random), stream = line;
        if (inPlace) std::copy(src.data(), src.data() + len, got.data());
        RandomVector<Data> want = got;
        int at = index;
        run(inPlace ? got.data() : src.data(), got.data(), stream.data(), &at);
        for (int n = 0; n < len; ++n) {
            const Data value = result[static_cast<std::size_t>(n)];
            want.data()[n] = same(got.data()[n], value) ? got.data()[n] : value;
        }
        ASSERT_TRUE(got == want) << form << ", byte " << got.firstDifference(want) << where();
        ASSERT_TRUE(stream == lineAfter)
            << form << ", byte " << stream.firstDifference(lineAfter) << " of the line" << where();
        ASSERT_EQ(at, indexAfter) << form << where();
    }

    std::string where() const
    {
        return ", " + std::to_string(tapsLen) + " taps, " + std::to_string(len) + " samples, index " +
               std::to_string(index) + ", " + __PRETTY_FUNCTION__;
    }

    // All ways to filter the block give the same.
    void checkAllForms(const Kind& kind, Random& random) const
    {
        const auto block = [&](const Data* s, Data* d, int n, Data* l, int* i) {
            ASSERT_EQ(kind.block(s, d, n, taps.data(), tapsLen, l, i, scale), zorStsOk);
        };
        check("block", false, random,
              [&](const Data* s, Data* d, Data* l, int* i) { block(s, d, len, l, i); });
        check("same vector", true, random,
              [&](const Data* s, Data* d, Data* l, int* i) { block(s, d, len, l, i); });
        check("in place", true, random, [&](const Data*, Data* d, Data* l, int* i) {
            ASSERT_EQ(kind.inPlace(d, len, taps.data(), tapsLen, l, i, scale), zorStsOk);
        });
        check("cut", false, random, [&](const Data* s, Data* d, Data* l, int* i) {
            for (int n = 0; n < len;) {
                const int some = 1 + below(len - n, random);
                block(s + n, d + n, some, l, i);
                n += some;
            }
        });
        check("one by one", false, random, [&](const Data* s, Data* d, Data* l, int* i) {
            for (int n = 0; n < len; ++n)
                ASSERT_EQ(kind.one(s[n], d + n, taps.data(), tapsLen, l, i, scale), zorStsOk);
        });
    }
};

template <class Kind>
void expectFilters(const Kind& kind, int tapsLen, int len, int index)
{
    static Random random;
    const Stream<Kind> stream(tapsLen, len, index, random);
    stream.checkAllForms(kind, random);
}

TEST(Direct, FiltersInItsPattern)
{
    eachKind([](const auto& kind) {
        Random random;
        for (int tapsLen = 1; tapsLen <= 70; ++tapsLen)
            for (const int len : {1 + below(7, random), 8 + below(32, random), 40 + below(80, random)})
                expectFilters(kind, tapsLen, len, below(tapsLen, random));
        for (const int tapsLen : {127, 128, 255}) expectFilters(kind, tapsLen, 300, below(tapsLen, random));
    });
}

TEST(Direct, TakesEveryLengthAndIndex)
{
    eachKind([](const auto& kind) {
        for (int tapsLen = 1; tapsLen <= 7; ++tapsLen)
            for (int len = 1; len <= 40; ++len) expectFilters(kind, tapsLen, len, len % tapsLen);
        for (int index = 0; index < 7; ++index)
            for (const int len : {1, 6, 7, 8, 20}) expectFilters(kind, 7, len, index);
    });
}

// Longer than what is filtered at a time, with delay lines that are and are not shorter than it.
TEST(Direct, FiltersLongBlocks)
{
    eachKind([](const auto& kind) {
        expectFilters(kind, 3, 2100, 1);
        expectFilters(kind, 400, 1500, 399);
        expectFilters(kind, 512, 700, 5);
        expectFilters(kind, 513, 1200, 512);
        expectFilters(kind, 1000, 2300, 17);
        expectFilters(kind, 1000, 990, 500);
    });
}

TEST(Direct, AnInfiniteSampleIsFeltAsLongAsItIsInTheFilter)
{
    eachKind([](const auto& kind) {
        using Stream = Stream<std::remove_cvref_t<decltype(kind)>>;
        using P = Part<typename Stream::Data>;
        if constexpr (std::is_floating_point_v<P>) {
            Random random;
            for (const int tapsLen : {1, 5, 32, 67}) {
                Stream stream(tapsLen, 240, 0, random);
                const auto makeInfinite = [](auto& x) {
                    reinterpret_cast<P&>(x) = std::numeric_limits<P>::infinity();
                };
                makeInfinite(stream.past[0]); // the oldest sample has left the filter
                makeInfinite(stream.line.data()[0]);
                makeInfinite(stream.line.data()[tapsLen]);
                makeInfinite(stream.src.data()[100]);
                stream.expect();
                for (int n = 0; n < stream.len; ++n) {
                    const auto y = *partsOf(stream.result[static_cast<std::size_t>(n)]);
                    ASSERT_EQ(std::isfinite(y), n < 100 || n >= 100 + tapsLen) << n;
                }
                stream.checkAllForms(kind, random);
            }
        }
    });
}

// The documented bound on the error of the sum, against 64-bit significands.
template <class Data, class Filter>
void expectWithinBound(Filter filter)
{
    Random random;
    for (const int tapsLen : {1, 2, 31, 32, 33, 64, 100, 1000, 30000}) {
        const auto size = static_cast<std::size_t>(tapsLen);
        std::vector<Data> taps(size), line(2 * size);
        fillWithNumbers(taps.data(), tapsLen, random);
        fillWithNumbers(line.data(), tapsLen, random);
        std::copy_n(line.data(), size, line.data() + size);
        const Data src = number<Data>(random);
        Data got;
        int index = 0;
        ASSERT_EQ(filter(src, &got, taps.data(), tapsLen, line.data(), &index), zorStsOk);
        long double exact[2] = {}, magnitudes[2] = {};
        for (std::size_t k = 0; k < size; ++k) {
            const Data x = k == 0 ? src : line[size - k], h = taps[k];
            const auto add = [&](int part, std::size_t a, std::size_t b, int sign) {
                const double p = partsOf(h)[a] * partsOf(x)[b];
                exact[part] += sign * p;
                magnitudes[part] += std::fabs(p);
            };
            add(0, 0, 0, 1);
            if constexpr (Complex<Data>) add(0, 1, 1, -1), add(1, 0, 1, 1), add(1, 1, 0, 1);
        }
        const int lanes = static_cast<int>(32 / parts<Data>);
        for (std::size_t k = 0; k < parts<Data>; ++k)
            EXPECT_LE(std::fabs(partsOf(got)[k] - exact[k]), (tapsLen / lanes + 6) * 0x1p-53L * magnitudes[k])
                << tapsLen;
        compared(1);
    }
}

TEST(Direct, SumsStayWithinTheirBound)
{
    expectWithinBound<Zor64f>(zorsFIROne_Direct_64f);
    expectWithinBound<Zor64fc>(zorsFIROne_Direct_64fc);
}

// Sums beside the middle between two results: they need more bits than double precision has, or just as many.
TEST(Direct, SumsOf16BitsAreExact)
{
    constexpr int many = 1 << 23;
    struct {
        int tapsLen, largest;
        Zor16s last, result;
    } const cases[] = {{many, many - 512, -1, 8191}, {many + 513, many + 512, 1, 8193}};
    for (const auto& c : cases) {
        const auto size = static_cast<std::size_t>(c.tapsLen);
        std::vector<Zor16s> taps(size), line(2 * size, -32768), dst(9), src(9, -32768);
        std::fill_n(taps.begin(), c.largest, Zor16s{-32768});
        int index = 0;
        // A product of -1 or 1, of the sample that will be the oldest after nine.
        taps.back() = c.last;
        line[9] = line[9 + size] = 1;
        ASSERT_EQ(zorsFIR_Direct_16s_Sfs(src.data(), dst.data(), 9, taps.data(), c.tapsLen, line.data(),
                                         &index, 40),
                  zorStsOk);
        EXPECT_EQ(dst[8], c.result);
    }
}

TEST(Direct, FactorsOfTapsAndResultsAddUp)
{
    const Zor32s taps[] = {1 << 20};
    for (const auto& [tapsFactor, scaleFactor, result] : {std::array{20, 0, 3},
                                                          {0, 20, 3},
                                                          {INT_MAX, INT_MAX, 0},
                                                          {INT_MIN, INT_MIN, 32767},
                                                          {INT_MAX, INT_MIN, 32767},
                                                          {INT_MAX, 21 - INT_MAX, 2},
                                                          {INT_MIN + 20, INT_MAX, 6}}) {
        Zor16s line[2] = {}, dst = 0;
        int index = 0;
        ASSERT_EQ(zorsFIROne32s_Direct_16s_Sfs(3, &dst, taps, 1, tapsFactor, line, &index, scaleFactor),
                  zorStsOk);
        EXPECT_EQ(dst, result) << tapsFactor << ' ' << scaleFactor;
    }
}

TEST(Direct, FaultsAreFoundInTheirOrder)
{
    eachKind([](const auto& kind) {
        using Tap = typename std::remove_cvref_t<decltype(kind)>::Tap;
        using Data = typename std::remove_cvref_t<decltype(kind)>::Data;
        struct Arguments {
            Data* src;
            Data* dst;
            int len;
            Tap* taps;
            int tapsLen;
            Data* line;
            int* index;
        };
        struct Fault {
            void (*make)(Arguments&, int*);
            ZorStatus status;
            bool ofBlocksOnly = false;
        };
        static const Fault faults[] = {
            {[](Arguments& a, int*) { a.src = nullptr; }, zorStsNullPointer, true},
            {[](Arguments& a, int*) { a.dst = nullptr; }, zorStsNullPointer},
            {[](Arguments& a, int*) { a.len = 0; }, zorStsBadSize, true},
            {[](Arguments& a, int*) { a.taps = nullptr; }, zorStsNullPointer},
            {[](Arguments& a, int*) { a.tapsLen = 0; }, zorStsBadFirLength},
            {[](Arguments& a, int*) { a.line = nullptr; }, zorStsNullPointer},
            {[](Arguments& a, int*) { a.index = nullptr; }, zorStsNullPointer},
            {[](Arguments&, int* index) { *index = -1; }, zorStsBadDelayIndex},
            {[](Arguments&, int* index) { *index = 3; }, zorStsBadDelayIndex},
        };
        for (const Fault& first : faults)
            for (const Fault& second : faults) {
                if (&second < &first) continue;
                Random random;
                RandomVector<Data> src(2, 0, random), dst(2, 0, random), line(6, 0, random);
                RandomVector<Tap> taps(3, 0, random);
                const auto dstBefore = dst, srcBefore = src, lineBefore = line;
                int index = 1;
                Arguments a{src.data(), dst.data(), 2, taps.data(), 3, line.data(), &index};
                second.make(a, &index);
                first.make(a, &index);
                const int indexBefore = index;
                EXPECT_EQ(kind.block(a.src, a.dst, a.len, a.taps, a.tapsLen, a.line, a.index, {}),
                          first.status);
                if (a.src) {
                    EXPECT_EQ(
                        kind.inPlace(a.dst ? a.src : nullptr, a.len, a.taps, a.tapsLen, a.line, a.index, {}),
                        first.status);
                }
                if (!first.ofBlocksOnly) {
                    EXPECT_EQ(kind.one(Data{}, a.dst, a.taps, a.tapsLen, a.line, a.index, {}), first.status);
                }
                EXPECT_TRUE(dst == dstBefore && src == srcBefore && line == lineBefore);
                EXPECT_EQ(index, indexBefore);
            }
    });
}

} // namespace
} // namespace zors::test
