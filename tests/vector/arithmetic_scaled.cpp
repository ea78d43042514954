// The scale-factor rule against arithmetic in 128 bits.
#include "support/oracle.h"

#include <zors.h>

#include <climits>
#include <limits>

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

template <class T>
inline constexpr bool isComplex = requires(T t)
{
    t.re;
};

// What an operation gives for two elements before scaling, part by part.
struct Sum {
    static Exact real(Exact a, Exact b) { return a + b; }
    template <class C>
    static std::pair<Exact, Exact> complex(C a, C b)
    {
        return {Exact{a.re} + b.re, Exact{a.im} + b.im};
    }
};

struct Difference { // the second operand minus the first
    static Exact real(Exact a, Exact b) { return b - a; }
    template <class C>
    static std::pair<Exact, Exact> complex(C a, C b)
    {
        return {Exact{b.re} - a.re, Exact{b.im} - a.im};
    }
};

struct Product {
    static Exact real(Exact a, Exact b) { return a * b; }
    template <class C>
    static std::pair<Exact, Exact> complex(C a, C b)
    {
        return {Exact{a.re} * b.re - Exact{a.im} * b.im, Exact{a.re} * b.im + Exact{a.im} * b.re};
    }
};

template <class Operation, class T>
T expected(T a, T b, int scaleFactor, int zeroAbove = INT_MAX)
{
    if constexpr (isComplex<T>) {
        const auto [re, im] = Operation::complex(a, b);
        using P = decltype(T::re);
        return {scaled<P>(re, scaleFactor, zeroAbove), scaled<P>(im, scaleFactor, zeroAbove)};
    } else {
        return scaled<T>(Operation::real(a, b), scaleFactor, zeroAbove);
    }
}

constexpr int factors[] = {0,   1,   2,   3,   7,    8,     9,       14,      15,         16,  17,
                           29,  30,  31,  32,  33,   47,    61,      62,      63,         64,  -1,
                           -2,  -6,  -7,  -8,  -14,  -15,   -16,     -29,     -30,        -31, -32,
                           -62, -63, -64, 100, 4000, -4000, INT_MAX, INT_MIN, INT_MIN + 1};

// The ends of the range and their neighbours stand among the random elements: that is where bits overflow.
template <class T>
void seed(T* p, int len, Random& random)
{
    using P = std::conditional_t<isComplex<T>, decltype([](T t) {
                                     if constexpr (isComplex<T>)
                                         return t.re;
                                     else
                                         return t;
                                 }(T{})),
                                 T>;
    auto* part = reinterpret_cast<P*>(p);
    const int parts = len * static_cast<int>(sizeof(T) / sizeof(P));
    for (int i = 0; i < parts; ++i) {
        const auto bits = random();
        if (bits % 4 == 0)
            part[i] = static_cast<P>(std::numeric_limits<P>::min() + static_cast<P>(bits / 4 % 3));
        if (bits % 4 == 1)
            part[i] = static_cast<P>(std::numeric_limits<P>::max() - static_cast<P>(bits / 4 % 3));
        if (bits % 4 == 2)
            part[i] = static_cast<P>(static_cast<P>(bits >> 8) >> (bits / 4 % (8 * sizeof(P))));
    }
}

// All factors at some lengths, and all lengths at some factor.
template <class Body>
void eachCase(Body body)
{
    for (const int factor : factors)
        for (const int len : {1, 5, 63, 1003})
            if (!testing::Test::HasFatalFailure()) body(factor, len);
    for (int len = 1; len <= 257; ++len)
        if (!testing::Test::HasFatalFailure()) body(factors[len % std::ssize(factors)], len);
}

// Both forms of a function of two sources, and of a function of a source and a constant, at all factors.
template <class Operation, class T>
void expectTwo(ZorStatus (*outOfPlace)(const T*, const T*, T*, int, int),
               ZorStatus (*inPlace)(const T*, T*, int, int), int zeroAbove = INT_MAX)
{
    Random random;
    eachCase([&](int factor, int len) {
        RandomVector<T> a(len, len % 5, random), b(len, 1, random), got(len, len % 3, random);
        seed(a.data(), len, random);
        seed(b.data(), len, random);
        RandomVector<T> want = got, both = b;
        for (int i = 0; i < len; ++i)
            want.data()[i] = expected<Operation>(a.data()[i], b.data()[i], factor, zeroAbove);
        ASSERT_EQ(outOfPlace(a.data(), b.data(), got.data(), len, factor), zorStsOk);
        compared(len);
        ASSERT_TRUE(got == want) << "factor " << factor << ", length " << len << ", byte "
                                 << got.firstDifference(want);
        if (!inPlace) return;
        ASSERT_EQ(inPlace(a.data(), both.data(), len, factor), zorStsOk);
        ASSERT_EQ(std::memcmp(both.data(), want.data(), static_cast<std::size_t>(len) * sizeof(T)), 0);
    });
}

