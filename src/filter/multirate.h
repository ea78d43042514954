// Multi-rate filters. With U = upFactor, D = downFactor and d = D j + downPhase - upPhase, output j is the sum over k of
// h[p + U k] x[i - k], i being d / U rounded down and p the remainder, the phase: one of U short filters, at sample i.
// U outputs later the phase is the same and i has grown by D.
#pragma once

#include "frame/slots.h"
#include "groups.h"
#include "rates.h"
#include "samples.h"

#include <algorithm>

namespace zors::ZORS_VARIANT {

// Taps of a phase.
inline int tapsOfPhase(int tapsLen, int upFactor, int phase)
{
    return tapsLen / upFactor + (phase < tapsLen % upFactor ? 1 : 0);
}

// Whether the taps are many beside the samples that an iteration passes over; the quotient is of single precision.
inline Kernel kernelOf(int tapsLen, int upFactor, int downFactor)
{
    const float taps = static_cast<float>(tapsLen);
    const float ratio = taps / (3 * static_cast<float>(downFactor) + taps);
    if (upFactor == 1) return ratio > 0.5F ? Kernel::direct : Kernel::decimating;
    return static_cast<double>(ratio) > 0.3 ? Kernel::direct : Kernel::indexed;
}

// Where an output of an iteration stands: its newest sample, counted from the first of the iteration, and its phase.
struct Place {
    int sample;
    int phase;
};

template <class E>
Place placeOf(const FilterRecord<E>& r, int output)
{
    const std::int64_t d = std::int64_t{output} * r.downFactor + r.downPhase - r.upPhase;
    const auto sample = d < 0 ? -1 : static_cast<int>(d / r.upFactor);
    return {sample, static_cast<int>(d - std::int64_t{sample} * r.upFactor)};
}

// Of each output of an iteration; all -1 where no tap falls on a sample.
struct PhaseEntry {
    Zor32s sample; // the newest one, counted from the first of the iteration
    Zor32s taps;   // where those of its phase begin
    Zor32s count;
};
inline constexpr int entryLength = sizeof(PhaseEntry) / sizeof(Zor32s);

template <class E>
Lane<E>* groupTable(const FilterRecord<E>& r)
{
    return reinterpret_cast<Lane<E>*>(r.groups);
}

template <class E>
PhaseEntry* entriesOf(const FilterRecord<E>& r)
{
    return reinterpret_cast<PhaseEntry*>(r.phases);
}

// The regions of a multi-rate record. The taps by phase are as many as taps.
template <class E>
void layOutMultiRate(FilterLayout<E>& layout, FilterRecord<E>& r, int tapsLen, int upFactor, int downFactor,
                     bool converts)
{
    const std::int64_t delay = delayOf(tapsLen, upFactor);
    const Kernel kernel = kernelOf(tapsLen, upFactor, downFactor);
    layout.take(r.reversed, tapsLen);
    layout.take(r.delay, 2 * delay + std::max<std::int64_t>(delay + downFactor, 2 * groupLength<E>));
    if (kernel != Kernel::decimating) {
        E* phased = nullptr;
        layout.take(phased, tapsLen);
        r.folded = asLanes(phased);
    }
    if (kernel == Kernel::indexed) layout.take(r.phases, std::int64_t{entryLength} * upFactor);
    if (kernel == Kernel::direct)
        if (const std::int64_t bytes = groupTableBytes<E>(static_cast<int>(delay), upFactor, downFactor))
            layout.takeLines(r.groups, bytes + cacheLine);
    layout.take(r.scratch, std::max(chunkLength, upFactor));
    if (converts) layout.take(r.inputs, std::max(chunkLength, downFactor));
}

template <class E>
std::int64_t multiRateSize(int tapsLen, int upFactor, int downFactor, bool converts)
{
    FilterLayout<E> counting;
    FilterRecord<E> none{};
    layOutMultiRate(counting, none, tapsLen, upFactor, downFactor, converts);
    return counting.size();
}

template <class E>
const E* tapsByPhase(const FilterRecord<E>& r)
{
    return reinterpret_cast<const E*>(r.folded);
}

// Where the taps of a phase begin among those by phase.
inline std::ptrdiff_t tapsBefore(int tapsLen, int upFactor, int phase)
{
    return std::ptrdiff_t{tapsLen / upFactor} * phase + std::min(phase, tapsLen % upFactor);
}

inline void fillEntries(PhaseEntry* entries, int tapsLen, int upFactor, auto place)
{
    ::zorsSet_32s_arraddr(-1, reinterpret_cast<Zor32s*>(entries), entryLength * upFactor);
    for (int output = 0; output < upFactor; ++output) {
        const auto [sample, phase] = place(output);
        if (const int count = tapsOfPhase(tapsLen, upFactor, phase); count > 0)
            entries[output] = {sample, static_cast<Zor32s>(tapsBefore(tapsLen, upFactor, phase)), count};
    }
}

// The taps of one phase after the other, the last one of each first, and the table of Kernel::indexed.
template <class E>
void fillPhases(FilterRecord<E>& r)
{
    if (r.kernel == Kernel::decimating) return;
    E* byPhase = reinterpret_cast<E*>(r.folded);
    for (int phase = 0; phase < r.upFactor; ++phase)
        for (int k = tapsOfPhase(r.tapsLen, r.upFactor, phase); k-- > 0;)
            *byPhase++ = r.reversed[r.tapsLen - 1 - phase - std::ptrdiff_t{r.upFactor} * k];
    if (r.kernel == Kernel::indexed)
        fillEntries(entriesOf(r), r.tapsLen, r.upFactor, [&](int output) { return placeOf(r, output); });
    if (!r.groups) return;
    const auto place = [&](int output) { return placeOf(r, output); };
    fillGroups<E>(
        groupTable(r), r.upFactor, r.delayLen,
        [&](int output, int k) {
            return r.reversed[r.tapsLen - 1 - place(output).phase - std::ptrdiff_t{r.upFactor} * k];
        },
        [&](int output) { return place(output).sample; },
        [&](int output, int k) { return k < tapsOfPhase(r.tapsLen, r.upFactor, place(output).phase); });
}

// Kernel::direct: outputs from one of the given phase on, whose newest sample is the given one. Each next one is
// downFactor phases on.
template <class E>
void dirFIRMR(const FilterRecord<E>& r, const E* newest, int phase, E* pDst, std::int64_t outputs)
{
    const int upFactor = r.upFactor, fewest = r.tapsLen / upFactor, withOneMore = r.tapsLen % upFactor;
    const int samplesOn = r.downFactor / upFactor, phasesOn = r.downFactor % upFactor;
    const E* const byPhase = tapsByPhase(r);
    withLaneSum<E>(delayOf(r.tapsLen, upFactor), [=](auto laneSum) {
        storeTotals(pDst, outputs, [=, x = newest, p = phase]() mutable {
            const int count = fewest + (p < withOneMore ? 1 : 0);
            const E* taps = byPhase + std::ptrdiff_t{fewest} * p + std::min(p, withOneMore);
            const auto sum = laneSum(taps, x + 1 - count, count);
            x += samplesOn;
            p += phasesOn;
            if (p >= upFactor) {
                p -= upFactor;
                ++x;
            }
            return sum;
        });
    });
}

// Kernel::decimating: one phase, of all taps.
template <class E>
void decFIRMR(const FilterRecord<E>& r, const E* pSrc, E* pDst, int numIters)
{
    const E* const taps = r.reversed;
    const int tapsLen = r.tapsLen, downFactor = r.downFactor;
    const E* const oldest = pSrc + r.downPhase + 1 - tapsLen;
    withLaneSum<E>(tapsLen, [=](auto laneSum) {
        storeTotals(pDst, numIters, [=, x = oldest]() mutable {
            const auto sum = laneSum(taps, x, tapsLen);
            x += downFactor;
            return sum;
        });
    });
}

// Kernel::indexed: few taps beside the samples passed over; many outputs may have none.
template <class E>
void idxFIRMR(const FilterRecord<E>& r, const E* pSrc, E* pDst, int numIters)
{
    const PhaseEntry* const entries = entriesOf(r);
    const E* const byPhase = tapsByPhase(r);
    const int upFactor = r.upFactor, downFactor = r.downFactor;
    storeTotals(pDst, std::int64_t{numIters} * upFactor, [=, x = pSrc, output = 0]() mutable {
        const PhaseEntry e = entries[output];
        const auto sum = e.count < 0
                             ? Vec<Lane<E>>{}
                             : LaneSumOfAny<E>{}(byPhase + e.taps, x + e.sample + 1 - e.count, e.count);
        if (++output == upFactor) {
            output = 0;
            x += downFactor;
        }
        return sum;
    });
}

// Kernel::direct, vectors of outputs by the table of their taps. Up to a vector of samples behind the last one is read,
// and left out; behind those in the buffer there are the other regions of the record.
template <class E>
void filterGroups(const FilterRecord<E>& r, const E* pSrc, E* pDst, int numIters)
{
    using T = Lane<E>;
    constexpr int n = groupLength<E>, each = LaneOf<E>::each, blocks = 4;
    const int groups = groupsOf(r.upFactor, n), taps = r.delayLen;
    const std::ptrdiff_t tableStep = TapGroup<E>::length(taps), period = std::ptrdiff_t{groups} * n;
    const std::ptrdiff_t samplesOn = period / r.upFactor * r.downFactor;
    const std::int64_t step = std::int64_t{n} * r.downFactor;
    const auto stepSamples = static_cast<int>(step / r.upFactor),
               stepPhases = static_cast<int>(step % r.upFactor);
    std::ptrdiff_t left = std::ptrdiff_t{numIters} * r.upFactor;
    // Blocks periods at once, or one; returns the number of their outputs.
    const auto pass = [&](auto count) {
        Place place = placeOf(r, 0);
        const T* table = groupTable(r);
        for (std::ptrdiff_t j = 0; j < period && j < left; j += n, table += tableStep) {
            GroupSums<E, count> sums;
            sums.run({table}, taps, asLanes(pSrc + place.sample), samplesOn * each);
            for (int b = 0; b < count; ++b) {
                T* y = asLanes(pDst + j + b * period);
                if (count > 1 || left - j >= n)
                    store<n * each>(y, sums.sums[b].lanes());
                else
                    storeFirst<n * each>(y, sums.sums[b].lanes(), static_cast<int>(left - j) * each);
            }
            place.sample += stepSamples;
            place.phase += stepPhases;
            if (place.phase >= r.upFactor) {
                place.phase -= r.upFactor;
                ++place.sample;
            }
        }
        pSrc += count * samplesOn;
        pDst += count * period;
        return count * period;
    };
    while (left >= blocks * period) left -= pass(std::integral_constant<int, blocks>{});
    while (left > 0) left -= pass(std::integral_constant<int, 1>{});
}

// The same where nothing behind the last sample may be read: the last iterations are filtered from within the buffer,
// behind the delay line.
template <class E>
void filterGroupsWithin(const FilterRecord<E>& r, const E* pSrc, E* pDst, int numIters)
{
    const std::ptrdiff_t down = r.downFactor, delay = r.delayLen;
    const int last = std::min(numIters, (groupLength<E> - 1) / r.downFactor + 1);
    E* const samples = r.delay + 2 * delay;
    copySamples(pSrc + down * (numIters - last) - delay, samples - delay, delay + down * last);
    filterGroups(r, pSrc, pDst, numIters - last);
    filterGroups(r, samples, pDst + std::ptrdiff_t{r.upFactor} * (numIters - last), last);
}

template <class E>
void runKernel(const FilterRecord<E>& r, const E* pSrc, E* pDst, int numIters)
{
    if (r.kernel == Kernel::decimating) return decFIRMR(r, pSrc, pDst, numIters);
    if (r.kernel == Kernel::indexed) return idxFIRMR(r, pSrc, pDst, numIters);
    const Place first = placeOf(r, 0);
    dirFIRMR(r, pSrc + first.sample, first.phase, pDst, std::int64_t{numIters} * r.upFactor);
}

// The first iterations, whose sums reach back into the delay line, from within the buffer, and the others from the
// source, which is not the destination.
template <class E>
void filterMultiRate(FilterRecord<E>& r, const E* pSrc, E* pDst, int numIters)
{
    const std::int64_t down = r.downFactor, up = r.upFactor, samples = down * numIters, delay = r.delayLen;
    const auto buffered = static_cast<int>(std::min<std::int64_t>(numIters, (delay + down - 1) / down));
    copySamples(pSrc, r.delay + delay, down * buffered);
    if (r.groups)
        filterGroups(r, r.delay + delay, pDst, buffered);
    else
        runKernel(r, r.delay + delay, pDst, buffered);
    if (samples >= delay)
        copySamples(pSrc + samples - delay, r.delay, delay);
    else
        moveSamples(r.delay + samples, r.delay, delay);
    if (buffered == numIters) return;
    if (r.groups)
        filterGroupsWithin(r, pSrc + down * buffered, pDst + up * buffered, numIters - buffered);
    else
        runKernel(r, pSrc + down * buffered, pDst + up * buffered, numIters - buffered);
}

} // namespace zors::ZORS_VARIANT
