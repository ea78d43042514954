#include "simd/memory.h"

#include "cases.h"
#include "support/random.h"

namespace zors::ZORS_VARIANT {
namespace {

using test::expect;
using test::expectEqual;
using test::Random;
using test::RandomVector;

// count lanes of v, from the first-th on, are the elements at p, and the others are 0.
template <class T, int N>
void expectLanes(Vec<T, N> v, const T* p, int first, int count)
{
    T want[N] = {};
    std::memcpy(want + first, p, static_cast<std::size_t>(count) * sizeof(T));
    expect(std::memcmp(&v, want, sizeof want) == 0, {first, count, N, sizeof(T)});
}

// Only the first count elements have changed, to those at p.
template <class T>
void expectStored(const RandomVector<T>& stored, RandomVector<T> before, const T* p, int count)
{
    std::memcpy(before.data(), p, static_cast<std::size_t>(count) * sizeof(T));
    expect(stored == before, {count, sizeof(T)});
}

// Every part of a vector of N lanes, from the front and from the back, at an address aligned to a lane only.
template <class T, int N>
void expectParts()
{
    Random random;
    for (int count = 0; count <= N; ++count) {
        const RandomVector<T> memory(N, 1, random);
        const T* p = memory.data();
        const auto whole = load<N>(p);
        expectLanes<T, N>(whole, p, 0, N);
        expectLanes<T, N>(loadFirst<N>(p, count), p, 0, count);
        expectLanes<T, N>(loadLast<N>(p, count), p, N - count, count);

        const RandomVector<T> before(N, 1, random);
        RandomVector<T> stored = before, front = before, back = before;
        store<N>(stored.data(), whole);
        storeFirst<N>(front.data(), whole, count);
        storeLast<N>(back.data(), whole, count);
        expectStored(stored, before, p, N);
        expectStored(front, before, p, count);
        expectStored(back, before, p + N - count, count);
    }
    // Lanes of 8 bytes fill a register or, narrower, do not occur.
    if constexpr (N > 2 && sizeof(T) < 8) expectParts<T, N / 2>();
}

ZORS_CASE(Memory, PartsTouchTheirLanesAndNoOthers)
{
    expectParts<std::uint8_t, lanes<std::uint8_t>>();
    expectParts<std::int16_t, lanes<std::int16_t>>();
    expectParts<std::uint32_t, lanes<std::uint32_t>>();
    expectParts<std::uint64_t, lanes<std::uint64_t>>();
}

ZORS_CASE(Memory, StreamingStoresAVector)
{
    Random random;
    RandomVector<std::uint16_t> got(lanes<std::uint16_t>, 0, random), want = got;
    const auto v = iota<std::uint16_t>();
    storeStreaming<lanes<std::uint16_t>>(got.data(), v);
    streamFence();
    store<lanes<std::uint16_t>>(want.data(), v);
    expect(got == want);
}

} // namespace
} // namespace zors::ZORS_VARIANT
