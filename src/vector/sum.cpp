#include "frame/bind.h"
#include "quotient.h"
#include "simd/check.h"
#include "simd/reduce.h"
#include "totals.h"

namespace zors::ZORS_VARIANT {
namespace {

// In double precision.
template <class T>
struct PreciseSum {
    static constexpr int lanes = 32, step = ZORS_VARIANT::lanes<Zor64f>;
    Lanes<Zor64f, lanes> sum;

    void add(int j, Vec<T, step> v) { sum.part[j] += toDouble<step>(v); }
};

// In single precision.
struct FastSum {
    static constexpr int lanes = 64, step = ZORS_VARIANT::lanes<Zor32f>;
    Lanes<Zor32f, lanes> sum;

    void add(int j, Vec<Zor32f> v) { sum.part[j] += v; }
};

constexpr int fastBlock = 1024;

template <class T>
Totals<T, Zor64f> preciseTotals(const T* pSrc, int len)
{
    PreciseSum<Lane<T>> kernel;
    reduce(kernel, asLanes(pSrc), laneCount<T>(len));
    return kernel.sum.template sum<LaneOf<T>::each>();
}

template <class T>
Totals<T, Zor64f> fastTotals(const T* pSrc, int len)
{
    Totals<T, Zor64f> totals{};
    reduceBlocks<fastBlock * LaneOf<T>::each, FastSum>(
        asLanes(pSrc), laneCount<T>(len),
        [&](const FastSum& kernel) { addTo(totals, kernel.sum.template sum<LaneOf<T>::each>()); });
    return totals;
}

template <class T>
Totals<T, Zor64f> totalsOf(const T* pSrc, int len)
{
    return preciseTotals(pSrc, len);
}

template <class T>
Totals<T, Zor64f> totalsOf(const T* pSrc, int len, ZorHintAlgorithm hint)
{
    return hint == ZOR_ALG_SPEED ? fastTotals(pSrc, len) : preciseTotals(pSrc, len);
}

// The sum of a block fits into 32 bits.
constexpr int integerBlock = 1 << 16;

struct Sum16 {
    static constexpr int step = ZORS_VARIANT::lanes<Zor16s>, lanes = 4 * step;
    Lanes<Zor32s, lanes / 2> sum;

    void add(int j, Vec<Zor16s> v) { sum.part[j] += pairProducts(v, splat<Zor16s>(1)); }
    Totals<Zor16s, Zor32s> sums() const { return sum.sum(); }
};

struct Sum16Complex {
    static constexpr int step = ZORS_VARIANT::lanes<Zor16s>, lanes = 4 * step;
    Lanes<Zor32s, lanes / 2> re, im;

    void add(int j, Vec<Zor16s> v)
    {
        re.part[j] += pairProducts(v, bitsAs<Zor16s>(splat<Zor32u>(1)));
        im.part[j] += pairProducts(v, bitsAs<Zor16s>(splat<Zor32u>(1u << 16)));
    }
    Totals<Zor16sc, Zor32s> sums() const { return {re.sum()[0], im.sum()[0]}; }
};

// As unsigned numbers above the least one.
struct Sum32 {
    static constexpr int step = ZORS_VARIANT::lanes<Zor32s>, lanes = 4 * step;
    static constexpr Zor32s filler = std::numeric_limits<Zor32s>::min();
    UnsignedSum<lanes / 2> offsets;

