// Vectors whose element type is known at run time only. A double holds any number of any of them.
#pragma once

#include "support/random.h"

#include <zortypes.h>

#include <cstddef>
#include <vector>

namespace zors::test {

enum class Number { int16, int32, float32, float64 };

struct Element {
    Number number;
    int parts; // 2 of a complex one

    bool isFloating() const { return number >= Number::float32; }
    bool isComplex() const { return parts == 2; }
    std::ptrdiff_t bytes() const;
    // The ends of the range of an integer.
    double least() const { return number == Number::int16 ? -0x1p15 : -0x1p31; }
    double most() const { return -least() - 1; }
};

// Real and imaginary parts side by side.
using Numbers = std::vector<double>;

class Vector {
public:
    // So many elements past a cache line.
    Vector(Element element, std::ptrdiff_t len, std::ptrdiff_t place = 0);
    Vector(Element element, const Numbers& numbers, std::ptrdiff_t place = 0);

    std::byte* at(std::ptrdiff_t n = 0) { return lines_[0].bytes + (place_ + n) * element_.bytes(); }
    const std::byte* at(std::ptrdiff_t n = 0) const { return const_cast<Vector*>(this)->at(n); }
    std::ptrdiff_t len() const { return len_; }
    Numbers numbers() const;
    void copy(std::ptrdiff_t to, const Vector& from, std::ptrdiff_t first, std::ptrdiff_t count);
    // Where the bits of two vectors first differ among the elements from a place on, or the end.
    std::ptrdiff_t firstDifference(const Vector& other, std::ptrdiff_t from = 0) const;
    bool operator==(const Vector& other) const { return firstDifference(other) == len_; }

private:
    struct alignas(64) Line {
        std::byte bytes[64];
    };

    Element element_;
    std::ptrdiff_t len_, place_;
    std::vector<Line> lines_;
};

// Floats in -1..1 to their last bit, or all integers.
Numbers randomNumbers(Element element, std::ptrdiff_t len, Random& random);
// Whole multiples of a step, up to so many.
Numbers randomMultiples(Element element, std::ptrdiff_t len, double step, int most, Random& random);

} // namespace zors::test
