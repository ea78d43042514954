#include "simd/bytes24.h"
#include "simd/complex.h"

#include "cases.h"
#include "support/random.h"

namespace zors::ZORS_VARIANT {
namespace {

using test::expect;
using test::expectEqual;
using test::Random;
using test::RandomVector;

template <class T>
Vec<T> randomLanes(Random& random)
{
    return load<lanes<T>>(RandomVector<T>(lanes<T>, 0, random).data());
}

template <class T>
void expectShuffles()
{
    constexpr int n = lanes<T>, size = sizeof(T);
    Random random;
    const Vec<T> a = randomLanes<T>(random), b = randomLanes<T>(random);

    struct Mixed {
        constexpr int operator()(int i) const { return (7 * i + 3) % (2 * n); }
    };
    const auto mixed = permute<Mixed>(a, b);
    const auto joined = interleave(a, b);
    const auto back = deinterleave(joined.first, joined.second);
    T pairs[2 * n];
    store<n>(pairs, joined.first);
    store<n>(pairs + n, joined.second);
    const auto swapped = bitsAs<std::uint8_t>(byteSwapped(bitsAs<T>(a)));
    for (int i = 0; i < n; ++i) {
        const int from = Mixed{}(i);
        expectEqual(mixed[i], from < n ? a[from] : b[from - n], {i});
        expectEqual(pairs[2 * i], a[i], {i});
        expectEqual(pairs[2 * i + 1], b[i], {i});
        expectEqual(back.first[i], a[i], {i});
        expectEqual(back.second[i], b[i], {i});
    }
    for (int i = 0; i < vectorBytes; ++i)
        expectEqual(swapped[i], bitsAs<std::uint8_t>(a)[i / size * size + size - 1 - i % size], {i, size});
}

ZORS_CASE(Shuffle, PermutesInterleavesAndSwaps)
{
    expectShuffles<std::uint16_t>();
    expectShuffles<std::uint32_t>();
    expectShuffles<std::uint64_t>();
}

template <int Size, class T>
void expectReversed()
{
    Random random;
    const auto v = randomLanes<T>(random);
    const auto from = bitsAs<std::uint8_t>(v), to = bitsAs<std::uint8_t>(reversed<Size>(v));
    for (int i = 0; i < vectorBytes; ++i)
        expectEqual(to[i], from[vectorBytes - Size - i / Size * Size + i % Size], {i, Size});
}

ZORS_CASE(Shuffle, ReversesElementsOfEverySize)
{
    expectReversed<1, std::uint8_t>();
    expectReversed<2, std::uint16_t>();
    expectReversed<4, std::uint32_t>();
    expectReversed<8, std::uint64_t>();
    expectReversed<16, std::uint64_t>();
}

// A place of count elements of three bytes, and what it must not touch.
template <class At>
void expect24(At at, int count)
{
    Random random;
    const RandomVector<std::uint8_t> src(3 * (lanes24 + 1), 1, random);
    RandomVector<std::uint8_t> got(3 * (lanes24 + 1), 2, random), want = got;
    const std::uint8_t* p = src.data() + 3 * at.index;
    const auto v = load24(src.data(), at);
    for (int i = 0; i < lanes24; ++i)
        expectEqual(v[i], i < count ? unsigned(p[3 * i] | p[3 * i + 1] << 8 | p[3 * i + 2] << 16) : 0u,
                    {i, count});
    store24(got.data(), at, v | 0xab000000u);
    std::memcpy(want.data() + 3 * at.index, p, static_cast<std::size_t>(3 * count));
    expect(got == want, {count});
}

ZORS_CASE(Bytes24, LoadsAndStoresThreeBytesALane)
{
    expect24(Whole<lanes24>{1}, lanes24);
    for (int count = 1; count < lanes24; ++count) expect24(Part<lanes24>{1, count}, count);
}

template <class At>
void expectPairs(At at, int count)
{
    constexpr int n = lanes<float>;
    float src[4 * n];
    alignas(64) float dst[4 * n];
    for (int i = 0; i < 4 * n; ++i) src[i] = static_cast<float>(i + 1), dst[i] = -1;
    const auto v = loadPairs(src, at);
    storePairs(dst, at, v.second, v.first);
    for (int i = 0; i < 2 * n; ++i) {
        const bool inside = i >= at.index && i < at.index + count;
        expectEqual(dst[2 * i], inside ? src[2 * i + 1] : -1, {i, count});
        expectEqual(dst[2 * i + 1], inside ? src[2 * i] : -1, {i, count});
    }
}

ZORS_CASE(Complex, LoadsAndStoresPairs)
{
    constexpr int n = lanes<float>;
    expectPairs(Whole<n>{1}, n);
    expectPairs(Streamed<n>{n}, n);
    for (int count = 1; count < n; ++count) expectPairs(Part<n>{1, count}, count);
}

} // namespace
} // namespace zors::ZORS_VARIANT
