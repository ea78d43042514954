#include "goertzel.h"

#include "frame/bind.h"
#include "integer.h"
#include "simd/check.h"

namespace zors::ZORS_VARIANT {
namespace {

// Frequencies are doubles where the elements are.
template <class T>
using FrequencyOf = std::conditional_t<std::is_same_v<Lane<T>, Zor64f>, Zor64f, Zor32f>;

template <class T>
struct PointOf;
template <>
struct PointOf<Zor16s> : std::type_identity<Zor16sc> {
};
template <>
struct PointOf<Zor32f> : std::type_identity<Zor32fc> {
};
template <>
struct PointOf<Zor64f> : std::type_identity<Zor64fc> {
};
template <class T>
using Point = typename PointOf<Lane<T>>::type;

ZorStatus relativeFrequency(double f)
{
    return require(f >= 0 && f < 1, zorStsBadRelFreq);
}

template <int Count, class T, class... Scale>
void storePoints(const T* pSrc, int len, Point<T>* pVal, const double* frequencies, Scale... scaleFactor)
{
    double sums[2 * Count];
    spectrumPoints<Count>(pSrc, len, frequencies, sums);
    if constexpr (sizeof...(Scale) > 0)
        toIntegers(sums, asLanes(pVal), 2 * Count, scaleFactor...);
    else
        for (int i = 0; i < 2 * Count; ++i) asLanes(pVal)[i] = narrowedTo<Lane<T>>(sums[i]);
}

// Goertz of floating-point elements, of integers, and with a frequency in Q15.
template <class T>
ZorStatus goertz(const T* pSrc, int len, Point<T>* pVal, FrequencyOf<T> rFreq)
{
    if (const ZorStatus bad = check(pointers(pSrc, pVal), length(len), relativeFrequency(rFreq))) return bad;
    const double frequency = rFreq;
    storePoints<1>(pSrc, len, pVal, &frequency);
    return zorStsOk;
}

template <class T>
ZorStatus goertzScaled(const T* pSrc, int len, Point<T>* pVal, int scaleFactor, FrequencyOf<T> rFreq)
{
    if (const ZorStatus bad = check(pointers(pSrc, pVal), length(len), relativeFrequency(rFreq))) return bad;
    const double frequency = rFreq;
    storePoints<1>(pSrc, len, pVal, &frequency, scaleFactor);
    return zorStsOk;
}

Zor32f fromQ15(Zor16s frequency)
{
    return static_cast<Zor32f>(frequency) * 0x1p-15f;
}

template <class T>
ZorStatus goertzQ15(const T* pSrc, int len, Point<T>* pVal, Zor16s rFreqQ15, int scaleFactor)
{
    return goertzScaled(pSrc, len, pVal, scaleFactor, fromQ15(rFreqQ15));
}

// GoertzTwo, the same three. The frequencies are looked at once it is known that they are there.
template <class T, class... Scale>
ZorStatus goertzTwo(const T* pSrc, int len, Point<T>* pVal, const FrequencyOf<T>* pFreq, Scale... scaleFactor)
{
    if (const ZorStatus bad = check(pointers(pSrc, pVal, pFreq), length(len))) return bad;
    const double frequencies[] = {pFreq[0], pFreq[1]};
    if (const ZorStatus bad = check(relativeFrequency(frequencies[0]), relativeFrequency(frequencies[1])))
        return bad;
    storePoints<2>(pSrc, len, pVal, frequencies, scaleFactor...);
    return zorStsOk;
}

template <class T>
ZorStatus goertzTwoScaled(const T* pSrc, int len, Point<T>* pVal, int scaleFactor,
                          const FrequencyOf<T>* pFreq)
{
    return goertzTwo(pSrc, len, pVal, pFreq, scaleFactor);
}

template <class T>
ZorStatus goertzTwoQ15(const T* pSrc, int len, Point<T>* pVal, const Zor16s* pFreqQ15, int scaleFactor)
{
    if (!pFreqQ15) return zorStsNullPointer;
    const FrequencyOf<T> frequencies[] = {fromQ15(pFreqQ15[0]), fromQ15(pFreqQ15[1])};
    return goertzTwo(pSrc, len, pVal, frequencies, scaleFactor);
}

} // namespace

#define ZORS_BIND_GOERTZ(type)                                                                               \
    ZORS_BIND(zorsGoertz_##type, goertz<Zor##type>)                                                          \
    ZORS_BIND(zorsGoertzTwo_##type, goertzTwo<Zor##type>)

ZORS_BIND_GOERTZ(32f)
ZORS_BIND_GOERTZ(64f)
ZORS_BIND_GOERTZ(32fc)
ZORS_BIND_GOERTZ(64fc)
ZORS_BIND(zorsGoertz_16s_Sfs, goertzScaled<Zor16s>)
ZORS_BIND(zorsGoertz_16sc_Sfs, goertzScaled<Zor16sc>)
ZORS_BIND(zorsGoertzQ15_16sc_Sfs, goertzQ15<Zor16sc>)
ZORS_BIND(zorsGoertzTwo_16sc_Sfs, goertzTwoScaled<Zor16sc>)
ZORS_BIND(zorsGoertzTwoQ15_16sc_Sfs, goertzTwoQ15<Zor16sc>)

} // namespace zors::ZORS_VARIANT
