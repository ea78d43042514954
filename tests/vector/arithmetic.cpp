// Arithmetic against one operation of a floating-point type at a time, bit for bit, and of integers in 128 bits.
#include "support/oracle.h"

#include <zors.h>

#include <cfloat>
#include <climits>
#include <cmath>
#include <numeric>

namespace {

using namespace zors::test;
using Exact = __int128;

// x * 2^-scaleFactor to nearest, ties to even, saturated; 0 above the factor that a function gives up at.
template <class T>
T scaled(Exact x, int scaleFactor, int zeroAbove = INT_MAX)
{
    const Exact least = std::numeric_limits<T>::min(), most = std::numeric_limits<T>::max();
    if (scaleFactor > std::min(zeroAbove, 100)) return 0;
    if (scaleFactor > 0) {
        const Exact half = Exact{1} << (scaleFactor - 1), rest = x & (2 * half - 1);
        x >>= scaleFactor;
        if (rest > half || (rest == half && (x & 1))) ++x;
    }
    for (int s = scaleFactor; s < 0 && x != 0 && x >= least && x <= most; ++s) x *= 2;
    return static_cast<T>(std::clamp(x, least, most));
}

template <class P>
struct Pair {
    P re, im;

    friend Pair operator+(Pair a, Pair b) { return {a.re + b.re, a.im + b.im}; }
    friend Pair operator-(Pair a, Pair b) { return {a.re - b.re, a.im - b.im}; }
    friend Pair operator*(P a, Pair b) { return {a * b.re, a * b.im}; }
    friend Pair operator*(Pair a, Pair b) { return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re}; }
};

// What an operation works on: floating-point types themselves, integers in as many bits as it takes.
template <class T>
auto wide(T v)
{
    if constexpr (Complex<T>)
        return Pair<decltype(wide(v.re))>{wide(v.re), wide(v.im)};
    else
        return std::conditional_t<std::is_floating_point_v<T>, T, Exact>(v);
}

// The element that an exact result gives.
template <class T, class Result>
T narrow(Result v, int scaleFactor, int zeroAbove)
{
    if constexpr (Complex<T>)
        return {narrow<decltype(T::re)>(v.re, scaleFactor, zeroAbove),
                narrow<decltype(T::im)>(v.im, scaleFactor, zeroAbove)};
    else if constexpr (std::is_floating_point_v<T>)
        return static_cast<T>(v);
    else
        return scaled<T>(v, scaleFactor, zeroAbove);
}

constexpr int factors[] = {0,   1,   2,   3,   7,    8,     9,       14,      15,         16,  17,
                           29,  30,  31,  32,  33,   47,    61,      62,      63,         64,  -1,
                           -2,  -6,  -7,  -8,  -14,  -15,   -16,     -29,     -30,        -31, -32,
                           -62, -63, -64, 100, 4000, -4000, INT_MAX, INT_MIN, INT_MIN + 1};

// All factors at some lengths, and all lengths at some factor. What stands behind the length is a factor or nothing.
template <class A, class B, class D, class... Factor, class Call, class Operation>
void expectCases(Call call, Operation operation, int zeroAbove = INT_MAX)
{
    const auto compare = [&](int len, int factor) {
        if (testing::Test::HasFatalFailure()) return;
        expectEach<A, B, D>(
            len, [&](auto... a) { return call(a..., Factor(factor)...); },
            [&](A a, B b, D old) {
                return narrow<D>(operation(wide(a), wide(b), wide(old)), (0 + ... + Factor(factor)),
                                 zeroAbove);
            });
    };
    for (const int factor : factors)
        for (const int len : {1, 5, 63, 1003}) compare(len, factor);
    for (int len = 1; len <= 257; ++len) compare(len, factors[len % std::ssize(factors)]);
}

// The shapes of arguments: two sources; a source and the destination; either with a constant, the first element of
// another source.
template <class A, class B, class D, class... Factor, class Operation>
void expect(Operation operation, ZorStatus (*function)(const A*, const B*, D*, int, Factor...),
            int zeroAbove = INT_MAX)
{
    expectCases<A, B, D, Factor...>(function, operation, zeroAbove);
}

