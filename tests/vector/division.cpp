// Integer quotients by long division; complex floating-point ones within their bounds. (Real ones are arithmetic.)
#include "support/oracle.h"

#include <zors.h>

#include <cfenv>
#include <cfloat>
#include <climits>
#include <cmath>
#include <complex>

namespace {

using namespace zors::test;
using Wide = __int128;

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

template <class T>
T quotient(T x, T y, int scaleFactor, ZorRoundMode rndMode = zorRndNear)
{
    if constexpr (Complex<T>) {
        const Wide norm = Wide{y.re} * y.re + Wide{y.im} * y.im;
        if (norm == 0) return {quotient<Zor16s>(x.re, 0, 0), quotient<Zor16s>(x.im, 0, 0)};
        return {exactQuotient<Zor16s>(Wide{x.re} * y.re + Wide{x.im} * y.im, norm, scaleFactor),
                exactQuotient<Zor16s>(Wide{x.im} * y.re - Wide{x.re} * y.im, norm, scaleFactor)};
    } else {
        return exactQuotient<T>(x, y, scaleFactor, rndMode);
    }
}

template <class T>
bool isZero(T v)
{
    return same(v, T{});
}

// Divisors and dividends.
template <class T>
struct Operands {
    std::vector<T> y, x;

    void add(T divisor, T dividend)
    {
        y.push_back(divisor);
        x.push_back(dividend);
    }
};

Random random64;

Operands<Zor8u> allPairs()
{
    Operands<Zor8u> all;
    for (int y = 0; y < 256; ++y)
        for (int x = 0; x < 256; ++x) all.add(static_cast<Zor8u>(y), static_cast<Zor8u>(x));
    return all;
}

// Numbers of all sizes, the ends of the range, and for a scale factor ties, their neighbours and the quotients that
// come closest to a boundary without being on it.
template <class T>
Operands<T> awkwardPairs(int scaleFactor, int count = 400)
{
    constexpr Wide least = std::numeric_limits<T>::min(), most = std::numeric_limits<T>::max();
    Operands<T> all;
    const auto add = [&](Wide y, Wide x) {
        if (least <= x && x <= most) all.add(static_cast<T>(y), static_cast<T>(x));
    };
    for (const Wide y : {least, most, Wide{0}, Wide{1}, Wide{2}, Wide{3}})
        for (const Wide x : {least, most, Wide{0}, Wide{1}, Wide{5}}) add(y, x);
    for (int i = 0; i < count; ++i) {
        all.add(element<T>(random64), element<T>(random64));
        // The dividend of the tie (2k + 1) * 2^(s-1), where it is a whole number.
        const Wide y = element<T>(random64), odd = 2 * Wide{element<Zor16s>(random64)} + 1;
        const int s = std::clamp(scaleFactor, -40, 40);
        const Wide x = s > 0 ? y * odd << (s - 1) : y * odd >> (1 - s);
        for (const Wide beside : {-1, 0, 1}) add(y, x + beside);
    }
    for (int i = 0; i < count && scaleFactor < 0; ++i) {
        // x * 2^(1 - s) leaves the remainder 1 or -1 by an odd y.
        const Wide y = static_cast<T>(random64()) | 1;
        if (y < 3) continue;
        Wide x = 1;
        for (int place = std::max(scaleFactor, -130); place <= 0; ++place) x = (x % 2 ? x + y : x) / 2;
        add(y, x);
        add(y, y - x);
    }
    return all;
}

Operands<Zor16sc> awkwardComplexPairs()
{
    Operands<Zor16sc> all;
    for (int i = 0; i < 3000; ++i) all.add(element<Zor16sc>(random64), element<Zor16sc>(random64));
    return all;
}

std::vector<int> scaleFactors(int first, int last)
{
    std::vector<int> all = {INT_MIN, INT_MIN + 1, -200, -65, 65, 200, INT_MAX};
    for (int s = first; s <= last; ++s) all.push_back(s);
    return all;
}

template <class T, class Function>
void expectQuotients(const Operands<T>& operands, Function function, int s, ZorRoundMode mode = zorRndNear)
{
    const auto& [y, x] = operands;
    std::vector<T> got(x.size());
    const int len = static_cast<int>(x.size());
    const bool byZero = std::any_of(y.begin(), y.end(), isZero<T>);
    ASSERT_EQ(function(y.data(), x.data(), got.data(), len, s), byZero ? zorStsDivByZero : zorStsOk);
    compared(len);
    for (std::size_t i = 0; i < x.size(); ++i) {
        const T want = quotient(x[i], y[i], s, mode);
        ASSERT_TRUE(same(got[i], want))
            << testing::PrintToString(x[i]) << " / " << testing::PrintToString(y[i]) << " gave "
            << testing::PrintToString(got[i]) << " instead of " << testing::PrintToString(want)
            << ", scale factor " << s << ", mode " << mode;
    }
}

template <class T, class Plain, class Round>
void expectAllModes(const Operands<T>& operands, Plain plain, Round round, int s)
{
    for (const ZorRoundMode mode : {zorRndZero, zorRndNear, zorRndFinancial})
        expectQuotients(operands, with(round, mode), s, mode);
    expectQuotients(operands, plain, s);
}

// All members at the scale factors given for each size of elements, as held calls them.
template <class Held>
void expectMembers(const std::vector<int>& of8, const std::vector<int>& of16,
                   const std::vector<int>& ofComplex, Held held)
{
    const auto bytes = allPairs();
    const auto complex = awkwardComplexPairs();
    for (const int s : of8) expectAllModes(bytes, held(zorsDiv_8u_Sfs), held(zorsDiv_Round_8u_Sfs), s);
    for (const int s : of16) {
        expectAllModes(awkwardPairs<Zor16u>(s), held(zorsDiv_16u_Sfs), held(zorsDiv_Round_16u_Sfs), s);
        expectAllModes(awkwardPairs<Zor16s>(s), held(zorsDiv_16s_Sfs), held(zorsDiv_Round_16s_Sfs), s);
    }
    for (const int s : ofComplex) expectQuotients(complex, held(zorsDiv_16sc_Sfs), s);
}

TEST(Div, AtEveryScaleFactor)
{
    expectMembers(scaleFactors(-17, 10), scaleFactors(-34, 19), scaleFactors(-50, 20),
                  [](auto function) { return function; });
}

TEST(Div, WhateverTheCallersRounding)
{
    const std::vector<int> few = {-31, -20, -7, -6, -5, 0, 1, 3, 16};
    for (const unsigned rounding : roundings)
        for (const unsigned flush : {0x0u, 0x8040u})
            expectMembers({-3}, few, few, [=](auto function) { return under(rounding | flush, function); });
}

// A zero in the vector raises the warning, those beside it do not.
template <class T>
void expectEveryLength(ZorStatus (*function)(const T*, const T*, T*, int, int), T one)
{
    for (int len = 1; len <= 257; ++len)
        for (const std::size_t at : {1u, 2u, 3u, 7u})
            expectEach<T, T, T>(
                len,
                [=](auto* y, auto* x, T* p, int n) {
                    const std::size_t last = at + static_cast<std::size_t>(n) - 1;
                    std::vector<T> divisors(last + 2), got(last);
                    std::replace_copy_if(y, y + n, &divisors[at], isZero<T>, one);
                    const ZorStatus status = function(&divisors[at], x, p, n, -7);
                    divisors[last] = T{};
                    EXPECT_EQ(function(&divisors[at], x, got.data(), n, -7), zorStsDivByZero) << n;
                    return status;
                },
                [=](T y, T x, T) { return quotient(x, isZero(y) ? one : y, -7); });
}

TEST(Div, EveryLength)
{
    expectEveryLength(zorsDiv_8u_Sfs, Zor8u{1});
    expectEveryLength(zorsDiv_16u_Sfs, Zor16u{1});
    expectEveryLength(zorsDiv_16s_Sfs, Zor16s{1});
    expectEveryLength(zorsDiv_16sc_Sfs, Zor16sc{1, 0});
}

// Constants: the same quotients, with the constant in the place of either vector. Zero is one in unsigned words only.
template <class T>
void expectByConstant(Operands<T> operands, ZorStatus (*function)(const T*, T, T*, int, int))
{
    const std::vector<T> divisors = operands.y;
    for (std::size_t i = 0; i < 40; ++i) {
        const T y = divisors[i * 37 % divisors.size()];
        if (isZero(y) && !std::is_same_v<T, Zor16u>) continue;
        operands.y.assign(divisors.size(), y);
        for (const int s : {-31, -9, -1, 0, 1, 5, 40})
            expectQuotients(
                operands, [=](auto*, auto* x, auto... rest) { return function(x, y, rest...); }, s);
    }
}

TEST(DivC, Quotients)
{
    expectByConstant(allPairs(), zorsDivC_8u_Sfs);
    expectByConstant(awkwardPairs<Zor16u>(-9), zorsDivC_16u_Sfs);
    expectByConstant(awkwardPairs<Zor16s>(-9), zorsDivC_16s_Sfs);
    expectByConstant(awkwardComplexPairs(), zorsDivC_16sc_Sfs);
}

TEST(DivC, SixtyFourBits)
{
    for (const int s : scaleFactors(-128, 66)) {
        const auto pairs = awkwardPairs<Zor64s>(s, 30);
        for (std::size_t i = 0; i < pairs.y.size(); ++i)
            expectQuotients<Zor64s>(
                {{pairs.y[i], 1}, {pairs.x[i], 0}},
                [](auto* y, auto* x, Zor64s* p, int len, int factor) {
                    std::copy_n(x, len, p);
                    return zorsDivC_64s_ISfs(*y, p, len, factor);
                },
                s);
    }
}

TEST(DivCRev, SixteenBits)
{
    Operands<Zor16u> operands{std::vector<Zor16u>(65536), {}};
    std::iota(operands.y.begin(), operands.y.end(), Zor16u{0});
    const auto divide = [](auto* y, auto* x, auto* p, int len, int) {
        return zorsDivCRev_16u(y, *x, p, len);
    };
    for (const int val : {0, 1, 2, 3, 255, 4096, 32767, 65534, 65535}) {
        operands.x.assign(operands.y.size(), static_cast<Zor16u>(val));
        expectQuotients(operands, divide, 0);
    }
    operands.y[0] = 1;
    expectQuotients(operands, divide, 0);
}

TEST(FloatingDiv, TheEndOfAVectorRaisesNoException)
{
    const auto expect = [](auto one, auto divide) {
        const std::vector ones(33, one);
        std::vector got = ones;
        for (int len = 1; len <= 33; ++len) {
            std::feclearexcept(FE_ALL_EXCEPT);
            divide(ones.data(), ones.data(), got.data(), len);
            EXPECT_EQ(std::fetestexcept(FE_INVALID | FE_DIVBYZERO), 0) << len;
        }
    };
    expect(1.0f, zorsDiv_32f);
    expect(1.0f, [](auto* y, auto* x, auto* p, int len) { zorsDivCRev_32f(y, *x, p, len); });
    expect(Zor32fc{1, 1}, zorsDiv_32fc);
    expect(Zor64fc{1, 1}, zorsDiv_64fc);
}

template <class C>
std::complex<long double> reference(C x, C y)
{
    const long double a = x.re, b = x.im, c = y.re, d = y.im, norm = c * c + d * d;
    return {(a * c + b * d) / norm, (b * c - a * d) / norm};
}

// A number with an exponent of up to most, either sign.
template <class T>
T anyFloat(int most)
{
    const auto bits = random64();
    const T value =
        std::ldexp(T(1) + static_cast<T>(bits >> 12) * T(0x1p-52), below(2 * most + 1, random64) - most);
    return bits & 0x800 ? -value : value;
}

template <class C, class Div, class DivC, class Within>
void expectComplex(Div div, DivC divC, int most, Within within)
{
    using T = decltype(C::re);
    const auto any = [](T unit) { return C{unit * anyFloat<T>(20), unit * anyFloat<T>(20)}; };
    for (int i = 0; i < 4000; ++i) {
        const int len = 1 + i % 9;
        C x[9], y[9], got[9], byConstant;
        for (C* p : {x, y}) std::generate_n(p, len, [&] { return any(anyFloat<T>(i % 2 ? 0 : most)); });
        y[0] = {x[0].re, x[0].im * (T(1) + std::numeric_limits<T>::epsilon())}; // all but real
        ASSERT_EQ(div(y, x, got, len), zorStsOk);
        for (int n = 0; n < len; ++n) {
            ASSERT_EQ(divC(&x[n], y[n], &byConstant, 1), zorStsOk);
            ASSERT_TRUE(same(got[n], byConstant));
            ASSERT_TRUE(within(got[n], reference(x[n], y[n]))) << got[n].re << " " << got[n].im;
        }
        compared(2 * len);
    }
}

TEST(FloatingDiv, ComplexWithinTheBounds)
{
    using Exact = std::complex<long double>;
    expectComplex<Zor32fc>(zorsDiv_32fc, zorsDivC_32fc, 100, [](Zor32fc got, Exact want) {
        const auto within = [](Zor32f part, long double exact) {
            if (std::fabs(exact) < FLT_MIN) return std::fabs(part - exact) <= 0x1p-149L;
            if (std::fabs(exact) > FLT_MAX) return std::fabs(part) >= FLT_MAX;
            const long double unit = std::ldexp(1.0L, std::ilogb(exact) - 23);
            return std::fabs(part - exact) <= (0.5L + 0x1p-26L) * unit;
        };
        return within(got.re, want.real()) && within(got.im, want.imag());
    });
    expectComplex<Zor64fc>(zorsDiv_64fc, zorsDivC_64fc, 980, [](Zor64fc got, Exact want) {
        // Below the normal numbers the parts have a fixed unit.
        const long double bound = 6 * 0x1p-53L * std::abs(want) + 0x1p-1074L;
        if (std::isinf(got.re) || std::isinf(got.im))
            return std::max(std::fabs(want.real()), std::fabs(want.imag())) + bound > DBL_MAX;
        return std::abs(Exact(got.re, got.im) - want) <= bound;
    });
}

template <class C>
void expectDivides(ZorStatus (*divide)(const C*, const C*, C*, int), C x, C y, C want)
{
    C got;
    EXPECT_EQ(divide(&y, &x, &got, 1), zorStsOk);
    EXPECT_TRUE(same(got, want)) << got.re << " " << got.im << " instead of " << want.re << " " << want.im;
}

TEST(FloatingDiv, NothingOverflowsOnTheWay)
{
    const Zor64fc large = {DBL_MAX, DBL_MAX}, small = {DBL_TRUE_MIN, DBL_TRUE_MIN};
    for (const auto& v : {large, small}) expectDivides<Zor64fc>(zorsDiv_64fc, v, v, {1, 0});
    expectDivides<Zor64fc>(zorsDiv_64fc, {0, DBL_MAX}, large, {0.5, 0.5});
}

TEST(FloatingDiv, AComplexZeroDividesAsItsRealPart)
{
    const auto expect = []<class C>(ZorStatus (*divide)(const C*, const C*, C*, int)) {
        expectDivides<C>(divide, {1, -2}, {0, 0}, {INFINITY, -INFINITY});
        expectDivides<C>(divide, {0, 3}, {-0.0f, 0}, {NAN, -INFINITY});
    };
    expect(zorsDiv_32fc);
    expect(zorsDiv_64fc);
}

} // namespace
