// Rates raised and lowered by every pair of factors and phases, beside the definition.
#include "filter/signal.h"

#include <gtest/gtest.h>
#include <limits>
#include <utility>

namespace zors::test {
namespace {

std::string nameOf(const Kind& kind, int tapsLen, Rates r)
{
    return kind.name + ", taps " + std::to_string(tapsLen) + ", up " + std::to_string(r.up) + " from " +
           std::to_string(r.upPhase) + ", down " + std::to_string(r.down) + " from " +
           std::to_string(r.downPhase);
}

// Within the bound; and the same bits in place, in other cuts and at other alignments.
void check(const Kind& kind, int tapsLen, Rates rates, int iterations)
{
    static Random random;
    const Signal s = randomSignal(kind, tapsLen, std::ptrdiff_t{iterations} * rates.down, random, rates);
    const Record record(s, rates);
    const Vector want = run(record, s, {iterations}, {false, 1, 0}, rates);
    const auto right = within(ofMultiRate(kind, tapsLen, rates.up), kind, want, s.expected(want.len(), rates),
                              s.scaleFactor);
    // The name alone takes longer to make than the filter.
    if (!right) FAIL() << nameOf(kind, tapsLen, rates) << ": " << right.message();
    const Vector newest = s.delayLine(s.history, s.len());
    if (!(record.delayLine(s.history) == newest)) FAIL() << nameOf(kind, tapsLen, rates) << ": delay line";
    for (const bool inPlace : {false, true}) {
        const Record other(s, rates);
        const Vector got =
            run(other, s, randomCalls(iterations, 1 + iterations / 2, random), {inPlace, 3, 1}, rates);
        if (got == want && other.delayLine(s.history) == newest) continue;
        FAIL() << nameOf(kind, tapsLen, rates) << (inPlace ? ", in place" : ", in other cuts")
               << ": other bits from element " << got.firstDifference(want) << " on";
    }
}

// All phases of a pair of factors.
template <class Body>
void forPhases(int up, int down, Body body)
{
    for (int upPhase = 0; upPhase < up; ++upPhase)
        for (int downPhase = 0; downPhase < down; ++downPhase) body(Rates{up, upPhase, down, downPhase});
}

TEST(MultiRate, AllFactorsAndPhases)
{
    const int most = timeIsShort() ? 4 : 12;
    for (const char* name : {"_32f", "_32fc", "_64f"}) {
        for (int up = 1; up <= most; ++up)
            for (int down = 1; down <= most; ++down)
                forPhases(up, down, [&](Rates rates) {
                    // Fewer taps than phases, about as many, and many more, in turn.
                    constexpr int lengths[] = {1, 5, 11, 24, 40};
                    const int tapsLen = lengths[(up + 3 * down + 7 * rates.upPhase + rates.downPhase) % 5];
                    if (!testing::Test::HasFatalFailure()) check(kind(name), tapsLen, rates, 5);
                });
        if (HasFailure()) return;
    }
}

TEST(MultiRate, AllKinds)
{
    Random random;
    for (const Kind& k : multiRateKinds()) {
        for (int i = 0; i < (timeIsShort() ? 20 : 300); ++i) {
            const int up = 1 + below(12, random), down = 1 + below(12, random);
            check(k, 1 + below(130, random), {up, below(up, random), down, below(down, random)},
                  1 + below(20, random));
            if (HasFailure()) return;
        }
        tellUse(k);
    }
}

// Every length, and so either side of where the ways of filtering part: at 10 to 1 and at 2 to 7.
TEST(MultiRate, AllLengths)
{
    for (const Kind& k : multiRateKinds())
        for (const Rates rates :
             {Rates{1, 0, 10, 4}, Rates{2, 1, 7, 0}, Rates{7, 3, 2, 1}, Rates{1, 0, 2, 0}, Rates{8, 0, 1, 0}})
            for (int tapsLen = 1; tapsLen <= (timeIsShort() ? 12 : 70); ++tapsLen) {
                check(k, tapsLen, rates, 9);
                if (HasFailure()) return;
            }
}

// From one sampling rate to another as they are in use, with 24 taps a phase.
TEST(MultiRate, RatesOfAudio)
{
    for (const Kind& k : multiRateKinds()) {
        check(k, 24 * 160, {160, 159, 147, 0}, 3);
        check(k, 24 * 147, {147, 0, 160, 159}, 3);
        check(k, 24 * 3, {3, 0, 2, 0}, 500);
        check(k, 24 * 8, {1, 0, 8, 0}, 300);
        if (HasFailure()) return;
    }
}

// Where a phase has no taps there is nothing to sum.
TEST(MultiRate, PhasesWithoutTapsGiveZeros)
{
    Random random;
    for (const Kind& k : multiRateKinds()) {
        constexpr Rates rates{7, 2, 1, 0};
        const Signal s = randomSignal(k, 3, 20, random, rates);
        const Record record(s, rates);
        const Vector got = run(record, s, {20}, {}, rates), zero(k.data, got.len());
        for (std::ptrdiff_t j = 0; j < got.len(); ++j)
            if ((j + 7 - rates.upPhase) % 7 >= 3) {
                EXPECT_NE(got.firstDifference(zero, j), j) << k.name << ", output " << j;
            }
    }
}

// Samples that an output has no tap for may be infinite.
TEST(MultiRate, NothingOutsideASumCounts)
{
    Random random;
    for (const char* name : {"_32f", "_32fc", "_64f", "64fc_32fc"})
        for (const Rates rates :
             {Rates{1, 0, 10, 4}, Rates{3, 1, 2, 0}, Rates{2, 0, 5, 3}, Rates{5, 4, 1, 0}})
            for (int tapsLen = 1; tapsLen <= (timeIsShort() ? 7 : 40); ++tapsLen) {
                const Kind& k = kind(name);
                SCOPED_TRACE(nameOf(k, tapsLen, rates));
                constexpr int iterations = 8;
                Signal s = randomSignal(k, tapsLen, iterations * rates.down, random, rates);
                const Record clean(s, rates);
                const Vector want = run(clean, s, {iterations}, {}, rates);
                for (int at = -s.history; at < s.len(); at += 2) {
                    const auto first = static_cast<std::size_t>((s.history + at) * k.data.parts);
                    const double before =
                        std::exchange(s.samples[first], std::numeric_limits<double>::infinity());
                    const Record record(s, rates);
                    const Vector got = run(record, s, {3, iterations - 3}, {}, rates);
                    s.samples[first] = before;
                    for (int j = 0; j < got.len(); ++j) {
                        const int tap = rates.down * j + rates.downPhase - rates.upPhase - rates.up * at;
                        const bool reached = tap >= 0 && tap < tapsLen;
                        ASSERT_EQ(got.firstDifference(want, j) == j, reached)
                            << "output " << j << ", infinity at " << at;
                    }
                }
            }
}

// In place through a copy of it all, or by batches of up to 4096 outputs; and where one iteration has more.
TEST(MultiRate, LongCallsInPlace)
{
    Random random;
    struct Case {
        Rates rates;
        int iterations;
    };
    for (const Kind& k : multiRateKinds())
        for (const auto& [rates, iterations] :
             {Case{{3, 1, 5, 2}, 3000}, Case{{1, 0, 3, 0}, 9000}, Case{{4, 0, 4, 1}, 1025},
              Case{{5, 0, 3, 0}, 2000}, Case{{4096, 7, 4097, 0}, 3}, Case{{5000, 77, 5001, 1}, 3},
              Case{{5000, 0, 1, 0}, 3}}) {
            if (timeIsShort() && rates.up < 4096) continue;
            const int tapsLen = 3 * rates.up + 2;
            SCOPED_TRACE(nameOf(k, tapsLen, rates));
            const Signal s = randomSignal(k, tapsLen, std::ptrdiff_t{iterations} * rates.down, random, rates);
            const Record record(s, rates), inPlace(s, rates);
            const Vector want = run(record, s, {iterations}, {}, rates);
            ASSERT_TRUE(within(ofMultiRate(k, tapsLen, rates.up), k, want, s.expected(want.len(), rates, 7),
                               s.scaleFactor));
            const Vector got = run(inPlace, s, {iterations}, {true, 1}, rates);
            ASSERT_EQ(got.firstDifference(want), got.len());
            ASSERT_TRUE(inPlace.delayLine(s.history) == s.delayLine(s.history, s.len())) << "delay line";
        }
}

// New taps reach all phases; a new delay line starts the stream anew.
TEST(MultiRate, TapsAndDelayLine)
{
    Random random;
    for (const Kind& k : multiRateKinds())
        for (const Rates rates :
             {Rates{1, 0, 10, 4}, Rates{3, 1, 2, 0}, Rates{7, 0, 1, 0}, Rates{5, 4, 12, 1}})
            for (const int tapsLen : {1, 4, 30, 90}) {
                SCOPED_TRACE(nameOf(k, tapsLen, rates));
                const Signal s = randomSignal(k, tapsLen, 30 * rates.down, random, rates);
                Signal other = s;
                other.taps = randomNumbers(k.taps, tapsLen, random);
                const Vector taps(k.taps, other.taps), line = s.delayLine(s.history);
                const Record changed(s, rates), fresh(other, rates);
                ASSERT_TRUE(changed.delayLine(s.history) == line);
                run(changed, s, {7}, {}, rates);
                ASSERT_EQ(k.setTaps(taps.at(), changed.get(), s.tapsFactor), zorStsOk);
                ASSERT_EQ(k.setDlyLine(changed.get(), line.at()), zorStsOk);
                Vector back(k.taps, tapsLen);
                ASSERT_EQ(k.getTaps(changed.get(), back.at(), s.tapsFactor), zorStsOk);
                EXPECT_TRUE(back == taps);
                EXPECT_TRUE(run(changed, s, {30}, {}, rates) == run(fresh, other, {30}, {}, rates));
                ASSERT_EQ(k.setDlyLine(changed.get(), nullptr), zorStsOk);
                EXPECT_TRUE(changed.delayLine(s.history) == Vector(k.data, s.history));
            }
}

// Both factors 1: a filter like any other.
TEST(MultiRate, EqualRatesAreASingleRate)
{
    Random random;
    constexpr Rates rates{};
    for (const Kind& k : multiRateKinds()) {
        check(k, 20, rates, 100);
        if (!k.single) continue;
        const Signal s = randomSignal(k, 100, 700, random, rates);
        const Record equal(s, rates), single(s);
        EXPECT_TRUE(run(equal, s, {10, 690}) == run(single, s, {10, 690})) << k.name;
        EXPECT_TRUE(runSingly(equal, s, 30) == runSingly(single, s, 30)) << k.name;
        EXPECT_TRUE(equal.delayLine(100) == single.delayLine(100)) << k.name;
    }
}

} // namespace
} // namespace zors::test
