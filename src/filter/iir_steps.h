// Recursive filters many samples at a time. The outputs of a step and the numbers that it leaves for the next are
// linear in its samples and in the numbers that it finds: a table has, for each of these, its part in all of those.
// So only the numbers of the filter wait for the step before, once a step.
#pragma once

#include "iir_recurrence.h"
#include "simd/complex.h"
#include "simd/flush.h"
#include "simd/fused.h"
#include "simd/memory.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace zors::ZORS_VARIANT {

// A complex step of as many samples would need more sums than there are registers.
template <class E>
inline constexpr int stepLength = LaneOf<E>::each == 1 ? 16 : 8;

// Of a filter with so many numbers. The table has the parts in the outputs, a column for each sample and each number,
// and then those in the numbers, in columns of whole vectors.
template <class E, int States>
struct Step {
    using T = Lane<E>;
    static constexpr int each = LaneOf<E>::each, length = stepLength<E>, columns = length + States;
    static constexpr int width = std::min(lanes<T>, length*each), outputs = length * each / width;
    // No wider than it must be, where there are no parts to be exchanged.
    static constexpr int fitting =
        States * int{sizeof(T)} <= 16 ? 16 / int{sizeof(T)} : 2 * (16 / int{sizeof(T)});
    static constexpr int stateWidth = each > 1 || States* int{sizeof(T)} > 32 ? width
                                                                              : std::min(width, fitting);
    static constexpr int states = (States * each + stateWidth - 1) / stateWidth;
    static constexpr int outputLanes = outputs * width, stateLanes = states * stateWidth;
    static constexpr int stateRows = stateLanes / each, tableLength = (length + stateRows) * columns;

    using Outputs = Vec<T, width>;
    using Numbers = Vec<T, stateWidth>;

    // Filters whole steps, and returns the number of their samples: all there are, or those before a step that has or
    // makes numbers that are not finite, which would spread to outputs that they do not belong to.
    static std::ptrdiff_t filter(const E* table, E* delay, const E* pSrc, E* pDst, std::ptrdiff_t len)
    {
        alignas(64) T found[stateLanes] = {};
        std::memcpy(found, delay, States * sizeof(E));
        std::ptrdiff_t n = 0;
        while (n + together * length <= len) {
            const int done = steps<together>(asLanes(table), found, asLanes(pSrc + n), asLanes(pDst + n));
            n += done * length;
            if (done < together) break;
        }
        if constexpr (together > 1)
            for (; n + length <= len; n += length)
                if (steps<1>(asLanes(table), found, asLanes(pSrc + n), asLanes(pDst + n)) == 0) break;
        std::memcpy(static_cast<void*>(delay), found, States * sizeof(E));
        return n;
    }

private:
    // Sums by the parts of the factors.
    struct Sums {
        Outputs y[outputs][each] = {};
        Numbers next[states][each] = {};
    };

    // Steps whose samples meet each column together: as many as leave registers over.
    static constexpr int sumsOfStep = (outputs + states) * each,
                         registers = ZORS_VECTOR_BYTES == 64 ? 32 : 16;
    static constexpr int together = 2 * sumsOfStep <= registers / 2 ? 2 : 1;
    // Sums that the numbers of a filter take turns at, for none has to wait for many.
    static constexpr int chains = States >= 8 && (outputs + 4 * states) * each <= registers - 4 ? 4 : 2;

    // Of a sample or number, whose first output is the one given.
    [[gnu::always_inline]] static void add(const T* table, int column, int firstOutput, const T* factor,
                                           Outputs (&y)[outputs][each], Numbers (&next)[states][each])
    {
        for (int part = 0; part < each; ++part) {
            const auto by = splat<T, width>(factor[part]);
            for (int p = 0; p < outputs; ++p)
                if ((p + 1) * width > firstOutput * each)
                    y[p][part] =
                        mulAdd(load<width>(table + column * outputLanes + p * width), by, y[p][part]);
            for (int q = 0; q < states; ++q)
                next[q][part] = mulAdd(
                    load<stateWidth>(table + columns * outputLanes + column * stateLanes + q * stateWidth),
                    leading<stateWidth>(by), next[q][part]);
        }
    }

