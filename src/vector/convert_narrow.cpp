// Integers to narrower integers: scaled, rounded to nearest even and saturated.
#include "frame/bind.h"
#include "simd/bytes24.h"
#include "simd/check.h"
#include "simd/group.h"

namespace zors::ZORS_VARIANT {
namespace {

// The destinations: how lanes of S are saturated and stored, and the bits of an element.
template <class S, class D>
struct ToLanes {
    using Element = D;
    static constexpr int step = lanes<D>, bits = 8 * sizeof(D);

    template <class At, int K>
    static void put(D* p, At at, const Group<S, K>& g)
    {
        if constexpr (sizeof(S) == 8)
            store(p, at, packedSaturated(g));
        else
            store(p, at, packed<D>(g));
    }
};

template <class V, class T>
V held(V v, T least, T most)
{
    v = select(v > most, splat(most), v);
    return select(v < least, splat(least), v);
}

template <class S>
struct To24 {
    using Element = Zor8u;
    static constexpr int step = lanes24, bits = 24;

    template <class At>
    static void put(Zor8u* p, At at, const Group<S, 1>& g)
    {
        constexpr S limit = S{1} << (std::is_signed_v<S> ? bits - 1 : bits);
        constexpr S least = std::is_signed_v<S> ? S(0) - limit : 0;
        store24(p, at, (Vec<Zor32u>)held(g.part[0], least, static_cast<S>(limit - 1)));
    }
};

template <class S, class To>
ZorStatus narrow(const S* pSrc, typename To::Element* pDst, int len, int scaleFactor)
{
    if (const ZorStatus bad = check(pointers(pSrc, pDst), length(len))) return bad;
    using V = Vec<S>;
    constexpr bool isSigned = std::is_signed_v<S>;
    constexpr int bits = To::bits, sourceBits = 8 * sizeof(S);
    const auto run = [=](auto operation) {
        blocks<To::step>(len, [=](auto at) { To::put(pDst, at, each(loadGroup(pSrc, at), operation)); });
    };
    if (scaleFactor == 0) {
        run([](V v) { return v; });
    } else if (scaleFactor < 0) {
        // What is held at these limits saturates, what is between them does not wrap.
        const S shift = static_cast<S>(scaleFactor < -bits ? bits : -scaleFactor);
        const S most = std::max<S>(1, static_cast<S>((S{1} << (bits - isSigned)) >> shift));
        const S least = isSigned ? static_cast<S>(-most) : S{0};
        run([=](V v) { return held(v, least, most) << shift; });
    } else if (scaleFactor <= sourceBits - isSigned) {
        run(RoundingShift<S>(scaleFactor));
    } else {
        run([](V) { return V{}; });
    }
    return zorStsOk;
}

ZorStatus convert32s16s(const Zor32s* pSrc, Zor16s* pDst, int len)
{
    return narrow<Zor32s, ToLanes<Zor32s, Zor16s>>(pSrc, pDst, len, 0);
}

} // namespace

ZORS_BIND(zorsConvert_32s16s, convert32s16s)
ZORS_BIND(zorsConvert_32s16s_Sfs, (narrow<Zor32s, ToLanes<Zor32s, Zor16s>>))
ZORS_BIND(zorsConvert_16s8s_Sfs, (narrow<Zor16s, ToLanes<Zor16s, Zor8s>>))
ZORS_BIND(zorsConvert_64s32s_Sfs, (narrow<Zor64s, ToLanes<Zor64s, Zor32s>>))
ZORS_BIND(zorsConvert_32s24s_Sfs, (narrow<Zor32s, To24<Zor32s>>))
ZORS_BIND(zorsConvert_32u24u_Sfs, (narrow<Zor32u, To24<Zor32u>>))

} // namespace zors::ZORS_VARIANT
