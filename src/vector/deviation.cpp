#include "frame/bind.h"
#include "quotient.h"
#include "simd/check.h"
#include "simd/reduce.h"

namespace zors::ZORS_VARIANT {
namespace {

template <class Number>
struct Moments {
    Number sum{}, squares{};
};

// In double precision, where the square of a single-precision element is exact.
template <class T>
struct PreciseMoments {
    static constexpr int lanes = 16, step = ZORS_VARIANT::lanes<Zor64f>;
    Lanes<Zor64f, lanes> sum, squares;

    void add(int j, Vec<T, step> v)
    {
        const Vec<Zor64f> wide = toDouble<step>(v);
        sum.part[j] += wide;
        if constexpr (std::is_same_v<T, Zor32f>)
            squares.part[j] = plusExactSquare(squares.part[j], wide);
        else
            squares.part[j] += wide * wide;
    }
};

// In single precision.
struct FastMoments {
    static constexpr int lanes = 32, step = ZORS_VARIANT::lanes<Zor32f>;
    Lanes<Zor32f, lanes> sum, squares;

    void add(int j, Vec<Zor32f> v)
    {
        sum.part[j] += v;
        squares.part[j] += v * v;
    }
};

constexpr int fastBlock = 1024;

// A pair of squares needs 32 bits without a sign; the sum of a block fits into 32 bits.
struct Moments16 {
    static constexpr int step = ZORS_VARIANT::lanes<Zor16s>, lanes = 2 * step;
    Lanes<Zor32s, lanes / 2> sum;
    UnsignedSum<lanes / 4> squares;

    void add(int j, Vec<Zor16s> v)
    {
        sum.part[j] += pairProducts(v, splat<Zor16s>(1));
        squares.add(j, bitsAs<Zor64u>(pairProducts(v, v)));
    }
};

constexpr int integerBlock = 1 << 16;

template <class T>
Moments<Zor64f> momentsOf(const T* pSrc, int len)
{
    PreciseMoments<T> kernel;
    reduce(kernel, pSrc, len);
    return {kernel.sum.sum()[0], kernel.squares.sum()[0]};
}

Moments<Zor64f> momentsOf(const Zor32f* pSrc, int len, ZorHintAlgorithm hint)
{
    if (hint != ZOR_ALG_SPEED) return momentsOf(pSrc, len);
    Moments<Zor64f> total;
    reduceBlocks<fastBlock, FastMoments>(pSrc, len, [&](const FastMoments& block) {
        total.sum += static_cast<Zor64f>(block.sum.sum()[0]);
        total.squares += static_cast<Zor64f>(block.squares.sum()[0]);
    });
    return total;
}

Moments<Zor64s> exactMoments(const Zor16s* pSrc, int len)
{
    Moments<Zor64s> total;
    reduceBlocks<integerBlock, Moments16>(pSrc, len, [&](const Moments16& block) {
        total.sum += block.sum.sum()[0];
        total.squares += static_cast<Zor64s>(block.squares.sum());
    });
    return total;
}

// Rounding may make the radicand of nearly equal elements negative; what is not a number stays so.
Zor64f deviationOf(const Moments<Zor64f>& moments, int len)
{
    const Zor64f n = len, radicand = n * moments.squares - moments.sum * moments.sum;
    return std::sqrt(std::max(radicand, 0.0) / ((n - 1) * n));
}

// The double-precision members take no hint.
template <class T, class... Hint>
ZorStatus stdDev(const T* pSrc, int len, T* pStdDev, Hint... hint)
{
    if (const ZorStatus bad = check(pointers(pSrc, pStdDev), length(len, 2))) return bad;
    *pStdDev = static_cast<T>(deviationOf(momentsOf(pSrc, len, hint...), len));
    return zorStsOk;
}

template <class T>
ZorStatus meanStdDev(const T* pSrc, int len, T* pMean, T* pStdDev)
{
    if (const ZorStatus bad = check(pointers(pSrc, pMean, pStdDev), length(len, 2))) return bad;
    const Moments<Zor64f> moments = momentsOf(pSrc, len);
    *pMean = static_cast<T>(static_cast<Zor64f>(narrowedTo<T>(moments.sum)) / len);
    *pStdDev = static_cast<T>(deviationOf(moments, len));
    return zorStsOk;
}

template <class R>
ZorStatus stdDevScaled(const Zor16s* pSrc, int len, R* pStdDev, int scaleFactor)
{
    if (const ZorStatus bad = check(pointers(pSrc, pStdDev), length(len, 2))) return bad;
    const Moments<Zor64s> moments = exactMoments(pSrc, len);
    *pStdDev = scaledDeviation<R>(moments.sum, moments.squares, len, scaleFactor);
    return zorStsOk;
}

template <class R>
ZorStatus meanStdDevScaled(const Zor16s* pSrc, int len, R* pMean, R* pStdDev, int scaleFactor)
{
    if (const ZorStatus bad = check(pointers(pSrc, pMean, pStdDev), length(len, 2))) return bad;
    const Moments<Zor64s> moments = exactMoments(pSrc, len);
    *pMean = scaledMean<R>(moments.sum, len, scaleFactor);
    *pStdDev = scaledDeviation<R>(moments.sum, moments.squares, len, scaleFactor);
    return zorStsOk;
}

} // namespace

ZORS_BIND(zorsStdDev_16s_Sfs, stdDevScaled<Zor16s>)
ZORS_BIND(zorsStdDev_16s32s_Sfs, stdDevScaled<Zor32s>)
ZORS_BIND(zorsStdDev_32f, (stdDev<Zor32f, ZorHintAlgorithm>))
ZORS_BIND(zorsStdDev_64f, stdDev<Zor64f>)

ZORS_BIND(zorsMeanStdDev_16s_Sfs, meanStdDevScaled<Zor16s>)
ZORS_BIND(zorsMeanStdDev_16s32s_Sfs, meanStdDevScaled<Zor32s>)
ZORS_BIND(zorsMeanStdDev_32f, meanStdDev<Zor32f>)
ZORS_BIND(zorsMeanStdDev_64f, meanStdDev<Zor64f>)

} // namespace zors::ZORS_VARIANT