    template <class V>
    [[gnu::always_inline]] static V joined(const V (&parts)[each])
    {
        if constexpr (each == 1)
            return parts[0];
        else
            return alternateSum(parts[0], partsExchanged(parts[1]));
    }

    // Returns how many steps had and left finite numbers, and were stored. Every index is a constant, so that the sums stay in
    // registers.
    template <int Count>
    [[gnu::always_inline]] static int steps(const T* table, T* found, const T* pSrc, T* pDst)
    {
        Sums sums[Count];
        [&]<int... J>(std::integer_sequence<int, J...>) __attribute__((always_inline))
        {
            const auto sample = [&](int j) __attribute__((always_inline))
            {
                for (int i = 0; i < Count; ++i)
                    add(table, j, j, pSrc + (i * length + j) * each, sums[i].y, sums[i].next);
            };
            (sample(J), ...);
        }
        (std::make_integer_sequence<int, length>{});
        for (int i = 0; i < Count; ++i)
            if (!step(table, found, pDst + i * outputLanes, sums[i])) return i;
        return Count;
    }

    // The rest of a step, whose samples are added up already.
    [[gnu::always_inline]] static bool step(const T* table, T* found, T* pDst, Sums& sum)
    {
        Numbers others[chains - 1][states][each] = {};
        [&]<int... K>(std::integer_sequence<int, K...>) __attribute__((always_inline))
        {
            (add(table, length + K, 0, found + K * each, sum.y,
                 K % chains ? others[K % chains - 1] : sum.next),
             ...);
        }
        (std::make_integer_sequence<int, States>{});
        Outputs y[outputs];
        for (int p = 0; p < outputs; ++p) y[p] = joined(sum.y[p]);
        Numbers left[states];
        for (int q = 0; q < states; ++q) {
            auto& next = sum.next[q];
            for (int part = 0; part < each; ++part) {
                next[part] += others[0][q][part];
                if constexpr (chains == 4) next[part] += others[1][q][part] + others[2][q][part];
            }
            left[q] = joined(next);
        }
        Outputs probe = y[0];
        for (int p = 1; p < outputs; ++p) probe += y[p] - y[p];
        // Parts of a number may pass the largest one where their sum does not.
        Numbers probeOfNumbers = left[0];
        for (int q = 1; q < states; ++q) probeOfNumbers += left[q] - left[q];
        if (!isFinite(probe) || !isFinite(probeOfNumbers)) return false;
        for (int p = 0; p < outputs; ++p) store<width>(pDst + p * width, y[p]);
        for (int q = 0; q < states; ++q) store<stateWidth>(found + q * stateWidth, left[q]);
        return true;
    }
};

// The numbers in which tables are made.
template <class E>
using Wide = std::conditional_t<LaneOf<E>::each == 1, Zor64f, Zor64fc>;

template <class To, class From>
To rounded(From v)
{
    if constexpr (LaneOf<From>::each == 1)
        return static_cast<To>(v);
    else
        return {static_cast<Lane<To>>(v.re), static_cast<Lane<To>>(v.im)};
}

// The table, from the responses of the recurrence in double precision: respond(delay, samples) filters a step.
template <class E, int States, class Respond>
void fillStep(E* table, Respond respond)
{
    using S = Step<E, States>;
    std::fill_n(table, S::tableLength, E{});
    E* numbers = table + S::columns * S::length;
    for (int c = 0; c < S::columns; ++c, table += S::length, numbers += S::stateRows) {
        Wide<E> delay[States + 1] = {}, samples[S::length] = {};
        *asLanes(c < S::length ? samples + c : delay + (c - S::length)) = 1;
        respond(delay, samples);
        std::transform(samples, samples + S::length, table, rounded<E, Wide<E>>);
        std::transform(delay, delay + States, numbers, rounded<E, Wide<E>>);
    }
}

// Calls run with the order that there is a table of: it is rounded up.
template <class Run>
void withOrder(int order, Run run)
{
    if (order <= 4) return run(std::integral_constant<int, 4>{});
    if (order <= 8) return run(std::integral_constant<int, 8>{});
    run(std::integral_constant<int, 16>{});
}

