#include "transform/transforms.h"

#include <algorithm>
#include <cmath>

namespace zors::test {
namespace {

template <class T>
const T* in(const void* p, std::size_t at = 0)
{
    return static_cast<const T*>(p) + at;
}

template <class T>
T* out(void* p, std::size_t at = 0)
{
    return static_cast<T*>(p) + at;
}

template <class T>
void writeAs(const std::vector<Wide>& numbers, void* memory)
{
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        Wide x = numbers[i];
        if constexpr (std::is_integral_v<T>)
            x = std::clamp<Wide>(std::nearbyint(x), std::numeric_limits<T>::min(),
                                 std::numeric_limits<T>::max());
        static_cast<T*>(memory)[i] = static_cast<T>(x);
    }
}

template <class T>
std::vector<Wide> readAs(const void* memory, std::size_t count)
{
    return {static_cast<const T*>(memory), static_cast<const T*>(memory) + count};
}

// Where the first half of a spectrum stands among the numbers of a format.
struct Places {
    std::size_t n;
    Format format;

    std::size_t real(std::size_t k) const
    {
        if (k == 0) return 0;
        if (2 * k == n && format == Format::perm) return 1;
        return format == Format::pack ? 2 * k - 1 : 2 * k;
    }
    bool hasImaginary(std::size_t k) const { return format == Format::ccs || (k > 0 && 2 * k < n); }
};

} // namespace

std::size_t bytesOf(Number number)
{
    return number == Number::int16 ? 2 : number == Number::float64 ? 8 : 4;
}

bool isFloating(Number number)
{
    return number == Number::float32 || number == Number::float64;
}

std::size_t numbersOf(Format format, int order)
{
    const std::size_t n = std::size_t{1} << order;
    if (format == Format::pairs || format == Format::split) return 2 * n;
    return format != Format::ccs ? n : n == 1 ? 2 : n + 2;
}

double Transform::epsilon() const
{
    const bool narrow =
        in.number == Number::float32 || in.number == Number::int16 || out.number == Number::int16;
    return narrow ? 0x1p-23 : 0x1p-52;
}

std::vector<Wide> numbersFrom(const WideVector& points, Format format)
{
    const std::size_t n = points.size();
    std::vector<Wide> numbers;
    if (format == Format::pairs) {
        for (const auto& p : points) numbers.insert(numbers.end(), {p.real(), p.imag()});
    } else if (format == Format::split || format == Format::real) {
        for (const auto& p : points) numbers.push_back(p.real());
        if (format == Format::split)
            for (const auto& p : points) numbers.push_back(p.imag());
    } else {
        numbers.resize(format == Format::ccs ? n / 2 * 2 + 2 : n);
        const Places at{n, format};
        for (std::size_t k = 0; 2 * k <= n; ++k) {
            numbers[at.real(k)] = points[k].real();
            if (at.hasImaginary(k)) numbers[at.real(k) + 1] = points[k].imag();
            if (n == 1) break;
        }
    }
    return numbers;
}

WideVector pointsFrom(const std::vector<Wide>& numbers, Format format)
{
    const std::size_t count = numbers.size();
    const std::size_t n = format == Format::pairs || format == Format::split ? count / 2
                          : format != Format::ccs                            ? count
                          : count == 2                                       ? 1
                                                                             : count - 2;
    WideVector points(n);
    if (format == Format::pairs) {
        for (std::size_t i = 0; i < n; ++i) points[i] = {numbers[2 * i], numbers[2 * i + 1]};
    } else if (format == Format::split) {
        for (std::size_t i = 0; i < n; ++i) points[i] = {numbers[i], numbers[n + i]};
    } else if (format == Format::real) {
        for (std::size_t i = 0; i < n; ++i) points[i] = numbers[i];
    } else {
        const Places at{n, format};
        for (std::size_t k = 0; k <= n / 2 && k < n; ++k) {
            points[k] = {numbers[at.real(k)], at.hasImaginary(k) ? numbers[at.real(k) + 1] : 0};
            if (k > 0) points[n - k] = std::conj(points[k]);
        }
    }
    return points;
}

void writeNumbers(const std::vector<Wide>& numbers, Number number, void* memory)
{
    switch (number) {
    case Number::int16:
        return writeAs<Zor16s>(numbers, memory);
    case Number::int32:
        return writeAs<Zor32s>(numbers, memory);
    case Number::float32:
        return writeAs<Zor32f>(numbers, memory);
    case Number::float64:
        return writeAs<Zor64f>(numbers, memory);
    }
}

