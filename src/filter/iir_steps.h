// Recursive filters sixteen samples at a time. The outputs of a step and the numbers that it leaves for the next are
// linear in its samples and in the numbers that it finds: a table has, for each of these, its part in all of those.
// So only the numbers of the filter wait for the step before, once for sixteen samples.
#pragma once

#include "iir_recurrence.h"
#include "simd/flush.h"
#include "simd/fused.h"
#include "simd/memory.h"

#include <algorithm>
#include <cstring>

namespace zors::ZORS_VARIANT {

inline constexpr int stepLength = 16;

// Of a filter with so many numbers. A column has the outputs, then the numbers.
template <class T, int States>
struct Step {
    static constexpr int width = lanes<T> < stepLength ? lanes<T> : stepLength, outputs = stepLength / width;
    static constexpr int narrowest = 16 / static_cast<int>(sizeof(T));
    static constexpr int half = States <= narrowest       ? narrowest
                                : States <= 2 * narrowest ? 2 * narrowest
                                                          : 16;
    static constexpr int stateWidth = half < width ? half : width;
    static constexpr int states = (States + stateWidth - 1) / stateWidth;
    static constexpr int rows = stepLength + states * stateWidth, columns = stepLength + States;
    static constexpr int tableLength = rows * columns;

    using Outputs = Vec<T, width>;
    using Numbers = Vec<T, stateWidth>;

