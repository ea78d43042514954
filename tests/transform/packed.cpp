// Expansion and products of packed spectra, at every length, beside plain forms.
#include "support/oracle.h"
#include "transform/transforms.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace zors::test {
namespace {

template <class C>
using Part = decltype(C::re);

template <class T>
T negated(T x)
{
    if constexpr (std::is_integral_v<T>)
        return static_cast<T>(std::min<int>(-int{x}, std::numeric_limits<T>::max()));
    else
        return -x;
}

// The points 0 to N/2 of a packed spectrum.
template <class C>
std::vector<C> firstHalf(const Part<C>* p, Format format, int n)
{
    std::vector<C> half;
    const bool even = n % 2 == 0;
    int at = 0;
    half.push_back({p[at++], 0});
    if (format == Format::ccs || (format == Format::perm && even)) ++at;
    for (int k = 1; 2 * k < n; ++k, at += 2) half.push_back({p[at], p[at + 1]});
    if (even) half.push_back({p[format == Format::perm ? 1 : at], 0});
    return half;
}

template <class C, class Function>
void expectExpansion(Function conj, Format format)
{
    using T = Part<C>;
    const auto oracle = [=](const T* src, C* dst, int n) {
        const auto half = firstHalf<C>(src, format, n);
        for (int k = 0; k < n; ++k)
            dst[k] = 2 * k <= n ? half[static_cast<std::size_t>(k)]
                                : C{half[static_cast<std::size_t>(n - k)].re,
                                    negated(half[static_cast<std::size_t>(n - k)].im)};
    };
    // A CCS spectrum is up to two numbers longer than the signal; others are not, and sources end where they must.
    Random random;
    for (int n = 1; n <= 257; ++n)
        for (int offset = 0; offset < 3; ++offset) {
            const int count = format != Format::ccs ? n : n % 2 ? n + 1 : n + 2;
            const RandomVector<T> src(count, offset, random);
            RandomVector<C> got(n, offset, random), want = got;
            ASSERT_EQ(conj(src.data(), got.data(), n), zorStsOk);
            oracle(src.data(), want.data(), n);
            ASSERT_TRUE(got == want) << "length " << n;
        }
}

template <class C, class Function, class InPlace>
void expectSameInPlace(Function conj, InPlace conjInPlace, Format format)
{
    using T = Part<C>;
    Random random;
    for (int n = 1; n <= 257; ++n) {
        RandomVector<C> data(n, 1, random), want = data;
        const auto* packed = reinterpret_cast<const T*>(data.data());
        const int count = format == Format::ccs && n > 1 ? n / 2 * 2 + 2 : n;
        std::vector<T> src(packed, packed + count);
        src.resize(static_cast<std::size_t>(count) + 2);
        ASSERT_EQ(conj(src.data(), want.data(), n), zorStsOk);
        RandomVector<C> same = data;
        ASSERT_EQ(conjInPlace(data.data(), n), zorStsOk);
        ASSERT_TRUE(data == want) << "length " << n;
        // Source and destination equal.
        ASSERT_EQ(conj(reinterpret_cast<const T*>(same.data()), same.data(), n), zorStsOk);
        ASSERT_TRUE(same == want) << "length " << n;
    }
}

#define ZORS_EXPECT_EXPANSIONS(type)                                                                         \
    expectExpansion<Zor##type>(zorsConjPack_##type, Format::pack);                                           \
    expectExpansion<Zor##type>(zorsConjPerm_##type, Format::perm);                                           \
    expectExpansion<Zor##type>(zorsConjCcs_##type, Format::ccs);                                             \
    expectSameInPlace<Zor##type>(zorsConjPack_##type, zorsConjPack_##type##_I, Format::pack);                \
    expectSameInPlace<Zor##type>(zorsConjPerm_##type, zorsConjPerm_##type##_I, Format::perm);                \
    expectSameInPlace<Zor##type>(zorsConjCcs_##type, zorsConjCcs_##type##_I, Format::ccs);                   \
    expectSame<Zor##type, Zor##type>(zorsConjFlip_##type, [](const Zor##type* src, Zor##type* dst, int n) {  \
        for (int k = 0; k < n; ++k) dst[k] = {src[n - 1 - k].re, negated(src[n - 1 - k].im)};                \
    })