template <class A, class D, class... Factor, class Operation>
void expect(Operation operation, ZorStatus (*function)(const A*, D*, int, Factor...), int zeroAbove = INT_MAX)
{
    expectCases<A, A, D, Factor...>(
        [=](auto* a, auto*, D* p, auto... rest) { return function(a, p, rest...); },
        [=](auto a, auto, auto old) { return operation(a, old); }, zeroAbove);
}

template <class T, class... Factor, class Operation>
void expect(Operation operation, ZorStatus (*function)(const T*, T, T*, int, Factor...))
{
    T val{};
    expectCases<T, T, T, Factor...>(
        [&](auto* a, auto* b, T* p, auto... rest) { return function(a, val = *b, p, rest...); },
        [&](auto a, auto, auto) { return operation(a, wide(val)); });
}

template <class T, class... Factor, class Operation>
void expect(Operation operation, ZorStatus (*function)(T, T*, int, Factor...))
{
    T val{};
    expectCases<T, T, T, Factor...>(
        [&](auto*, auto* b, T* p, auto... rest) { return function(val = *b, p, rest...); },
        [&](auto, auto, auto old) { return operation(old, wide(val)); });
}

template <class Operation, class... Function>
void each(Operation operation, Function... function)
{
    (expect(operation, function), ...);
}

// The operands in the order of the arguments: what is subtracted or divides comes first.
constexpr auto sum = [](auto a, auto b, auto...) { return a + b; };
constexpr auto difference = [](auto a, auto b, auto...) { return b - a; };
constexpr auto product = [](auto a, auto b, auto...) { return a * b; };
constexpr auto quotient = [](auto a, auto b, auto...) { return b / a; };
constexpr auto productSum = [](auto a, auto b, auto old) { return old + a * b; };
constexpr auto turned = [](auto operation) {
    return [=](auto a, auto b, auto...) { return operation(b, a); };
};

#define PLAIN(name, type) zors##name##_##type, zors##name##_##type##_I
#define SCALED(name, type) zors##name##_##type##_Sfs, zors##name##_##type##_ISfs

#define EXPECT_FAMILY(FORMS, type)                                                                           \
    do {                                                                                                     \
        each(sum, FORMS(Add, type), FORMS(AddC, type));                                                      \
        each(difference, FORMS(Sub, type), FORMS(SubCRev, type));                                            \
        each(turned(difference), FORMS(SubC, type));                                                         \
        each(product, FORMS(Mul, type), FORMS(MulC, type));                                                  \
    } while (false)

TEST(Arithmetic, RoundsEachOperationOnce)
{
    EXPECT_FAMILY(PLAIN, 32f);
    EXPECT_FAMILY(PLAIN, 64f);
    EXPECT_FAMILY(PLAIN, 32fc);
    EXPECT_FAMILY(PLAIN, 64fc);
    each(quotient, PLAIN(Div, 32f), PLAIN(Div, 64f), PLAIN(DivCRev, 32f));
    each(turned(quotient), PLAIN(DivC, 32f), PLAIN(DivC, 64f));
    each(productSum, zorsAddProduct_32f, zorsAddProduct_64f, zorsAddProduct_32fc, zorsAddProduct_64fc);
}

TEST(Arithmetic, ScalesRoundsAndSaturatesIntegers)
{
    EXPECT_FAMILY(PLAIN, 16s);
    EXPECT_FAMILY(SCALED, 8u);
    EXPECT_FAMILY(SCALED, 16u);
    EXPECT_FAMILY(SCALED, 16s);
    EXPECT_FAMILY(SCALED, 32s);
    EXPECT_FAMILY(SCALED, 16sc);
    EXPECT_FAMILY(SCALED, 32sc);
    expect(sum, zorsAdd_64s_Sfs, 63);
    expect(sum, zorsAdd_64s_ISfs, 63);
    expect(product, zorsMul_Low_32s_Sfs);
    each(productSum, zorsAddProduct_16s_Sfs, zorsAddProduct_16s32s_Sfs);
    expect(productSum, zorsAddProduct_32s_Sfs, 62);
}

