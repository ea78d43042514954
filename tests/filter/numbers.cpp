#include "filter/numbers.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace zors::test {
namespace {

// Calls the body with a number of the type in memory.
template <class Body>
auto withNumber(Number number, Body body)
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

std::size_t lines(Element element, std::ptrdiff_t len)
{
    return static_cast<std::size_t>(element.bytes() * len / 64 + 1);
}

} // namespace

std::ptrdiff_t Element::bytes() const
{
    return parts * withNumber(number, [](auto x) { return std::ptrdiff_t{sizeof x}; });
}

Vector::Vector(Element element, std::ptrdiff_t len, std::ptrdiff_t place)
    : element_(element), len_(len), place_(place), lines_(lines(element, len + place))
{
}

Vector::Vector(Element element, const Numbers& numbers, std::ptrdiff_t place)
    : Vector(element, std::ssize(numbers) / element.parts, place)
{
    withNumber(element.number, [&]<class T>(T) {
        for (std::size_t i = 0; i < numbers.size(); ++i)
            reinterpret_cast<T*>(at())[i] = static_cast<T>(numbers[i]);
    });
}

Numbers Vector::numbers() const
{
    return withNumber(element_.number, [&]<class T>(T) {
        const auto* first = reinterpret_cast<const T*>(at());
        return Numbers(first, first + len_ * element_.parts);
    });
}

void Vector::copy(std::ptrdiff_t to, const Vector& from, std::ptrdiff_t first, std::ptrdiff_t count)
{
    std::memcpy(at(to), from.at(first), static_cast<std::size_t>(count * element_.bytes()));
}

std::ptrdiff_t Vector::firstDifference(const Vector& other, std::ptrdiff_t from) const
{
    const auto bytes = static_cast<std::size_t>(element_.bytes());
    while (from < len_ && std::memcmp(at(from), other.at(from), bytes) == 0) ++from;
    return from;
}

Numbers randomNumbers(Element element, std::ptrdiff_t len, Random& random)
{
    Numbers numbers(static_cast<std::size_t>(len * element.parts));
    const double most = element.isFloating() ? 1 : -element.least();
    for (double& x : numbers) x = static_cast<double>(static_cast<std::int64_t>(random())) * 0x1p-63 * most;
    if (!element.isFloating())
        for (double& x : numbers) x = std::clamp(std::floor(x), element.least(), element.most());
    return Vector(element, numbers).numbers();
}

Numbers randomMultiples(Element element, std::ptrdiff_t len, double step, int most, Random& random)
{
    Numbers numbers(static_cast<std::size_t>(len * element.parts));
    for (double& x : numbers) x = step * (below(2 * most + 1, random) - most);
    return numbers;
}

} // namespace zors::test
