// All transforms behind one interface: from an array of numbers to another, each in a format.
#pragma once

#include "transform/kinds.h"
#include "transform/oracle.h"

namespace zors::test {

// Complex points as pairs or as two arrays behind one another; real numbers; and their spectra.
enum class Format { pairs, split, real, ccs, pack, perm };

enum class Number { int16, int32, float32, float64 };

std::size_t bytesOf(Number number);
inline bool isFloating(Number number)
{
    return number >= Number::float32;
}

// Where N points stand among the numbers of a format; of a spectrum, the first half of them.
struct Places {
    Format format;
    std::size_t n;

    bool isComplex() const { return format == Format::pairs || format == Format::split; }
    bool isPacked() const { return format > Format::ccs; }
    bool isSpectrum() const { return format >= Format::ccs; }
    std::size_t numbers() const { return isComplex() ? 2 * n : format == Format::ccs ? 2 * points() : n; }
    std::size_t points() const { return isSpectrum() ? n / 2 + 1 : n; }
    std::size_t real(std::size_t k) const;
    std::size_t imaginary(std::size_t k) const;
    // The first and the last point of a spectrum; CCS stores their zeros, too.
    bool isReal(std::size_t k) const { return k == 0 || 2 * k == n; }
    bool hasImaginary(std::size_t k) const { return format != Format::real && (!isPacked() || !isReal(k)); }
};

struct Side {
    Format format;
    Number number;

    std::size_t numbers(std::size_t n) const { return Places{format, n}.numbers(); }
    std::size_t bytes(std::size_t n) const { return numbers(n) * bytesOf(number); }
};

struct Transform {
    std::string name;
    const Kind* kind;
    bool inverse;
    Side in, out;
    // Of N points; the scale factor is for the integers.
    ZorStatus (*run)(const void* src, void* dst, const void* spec, std::size_t n, int scaleFactor,
                     Zor8u* buffer);
    ZorStatus (*runInPlace)(void* data, const void* spec, std::size_t n, int scaleFactor,
                            Zor8u* buffer); // or null

    // What the transform computes with: 2^-23 or 2^-52.
    double epsilon() const;
};

// Of powers of two.
const std::vector<Transform>& transforms();
// Of any length; those without a form in place work in place by the other one.
const std::vector<Transform>& transformsOfAnyLength();

constexpr std::size_t pointsOf(int order)
{
    return std::size_t{1} << order;
}

// All N points from and to the numbers of a format. Real numbers are points without imaginary parts; a spectrum's
// second half is the mirror of its first.
std::vector<Wide> numbersFrom(const WideVector& points, Format format);
WideVector pointsFrom(const std::vector<Wide>& numbers, Format format, std::size_t n);

// Numbers as they lie in memory, and back. Integers are rounded and saturated.
void writeNumbers(const std::vector<Wide>& numbers, Number number, void* memory);
std::vector<Wide> readNumbers(const void* memory, Number number, std::size_t count);

} // namespace zors::test
