#include "transform/transforms.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace zors::test {
namespace {

// Calls the body with an element of the type that the numbers have in memory.
template <class Body>
auto withElement(Number number, Body body)
{
    switch (number) {
    case Number::int16:
        return body(Zor16s{});
    case Number::int32:
        return body(Zor32s{});
    case Number::float32:
        return body(Zor32f{});
    default:
        return body(Zor64f{});
    }
}

// The arguments of any transform, one after the other, each by what its parameter is.
struct Arguments {
    const void* src;
    void* dst;
    const void* spec;
    std::ptrdiff_t points;
    int scaleFactor;
    Zor8u* buffer;
    std::ptrdiff_t sources = 0, destinations = 0;

    template <class A>
    A next()
    {
        if constexpr (std::is_same_v<A, int>)
            return scaleFactor;
        else if constexpr (std::is_same_v<A, Zor8u*>)
            return buffer;
        else if constexpr (!requires { sizeof(std::remove_pointer_t<A>); })
            return static_cast<A>(spec);
        else if constexpr (std::is_const_v<std::remove_pointer_t<A>>)
            return static_cast<A>(src) + points * sources++;
        else
            return static_cast<A>(dst) + points * destinations++;
    }

    template <class... A>
    ZorStatus call(ZorStatus (*function)(A...))
    {
        return std::apply(function, std::tuple<A...>{next<A>()...});
    }
};

template <auto function>
ZorStatus run(const void* src, void* dst, const void* spec, std::size_t n, int scaleFactor, Zor8u* buffer)
{
    return Arguments{src, dst, spec, static_cast<std::ptrdiff_t>(n), scaleFactor, buffer}.call(function);
}

template <auto function>
ZorStatus runInPlace(void* data, const void* spec, std::size_t n, int scaleFactor, Zor8u* buffer)
{
    return run<function>(nullptr, data, spec, n, scaleFactor, buffer);
}

// The source is the destination.
template <auto function>
ZorStatus runOnDestination(void* data, const void* spec, std::size_t n, int scaleFactor, Zor8u* buffer)
{
    return run<function>(data, data, spec, n, scaleFactor, buffer);
}

template <auto function, auto inPlace>
Transform makeTransform(const char* name, const char* record, bool inverse, Side in, Side out)
{
    return {name, &kind(record), inverse, in, out, run<function>, runInPlace<inPlace>};
}

template <auto function>
Transform makeTransform(const char* name, const char* record, bool inverse, Side in, Side out)
{
    return {name, &kindOfAnyLength(record), inverse, in, out, run<function>, runOnDestination<function>};
}

} // namespace

std::size_t bytesOf(Number number)
{
    return withElement(number, [](auto x) { return sizeof x; });
}

std::size_t Places::real(std::size_t k) const
{
    if (k == 0 || format == Format::split || format == Format::real) return k;
    if (2 * k == n && format == Format::perm) return 1;
    const bool even = n % 2 == 0;
    return format == Format::pack || (format == Format::perm && !even) ? 2 * k - 1 : 2 * k;
}

std::size_t Places::imaginary(std::size_t k) const
{
    return format == Format::split ? n + k : real(k) + 1;
}

double Transform::epsilon() const
{
    const bool narrow =
        in.number == Number::float32 || in.number == Number::int16 || out.number == Number::int16;
    return narrow ? 0x1p-23 : 0x1p-52;
}

std::vector<Wide> numbersFrom(const WideVector& points, Format format)
{
    const Places at{format, points.size()};
    std::vector<Wide> numbers(at.numbers());
    for (std::size_t k = 0; k < at.points(); ++k) {
        numbers[at.real(k)] = points[k].real();
        if (at.hasImaginary(k)) numbers[at.imaginary(k)] = points[k].imag();
    }
    return numbers;
}

WideVector pointsFrom(const std::vector<Wide>& numbers, Format format, std::size_t n)
{
    const Places at{format, n};
    WideVector points(at.n);
    for (std::size_t k = 0; k < at.points(); ++k) {
        points[k] = {numbers[at.real(k)], at.hasImaginary(k) ? numbers[at.imaginary(k)] : 0};
        if (at.isSpectrum() && k > 0) points[at.n - k] = std::conj(points[k]);
    }
    return points;
}

void writeNumbers(const std::vector<Wide>& numbers, Number number, void* memory)
{
    withElement(number, [&]<class T>(T) {
        using Limits = std::numeric_limits<T>;
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            Wide x = numbers[i];
            if (Limits::is_integer) x = std::clamp<Wide>(std::nearbyint(x), Limits::min(), Limits::max());
            static_cast<T*>(memory)[i] = static_cast<T>(x);
        }
    });
}

