#include "frame/bind.h"
#include "simd/check.h"

#include <cmath>
#include <numbers>
#include <type_traits>

namespace zors::ZORS_VARIANT {
namespace {

template <class T>
T toElement(double value)
{
    if constexpr (std::is_floating_point_v<T>) {
        return static_cast<T>(value);
    } else {
        // The magnitude is an element, so only a negative value can leave the range, and only an unsigned one.
        if (std::is_unsigned_v<T> && value < 0) return 0;
        return static_cast<T>(value > 0 ? value + 0.5 : value - 0.5);
    }
}

template <class T>
ZorStatus vectorJaehne(T* pDst, int len, T magn)
{
    if (const ZorStatus bad =
            check(pointers(pDst), length(len), require(!(magn < T{0}), zorStsBadJaehneMagnitude)))
        return bad;
    if (len == 1) {
        *pDst = 0;
        return zorStsOk;
    }
    const double step = std::numbers::pi / 2 / len;
    for (int n = 0; n < len; ++n) pDst[n] = toElement<T>(static_cast<double>(magn) * std::sin(step * n * n));
    return zorStsOk;
}

} // namespace

ZORS_BIND(zorsVectorJaehne_8u, vectorJaehne<Zor8u>)
ZORS_BIND(zorsVectorJaehne_8s, vectorJaehne<Zor8s>)
ZORS_BIND(zorsVectorJaehne_16u, vectorJaehne<Zor16u>)
ZORS_BIND(zorsVectorJaehne_16s, vectorJaehne<Zor16s>)
ZORS_BIND(zorsVectorJaehne_32u, vectorJaehne<Zor32u>)
ZORS_BIND(zorsVectorJaehne_32s, vectorJaehne<Zor32s>)
ZORS_BIND(zorsVectorJaehne_32f, vectorJaehne<Zor32f>)
ZORS_BIND(zorsVectorJaehne_64f, vectorJaehne<Zor64f>)

} // namespace zors::ZORS_VARIANT
