// Companding by ITU-T G.711. A code is a sign and seven bits that are nearly a float, three of exponent and four
// of fraction: so codes are expanded and magnitudes compressed through the bits of floats, without tables.
#include "frame/bind.h"
#include "simd/check.h"
#include "simd/control.h"
#include "simd/round.h"

namespace zors::ZORS_VARIANT {
namespace {

constexpr int step = lanes<Zor32f>;
using Ints = Vec<Zor32s>;
using Floats = Vec<Zor32f>;

constexpr Zor32s positive = 0x80; // the sign bit, in both laws

// The middle of the interval whose exponent and fraction are the seven bits, times 2^7.
Floats middleOf(Ints bits)
{
    return bitsAs<Zor32f>((bits << 19) + ((127 + 7) << 23) + (1 << 18));
}

// The interval that a magnitude lies in.
Ints intervalOf(Floats magnitude)
{
    return (bitsAs<Zor32s>(magnitude) >> 19) - ((127 + 7) << 4);
}

// A law has all seven bits inverted or every second one, and differs at small magnitudes, which are those of
// 16-bit samples.
struct MuLaw {
    static constexpr Zor32s inverted = 0x7f;
    static constexpr Zor32f bias = 132, most = 32767;

    static Floats expanded(Ints bits) { return middleOf(bits) - bias; }
    static Ints compressed(Floats magnitude) { return intervalOf(smaller(magnitude + bias, splat(most))); }
};

struct ALaw {
    static constexpr Zor32s inverted = 0x55;
    static constexpr Zor32f linear = 256; // below it the steps do not halve any more

    static Floats expanded(Ints bits)
    {
        const auto small = bits < 16;
        return middleOf(bits + (small & 16)) - select(small, splat(linear), Floats{});
    }
    static Ints compressed(Floats magnitude)
    {
        const auto small = magnitude < linear;
        return intervalOf(magnitude + select(small, splat(linear), Floats{})) - (small & 16);
    }
};

template <class Law>
Floats magnitudeOf(Ints code)
{
    return Law::expanded((code ^ Law::inverted) & 0x7f);
}

template <class Law>
Floats decoded(Ints code)
{
    const Ints sign = (~code & positive) << 24;
    return bitsAs<Zor32f>(bitsAs<Zor32s>(magnitudeOf<Law>(code)) ^ sign);
}

// The complement of a negative sample: an interval contains its lower end on both sides of zero.
template <class Law>
Ints encoded(Ints sample)
{
    const Ints sign = sample >> 31;
    return (Law::compressed(toFloat<step>(sample ^ sign)) ^ Law::inverted) | (~sign & positive);
}

// The code at the same level. A sine at full scale has 3.14 dBm0 by A-law (32768 here) and 3.17 dBm0 by mu-law
// (32636): the magnitudes of a level are as 1.00752 to 1.
template <class From, class To>
Ints recoded(Ints code)
{
    constexpr Zor32f ratio = std::is_same_v<To, ALaw> ? 1.00752f : 1 / 1.00752f;
    const Ints bits = To::compressed(magnitudeOf<From>(code) * ratio);
    return (bits ^ To::inverted) | (code & positive);
}

Ints samplesOf(Vec<Zor16s, step> v)
{
    return widened<Zor32s, Zor16s, step>(v);
}

Ints samplesOf(Floats v)
{
    v = smaller(larger(numbersOf(v), splat(-32768.0f)), splat(32767.0f));
    const Ints r = toInt32<Rounding::zero>(v);
    return r + (v < toFloat<step>(r));
}

template <class Law, class T>
ZorStatus decode(const Zor8u* pSrc, T* pDst, int len)
{
    if (const ZorStatus bad = check(pointers(pSrc, pDst), length(len))) return bad;
    const StandardArithmetic arithmetic;
    blocks<lanes<T>>(len, [=](auto at) {
        const auto values = grouped<step>(
            at, [=](auto part) { return decoded<Law>(widened<Zor32s, Zor8u, step>(load(pSrc, part))); });
        if constexpr (std::is_same_v<T, Zor16s>)
            store(pDst, at, roundedTo<Zor16s, Rounding::zero>(values));
        else
            store(pDst, at, values.part[0]);
    });
    return zorStsOk;
}

// Four vectors of codes at a time, which fill one of bytes.
template <class T, class F>
ZorStatus toCodes(const T* pSrc, Zor8u* pDst, int len, F codesOf)
{
    if (const ZorStatus bad = check(pointers(pSrc, pDst), length(len))) return bad;
    const StandardArithmetic arithmetic;
    blocks<lanes<Zor8u>>(len, [=](auto at) {
        const auto codes = grouped<step>(at, [=](auto part) { return codesOf(load(pSrc, part)); });
        store(pDst, at, packed<Zor8u>(codes));
    });
    return zorStsOk;
}

template <class Law, class T>
ZorStatus encode(const T* pSrc, Zor8u* pDst, int len)
{
    return toCodes(pSrc, pDst, len, [](auto v) { return encoded<Law>(samplesOf(v)); });
}

template <class From, class To>
ZorStatus recode(const Zor8u* pSrc, Zor8u* pDst, int len)
{
    return toCodes(pSrc, pDst, len,
                   [](auto v) { return recoded<From, To>(widened<Zor32s, Zor8u, step>(v)); });
}

} // namespace

ZORS_BIND(zorsALawToLin_8u16s, (decode<ALaw, Zor16s>))
ZORS_BIND(zorsALawToLin_8u32f, (decode<ALaw, Zor32f>))
ZORS_BIND(zorsMuLawToLin_8u16s, (decode<MuLaw, Zor16s>))
ZORS_BIND(zorsMuLawToLin_8u32f, (decode<MuLaw, Zor32f>))
ZORS_BIND(zorsLinToALaw_16s8u, (encode<ALaw, Zor16s>))
ZORS_BIND(zorsLinToALaw_32f8u, (encode<ALaw, Zor32f>))
ZORS_BIND(zorsLinToMuLaw_16s8u, (encode<MuLaw, Zor16s>))
ZORS_BIND(zorsLinToMuLaw_32f8u, (encode<MuLaw, Zor32f>))
ZORS_BIND(zorsALawToMuLaw_8u, (recode<ALaw, MuLaw>))
ZORS_BIND(zorsMuLawToALaw_8u, (recode<MuLaw, ALaw>))

} // namespace zors::ZORS_VARIANT
