#include "filter/plain_fir.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <type_traits>

namespace zors::bench {
namespace {

template <class T>
void plain(const T* x, T* y, int n, const T* r, int L)
{
    for (int i = 0; i < n; ++i) {
        T sum = 0;
        for (int j = 0; j < L; ++j) sum += r[j] * x[i + j];
        y[i] = sum;
    }
}

template <class C>
void plainPairs(const C* x, C* y, int n, const C* r, int L)
{
    for (int i = 0; i < n; ++i) {
        decltype(C::re) re = 0, im = 0;
        for (int j = 0; j < L; ++j) {
            re += r[j].re * x[i + j].re - r[j].im * x[i + j].im;
            im += r[j].re * x[i + j].im + r[j].im * x[i + j].re;
        }
        y[i] = {re, im};
    }
}

#ifdef __AVX512F__
constexpr int vectorBytes = 64;
#else
constexpr int vectorBytes = 32;
#endif

// The compiler's own vectors: loops over an array leave it the registers too, but with them it uses them better.
template <class T>
struct Native {
    typedef T Vector __attribute__((vector_size(vectorBytes)));
};

template <class T>
constexpr int lanes = vectorBytes / static_cast<int>(sizeof(T));

template <int vectors, class T>
void block(const T* x, T* y, const T* r, int L)
{
    using V = typename Native<T>::Vector;
    V sum[vectors] = {};
    for (int j = 0; j < L; ++j)
        for (int v = 0; v < vectors; ++v) {
            V some;
            std::memcpy(&some, x + j + v * lanes<T>, sizeof some);
            sum[v] += r[j] * some;
        }
    std::memcpy(y, sum, sizeof sum);
}

template <class T>
void blocked(const T* x, T* y, int n, const T* r, int L)
{
    constexpr int l = lanes<T>;
    int i = 0;
    for (; i + 8 * l <= n; i += 8 * l) block<8>(x + i, y + i, r, L);
    for (; i + 4 * l <= n; i += 4 * l) block<4>(x + i, y + i, r, L);
    for (; i + l <= n; i += l) block<1>(x + i, y + i, r, L);
    plain(x + i, y + i, n - i, r, L);
}

// The pairs as they lie there, multiplied by both parts of a tap; the products are put together at the end.
template <int vectors, class C>
void blockPairs(const C* x, C* y, const C* r, int L)
{
    using T = decltype(C::re);
    using V = typename Native<T>::Vector;
    constexpr int l = lanes<T>;
    V byRe[vectors] = {}, byIm[vectors] = {};
    const T* parts = &x->re;
    for (int j = 0; j < L; ++j)
        for (int v = 0; v < vectors; ++v) {
            V some;
            std::memcpy(&some, parts + 2 * j + v * l, sizeof some);
            byRe[v] += r[j].re * some;
            byIm[v] += r[j].im * some;
        }
    for (int v = 0; v < vectors; ++v) {
        T re[l], im[l];
        std::memcpy(re, &byRe[v], sizeof re);
        std::memcpy(im, &byIm[v], sizeof im);
        for (int i = 0; i < l; i += 2) y[(v * l + i) / 2] = {re[i] - im[i + 1], re[i + 1] + im[i]};
    }
}

template <class C>
void blockedPairs(const C* x, C* y, int n, const C* r, int L)
{
    constexpr int l = lanes<decltype(C::re)> / 2;
    int i = 0;
    for (; i + 4 * l <= n; i += 4 * l) blockPairs<4>(x + i, y + i, r, L);
    for (; i + l <= n; i += l) blockPairs<1>(x + i, y + i, r, L);
    plainPairs(x + i, y + i, n - i, r, L);
}

template <class T, class W>
T saturated(W value)
{
    constexpr W least = std::numeric_limits<T>::min(), most = std::numeric_limits<T>::max();
    return static_cast<T>(std::clamp(value, least, most));
}

// In pieces, so that the floating samples stay in the first cache.
template <class T, FirLoop<T>* loop, class H>
void converted(const Zor16s* x, Zor16s* y, int n, const H* r, int L)
{
    constexpr int piece = 1024;
    static T taps[mostIntegerTaps], source[mostIntegerTaps + piece], result[piece];
    const T* used = taps;
    if constexpr (std::is_same_v<T, H>)
        used = r;
    else
        for (int j = 0; j < L; ++j) taps[j] = static_cast<T>(r[j]) * (T{1} / (1 << fraction));
    std::copy(x, x + L - 1, source);
    for (int i = 0; i < n; i += piece) {
        const int count = std::min(piece, n - i);
        for (int k = 0; k < count; ++k) source[L - 1 + k] = x[i + L - 1 + k];
        loop(source, result, count, used, L);
        for (int k = 0; k < count; ++k) y[i + k] = saturated<Zor16s>(std::nearbyint(result[k]));
        std::memmove(source, source + count, static_cast<std::size_t>(L - 1) * sizeof *source);
    }
}

void exact(const Zor16s* x, Zor16s* y, int n, const Zor32s* r, int L)
{
    for (int i = 0; i < n; ++i) {
        Zor64s sum = 0;
        for (int j = 0; j < L; ++j) sum += static_cast<Zor64s>(r[j]) * x[i + j];
        // To nearest, ties to even.
        const Zor64s odd = sum >> fraction & 1;
        y[i] = saturated<Zor16s>((sum + (Zor64s{1} << (fraction - 1)) - 1 + odd) >> fraction);
    }
}

template <class Sum>
Zor32f one(Zor32f x, const Zor32f* r, int L, Zor32f* line, int* index)
{
    line[*index] = line[*index + L] = x;
    *index = *index + 1 < L ? *index + 1 : 0;
    const Zor32f* w = line + *index;
    Sum sum = 0;
    for (int j = 0; j < L; ++j) sum += static_cast<Sum>(r[j] * w[j]);
    return static_cast<Zor32f>(sum);
}

// The sum in the order in which it is written, as compilers leave it unless they are told otherwise.
#ifndef __clang__
[[gnu::optimize("no-associative-math")]]
#endif
Zor32f
oneInOrder(Zor32f x, const Zor32f* r, int L, Zor32f* line, int* index)
{
#ifdef __clang__
#pragma clang fp reassociate(off)
#endif
    line[*index] = line[*index + L] = x;
    *index = *index + 1 < L ? *index + 1 : 0;
    const Zor32f* w = line + *index;
    Zor32f sum = 0;
    for (int j = 0; j < L; ++j) sum += r[j] * w[j];
    return sum;
}

} // namespace

const PlainFirLoops PLAIN_LOOPS = {
    plain<Zor32f>,
    plain<Zor64f>,
    plainPairs<Zor32fc>,
    plainPairs<Zor64fc>,
    blocked<Zor32f>,
    blocked<Zor64f>,
    blockedPairs<Zor32fc>,
    blockedPairs<Zor64fc>,
    converted<Zor32f, plain<Zor32f>>,
    converted<Zor32f, blocked<Zor32f>>,
    converted<Zor64f, plain<Zor64f>>,
    converted<Zor64f, blocked<Zor64f>>,
    converted<Zor64f, plain<Zor64f>>,
    converted<Zor64f, blocked<Zor64f>>,
    exact,
    one<float>,
    oneInOrder,
    one<double>,
};

} // namespace zors::bench
