#include "element.h"
#include "generator.h"
#include "record.h"

#include "frame/bind.h"

#include <cmath>

namespace zors::ZORS_VARIANT {
namespace {

constexpr int mostPairs = mostSteps / 2;

// Accepted pairs of uniform numbers with their polar factors.
struct Pairs {
    double u1[mostPairs], u2[mostPairs], factor[mostPairs];
    int count;
};

// Draws candidates and keeps those inside the unit circle, without a branch that nobody could predict.
void drawPairs(Generator& generator, int candidates, Pairs& pairs)
{
    alignas(vectorBytes) Zor32s words[mostSteps];
    generator.draw(words, 2 * candidates);
    int count = 0;
    for (int i = 0; i < candidates; ++i) {
        // The decimal value of 2^-31 to 13 digits.
        const double u1 = words[2 * i] * 4.656612873077e-10, u2 = words[2 * i + 1] * 4.656612873077e-10;
        const double s = u1 * u1 + u2 * u2;
        pairs.u1[count] = u1;
        pairs.u2[count] = u2;
        pairs.factor[count] = s;
        count += (s < 1.0) & (s != 0.0);
    }
    for (int i = 0; i < count; ++i) pairs.factor[i] = std::log(pairs.factor[i]) * -2.0 / pairs.factor[i];
    for (int i = 0; i < count; ++i) pairs.factor[i] = std::sqrt(pairs.factor[i]);
    pairs.count = count;
}

template <class T>
struct Gauss {
    static constexpr Zor32s kind = std::is_same_v<T, Zor8u> ? 38 : std::is_same_v<T, Zor16s> ? 39 : 40;

    Gauss(T first, T second, Zor32u start) : seed(start), mean(first), stdDev(second), generator(start) {}

    void fill(T* pDst, int len);
    int drawValues(double* values, int wanted);

    Zor32s tag = kind;
    Zor32u seed;
    T mean, stdDev;
    Generator generator;
    Zor32s fresh = 1; // 0 when the second number of the last pair is pending
    Zor32s owned = 0;
    double factor = 0, u1 = 0, u2 = 0; // of that pair
};
static_assert(sizeof(Gauss<Zor8u>) == 64 && sizeof(Gauss<Zor16s>) == 64 && sizeof(Gauss<Zor32f>) == 72);

// Some of the wanted numbers; returns how many. No candidate is drawn in vain: even if all are accepted, all are
// needed.
template <class T>
int Gauss<T>::drawValues(double* values, int wanted)
{
    const double centre = mean, deviation = stdDev;
    if (!fresh) {
        fresh = 1;
        values[0] = u1 * (deviation * factor) + centre;
        return 1;
    }
    Pairs pairs;
    drawPairs(generator, std::min(mostPairs, (wanted + 1) / 2), pairs);
    for (int i = 0; i < pairs.count; ++i) {
        const double radius = deviation * pairs.factor[i];
        values[2 * i] = pairs.u2[i] * radius + centre;
        values[2 * i + 1] = pairs.u1[i] * radius + centre;
    }
    if (2 * pairs.count <= wanted) return 2 * pairs.count;
    fresh = 0;
    factor = pairs.factor[pairs.count - 1];
    u1 = pairs.u1[pairs.count - 1];
    u2 = pairs.u2[pairs.count - 1];
    return wanted;
}

template <class T>
void Gauss<T>::fill(T* pDst, int len)
{
    double values[2 * mostPairs];
    while (len > 0) {
        const int count = drawValues(values, len);
        blocks<lanes<double>>(count, [&](auto at) { store(pDst, at, toElements<T>(load(values, at))); });
        pDst += count;
        len -= count;
    }
}

template <class T, class State>
ZorStatus gauss(T* pDst, int len, State* pState)
{
    if (const ZorStatus bad = check(pointers(pDst, pState), length(len))) return bad;
    if (const ZorStatus bad = context<Gauss<T>>(pState)) return bad;
    recordOf<Gauss<T>>(pState)->fill(pDst, len);
    return zorStsOk;
}

template <class T>
ZorStatus gaussDirect(T* pDst, int len, T mean, T stdDev, Zor32u* pSeed)
{
    if (const ZorStatus bad = check(pointers(pDst, pSeed), length(len))) return bad;
    Gauss<T> state(mean, stdDev, *pSeed);
    state.fill(pDst, len);
    *pSeed = state.generator.newest();
    return zorStsOk;
}

} // namespace

ZORS_BIND(zorsRandGaussGetSize_8u, getSize<Gauss<Zor8u>>)
ZORS_BIND(zorsRandGaussGetSize_16s, getSize<Gauss<Zor16s>>)
ZORS_BIND(zorsRandGaussGetSize_32f, getSize<Gauss<Zor32f>>)
ZORS_BIND(zorsRandGaussInit_8u, init<Gauss<Zor8u>>)
ZORS_BIND(zorsRandGaussInit_16s, init<Gauss<Zor16s>>)
ZORS_BIND(zorsRandGaussInit_32f, init<Gauss<Zor32f>>)
ZORS_BIND(zorsRandGaussInitAlloc_8u, initAlloc<Gauss<Zor8u>>)
ZORS_BIND(zorsRandGaussInitAlloc_16s, initAlloc<Gauss<Zor16s>>)
ZORS_BIND(zorsRandGaussInitAlloc_32f, initAlloc<Gauss<Zor32f>>)
ZORS_BIND(zorsRandGaussFree_8u, release<Gauss<Zor8u>>)
ZORS_BIND(zorsRandGaussFree_16s, release<Gauss<Zor16s>>)
ZORS_BIND(zorsRandGaussFree_32f, release<Gauss<Zor32f>>)

ZORS_BIND(zorsRandGauss_8u, gauss<Zor8u>)
ZORS_BIND(zorsRandGauss_16s, gauss<Zor16s>)
ZORS_BIND(zorsRandGauss_32f, gauss<Zor32f>)
ZORS_BIND(zorsRandGauss_Direct_16s, gaussDirect<Zor16s>)
ZORS_BIND(zorsRandGauss_Direct_32f, gaussDirect<Zor32f>)
ZORS_BIND(zorsRandGauss_Direct_64f, gaussDirect<Zor64f>)

} // namespace zors::ZORS_VARIANT
