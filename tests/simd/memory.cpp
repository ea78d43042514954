#include "simd/memory.h"

#include "cases.h"
#include "support/random.h"

namespace zors::ZORS_VARIANT {
namespace {

using test::expect;
using test::expectEqual;
using test::Random;
using test::RandomVector;

// Every part of a vector of N lanes, from the front and from the back, at an address aligned to a lane only.
template <class T, int N>
void expectParts()
{
    Random random;
    for (int count = 0; count <= N; ++count) {
        const RandomVector<T> memory(N, 1, random);
        const T* p = memory.data();
        const auto whole = load<N>(p), first = loadFirst<N>(p, count), last = loadLast<N>(p, count);
        RandomVector<T> stored(N, 3, random), wanted = stored;
        store<N>(stored.data(), whole);
        std::memcpy(wanted.data(), p, N * sizeof(T));
        expect(stored == wanted);
        for (int i = 0; i < N; ++i) {
            expectEqual(whole[i], p[i], {i});
            expectEqual(first[i], i < count ? p[i] : T{}, {i, count});
            expectEqual(last[i], i >= N - count ? p[i - (N - count)] : T{}, {i, count});
        }

        RandomVector<T> front(N, 1, random), back(N, 1, random), wantFront = front, wantBack = back;
        storeFirst<N>(front.data(), whole, count);
        storeLast<N>(back.data(), whole, count);
        const std::size_t bytes = static_cast<std::size_t>(count) * sizeof(T);
        std::memcpy(wantFront.data(), p, bytes);
        std::memcpy(wantBack.data(), p + N - count, bytes);
        expect(front == wantFront, {count, N, sizeof(T)});
        expect(back == wantBack, {count, N, sizeof(T)});
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
