// Transforms of any length by their records: complex ones, and real ones by complex ones of half the length.
#pragma once

#include "dft_engine.h"
#include "dft_record.h"
#include "realengine.h"

namespace zors::ZORS_VARIANT {

template <class Record>
inline auto factorOf(const Record& r, bool inverse)
{
    return (inverse ? r.scalesInverse : r.scalesForward) ? &r.factor : nullptr;
}

template <class T>
inline void transformPairs(const DftRecord<T>& r, const T* src, T* dst, bool inverse, T* work)
{
    if (!r.power) return dftOfPairs(r.plan, src, dst, inverse, factorOf(r, inverse), work);
    const T* factor = factorOf(*r.power, inverse);
    const int order = r.power->order;
    if (inverse)
        complexTransform(*r.power, order, order, PairedArrays<T, true>{src, dst}, factor, work);
    else
        complexTransform(*r.power, order, order, PairedArrays<T, false>{src, dst}, factor, work);
}

template <class T>
inline void transformParts(const DftRecord<T>& r, const SplitArrays<T>& io, bool inverse, T* work)
{
    const SplitArrays<T> turned =
        inverse ? SplitArrays<T>{io.srcIm, io.srcRe, io.dstIm, io.dstRe} : SplitArrays<T>{io};
    if (r.power)
        complexTransform(*r.power, r.power->order, r.power->order, turned, factorOf(*r.power, inverse), work);
    else
        dftOfParts(r.plan, turned, factorOf(r, inverse), work);
}

// Recombination, as in recombine.h, of any number of pairs of points.
template <bool Forward, class T>
inline void recombineAny(const T* from, T* to, std::ptrdiff_t half, Cx<T> zero, const T* factors)
{
    constexpr int w = lanes<T>;
    const OneLevel<T> table{factors};
    const std::ptrdiff_t last = (half - 1) / 2;
    std::ptrdiff_t k = 1;
    for (; k + w <= last + 1; k += w) {
        const std::ptrdiff_t mirror = 2 * (half - k - w + 1);
        auto x = loadInOrder<w>(from + 2 * k), y = loadMirrored<w, w - 1>(from + mirror);
        recombinePair<Forward>(x, y, table.template vector<Forward, w>(k));
        storeInOrder<w>(to + 2 * k, x);
        storeMirrored<w, w - 1>(to + mirror, y);
    }
    for (; k <= last; ++k) {
        const std::ptrdiff_t mirror = 2 * (half - k);
        Cx<T> x = {from[2 * k], from[2 * k + 1]}, y = {from[mirror], from[mirror + 1]};
        recombinePair<Forward>(x, y, table.template scalar<Forward>(k));
        to[2 * k] = x.re, to[2 * k + 1] = x.im;
        to[mirror] = y.re, to[mirror + 1] = y.im;
    }
    to[0] = zero.re;
    to[1] = zero.im;
    if (half % 2 == 0) putMiddle<Forward>(from + half, to + half);
}

// Points 1, 2, ... of an odd spectrum stand behind the real number of point 0, or behind a pair.
template <Packing packing>
inline constexpr std::ptrdiff_t firstOddPair = packing == Packing::ccs ? 2 : 1;

// Odd numbers of real points as complex ones, of which only a half of the spectrum is kept.
template <Packing packing, class T>
struct OddForward {
    const T* src;
    T* dst;
    std::ptrdiff_t n;

    Cx<T> get(std::ptrdiff_t i) const { return {src[i], 0}; }
    void put(std::ptrdiff_t k, Cx<T> v) const
    {
        if (k > n / 2) return;
        T* to = dst + firstOddPair<packing> + 2 * (k - 1);
        if (k > 0) to[0] = v.re, to[1] = v.im;
        if (k == 0) dst[0] = v.re;
        if (k == 0 && packing == Packing::ccs) dst[1] = 0;
    }
};

template <Packing packing, class T>
struct OddInverse {
    const T* src;
    T* dst;
    std::ptrdiff_t n;

    Cx<T> get(std::ptrdiff_t k) const
    {
        if (k == 0) return {src[0], 0};
        const T* from = src + firstOddPair<packing> + 2 * ((k > n / 2 ? n - k : k) - 1);
        return {from[0], k > n / 2 ? -from[1] : from[1]};
    }
    void put(std::ptrdiff_t i, Cx<T> v) const { dst[i] = v.re; }
};

// Passes need the points side by side; the other ways take them one by one.
template <class T, class Arrays>
inline void oddTransform(const DftRecord<T>& r, const Arrays& io, bool inverse, T* work)
{
    const DftPlan<T>& plan = r.plan;
    const T* factor = factorOf(r, inverse);
    const Ends<T> ends(inverse, factor);
    switch (plan.way) {
    case Way::short_:
        return shortDft(plan.n, io, ends);
    case Way::direct:
        return directDft(plan, io, ends);
    case Way::chirp:
        return chirpDft(plan, io, ends, work);
    default:
        const PairedArrays<T, false> own{work, work};
        for (std::ptrdiff_t i = 0; i < r.n; ++i) own.put(i, io.get(i));
        dftOfPairs<T>(plan, work, work, inverse, factor, work + oddRoomBytes<T>(r.n) / bytes<T>);
        for (std::ptrdiff_t i = 0; i < r.n; ++i) io.put(i, own.get(i));
    }
}

template <Packing packing, class T>
inline void realDftForward(const DftRecord<T>& r, const T* src, T* dst, T* work)
{
    if (r.power) return realForward<packing>(*r.power, src, dst, work);
    if (r.n % 2) return oddTransform(r, OddForward<packing, T>{src, dst, r.n}, false, work);
    dftOfPairs(r.plan, src, dst, false, factorOf(r, false), work);
    recombineAny<true>(dst, dst, r.n / 2, {dst[0] + dst[1], dst[0] - dst[1]}, r.forwardFactors);
    pack<packing>(r.n, dst);
}

template <Packing packing, class T>
inline void realDftInverse(const DftRecord<T>& r, const T* src, T* dst, T* work)
{
    if (r.power) return realInverse<packing>(*r.power, src, dst, work);
    if (r.n % 2) return oddTransform(r, OddInverse<packing, T>{src, dst, r.n}, true, work);
    const std::ptrdiff_t n = r.n;
    const T first = src[0], last = src[packing == Packing::ccs ? n : packing == Packing::pack ? n - 1 : 1];
    if constexpr (packing == Packing::pack) {
        std::memmove(dst + 2, src + 1, static_cast<std::size_t>(n - 2) * sizeof(T));
        src = dst;
    }
    recombineAny<false>(src, dst, n / 2, {first + last, first - last}, r.inverseFactors);
    dftOfPairs(r.plan, static_cast<const T*>(dst), dst, true, factorOf(r, true), work);
}

// Numbers in a spectrum; CCS has the zeros as well.
template <Packing packing>
constexpr std::ptrdiff_t spectrumNumbers(std::ptrdiff_t n)
{
    return packing == Packing::ccs ? n / 2 * 2 + 2 : n;
}

} // namespace zors::ZORS_VARIANT
