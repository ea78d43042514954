#include "support/count.h"

#include <zors.h>

#include <algorithm>
#include <cfenv>
#include <cfloat>
#include <climits>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <vector>
#include <xmmintrin.h>

namespace {

__extension__ typedef __int128 Wide;

// num / den * 2^-scaleFactor by long division, one binary place at a time.
template <class T>
T exactQuotient(Wide num, Wide den, int scaleFactor, ZorRoundMode rndMode = zorRndNear)
{
    const Wide least = std::numeric_limits<T>::min(), most = std::numeric_limits<T>::max();
    if (num == 0) return 0;
    const bool negative = (num < 0) != (den < 0);
    if (den == 0) return static_cast<T>(num < 0 ? least : most);
    num = num < 0 ? -num : num;
    den = den < 0 ? -den : den;
    if (scaleFactor > 63) return 0; // one half at the most
    if (scaleFactor > 0) den <<= scaleFactor;
    Wide whole = num / den, rest = num % den;
    for (int place = 0; place > scaleFactor && whole <= most; --place) {
        rest *= 2;
        whole = 2 * whole + (rest >= den);
        rest %= den;
        if (whole == 0 && rest == 0) break;
    }
    const Wide twice = 2 * rest;
    if (rndMode == zorRndNear && (twice > den || (twice == den && whole % 2 != 0))) ++whole;
    if (rndMode == zorRndFinancial && twice >= den) ++whole;
    return static_cast<T>(std::clamp(negative ? -whole : whole, least, most));
}

Zor16sc exactQuotient(Zor16sc x, Zor16sc y, int scaleFactor)
{
    const Wide norm = Wide{y.re} * y.re + Wide{y.im} * y.im;
    if (norm == 0) return {exactQuotient<Zor16s>(x.re, 0, 0), exactQuotient<Zor16s>(x.im, 0, 0)};
    return {exactQuotient<Zor16s>(Wide{x.re} * y.re + Wide{x.im} * y.im, norm, scaleFactor),
            exactQuotient<Zor16s>(Wide{x.im} * y.re - Wide{x.re} * y.im, norm, scaleFactor)};
}

template <class T>
T exactQuotient(T x, T y, int scaleFactor)
{
    return exactQuotient<T>(Wide{x}, Wide{y}, scaleFactor);
}

bool isZero(Zor16sc v)
{
    return v.re == 0 && v.im == 0;
}
bool isZero(Wide v)
{
    return v == 0;
}

// Divisors and dividends.
template <class T>
struct Operands {
    std::vector<T> y, x;

