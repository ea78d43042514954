#include "frame/bind.h"
#include "simd/check.h"
#include "simd/complex.h"

#include <cstring>
#include <limits>

namespace zors::ZORS_VARIANT {
namespace {

enum class Packing { ccs, pack, perm };

template <class C>
using PartOf = decltype(C::re);

template <class T>
T negated(T value)
{
    if constexpr (std::is_integral_v<T>)
        return value == std::numeric_limits<T>::min() ? std::numeric_limits<T>::max()
                                                      : static_cast<T>(-value);
    else
        return -value;
}

template <class C>
void mirror(const C* src, C* dst, std::ptrdiff_t len)
{
    for (std::ptrdiff_t n = 0; n < len; ++n) {
        const C v = src[len - 1 - n];
        dst[n] = {v.re, negated(v.im)};
    }
}

template <Packing packing, class C>
ZorStatus conj(const PartOf<C>* pSrc, C* pDst, int len)
{
    using T = PartOf<C>;
    if (const ZorStatus bad = check(pointers(pSrc, pDst), length(len))) return bad;
    const std::ptrdiff_t n = len, pairs = (n - 1) / 2, half = n / 2;
    const bool even = n % 2 == 0;
    const std::ptrdiff_t firstPair = packing == Packing::ccs || (packing == Packing::perm && even) ? 2 : 1;
    const T first = pSrc[0];
    const T middle = even ? pSrc[packing == Packing::ccs ? n : packing == Packing::pack ? n - 1 : 1] : T{};
    // The source may be the start of the destination.
    std::memmove(pDst + 1, pSrc + firstPair, static_cast<std::size_t>(pairs) * sizeof(C));
    pDst[0] = {first, 0};
    if (even) pDst[half] = {middle, 0};
    mirror(pDst + 1, pDst + n - pairs, pairs);
    return zorStsOk;
}

template <Packing packing, class C>
ZorStatus conjInPlace(C* pSrcDst, int len)
{
    return conj<packing, C>(reinterpret_cast<const PartOf<C>*>(pSrcDst), pSrcDst, len);
}

template <class C>
ZorStatus conjFlip(const C* pSrc, C* pDst, int len)
{
    if (const ZorStatus bad = check(pointers(pSrc, pDst), length(len))) return bad;
    mirror(pSrc, pDst, len);
    return zorStsOk;
}

// Where the real numbers of a spectrum stand, and the pairs.
template <Packing packing>
struct Places {
    std::ptrdiff_t n;

