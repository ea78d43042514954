#include "vector/plain_convert.h"

#include <Eigen/Core>
#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <limits>

namespace zors::bench {
namespace {

template <class S, class D>
void cast(const S* __restrict s, D* __restrict d, int n)
{
    for (int i = 0; i < n; ++i) d[i] = static_cast<D>(s[i]);
}

template <class S, class D>
void castAndScale(const S* __restrict s, D* __restrict d, int n, D factor)
{
    for (int i = 0; i < n; ++i) d[i] = static_cast<D>(s[i]) * factor;
}

// The elements of packed 24-bit vectors.
Zor32s get24(const Zor8u* p)
{
    const Zor32u bits =
        static_cast<Zor32u>(p[0]) << 8 | static_cast<Zor32u>(p[1]) << 16 | static_cast<Zor32u>(p[2]) << 24;
    return static_cast<Zor32s>(bits) >> 8;
}

void put24(Zor8u* p, Zor32s v)
{
    p[0] = static_cast<Zor8u>(v);
    p[1] = static_cast<Zor8u>(v >> 8);
    p[2] = static_cast<Zor8u>(v >> 16);
}

template <class D>
void unpack24(const Zor8u* __restrict s, D* __restrict d, int n)
{
    for (int i = 0; i < n; ++i) d[i] = static_cast<D>(get24(s + 3 * i));
}

template <class V>
V held(V v, V least, V most)
{
    v = v < least ? least : v;
    return v > most ? most : v;
}

template <class D, class S>
D saturated(S v)
{
    using Limits = std::numeric_limits<D>;
    return static_cast<D>(held(v, static_cast<S>(Limits::min()), static_cast<S>(Limits::max())));
}

template <class S, class D>
void saturate(const S* __restrict s, D* __restrict d, int n)
{
    for (int i = 0; i < n; ++i) d[i] = saturated<D>(s[i]);
}

// The largest numbers wrap, which a user may know not to occur.
template <class S>
S halfEven(S v, int shift)
{
    return static_cast<S>((v + ((S{1} << (shift - 1)) - 1) + (v >> shift & 1)) >> shift);
}

template <class S, class D>
void shift(const S* __restrict s, D* __restrict d, int n, int count)
{
    for (int i = 0; i < n; ++i) d[i] = saturated<D>(halfEven(s[i], count));
}

void shift24(const Zor32s* __restrict s, Zor8u* __restrict d, int n, int count)
{
    for (int i = 0; i < n; ++i) put24(d + 3 * i, held(halfEven(s[i], count), -(1 << 23), (1 << 23) - 1));
}

struct Truncate {
    template <class F>
    F operator()(F v) const
    {
        return v;
    }
};
struct Nearest {
    template <class F>
    F operator()(F v) const
    {
        return std::rint(v);
    }
};
struct Away {
    template <class F>
    F operator()(F v) const
    {
        return v + std::copysign(F(0.5), v);
    }
};

template <class Round, class S, class D>
void round(const S* __restrict s, D* __restrict d, int n)
{
    // The largest value of a wide integer is none of the float; the next lower one is.
    constexpr bool isWide = std::numeric_limits<D>::digits > std::numeric_limits<S>::digits;
    constexpr S least = static_cast<S>(std::numeric_limits<D>::min());
    constexpr S most = isWide ? -least * (1 - std::numeric_limits<S>::epsilon() / 2)
                              : static_cast<S>(std::numeric_limits<D>::max());
    for (int i = 0; i < n; ++i) d[i] = static_cast<D>(held(Round{}(s[i]), least, most));
}

void roundScaled(const Zor32f* __restrict s, Zor16s* __restrict d, int n, float factor)
{
    for (int i = 0; i < n; ++i)
        d[i] = static_cast<Zor16s>(held(std::rint(s[i] * factor), -32768.0f, 32767.0f));
}

void round24(const Zor32f* __restrict s, Zor8u* __restrict d, int n)
{
    for (int i = 0; i < n; ++i)
        put24(d + 3 * i, static_cast<Zor32s>(held(std::rint(s[i]), -0x1p23f, 0x1p23f - 1)));
}

template <class T>
using Elements = Eigen::Map<Eigen::Array<T, Eigen::Dynamic, 1>>;
template <class T>
using Source = Eigen::Map<const Eigen::Array<T, Eigen::Dynamic, 1>>;
using Halves = Eigen::half;

void fromHalf(const Zor16f* s, Zor32f* d, int n)
{
    Elements<float>(d, n) = Source<Halves>(reinterpret_cast<const Halves*>(s), n).cast<float>();
}

void toHalf(const Zor32f* s, Zor16f* d, int n)
{
    Elements<Halves>(reinterpret_cast<Halves*>(d), n) = Source<float>(s, n).cast<Halves>();
}

void wordsToHalf(const Zor16s* s, Zor16f* d, int n)
{
    Elements<Halves>(reinterpret_cast<Halves*>(d), n) = Source<Zor16s>(s, n).cast<float>().cast<Halves>();
}

void halfToWords(const Zor16f* s, Zor16s* d, int n)
{
    Elements<Zor16s>(d, n) = Source<Halves>(reinterpret_cast<const Halves*>(s), n)
                                 .cast<float>()
                                 .rint()
                                 .max(-32768.0f)
                                 .min(32767.0f)
                                 .cast<Zor16s>();
}

Zor16s fromALaw(int code)
{
    code ^= 0x55;
    const int exponent = code >> 4 & 7, fraction = code & 15;
    const int v = exponent == 0 ? 16 * fraction + 8 : (16 * fraction + 264) << (exponent - 1);
    return static_cast<Zor16s>(code & 0x80 ? v : -v);
}

Zor8u toALaw(int v)
{
    const int sign = v >= 0 ? 0xd5 : 0x55;
    v = (v >= 0 ? v : ~v) >> 4;
    const int exponent = v < 16 ? 0 : std::bit_width(static_cast<unsigned>(v)) - 4;
    const int fraction = exponent < 2 ? v & 15 : v >> (exponent - 1) & 15;
    return static_cast<Zor8u>((exponent << 4 | fraction) ^ sign);
}

Zor8u toMuLaw(int v)
{
    const int sign = v >= 0 ? 0xff : 0x7f;
    v = std::min((v >= 0 ? v : ~v) + 132, 32767);
    const int exponent = std::bit_width(static_cast<unsigned>(v)) - 8;
    return static_cast<Zor8u>((exponent << 4 | (v >> (exponent + 3) & 15)) ^ sign);
}

template <class T>
constexpr auto makeTable(T (*f)(int))
{
    std::array<T, 256> t{};
    for (int i = 0; i < 256; ++i) t[static_cast<std::size_t>(i)] = f(i);
    return t;
}

template <class T>
void aLawToLin(const Zor8u* __restrict s, T* __restrict d, int n)
{
    static const auto table = makeTable<T>([](int code) { return static_cast<T>(fromALaw(code)); });
    for (int i = 0; i < n; ++i) d[i] = table[s[i]];
}

void aLawToMuLaw(const Zor8u* __restrict s, Zor8u* __restrict d, int n)
{
    static const auto table = makeTable<Zor8u>([](int code) { return toMuLaw(fromALaw(code)); });
    for (int i = 0; i < n; ++i) d[i] = table[s[i]];
}

template <Zor8u (*encode)(int), class S>
void encodeAll(const S* __restrict s, Zor8u* __restrict d, int n)
{
    for (int i = 0; i < n; ++i)
        if constexpr (std::is_floating_point_v<S>)
            d[i] = encode(static_cast<int>(held(std::floor(s[i]), -32768.0f, 32767.0f)));
        else
            d[i] = encode(s[i]);
}

// The second row follows the first.
void join16(const Zor32f* __restrict s, Zor16s* __restrict d, int n)
{
    for (int i = 0; i < n; ++i)
        for (int c = 0; c < 2; ++c)
            d[2 * i + c] = static_cast<Zor16s>(held(std::rint(s[c * n + i] * 32768), -32768.0f, 32767.0f));
}

void split16(const Zor16s* __restrict s, Zor32f* __restrict d, int n)
{
    for (int i = 0; i < n; ++i)
        for (int c = 0; c < 2; ++c) d[c * n + i] = static_cast<float>(s[2 * i + c]) * (1.0f / 32768);
}

void join24(const Zor32f* __restrict s, Zor8u* __restrict d, int n)
{
    for (int i = 0; i < n; ++i)
        for (int c = 0; c < 2; ++c)
            put24(d + 6 * i + 3 * c,
                  static_cast<Zor32s>(held(std::rint(s[c * n + i] * 0x1p23f), -0x1p23f, 0x1p23f - 1)));
}

void split24(const Zor8u* __restrict s, Zor32f* __restrict d, int n)
{
    for (int i = 0; i < n; ++i)
        for (int c = 0; c < 2; ++c) d[c * n + i] = static_cast<float>(get24(s + 6 * i + 3 * c)) * 0x1p-23f;
}

void packBits(const Zor32u* __restrict s, const Zor32s* __restrict bits, Zor8u* __restrict d, int n)
{
    Zor64u waiting = 0;
    int count = 0;
    for (int i = 0; i < n; ++i) {
        waiting = waiting << bits[i] | (s[i] & ((Zor64u{1} << bits[i]) - 1));
        count += bits[i];
        while (count >= 8) {
            count -= 8;
            *d++ = static_cast<Zor8u>(waiting >> count);
        }
    }
    if (count > 0) *d = static_cast<Zor8u>(waiting << (8 - count));
}

} // namespace

const PlainConvertLoops PLAIN_LOOPS = {
    cast<Zor8s, Zor16s>,
    cast<Zor16s, Zor32s>,
    cast<Zor8s, Zor32f>,
    cast<Zor8u, Zor32f>,
    cast<Zor16s, Zor32f>,
    cast<Zor16u, Zor32f>,
    cast<Zor32s, Zor32f>,
    cast<Zor32s, Zor64f>,
    cast<Zor64s, Zor64f>,
    cast<Zor32f, Zor64f>,
    cast<Zor64f, Zor32f>,
    unpack24<Zor32s>,
    unpack24<Zor32f>,
    castAndScale<Zor16s, Zor32f>,
    castAndScale<Zor32s, Zor32f>,
    castAndScale<Zor16s, Zor64f>,
    castAndScale<Zor32s, Zor64f>,
    saturate<Zor32s, Zor16s>,
    shift<Zor32s, Zor16s>,
    shift<Zor16s, Zor8s>,
    shift<Zor64s, Zor32s>,
    shift24,
    round<Truncate, Zor32f, Zor16s>,
    round<Nearest, Zor32f, Zor16s>,
    round<Away, Zor32f, Zor16s>,
    roundScaled,
    round<Nearest, Zor32f, Zor8s>,
    round<Nearest, Zor32f, Zor8u>,
    round<Nearest, Zor32f, Zor16u>,
    round<Nearest, Zor32f, Zor32s>,
    round24,
    round<Nearest, Zor64f, Zor16s>,
    round<Nearest, Zor64f, Zor32s>,
    round<Nearest, Zor64f, Zor64s>,
    fromHalf,
    toHalf,
    wordsToHalf,
    halfToWords,
    aLawToLin<Zor16s>,
    aLawToLin<Zor32f>,
    encodeAll<toALaw, Zor16s>,
    encodeAll<toMuLaw, Zor16s>,
    encodeAll<toALaw, Zor32f>,
    encodeAll<toMuLaw, Zor32f>,
    aLawToMuLaw,
    join16,
    split16,
    join24,
    split24,
    packBits,
};

} // namespace zors::bench