    int size() const { return static_cast<int>(y.size()); }
    void add(Wide divisor, Wide dividend)
    {
        if (dividend < std::numeric_limits<T>::min() || dividend > std::numeric_limits<T>::max()) return;
        y.push_back(static_cast<T>(divisor));
        x.push_back(static_cast<T>(dividend));
    }
};

std::mt19937_64 random64;

Operands<Zor8u> allPairs()
{
    Operands<Zor8u> all;
    for (int y = 0; y < 256; ++y)
        for (int x = 0; x < 256; ++x) all.add(y, x);
    return all;
}

// Numbers of all sizes, the ends of the range, and for a scale factor ties, their neighbours and the quotients that
// come closest to a boundary without being on it.
template <class T>
Operands<T> awkwardPairs(int scaleFactor, int count = 400)
{
    using Limits = std::numeric_limits<T>;
    Operands<T> all;
    const auto any = [] {
        return static_cast<T>(static_cast<T>(random64()) >> random64() % (sizeof(T) * 8));
    };
    for (const Wide y : {Wide{Limits::min()}, Wide{Limits::max()}, Wide{0}, Wide{1}, Wide{2}, Wide{3}})
        for (const Wide x : {Wide{Limits::min()}, Wide{Limits::max()}, Wide{0}, Wide{1}, Wide{5}})
            all.add(y, x);
    for (int i = 0; i < count; ++i) all.add(any(), any());
    for (int i = 0; i < count; ++i) {
        // The dividend of the tie (2k + 1) * 2^(s-1), where it is a whole number.
        const Wide y = any(), odd = 2 * Wide{static_cast<Zor16s>(random64() >> random64() % 16)} + 1;
        const int s = std::clamp(scaleFactor, -40, 40);
        const Wide x = s > 0 ? y * odd << (s - 1) : y * odd >> (1 - s);
        for (const Wide beside : {-1, 0, 1}) all.add(y, x + beside);
    }
    for (int i = 0; i < count && scaleFactor < 0; ++i) {
        // x * 2^(1 - s) leaves the remainder 1 or -1 by an odd y.
        const Wide y = static_cast<T>(random64()) | 1;
        if (y < 3) continue;
        Wide x = 1;
        for (int place = std::max(scaleFactor, -130); place <= 0; ++place) x = (x % 2 ? x + y : x) / 2;
        all.add(y, x);
        all.add(y, y - x);
    }
    return all;
}

Operands<Zor16sc> awkwardComplexPairs()
{
    Operands<Zor16sc> all;
    const auto part = [] {
        constexpr Zor16s ends[] = {-32768, 32767, 0, 1, -1, 2, 3};
        const auto bits = random64();
        return bits % 4 ? static_cast<Zor16s>(static_cast<Zor16s>(bits >> 8) >> (bits >> 2) % 16)
                        : ends[(bits >> 8) % 7];
    };
    for (int i = 0; i < 3000; ++i) {
        all.y.push_back({part(), part()});
        all.x.push_back({part(), part()});
    }
    return all;
}

std::vector<int> scaleFactors(int first, int last)
{
    std::vector<int> all = {INT_MIN, INT_MIN + 1, -200, -65, 65, 200, INT_MAX};
    for (int s = first; s <= last; ++s) all.push_back(s);
    return all;
}

template <class T, class Function, class Oracle>
void expectQuotients(const Operands<T>& operands, Function function, Oracle oracle, const std::string& what)
{
    const auto& [y, x] = operands;
    std::vector<T> got(x.size());
    const bool byZero = std::any_of(y.begin(), y.end(), [](T v) { return isZero(v); });
    ASSERT_EQ(function(y.data(), x.data(), got.data(), operands.size()), byZero ? zorStsDivByZero : zorStsOk);
    zors::test::compared(operands.size());
    for (std::size_t i = 0; i < x.size(); ++i) {
        const T want = oracle(x[i], y[i]);
        ASSERT_EQ(std::memcmp(&got[i], &want, sizeof want), 0)
            << what << ": " << testing::PrintToString(x[i]) << " / " << testing::PrintToString(y[i])
            << " gave " << testing::PrintToString(got[i]) << " instead of " << testing::PrintToString(want);
    }
}

template <class T, class Plain, class Round>
void expectAllModes(const Operands<T>& operands, Plain plain, Round round, int s)
{
    for (const ZorRoundMode mode : {zorRndZero, zorRndNear, zorRndFinancial})
        expectQuotients(
            operands, [=](auto... a) { return round(a..., s, mode); },
            [=](T x, T y) { return exactQuotient<T>(Wide{x}, Wide{y}, s, mode); },
            "scale factor " + std::to_string(s) + ", mode " + std::to_string(mode));
    expectQuotients(
        operands, [=](auto... a) { return plain(a..., s); }, [=](T x, T y) { return exactQuotient(x, y, s); },
        "scale factor " + std::to_string(s));
}

TEST(Div, AllPairsOfBytes)
{
    const auto pairs = allPairs();
    for (const int s : scaleFactors(-17, 10)) expectAllModes(pairs, zorsDiv_8u_Sfs, zorsDiv_Round_8u_Sfs, s);
}

TEST(Div, SixteenBits)
{
    for (const int s : scaleFactors(-34, 19)) {
        expectAllModes(awkwardPairs<Zor16u>(s), zorsDiv_16u_Sfs, zorsDiv_Round_16u_Sfs, s);
        expectAllModes(awkwardPairs<Zor16s>(s), zorsDiv_16s_Sfs, zorsDiv_Round_16s_Sfs, s);
    }
}

TEST(Div, Complex16)
{
    const auto pairs = awkwardComplexPairs();
    for (const int s : scaleFactors(-50, 20))
        expectQuotients(
            pairs, [=](auto... a) { return zorsDiv_16sc_Sfs(a..., s); },
            [=](Zor16sc x, Zor16sc y) { return exactQuotient(x, y, s); },
            "scale factor " + std::to_string(s));
}

// What a zero beside the vector must not do: raise the warning.
template <class T, class Function>
void expectEveryLength(const Operands<T>& operands, Function function)
{
    std::vector<T> x(270), y(270), got(270);
    for (int len = 1; len <= 257; ++len)
        for (const std::size_t at : {1u, 2u, 3u, 7u}) {
            std::fill(y.begin(), y.end(), T{});
            got = x;
            for (std::size_t i = 0; i < static_cast<std::size_t>(len); ++i) {
                std::size_t from;
                do from = random64() % operands.y.size();
                while (isZero(operands.y[from]));
                y[at + i] = operands.y[from];
                x[at + i] = operands.x[from];
            }
            auto want = got;
            for (std::size_t i = at; i < at + static_cast<std::size_t>(len); ++i)
                want[i] = exactQuotient(x[i], y[i], -7);
            ASSERT_EQ(function(&y[at], &x[at], &got[at], len, -7), zorStsOk) << len;
            zors::test::compared(len);
            ASSERT_EQ(std::memcmp(got.data(), want.data(), got.size() * sizeof(T)), 0) << len;
            y[at + static_cast<std::size_t>(len) - 1] = T{};
            ASSERT_EQ(function(&y[at], &x[at], &got[at], len, -7), zorStsDivByZero) << len;
        }
}

TEST(Div, EveryLength)
{
    expectEveryLength(allPairs(), zorsDiv_8u_Sfs);
    expectEveryLength(awkwardPairs<Zor16u>(-7), zorsDiv_16u_Sfs);
    expectEveryLength(awkwardPairs<Zor16s>(-7), zorsDiv_16s_Sfs);
    expectEveryLength(awkwardComplexPairs(), zorsDiv_16sc_Sfs);
}

TEST(Div, WhateverTheCallersRounding)
{
    const unsigned before = _mm_getcsr();
    for (const unsigned rounding : {_MM_ROUND_NEAREST, _MM_ROUND_DOWN, _MM_ROUND_UP, _MM_ROUND_TOWARD_ZERO})
        for (const unsigned flush : {0x0u, 0x8040u}) {
            constexpr unsigned flags = 0x3f;
            const unsigned control = (before & ~0xe07fu) | rounding | flush;
            const auto held = [=](auto function) {
                return [=](auto... a) {
                    _mm_setcsr(control);
                    const ZorStatus status = function(a...);
                    const unsigned after = _mm_getcsr();
                    _mm_setcsr(before);
                    EXPECT_EQ(after & ~flags, control & ~flags);
                    return status;
                };
            };
            expectAllModes(allPairs(), held(zorsDiv_8u_Sfs), held(zorsDiv_Round_8u_Sfs), -3);
            for (const int s : {-31, -20, -7, -6, -5, 0, 1, 3, 16}) {
                expectAllModes(awkwardPairs<Zor16u>(s), held(zorsDiv_16u_Sfs), held(zorsDiv_Round_16u_Sfs),
                               s);
                expectAllModes(awkwardPairs<Zor16s>(s), held(zorsDiv_16s_Sfs), held(zorsDiv_Round_16s_Sfs),
                               s);
                expectQuotients(
                    awkwardComplexPairs(), [=](auto... a) { return held(zorsDiv_16sc_Sfs)(a..., s); },
                    [=](Zor16sc x, Zor16sc y) { return exactQuotient(x, y, s); }, "complex");
            }
        }
}

// Constants: the same quotients, with the constant in the place of either vector.
template <class T, class Function, class InPlace>
void expectByConstant(const Operands<T>& operands, Function function, InPlace inPlace)
{
    const auto& x = operands.x;
    std::vector<T> got(x.size()), again;
    for (std::size_t i = 0; i < 40; ++i) {
        const T y = operands.y[i * 37 % x.size()];
        if (isZero(y)) continue;
        for (const int s : {-31, -9, -1, 0, 1, 5}) {
            ASSERT_EQ(function(x.data(), y, got.data(), operands.size(), s), zorStsOk);
            again = x;
            ASSERT_EQ(inPlace(y, again.data(), operands.size(), s), zorStsOk);
            zors::test::compared(2 * operands.size());
            for (std::size_t j = 0; j < x.size(); ++j) {
                const T want = exactQuotient(x[j], y, s);
                ASSERT_EQ(std::memcmp(&got[j], &want, sizeof want), 0);
                ASSERT_EQ(std::memcmp(&again[j], &want, sizeof want), 0);
            }
        }
    }
}

TEST(DivC, Quotients)
{
    expectByConstant(allPairs(), zorsDivC_8u_Sfs, zorsDivC_8u_ISfs);
    expectByConstant(awkwardPairs<Zor16u>(-9), zorsDivC_16u_Sfs, zorsDivC_16u_ISfs);
    expectByConstant(awkwardPairs<Zor16s>(-9), zorsDivC_16s_Sfs, zorsDivC_16s_ISfs);
    expectByConstant(awkwardComplexPairs(), zorsDivC_16sc_Sfs, zorsDivC_16sc_ISfs);
}

TEST(DivC, ZeroInUnsignedSixteenBitsIsAWarning)
{
    const Zor16u src[] = {0, 1, 65535};
    Zor16u dst[3] = {7, 7, 7};
    EXPECT_EQ(zorsDivC_16u_Sfs(src, 0, dst, 3, 40), zorStsDivByZero);
    EXPECT_EQ(std::vector<Zor16u>(dst, dst + 3), (std::vector<Zor16u>{0, 65535, 65535}));
}

TEST(DivC, SixtyFourBits)
{
    for (const int s : scaleFactors(-128, 66)) {
        const auto pairs = awkwardPairs<Zor64s>(s, 30);
        for (std::size_t i = 0; i < pairs.y.size(); ++i) {
            Zor64s value[2] = {pairs.x[i], 0};
            const Zor64s want = exactQuotient<Zor64s>(Wide{value[0]}, Wide{pairs.y[i]}, s);
            const ZorStatus status = pairs.y[i] == 0 ? zorStsDivByZero : zorStsOk;
            ASSERT_EQ(zorsDivC_64s_ISfs(pairs.y[i], value, 2, s), status);
            ASSERT_EQ(value[0], want) << pairs.x[i] << " / " << pairs.y[i] << ", scale factor " << s;
            ASSERT_EQ(value[1], 0);
        }
    }
}

TEST(DivCRev, SixteenBits)
{
    std::vector<Zor16u> src(65536), got(src.size());
    for (std::size_t i = 0; i < src.size(); ++i) src[i] = static_cast<Zor16u>(i);
    for (const int val : {0, 1, 2, 3, 255, 4096, 32767, 65534, 65535}) {
        const auto dividend = static_cast<Zor16u>(val);
        ASSERT_EQ(zorsDivCRev_16u(src.data(), dividend, got.data(), 65536), zorStsDivByZero);
        for (std::size_t i = 0; i < src.size(); ++i)
            ASSERT_EQ(got[i], exactQuotient(dividend, src[i], 0)) << val;
    }
    EXPECT_EQ(zorsDivCRev_16u(&src[1], 5, got.data(), 65535), zorStsOk);
}

TEST(FloatingDiv, RealQuotientsAreThoseOfTheLanguage)
{
    const auto expect = [](auto type, auto div, auto divC) {
        using T = decltype(type);
        const std::vector<T> special = {0,
                                        -T(0),
                                        1,
                                        T(3),
                                        -T(7),
                                        INFINITY,
                                        std::numeric_limits<T>::min(),
                                        std::numeric_limits<T>::denorm_min(),
                                        std::numeric_limits<T>::max()};
        for (const T y : special) {
            std::vector<T> divisors(special.size(), y), got(special.size()), byConstant(special.size());
            const int len = static_cast<int>(special.size());
            ASSERT_EQ(div(divisors.data(), special.data(), got.data(), len), zorStsOk);
            ASSERT_EQ(divC(special.data(), y, byConstant.data(), len), zorStsOk);
            for (std::size_t i = 0; i < special.size(); ++i) {
                const T want = special[i] / y;
                EXPECT_TRUE(std::isnan(want) ? std::isnan(got[i])
                                             : std::memcmp(&got[i], &want, sizeof want) == 0);
                EXPECT_EQ(std::memcmp(&got[i], &byConstant[i], sizeof want), 0);
            }
        }
    };
    expect(0.0f, zorsDiv_32f, zorsDivC_32f);
    expect(0.0, zorsDiv_64f, zorsDivC_64f);
}

TEST(FloatingDiv, TheEndOfAVectorRaisesNoException)
{
    const std::vector<Zor32f> one(33, 1);
    const std::vector<Zor32fc> ones(33, {1, 1});
    const std::vector<Zor64fc> longOnes(33, {1, 1});
    std::vector<Zor32f> real(33);
    std::vector<Zor32fc> single(33);
    std::vector<Zor64fc> twice(33);
    for (int len = 1; len <= 33; ++len) {
        std::feclearexcept(FE_ALL_EXCEPT);
        zorsDiv_32f(one.data(), one.data(), real.data(), len);
        zorsDivCRev_32f(one.data(), 1, real.data(), len);
        zorsDiv_32fc(ones.data(), ones.data(), single.data(), len);
        zorsDiv_64fc(longOnes.data(), longOnes.data(), twice.data(), len);
        EXPECT_EQ(std::fetestexcept(FE_INVALID | FE_DIVBYZERO), 0) << len;
    }
}

struct Quotient {
    long double re, im;
};

template <class C>
Quotient reference(C x, C y)
{
    const long double a = x.re, b = x.im, c = y.re, d = y.im, norm = c * c + d * d;
    return {(a * c + b * d) / norm, (b * c - a * d) / norm};
}

// A number with an exponent of up to most, either sign.
template <class T>
T anyFloat(int most)
{
    const auto bits = random64();
    const int exponent = static_cast<int>(bits % static_cast<unsigned>(2 * most + 1)) - most;
    const T value = std::ldexp(T(1) + static_cast<T>(bits >> 12) * T(0x1p-52), exponent);
    return bits & 0x800 ? -value : value;
}

template <class C, class Div, class DivC, class Check>
void expectComplex(Div div, DivC divC, int most, int spread, Check check)
{
    using T = decltype(C::re);
    for (int i = 0; i < 20000; ++i) {
        const int size = i % 2 ? 0 : most;
        const auto any = [=](T unit) { return C{unit * anyFloat<T>(spread), unit * anyFloat<T>(spread)}; };
        C x = any(anyFloat<T>(size));
        C y = any(anyFloat<T>(size));
        if (i % 5 == 0) y = {x.re, x.im * (T(1) + std::numeric_limits<T>::epsilon())}; // all but real
        C got, byConstant;
        ASSERT_EQ(div(&y, &x, &got, 1), zorStsOk);
        ASSERT_EQ(divC(&x, y, &byConstant, 1), zorStsOk);
        ASSERT_EQ(std::memcmp(&got, &byConstant, sizeof got), 0);
        check(got, reference(x, y));
    }
}

TEST(FloatingDiv, SingleComplexWithinTheBound)
{
    expectComplex<Zor32fc>(zorsDiv_32fc, zorsDivC_32fc, 100, 20, [](Zor32fc got, Quotient want) {
        const auto within = [](Zor32f part, long double exact) {
            if (std::fabs(exact) < FLT_MIN) return std::fabs(part - exact) <= 0x1p-149L;
            if (std::fabs(exact) > FLT_MAX) return std::fabs(part) >= FLT_MAX;
            const long double unit = std::ldexp(1.0L, std::ilogb(exact) - 23);
            return std::fabs(part - exact) <= (0.5L + 0x1p-26L) * unit;
        };
        ASSERT_TRUE(within(got.re, want.re)) << got.re << " instead of " << want.re;
        ASSERT_TRUE(within(got.im, want.im)) << got.im << " instead of " << want.im;
    });
}

TEST(FloatingDiv, DoubleComplexWithinTheBound)
{
    expectComplex<Zor64fc>(zorsDiv_64fc, zorsDivC_64fc, 980, 20, [](Zor64fc got, Quotient want) {
        const long double size = std::hypot(want.re, want.im);
        if (size > DBL_MAX) {
            EXPECT_TRUE(std::isinf(got.re) || std::isinf(got.im)) << want.re << " " << want.im;
            return;
        }
        // Below the normal numbers the parts have a fixed unit.
        const long double bound = 6 * 0x1p-53L * size + 0x1p-1074L;
        ASSERT_LE(std::hypot(got.re - want.re, got.im - want.im), bound) << want.re << " " << want.im;
    });
}

TEST(FloatingDiv, NothingOverflowsOnTheWay)
{
    const Zor64fc large = {DBL_MAX, DBL_MAX}, small = {DBL_TRUE_MIN, DBL_TRUE_MIN}, x = {0, DBL_MAX};
    Zor64fc got;
    for (const auto& v : {large, small}) {
        zorsDiv_64fc(&v, &v, &got, 1);
        EXPECT_TRUE(got.re == 1 && got.im == 0) << got.re << " " << got.im;
    }
    zorsDiv_64fc(&large, &x, &got, 1);
    EXPECT_TRUE(got.re == 0.5 && got.im == 0.5) << got.re << " " << got.im;
}

TEST(FloatingDiv, AComplexZeroDividesAsItsRealPart)
{
    const Zor32fc zero[] = {{0, 0}, {-0.0f, 0}}, x[] = {{1, -2}, {0, 3}};
    const Zor64fc longZero[] = {{0, 0}, {-0.0, 0}}, longX[] = {{1, -2}, {0, 3}};
    Zor32fc got[2];
    Zor64fc longGot[2];
    zorsDiv_32fc(zero, x, got, 2);
    zorsDiv_64fc(longZero, longX, longGot, 2);
    EXPECT_TRUE(got[0].re == INFINITY && got[0].im == -INFINITY);
    EXPECT_TRUE(std::isnan(got[1].re) && got[1].im == -INFINITY);
    EXPECT_TRUE(longGot[0].re == INFINITY && longGot[0].im == -INFINITY);
    EXPECT_TRUE(std::isnan(longGot[1].re) && longGot[1].im == -INFINITY);
}

} // namespace