inline constexpr int highestOrderOfStep = 16;

// So many sections make one step together.
template <Structure structure, class E>
inline constexpr int stepOfSections = Step<E, numbersOfSection(structure) * mostSections>::tableLength;

// Tables begin with a cache line, or most loads would span two.
inline constexpr int tableAlignment = 64;
template <class E>
inline constexpr int tableGap = (tableAlignment - 16) / int{sizeof(E)};

template <class E>
E* tablesOf(const IirRecord<E>& r)
{
    return alignedTo(tableAlignment, r.tables);
}

// Sections from the first on that there are tables for.
template <Structure structure, class E>
std::ptrdiff_t sectionsWithTables(const IirRecord<E>& r)
{
    const IirDesign d{structure, r.count, false};
    const std::ptrdiff_t tables = (d.tableRoom() - tableGap<E>) / stepOfSections<structure, E>;
    return std::min<std::ptrdiff_t>(r.count, tables * mostSections);
}

// Calls run with a table, the place of its first section, and how many sections it is for.
template <Structure structure, class E, class Run>
std::ptrdiff_t withTables(const IirRecord<E>& r, Run run)
{
    E* table = tablesOf(r);
    const std::ptrdiff_t all = sectionsWithTables<structure>(r);
    for (std::ptrdiff_t s = 0; s < all; s += mostSections, table += stepOfSections<structure, E>)
        withSections(all - s, [&](auto sections) { run(table, s, sections); });
    return all;
}

template <Structure structure, class E>
void fillSections(IirRecord<E>& r)
{
    withTables<structure>(r, [&](E* table, std::ptrdiff_t s, auto sections) {
        Wide<E> taps[5 * sections];
        std::transform(r.taps + 5 * s, r.taps + 5 * (s + sections), taps, rounded<Wide<E>, E>);
        fillStep<E, numbersOfSection(structure) * sections>(table, [&](Wide<E>* delay, Wide<E>* samples) {
            filterSome<structure, sections>(taps, delay, samples, samples, stepLength<E>);
        });
    });
}

// How much more a step of one section of any order takes from a delay line than it leaves. Number k of it is at most
// A[k], the sum of the |a[i]| of i > k, where outputs are 1; of poles that are near one another its numbers are large,
// and nearly all of what a step takes from them cancels, more with each sample. The largest sum over k of |part of number
// k| A[k], in any output or number, relative to the sum of all |a[i]|.
template <class E, int States>
double growthOfStep(const IirRecord<E>& r)
{
    using S = Step<E, States>;
    const auto size = [](E v) {
        double sum = 0;
        for (int i = 0; i < S::each; ++i) sum += std::abs(asLanes(&v)[i]);
        return sum;
    };
    double sums[S::length + States] = {}, behind = 0; // of outputs, and of numbers
    for (int k = r.count - 1; k >= 0; --k) {
        behind += size(r.taps[r.count + 1 + k]);
        const E* outputs = tablesOf(r) + (S::length + k) * S::length;
        const E* numbers = tablesOf(r) + S::columns * S::length + (S::length + k) * S::stateRows;
        for (int n = 0; n < S::length; ++n) sums[n] += size(outputs[n]) * behind;
        for (int m = 0; m < States; ++m) sums[S::length + m] += size(numbers[m]) * behind;
    }
    return *std::max_element(sums, sums + S::length + States) / (1 + behind);
}

// Beyond this growth filters go sample by sample. Measured on Butterworth filters of orders to 12: errors of steps come
// to the bound at three times as much.
inline constexpr double mostGrowth = 200;

template <class E>
void fillOrder(IirRecord<E>& r)
{
    Wide<E> taps[2 * highestOrderOfStep + 1];
    std::transform(r.taps, r.taps + 2 * r.count + 1, taps, rounded<Wide<E>, E>);
    withOrder(r.count, [&](auto states) {
        fillStep<E, states>(tablesOf(r), [&](Wide<E>* delay, Wide<E>* samples) {
            std::fill(delay + r.count, delay + states, Wide<E>{});
            for (int n = 0; n < stepLength<E>; ++n)
                samples[n] = nextOfOrder(taps, delay, r.count, samples[n]);
        });
        r.takesSteps = growthOfStep<E, states>(r) <= mostGrowth;
    });
}

