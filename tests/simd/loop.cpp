#include "simd/loop.h"

#include "cases.h"
#include "support/random.h"

#include <algorithm>
#include <vector>

namespace zors::ZORS_VARIANT {
namespace {

using test::expect;
using test::expectEqual;

// Counts how often the places of a loop cover each element.
struct Coverage {
    explicit Coverage(std::ptrdiff_t len) : times(static_cast<std::size_t>(len)) {}

    template <class At>
    void operator()(At at)
    {
        int count = At::lanes;
        if constexpr (requires { at.count; }) {
            count = at.count;
            expect(count > 0 && count < At::lanes, {count});
        }
        const auto len = static_cast<std::ptrdiff_t>(times.size());
        if (!expect(at.index >= 0 && at.index + count <= len, {at.index, count, len})) return;
        for (int i = 0; i < count; ++i) ++times[static_cast<std::size_t>(at.index + i)];
    }

    bool once() const
    {
        return std::all_of(times.begin(), times.end(), [](int t) { return t == 1; });
    }

    std::vector<signed char> times;
};

template <int N>
void expectBlocks()
{
    for (std::ptrdiff_t len = 0; len <= 9 * N; ++len) {
        Coverage coverage(len);
        blocks<N>(len, [&](auto at) { coverage(at); });
        expect(coverage.once(), {len, N});
    }
}

ZORS_CASE(Loop, BlocksCoverEachElementOnce)
{
    expectBlocks<lanes<std::uint8_t>>();
    expectBlocks<lanes<std::uint16_t>>();
    expectBlocks<lanes<std::uint64_t>>();
}

// The number of streamed steps of a loop into some destinations, whose memory it never reads.
template <int N, class T, class... More>
std::ptrdiff_t streamedSteps(std::ptrdiff_t len, T* pDst, More*... more)
{
    Coverage coverage(len);
    std::ptrdiff_t steps = 0;
    const auto body = [&]<class At>(At at) {
        coverage(at);
        if constexpr (std::is_same_v<At, Streamed<N>>) {
            ++steps;
            expectEqual(reinterpret_cast<std::uintptr_t>(pDst + at.index) % vectorBytes, 0u, {len});
        }
    };
    blocksInto<N>(len, body, pDst, more...);
    expect(coverage.once(), {len});
    return steps;
}

// A place for T so many bytes past an aligned address.
template <class T>
T* placeAt(std::intptr_t bytes)
{
    return reinterpret_cast<T*>(std::intptr_t{1} << 40 | bytes);
}

template <class T>
void expectStreamed()
{
    constexpr int n = lanes<T>, size = sizeof(T);
    constexpr std::ptrdiff_t least = streamedBytes / size;
    expectEqual(streamedSteps<n>(least - 1, placeAt<T>(0)), 0);
    for (const std::ptrdiff_t len : {least, least + 1, least + n - 1}) {
        expectEqual(streamedSteps<n>(len, placeAt<T>(0)), len / n);
        for (const int head : {1, n / 2, n - 1})
            expectEqual(streamedSteps<n>(len, placeAt<T>((n - head) * size)), (len - head) / n);
    }
}

ZORS_CASE(Loop, BlocksIntoStreamLongDestinations)
{
    static_assert(streamedBytes <= test::longBytes, "no test of a public function would be streamed");
    for (std::ptrdiff_t len = 0; len < 300; ++len)
        expectEqual(streamedSteps<16>(len, placeAt<char>(1)), 0, {len});
    expectStreamed<std::uint16_t>();
    expectStreamed<std::uint64_t>();
}

ZORS_CASE(Loop, BlocksIntoStreamOnlyWhatReachesAlignedAddresses)
{
    constexpr int n = lanes<float>;
    constexpr std::ptrdiff_t len = streamedBytes / 4 + 1;
    struct Pair32 {
        float re, im;
    };
    expectEqual(streamedSteps<n>(len, placeAt<Pair32>(4)), 0);
    expect(streamedSteps<n>(len, placeAt<Pair32>(8)) > 0);
    expectEqual(streamedSteps<n>(len, placeAt<float>(4), placeAt<float>(8)), 0);
    expect(streamedSteps<n>(len, placeAt<float>(4), placeAt<float>(4 + vectorBytes)) > 0);
}

ZORS_CASE(Loop, PlacesLoadAndStoreWhatTheyCover)
{
    constexpr int n = lanes<std::int32_t>;
    alignas(64) std::int32_t src[3 * n], dst[3 * n];
    for (int i = 0; i < 3 * n; ++i) src[i] = i + 1, dst[i] = -1;
    store(dst, Whole<n>{0}, load(src, Whole<n>{0}));
    store(dst, Streamed<n>{n}, load(src, Streamed<n>{n}));
    store(dst, Part<n>{2 * n, n - 1}, load(src, Part<n>{2 * n, n - 1}));
    for (int i = 0; i < 3 * n; ++i) expectEqual(dst[i], i < 3 * n - 1 ? i + 1 : -1, {i});
}

} // namespace
} // namespace zors::ZORS_VARIANT