enum class Constant { first, second };

template <class Operation, class T>
void expectConstant(ZorStatus (*outOfPlace)(const T*, T, T*, int, int), Constant place)
{
    Random random;
    int round = 0;
    eachCase([&](int factor, int len) {
        RandomVector<T> a(len, 1, random), got(len, 2, random), constant(1, 0, random);
        seed(a.data(), len, random);
        seed(constant.data(), ++round % 4 == 0 ? 0 : 1, random);
        const T c = *constant.data();
        RandomVector<T> want = got;
        for (int i = 0; i < len; ++i)
            want.data()[i] = place == Constant::first ? expected<Operation>(c, a.data()[i], factor)
                                                      : expected<Operation>(a.data()[i], c, factor);
        ASSERT_EQ(outOfPlace(a.data(), c, got.data(), len, factor), zorStsOk);
        compared(len);
        ASSERT_TRUE(got == want) << "factor " << factor << ", byte " << got.firstDifference(want);
    });
}

#define TWO(operation, name, type) expectTwo<operation>(zors##name##_##type##_Sfs, zors##name##_##type##_ISfs)

TEST(Scaled, Add)
{
    TWO(Sum, Add, 8u);
    TWO(Sum, Add, 16u);
    TWO(Sum, Add, 16s);
    TWO(Sum, Add, 32s);
    TWO(Sum, Add, 16sc);
    TWO(Sum, Add, 32sc);
    expectTwo<Sum>(zorsAdd_64s_Sfs, zorsAdd_64s_ISfs, 63);
}

TEST(Scaled, Sub)
{
    TWO(Difference, Sub, 8u);
    TWO(Difference, Sub, 16u);
    TWO(Difference, Sub, 16s);
    TWO(Difference, Sub, 32s);
    TWO(Difference, Sub, 16sc);
    TWO(Difference, Sub, 32sc);
}

TEST(Scaled, Mul)
{
    TWO(Product, Mul, 8u);
    TWO(Product, Mul, 16u);
    TWO(Product, Mul, 16s);
    TWO(Product, Mul, 32s);
    TWO(Product, Mul, 16sc);
    TWO(Product, Mul, 32sc);
    expectTwo<Product, Zor32s>(zorsMul_Low_32s_Sfs, nullptr);
}

