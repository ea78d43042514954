#include "element.h"
#include "generator.h"
#include "record.h"

#include "frame/bind.h"

namespace zors::ZORS_VARIANT {
namespace {

template <class T>
struct Uniform {
    static constexpr Zor32s kind = std::is_same_v<T, Zor8u> ? 35 : std::is_same_v<T, Zor16s> ? 36 : 37;

    Uniform(T first, T second, Zor32u start) : seed(start), low(first), high(second), generator(start)
    {
        const auto least = static_cast<double>(low), most = static_cast<double>(high);
        mean = (least + most) * 0.5;
        scale = (most - least) * 2.3283064365387e-10; // 2^-32 to 14 digits
    }

    void fill(T* pDst, int len);

    Zor32s tag = kind;
    Zor32u seed;
    T low, high;
    double mean, scale;
    Generator generator;
    Zor32s owned = 0;
};
static_assert(sizeof(Uniform<Zor8u>) == 56 && sizeof(Uniform<Zor16s>) == 56 && sizeof(Uniform<Zor32f>) == 56);

template <class T>
void Uniform<T>::fill(T* pDst, int len)
{
    // Few enough words that the processor converts some while it draws the next ones.
    constexpr int steps = 32;
    alignas(vectorBytes) Zor32s words[steps];
    for (; len > 0; pDst += steps, len -= steps) {
        const int count = std::min(steps, len);
        generator.draw(words, count);
        blocks<lanes<double>>(count, [&](auto at) {
            store(pDst, at, toElements<T>(mean + scale * toDouble<lanes<double>>(load(words, at))));
        });
    }
}

template <class T, class State>
ZorStatus uniform(T* pDst, int len, State* pState)
{
    if (const ZorStatus bad = check(pointers(pDst, pState), length(len))) return bad;
    if (const ZorStatus bad = context<Uniform<T>>(pState)) return bad;
    recordOf<Uniform<T>>(pState)->fill(pDst, len);
    return zorStsOk;
}

template <class T>
ZorStatus uniformDirect(T* pDst, int len, T low, T high, Zor32u* pSeed)
{
    if (const ZorStatus bad = check(pointers(pDst, pSeed), length(len))) return bad;
    Uniform<T> state(low, high, *pSeed);
    state.fill(pDst, len);
    *pSeed = state.generator.newest();
    return zorStsOk;
}

} // namespace

ZORS_BIND(zorsRandUniformGetSize_8u, getSize<Uniform<Zor8u>>)
ZORS_BIND(zorsRandUniformGetSize_16s, getSize<Uniform<Zor16s>>)
ZORS_BIND(zorsRandUniformGetSize_32f, getSize<Uniform<Zor32f>>)
ZORS_BIND(zorsRandUniformInit_8u, init<Uniform<Zor8u>>)
ZORS_BIND(zorsRandUniformInit_16s, init<Uniform<Zor16s>>)
ZORS_BIND(zorsRandUniformInit_32f, init<Uniform<Zor32f>>)
ZORS_BIND(zorsRandUniformInitAlloc_8u, initAlloc<Uniform<Zor8u>>)
ZORS_BIND(zorsRandUniformInitAlloc_16s, initAlloc<Uniform<Zor16s>>)
ZORS_BIND(zorsRandUniformInitAlloc_32f, initAlloc<Uniform<Zor32f>>)
ZORS_BIND(zorsRandUniformFree_8u, release<Uniform<Zor8u>>)
ZORS_BIND(zorsRandUniformFree_16s, release<Uniform<Zor16s>>)
ZORS_BIND(zorsRandUniformFree_32f, release<Uniform<Zor32f>>)

ZORS_BIND(zorsRandUniform_8u, uniform<Zor8u>)
ZORS_BIND(zorsRandUniform_16s, uniform<Zor16s>)
ZORS_BIND(zorsRandUniform_32f, uniform<Zor32f>)
ZORS_BIND(zorsRandUniform_Direct_16s, uniformDirect<Zor16s>)
ZORS_BIND(zorsRandUniform_Direct_32f, uniformDirect<Zor32f>)
ZORS_BIND(zorsRandUniform_Direct_64f, uniformDirect<Zor64f>)

} // namespace zors::ZORS_VARIANT
