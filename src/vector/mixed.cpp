// Arithmetic on sources of different types, and products added to what the destination holds.
#include "frame/bind.h"
#include "shapes.h"
#include "simd/round.h"

#include <cmath>

namespace zors::ZORS_VARIANT {
namespace {

// Runs operation(a, b, c) on both sources and the old content of the destination, and the scale factor's case on
// its result.
template <int zeroAbove, class A, class B, class T, class Operation>
void accumulate(const A* pSrc1, const B* pSrc2, T* pSrcDst, int len, int scaleFactor, Operation operation)
{
    using L = Lane<T>;
    withScale(scaleFactor, zeroAbove, pSrcDst, len, [=](auto scale) {
        blocks<lanes<L>, decltype(scale)>(len, [=](auto at) {
            store(pSrcDst, at,
                  scaled<L>(operation(load(pSrc1, at), load(pSrc2, at), load(pSrcDst, at)), scale));
        });
    });
}

ZorStatus addProduct16s(const Zor16s* pSrc1, const Zor16s* pSrc2, Zor16s* pSrcDst, int len, int scaleFactor)
{
    if (const ZorStatus bad = check(pointers(pSrc1, pSrc2, pSrcDst), length(len))) return bad;
    accumulate<31>(pSrc1, pSrc2, pSrcDst, len, scaleFactor, [](auto a, auto b, auto c) {
        const auto p = products(a, b), w = widened(c);
        return Pair<Vec<Zor32s>>{w.first + p.first, w.second + p.second};
    });
    return zorStsOk;
}

ZorStatus addProduct32s(const Zor32s* pSrc1, const Zor32s* pSrc2, Zor32s* pSrcDst, int len, int scaleFactor)
{
    if (const ZorStatus bad = check(pointers(pSrc1, pSrc2, pSrcDst), length(len))) return bad;
    accumulate<62>(pSrc1, pSrc2, pSrcDst, len, scaleFactor, [](auto a, auto b, auto c) {
        const auto p = products(a, b), w = widened(c);
        return Pair<Vec<Zor64s>>{w.first + p.first, w.second + p.second};
    });
    return zorStsOk;
}

ZorStatus addProduct16s32s(const Zor16s* pSrc1, const Zor16s* pSrc2, Zor32s* pSrcDst, int len,
                           int scaleFactor)
{
    if (const ZorStatus bad = check(pointers(pSrc1, pSrc2, pSrcDst), length(len))) return bad;
    accumulate<32>(pSrc1, pSrc2, pSrcDst, len, scaleFactor, [](auto a, auto b, auto c) {
        return Sum<Vec<Zor32s>>{wideProduct(a, b), c};
    });
    return zorStsOk;
}

template <class T>
ZorStatus addProduct(const T* pSrc1, const T* pSrc2, T* pSrcDst, int len)
{
    if (const ZorStatus bad = check(pointers(pSrc1, pSrc2, pSrcDst), length(len))) return bad;
    const auto a = elements(pSrc1), b = elements(pSrc2), c = elements(pSrcDst);
    combine([=](auto at) { return Multiply::unscaled<T>(a(at), b(at)); }, c, pSrcDst, len, true,
            [](auto product, auto old) { return old + product; });
    return zorStsOk;
}

// Two sources of one type into another. The operation works on lanes widened to the destination's.
template <class S, class T, class Operation>
ZorStatus twoTo(const S* pSrc1, const S* pSrc2, T* pDst, int len, Operation operation)
{
    if (const ZorStatus bad = check(pointers(pSrc1, pSrc2, pDst), length(len))) return bad;
    constexpr int n = lanes<T>;
    blocksInto<n>(
        len, [=](auto at) { store(pDst, at, operation(load(pSrc1, at), load(pSrc2, at))); }, pDst);
    return zorStsOk;
}

constexpr int floats = lanes<Zor32f>;

ZorStatus add8u16u(const Zor8u* pSrc1, const Zor8u* pSrc2, Zor16u* pDst, int len)
{
    return twoTo(pSrc1, pSrc2, pDst, len, [](auto a, auto b) {
        constexpr int n = lanes<Zor16u>;
        return __builtin_convertvector(a, Vec<Zor16u, n>) + __builtin_convertvector(b, Vec<Zor16u, n>);
    });
}

// Sums and differences of 16-bit integers are exact in single precision.
ZorStatus add16s32f(const Zor16s* pSrc1, const Zor16s* pSrc2, Zor32f* pDst, int len)
{
    return twoTo(pSrc1, pSrc2, pDst, len,
                 [](auto a, auto b) { return toFloat<floats>(a) + toFloat<floats>(b); });
}

ZorStatus sub16s32f(const Zor16s* pSrc1, const Zor16s* pSrc2, Zor32f* pDst, int len)
{
    return twoTo(pSrc1, pSrc2, pDst, len,
                 [](auto a, auto b) { return toFloat<floats>(b) - toFloat<floats>(a); });
}

ZorStatus mul16s32f(const Zor16s* pSrc1, const Zor16s* pSrc2, Zor32f* pDst, int len)
{
    return twoTo(pSrc1, pSrc2, pDst, len,
                 [](auto a, auto b) { return toFloat<floats>(a) * toFloat<floats>(b); });
}

ZorStatus add16s32sInPlace(const Zor16s* pSrc, Zor32s* pSrcDst, int len)
{
    if (const ZorStatus bad = check(pointers(pSrc, pSrcDst), length(len))) return bad;
    blocks<lanes<Zor32s>>(len, [=](auto at) {
        const auto wide = __builtin_convertvector(load(pSrc, at), Vec<Zor32s>);
        store(pSrcDst, at, saturatedSum(wide, load(pSrcDst, at)));
    });
    return zorStsOk;
}

ZorStatus mul16s32s(const Zor16s* pSrc1, const Zor16s* pSrc2, Zor32s* pDst, int len, int scaleFactor)
{
    if (const ZorStatus bad = check(pointers(pSrc1, pSrc2, pDst), length(len))) return bad;
    withScale(scaleFactor, 30, pDst, len, [=](auto scale) {
        blocksInto<lanes<Zor32s>, 1, decltype(scale)>(
            len,
            [=](auto at) {
                store(pDst, at, scaled<Zor32s>(wideProduct(load(pSrc1, at), load(pSrc2, at)), scale));
            },
            pDst);
    });
    return zorStsOk;
}

ZorStatus mul16u16s(const Zor16u* pSrc1, const Zor16s* pSrc2, Zor16s* pDst, int len, int scaleFactor)
{
    if (const ZorStatus bad = check(pointers(pSrc1, pSrc2, pDst), length(len))) return bad;
    withScale(scaleFactor, 31, pDst, len, [=](auto scale) {
        combine<decltype(scale)>(elements(pSrc1), elements(pSrc2), pDst, len, pDst == pSrc2,
                                 [=](auto a, auto b) { return scaled<Zor16s>(products(a, b), scale); });
    });
    return zorStsOk;
}

// In double precision the product of two floats is exact, and so is its scaling, save where the result is sure.
ZorStatus mulC32f16s(const Zor32f* pSrc, Zor32f val, Zor16s* pDst, int len, int scaleFactor)
{
    if (const ZorStatus bad = check(pointers(pSrc, pDst), length(len))) return bad;
    constexpr int n = lanes<Zor64f>;
    constexpr int most =
        600; // 2^600 times the smallest product saturates, 2^-600 times the largest is nothing
    const Zor64f factor = std::ldexp(1.0, -std::clamp(scaleFactor, -most, most)), wide = val;
    blocks<n>(len, [=](auto at) {
        store(pDst, at, rounded<Zor16s, Rounding::nearestEven>(toDouble<n>(load(pSrc, at)) * wide * factor));
    });
    return zorStsOk;
}

// Every element of a real vector twice, as a factor of both parts of a complex number.
template <class T>
auto twice(const T* p)
{
    return [p](auto at) { return loadTwice(p, at); };
}

ZorStatus mul32s32sc(const Zor32s* pSrc1, const Zor32sc* pSrc2, Zor32sc* pDst, int len, int scaleFactor)
{
    if (const ZorStatus bad = check(pointers(pSrc1, pSrc2, pDst), length(len))) return bad;
    withScale(
        scaleFactor, Multiply::zeroAbove<Zor32s>, asLanes(pDst), laneCount<Zor32sc>(len), [=](auto scale) {
            combine<decltype(scale)>(twice(pSrc1), elements(pSrc2), pDst, len, pDst == pSrc2,
                                     [=](auto a, auto b) { return scaled<Zor32s>(products(a, b), scale); });
        });
    return zorStsOk;
}

ZorStatus mul32s32scInPlace(const Zor32s* pSrc, Zor32sc* pSrcDst, int len, int scaleFactor)
{
    return mul32s32sc(pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}

ZorStatus mul32f32fc(const Zor32f* pSrc1, const Zor32fc* pSrc2, Zor32fc* pDst, int len)
{
    if (const ZorStatus bad = check(pointers(pSrc1, pSrc2, pDst), length(len))) return bad;
    combine(twice(pSrc1), elements(pSrc2), pDst, len, pDst == pSrc2, [](auto a, auto b) { return a * b; });
    return zorStsOk;
}

ZorStatus mul32f32fcInPlace(const Zor32f* pSrc, Zor32fc* pSrcDst, int len)
{
    return mul32f32fc(pSrc, pSrcDst, pSrcDst, len);
}

} // namespace

ZORS_BIND(zorsAddProduct_16s_Sfs, addProduct16s)
ZORS_BIND(zorsAddProduct_32s_Sfs, addProduct32s)
ZORS_BIND(zorsAddProduct_16s32s_Sfs, addProduct16s32s)
ZORS_BIND(zorsAddProduct_32f, addProduct<Zor32f>)
ZORS_BIND(zorsAddProduct_64f, addProduct<Zor64f>)
ZORS_BIND(zorsAddProduct_32fc, addProduct<Zor32fc>)
ZORS_BIND(zorsAddProduct_64fc, addProduct<Zor64fc>)

ZORS_BIND(zorsAdd_8u16u, add8u16u)
ZORS_BIND(zorsAdd_16s32s_I, add16s32sInPlace)
ZORS_BIND(zorsAdd_16s32f, add16s32f)
ZORS_BIND(zorsSub_16s32f, sub16s32f)
ZORS_BIND(zorsMul_16s32f, mul16s32f)
ZORS_BIND(zorsMul_16s32s_Sfs, mul16s32s)
ZORS_BIND(zorsMul_16u16s_Sfs, mul16u16s)
ZORS_BIND(zorsMulC_32f16s_Sfs, mulC32f16s)
ZORS_BIND(zorsMul_32s32sc_Sfs, mul32s32sc)
ZORS_BIND(zorsMul_32s32sc_ISfs, mul32s32scInPlace)
ZORS_BIND(zorsMul_32f32fc, mul32f32fc)
ZORS_BIND(zorsMul_32f32fc_I, mul32f32fcInPlace)

} // namespace zors::ZORS_VARIANT
