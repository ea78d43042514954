#include "vector/plain_copy.h"

#include <utility>

namespace zors::bench {
namespace {

template <class T>
void copy(const T* __restrict s, T* __restrict d, int n)
{
    for (int i = 0; i < n; ++i) d[i] = s[i];
}

template <class T>
void move(const T* s, T* d, int n)
{
    if (d <= s)
        for (int i = 0; i < n; ++i) d[i] = s[i];
    else
        for (int i = n - 1; i >= 0; --i) d[i] = s[i];
}

template <class T>
void zero(T* d, int n)
{
    for (int i = 0; i < n; ++i) d[i] = T{};
}

template <class T>
void set(T v, T* d, int n)
{
    for (int i = 0; i < n; ++i) d[i] = v;
}

template <class T>
void flip(const T* __restrict s, T* __restrict d, int n)
{
    for (int i = 0; i < n; ++i) d[i] = s[n - 1 - i];
}

template <class T>
void flipInPlace(T* d, int n)
{
    for (int i = 0; i < n / 2; ++i) std::swap(d[i], d[n - 1 - i]);
}

Zor16u swapped(Zor16u v)
{
    return __builtin_bswap16(v);
}

Zor32u swapped(Zor32u v)
{
    return __builtin_bswap32(v);
}

Zor64u swapped(Zor64u v)
{
    return __builtin_bswap64(v);
}

template <class T>
void swapBytes(const T* __restrict s, T* __restrict d, int n)
{
    for (int i = 0; i < n; ++i) d[i] = swapped(s[i]);
}

void swapBytes24(const Zor8u* __restrict s, Zor8u* __restrict d, int n)
{
    for (int i = 0; i < n; ++i) {
        d[3 * i] = s[3 * i + 2];
        d[3 * i + 1] = s[3 * i + 1];
        d[3 * i + 2] = s[3 * i];
    }
}

template <class T, class C>
void realToCplx(const T* __restrict re, const T* __restrict im, C* __restrict d, int n)
{
    for (int i = 0; i < n; ++i) {
        d[i].re = re[i];
        d[i].im = im[i];
    }
}

template <class C, class T>
void cplxToReal(const C* __restrict s, T* __restrict re, T* __restrict im, int n)
{
    for (int i = 0; i < n; ++i) {
        re[i] = s[i].re;
        im[i] = s[i].im;
    }
}

template <class C, class T>
void real(const C* __restrict s, T* __restrict d, int n)
{
    for (int i = 0; i < n; ++i) d[i] = s[i].re;
}

} // namespace

const PlainCopyLoops PLAIN_LOOPS = {
    copy<Zor8u>,
    copy<Zor32f>,
    copy<Zor64fc>,
    move<Zor32f>,
    zero<Zor32f>,
    set<Zor8u>,
    set<Zor32f>,
    set<Zor64fc>,
    flip<Zor8u>,
    flip<Zor16u>,
    flip<Zor32f>,
    flip<Zor64fc>,
    flipInPlace<Zor32f>,
    swapBytes<Zor16u>,
    swapBytes24,
    swapBytes<Zor32u>,
    swapBytes<Zor64u>,
    realToCplx<Zor16s, Zor16sc>,
    realToCplx<Zor32f, Zor32fc>,
    cplxToReal<Zor16sc, Zor16s>,
    cplxToReal<Zor32fc, Zor32f>,
    cplxToReal<Zor64fc, Zor64f>,
    real<Zor32fc, Zor32f>,
};

} // namespace zors::bench
