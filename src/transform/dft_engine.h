// The complex transform of any length, by the plan's way.
#pragma once

#include "dft_plan.h"

namespace zors::ZORS_VARIANT {

// What is done to the parts of numbers on the way in and on the way out: the inverse conjugates both times.
template <class T>
struct Ends {
    T sign, re, im;

    Ends(bool conjugates, const T* factor)
        : sign(conjugates ? T(-1) : T(1)), re(factor ? *factor : T(1)), im(sign * re)
    {
    }
};

template <int N, class T, class Arrays>
[[gnu::noinline]] void shortDft(const Arrays& io, Ends<T> ends)
{
    Cx<T> x[N];
    for (int i = 0; i < N; ++i) {
        x[i] = io.get(i);
        x[i].im *= ends.sign;
    }
    dft(x);
    for (int i = 0; i < N; ++i) io.put(i, {x[i].re * ends.re, x[i].im * ends.im});
}

template <class T, class Arrays>
inline void shortDft(int n, const Arrays& io, Ends<T> ends)
{
    withFew(n, [&](auto length) {
        if constexpr ((length & (length - 1)) != 0) shortDft<length>(io, ends);
    });
}

template <class T>
inline void fewDft(const DftPlan<T>& plan, const PairedArrays<T, false>& io, Ends<T> ends)
{
    fewPoints(plan.rows, plan.columns, plan.factors, io.src, io.dst, ends.sign, ends.re, ends.im);
}

template <class T>
inline void fewDft(const DftPlan<T>& plan, const SplitArrays<T>& io, Ends<T> ends)
{
    alignas(lineBytes) T pairs[2 * mostFewFactor * mostFewFactor];
    const PairedArrays<T, false> own{pairs, pairs};
    for (int i = 0; i < plan.n; ++i) own.put(i, io.get(i));
    fewDft(plan, own, ends);
    for (int i = 0; i < plan.n; ++i) io.put(i, own.get(i));
}

template <class T, class Arrays>
inline void mixedDft(const DftPlan<T>& plan, const Arrays& io, Ends<T> ends, T* work)
{
    if constexpr (vectorBytes > 16) {
        if (plan.takesHalves)
            return mixedTransform<lanes<T> / 2>(plan.mixed, plan.tables, io, ends.sign, ends.re, ends.im,
                                                work);
    }
    mixedTransform<lanes<T>>(plan.mixed, plan.tables, io, ends.sign, ends.re, ends.im, work);
}

template <class T, class Arrays>
inline void directDft(const DftPlan<T>& plan, const Arrays& io, Ends<T> ends)
{
    if constexpr (vectorBytes == 64 && sizeof(T) == 4) {
        if (plan.n / 2 < lanes<T>)
            return directTransform<lanes<T> / 2>(plan.n, plan.powers, plan.factors, io, ends.sign, ends.re,
                                                 ends.im);
    }
    directTransform<lanes<T>>(plan.n, plan.powers, plan.factors, io, ends.sign, ends.re, ends.im);
}

template <class T>
void transformInPlace(const DftPlan<T>& plan, T* pairs, T* work);

// As a convolution (L. I. Bluestein 1968): with c[n] = e^(-pi i n^2 / N), and n k = (n^2 + k^2 - (k - n)^2) / 2, point k is
// c[k] times the sum of c[n] x[n] conj(c[k - n]). The inverse transform of the product is the forward one of its
// conjugate.
template <class T, class Arrays>
inline void chirpDft(const DftPlan<T>& plan, const Arrays& io, Ends<T> ends, T* work)
{
    const std::ptrdiff_t n = plan.n, length = plan.inner->n;
    T* innerWork = work + wholeLines(2 * bytes<T> * length) / bytes<T>;
    const PairedArrays<T, false> own{work, work};
    const auto pairOf = [](const T* p, std::ptrdiff_t i) { return Cx<T>{p[2 * i], p[2 * i + 1]}; };
    for (std::ptrdiff_t i = 0; i < n; ++i) {
        const Cx<T> x = io.get(i);
        own.put(i, times(Cx<T>{x.re, x.im * ends.sign}, pairOf(plan.chirp, i)));
    }
    std::fill(work + 2 * n, work + 2 * length, T{});
    transformInPlace(*plan.inner, work, innerWork);
    for (std::ptrdiff_t k = 0; k < length; ++k) {
        const Cx<T> x = times(own.get(k), pairOf(plan.spectrum, k));
        own.put(k, {x.re, -x.im});
    }
    transformInPlace(*plan.inner, work, innerWork);
    for (std::ptrdiff_t k = 0; k < n; ++k) {
        const Cx<T> x = own.get(k), y = times(Cx<T>{x.re, -x.im}, pairOf(plan.chirp, k));
        io.put(k, {y.re * ends.re, y.im * ends.im});
    }
}

// All ways but that of the power of two, which has ends of its own.
template <class T, class Arrays>
inline void transformByPlan(const DftPlan<T>& plan, const Arrays& io, Ends<T> ends, T* work)
{
    switch (plan.way) {
    case Way::short_:
        return shortDft(plan.n, io, ends);
    case Way::few:
        return fewDft(plan, io, ends);
    case Way::mixed:
        return mixedDft(plan, io, ends, work);
    case Way::direct:
        return directDft(plan, io, ends);
    default:
        return chirpDft(plan, io, ends, work);
    }
}

// The transform of pairs, or its inverse, times the factor where there is one.
template <class T>
[[gnu::noinline]] void dftOfPairs(const DftPlan<T>& plan, const T* src, T* dst, bool inverse, const T* factor,
                                  T* work)
{
    if (plan.way != Way::power)
        return transformByPlan(plan, PairedArrays<T, false>{src, dst}, Ends<T>(inverse, factor), work);
    const int order = plan.power->order;
    if (inverse)
        complexTransform(*plan.power, order, order, PairedArrays<T, true>{src, dst}, factor, work);
    else
        complexTransform(*plan.power, order, order, PairedArrays<T, false>{src, dst}, factor, work);
}

// The same of parts apart; the inverse is that of arrays in exchanged places.
template <class T>
[[gnu::noinline]] void dftOfParts(const DftPlan<T>& plan, const SplitArrays<T>& io, const T* factor, T* work)
{
    if (plan.way == Way::power)
        complexTransform(*plan.power, plan.power->order, plan.power->order, io, factor, work);
    else
        transformByPlan(plan, io, Ends<T>(false, factor), work);
}

template <class T>
void transformInPlace(const DftPlan<T>& plan, T* pairs, T* work)
{
    dftOfPairs<T>(plan, pairs, pairs, false, nullptr, work);
}

// Fills the tables, with scratch memory of initBytesOf().
template <class T>
inline void fillChirp(const DftPlan<T>& plan, Zor8u* scratch)
{
    const std::int64_t n = plan.n, length = plan.inner->n;
    const auto put = [](T* p, std::int64_t i, Cx<T> v) { p[2 * i] = v.re, p[2 * i + 1] = v.im; };
    for (std::int64_t i = 0; i < n; ++i) put(plan.chirp, i, rootOfUnity<T>(i * i % (2 * n), 2 * n));
    std::fill_n(plan.spectrum, 2 * length, T{});
    const T scale = T(1) / static_cast<T>(length);
    for (std::int64_t i = 0; i < n; ++i) {
        const Cx<T> v = {plan.chirp[2 * i] * scale, -plan.chirp[2 * i + 1] * scale};
        put(plan.spectrum, i, v);
        if (i > 0) put(plan.spectrum, length - i, v);
    }
    transformInPlace(*plan.inner, plan.spectrum, reinterpret_cast<T*>(scratch));
}

template <class T>
void fillPlan(DftPlan<T>& plan, Zor8u* scratch)
{
    const auto root = [](std::int64_t k, std::int64_t n) { return rootOfUnity<T>(k, n); };
    switch (plan.way) {
    case Way::short_:
        return;
    case Way::few:
        return fillFew(plan.rows, plan.columns, plan.factors, root);
    case Way::power:
        buildFloat<PowerKind<T>>(orderOf(plan.n), ZOR_FFT_SCALE_NONE, ZOR_ALG_ANY, plan.power, scratch);
        return;
    case Way::mixed:
        fillTables(plan.mixed.ofRows, plan.tables.ofRows, root);
        fillTables(plan.mixed.ofColumns, plan.tables.ofColumns, root);
        return fillTurn(plan.mixed, plan.takesHalves ? lanes<T> / 2 : lanes<T>, plan.tables.turn, root);
    case Way::direct:
        plan.powers = powersOfRoot(plan.n);
        return fillDirect(plan.n, plan.powers, plan.factors, root);
    case Way::chirp:
        fillPlan(*plan.inner, scratch);
        return fillChirp(plan, scratch);
    }
}

// Compiled once each, in dft_engine32.cpp and dft_engine64.cpp.
#define ZORS_DFT_ENGINE(prefix, T)                                                                           \
    prefix template void dftOfPairs(const DftPlan<T>&, const T*, T*, bool, const T*, T*);                    \
    prefix template void dftOfParts(const DftPlan<T>&, const SplitArrays<T>&, const T*, T*);                 \
    prefix template void fillPlan(DftPlan<T>&, Zor8u*);
ZORS_DFT_ENGINE(extern, Zor32f)
ZORS_DFT_ENGINE(extern, Zor64f)

} // namespace zors::ZORS_VARIANT