    // Filters whole steps, and returns the number of their samples: all there are, or those before a step that has or
    // makes numbers that are not finite, which would spread to outputs that they do not belong to.
    static std::ptrdiff_t filter(const T* table, T* delay, const T* pSrc, T* pDst, std::ptrdiff_t len)
    {
        T found[states * stateWidth] = {};
        std::memcpy(found, delay, States * sizeof(T));
        std::ptrdiff_t n = 0;
        for (; n + stepLength <= len; n += stepLength)
            if (!step(table, found, pSrc + n, pDst + n)) break;
        std::memcpy(delay, found, States * sizeof(T));
        return n;
    }

private:
    [[gnu::always_inline]] static bool step(const T* table, T* found, const T* pSrc, T* pDst)
    {
        Outputs y[outputs] = {};
        Numbers fromSamples[states] = {}, fromNumbers[states] = {};
        const auto add = [&](const T* column, int first, T factor, Numbers(&to)[states])
            __attribute__((always_inline))
        {
            for (int p = 0; p < outputs; ++p)
                if ((p + 1) * width > first)
                    y[p] = mulAdd(load<width>(column + p * width), splat<T, width>(factor), y[p]);
            for (int q = 0; q < states; ++q)
                to[q] = mulAdd(load<stateWidth>(column + stepLength + q * stateWidth),
                               splat<T, stateWidth>(factor), to[q]);
        };
        // Every index is a constant, so that the sums stay in registers.
        [&]<int... J>(std::integer_sequence<int, J...>) __attribute__((always_inline))
        {
            (add(table + J * rows, J, pSrc[J], fromSamples), ...);
        }
        (std::make_integer_sequence<int, stepLength>{});
        [&]<int... K>(std::integer_sequence<int, K...>) __attribute__((always_inline))
        {
            (add(table + (stepLength + K) * rows, 0, found[K], K % 2 ? fromSamples : fromNumbers), ...);
        }
        (std::make_integer_sequence<int, States>{});
        Outputs sum = y[0] - y[0];
        for (int p = 1; p < outputs; ++p) sum += y[p] - y[p];
        if (!isFinite(sum)) return false;
        for (int p = 0; p < outputs; ++p) store<width>(pDst + p * width, y[p]);
        for (int q = 0; q < states; ++q)
            store<stateWidth>(found + q * stateWidth, fromSamples[q] + fromNumbers[q]);
        return true;
    }
};

// The table, from the responses of the recurrence in double precision: respond(delay, samples) filters a step.
template <class T, int States, class Respond>
void fillStep(T* table, Respond respond)
{
    using S = Step<T, States>;
    std::fill_n(table, S::tableLength, T{});
    for (int c = 0; c < S::columns; ++c, table += S::rows) {
        Zor64f delay[States + 1] = {}, samples[stepLength] = {};
        (c < stepLength ? samples[c] : delay[c - stepLength]) = 1;
        respond(delay, samples);
        std::transform(samples, samples + stepLength, table, [](Zor64f v) { return static_cast<T>(v); });
        std::transform(delay, delay + States, table + stepLength, [](Zor64f v) { return static_cast<T>(v); });
    }
}

// So many sections make one step together.
inline constexpr int sectionsOfStep = 4;

// Calls run with the number of numbers of some sections.
template <class Run>
void withSections(std::ptrdiff_t sections, Run run)
{
    if (sections == 1) return run(std::integral_constant<int, 2>{});
    if (sections == 2) return run(std::integral_constant<int, 4>{});
    if (sections == 3) return run(std::integral_constant<int, 6>{});
    run(std::integral_constant<int, 2 * sectionsOfStep>{});
}

// The same with that of one section of any order, where there is a table of that: orders are rounded up.
template <class Run>
void withOrder(int order, Run run)
{
    if (order <= 4) return run(std::integral_constant<int, 4>{});
    if (order <= 8) return run(std::integral_constant<int, 8>{});
    run(std::integral_constant<int, 16>{});
}

inline constexpr int highestOrderOfStep = 16;

template <class E>
inline constexpr int stepOfSections = Step<E, 2 * sectionsOfStep>::tableLength;

// Sections from the first on that there are tables for.
template <class E>
std::ptrdiff_t sectionsWithTables(const IirRecord<E>& r)
{
    const IirDesign d{r.structure, r.count, false};
    return std::min<std::ptrdiff_t>(r.count, d.tableRoom() / stepOfSections<E> * sectionsOfStep);
}

template <class E>
bool hasSteps(const IirRecord<E>& r)
{
    if constexpr (LaneOf<E>::each > 1) return false;
    if (r.structure == Structure::anyOrder) return r.count >= 1 && r.count <= highestOrderOfStep;
    return r.structure == Structure::biQuad;
}

// The tables of a record, from its taps.
template <class E>
void fillSteps(IirRecord<E>& r)
{
    if (!hasSteps(r)) return;
    if constexpr (LaneOf<E>::each == 1) {
        if (r.structure == Structure::anyOrder) {
            Zor64f taps[2 * highestOrderOfStep + 1];
            std::copy_n(r.taps, 2 * r.count + 1, taps);
            withOrder(r.count, [&](auto states) {
                fillStep<E, states>(r.tables, [&](Zor64f* delay, Zor64f* samples) {
                    std::fill(delay + r.count, delay + states, 0);
                    for (int n = 0; n < stepLength; ++n)
                        samples[n] = nextOfOrder(taps, delay, r.count, samples[n]);
                });
            });
            return;
        }
        E* table = r.tables;
        const std::ptrdiff_t all = sectionsWithTables(r);
        for (std::ptrdiff_t s = 0; s < all; s += sectionsOfStep, table += stepOfSections<E>) {
            const auto some = std::min<std::ptrdiff_t>(sectionsOfStep, all - s);
            Zor64f taps[5 * sectionsOfStep];
            std::copy_n(r.taps + 5 * s, 5 * some, taps);
            withSections(some, [&](auto states) {
                fillStep<E, states>(table, [&](Zor64f* delay, Zor64f* samples) {
                    for (int i = 0; i < states / 2; ++i)
                        filterSections<1>(taps + 5 * i, delay + 2 * i, samples, samples, stepLength);
                });
            });
        }
    }
}

// Steps, as far as they go, and the rest sample by sample. A step that is refused goes sample by sample, too.
template <class Steps, class Samples>
void filterBySteps(std::ptrdiff_t len, Steps steps, Samples samples)
{
    for (std::ptrdiff_t n = 0; n < len;) {
        n += steps(n);
        const std::ptrdiff_t some = std::min<std::ptrdiff_t>(stepLength, len - n);
        if (some > 0) samples(n, some);
        n += some;
    }
}

template <class E>
void filterAhead(IirRecord<E>& r, const E* pSrc, E* pDst, std::ptrdiff_t len)
{
    if constexpr (LaneOf<E>::each == 1) {
        if (r.structure == Structure::anyOrder) {
            E delay[highestOrderOfStep] = {};
            withOrder(r.count, [&](auto states) {
                filterBySteps(
                    len,
                    [&](std::ptrdiff_t n) {
                        std::copy_n(r.delay, r.count, delay);
                        n = Step<E, states>::filter(r.tables, delay, pSrc + n, pDst + n, len - n);
                        std::copy_n(delay, r.count, r.delay);
                        return n;
                    },
                    [&](std::ptrdiff_t n, std::ptrdiff_t some) {
                        filterAnyOrder(r, pSrc + n, pDst + n, some);
                    });
            });
            return;
        }
        const E* table = r.tables;
        const std::ptrdiff_t all = sectionsWithTables(r);
        std::ptrdiff_t s = 0;
        for (; s < all; s += sectionsOfStep, table += stepOfSections<E>, pSrc = pDst) {
            const auto some = std::min<std::ptrdiff_t>(sectionsOfStep, all - s);
            E* delay = r.delay + 2 * s;
            withSections(some, [&](auto states) {
                filterBySteps(
                    len,
                    [&](std::ptrdiff_t n) {
                        return Step<E, states>::filter(table, delay, pSrc + n, pDst + n, len - n);
                    },
                    [&](std::ptrdiff_t n, std::ptrdiff_t count) {
                        filterSections<states / 2>(r.taps + 5 * s, delay, pSrc + n, pDst + n, count);
                    });
            });
        }
        filterCascade(r, s, pSrc, pDst, len);
    }
}

// A chunk, by steps where there are any.
template <class E>
void filterChunk(IirRecord<E>& r, const E* pSrc, E* pDst, std::ptrdiff_t len)
{
    if (len >= stepLength && hasSteps(r)) return filterAhead(r, pSrc, pDst, len);
    constexpr int few = 4;
    if (len < few && r.structure != Structure::directForm1) return filterFew(r, pSrc, pDst, len);
    if (r.structure == Structure::anyOrder) return filterAnyOrder(r, pSrc, pDst, len);
    if (r.structure == Structure::biQuad) return filterCascade(r, 0, pSrc, pDst, len);
    if constexpr (std::is_same_v<E, Zor32f>)
        for (std::ptrdiff_t s = 0; s < r.count; ++s, pSrc = pDst)
            filterDirectForm1(r.taps + 5 * s, r.delay + 4 * s, pSrc, pDst, len);
}

} // namespace zors::ZORS_VARIANT
