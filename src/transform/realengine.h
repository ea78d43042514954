// The real transforms of any order, by a complex one of half the length.
#pragma once

#include "spec.h"

namespace zors::ZORS_VARIANT {

enum class Packing { ccs, pack, perm };

// For the orders without tables; one number more than they have.
template <class T, bool Forward, int Order>
[[gnu::visibility("hidden")]] inline constexpr std::array<T, 2 * recombinationFactors<T>(Order) + 2>
    smallRecombination = [] {
        constexpr std::ptrdiff_t count = recombinationFactors<T>(Order);
        std::array<T, 2 * count + 2> factors{};
        fillRecombination<Forward>(Order, smallWave<T>, factors.data());
        const Cx<T> last = recombinationFactor<Forward>(smallWave<T>(count, Order));
        factors[2 * count] = last.re;
        factors[2 * count + 1] = last.im;
        return factors;
    }();

template <bool Forward, class T>
inline void recombine(const FloatRecord<T>& spec, const T* from, T* to, Cx<T> zero)
{
    const T* factors = Forward ? spec.realFactors : spec.ccsFactors;
    const int order = spec.order;
    if (order >= firstTwoLevelOrder<T>) {
        const std::ptrdiff_t outer = 2 * (recombinationFactors<T>(order) - innerFactors);
        recombine<Forward>(order, from, to, zero, TwoLevel<T>{factors, factors + outer});
    } else {
        if (order == 2) factors = smallRecombination<T, Forward, 2>.data();
        if (order == 3) factors = smallRecombination<T, Forward, 3>.data();
        if (order == 4) factors = smallRecombination<T, Forward, 4>.data();
        if (order == 5 && !factors) factors = smallRecombination<T, Forward, 5>.data();
        recombine<Forward>(order, from, to, zero, OneLevel<T>{factors});
    }
}

// From the Perm format, in place.
template <Packing packing, class T>
inline void pack(std::ptrdiff_t n, T* p)
{
    const T last = p[1];
    if constexpr (packing == Packing::ccs) {
        p[1] = 0;
        p[n] = last;
        p[n + 1] = 0;
    } else if constexpr (packing == Packing::pack) {
        std::memmove(p + 1, p + 2, static_cast<std::size_t>(n - 2) * sizeof(T));
        p[n - 1] = last;
    }
}

// Sixteen real numbers as eight points in registers: x holds points 0 to 3, y holds 4 to 7. Through memory the parts
// of recombination would wait for one another.
template <class V>
struct Mirror {
    // Points 1 to 4 and points 7 to 4, and back with what point 0 shall be.
    struct Up {
        constexpr int operator()(int i) const { return i + 1; }
    };
    struct Down {
        constexpr int operator()(int i) const { return 3 - i; }
    };
    struct First {
        constexpr int operator()(int i) const { return i == 0 ? 0 : i + 3; }
    };
    struct Second {
        constexpr int operator()(int i) const { return i == 0 ? 3 : 7 - i; }
    };
};

template <class Map, class V>
[[gnu::always_inline]] inline Cx<V> permuted(Cx<V> a, Cx<V> b)
{
    return {permute<Map>(a.re, b.re), permute<Map>(a.im, b.im)};
}

template <class T>
inline void forwardOf16(const T* src, T* dst, const T* factor)
{
    using M = Mirror<Vec<T, 4>>;
    auto x = loadInOrder<4>(src), y = loadInOrder<4>(src + 8);
    eightPoints<T>(x, y);
    if (factor) x = {x.re * *factor, x.im * *factor}, y = {y.re * *factor, y.im * *factor};
    auto up = permuted<typename M::Up>(x, y), down = permuted<typename M::Down>(y, y);
    recombinePair<true>(up, down, loadInOrder<4>(smallRecombination<T, true, 4>.data() + 2));
    const Cx<Vec<T, 4>> ends = {x.re + x.im, x.re - x.im};
    storeInOrder<4>(dst, permuted<typename M::First>(ends, up));
    storeInOrder<4>(dst + 8, permuted<typename M::Second>(up, down));
}

template <class T>
inline void inverseOf16(const T* pairs, T first, T last, T* dst, const T* factor)
{
    using V = Vec<T, 4>;
    using M = Mirror<V>;
    auto up = loadInOrder<4>(pairs), down = loadMirrored<4, 3>(pairs + 6);
    recombinePair<false>(up, down, loadInOrder<4>(smallRecombination<T, false, 4>.data() + 2));
    const Cx<V> ends = {splat<T, 4>(first + last), splat<T, 4>(first - last)};
    const Cx<V> a = permuted<typename M::First>(ends, up), b = permuted<typename M::Second>(up, down);
    Cx<V> x = {a.im, a.re}, y = {b.im, b.re};
    eightPoints<T>(x, y);
    if (factor) x = {x.re * *factor, x.im * *factor}, y = {y.re * *factor, y.im * *factor};
    storeInOrder<4>(dst, Cx<V>{x.im, x.re});
    storeInOrder<4>(dst + 8, Cx<V>{y.im, y.re});
}

template <Packing packing, class T>
inline void realForward(const FloatRecord<T>& spec, const T* src, T* dst, T* work)
{
    const T* factor = spec.scalesForward ? &spec.factor : nullptr;
    if (spec.order == 0) {
        dst[0] = factor ? src[0] * *factor : src[0];
        if constexpr (packing == Packing::ccs) dst[1] = 0;
        return;
    }
    if constexpr (hasFourLanes<T>) {
        if (spec.order == 4) {
            forwardOf16(src, dst, factor);
            return pack<packing>(16, dst);
        }
    }
    complexTransform(spec, spec.order - 1, spec.order - 1, PairedArrays<T, false>{src, dst}, factor, work);
    recombine<true>(spec, dst, dst, {dst[0] + dst[1], dst[0] - dst[1]});
    pack<packing>(std::ptrdiff_t{1} << spec.order, dst);
}

template <Packing packing, class T>
inline void realInverse(const FloatRecord<T>& spec, const T* src, T* dst, T* work)
{
    const T* factor = spec.scalesInverse ? &spec.factor : nullptr;
    if (spec.order == 0) {
        dst[0] = factor ? src[0] * *factor : src[0];
        return;
    }
    const std::ptrdiff_t n = std::ptrdiff_t{1} << spec.order;
    const T first = src[0];
    const T last = src[packing == Packing::ccs ? n : packing == Packing::pack ? n - 1 : 1];
    if constexpr (hasFourLanes<T>) {
        if (spec.order == 4)
            return inverseOf16(packing == Packing::pack ? src + 1 : src + 2, first, last, dst, factor);
    }
    if constexpr (packing == Packing::pack) {
        std::memmove(dst + 2, src + 1, static_cast<std::size_t>(n - 2) * sizeof(T));
        src = dst;
    }
    recombine<false>(spec, src, dst, {first + last, first - last});
    complexTransform(spec, spec.order - 1, spec.order - 1, PairedArrays<T, true>{dst, dst}, factor, work);
}

} // namespace zors::ZORS_VARIANT