// Of the structures, direct form 1 is only there in single precision.
template <class E, class Order, class Sections>
void byStructure(const IirRecord<E>& r, Order order, Sections sections)
{
    if (r.structure == Structure::anyOrder) return order();
    if constexpr (std::is_same_v<E, Zor32f>)
        if (r.structure == Structure::directForm1)
            return sections(std::integral_constant<Structure, Structure::directForm1>{});
    sections(std::integral_constant<Structure, Structure::biQuad>{});
}

// The tables of a record, from its taps.
template <class E>
void fillSteps(IirRecord<E>& r)
{
    r.takesSteps = false;
    byStructure(
        r,
        [&] {
            if (r.count >= 1 && r.count <= highestOrderOfStep) fillOrder(r);
        },
        [&](auto structure) {
            fillSections<structure>(r);
            r.takesSteps = true;
        });
}

// Steps, as far as they go, and the rest sample by sample. A step that is refused goes sample by sample, too.
template <class E, class Steps, class Samples>
void filterBySteps(std::ptrdiff_t len, Steps steps, Samples samples)
{
    for (std::ptrdiff_t n = 0; n < len;) {
        n += steps(n);
        const std::ptrdiff_t some = std::min<std::ptrdiff_t>(stepLength<E>, len - n);
        if (some > 0) samples(n, some);
        n += some;
    }
}

template <class E>
void filterOrderAhead(IirRecord<E>& r, const E* pSrc, E* pDst, std::ptrdiff_t len)
{
    E delay[highestOrderOfStep] = {};
    withOrder(r.count, [&](auto states) {
        filterBySteps<E>(
            len,
            [&](std::ptrdiff_t n) {
                std::copy_n(r.delay, r.count, delay);
                n = Step<E, states>::filter(tablesOf(r), delay, pSrc + n, pDst + n, len - n);
                std::copy_n(delay, r.count, r.delay);
                return n;
            },
            [&](std::ptrdiff_t n, std::ptrdiff_t some) { filterAnyOrder(r, pSrc + n, pDst + n, some); });
    });
}

template <Structure structure, class E>
void filterSectionsAhead(IirRecord<E>& r, const E* pSrc, E* pDst, std::ptrdiff_t len)
{
    constexpr int each = numbersOfSection(structure);
    const std::ptrdiff_t done = withTables<structure>(r, [&](const E* table, std::ptrdiff_t s,
                                                             auto sections) {
        E* delay = r.delay + each * s;
        filterBySteps<E>(
            len,
            [&](std::ptrdiff_t n) {
                const auto count =
                    Step<E, each * sections>::filter(table, delay, pSrc + n, pDst + n, len - n);
                // In direct form 1 the last numbers are the last outputs, and have their bits.
                if (structure == Structure::directForm1 && count > 0)
                    std::reverse_copy(pDst + n + count - 2, pDst + n + count, delay + each * sections - 2);
                return count;
            },
            [&](std::ptrdiff_t n, std::ptrdiff_t count) {
                filterSome<structure, sections>(r.taps + 5 * s, delay, pSrc + n, pDst + n, count);
            });
        pSrc = pDst;
    });
    filterCascade<structure>(r, done, pSrc, pDst, len);
}

// A chunk, by steps where there are any.
template <class E>
void filterChunk(IirRecord<E>& r, const E* pSrc, E* pDst, std::ptrdiff_t len)
{
    const bool isLong = len >= stepLength<E> && r.takesSteps;
    constexpr int few = 4;
    if (len < few && r.structure != Structure::directForm1) return filterFew(r, pSrc, pDst, len);
    byStructure(
        r, [&] { isLong ? filterOrderAhead(r, pSrc, pDst, len) : filterAnyOrder(r, pSrc, pDst, len); },
        [&](auto structure) {
            isLong ? filterSectionsAhead<structure>(r, pSrc, pDst, len)
                   : filterCascade<structure>(r, 0, pSrc, pDst, len);
        });
}

} // namespace zors::ZORS_VARIANT
