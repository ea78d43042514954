#include "vector/plain_arithmetic.h"

#include <Eigen/Core>
#include <algorithm>
#include <cmath>
#include <complex>
#include <limits>

namespace zors::bench {
namespace {

template <class T, class Operation>
void each(const T* __restrict a, const T* __restrict b, T* __restrict d, int n, Operation operation)
{
    for (int i = 0; i < n; ++i) d[i] = operation(a[i], b[i]);
}

template <class T>
void add(const T* a, const T* b, T* d, int n)
{
    each(a, b, d, n, [](T x, T y) { return x + y; });
}

template <class T>
void mul(const T* a, const T* b, T* d, int n)
{
    each(a, b, d, n, [](T x, T y) { return x * y; });
}

template <class T>
void div(const T* a, const T* b, T* d, int n)
{
    each(a, b, d, n, [](T x, T y) { return y / x; });
}

void mulComplex(const Zor32fc* a, const Zor32fc* b, Zor32fc* d, int n)
{
    each(a, b, d, n, [](Zor32fc x, Zor32fc y) {
        return Zor32fc{x.re * y.re - x.im * y.im, x.re * y.im + x.im * y.re};
    });
}

template <class T>
void addProduct(const T* __restrict a, const T* __restrict b, T* __restrict d, int n)
{
    for (int i = 0; i < n; ++i) d[i] += a[i] * b[i];
}

template <class T>
void mulC(const T* __restrict s, T v, T* __restrict d, int n)
{
    for (int i = 0; i < n; ++i) d[i] = s[i] * v;
}

// x / 2^s to nearest with ties to even, saturated.
template <class T, int s, class Wide>
T scaled(Wide x)
{
    if constexpr (s > 0) x = (x + (Wide{1} << (s - 1)) - 1 + ((x >> s) & 1)) >> s;
    return static_cast<T>(std::clamp<Wide>(x, std::numeric_limits<T>::min(), std::numeric_limits<T>::max()));
}

template <class T, int s, class Wide>
void addScaled(const T* a, const T* b, T* d, int n)
{
    each(a, b, d, n, [](T x, T y) { return scaled<T, s, Wide>(Wide{x} + y); });
}

template <class T, int s, class Wide>
void mulScaled(const T* a, const T* b, T* d, int n)
{
    each(a, b, d, n, [](T x, T y) { return scaled<T, s, Wide>(Wide{x} * y); });
}

template <int s>
void mulScaledComplex(const Zor16sc* a, const Zor16sc* b, Zor16sc* d, int n)
{
    using Wide = Zor64s;
    each(a, b, d, n, [](Zor16sc x, Zor16sc y) {
        return Zor16sc{scaled<Zor16s, s, Wide>(Wide{x.re} * y.re - Wide{x.im} * y.im),
                       scaled<Zor16s, s, Wide>(Wide{x.re} * y.im + Wide{x.im} * y.re)};
    });
}

// In double precision, which is exact here; zero divisors are left to the conversion.
void divScaled(const Zor16s* a, const Zor16s* b, Zor16s* d, int n)
{
    each(a, b, d, n, [](Zor16s x, Zor16s y) {
        const double q = std::nearbyint(static_cast<double>(y) / static_cast<double>(x));
        return static_cast<Zor16s>(std::min(std::max(q, -32768.0), 32767.0));
    });
}

template <class T>
auto mapped(T* p, int n)
{
    using Element = std::remove_const_t<T>;
    using Array = Eigen::Array<Element, Eigen::Dynamic, 1>;
    return Eigen::Map<std::conditional_t<std::is_const_v<T>, const Array, Array>>(p, n);
}

void eigenAdd(const Zor32f* a, const Zor32f* b, Zor32f* d, int n)
{
    mapped(d, n) = mapped(a, n) + mapped(b, n);
}

void eigenMul(const Zor32f* a, const Zor32f* b, Zor32f* d, int n)
{
    mapped(d, n) = mapped(a, n) * mapped(b, n);
}

void eigenMulComplex(const Zor32fc* a, const Zor32fc* b, Zor32fc* d, int n)
{
    using C = std::complex<Zor32f>;
    mapped(reinterpret_cast<C*>(d), n) =
        mapped(reinterpret_cast<const C*>(a), n) * mapped(reinterpret_cast<const C*>(b), n);
}

} // namespace

const PlainArithmeticLoops PLAIN_LOOPS = {
    .add32f = add<Zor32f>,
    .mul32f = mul<Zor32f>,
    .div32f = div<Zor32f>,
    .addProduct32f = addProduct<Zor32f>,
    .add64f = add<Zor64f>,
    .mul32fc = mulComplex,
    .mulC32f = mulC<Zor32f>,
    .addHalved16s = addScaled<Zor16s, 1, Zor32s>,
    .mul16s = mulScaled<Zor16s, 0, Zor32s>,
    .mulFractional16s = mulScaled<Zor16s, 15, Zor32s>,
    .divide16s = divScaled,
    .add16s = addScaled<Zor16s, 0, Zor32s>,
    .addHalved8u = addScaled<Zor8u, 1, Zor32s>,
    .addHalved32s = addScaled<Zor32s, 1, Zor64s>,
    .mulFractional16sc = mulScaledComplex<15>,
    .eigenAdd32f = eigenAdd,
    .eigenMul32f = eigenMul,
    .eigenMul32fc = eigenMulComplex,
};

} // namespace zors::bench
