// Points of a spectrum at any frequency, as sums of the samples, each turned by its angle.
//
// Every lane of a pattern has a chain of its own, so that none waits for the one before it, as those of the recurrence
// do. Samples are counted from the end of the vector, where the angle is the least; a sample's angle is that of its
// block, and of its step in the block, and of its lane:
//
//     sum over blocks e^(i w B b)  (sum over steps e^(i w L a) x[lane])  e^(i w lane)
//
// Within a block a sample costs two products with numbers that are the same for all lanes. All angles are fractions of a
// turn, exact at any distance. Nothing is fused, so that every processor gives the same bits.
#pragma once

#include "generate/oscillation.h"
#include "simd/reduce.h"

namespace zors::ZORS_VARIANT {

inline constexpr int pointLanes = 16, pointSteps = 64, pointBlocks = 8;

template <int Count>
struct Angles {
    double cosine[Count], sine[Count];

    // Those of the multiples of the frequency from first on. A constant number at a time from each, because their
    // roundings depend on where they start.
    void fill(double frequency, int first, int count = Count)
    {
        const auto from = Oscillation(frequency, 0).from(first);
        for (int n = 0; n < count; n += lanes<double>) {
            const auto v = from(n);
            store<lanes<double>>(cosine + n, v.cosine);
            store<lanes<double>>(sine + n, v.sine);
        }
    }
};

// The angle of so many samples in turns, in [0, 1); exact where the number is a power of two.
inline double turned(double frequency, int samples)
{
    const double turns = frequency * samples;
    return turns - std::floor(turns);
}

template <class T>
[[gnu::always_inline]] inline Vec<double> loadDoubles(const T* p)
{
    return toDouble<lanes<double>>(load<lanes<double>>(p));
}

// The sum of one frequency.
template <class T>
class SpectrumPoint {
public:
    using Sums = Lanes<double, pointLanes>;
    static constexpr int each = LaneOf<T>::each, stepLength = pointLanes / each;

    void start(double frequency, std::ptrdiff_t len)
    {
        frequency_ = frequency;
        const auto count =
            static_cast<int>(std::min<std::ptrdiff_t>(pointSteps, (len + stepLength - 1) / stepLength));
        steps.fill(turned(frequency, stepLength), 0, count);
    }

    // The sums of a block's samples, without its own angle.
    Sums cosines, sines;
    Angles<pointSteps> steps;

    void finishBlock(int block)
    {
        const int at = block % pointBlocks;
        if (at == 0) blocks_.fill(turned(frequency_, stepLength * pointSteps), block);
        turn(
            cosines, sines, [&](auto) { return splat(blocks_.cosine[at]); },
            [&](auto) { return splat(blocks_.sine[at]); });
        for (int v = 0; v < Sums::count; ++v) {
            re_.part[v] += cosines.part[v];
            im_.part[v] += sines.part[v];
        }
        cosines = sines = Sums();
    }

    // Real part, imaginary part.
    void finish(double* to)
    {
        Angles<pointLanes> angles;
        angles.fill(frequency_, 1, stepLength);
        // Of lane l, which is so many samples before the end.
        double c[pointLanes], s[pointLanes];
        for (int l = 0; l < pointLanes; ++l) {
            const int before = stepLength - 1 - l / each;
            // The imaginary part of a sample is turned by a quarter more.
            const bool more = l % each == 1;
            c[l] = more ? -angles.sine[before] : angles.cosine[before];
            s[l] = more ? angles.cosine[before] : angles.sine[before];
        }
        turn(
            re_, im_, [&](int v) { return load<lanes<double>>(c + v * lanes<double>); },
            [&](int v) { return load<lanes<double>>(s + v * lanes<double>); });
        to[0] = re_.sum()[0];
        to[1] = im_.sum()[0];
    }

private:
    template <class Cosine, class Sine>
    static void turn(Sums& re, Sums& im, Cosine cosine, Sine sine)
    {
        for (int v = 0; v < Sums::count; ++v) {
            const auto x = re.part[v], y = im.part[v], c = cosine(v), s = sine(v);
            re.part[v] = x * c - y * s;
            im.part[v] = x * s + y * c;
        }
    }

    double frequency_ = 0;
    Angles<pointBlocks> blocks_;
    Sums re_, im_;
};

// Adds so many steps to the sums of some vectors of the pattern, as many as there are registers for: x points at them
// in the step that is nearest to the end.
template <int Vectors, int First, class T, class Element, int Count>
[[gnu::always_inline]] inline void addSteps(const Element* x, int firstStep, int steps,
                                            SpectrumPoint<T> (&points)[Count])
{
    Vec<double> c[Count][Vectors], s[Count][Vectors];
    for (int k = 0; k < Count; ++k)
        for (int v = 0; v < Vectors; ++v) {
            c[k][v] = points[k].cosines.part[First + v];
            s[k][v] = points[k].sines.part[First + v];
        }
    x += First * lanes<double>;
    for (int a = firstStep; a < firstStep + steps; ++a, x -= pointLanes)
        for (int v = 0; v < Vectors; ++v) {
            const auto sample = loadDoubles(x + v * lanes<double>);
            for (int k = 0; k < Count; ++k) {
                c[k][v] += sample * splat(points[k].steps.cosine[a]);
                s[k][v] += sample * splat(points[k].steps.sine[a]);
            }
        }
    for (int k = 0; k < Count; ++k)
        for (int v = 0; v < Vectors; ++v) {
            points[k].cosines.part[First + v] = c[k][v];
            points[k].sines.part[First + v] = s[k][v];
        }
}

template <class T, class Element, int Count>
[[gnu::always_inline]] inline void addSteps(const Element* x, int firstStep, int steps,
                                            SpectrumPoint<T> (&points)[Count])
{
    constexpr int vectors = pointLanes / lanes<double>, atOnce = std::min(vectors, 4 / Count);
    [&]<int... I>(std::integer_sequence<int, I...>)
    {
        (addSteps<atOnce, I * atOnce>(x, firstStep, steps, points), ...);
    }
    (std::make_integer_sequence<int, vectors / atOnce>{});
}

// The sums of Count frequencies over one vector: real part and imaginary part of each.
template <int Count, class T>
void spectrumPoints(const T* pSrc, std::ptrdiff_t len, const double* frequencies, double* pSums)
{
    using Point = SpectrumPoint<T>;
    constexpr std::ptrdiff_t blockLength = pointSteps * Point::stepLength;
    Point points[Count];
    for (int k = 0; k < Count; ++k) points[k].start(frequencies[k], len);
    for (int block = 0; len > 0; ++block) {
        const auto count = static_cast<int>(std::min(len, blockLength));
        const int steps = count / Point::stepLength, left = count % Point::stepLength * Point::each;
        const auto* end = asLanes(pSrc + len);
        addSteps(end - pointLanes, 0, steps, points);
        if (left > 0) {
            // The first samples of the vector, the last lanes of a step.
            double first[pointLanes] = {};
            for (int l = 0; l < left; ++l) first[pointLanes - left + l] = asLanes(pSrc)[l];
            addSteps(first, steps, 1, points);
        }
        for (auto& point : points) point.finishBlock(block);
        len -= count;
    }
    for (int k = 0; k < Count; ++k) points[k].finish(pSums + 2 * k);
}

} // namespace zors::ZORS_VARIANT
