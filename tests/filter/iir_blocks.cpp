// Recursive filters beside their difference equation: blocks, single samples and channels.
#include "filter/faults.h"
#include "filter/iir_signal.h"
#include "support/count.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <memory>
#include <numeric>
#include <zors.h>

namespace zors::test {
namespace {

int mostOf(const IirKind& k)
{
    return timeIsShort() ? 3 : k.isCascade() ? 8 : 12;
}

std::string nameOf(const IirSignal& s)
{
    return s.kind.kind.name + ", order or sections " + std::to_string(s.count);
}

TEST(IirBlocks, AreWithinTheBound)
{
    Random random;
    for (const IirKind& k : iirKinds()) {
        for (int count = 1; count <= mostOf(k); ++count)
            for (const double radius : {0.5, 0.9, 0.999}) {
                const IirSignal s = randomIirSignal(k, count, 150, random, radius);
                SCOPED_TRACE(nameOf(s) + ", radius " + std::to_string(radius));
                const IirRecord record(s);
                ASSERT_TRUE(within(s, run(record, s, {150})));
            }
        tellUse(k.kind);
    }
}

// Poles close to one another and to the circle, where the numbers of a delay line are far larger than what comes out.
TEST(IirBlocks, OfLowCutOffs)
{
    Random random;
    for (const IirKind& k : iirKinds()) {
        if (!k.kind.data.isFloating() || k.kind.data.parts == 2 || k.kind.isNarrow()) continue;
        for (const double cutOff : {0.1, 0.05, 0.02, 0.01, 0.49})
            for (int order = 1; order <= (timeIsShort() ? 6 : 12); ++order) {
                // Of a cascade, so many sections of the second order.
                const int designed = k.isCascade() ? 2 : order;
                Numbers one(static_cast<std::size_t>(2 * designed + 2)), taps;
                ASSERT_EQ(zorsIIRGenLowpass_64f(cutOff, 0, designed, one.data(), zorIirButterworth),
                          zorStsOk);
                for (int i = 0; i < (k.isCascade() ? order : 1); ++i)
                    taps.insert(taps.end(), one.begin(), one.end());
                constexpr int len = 400;
                const IirSignal s = iirSignalOf(k, order, taps, len, random, true);
                SCOPED_TRACE(nameOf(s) + ", cut-off " + std::to_string(cutOff));
                const IirRecord record(s), cut(s);
                ASSERT_TRUE(within(s, run(record, s, {len})));
                ASSERT_TRUE(withinOfSamples(s, run(cut, s, equalCalls(len, 8))));
            }
    }
}

// Poles in one place, and a signal that stops: what is left decays by many powers of ten in a step.
TEST(IirBlocks, OfSignalsThatStop)
{
    Random random;
    for (const IirKind& k : iirKinds()) {
        if (!k.kind.data.isFloating() || k.isCascade()) continue;
        const int parts = k.kind.data.parts;
        for (const double radius : {0.2, 0.4, 0.5, 0.6, 0.8})
            for (int order = 1; order <= mostOf(k); ++order) {
                // (1 - radius e^(i turn) / z)^order, and 1 above it.
                const double turn = parts == 2 ? 1 : 0;
                Numbers taps(static_cast<std::size_t>(parts * (2 * order + 2)));
                taps[0] = 1;
                double tap = 1;
                for (int i = 0; i <= order; tap *= -radius * (order - i) / (i + 1), ++i) {
                    const auto at = static_cast<std::size_t>(parts * (order + 1 + i));
                    taps[at] = tap * std::cos(turn * i);
                    if (parts == 2) taps[at + 1] = tap * std::sin(turn * i);
                }
                const double least = k.kind.isNarrow() ? 1e-28 : 1e-200; // above denormal numbers
                const int len = std::min(150, static_cast<int>(std::log(least) / std::log(radius)));
                for (const int burst : {1, 20}) {
                    IirSignal s = iirSignalOf(k, order, taps, len, random, true, burst);
                    SCOPED_TRACE(nameOf(s) + ", radius " + std::to_string(radius));
                    const IirRecord record(s), cut(s);
                    ASSERT_TRUE(within(s, run(record, s, {len})));
                    ASSERT_TRUE(withinOfSamples(s, run(cut, s, equalCalls(len, 7))));
                }
            }
    }
}

// Blocks of every length up to 70, and single samples, in place and not, at any place. The same calls have the same
// bits.
TEST(IirBlocks, CutAStreamAnywhere)
{
    Random random;
    std::vector<int> growing(70);
    std::iota(growing.begin(), growing.end(), 1);
    const int all = std::accumulate(growing.begin(), growing.end(), 0);
    for (const IirKind& k : iirKinds())
        for (const int count : {1, 2, 5}) {
            const IirSignal s = randomIirSignal(k, count, all, random);
            SCOPED_TRACE(nameOf(s));
            const IirRecord whole(s), cut(s), inPlace(s), shuffled(s), singly(s);
            ASSERT_TRUE(within(s, run(whole, s, {all})));
            const Vector want = run(cut, s, growing);
            ASSERT_TRUE(within(s, want));
            ASSERT_TRUE(run(inPlace, s, growing, {true, 1, 0}) == want);
            ASSERT_TRUE(inPlace.delayLine() == cut.delayLine());
            ASSERT_TRUE(within(s, run(shuffled, s, randomCalls(all, 70, random), {false, 3, 1}, 0, true)));
            ASSERT_TRUE(withinOfSamples(s, run(singly, s, equalCalls(all, 1), {}, 0, true)));
        }
}

// Around the lengths at which a chunk ends; and another record goes on from the delay line.
TEST(IirBlocks, AreLong)
{
    Random random;
    for (const IirKind& k : iirKinds())
        for (const int count : {4, 6, 30}) {
            if ((timeIsShort() || !k.isCascade()) && count > 6) continue;
            constexpr int len = 2500;
            const IirSignal s = randomIirSignal(k, count, len, random, count > 6 ? 0.6 : 0.99);
            SCOPED_TRACE(nameOf(s));
            const IirRecord record(s);
            ASSERT_TRUE(within(s, run(record, s, {len})));
            for (const int first : {4 * count, 4 * count + 1, 1023, 1024, 1025}) {
                const IirRecord begun(s), other(s);
                const Vector want = run(begun, s, {first});
                const Vector line = begun.delayLine();
                Vector got(k.kind.data, len);
                got.copy(0, want, 0, first);
                got.copy(first, run(begun, s, {len - first}, {}, first), 0, len - first);
                ASSERT_TRUE(within(s, got)) << "cut at " << first;
                ASSERT_EQ(k.kind.setDlyLine(other.get(), line.at()), zorStsOk);
                const Vector rest = run(other, s, {len - first}, {true}, first);
                ASSERT_EQ(std::memcmp(rest.at(), got.at(first),
                                      static_cast<std::size_t>((len - first) * k.kind.data.bytes())),
                          0);
            }
        }
}

// An infinity reaches its output and the following ones, none before it.
TEST(IirBlocks, OfInfinities)
{
    Random random;
    for (const IirKind& k : iirKinds()) {
        if (!k.kind.data.isFloating()) continue;
        for (const int at : {0, 5, 15, 16, 47, 60}) {
            constexpr int len = 70;
            IirSignal s = randomIirSignal(k, 3, len, random);
            const auto parts = static_cast<std::size_t>(k.kind.data.parts),
                       place = static_cast<std::size_t>(at) * parts;
            Numbers samples = s.samples.numbers();
            samples[place] = INFINITY;
            s.samples = Vector(k.kind.data, samples);
            s.expected.values.resize(place);
            const IirRecord record(s);
            const Vector got = run(record, s, {len});
            ASSERT_TRUE(at == 0 || within(s, got)) << nameOf(s) << ", at " << at;
            const Numbers numbers = got.numbers();
            for (std::size_t i = place; i < numbers.size(); i += parts)
                ASSERT_FALSE(std::isfinite(numbers[i])) << nameOf(s) << ", at " << at << ", number " << i;
        }
    }
}

// What a filter keeps may pass the largest number in a step where it does not sample by sample.
TEST(IirBlocks, OfNearlyInfiniteNumbers)
{
    constexpr int len = 800, order = 3;
    Zor64f designed[2 * order + 2];
    ASSERT_EQ(zorsIIRGenHighpass_64f(0.01, 0, order, designed, zorIirButterworth), zorStsOk);
    Zor32f taps[2 * order + 2];
    std::copy(std::begin(designed), std::end(designed), taps);
    std::vector<Zor32f> x(len), block(len), singly(len);
    for (int n = 0; n < len / 2; ++n) x[static_cast<std::size_t>(n)] = n / 37 % 2 ? -1e36F : 1e36F;
    for (const bool isBlock : {true, false}) {
        ZorsIIRState_32f* state = nullptr;
        ASSERT_EQ(zorsIIRInitAlloc_32f(&state, taps, order, nullptr), zorStsOk);
        if (isBlock)
            ASSERT_EQ(zorsIIR_32f(x.data(), block.data(), len, state), zorStsOk);
        else
            for (std::size_t n = 0; n < len; ++n)
                ASSERT_EQ(zorsIIROne_32f(x[n], &singly[n], state), zorStsOk);
        EXPECT_EQ(zorsIIRFree_32f(state), zorStsOk);
    }
    for (std::size_t n = 0; n < len; ++n) {
        ASSERT_TRUE(std::isfinite(singly[n])) << n;
        ASSERT_NEAR(block[n], singly[n], 2e34)
            << n; // a hundredth: so ill-conditioned is it in single precision
    }
}

// What grows without bound ends as infinities or no numbers, and until then is what it should be.
TEST(IirBlocks, OfUnstableFilters)
{
    Random random;
    for (const IirKind& k : iirKinds()) {
        if (!k.kind.data.isFloating() || k.kind.data.number != k.kind.arithmetic) continue;
        const double most = k.kind.isNarrow() ? 0x1p120 : 0x1p1000;
        const int len = k.kind.isNarrow() ? 500 : 2500;
        const IirSignal s = randomIirSignal(k, 2, len, random, 4);
        const IirRecord record(s);
        const Numbers got = run(record, s, {len}).numbers();
        std::size_t finite = 0;
        while (finite < got.size() && std::abs(s.expected.values[finite]) < most) ++finite;
        ASSERT_LT(finite, got.size()) << nameOf(s);
        for (std::size_t i = 0; i < finite; ++i)
            ASSERT_TRUE(std::abs(got[i] - static_cast<double>(s.expected.values[i])) <=
                        s.expected.magnitudes[i])
                << nameOf(s) << ", number " << i;
        EXPECT_FALSE(std::isfinite(got.back())) << nameOf(s);
    }
}

// Single samples leave no denormals behind, nor what goes on below them without an end: each filter comes to rest. The
// caller's arithmetic stays what it was.
TEST(IirOne, ComesToRest)
{
    Random random;
    for (const IirKind& k : iirKinds()) {
        if (!k.kind.one) continue;
        IirSignal s = randomIirSignal(k, 3, 1, random, 0.998);
        Numbers numbers = s.delay.numbers();
        for (double& number : numbers) number = std::ldexp(number, k.kind.isNarrow() ? -110 : -1000);
        s.delay = Vector(k.number(), numbers);
        const IirRecord record(s);
        const Vector zero(k.kind.data, 1);
        Vector y(k.kind.data, 1);
        for (int n = 0; n < 4; ++n) ASSERT_EQ(k.kind.one(zero.at(), y.at(), record.get(), 0), zorStsOk);
        EXPECT_TRUE(record.delayLine() == Vector(k.number(), k.delays(3))) << nameOf(s);
        volatile float least = 0x1p-126F;
        EXPECT_NE(least / 2, 0) << "denormals are zeros after " << nameOf(s);
        compared(4);
    }
}

// Several channels, of any structures: the bits of each alone.
template <class State, class T, class Run, class RunInPlace>
void checkChannels(const std::vector<const IirKind*>& kinds, Run all, RunInPlace allInPlace)
{
    Random random;
    constexpr int len = 1100, channels = 7;
    std::vector<IirSignal> signals;
    for (int c = 0; c < channels; ++c)
        signals.push_back(
            randomIirSignal(*kinds[static_cast<std::size_t>(c) % kinds.size()], 1 + c, len, random));
    std::vector<Vector> dst(channels, Vector(kinds[0]->kind.data, len)), inPlace = dst;
    std::vector<std::unique_ptr<IirRecord>> first, second, alone;
    std::vector<const T*> pSrc;
    std::vector<T*> pDst, pBoth;
    std::vector<State*> pFirst, pSecond;
    for (std::size_t c = 0; c < channels; ++c) {
        for (auto* records : {&first, &second, &alone})
            records->push_back(std::make_unique<IirRecord>(signals[c]));
        inPlace[c].copy(0, signals[c].samples, 0, len);
        pSrc.push_back(reinterpret_cast<const T*>(signals[c].samples.at()));
        pDst.push_back(reinterpret_cast<T*>(dst[c].at()));
        pBoth.push_back(reinterpret_cast<T*>(inPlace[c].at()));
        pFirst.push_back(static_cast<State*>(first[c]->get()));
        pSecond.push_back(static_cast<State*>(second[c]->get()));
        signals[c].scaleFactor = signals[0].scaleFactor;
    }
    const int scaleFactor = signals[0].scaleFactor;
    ASSERT_EQ(all(pSrc.data(), pDst.data(), len, channels, pFirst.data(), scaleFactor), zorStsOk);
    ASSERT_EQ(allInPlace(pBoth.data(), len, channels, pSecond.data(), scaleFactor), zorStsOk);
    for (std::size_t c = 0; c < channels; ++c) {
        const Vector want = run(*alone[c], signals[c], {len});
        EXPECT_TRUE(dst[c] == want && inPlace[c] == want) << "channel " << c;
        EXPECT_TRUE(first[c]->delayLine() == alone[c]->delayLine()) << "channel " << c;
        compared(len);
    }
    // Every fault, found before anything is written.
    const std::vector<Vector> before = dst;
    State* const last = pFirst[channels - 1];
    const ZorStatus null = zorStsNullPointer, badSize = zorStsBadSize,
                    badCount = std::is_same_v<T, Zor32f> ? zorStsBadNumChannels : zorStsBadChannelCount;
    const auto status = [&](unsigned f) {
        return all(unless(f & 1, pSrc.data()), unless(f & 2, pDst.data()), f & 8 ? 0 : len,
                   f & 16 ? 0 : channels, unless(f & 4, pFirst.data()), scaleFactor);
    };
    expectOrder("channels", {null, null, null, badSize, badCount}, status);
    expectOrder("channels in place", {null, null, badSize, badCount}, [&](unsigned f) {
        return allInPlace(unless(f & 1, pBoth.data()), f & 4 ? 0 : len, f & 8 ? -1 : channels,
                          unless(f & 2, pFirst.data()), scaleFactor);
    });
    auto& tag = *reinterpret_cast<Zor32u*>(last);
    tag ^= 1;
    EXPECT_EQ(status(0), zorStsWrongContext);
    pDst[channels - 2] = nullptr;
    EXPECT_EQ(status(0), zorStsNullPointer);
    pFirst[channels - 3] = nullptr;
    EXPECT_EQ(status(0), zorStsNullPointer);
    tag ^= 1;
    EXPECT_TRUE(dst == before);
}

TEST(IirChannels, AreFiltersOfTheirOwn)
{
    std::vector<const IirKind*> narrow, wide;
    for (const IirKind& k : iirKinds()) {
        if (k.kind.name == "_32f" || k.kind.name == "_BiQuad_32f" || k.kind.name == "_BiQuad_DF1_32f")
            narrow.push_back(&k);
        if (k.kind.name == "64f_32s") wide.push_back(&k);
    }
    ASSERT_EQ(narrow.size(), 3U);
    checkChannels<ZorsIIRState_32f, Zor32f>(
        narrow,
        [](auto src, auto dst, int len, int channels, auto states, int) {
            return zorsIIR_32f_P(src, dst, len, channels, states);
        },
        [](auto both, int len, int channels, auto states, int) {
            return zorsIIR_32f_IP(both, len, channels, states);
        });
    checkChannels<ZorsIIRState64f_32s, Zor32s>(wide, zorsIIR64f_32s_PSfs, zorsIIR64f_32s_IPSfs);
}

} // namespace
} // namespace zors::test