TEST(Packed, Expansion)
{
    ZORS_EXPECT_EXPANSIONS(32fc);
    ZORS_EXPECT_EXPANSIONS(64fc);
    ZORS_EXPECT_EXPANSIONS(16sc);
}

// Every spectrum of a real signal, expanded, is the complex spectrum of that signal.
TEST(Packed, ExpansionOfATransformIsTheComplexTransform)
{
    Random random;
    for (int order = 0; order <= 12; ++order) {
        const int n = 1 << order;
        const auto size = static_cast<std::size_t>(n);
        std::vector<Zor64f> x(size), packed(size + 2);
        std::vector<Zor64fc> points(size), whole(size), expanded(size);
        for (std::size_t i = 0; i < size; ++i)
            points[i] = {x[i] = std::ldexp(static_cast<double>(static_cast<std::int64_t>(random())), -63), 0};
        const Spec real(kind("R_64f"), order), complex(kind("C_64fc"), order);
        const auto* r = static_cast<const ZorsFFTSpec_R_64f*>(real.get());
        const auto* c = static_cast<const ZorsFFTSpec_C_64fc*>(complex.get());
        ASSERT_EQ(zorsFFTFwd_CToC_64fc(points.data(), whole.data(), c, nullptr), zorStsOk);
        const auto expectWhole = [&] {
            for (std::size_t k = 0; k < size; ++k) {
                EXPECT_NEAR(expanded[k].re, whole[k].re, 1e-15 * n) << order << ' ' << k;
                EXPECT_NEAR(expanded[k].im, whole[k].im, 1e-15 * n) << order << ' ' << k;
            }
        };
        ASSERT_EQ(zorsFFTFwd_RToPack_64f(x.data(), packed.data(), r, nullptr), zorStsOk);
        ASSERT_EQ(zorsConjPack_64fc(packed.data(), expanded.data(), n), zorStsOk);
        expectWhole();
        ASSERT_EQ(zorsFFTFwd_RToPerm_64f(x.data(), packed.data(), r, nullptr), zorStsOk);
        ASSERT_EQ(zorsConjPerm_64fc(packed.data(), expanded.data(), n), zorStsOk);
        expectWhole();
        ASSERT_EQ(zorsFFTFwd_RToCCS_64f(x.data(), packed.data(), r, nullptr), zorStsOk);
        ASSERT_EQ(zorsConjCcs_64fc(packed.data(), expanded.data(), n), zorStsOk);
        expectWhole();
    }
}

// One number of a product of packed spectra, in 128 bits or in the type itself, without fusing.
template <class Number, class T>
Number productAt(const T* a, const T* b, int i, Format format, int n, bool conjugate)
{
    const bool even = n % 2 == 0;
    const int firstPair = format == Format::perm && even ? 2 : 1;
    const bool isReal = i < firstPair || (format == Format::pack && even && i == n - 1);
    const auto at = [](const T* p, int k) { return static_cast<Number>(p[k]); };
    if (isReal) return at(a, i) * at(b, i);
    const int re = (i - firstPair) / 2 * 2 + firstPair, im = re + 1;
    if (conjugate)
        return i == re ? at(a, re) * at(b, re) + at(a, im) * at(b, im)
                       : at(a, im) * at(b, re) - at(a, re) * at(b, im);
    return i == re ? at(a, re) * at(b, re) - at(a, im) * at(b, im)
                   : at(a, re) * at(b, im) + at(a, im) * at(b, re);
}

// Random numbers of ordinary size in place of random bits.
template <class T>
RandomVector<T> numbers(int n, int offset, Random& random)
{
    RandomVector<T> v(n, offset, random);
    for (int i = 0; i < n; ++i)
        v.data()[i] =
            static_cast<T>(std::ldexp(static_cast<double>(static_cast<std::int64_t>(random())), -60));
    return v;
}

