#include "filter/plain_iir.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace zors::bench {
namespace {

// Complex numbers as pairs, whose products are not searched for infinities.
template <class T>
struct Pair {
    T re, im;
};
template <class T>
Pair<T> operator+(Pair<T> a, Pair<T> b)
{
    return {a.re + b.re, a.im + b.im};
}
template <class T>
Pair<T> operator-(Pair<T> a, Pair<T> b)
{
    return {a.re - b.re, a.im - b.im};
}
template <class T>
Pair<T> operator*(Pair<T> a, Pair<T> b)
{
    return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
}

// The number that a loop computes with.
template <class T>
struct NumberOf {
    using Type = T;
};
template <>
struct NumberOf<Zor32fc> {
    using Type = Pair<float>;
};
template <>
struct NumberOf<Zor64fc> {
    using Type = Pair<double>;
};
template <class T>
using Number = typename NumberOf<T>::Type;

template <class T>
T next(T x, const T* taps, T* delay)
{
    const T y = taps[0] * x + delay[0];
    delay[0] = taps[1] * x - taps[3] * y + delay[1];
    delay[1] = taps[2] * x - taps[4] * y;
    return y;
}

template <class T>
T nextDirectForm1(T x, const T* taps, T* delay)
{
    const T y =
        taps[0] * x + taps[1] * delay[0] + taps[2] * delay[1] - taps[3] * delay[2] - taps[4] * delay[3];
    delay[1] = delay[0];
    delay[0] = x;
    delay[3] = delay[2];
    delay[2] = y;
    return y;
}

template <class T>
T nextOfOrder(T x, const T* taps, T* delay, int order)
{
    const T y = taps[0] * x + delay[0];
    for (int k = 1; k < order; ++k) delay[k - 1] = taps[k] * x - taps[order + k] * y + delay[k];
    delay[order - 1] = taps[order] * x - taps[2 * order] * y;
    return y;
}

template <class T, auto step, int delays>
void bySample(const T* x, T* y, int n, const T* taps, T* delay, int sections)
{
    for (int i = 0; i < n; ++i) {
        T v = x[i];
        for (int s = 0; s < sections; ++s) v = step(v, taps + 5 * s, delay + delays * s);
        y[i] = v;
    }
}

template <class T, auto step, int delays>
void bySampleKnown(const T* x, T* y, int n, const T* taps, T* delay, int)
{
    T h[5 * knownSections], d[delays * knownSections];
    std::copy_n(taps, 5 * knownSections, h);
    std::copy_n(delay, delays * knownSections, d);
    bySample<T, step, delays>(x, y, n, h, d, knownSections);
    std::copy_n(d, delays * knownSections, delay);
}

template <class T, auto step, int delays>
void bySection(const T* x, T* y, int n, const T* taps, T* delay, int sections)
{
    for (int s = 0; s < sections; ++s, x = y) {
        T h[5], d[delays];
        std::copy_n(taps + 5 * s, 5, h);
        std::copy_n(delay + delays * s, delays, d);
        for (int i = 0; i < n; ++i) y[i] = step(x[i], h, d);
        std::copy_n(d, delays, delay + delays * s);
    }
}

template <class T>
void order(const T* x, T* y, int n, const T* taps, T* delay, int order)
{
    for (int i = 0; i < n; ++i) y[i] = nextOfOrder(x[i], taps, delay, order);
}

template <class T>
void orderKnown(const T* x, T* y, int n, const T* taps, T* delay, int)
{
    T h[2 * knownOrder + 1], d[knownOrder];
    std::copy_n(taps, 2 * knownOrder + 1, h);
    std::copy_n(delay, knownOrder, d);
    order(x, y, n, h, d, knownOrder);
    std::copy_n(d, knownOrder, delay);
}

// Public pairs as pairs.
template <class T, IirLoop<Number<T>>* loop>
void paired(const T* x, T* y, int n, const T* taps, T* delay, int count)
{
    using N = Number<T>;
    loop(reinterpret_cast<const N*>(x), reinterpret_cast<N*>(y), n, reinterpret_cast<const N*>(taps),
         reinterpret_cast<N*>(delay), count);
}

// In pieces, so that the floating samples stay in the first cache.
template <class T, IirLoop<T>* loop>
void converted(const Zor16s* x, Zor16s* y, int n, const T* taps, T* delay, int count)
{
    constexpr int piece = 1024;
    constexpr T least = std::numeric_limits<Zor16s>::min(), most = std::numeric_limits<Zor16s>::max();
    static T samples[piece];
    for (int i = 0; i < n; i += piece) {
        const int some = std::min(piece, n - i);
        for (int k = 0; k < some; ++k) samples[k] = x[i + k];
        loop(samples, samples, some, taps, delay, count);
        for (int k = 0; k < some; ++k)
            y[i + k] = static_cast<Zor16s>(std::clamp(std::nearbyint(samples[k]), least, most));
    }
}

template <class T>
constexpr PlainCascades<T> cascades = {
    paired<T, bySample<Number<T>, next<Number<T>>, 2>>,
    paired<T, bySampleKnown<Number<T>, next<Number<T>>, 2>>,
    paired<T, bySection<Number<T>, next<Number<T>>, 2>>,
};

template <class T>
constexpr PlainCascades<Zor16s, T> convertedCascades = {
    converted<T, bySample<T, next<T>, 2>>,
    converted<T, bySampleKnown<T, next<T>, 2>>,
    converted<T, bySection<T, next<T>, 2>>,
};

template <class T>
T one(T x, const T* taps, T* delay, int sections)
{
    for (int s = 0; s < sections; ++s) x = next(x, taps + 5 * s, delay + 2 * s);
    return x;
}

template <class T>
T oneKnown(T x, const T* taps, T* delay, int)
{
    return one(x, taps, delay, knownSections);
}

// Transposed in pieces, so that a sample of all channels is one vector.
void channels(const Zor32f* const* x, Zor32f* const* y, int n, const Zor32f* taps, Zor32f* delay,
              int sections)
{
    constexpr int piece = 64, c = knownChannels;
    Zor32f h[knownSections][5][c], d[knownSections][2][c], v[piece][c];
    for (int s = 0; s < sections; ++s)
        for (int k = 0; k < c; ++k) {
            for (int j = 0; j < 5; ++j) h[s][j][k] = taps[(k * sections + s) * 5 + j];
            for (int j = 0; j < 2; ++j) d[s][j][k] = delay[(k * sections + s) * 2 + j];
        }
    for (int i = 0; i < n; i += piece) {
        const int some = std::min(piece, n - i);
        for (int k = 0; k < c; ++k)
            for (int j = 0; j < some; ++j) v[j][k] = x[k][i + j];
        for (int j = 0; j < some; ++j)
            for (int s = 0; s < sections; ++s)
                for (int k = 0; k < c; ++k) {
                    const Zor32f w = v[j][k], out = h[s][0][k] * w + d[s][0][k];
                    d[s][0][k] = h[s][1][k] * w - h[s][3][k] * out + d[s][1][k];
                    d[s][1][k] = h[s][2][k] * w - h[s][4][k] * out;
                    v[j][k] = out;
                }
        for (int k = 0; k < c; ++k)
            for (int j = 0; j < some; ++j) y[k][i + j] = v[j][k];
    }
    for (int s = 0; s < sections; ++s)
        for (int k = 0; k < c; ++k)
            for (int j = 0; j < 2; ++j) delay[(k * sections + s) * 2 + j] = d[s][j][k];
}

} // namespace

const PlainIirLoops PLAIN_LOOPS = {
    cascades<Zor32f>,
    cascades<Zor64f>,
    cascades<Zor32fc>,
    cascades<Zor64fc>,
    convertedCascades<Zor32f>,
    convertedCascades<Zor64f>,
    {order<Zor32f>, orderKnown<Zor32f>},
    {order<Zor64f>, orderKnown<Zor64f>},
    {bySample<Zor32f, nextDirectForm1<Zor32f>, 4>, bySampleKnown<Zor32f, nextDirectForm1<Zor32f>, 4>,
     bySection<Zor32f, nextDirectForm1<Zor32f>, 4>},
    one<Zor32f>,
    oneKnown<Zor32f>,
    one<Zor64f>,
    oneKnown<Zor64f>,
    channels,
};

} // namespace zors::bench
