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

// Room for an odd number of real points as complex ones, and the plan's behind it.
template <class T>
class OddRoom {
public:
    OddRoom(const DftRecord<T>& r, T* work)
        : pairs_(r.n <= mostDirectLength ? short_ : work),
          work_(r.n <= mostDirectLength ? work : work + wholeLines(2 * bytes<T> * r.n) / bytes<T>)
    {
    }
    T* pairs() const { return pairs_; }
    T* work() const { return work_; }

private:
    static constexpr int mostDirectLength = 2 * mostDirectHalf + 1;
    alignas(lineBytes) T short_[2 * mostDirectLength];
    T* pairs_;
    T* work_;
};

// Points 1, 2, ... of the spectrum stand behind the real number of point 0, or behind a pair.
template <Packing packing>
inline constexpr std::ptrdiff_t firstOddPair = packing == Packing::ccs ? 2 : 1;

template <Packing packing, class T>
inline void oddForward(const DftRecord<T>& r, const T* src, T* dst, T* work)
{
    const std::ptrdiff_t n = r.n;
    const OddRoom<T> room(r, work);
    T* pairs = room.pairs();
    for (std::ptrdiff_t i = 0; i < n; ++i) pairs[2 * i] = src[i], pairs[2 * i + 1] = 0;
    dftOfPairs(r.plan, pairs, pairs, false, factorOf(r, false), room.work());
    dst[0] = pairs[0];
    if constexpr (packing == Packing::ccs) dst[1] = 0;
    std::copy_n(pairs + 2, n - 1, dst + firstOddPair<packing>);
}

template <Packing packing, class T>
inline void oddInverse(const DftRecord<T>& r, const T* src, T* dst, T* work)
{
    const std::ptrdiff_t n = r.n;
    const OddRoom<T> room(r, work);
    T* pairs = room.pairs();
    pairs[0] = src[0], pairs[1] = 0;
    for (std::ptrdiff_t k = 1; k <= n / 2; ++k) {
        const T* from = src + firstOddPair<packing> + 2 * (k - 1);
        pairs[2 * k] = pairs[2 * (n - k)] = from[0];
        pairs[2 * k + 1] = from[1];
        pairs[2 * (n - k) + 1] = -from[1];
    }
    dftOfPairs(r.plan, pairs, pairs, true, factorOf(r, true), room.work());
    for (std::ptrdiff_t i = 0; i < n; ++i) dst[i] = pairs[2 * i];
}

template <Packing packing, class T>
inline void realDftForward(const DftRecord<T>& r, const T* src, T* dst, T* work)
{
    if (r.power) return realForward<packing>(*r.power, src, dst, work);
    if (r.n % 2) return oddForward<packing>(r, src, dst, work);
    dftOfPairs(r.plan, src, dst, false, factorOf(r, false), work);
    recombineAny<true>(dst, dst, r.n / 2, {dst[0] + dst[1], dst[0] - dst[1]}, r.forwardFactors);
    pack<packing>(r.n, dst);
}

template <Packing packing, class T>
inline void realDftInverse(const DftRecord<T>& r, const T* src, T* dst, T* work)
{
    if (r.power) return realInverse<packing>(*r.power, src, dst, work);
    if (r.n % 2) return oddInverse<packing>(r, src, dst, work);
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