std::vector<Wide> readNumbers(const void* memory, Number number, std::size_t count)
{
    return withElement(number, [=]<class T>(T) {
        const auto* first = static_cast<const T*>(memory);
        return std::vector<Wide>(first, first + count);
    });
}

#define ZORS_ONE(name, record, inverse, from, to, type, number, suffix, inPlace)                             \
    makeTransform<zorsFFT##name##_##type##suffix, zorsFFT##name##_##type##inPlace>(                          \
        #name "_" #type, #record "_" #type, inverse, {Format::from, Number::number},                         \
        {Format::to, Number::number})

#define ZORS_COMPLEX(format, ...)                                                                            \
    ZORS_ONE(Fwd_CToC, C, false, format, format, __VA_ARGS__),                                               \
        ZORS_ONE(Inv_CToC, C, true, format, format, __VA_ARGS__)

#define ZORS_REAL(...)                                                                                       \
    ZORS_ONE(Fwd_RToCCS, R, false, real, ccs, __VA_ARGS__),                                                  \
        ZORS_ONE(Inv_CCSToR, R, true, ccs, real, __VA_ARGS__),                                               \
        ZORS_ONE(Fwd_RToPack, R, false, real, pack, __VA_ARGS__),                                            \
        ZORS_ONE(Inv_PackToR, R, true, pack, real, __VA_ARGS__),                                             \
        ZORS_ONE(Fwd_RToPerm, R, false, real, perm, __VA_ARGS__),                                            \
        ZORS_ONE(Inv_PermToR, R, true, perm, real, __VA_ARGS__)

const std::vector<Transform>& transforms()
{
    const Kind& mixed = kind("R_16s32s");
    constexpr Side words{Format::real, Number::int16}, ccs{Format::ccs, Number::int32};
    static const std::vector<Transform> all = {
        ZORS_COMPLEX(pairs, 32fc, float32, , _I),
        ZORS_COMPLEX(pairs, 64fc, float64, , _I),
        ZORS_COMPLEX(split, 32f, float32, , _I),
        ZORS_COMPLEX(split, 64f, float64, , _I),
        ZORS_REAL(32f, float32, , _I),
        ZORS_REAL(64f, float64, , _I),
        ZORS_COMPLEX(pairs, 16sc, int16, _Sfs, _ISfs),
        ZORS_COMPLEX(pairs, 32sc, int32, _Sfs, _ISfs),
        ZORS_COMPLEX(split, 16s, int16, _Sfs, _ISfs),
        ZORS_COMPLEX(split, 32s, int32, _Sfs, _ISfs),
        ZORS_REAL(16s, int16, _Sfs, _ISfs),
        ZORS_REAL(32s, int32, _Sfs, _ISfs),
        Transform{"Fwd_RToCCS_16s32s", &mixed, false, words, ccs, run<zorsFFTFwd_RToCCS_16s32s_Sfs>, nullptr},
        Transform{"Inv_CCSToR_32s16s", &mixed, true, ccs, words, run<zorsFFTInv_CCSToR_32s16s_Sfs>, nullptr},
    };
    return all;
}

#undef ZORS_ONE
#define ZORS_ONE(name, record, inverse, from, to, type, number, suffix)                                      \
    makeTransform<zorsDFT##name##_##type##suffix>(#name "_" #type, #record "_" #type, inverse,               \
                                                  {Format::from, Number::number},                            \
                                                  {Format::to, Number::number})

const std::vector<Transform>& transformsOfAnyLength()
{
    static const std::vector<Transform> all = {
        ZORS_COMPLEX(pairs, 32fc, float32, ),
        ZORS_COMPLEX(pairs, 64fc, float64, ),
        ZORS_COMPLEX(split, 32f, float32, ),
        ZORS_COMPLEX(split, 64f, float64, ),
        ZORS_REAL(32f, float32, ),
        ZORS_REAL(64f, float64, ),
        ZORS_COMPLEX(pairs, 16sc, int16, _Sfs),
        ZORS_COMPLEX(split, 16s, int16, _Sfs),
        ZORS_REAL(16s, int16, _Sfs),
        makeTransform<zorsDFTOutOrdFwd_CToC_32fc>("OutOrdFwd_32fc", "OutOrd_C_32fc", false,
                                                  {Format::pairs, Number::float32},
                                                  {Format::pairs, Number::float32}),
        makeTransform<zorsDFTOutOrdInv_CToC_64fc>("OutOrdInv_64fc", "OutOrd_C_64fc", true,
                                                  {Format::pairs, Number::float64},
                                                  {Format::pairs, Number::float64}),
    };
    return all;
}

} // namespace zors::test
