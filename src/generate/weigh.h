// Multiplying a vector by a symmetric window.
//
// The weights of a stretch are formed once, in order and reversed, and serve the elements from the front and as
// many from the back. So a shape knows nothing of element types, and the product nothing of shapes.
#pragma once

#include "simd/convert.h"
#include "simd/loop.h"
#include "simd/shuffle.h"
#include "vector/lane.h"

#include <algorithm>

namespace zors::ZORS_VARIANT {

// The stretch of weights that is formed at a time.
inline constexpr int stretch = 128;

// The indices from n on, as many as a vector of doubles holds.
inline Vec<double> indices(int n)
{
    return iota<double>() + static_cast<double>(n);
}

// Weights from index n on, as many as a vector of them holds.
template <class W, class Weights>
inline Vec<W> weightsAt(const Weights& weights, int n)
{
    if constexpr (std::is_same_v<W, double>)
        return weights(n);
    else
        return concatenated(toFloat<lanes<double>>(weights(n)),
                            toFloat<lanes<double>>(weights(n + lanes<double>)));
}

// Calls body(place, weights) for the parts of the elements at a place.
template <int Each, int N, class V, class Body>
inline void partsAt(Whole<N> at, V w, Body body)
{
    if constexpr (Each == 1) {
        body(at, w);
    } else {
        const auto twice = interleave(w, w);
        body(Whole<N>{2 * at.index}, twice.first);
        body(Whole<N>{2 * at.index + N}, twice.second);
    }
}

template <int Each, int N, class V, class Body>
inline void partsAt(Part<N> at, V w, Body body)
{
    if constexpr (Each == 1) {
        body(at, w);
    } else {
        const auto twice = interleave(w, w);
        const int parts = 2 * at.count;
        body(Part<N>{2 * at.index, std::min(parts, N)}, twice.first);
        if (parts > N) body(Part<N>{2 * at.index + N, parts - N}, twice.second);
    }
}

// pDst[n] = product(pSrc[n], pWeights[n]), the product of vectors of parts.
template <class T, class W, class Product>
void weigh(const T* pSrc, const W* pWeights, T* pDst, std::ptrdiff_t len, Product product)
{
    const auto* from = asLanes(pSrc);
    auto* to = asLanes(pDst);
    blocks<lanes<W>>(len, [=](auto at) {
        const auto body = [=](auto place, Vec<W> w) { store(to, place, product(load(from, place), w)); };
        partsAt<LaneOf<T>::each>(at, load(pWeights, at), body);
    });
}

// The elements up to the centre with their weights and the same number from the end; the centre has the weight 1.
template <class W, template <class> class Shape, class T, class Product>
void weighBySymmetric(const Shape<W>& shape, const T* pSrc, T* pDst, int len, Product product)
{
    constexpr int step = lanes<W>;
    alignas(vectorBytes) W forwards[stretch], backwards[stretch];
    const int half = len / 2;
    for (int first = 0; first < half; first += stretch) {
        const int count = std::min(stretch, half - first);
        const auto weights = shape.from(first);
        for (int n = 0; n < count; n += step) {
            const Vec<W> w = weightsAt<W>(weights, n);
            store<step>(forwards + n, w);
            store<step>(backwards + stretch - step - n, reversed<sizeof(W)>(w));
        }
        const int mirrored = len - first - count;
        weigh(pSrc + first, forwards, pDst + first, count, product);
        weigh(pSrc + mirrored, backwards + stretch - count, pDst + mirrored, count, product);
    }
    constexpr W one = 1;
    if (len % 2 != 0) weigh(pSrc + half, &one, pDst + half, 1, product);
}

} // namespace zors::ZORS_VARIANT
