// How a complex transform of any length goes, with its tables.
#pragma once

#include "few.h"
#include "lengths.h"
#include "mixed.h"
#include "prime.h"
#include "roots.h"
#include "spec.h"

namespace zors::ZORS_VARIANT {

// Short ones by one butterfly, products of two small factors in registers, powers of two by the engine, products of
// small factors in passes, short primes by sums of products, and all the rest as a convolution with a chirp.
enum class Way : Zor8u { short_, few, power, mixed, direct, chirp };

template <class T>
struct DftPlan {
    Zor32s n;
    Way way;
    Zor8u rows, columns; // of few
    bool takesHalves;    // whether passes take vectors of half the width
    MixedPlan mixed;
    MixedTables<T> tables;
    T* factors; // of few and direct
    PowersOfRoot powers;
    FloatRecord<T>* power;
    DftPlan* inner; // of the chirp's length
    T* chirp;
    T* spectrum; // of the chirp
};

template <class T>
using PowerKind = std::conditional_t<sizeof(T) == 4, KindOf<ZorsFFTSpec_C_32fc>, KindOf<ZorsFFTSpec_C_64fc>>;

constexpr int orderOf(int powerOfTwo)
{
    int order = 0;
    while (1 << order < powerOfTwo) ++order;
    return order;
}

constexpr bool isPrime(int n)
{
    for (int d = 2; d * d <= n; ++d)
        if (n % d == 0) return false;
    return true;
}

// The length of a convolution of n points with a chirp: a power of two, or one of those between that cost less.
inline int chirpLength(int n)
{
    const std::int64_t least = 2 * std::int64_t{n} - 1;
    std::int64_t power = 128;
    while (power < least) power *= 2;
    // Of every octave; passes of mixed radices take longer by a quarter.
    for (const int sixteenths : {18, 20, 24})
        if (power / 32 * sixteenths >= least) return static_cast<int>(power / 32 * sixteenths);
    return static_cast<int>(power);
}

// Both factors of a product of two small ones: as many rows as can be, of at most eight columns if there are such.
template <class T>
inline bool divideFew(DftPlan<T>& plan)
{
    int best = 0;
    for (int columns = 2; columns <= mostFewFactor; ++columns) {
        const int rows = plan.n / columns;
        if (plan.n % columns || rows < 2 || rows > mostFewFactor) continue;
        if (best == 0 || (columns <= 8 && rows >= 4)) best = columns;
    }
    plan.columns = static_cast<Zor8u>(best);
    plan.rows = static_cast<Zor8u>(best ? plan.n / best : 0);
    return best > 0;
}

// Which way a length goes whose method is known to exist.
template <class T>
inline void choose(DftPlan<T>& plan, int n)
{
    plan.n = n;
    if (isPowerOfTwoLength(n)) {
        plan.way = Way::power;
    } else if (n <= mostSmallLength) {
        plan.way = Way::short_;
    } else if (divideFew(plan)) {
        plan.way = Way::few;
    } else if (hasFactors<T>(n)) {
        plan.way = Way::mixed;
        plan.mixed = mixedPlan(n, lanesOfLine<T>);
        plan.takesHalves = takesHalves(plan.mixed, lanes<T>) && vectorBytes > 16;
    } else if (n <= 2 * mostDirectHalf + 1 && isPrime(n) && n <= LengthLimits<T>::mostDirect) {
        plan.way = Way::direct;
    } else {
        plan.way = Way::chirp;
    }
}

template <class T>
inline void layOutPlan(Layout& layout, DftPlan<T>& plan, int n)
{
    constexpr std::int64_t pair = 2 * bytes<T>;
    choose(plan, n);
    switch (plan.way) {
    case Way::short_:
        return;
    case Way::few:
        return layout.take(plan.factors, bytes<T> * fewNumbers<T>(plan.rows, plan.columns));
    case Way::power: {
        using Kind = PowerKind<T>;
        return layout.take(plan.power, floatSizes<Kind>(orderOf(n)).spec);
    }
    case Way::mixed:
        layout.take(plan.tables.ofRows, bytes<T> * tableNumbers(plan.mixed.ofRows));
        layout.take(plan.tables.ofColumns, bytes<T> * tableNumbers(plan.mixed.ofColumns));
        return layout.take(plan.tables.turn, bytes<T> * turnNumbers<T>(plan.mixed));
    case Way::direct:
        return layout.take(plan.factors, pair * n);
    case Way::chirp: {
        DftPlan<T> none{};
        const int length = chirpLength(n);
        layout.take(plan.inner, sizeof none);
        layout.take(plan.chirp, pair * n);
        layout.take(plan.spectrum, pair * length);
        layOutPlan(layout, plan.inner ? *plan.inner : none, length);
    }
    }
}

template <class T>
inline std::int64_t workBytesOf(const DftPlan<T>& plan)
{
    switch (plan.way) {
    case Way::power:
        return workBytes<T>(orderOf(plan.n));
    case Way::mixed:
        return wholeLines(mixedWorkBytes<T>(plan.mixed));
    case Way::direct:
        return wholeLines(2 * bytes<T> * plan.n);
    case Way::chirp: {
        DftPlan<T> inner{};
        choose(inner, chirpLength(plan.n));
        return wholeLines(2 * bytes<T> * inner.n) + workBytesOf(inner);
    }
    default:
        return 0;
    }
}

// Of the scratch memory while tables are filled.
template <class T>
inline std::int64_t initBytesOf(const DftPlan<T>& plan)
{
    if (plan.way == Way::power) return floatSizes<PowerKind<T>>(orderOf(plan.n)).init;
    if (plan.way != Way::chirp) return 0;
    DftPlan<T> inner{};
    choose(inner, chirpLength(plan.n));
    return std::max(initBytesOf(inner), workBytesOf(inner));
}

} // namespace zors::ZORS_VARIANT