std::vector<Wide> readNumbers(const void* memory, Number number, std::size_t count)
{
    switch (number) {
    case Number::int16:
        return readAs<Zor16s>(memory, count);
    case Number::int32:
        return readAs<Zor32s>(memory, count);
    case Number::float32:
        return readAs<Zor32f>(memory, count);
    default:
        return readAs<Zor64f>(memory, count);
    }
}

#define ZORS_SPEC(kind) static_cast<const ZorsFFTSpec_##kind*>(spec)
#define ZORS_ARGUMENTS const void *src, void *dst, const void *spec, int order, int scale, Zor8u *buffer
#define ZORS_IN_PLACE void *data, const void *spec, int order, int scale, Zor8u *buffer
#define ZORS_HALF (std::size_t{1} << order)

#define ZORS_PAIRS(direction, inverse, type, number)                                                         \
    Transform                                                                                                \
    {                                                                                                        \
#direction "_CToC_" #type, &kind("C_" #type), inverse, {Format::pairs, Number::number},              \
            {Format::pairs, Number::number},                                                                 \
            [](ZORS_ARGUMENTS) {                                                                             \
                (void)order, (void)scale;                                                                    \
                return zorsFFT##direction##_CToC_##type(in<Zor##type>(src), out<Zor##type>(dst),             \
                                                        ZORS_SPEC(C_##type), buffer);                        \
            },                                                                                               \
            [](ZORS_IN_PLACE) {                                                                              \
                (void)order, (void)scale;                                                                    \
                return zorsFFT##direction##_CToC_##type##_I(out<Zor##type>(data), ZORS_SPEC(C_##type),       \
                                                            buffer);                                         \
            }       \
    }

