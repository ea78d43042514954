// Multi-rate filters whose taps and delay line are the caller's.
#include "filter/direct.h"
#include "support/allocator.h"

namespace zors::test {
namespace {

struct Rates {
    int up, upPhase, down, downPhase;
    int delays(int tapsLen) const { return (tapsLen + up - 1) / up; }
};

template <class T, class D, class B, class I>
struct Kind {
    using Tap = T;
    using Data = D;
    B blockFunction;
    I inPlaceFunction;

    template <class F, class... First>
    static ZorStatus call(F f, ScaleFactors s, const T* taps, int tapsLen, Rates r, D* line, First... first)
    {
        if constexpr (hasIntegerTaps<T>)
            return f(first..., taps, tapsLen, s.taps, r.up, r.upPhase, r.down, r.downPhase, line, s.result);
        else if constexpr (isScaled<D>)
            return f(first..., taps, tapsLen, r.up, r.upPhase, r.down, r.downPhase, line, s.result);
        else
            return f(first..., taps, tapsLen, r.up, r.upPhase, r.down, r.downPhase, line);
    }
    ZorStatus block(const D* src, D* dst, int n, const T* taps, int tapsLen, Rates r, D* line,
                    ScaleFactors s) const
    {
        return call(blockFunction, s, taps, tapsLen, r, line, src, dst, n);
    }
    ZorStatus inPlace(D* srcDst, int n, const T* taps, int tapsLen, Rates r, D* line, ScaleFactors s) const
    {
        return call(inPlaceFunction, s, taps, tapsLen, r, line, srcDst, n);
    }
};

template <class T, class D, class B, class I>
Kind<T, D, B, I> kind(B block, I inPlace)
{
    return {block, inPlace};
}

// Calls test(kind) for each of the kinds.
template <class Test>
void eachKind(Test test)
{
#define DIRECT(types, T, D) test(kind<T, D>(zorsFIRMR##types, zorsFIRMR##types##_I));
#define DIRECT_SCALED(types, T, D) test(kind<T, D>(zorsFIRMR##types##_Sfs, zorsFIRMR##types##_ISfs));
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

// A filter in the middle of a stream, and what a block of it must give by the definition.
template <class Kind>
struct Stream {
    using Tap = typename Kind::Tap;
    using Data = typename Kind::Data;

    int tapsLen, numIters;
    Rates rates;
    RandomVector<Tap> taps;
    RandomVector<Data> line, src;
    std::vector<Data> result;
    RandomVector<Data> lineAfter;
    ScaleFactors scale;

    Stream(int tapsLen_, Rates rates_, int numIters_, Random& random)
        : tapsLen(tapsLen_), numIters(numIters_), rates(rates_), taps(tapsLen, below(5, random), random),
          line(rates.delays(tapsLen), below(5, random), random),
          src(numIters * rates.down, below(5, random), random), lineAfter(line)
    {
        fillWithNumbers(taps.data(), tapsLen, random);
        fillWithNumbers(line.data(), rates.delays(tapsLen), random);
        fillWithNumbers(src.data(), inputs(), random);
        scale = fittingFactors<Tap, Data>(taps.data(), std::max(1, tapsLen / rates.up), random);
        expect();
    }

    int inputs() const { return numIters * rates.down; }
    int outputs() const { return numIters * rates.up; }
    Data sample(int i) const { return i < 0 ? line.data()[-1 - i] : src.data()[i]; }

    void expect()
    {
        result.clear();
        for (int j = 0; j < outputs(); ++j) {
            const auto tapOf = [&](int i) {
                return rates.down * j + rates.downPhase - rates.upPhase - rates.up * i;
            };
            // From the last sample down to where the taps end.
            int newest = inputs() - 1, count = 0;
            while (tapOf(newest) < 0) --newest;
            while (tapOf(newest - count) < tapsLen) ++count;
            const auto sums = patternSums<Tap, Data>(
                [&](std::ptrdiff_t n) { return sample(newest - count + 1 + static_cast<int>(n)); },
                [&](std::ptrdiff_t n) {
                    return taps.data()[tapOf(newest - count + 1 + static_cast<int>(n))];
                },
                count);
            result.push_back(roundedSums<Data>(sums, scale.both()));
        }
        lineAfter = line;
        for (int k = 0; k < rates.delays(tapsLen); ++k) lineAfter.data()[k] = sample(inputs() - 1 - k);
        compared(outputs());
    }

    template <class Run>
    void check(const char* form, bool inPlace, Random& random, Run run) const
    {
        RandomVector<Data> got(inPlace ? std::max(inputs(), outputs()) : outputs(), below(5, random), random),
            stream = line;
        if (inPlace) std::copy(src.data(), src.data() + inputs(), got.data());
        RandomVector<Data> want = got;
        run(inPlace ? got.data() : src.data(), got.data(), stream.data());
        for (int n = 0; n < outputs(); ++n) {
            const Data value = result[static_cast<std::size_t>(n)];
            want.data()[n] = same(got.data()[n], value) ? got.data()[n] : value;
        }
        ASSERT_TRUE(got == want) << form << ", byte " << got.firstDifference(want) << where();
        ASSERT_TRUE(stream == lineAfter)
            << form << ", byte " << stream.firstDifference(lineAfter) << " of the line" << where();
    }

    std::string where() const
    {
        const auto text = [](int n) { return std::to_string(n); };
        return ", " + text(tapsLen) + " taps, " + text(numIters) + " times " + text(rates.up) + '/' +
               text(rates.down) + ", phases " + text(rates.upPhase) + " and " + text(rates.downPhase) + ", " +
               __PRETTY_FUNCTION__;
    }

    void checkAllForms(const Kind& kind, Random& random) const
    {
        const auto block = [&](const Data* s, Data* d, int n, Data* l) {
            ASSERT_EQ(kind.block(s, d, n, taps.data(), tapsLen, rates, l, scale), zorStsOk);
        };
        check("block", false, random, [&](const Data* s, Data* d, Data* l) { block(s, d, numIters, l); });
        check("same vector", true, random,
              [&](const Data* s, Data* d, Data* l) { block(s, d, numIters, l); });
        check("in place", true, random, [&](const Data*, Data* d, Data* l) {
            ASSERT_EQ(kind.inPlace(d, numIters, taps.data(), tapsLen, rates, l, scale), zorStsOk);
        });
        check("cut", false, random, [&](const Data* s, Data* d, Data* l) {
            for (int n = 0; n < numIters;) {
                const int some = 1 + below(numIters - n, random);
                block(s + n * rates.down, d + n * rates.up, some, l);
                n += some;
            }
        });
    }
};

template <class Kind>
void expectFilters(const Kind& kind, int tapsLen, Rates rates, int numIters)
{
    static Random random;
    const Stream<Kind> stream(tapsLen, rates, numIters, random);
    stream.checkAllForms(kind, random);
}

TEST(MultirateDirect, FiltersAtAllFactorsAndPhases)
{
    eachKind([](const auto& kind) {
        Random random;
        for (int up = 1; up <= 6; ++up)
            for (int down = 1; down <= 6; ++down)
                for (int upPhase = 0; upPhase < up; ++upPhase)
                    for (int downPhase = 0; downPhase < down; ++downPhase)
                        for (const int tapsLen : {1 + below(6, random), 1 + below(60, random)})
                            expectFilters(kind, tapsLen, {up, upPhase, down, downPhase},
                                          1 + below(9, random));
    });
}

TEST(MultirateDirect, TakesEveryNumberOfTaps)
{
    eachKind([](const auto& kind) {
        for (int tapsLen = 1; tapsLen <= 70; ++tapsLen) {
            expectFilters(kind, tapsLen, {3, tapsLen % 3, 2, tapsLen % 2}, 1 + tapsLen % 40);
            expectFilters(kind, tapsLen, {1, 0, 1, 0}, tapsLen % 5 * 20 + 1);
        }
    });
}

// More outputs, taps and delays than are gathered at a time.
TEST(MultirateDirect, FiltersLongBlocksAndTaps)
{
    eachKind([](const auto& kind) {
        expectFilters(kind, 3000, {147, 20, 160, 100}, 2);
        expectFilters(kind, 2600, {160, 159, 147, 0}, 3);
        expectFilters(kind, 90, {2, 1, 1, 0}, 600);
        expectFilters(kind, 90, {1, 0, 3, 2}, 600);
        expectFilters(kind, 2500, {1, 0, 2, 1}, 30);
        expectFilters(kind, 2500, {1, 0, 1, 0}, 2700);
        expectFilters(kind, 2049, {2, 0, 1, 0}, 1100);
        expectFilters(kind, 4500, {2, 1, 5, 3}, 20);
    });
}

TEST(MultirateDirect, AnInfiniteSampleIsFeltWhereItHasATap)
{
    eachKind([](const auto& kind) {
        using Stream = Stream<std::remove_cvref_t<decltype(kind)>>;
        using P = Part<typename Stream::Data>;
        if constexpr (std::is_floating_point_v<P>) {
            Random random;
            for (const int tapsLen : {1, 4, 32, 101}) {
                Stream stream(tapsLen, {3, 1, 2, 0}, 60, random);
                reinterpret_cast<P&>(stream.src.data()[30]) = std::numeric_limits<P>::infinity();
                stream.expect();
                for (int j = 0; j < stream.outputs(); ++j) {
                    const int tap = 2 * j - 1 - 3 * 30;
                    ASSERT_EQ(std::isfinite(*partsOf(stream.result[static_cast<std::size_t>(j)])),
                              tap < 0 || tap >= tapsLen);
                }
                stream.checkAllForms(kind, random);
            }
        }
    });
}

// One phase of two, with a sum beside the middle between two results that needs more bits than double precision has.
TEST(MultirateDirect, SumsOf16BitsAreExact)
{
    constexpr int largest = (1 << 23) + 512;
    constexpr std::size_t size = largest + 1;
    std::vector<Zor16s> taps(2 * size, 7), line(size, -32768);
    for (std::size_t k = 0; k < largest; ++k) taps[2 * k] = -32768;
    taps[2 * largest] = 1;
    line[largest - 1] = 1; // the oldest after the next sample
    const Zor16s src = -32768;
    Zor16s dst[2];
    ASSERT_EQ(zorsFIRMR_Direct_16s_Sfs(&src, dst, 1, taps.data(), static_cast<int>(2 * size), 2, 0, 1, 0,
                                       line.data(), 40),
              zorStsOk);
    EXPECT_EQ(dst[0], 8193);
}

TEST(MultirateDirect, FaultsAreFoundInTheirOrder)
{
    eachKind([](const auto& kind) {
        using Tap = typename std::remove_cvref_t<decltype(kind)>::Tap;
        using Data = typename std::remove_cvref_t<decltype(kind)>::Data;
        struct Arguments {
            Data* src;
            Data* dst;
            int numIters;
            Tap* taps;
            int tapsLen;
            Rates rates;
            Data* line;
        };
        struct Fault {
            void (*make)(Arguments&);
            ZorStatus status;
        };
        static const Fault faults[] = {
            {[](Arguments& a) { a.src = nullptr; }, zorStsNullPointer},
            {[](Arguments& a) { a.dst = nullptr; }, zorStsNullPointer},
            {[](Arguments& a) { a.taps = nullptr; }, zorStsNullPointer},
            {[](Arguments& a) { a.line = nullptr; }, zorStsNullPointer},
            {[](Arguments& a) { a.numIters = 0; }, zorStsBadSize},
            {[](Arguments& a) { a.tapsLen = 0; }, zorStsBadFirLength},
            {[](Arguments& a) { a.rates.up = 0; }, zorStsBadMultiRateFactor},
            {[](Arguments& a) { a.rates.down = -1; }, zorStsBadMultiRateFactor},
            {[](Arguments& a) { a.rates.upPhase = -1; }, zorStsBadMultiRatePhase},
            {[](Arguments& a) { a.rates.upPhase = 2; }, zorStsBadMultiRatePhase},
            {[](Arguments& a) { a.rates.downPhase = -1; }, zorStsBadMultiRatePhase},
            {[](Arguments& a) { a.rates.downPhase = 3; }, zorStsBadMultiRatePhase},
        };
        for (const Fault& first : faults)
            for (const Fault& second : faults) {
                if (&second < &first) continue;
                Random random;
                RandomVector<Data> src(3, 0, random), dst(3, 0, random), line(2, 0, random);
                RandomVector<Tap> taps(3, 0, random);
                const auto srcBefore = src, dstBefore = dst, lineBefore = line;
                Arguments a{src.data(), dst.data(), 1, taps.data(), 3, {2, 0, 3, 0}, line.data()};
                second.make(a);
                first.make(a);
                allocator = {};
                EXPECT_EQ(kind.block(a.src, a.dst, a.numIters, a.taps, a.tapsLen, a.rates, a.line, {}),
                          first.status);
                EXPECT_EQ(
                    kind.inPlace(a.dst ? a.src : nullptr, a.numIters, a.taps, a.tapsLen, a.rates, a.line, {}),
                    first.status);
                EXPECT_TRUE(src == srcBefore && dst == dstBefore && line == lineBefore);
                EXPECT_TRUE(allocator.sizesAsked.empty());
            }
    });
}

TEST(MultirateDirect, AllocatesInPlaceAloneAndAnswersWithoutMemory)
{
    eachKind([](const auto& kind) {
        using Kind = std::remove_cvref_t<decltype(kind)>;
        using Data = typename Kind::Data;
        Random random;
        const Stream<Kind> stream(20, {2, 1, 3, 1}, 10, random);
        const auto filtered = [&](Data* p, Data* line, int numIters) {
            return kind.inPlace(p, numIters, stream.taps.data(), stream.tapsLen, stream.rates, line,
                                stream.scale);
        };
        RandomVector<Data> vector = stream.src, line = stream.line, dst(20, 0, random);

        allocator = {};
        ASSERT_EQ(kind.block(vector.data(), dst.data(), 10, stream.taps.data(), stream.tapsLen, stream.rates,
                             line.data(), stream.scale),
                  zorStsOk);
        EXPECT_TRUE(allocator.sizesAsked.empty());

        line = stream.line;
        allocator.untilFailure = 0;
        EXPECT_EQ(filtered(vector.data(), line.data(), 10), zorStsNoMemory);
        allocator.untilFailure = -1;
        // More than an allocation can be asked for.
        EXPECT_EQ(filtered(vector.data(), line.data(), INT_MAX), zorStsNoMemory);
        EXPECT_EQ(allocator.sizesAsked.size(), 1U);
        EXPECT_TRUE(vector == stream.src && line == stream.line);

        EXPECT_EQ(filtered(vector.data(), line.data(), 10), zorStsOk);
        EXPECT_EQ(allocator.sizesAsked.back(), static_cast<int>(30 * sizeof(Data)));
        EXPECT_TRUE(allocator.live.empty());
        EXPECT_FALSE(allocator.strayRelease);
    });
}

} // namespace
} // namespace zors::test
