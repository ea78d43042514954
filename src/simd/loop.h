// The shapes of the loops over vectors, each written once.
//
// A loop calls its body with a place: where in the vectors a step stands and how much of them it covers. The
// body passes the place on to the load and store below, which do the right thing for a whole vector, for the
// part that is left at the end, and for a store past the caches. So a kernel is one lambda,
//
//     blocks<lanes<T>>(len, [=](auto at) { store(pDst, at, load(pSrc, at) + load(pDst, at)); });
//
// and neither reads nor writes a byte outside its vectors, whatever their lengths and alignments.
#pragma once

#include "memory.h"

namespace zors::ZORS_VARIANT {

// N elements from index on.
template <int N>
struct Whole {
    static constexpr int lanes = N;
    std::ptrdiff_t index;
};

// Fewer than N elements from index on: the end of a vector, or what lies before an aligned address.
template <int N>
struct Part {
    static constexpr int lanes = N;
    std::ptrdiff_t index;
    int count;
};

// N elements from index on, where the destination is aligned to the native width and too long for the caches.
template <int N>
struct Streamed {
    static constexpr int lanes = N;
    std::ptrdiff_t index;
};

template <class T, int N>
inline Vec<T, N> load(const T* p, Whole<N> at)
{
    return load<N>(p + at.index);
}

template <class T, int N>
inline Vec<T, N> load(const T* p, Streamed<N> at)
{
    return load<N>(p + at.index);
}

template <class T, int N>
inline Vec<T, N> load(const T* p, Part<N> at)
{
    return loadFirst<N>(p + at.index, at.count);
}

template <class T, int N>
inline void store(T* p, Whole<N> at, Vec<T, N> v)
{
    store<N>(p + at.index, v);
}

template <class T, int N>
inline void store(T* p, Streamed<N> at, Vec<T, N> v)
{
    storeStreaming<N>(p + at.index, v);
}

template <class T, int N>
inline void store(T* p, Part<N> at, Vec<T, N> v)
{
    storeFirst<N>(p + at.index, v, at.count);
}

// The base of a case of a function that is seldom asked for: its loop is the plain one, because loops for all cases
// are most of the library's code.
struct Rare {};

template <class Case>
inline constexpr bool isRare = std::is_base_of_v<Rare, Case>;

// Steps of N elements, four at a time while they last, then what is left over. Always inlined: called, it would get
// what the body captures through the stack, and that costs a short vector more than its elements.
template <int N, class Case = void, class Body>
[[gnu::always_inline]] inline void blocks(std::ptrdiff_t len, Body body)
{
    std::ptrdiff_t i = 0;
    if constexpr (!isRare<Case>)
        for (; i + 4 * N <= len; i += 4 * N) {
            body(Whole<N>{i});
            body(Whole<N>{i + N});
            body(Whole<N>{i + 2 * N});
            body(Whole<N>{i + 3 * N});
        }
    for (; i + N <= len; i += N) body(Whole<N>{i});
    if (i < len) body(Part<N>{i, static_cast<int>(len - i)});
}

// A destination of this many bytes is written past the caches. Measured: shorter ones, and their sources, still
// fit into the last level and are faster through it.
inline constexpr std::ptrdiff_t streamedBytes = std::ptrdiff_t{12} << 20;

template <int N, class Body>
inline void streamedBlocks(std::ptrdiff_t head, std::ptrdiff_t len, Body body)
{
    // A round for each end, so that both are one piece of code: it is not short.
    std::ptrdiff_t i = 0;
    for (std::ptrdiff_t end = head; i < len; end = len - i) {
        if (end > 0) body(Part<N>{i, static_cast<int>(end)});
        i += end;
        for (; i + N <= len; i += N) body(Streamed<N>{i});
    }
    streamFence();
}

// Streams the steps if the destinations reach an aligned address together. Where an element is made of several
// lanes, Each, every step starts with a whole element.
// Kept out of line: the short vectors pay for none of it.
template <int N, int Each, class Body, class T, class... More>
[[gnu::noinline]] bool streamsAligned(std::ptrdiff_t len, Body body, T* pDst, More*... more)
{
    constexpr auto size = static_cast<std::ptrdiff_t>(sizeof(T));
    const auto toAligned = [](const void* p) {
        return -reinterpret_cast<std::intptr_t>(p) & (vectorBytes - 1);
    };
    const std::ptrdiff_t gap = toAligned(pDst);
    if (gap % (Each * size) != 0 || ((toAligned(more) != gap) || ...)) return false;
    streamedBlocks<N>(gap / size, len, body);
    return true;
}

// Runs the steps past the caches if the destinations are long and aligned alike.
template <int N, int Each, class Body, class T, class... More>
[[gnu::always_inline]] inline bool streams(std::ptrdiff_t len, Body body, T* pDst, More*... more)
{
    if (len < streamedBytes / static_cast<std::ptrdiff_t>(sizeof(T))) [[likely]]
        return false;
    return streamsAligned<N, Each>(len, body, pDst, more...);
}

// The same steps for a body that stores to nothing but the destinations. A destination must not be a source as well.
template <int N, int Each = 1, class Case = void, class Body, class... T>
[[gnu::always_inline]] inline void blocksInto(std::ptrdiff_t len, Body body, T*... pDst)
{
    if constexpr (!isRare<Case>)
        if (streams<N, Each>(len, body, pDst...)) return;
    blocks<N, Case>(len, body);
}

} // namespace zors::ZORS_VARIANT