    void add(int j, Vec<Zor32s> v) { offsets.add(j, bitsAs<Zor64u>(v ^ filler)); }
};

template <class Kernel, class T>
Totals<T, Zor64s> blockTotals(const T* pSrc, int len)
{
    Totals<T, Zor64s> totals{};
    reduceBlocks<integerBlock, Kernel>(asLanes(pSrc), laneCount<T>(len),
                                       [&](const Kernel& kernel) { addTo(totals, kernel.sums()); });
    return totals;
}

Totals<Zor16s, Zor64s> exactTotals(const Zor16s* pSrc, int len)
{
    return blockTotals<Sum16>(pSrc, len);
}

Totals<Zor16sc, Zor64s> exactTotals(const Zor16sc* pSrc, int len)
{
    return blockTotals<Sum16Complex>(pSrc, len);
}

Totals<Zor32s, Zor64s> exactTotals(const Zor32s* pSrc, int len)
{
    Sum32 kernel;
    reduce(kernel, pSrc, len);
    return {static_cast<Zor64s>(kernel.offsets.sum()) + Zor64s{len} * Sum32::filler};
}

// From here down the factor 2^-scaleFactor of the real 16-bit sums is infinite: a sum of 0 gives the lower bound.
constexpr int infiniteFactor = -1024;

template <class T, class R>
ZorStatus sumScaled(const T* pSrc, int len, R* pSum, int scaleFactor)
{
    if (const ZorStatus bad = check(pointers(pSrc, pSum), length(len))) return bad;
    using Part = Lane<R>;
    *pSum = closed<R>(exactTotals(pSrc, len), [=](Zor64s total) {
        if (std::is_same_v<T, Zor16s> && total == 0 && scaleFactor <= infiniteFactor)
            return std::numeric_limits<Part>::min();
        return scaledSum<Part>(total, scaleFactor);
    });
    return zorStsOk;
}

template <class T>
ZorStatus meanScaled(const T* pSrc, int len, T* pMean, int scaleFactor)
{
    if (const ZorStatus bad = check(pointers(pSrc, pMean), length(len))) return bad;
    *pMean = closed<T>(exactTotals(pSrc, len),
                       [=](Zor64s total) { return scaledMean<Lane<T>>(total, len, scaleFactor); });
    return zorStsOk;
}

// The double-precision members take no hint.
template <class T, class... Hint>
ZorStatus sum(const T* pSrc, int len, T* pSum, Hint... hint)
{
    if (const ZorStatus bad = check(pointers(pSrc, pSum), length(len))) return bad;
    *pSum = closed<T>(totalsOf(pSrc, len, hint...), [](Zor64f total) { return static_cast<Lane<T>>(total); });
    return zorStsOk;
}

template <class T, class... Hint>
ZorStatus mean(const T* pSrc, int len, T* pMean, Hint... hint)
{
    if (const ZorStatus bad = check(pointers(pSrc, pMean), length(len))) return bad;
    *pMean = closed<T>(totalsOf(pSrc, len, hint...), [=](Zor64f total) {
        const auto sum = narrowedTo<Lane<T>>(total);
        return static_cast<Lane<T>>(static_cast<Zor64f>(sum) / len);
    });
    return zorStsOk;
}

} // namespace

ZORS_BIND(zorsSum_16s_Sfs, (sumScaled<Zor16s, Zor16s>))
ZORS_BIND(zorsSum_16s32s_Sfs, (sumScaled<Zor16s, Zor32s>))
ZORS_BIND(zorsSum_16sc_Sfs, (sumScaled<Zor16sc, Zor16sc>))
ZORS_BIND(zorsSum_16sc32sc_Sfs, (sumScaled<Zor16sc, Zor32sc>))
ZORS_BIND(zorsSum_32s_Sfs, (sumScaled<Zor32s, Zor32s>))
ZORS_BIND(zorsSum_32f, (sum<Zor32f, ZorHintAlgorithm>))
ZORS_BIND(zorsSum_32fc, (sum<Zor32fc, ZorHintAlgorithm>))
ZORS_BIND(zorsSum_64f, sum<Zor64f>)
ZORS_BIND(zorsSum_64fc, sum<Zor64fc>)

ZORS_BIND(zorsMean_16s_Sfs, meanScaled<Zor16s>)
ZORS_BIND(zorsMean_16sc_Sfs, meanScaled<Zor16sc>)
ZORS_BIND(zorsMean_32s_Sfs, meanScaled<Zor32s>)
ZORS_BIND(zorsMean_32f, (mean<Zor32f, ZorHintAlgorithm>))
ZORS_BIND(zorsMean_32fc, (mean<Zor32fc, ZorHintAlgorithm>))
ZORS_BIND(zorsMean_64f, mean<Zor64f>)
ZORS_BIND(zorsMean_64fc, mean<Zor64fc>)

} // namespace zors::ZORS_VARIANT
