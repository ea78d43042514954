// Expansion and products of packed spectra, at every length, beside plain forms. The contract tests hold the forms in
// place to these.
#include "support/oracle.h"
#include "transform/transforms.h"

#include <algorithm>
#include <cmath>

namespace zors::test {
namespace {

template <class C>
C conjugate(C x)
{
    using T = decltype(C::re);
    if constexpr (std::is_integral_v<T>)
        return {x.re, static_cast<T>(std::min<int>(-x.im, std::numeric_limits<T>::max()))};
    else
        return {x.re, -x.im};
}

template <class T, class C>
void expectExpansion(ZorStatus (*conj)(const T*, C*, int), Format format)
{
    Random random;
    for (int n = 1; n <= 257; ++n)
        for (int offset = 0; offset < 3; ++offset) {
            const Places at{format, static_cast<std::size_t>(n)};
            const auto count = static_cast<int>(at.numbers());
            const RandomVector<T> src(count, offset, random); // which ends where it must
            RandomVector<C> got(n, offset, random), want = got, same = got;
            for (std::size_t k = 0; k < at.points(); ++k) {
                const T* p = src.data() + at.real(k);
                want.data()[k] = {p[0], at.isReal(k) ? T{} : p[1]};
                if (!at.isReal(k)) want.data()[at.n - k] = conjugate(want.data()[k]);
            }
            ASSERT_EQ(conj(src.data(), got.data(), n), zorStsOk);
            ASSERT_TRUE(got == want) << "length " << n;
            auto* start = reinterpret_cast<T*>(same.data());
            std::copy_n(src.data(), count, start);
            ASSERT_EQ(conj(start, same.data(), n), zorStsOk);
            ASSERT_TRUE(same == want) << "length " << n << ", source and destination equal";
            compared(2 * n);
        }
}

template <class C>
void expectFlip(ZorStatus (*flip)(const C*, C*, int))
{
    expectSame<C, C>(flip, [](const C* src, C* dst, int n) {
        for (int k = 0; k < n; ++k) dst[k] = conjugate(src[n - 1 - k]);
    });
}

TEST(Packed, Expansion)
{
    const auto each = [](Format format, auto... conj) { (expectExpansion(conj, format), ...); };
    each(Format::pack, zorsConjPack_32fc, zorsConjPack_64fc, zorsConjPack_16sc);
    each(Format::perm, zorsConjPerm_32fc, zorsConjPerm_64fc, zorsConjPerm_16sc);
    each(Format::ccs, zorsConjCcs_32fc, zorsConjCcs_64fc, zorsConjCcs_16sc);
    expectFlip(zorsConjFlip_32fc);
    expectFlip(zorsConjFlip_64fc);
    expectFlip(zorsConjFlip_16sc);
}

// The product of two packed spectra, the first one as it is or conjugate: integers in 64 bits, others in the type
// itself, without fusing.
template <class T, class Store>
void multiply(const T* a, const T* b, Places at, bool conjugate, Store store)
{
    using Exact = std::conditional_t<std::is_integral_v<T>, Zor64s, T>;
    const auto product = [=](std::size_t i, std::size_t j) { return Exact{a[i]} * Exact{b[j]}; };
    for (std::size_t k = 0; k < at.points(); ++k) {
        const std::size_t re = at.real(k), im = re + 1;
        if (at.isReal(k)) {
            store(re, product(re, re));
        } else if (conjugate) {
            store(re, product(re, re) + product(im, im));
            store(im, product(im, re) - product(re, im));
        } else {
            store(re, product(re, re) - product(im, im));
            store(im, product(re, im) + product(im, re));
        }
    }
}

template <class T, class Exact>
T scaled(Exact x, int scaleFactor)
{
    if constexpr (std::is_floating_point_v<T>) return x;
    const auto whole = std::nearbyint(std::ldexp(static_cast<long double>(x), -scaleFactor));
    return static_cast<T>(std::clamp<long double>(whole, -32768, 32767));
}

// Calls mul(pSrc1, pSrc2, pDst, len) or, of integers, mul(pSrc1, pSrc2, pDst, len, scaleFactor).
template <class T, class... Factor, class Function>
void expectProducts(Function mul, Format format, bool conjugate = false)
{
    Random random;
    for (int n = 1; n <= 257; ++n)
        for (const int factor : {0, 1, 14, 15, 16, 17, 30, 31, 32, 33, 34, 1000, -1, -20, -1000}) {
            RandomVector<T> a(n, n % 4, random), b(n, 1, random), want(n, 2, random), got = want;
            std::generate_n(a.data(), n, [&] { return element<T>(random); });
            std::generate_n(b.data(), n, [&] { return element<T>(random); });
            multiply(std::as_const(a).data(), std::as_const(b).data(), {format, static_cast<std::size_t>(n)},
                     conjugate, [&](std::size_t i, auto x) { want.data()[i] = scaled<T>(x, factor); });
            ASSERT_EQ(mul(a.data(), b.data(), got.data(), n, Factor(factor)...), zorStsOk);
            ASSERT_TRUE(got == want) << "length " << n << ", scale factor " << factor;
            ASSERT_EQ(mul(a.data(), b.data(), a.data(), n, Factor(factor)...), zorStsOk);
            ASSERT_TRUE(std::equal(a.data(), a.data() + n, want.data()))
                << "length " << n << ", scale factor " << factor << ", destination and first source equal";
            compared(2 * n);
        }
}

TEST(Packed, Products)
{
    expectProducts<Zor32f>(zorsMulPack_32f, Format::pack);
    expectProducts<Zor32f>(zorsMulPerm_32f, Format::perm);
    expectProducts<Zor64f>(zorsMulPack_64f, Format::pack);
    expectProducts<Zor64f>(zorsMulPerm_64f, Format::perm);
    expectProducts<Zor16s, int>(zorsMulPack_16s_Sfs, Format::pack);
    expectProducts<Zor16s, int>(zorsMulPerm_16s_Sfs, Format::perm);
    const auto outOfPlace = [](auto mulInPlace) {
        return [=](const auto* a, const auto* b, auto* p, int n) {
            const std::vector first(a, a + n);
            std::copy_n(b, n, p);
            return mulInPlace(first.data(), p, n);
        };
    };
    expectProducts<Zor32f>(outOfPlace(zorsMulPackConj_32f_I), Format::pack, true);
    expectProducts<Zor64f>(outOfPlace(zorsMulPackConj_64f_I), Format::pack, true);
}

} // namespace
} // namespace zors::test
