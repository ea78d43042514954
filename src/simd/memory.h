// Loads and stores at any element alignment: of whole vectors, of the first few lanes of one, and past the
// caches. A partial access touches the bytes of its lanes and no others.
#pragma once

#include "opaque.h"

#include <cstddef>

namespace zors::ZORS_VARIANT {

template <int N, class T>
inline Vec<T, N> load(const T* p)
{
    Vec<T, N> v;
    __builtin_memcpy(&v, p, sizeof v);
    return v;
}

template <int N, class T>
inline void store(T* p, Vec<T, N> v)
{
    __builtin_memcpy(p, &v, sizeof v);
}

#if ZORS_VECTOR_BYTES == 64

// A bit for each of the first count lanes; count up to 64.
inline std::uint64_t firstLanes(int count)
{
    return count > 0 ? ~UINT64_C(0) >> (64 - count) : 0;
}

// The lanes whose bit is set; the others are 0 and their memory is not touched.
template <int N, class T>
inline Vec<T, N> loadMasked(const T* p, std::uint64_t m)
{
    constexpr int bytes = N * static_cast<int>(sizeof(T));
    if constexpr (bytes == 64) {
        if constexpr (sizeof(T) == 1) return (Vec<T, N>)_mm512_maskz_loadu_epi8(m, p);
        if constexpr (sizeof(T) == 2)
            return (Vec<T, N>)_mm512_maskz_loadu_epi16(static_cast<__mmask32>(m), p);
        if constexpr (sizeof(T) == 4)
            return (Vec<T, N>)_mm512_maskz_loadu_epi32(static_cast<__mmask16>(m), p);
        if constexpr (sizeof(T) == 8) return (Vec<T, N>)_mm512_maskz_loadu_epi64(static_cast<__mmask8>(m), p);
    } else if constexpr (bytes == 32) {
        if constexpr (sizeof(T) == 1) return (Vec<T, N>)_mm256_maskz_loadu_epi8(static_cast<__mmask32>(m), p);
        if constexpr (sizeof(T) == 2)
            return (Vec<T, N>)_mm256_maskz_loadu_epi16(static_cast<__mmask16>(m), p);
        if constexpr (sizeof(T) == 4) return (Vec<T, N>)_mm256_maskz_loadu_epi32(static_cast<__mmask8>(m), p);
    } else {
        // Sixteen bytes are loaded, of which the vector may be the first part.
        __m128i all;
        if constexpr (sizeof(T) == 1) all = _mm_maskz_loadu_epi8(static_cast<__mmask16>(m), p);
        if constexpr (sizeof(T) == 2) all = _mm_maskz_loadu_epi16(static_cast<__mmask8>(m), p);
        if constexpr (sizeof(T) == 4) all = _mm_maskz_loadu_epi32(static_cast<__mmask8>(m), p);
        Vec<T, N> v;
        __builtin_memcpy(&v, &all, sizeof v);
        return v;
    }
}

// Opaque, or the compiler would store the half of a register with an instruction that extracts it, which faults
// at forbidden lanes, masked or not.
template <int N, class T>
inline void storeMasked(T* p, Vec<T, N> v, std::uint64_t m)
{
    constexpr int bytes = N * static_cast<int>(sizeof(T));
    v = opaque(v);
    if constexpr (bytes == 64) {
        if constexpr (sizeof(T) == 1) _mm512_mask_storeu_epi8(p, m, (__m512i)v);
        if constexpr (sizeof(T) == 2) _mm512_mask_storeu_epi16(p, static_cast<__mmask32>(m), (__m512i)v);
        if constexpr (sizeof(T) == 4) _mm512_mask_storeu_epi32(p, static_cast<__mmask16>(m), (__m512i)v);
        if constexpr (sizeof(T) == 8) _mm512_mask_storeu_epi64(p, static_cast<__mmask8>(m), (__m512i)v);
    } else if constexpr (bytes == 32) {
        if constexpr (sizeof(T) == 1) _mm256_mask_storeu_epi8(p, static_cast<__mmask32>(m), (__m256i)v);
        if constexpr (sizeof(T) == 2) _mm256_mask_storeu_epi16(p, static_cast<__mmask16>(m), (__m256i)v);
        if constexpr (sizeof(T) == 4) _mm256_mask_storeu_epi32(p, static_cast<__mmask8>(m), (__m256i)v);
    } else {
        __m128i all = _mm_setzero_si128();
        __builtin_memcpy(&all, &v, sizeof v);
        if constexpr (sizeof(T) == 1) _mm_mask_storeu_epi8(p, static_cast<__mmask16>(m), all);
        if constexpr (sizeof(T) == 2) _mm_mask_storeu_epi16(p, static_cast<__mmask8>(m), all);
        if constexpr (sizeof(T) == 4) _mm_mask_storeu_epi32(p, static_cast<__mmask8>(m), all);
    }
}

// The first count lanes of a vector, 0 <= count <= N; the others are 0.
template <int N, class T>
inline Vec<T, N> loadFirst(const T* p, int count)
{
    return loadMasked<N>(p, firstLanes(count));
}

template <int N, class T>
inline void storeFirst(T* p, Vec<T, N> v, int count)
{
    storeMasked<N>(p, v, firstLanes(count));
}

// The same for the last count lanes of a vector; p is where the first of them stands.
template <int N, class T>
inline Vec<T, N> loadLast(const T* p, int count)
{
    return loadMasked<N>(p - (N - count), firstLanes(count) << (N - count) % 64);
}

template <int N, class T>
inline void storeLast(T* p, Vec<T, N> v, int count)
{
    storeMasked<N>(p - (N - count), v, firstLanes(count) << (N - count) % 64);
}

#else

// g++ loses the range of a count on its way through the halvings and warns of offsets that cannot occur.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wpragmas"
#pragma GCC diagnostic ignored "-Wunknown-warning-option"
#pragma GCC diagnostic ignored "-Warray-bounds"
#pragma GCC diagnostic ignored "-Wstringop-overflow"

template <int Size>
struct Piece {
    char bytes[Size];
};

template <int Size>
inline Piece<Size> piece(const char* from)
{
    Piece<Size> p;
    __builtin_memcpy(&p, from, Size);
    return p;
}

// Moves count bytes, a multiple of Element below or at Most, in two moves of the largest power of two that
// fits; they may overlap.
template <int Most, int Element>
inline void copyFew(char* to, const char* from, int count)
{
    if constexpr (Most > Element) {
        constexpr int half = Most / 2;
        if (count < half) return copyFew<half, Element>(to, from, count);
        const auto first = piece<half>(from), last = piece<half>(from + (count - half));
        __builtin_memcpy(to, &first, half);
        __builtin_memcpy(to + (count - half), &last, half);
    } else if (count == Element) {
        const auto only = piece<Element>(from);
        __builtin_memcpy(to, &only, Element);
    }
}

// A vector in memory, where its lanes can be addressed.
template <class T, int N>
union Spilled {
    Vec<T, N> vector;
    char bytes[N * sizeof(T)];
};

// The first count lanes of a vector, 0 <= count <= N; the others are 0.
template <int N, class T>
inline Vec<T, N> loadFirst(const T* p, int count)
{
    constexpr int size = sizeof(T);
    Spilled<T, N> v{Vec<T, N>{}};
    copyFew<N * size, size>(v.bytes, reinterpret_cast<const char*>(p), count * size);
    return v.vector;
}

template <int N, class T>
inline void storeFirst(T* p, Vec<T, N> v, int count)
{
    constexpr int size = sizeof(T);
    const Spilled<T, N> spilled{v};
    copyFew<N * size, size>(reinterpret_cast<char*>(p), spilled.bytes, count * size);
}

// The same for the last count lanes of a vector; p is where the first of them stands.
template <int N, class T>
inline Vec<T, N> loadLast(const T* p, int count)
{
    constexpr int size = sizeof(T);
    Spilled<T, N> v{Vec<T, N>{}};
    copyFew<N * size, size>(v.bytes + (N - count) * size, reinterpret_cast<const char*>(p), count * size);
    return v.vector;
}

template <int N, class T>
inline void storeLast(T* p, Vec<T, N> v, int count)
{
    constexpr int size = sizeof(T);
    const Spilled<T, N> spilled{v};
    copyFew<N * size, size>(reinterpret_cast<char*>(p), spilled.bytes + (N - count) * size, count * size);
}

#pragma GCC diagnostic pop

#endif

// A whole native vector to an address aligned to its width, bypassing the caches.
template <int N, class T>
inline void storeStreaming(T* p, Vec<T, N> v)
{
    static_assert(sizeof v == vectorBytes);
#if ZORS_VECTOR_BYTES == 64
    _mm512_stream_si512(reinterpret_cast<__m512i*>(p), (__m512i)v);
#elif ZORS_VECTOR_BYTES == 32
    _mm256_stream_si256(reinterpret_cast<__m256i*>(p), (__m256i)v);
#else
    _mm_stream_si128(reinterpret_cast<__m128i*>(p), (__m128i)v);
#endif
}

// Orders streaming stores before all later stores, as a caller expects of any store.
inline void streamFence()
{
    _mm_sfence();
}

} // namespace zors::ZORS_VARIANT
