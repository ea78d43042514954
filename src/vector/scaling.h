// The scale-factor rule: an exact result is multiplied by 2^-scaleFactor, rounded to nearest with ties to even,
// and saturated. What the factor asks for is found out once a call, and each case has kernels of its own.
#pragma once

#include "set.h"
#include "simd/widen.h"

namespace zors::ZORS_VARIANT {

// The cases: as it is; by a half, the commonest factor for sums; down; up.
struct Unscaled {};
struct Halved {};
struct Down {
    int count;
};
struct Up : Rare {
    int count;
};

// Calls run with the case, or zeroes the destination where every result rounds to 0: above the factor zeroAbove.
template <class T, class Run>
inline void withScale(int scaleFactor, int zeroAbove, T* pDst, std::ptrdiff_t len, Run run)
{
    // From a count of the type's digits on every result but 0 is out of range.
    constexpr int mostUp = std::numeric_limits<T>::digits;
    if (scaleFactor == 0)
        run(Unscaled{});
    else if (scaleFactor == 1)
        run(Halved{});
    else if (scaleFactor > zeroAbove)
        fill(T{0}, pDst, len);
    else if (scaleFactor > 0)
        run(Down{scaleFactor});
    else
        run(Up{{}, scaleFactor < -mostUp ? mostUp : -scaleFactor});
}

// Exact results in lanes that hold them, those of T or wider ones. The saturation of an unscaled or a scaled down
// result is left to the packing; lanes of T itself hold no more than T.
template <class T, Vector V>
inline V scaled(V x, Unscaled)
{
    return x;
}

template <class T, Vector V>
inline V scaled(V x, Halved)
{
    return RoundingShift<ElementOf<V>>(1)(x);
}

template <class T, Vector V>
inline V scaled(V x, Down down)
{
    return RoundingShift<ElementOf<V>>(down.count)(x);
}

template <class T, Vector V>
inline V scaled(V x, Up up)
{
    return shiftedLeft<T>(x, up.count);
}

// Exact sums and differences of two lanes, a bit wider than a lane.
template <class V>
struct Sum {
    V a, b;
    V saturated() const { return saturatedSum(a, b); }
    HalfSum<V> halves() const { return halfSum(a, b); }
};

// b - a
template <class V>
struct Difference {
    V a, b;
    V saturated() const { return saturatedDifference(a, b); }
    HalfSum<V> halves() const { return halfDifference(a, b); }
};

template <class X>
concept Halvable = requires(X x)
{
    x.halves();
};

template <class T, Halvable X>
inline auto scaled(X x, Unscaled)
{
    return x.saturated();
}

template <class T, Halvable X>
inline auto scaled(X x, Halved)
{
    const auto h = x.halves();
    return saturatedSum(h.half, h.half & h.low);
}

template <class T, Halvable X>
inline auto scaled(X x, Down down)
{
    const auto h = x.halves();
    return RoundingShift<ElementOf<decltype(h.half)>>(down.count - 1)(h.half, h.low);
}

template <class T, Halvable X>
inline auto scaled(X x, Up up)
{
    return shiftedLeft<T>(x.saturated(), up.count);
}

// A vector in two parts of wide lanes.
template <class T, class V, class Case>
inline Vec<T> scaled(Pair<V> x, Case scale)
{
    return packed<T>(Pair<V>{scaled<T>(x.first, scale), scaled<T>(x.second, scale)});
}

// Products of complex numbers, their parts in wide lanes. Only one product leaves a lane: the imaginary part of the
// square of least + i least, which is one past the largest value. The largest value is as good there: scaled down it
// rounds to the same, otherwise both saturate.
template <class V>
struct ComplexProducts {
    V re, im;

    ComplexProducts(V re_, V im_) : re(re_), im(im_ ^ maskAs<V>(im_ == least)) {}

private:
    static constexpr auto least = std::numeric_limits<ElementOf<V>>::min();
};

inline ComplexProducts<Vec<std::int32_t>> complexProducts(Vec<std::int16_t> a, Vec<std::int16_t> b)
{
    const auto words = bitsAs<std::uint32_t>(a);
    const auto re = bitsAs<std::int16_t>(words & 0xffffu), im = bitsAs<std::int16_t>(words & 0xffff0000u);
    const auto swapped = bitsAs<std::uint32_t>(b);
    const auto crossed = bitsAs<std::int16_t>(swapped << 16 | swapped >> 16);
    return {pairProducts(re, b) - pairProducts(im, b), pairProducts(a, crossed)};
}

inline ComplexProducts<Vec<std::int64_t>> complexProducts(Vec<std::int32_t> a, Vec<std::int32_t> b)
{
    const auto aIm = oddOntoEven(a), bIm = oddOntoEven(b);
    return {evenProducts(a, b) - evenProducts(aIm, bIm),
            bitsAs<std::int64_t>(wrapping(evenProducts(a, bIm)) + wrapping(evenProducts(aIm, b)))};
}

inline Vec<std::int16_t> joined(Vec<std::int32_t> re, Vec<std::int32_t> im)
{
    return packed<std::int16_t>(unpacked(re, im));
}

inline Vec<std::int32_t> joined(Vec<std::int64_t> re, Vec<std::int64_t> im)
{
    return packed<std::int32_t>(Pair<Vec<std::int64_t>>{re, im});
}

template <class T, class V, class Case>
inline Vec<T> scaled(ComplexProducts<V> x, Case scale)
{
    return joined(scaled<T>(x.re, scale), scaled<T>(x.im, scale));
}

} // namespace zors::ZORS_VARIANT