#define ZORS_SPLIT(direction, inverse, type, number)                                                         \
    Transform                                                                                                \
    {                                                                                                        \
#direction "_CToC_" #type, &kind("C_" #type), inverse, {Format::split, Number::number},              \
            {Format::split, Number::number},                                                                 \
            [](ZORS_ARGUMENTS) {                                                                             \
                (void)scale;                                                                                 \
                return zorsFFT##direction##_CToC_##type(                                                     \
                    in<Zor##type>(src), in<Zor##type>(src, ZORS_HALF), out<Zor##type>(dst),                  \
                    out<Zor##type>(dst, ZORS_HALF), ZORS_SPEC(C_##type), buffer);                            \
            },                                                                                               \
            [](ZORS_IN_PLACE) {                                                                              \
                (void)scale;                                                                                 \
                return zorsFFT##direction##_CToC_##type##_I(out<Zor##type>(data),                            \
                                                            out<Zor##type>(data, ZORS_HALF),                 \
                                                            ZORS_SPEC(C_##type), buffer);                    \
            }       \
    }

#define ZORS_INTEGER_PAIRS(direction, inverse, type, number)                                                 \
    Transform                                                                                                \
    {                                                                                                        \
#direction "_CToC_" #type, &kind("C_" #type), inverse, {Format::pairs, Number::number},              \
            {Format::pairs, Number::number},                                                                 \
            [](ZORS_ARGUMENTS) {                                                                             \
                (void)order;                                                                                 \
                return zorsFFT##direction##_CToC_##type##_Sfs(in<Zor##type>(src), out<Zor##type>(dst),       \
                                                              ZORS_SPEC(C_##type), scale, buffer);           \
            },                                                                                               \
            [](ZORS_IN_PLACE) {                                                                              \
                (void)order;                                                                                 \
                return zorsFFT##direction##_CToC_##type##_ISfs(out<Zor##type>(data), ZORS_SPEC(C_##type),    \
                                                               scale, buffer);                               \
            }       \
    }

#define ZORS_INTEGER_SPLIT(direction, inverse, type, number)                                                 \
    Transform                                                                                                \
    {                                                                                                        \
#direction "_CToC_" #type, &kind("C_" #type), inverse, {Format::split, Number::number},              \
            {Format::split, Number::number},                                                                 \
            [](ZORS_ARGUMENTS) {                                                                             \
                return zorsFFT##direction##_CToC_##type##_Sfs(                                               \
                    in<Zor##type>(src), in<Zor##type>(src, ZORS_HALF), out<Zor##type>(dst),                  \
                    out<Zor##type>(dst, ZORS_HALF), ZORS_SPEC(C_##type), scale, buffer);                     \
            },                                                                                               \
            [](ZORS_IN_PLACE) {                                                                              \
                return zorsFFT##direction##_CToC_##type##_ISfs(out<Zor##type>(data),                         \
                                                               out<Zor##type>(data, ZORS_HALF),              \
                                                               ZORS_SPEC(C_##type), scale, buffer);          \
            }       \
    }

#define ZORS_REAL(way, inverse, from, to, type, number)                                                      \
    Transform                                                                                                \
    {                                                                                                        \
#way "_" #type, &kind("R_" #type), inverse, {Format::from, Number::number},                          \
            {Format::to, Number::number},                                                                    \
            [](ZORS_ARGUMENTS) {                                                                             \
                (void)order, (void)scale;                                                                    \
                return zorsFFT##way##_##type(in<Zor##type>(src), out<Zor##type>(dst), ZORS_SPEC(R_##type),   \
                                             buffer);                                                        \
            },                                                                                               \
            [](ZORS_IN_PLACE) {                                                                              \
                (void)order, (void)scale;                                                                    \
                return zorsFFT##way##_##type##_I(out<Zor##type>(data), ZORS_SPEC(R_##type), buffer);         \
            }       \
    }

#define ZORS_INTEGER_REAL(way, inverse, from, to, type, number)                                              \
    Transform                                                                                                \
    {                                                                                                        \
#way "_" #type, &kind("R_" #type), inverse, {Format::from, Number::number},                          \
            {Format::to, Number::number},                                                                    \
            [](ZORS_ARGUMENTS) {                                                                             \
                (void)order;                                                                                 \
                return zorsFFT##way##_##type##_Sfs(in<Zor##type>(src), out<Zor##type>(dst),                  \
                                                   ZORS_SPEC(R_##type), scale, buffer);                      \
            },                                                                                               \
            [](ZORS_IN_PLACE) {                                                                              \
                (void)order;                                                                                 \
                return zorsFFT##way##_##type##_ISfs(out<Zor##type>(data), ZORS_SPEC(R_##type), scale,        \
                                                    buffer);                                                 \
            }       \
    }

#define ZORS_BOTH(make, type, number) make(Fwd, false, type, number), make(Inv, true, type, number)

#define ZORS_FORMATS(make, type, number)                                                                     \
    make(Fwd_RToCCS, false, real, ccs, type, number), make(Inv_CCSToR, true, ccs, real, type, number),       \
        make(Fwd_RToPack, false, real, pack, type, number),                                                  \
        make(Inv_PackToR, true, pack, real, type, number),                                                   \
        make(Fwd_RToPerm, false, real, perm, type, number),                                                  \
        make(Inv_PermToR, true, perm, real, type, number)

const std::vector<Transform>& transforms()
{
    static const std::vector<Transform> all = {
        ZORS_BOTH(ZORS_PAIRS, 32fc, float32),
        ZORS_BOTH(ZORS_PAIRS, 64fc, float64),
        ZORS_BOTH(ZORS_SPLIT, 32f, float32),
        ZORS_BOTH(ZORS_SPLIT, 64f, float64),
        ZORS_FORMATS(ZORS_REAL, 32f, float32),
        ZORS_FORMATS(ZORS_REAL, 64f, float64),
        ZORS_BOTH(ZORS_INTEGER_PAIRS, 16sc, int16),
        ZORS_BOTH(ZORS_INTEGER_PAIRS, 32sc, int32),
        ZORS_BOTH(ZORS_INTEGER_SPLIT, 16s, int16),
        ZORS_BOTH(ZORS_INTEGER_SPLIT, 32s, int32),
        ZORS_FORMATS(ZORS_INTEGER_REAL, 16s, int16),
        ZORS_FORMATS(ZORS_INTEGER_REAL, 32s, int32),
        Transform{"Fwd_RToCCS_16s32s",
                  &kind("R_16s32s"),
                  false,
                  {Format::real, Number::int16},
                  {Format::ccs, Number::int32},
                  [](ZORS_ARGUMENTS) {
                      (void)order;
                      return zorsFFTFwd_RToCCS_16s32s_Sfs(in<Zor16s>(src), out<Zor32s>(dst),
                                                          ZORS_SPEC(R_16s32s), scale, buffer);
                  },
                  nullptr},
        Transform{"Inv_CCSToR_32s16s",
                  &kind("R_16s32s"),
                  true,
                  {Format::ccs, Number::int32},
                  {Format::real, Number::int16},
                  [](ZORS_ARGUMENTS) {
                      (void)order;
                      return zorsFFTInv_CCSToR_32s16s_Sfs(in<Zor32s>(src), out<Zor16s>(dst),
                                                          ZORS_SPEC(R_16s32s), scale, buffer);
                  },
                  nullptr},
    };
    return all;
}

} // namespace zors::test
