#include "frame/bind.h"
#include "simd/bytes24.h"
#include "simd/check.h"

namespace zors::ZORS_VARIANT {
namespace {

// A vector of elements of Size bytes as one of units that a lane can hold.
template <int Size>
struct Units {
    using type = typename UnsignedOf<(Size < 8 ? Size : 8)>::type;
    static constexpr int each = Size / static_cast<int>(sizeof(type));
    static constexpr int step = lanes<type>;
};

// The units that stand as far from the end as a place stands from the start, reversed.
template <int Size, class T, int N>
Vec<T> loadMirrored(const T* pEnd, Part<N> at)
{
    return reversed<Size>(loadLast<N>(pEnd - at.index - at.count, at.count));
}

template <int Size, class T, class At>
Vec<T> loadMirrored(const T* pEnd, At at)
{
    return reversed<Size>(load<At::lanes>(pEnd - at.index - At::lanes));
}

template <class T>
ZorStatus flip(const T* pSrc, T* pDst, int len)
{
    if (const ZorStatus bad = check(pointers(pSrc, pDst), length(len))) return bad;
    constexpr int size = sizeof(T);
    using U = Units<size>;
    const std::ptrdiff_t n = std::ptrdiff_t{len} * U::each;
    const auto* pEnd = reinterpret_cast<const typename U::type*>(pSrc) + n;
    auto* p = reinterpret_cast<typename U::type*>(pDst);
    blocksInto<U::step, U::each>(
        n, [=](auto at) { store(p, at, loadMirrored<size>(pEnd, at)); }, p);
    return zorStsOk;
}

template <class T>
ZorStatus flipInPlace(T* pSrcDst, int len)
{
    if (const ZorStatus bad = check(pointers(pSrcDst), length(len))) return bad;
    constexpr int size = sizeof(T);
    using U = Units<size>;
    constexpr int n = U::step;
    auto* p = reinterpret_cast<typename U::type*>(pSrcDst);
    std::ptrdiff_t first = 0, end = std::ptrdiff_t{len} * U::each;
    for (; first + 2 * n <= end; first += n, end -= n) {
        const auto low = load<n>(p + first), high = load<n>(p + end - n);
        store<n>(p + first, reversed<size>(high));
        store<n>(p + end - n, reversed<size>(low));
    }
    // Fewer than n units on either side of the middle element.
    const int side = static_cast<int>(end - first) / U::each / 2 * U::each;
    if (side > 0) {
        const auto low = loadFirst<n>(p + first, side), high = loadLast<n>(p + end - side, side);
        storeFirst<n>(p + first, reversed<size>(high), side);
        storeLast<n>(p + end - side, reversed<size>(low), side);
    }
    return zorStsOk;
}

template <class T>
ZorStatus swapBytes(const T* pSrc, T* pDst, int len)
{
    if (const ZorStatus bad = check(pointers(pSrc, pDst), length(len))) return bad;
    const auto body = [=](auto at) { store(pDst, at, byteSwapped(load(pSrc, at))); };
    if (pSrc == pDst)
        blocks<lanes<T>>(len, body);
    else
        blocksInto<lanes<T>>(len, body, pDst);
    return zorStsOk;
}

template <class T>
ZorStatus swapBytesInPlace(T* pSrcDst, int len)
{
    return swapBytes(static_cast<const T*>(pSrcDst), pSrcDst, len);
}

// Vector K of three that start with an element: a byte comes from two behind it, from its own place or from two
// before it, so that no lane changes its place.
template <int K>
Vec<Zor8u> swapped24(const Zor8u* p)
{
    constexpr int n = vectorBytes;
    struct Middle {
        constexpr int operator()(int i) const { return (K * n + i) % 3 == 1 ? i : n + i; }
    };
    struct Last {
        constexpr int operator()(int i) const { return (K * n + i) % 3 == 2 ? i : n + i; }
    };
    p += K * n;
    const auto firstTwo = permute<Middle>(load<n>(p), load<n>(p + 2));
    return permute<Last>(load<n>(p - 2), firstTwo);
}

ZorStatus swapBytes24(const Zor8u* pSrc, Zor8u* pDst, int len)
{
    if (const ZorStatus bad = check(pointers(pSrc, pDst), length(len))) return bad;
    constexpr int n = vectorBytes;
    const auto few = [=](std::ptrdiff_t from, std::ptrdiff_t count) {
        blocks<lanes24>(count, [p = pSrc + 3 * from, q = pDst + 3 * from](auto at) {
            store24(q, at, byteSwapped(load24(p, at)) >> 8);
        });
    };
    // The threes reach two bytes beyond their elements on either side.
    const int first = len < lanes24 ? len : lanes24;
    few(0, first);
    std::ptrdiff_t i = first;
    for (; i + n < len; i += n) {
        const Zor8u* p = pSrc + 3 * i;
        const auto a = swapped24<0>(p), b = swapped24<1>(p), c = swapped24<2>(p);
        Zor8u* q = pDst + 3 * i;
        store<n>(q, a);
        store<n>(q + n, b);
        store<n>(q + 2 * n, c);
    }
    few(i, len - i);
    return zorStsOk;
}

ZorStatus swapBytes24InPlace(Zor8u* pSrcDst, int len)
{
    return swapBytes24(pSrcDst, pSrcDst, len);
}

} // namespace

ZORS_BIND(zorsFlip_8u, flip<Zor8u>)
ZORS_BIND(zorsFlip_16u, flip<Zor16u>)
ZORS_BIND(zorsFlip_32f, flip<Zor32f>)
ZORS_BIND(zorsFlip_64f, flip<Zor64f>)
ZORS_BIND(zorsFlip_32fc, flip<Zor32fc>)
ZORS_BIND(zorsFlip_64fc, flip<Zor64fc>)
ZORS_BIND(zorsFlip_8u_I, flipInPlace<Zor8u>)
ZORS_BIND(zorsFlip_16u_I, flipInPlace<Zor16u>)
ZORS_BIND(zorsFlip_32f_I, flipInPlace<Zor32f>)
ZORS_BIND(zorsFlip_64f_I, flipInPlace<Zor64f>)
ZORS_BIND(zorsFlip_32fc_I, flipInPlace<Zor32fc>)
ZORS_BIND(zorsFlip_64fc_I, flipInPlace<Zor64fc>)

ZORS_BIND(zorsSwapBytes_16u, swapBytes<Zor16u>)
ZORS_BIND(zorsSwapBytes_24u, swapBytes24)
ZORS_BIND(zorsSwapBytes_32u, swapBytes<Zor32u>)
ZORS_BIND(zorsSwapBytes_64u, swapBytes<Zor64u>)
ZORS_BIND(zorsSwapBytes_16u_I, swapBytesInPlace<Zor16u>)
ZORS_BIND(zorsSwapBytes_24u_I, swapBytes24InPlace)
ZORS_BIND(zorsSwapBytes_32u_I, swapBytesInPlace<Zor32u>)
ZORS_BIND(zorsSwapBytes_64u_I, swapBytesInPlace<Zor64u>)

} // namespace zors::ZORS_VARIANT