template <class T, class Function, class InPlace>
void expectProducts(Function mul, InPlace mulInPlace, Format format, bool conjugate)
{
    Random random;
    for (int n = 1; n <= 257; ++n)
        for (int offset = 0; offset < 4; ++offset) {
            const auto a = numbers<T>(n, offset, random), b = numbers<T>(n, 1, random);
            RandomVector<T> want(n, 2, random), got = want;
            for (int i = 0; i < n; ++i)
                want.data()[i] = productAt<T>(a.data(), b.data(), i, format, n, conjugate);
            if constexpr (!std::is_null_pointer_v<Function>) {
                ASSERT_EQ(mul(a.data(), b.data(), got.data(), n), zorStsOk);
                ASSERT_TRUE(got == want) << "length " << n;
                auto first = a;
                ASSERT_EQ(mul(first.data(), b.data(), first.data(), n), zorStsOk);
                ASSERT_EQ(std::memcmp(first.data(), want.data(), static_cast<std::size_t>(n) * sizeof(T)), 0);
            }
            auto second = b;
            ASSERT_EQ(mulInPlace(a.data(), second.data(), n), zorStsOk);
            ASSERT_EQ(std::memcmp(second.data(), want.data(), static_cast<std::size_t>(n) * sizeof(T)), 0)
                << "length " << n;
        }
}

TEST(Packed, Products)
{
    expectProducts<Zor32f>(zorsMulPack_32f, zorsMulPack_32f_I, Format::pack, false);
    expectProducts<Zor32f>(zorsMulPerm_32f, zorsMulPerm_32f_I, Format::perm, false);
    expectProducts<Zor64f>(zorsMulPack_64f, zorsMulPack_64f_I, Format::pack, false);
    expectProducts<Zor64f>(zorsMulPerm_64f, zorsMulPerm_64f_I, Format::perm, false);
    expectProducts<Zor32f>(nullptr, zorsMulPackConj_32f_I, Format::pack, true);
    expectProducts<Zor64f>(nullptr, zorsMulPackConj_64f_I, Format::pack, true);
}

Zor16s scaled(Zor64s exact, int scaleFactor)
{
    const auto x = std::nearbyint(std::ldexp(static_cast<long double>(exact), -scaleFactor));
    return static_cast<Zor16s>(std::clamp<long double>(x, -32768, 32767));
}

template <class Function, class InPlace>
void expectScaledProducts(Function mul, InPlace mulInPlace, Format format)
{
    Random random;
    const auto extreme = [&](RandomVector<Zor16s>& v, int n) {
        for (int i = 0; i < n; ++i)
            if (random() % 3 == 0) v.data()[i] = random() % 2 ? -32768 : 32767;
    };
    for (int n = 1; n <= 257; ++n)
        for (const int scaleFactor : {0, 1, 14, 15, 16, 17, 30, 31, 32, 33, 34, 1000, -1, -20, -1000}) {
            RandomVector<Zor16s> a(n, n % 3, random), b(n, 1, random), want(n, 2, random), got = want;
            extreme(a, n);
            extreme(b, n);
            for (int i = 0; i < n; ++i)
                want.data()[i] =
                    scaled(productAt<Zor64s>(a.data(), b.data(), i, format, n, false), scaleFactor);
            ASSERT_EQ(mul(a.data(), b.data(), got.data(), n, scaleFactor), zorStsOk);
            ASSERT_TRUE(got == want) << "length " << n << ", scale factor " << scaleFactor;
            ASSERT_EQ(mulInPlace(a.data(), b.data(), n, scaleFactor), zorStsOk);
            ASSERT_EQ(std::memcmp(b.data(), want.data(), static_cast<std::size_t>(n) * 2), 0) << n;
        }
}

TEST(Packed, ScaledProducts)
{
    expectScaledProducts(zorsMulPack_16s_Sfs, zorsMulPack_16s_ISfs, Format::pack);
    expectScaledProducts(zorsMulPerm_16s_Sfs, zorsMulPerm_16s_ISfs, Format::perm);
}

} // namespace
} // namespace zors::test