TEST(Arithmetic, MixedTypes)
{
    each(sum, zorsAdd_8u16u, zorsAdd_16s32f, zorsAdd_16s32s_I);
    each(difference, zorsSub_16s32f);
    // As a floating-point product, which may be a negative zero.
    expect([](auto a, auto b, auto) { return static_cast<float>(a) * static_cast<float>(b); },
           zorsMul_16s32f);
    each(product, PLAIN(Mul, 32f32fc), zorsMul_16u16s_Sfs, zorsMul_16s32s_Sfs, SCALED(Mul, 32s32sc));
}

template <class T, class... Factor>
void expectPieces(ZorStatus (*function)(const T*, T, T*, int, Factor...), Factor... factor)
{
    Random random;
    const T val = {1000, -3};
    const int len = static_cast<int>(longBytes / static_cast<std::ptrdiff_t>(sizeof(T))) + 3, most = 4099;
    RandomVector<T> src(len, 0, random), got(len, 1, random), want = got;
    std::generate_n(src.data(), len, [&] { return element<T>(random); });
    for (int n = 0; n < len; n += most)
        function(src.data() + n, val, want.data() + n, std::min(most, len - n), factor...);
    expectResult(function(src.data(), val, got.data(), len, factor...), got, want, len, __PRETTY_FUNCTION__);
}

// A long vector is what its pieces are: its steps meet complex constants at whole elements, even where the destination
// is aligned to a part only.
TEST(Arithmetic, ComplexConstantsInLongVectors)
{
    expectPieces(zorsAddC_16sc_Sfs, 1);
    expectPieces(zorsSubC_16sc_Sfs, 0);
    expectPieces(zorsMulC_16sc_Sfs, 3);
    expectPieces(zorsAddC_32sc_Sfs, 2);
    expectPieces(zorsSubCRev_32sc_Sfs, 1);
    expectPieces(zorsAddC_32fc);
    expectPieces(zorsMulC_64fc);
}

// All pairs of 8-bit elements at every factor that makes a difference.
TEST(Arithmetic, AllPairsOf8Bits)
{
    const auto all = everyValue<Zor8u>();
    const auto check = [&](auto operation, auto function) {
        for (int factor = -9; factor <= 18; ++factor)
            for (const Zor8u c : all) {
                SCOPED_TRACE(testing::Message() << +c << ", factor " << factor);
                const std::vector<Zor8u> other(all.size(), c);
                expectValues<Zor8u>(
                    all, [&](auto* a, auto* p, int len) { return function(a, other.data(), p, len, factor); },
                    elementwise([&](Zor8u a) { return scaled<Zor8u>(operation(wide(a), wide(c)), factor); }));
            }
    };
    check(sum, zorsAdd_8u_Sfs);
    check(difference, zorsSub_8u_Sfs);
    check(product, zorsMul_8u_Sfs);
}

// The exact product, scaled, to nearest with ties to even: of ties and their neighbours, and of anything at all.
TEST(Arithmetic, FloatProductsAsIntegers)
{
    for (const int scaleFactor : {0, 1, 15, -3, -15, 40, -40, 300, -300, INT_MAX, INT_MIN})
        for (const Zor32f val : {8.0f, 0x1.000002p3f, FLT_MIN}) {
            const auto function = [=](const Zor32f* p, Zor16s* pDst, int len) {
                return zorsMulC_32f16s_Sfs(p, val, pDst, len, scaleFactor);
            };
            const auto product16 = [=](Zor32f v) {
                const double exact = std::ldexp(double{v} * val, -std::clamp(scaleFactor, -700, 700));
                if (std::isnan(exact)) return Zor16s{0};
                return static_cast<Zor16s>(std::nearbyint(std::clamp(exact, -32768.0, 32767.0)));
            };
            std::vector<Zor32f> halves;
            for (int twice = -4095; twice <= 4095; ++twice)
                halves.push_back(
                    std::ldexp(static_cast<Zor32f>(twice), std::clamp(scaleFactor, -60, 60) - 4));
            std::vector<Zor16s> got(halves.size()), want = got;
            std::transform(halves.begin(), halves.end(), want.begin(), product16);
            ASSERT_EQ(function(halves.data(), got.data(), static_cast<int>(halves.size())), zorStsOk);
            ASSERT_EQ(got, want) << val << ", factor " << scaleFactor;
            expectSame<Zor32f, Zor16s>(function, elementwise(product16), {}, Lengths::small);
        }
}

} // namespace
