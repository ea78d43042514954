// Arithmetic without a scale factor, bit for bit against one operation of the element type at a time.
#include "support/oracle.h"

#include <zors.h>

#include <algorithm>
#include <cfloat>
#include <climits>
#include <cmath>
#include <limits>

namespace {

using namespace zors::test;

template <class T>
inline constexpr bool isComplex = requires(T t)
{
    t.re;
};

struct Add {
    Zor16s operator()(Zor16s a, Zor16s b) const { return saturated(int{a} + b); }
    template <class T>
    T operator()(T a, T b) const
    {
        if constexpr (isComplex<T>)
            return {a.re + b.re, a.im + b.im};
        else
            return a + b;
    }
    static Zor16s saturated(int v) { return static_cast<Zor16s>(std::clamp(v, -32768, 32767)); }
};

struct Subtract { // the first operand is the subtrahend
    Zor16s operator()(Zor16s a, Zor16s b) const { return Add::saturated(int{b} - a); }
    template <class T>
    T operator()(T a, T b) const
    {
        if constexpr (isComplex<T>)
            return {b.re - a.re, b.im - a.im};
        else
            return b - a;
    }
};

struct Multiply {
    Zor16s operator()(Zor16s a, Zor16s b) const { return Add::saturated(int{a} * b); }
    template <class T>
    T operator()(T a, T b) const
    {
        if constexpr (isComplex<T>)
            return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
        else
            return a * b;
    }
};

template <class T>
void expectElement(T got, T want, int at, int len)
{
    if constexpr (isComplex<T>) {
        expectElement(got.re, want.re, at, len);
        expectElement(got.im, want.im, at, len);
    } else if (want != want) { // which of two that are not numbers is left is nobody's promise
        ASSERT_TRUE(got != got) << "element " << at << " of " << len;
    } else {
        ASSERT_EQ(std::memcmp(&got, &want, sizeof got), 0)
            << "element " << at << " of " << len << ": " << +got << " instead of " << +want;
    }
}

// Random bits hold numbers of every size, infinities and what is not a number.
template <class T, class Call, class Operation>
void expect(Call call, Operation operation)
{
    Random random;
    for (int len = 1; len <= 257; ++len) {
        const RandomVector<T> a(len, len % 5, random), b(len, 1, random);
        RandomVector<T> got(len, len % 3, random);
        const RandomVector<T> old = got;
        ASSERT_EQ(call(a.data(), b.data(), got.data(), len), zorStsOk);
        compared(len);
        for (int i = 0; i < len; ++i) {
            expectElement(got.data()[i], operation(a.data()[i], b.data()[i], old.data()[i]), i, len);
            if (testing::Test::HasFatalFailure()) return;
        }
    }
}

template <class T>
using TwoSources = ZorStatus (*)(const T*, const T*, T*, int);
template <class T>
using OneInPlace = ZorStatus (*)(const T*, T*, int);
template <class T>
using WithConstant = ZorStatus (*)(const T*, T, T*, int);
template <class T>
using ConstantInPlace = ZorStatus (*)(T, T*, int);

template <class T, class Operation>
void expectTwo(TwoSources<T> outOfPlace, OneInPlace<T> inPlace, Operation operation)
{
    expect<T>(outOfPlace, [=](T a, T b, T) { return operation(a, b); });
    expect<T>([=](auto* a, auto*, T* p, int len) { return inPlace(a, p, len); },
              [=](T a, T, T old) { return operation(a, old); });
}

// The constants are the first elements: of every kind in turn.
template <class T, class Operation>
void expectConstant(WithConstant<T> outOfPlace, ConstantInPlace<T> inPlace, Operation operation)
{
    T constant{};
    const auto valueOf = [&](const T* b) { return constant = b[0]; };
    expect<T>([&](auto* a, auto* b, T* p, int len) { return outOfPlace(a, valueOf(b), p, len); },
              [&](T a, T, T) { return operation(a, constant); });
    expect<T>([&](auto*, auto* b, T* p, int len) { return inPlace(valueOf(b), p, len); },
              [&](T, T, T old) { return operation(old, constant); });
}

#define TWO(type, name, operation)                                                                           \
    expectTwo<Zor##type>(zors##name##_##type, zors##name##_##type##_I, operation)
#define CONSTANT(type, name, operation)                                                                      \
    expectConstant<Zor##type>(zors##name##_##type, zors##name##_##type##_I, operation)

#define EXPECT_FAMILY(type)                                                                                  \
    do {                                                                                                     \
        TWO(type, Add, Add{});                                                                               \
        TWO(type, Sub, Subtract{});                                                                          \
        TWO(type, Mul, Multiply{});                                                                          \
        CONSTANT(type, AddC, Add{});                                                                         \
        CONSTANT(type, SubC, [](auto source, auto val) { return Subtract{}(val, source); });                 \
        CONSTANT(type, SubCRev, Subtract{});                                                                 \
        CONSTANT(type, MulC, Multiply{});                                                                    \
    } while (false)

TEST(Arithmetic, RoundsEachOperationOnce)
{
    EXPECT_FAMILY(32f);
    EXPECT_FAMILY(64f);
}

TEST(Arithmetic, ComplexPartByPart)
{
    EXPECT_FAMILY(32fc);
    EXPECT_FAMILY(64fc);
}

TEST(Arithmetic, SaturatesIntegers)
{
    EXPECT_FAMILY(16s);
}

TEST(Arithmetic, AddsRoundedProducts)
{
    const auto product = [](auto a, auto b, auto old) { return Add{}(old, Multiply{}(a, b)); };
    expect<Zor32f>(zorsAddProduct_32f, product);
    expect<Zor64f>(zorsAddProduct_64f, product);
    expect<Zor32fc>(zorsAddProduct_32fc, product);
    expect<Zor64fc>(zorsAddProduct_64fc, product);
}

// pDst[n] = operation(pSrc1[n], pSrc2[n], pDst[n]) for sources of any types.
template <class A, class B, class D, class Call, class Operation>
void expectMixed(Call call, Operation operation)
{
    Random random;
    for (int len = 1; len <= 257; ++len) {
        const RandomVector<A> a(len, 1, random);
        const RandomVector<B> b(len, len % 3, random);
        RandomVector<D> got(len, len % 5, random), want = got;
        for (int i = 0; i < len; ++i) want.data()[i] = operation(a.data()[i], b.data()[i], want.data()[i]);
        ASSERT_EQ(call(a.data(), b.data(), got.data(), len), zorStsOk);
        compared(len);
        ASSERT_TRUE(got == want) << "byte " << got.firstDifference(want) << " of length " << len;
    }
}

TEST(Arithmetic, MixedTypes)
{
    expectMixed<Zor8u, Zor8u, Zor16u>(zorsAdd_8u16u,
                                      [](int a, int b, int) { return static_cast<Zor16u>(a + b); });
    expectMixed<Zor16s, Zor16s, Zor32f>(zorsAdd_16s32f,
                                        [](int a, int b, float) { return static_cast<Zor32f>(a + b); });
    expectMixed<Zor16s, Zor16s, Zor32f>(zorsSub_16s32f,
                                        [](int a, int b, float) { return static_cast<Zor32f>(b - a); });
    expectMixed<Zor16s, Zor16s, Zor32f>(zorsMul_16s32f,
                                        [](int a, int b, float) { return static_cast<Zor32f>(a * b); });
    expectMixed<Zor16s, Zor16s, Zor32s>(
        [](auto* a, auto*, Zor32s* p, int len) { return zorsAdd_16s32s_I(a, p, len); },
        [](Zor16s a, Zor16s, Zor32s old) {
            constexpr Zor64s least = std::numeric_limits<Zor32s>::min(),
                             most = std::numeric_limits<Zor32s>::max();
            return static_cast<Zor32s>(std::clamp(Zor64s{a} + old, least, most));
        });
    const auto product = [](Zor32f a, Zor32fc b) { return Zor32fc{a * b.re, a * b.im}; };
    Random random;
    for (int len = 1; len <= 257; ++len) {
        const RandomVector<Zor32f> a(len, 1, random);
        const RandomVector<Zor32fc> b(len, len % 3, random);
        RandomVector<Zor32fc> got(len, 2, random), inPlace = b;
        ASSERT_EQ(zorsMul_32f32fc(a.data(), b.data(), got.data(), len), zorStsOk);
        ASSERT_EQ(zorsMul_32f32fc_I(a.data(), inPlace.data(), len), zorStsOk);
        for (int i = 0; i < len; ++i) {
            expectElement(got.data()[i], product(a.data()[i], b.data()[i]), i, len);
            expectElement(inPlace.data()[i], got.data()[i], i, len);
        }
        if (HasFatalFailure()) return;
    }
}

// The exact product, scaled, to nearest with ties to even.
TEST(Arithmetic, FloatProductsAsIntegers)
{
    const auto expected = [](Zor32f a, Zor32f b, int scaleFactor) {
        const double exact = std::ldexp(double{a} * b, -std::clamp(scaleFactor, -700, 700));
        if (std::isnan(exact)) return Zor16s{0};
        return static_cast<Zor16s>(std::nearbyint(std::clamp(exact, -32768.0, 32767.0)));
    };
    Random random;
    for (const int scaleFactor : {0, 1, 15, -3, -15, 40, -40, 300, -300, INT_MAX, INT_MIN})
        for (int len = 1; len <= 257; ++len) {
            RandomVector<Zor32f> a(len, 1, random);
            RandomVector<Zor16s> got(len, len % 7, random), want = got;
            Zor32f val = 0x1.000002p3f;
            // Ties and their neighbours, and anything at all.
            for (int i = 0; i < len; i += 2)
                a.data()[i] = std::ldexp(static_cast<Zor32f>(static_cast<int>(random() % 8191) - 4095),
                                         std::clamp(scaleFactor, -60, 60) - (len % 3 ? 4 : 1));
            if (len % 3) val = len % 2 ? 8 : FLT_MIN;
            for (int i = 0; i < len; ++i) want.data()[i] = expected(a.data()[i], val, scaleFactor);
            ASSERT_EQ(zorsMulC_32f16s_Sfs(a.data(), val, got.data(), len, scaleFactor), zorStsOk);
            ASSERT_TRUE(got == want) << "byte " << got.firstDifference(want) << " of length " << len
                                     << ", factor " << scaleFactor;
        }
}

} // namespace