    bool hasMiddle() const { return n % 2 == 0; }
    std::ptrdiff_t middle() const { return packing == Packing::pack ? n - 1 : 1; }
    std::ptrdiff_t firstPair() const { return packing == Packing::perm && hasMiddle() ? 2 : 1; }
    std::ptrdiff_t pairs() const { return (n - 1) / 2; }
};

struct Product {
    template <class V>
    static Pair<V> of(Pair<V> a, Pair<V> b)
    {
        return {a.first * b.first - a.second * b.second, a.first * b.second + a.second * b.first};
    }
};

struct ProductWithConjugate {
    template <class V>
    static Pair<V> of(Pair<V> a, Pair<V> b)
    {
        return {a.first * b.first + a.second * b.second, a.second * b.first - a.first * b.second};
    }
};

template <Packing packing, class Operation, class T>
ZorStatus mul(const T* pSrc1, const T* pSrc2, T* pDst, int len)
{
    if (const ZorStatus bad = check(pointers(pSrc1, pSrc2, pDst), length(len))) return bad;
    const Places<packing> at{len};
    const T first = pSrc1[0] * pSrc2[0];
    const T middle = at.hasMiddle() ? pSrc1[at.middle()] * pSrc2[at.middle()] : T{};
    const T *a = pSrc1 + at.firstPair(), *b = pSrc2 + at.firstPair();
    T* d = pDst + at.firstPair();
    blocks<lanes<T>>(at.pairs(), [=](auto place) {
        const auto v = Operation::of(loadPairs(a, place), loadPairs(b, place));
        storePairs(d, place, v.first, v.second);
    });
    pDst[0] = first;
    if (at.hasMiddle()) pDst[at.middle()] = middle;
    return zorStsOk;
}

template <Packing packing, class Operation, class T>
ZorStatus mulInPlace(const T* pSrc, T* pSrcDst, int len)
{
    return mul<packing, Operation, T>(pSrc, pSrcDst, pSrcDst, len);
}

// A product of 16-bit numbers, or a sum of two, times 2^-scaleFactor.
Zor16s scaled(Zor64s exact, int scaleFactor)
{
    // Beyond these nothing changes any more: the product has 33 bits.
    const int s = scaleFactor > 40 ? 40 : scaleFactor < -20 ? -20 : scaleFactor;
    if (s > 0)
        exact = (exact + (Zor64s{1} << (s - 1)) - 1 + (exact >> s & 1)) >> s;
    else
        exact *= Zor64s{1} << -s;
    return static_cast<Zor16s>(exact > 32767 ? 32767 : exact < -32768 ? -32768 : exact);
}

template <Packing packing>
ZorStatus mulScaled(const Zor16s* pSrc1, const Zor16s* pSrc2, Zor16s* pDst, int len, int scaleFactor)
{
    if (const ZorStatus bad = check(pointers(pSrc1, pSrc2, pDst), length(len))) return bad;
    const Places<packing> at{len};
    const auto real = [=](std::ptrdiff_t i) { pDst[i] = scaled(Zor64s{pSrc1[i]} * pSrc2[i], scaleFactor); };
    real(0);
    if (at.hasMiddle()) real(at.middle());
    for (std::ptrdiff_t k = 0; k < at.pairs(); ++k) {
        const std::ptrdiff_t i = at.firstPair() + 2 * k;
        const Zor64s a = pSrc1[i], b = pSrc1[i + 1], c = pSrc2[i], d = pSrc2[i + 1];
        pDst[i] = scaled(a * c - b * d, scaleFactor);
        pDst[i + 1] = scaled(a * d + b * c, scaleFactor);
    }
    return zorStsOk;
}

template <Packing packing>
ZorStatus mulScaledInPlace(const Zor16s* pSrc, Zor16s* pSrcDst, int len, int scaleFactor)
{
    return mulScaled<packing>(pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}

} // namespace

#define ZORS_BIND_CONJ(type)                                                                                 \
    ZORS_BIND(zorsConjCcs_##type, (conj<Packing::ccs, Zor##type>))                                           \
    ZORS_BIND(zorsConjPack_##type, (conj<Packing::pack, Zor##type>))                                         \
    ZORS_BIND(zorsConjPerm_##type, (conj<Packing::perm, Zor##type>))                                         \
    ZORS_BIND(zorsConjCcs_##type##_I, (conjInPlace<Packing::ccs, Zor##type>))                                \
    ZORS_BIND(zorsConjPack_##type##_I, (conjInPlace<Packing::pack, Zor##type>))                              \
    ZORS_BIND(zorsConjPerm_##type##_I, (conjInPlace<Packing::perm, Zor##type>))                              \
    ZORS_BIND(zorsConjFlip_##type, conjFlip<Zor##type>)

ZORS_BIND_CONJ(32fc)
ZORS_BIND_CONJ(64fc)
ZORS_BIND_CONJ(16sc)

#define ZORS_BIND_MUL(type)                                                                                  \
    ZORS_BIND(zorsMulPack_##type, (mul<Packing::pack, Product, Zor##type>))                                  \
    ZORS_BIND(zorsMulPerm_##type, (mul<Packing::perm, Product, Zor##type>))                                  \
    ZORS_BIND(zorsMulPack_##type##_I, (mulInPlace<Packing::pack, Product, Zor##type>))                       \
    ZORS_BIND(zorsMulPerm_##type##_I, (mulInPlace<Packing::perm, Product, Zor##type>))                       \
    ZORS_BIND(zorsMulPackConj_##type##_I, (mulInPlace<Packing::pack, ProductWithConjugate, Zor##type>))

ZORS_BIND_MUL(32f)
ZORS_BIND_MUL(64f)
ZORS_BIND(zorsMulPack_16s_Sfs, mulScaled<Packing::pack>)
ZORS_BIND(zorsMulPerm_16s_Sfs, mulScaled<Packing::perm>)
ZORS_BIND(zorsMulPack_16s_ISfs, mulScaledInPlace<Packing::pack>)
ZORS_BIND(zorsMulPerm_16s_ISfs, mulScaledInPlace<Packing::perm>)

} // namespace zors::ZORS_VARIANT