#define CONSTANT(operation, name, type, place)                                                               \
    expectConstant<operation>(zors##name##_##type##_Sfs, Constant::place)

TEST(Scaled, Constants)
{
    CONSTANT(Sum, AddC, 8u, second);
    CONSTANT(Sum, AddC, 16u, second);
    CONSTANT(Sum, AddC, 16s, second);
    CONSTANT(Sum, AddC, 32s, second);
    CONSTANT(Sum, AddC, 16sc, second);
    CONSTANT(Sum, AddC, 32sc, second);
    CONSTANT(Difference, SubC, 8u, first);
    CONSTANT(Difference, SubC, 16u, first);
    CONSTANT(Difference, SubC, 16s, first);
    CONSTANT(Difference, SubC, 32s, first);
    CONSTANT(Difference, SubC, 16sc, first);
    CONSTANT(Difference, SubC, 32sc, first);
    CONSTANT(Difference, SubCRev, 8u, second);
    CONSTANT(Difference, SubCRev, 16u, second);
    CONSTANT(Difference, SubCRev, 16s, second);
    CONSTANT(Difference, SubCRev, 32s, second);
    CONSTANT(Difference, SubCRev, 16sc, second);
    CONSTANT(Difference, SubCRev, 32sc, second);
    CONSTANT(Product, MulC, 8u, first);
    CONSTANT(Product, MulC, 16u, first);
    CONSTANT(Product, MulC, 16s, first);
    CONSTANT(Product, MulC, 32s, first);
    CONSTANT(Product, MulC, 16sc, first);
    CONSTANT(Product, MulC, 32sc, first);
}

// All pairs of 8-bit elements at every factor that makes a difference.
TEST(Scaled, AllPairsOf8Bits)
{
    Zor8u a[256], b[256], got[256];
    for (int i = 0; i < 256; ++i) a[i] = static_cast<Zor8u>(i);
    const auto check = [&]<class Operation>(auto function, Operation) {
        for (int factor = -9; factor <= 18; ++factor)
            for (int c = 0; c < 256; ++c) {
                std::fill(b, b + 256, static_cast<Zor8u>(c));
                function(a, b, got, 256, factor);
                compared(256);
                for (int i = 0; i < 256; ++i)
                    ASSERT_EQ(got[i], (expected<Operation, Zor8u>(a[i], b[i], factor)))
                        << i << ", " << c << ", factor " << factor;
            }
    };
    check(zorsAdd_8u_Sfs, Sum{});
    check(zorsSub_8u_Sfs, Difference{});
    check(zorsMul_8u_Sfs, Product{});
}

// Sources of several types, and products on top of what is there.
template <class A, class B, class T, class Function, class Oracle>
void expectMixed(Function function, Oracle oracle)
{
    Random random;
    eachCase([&](int factor, int len) {
        RandomVector<A> a(len, 1, random);
        RandomVector<B> b(len, 2, random);
        RandomVector<T> got(len, 3, random);
        seed(a.data(), len, random);
        seed(b.data(), len, random);
        seed(got.data(), len, random);
        RandomVector<T> want = got;
        for (int i = 0; i < len; ++i)
            want.data()[i] = oracle(a.data()[i], b.data()[i], got.data()[i], factor);
        ASSERT_EQ(function(a.data(), b.data(), got.data(), len, factor), zorStsOk);
        compared(len);
        ASSERT_TRUE(got == want) << "factor " << factor << ", byte " << got.firstDifference(want);
    });
}

TEST(Scaled, MixedTypes)
{
    expectMixed<Zor16u, Zor16s, Zor16s>(zorsMul_16u16s_Sfs, [](Exact a, Exact b, Exact, int factor) {
        return scaled<Zor16s>(a * b, factor);
    });
    expectMixed<Zor16s, Zor16s, Zor32s>(zorsMul_16s32s_Sfs, [](Exact a, Exact b, Exact, int factor) {
        return scaled<Zor32s>(a * b, factor);
    });
    const auto realTimesComplex = [](Exact a, Zor32sc b, Zor32sc, int factor) {
        return Zor32sc{scaled<Zor32s>(a * b.re, factor), scaled<Zor32s>(a * b.im, factor)};
    };
    expectMixed<Zor32s, Zor32sc, Zor32sc>(zorsMul_32s32sc_Sfs, realTimesComplex);
}

TEST(Scaled, AddProduct)
{
    expectMixed<Zor16s, Zor16s, Zor16s>(zorsAddProduct_16s_Sfs, [](Exact a, Exact b, Exact c, int factor) {
        return scaled<Zor16s>(c + a * b, factor);
    });
    expectMixed<Zor32s, Zor32s, Zor32s>(zorsAddProduct_32s_Sfs, [](Exact a, Exact b, Exact c, int factor) {
        return scaled<Zor32s>(c + a * b, factor, 62);
    });
    expectMixed<Zor16s, Zor16s, Zor32s>(zorsAddProduct_16s32s_Sfs, [](Exact a, Exact b, Exact c, int factor) {
        return scaled<Zor32s>(c + a * b, factor);
    });
}

TEST(Scaled, ConstantsOfTheDefinition)
{
    const auto add = [](Zor16s a, Zor16s b, int factor) {
        Zor16s result;
        EXPECT_EQ(zorsAdd_16s_Sfs(&a, &b, &result, 1, factor), zorStsOk);
        return result;
    };
    EXPECT_EQ(add(1, 2, 1), 2);
    EXPECT_EQ(add(1, 0, 1), 0);
    EXPECT_EQ(add(-3, 0, 1), -2);
    EXPECT_EQ(add(32767, 32767, 16), 1);
    EXPECT_EQ(add(32767, 32767, 17), 0);
    EXPECT_EQ(add(3, 4, -16), 32767);
    EXPECT_EQ(add(3, -4, -16), -32768);
    EXPECT_EQ(add(4, -4, -16), 0);
    const Zor16s least = -32768;
    Zor16s product;
    EXPECT_EQ(zorsMul_16s_Sfs(&least, &least, &product, 1, 1), zorStsOk);
    EXPECT_EQ(product, 32767);
    EXPECT_EQ(zorsAdd_16sc_Sfs(nullptr, nullptr, nullptr, 0, 0), zorStsBadSize);
}

} // namespace
