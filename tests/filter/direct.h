// What the tests of the filters without a record share: elements, the sums of the documented pattern in plain
// arithmetic, and their rounding.
#pragma once

#include "support/oracle.h"

#include <zors.h>

#include <array>
#include <climits>
#include <cmath>

namespace zors::test {

template <class T>
struct PartOf {
    using type = T;
};
template <Complex T>
struct PartOf<T> {
    using type = decltype(T::re);
};
template <class T>
using Part = typename PartOf<T>::type;

template <class T>
inline constexpr std::size_t parts = Complex<T> ? 2 : 1;

template <class T>
const Part<T>* partsOf(const T& element)
{
    return reinterpret_cast<const Part<T>*>(&element);
}

template <class Tap>
inline constexpr bool hasIntegerTaps = sizeof(Part<Tap>) == 4 && std::is_integral_v<Part<Tap>>;
template <class Data>
inline constexpr bool isScaled = std::is_integral_v<Part<Data>>;

// The last arguments of those functions that have them.
struct ScaleFactors {
    int taps = 0, result = 0;
    int both() const { return taps + result; }
};

// Numbers with all their bits, within a few powers of two of each other.
template <class T>
T number(Random& random)
{
    if constexpr (Complex<T>)
        return {number<Part<T>>(random), number<Part<T>>(random)};
    else if constexpr (std::is_integral_v<T>)
        return element<T>(random);
    else
        return static_cast<T>(
            std::ldexp(static_cast<double>(random() >> 11) - 0x1p52, below(8, random) - 53));
}

template <class T>
void fillWithNumbers(T* p, std::ptrdiff_t len, Random& random)
{
    for (std::ptrdiff_t n = 0; n < len; ++n) p[n] = number<T>(random);
}

template <class Data>
using Sums = std::array<long double, parts<Data>>;

// Products counted from the oldest sample; sample(j) and tap(j) belong together.
template <class Tap, class Data, class Sample, class TapOf>
Sums<Data> patternSums(Sample sample, TapOf tap, std::ptrdiff_t count)
{
    using P = std::conditional_t<std::is_same_v<Part<Tap>, Zor32f>, float, double>;
    constexpr std::size_t lanes = 32 / parts<Data>;
    std::array<std::array<double, lanes>, parts<Data>> sums{};
    std::int64_t exact = 0;
    for (std::ptrdiff_t j = 0; j < count; ++j) {
        const Data x = sample(j);
        const Tap h = tap(j);
        const std::size_t lane = static_cast<std::size_t>(j) % lanes;
        const auto product = [&](std::size_t a, std::size_t b) {
            const P p = static_cast<P>(partsOf(h)[a]) * static_cast<P>(partsOf(x)[b]);
            return static_cast<double>(p);
        };
        if constexpr (Complex<Data>) {
            sums[0][lane] += product(0, 0) - product(1, 1);
            sums[1][lane] += product(0, 1) + product(1, 0);
        } else {
            sums[0][lane] += product(0, 0);
            if constexpr (std::is_same_v<Tap, Zor16s>) exact += std::int64_t{h} * x;
        }
    }
    Sums<Data> result;
    for (std::size_t k = 0; k < parts<Data>; ++k) {
        for (std::size_t half = lanes / 2; half > 0; half /= 2)
            for (std::size_t i = 0; i < half; ++i) sums[k][i] += sums[k][i + half];
        result[k] = sums[k][0];
    }
    if constexpr (std::is_same_v<Tap, Zor16s>) result[0] = static_cast<long double>(exact);
    return result;
}

template <class T>
T roundedPart(long double sum, int scaleFactor)
{
    using Limits = std::numeric_limits<T>;
    if constexpr (std::is_floating_point_v<T>) return static_cast<T>(sum);
    const long double v = std::nearbyint(std::ldexp(sum, -scaleFactor));
    return static_cast<T>(std::clamp<long double>(v, Limits::min(), Limits::max()));
}

template <class Data>
Data roundedSums(const Sums<Data>& sums, int scaleFactor)
{
    if constexpr (Complex<Data>)
        return {roundedPart<Part<Data>>(sums[0], scaleFactor), roundedPart<Part<Data>>(sums[1], scaleFactor)};
    else
        return roundedPart<Data>(sums[0], scaleFactor);
}

// Factors under which most of the results of a filter are within the range and are not 0.
template <class Tap, class Data>
ScaleFactors fittingFactors(const Tap* taps, int tapsLen, Random& random)
{
    if (!isScaled<Data>) return {};
    long double most = 1;
    for (int k = 0; k < tapsLen; ++k)
        most = std::max<long double>(most, std::fabs(static_cast<long double>(*partsOf(taps[k]))));
    const int fits = std::ilogb(most * std::sqrt(tapsLen)) - 2 + below(4, random);
    const int ofTaps = hasIntegerTaps<Tap> ? below(40, random) : 0;
    return {ofTaps, fits - ofTaps};
}

} // namespace zors::test
