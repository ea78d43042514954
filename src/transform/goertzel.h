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

#include <algorithm>
#include <cmath>

namespace zors::ZORS_VARIANT {

inline constexpr int pointLanes = 16, pointSteps = 64;

// Angles that are evaluated at a time, whatever the width: their roundings depend on it.
inline constexpr int anglesAtOnce = 8;

template <int Count>
struct Angles {
    double cosine[Count], sine[Count];

    // Those of the multiples of the frequency from first on.
    void evaluate(double frequency, int first)
    {
        const auto from = Oscillation(frequency, 0).from(first);
        for (int n = 0; n < anglesAtOnce; n += lanes<double>) {
            const auto v = from(n);
            store<lanes<double>>(cosine + n, v.cosine);
            store<lanes<double>>(sine + n, v.sine);
        }
    }

    // Those from a place on: the first ones, and another added to each.
    void add(int place, double c, double s)
    {
        for (int n = 0; n < anglesAtOnce; n += lanes<double>) {
            const auto x = load<lanes<double>>(cosine + n), y = load<lanes<double>>(sine + n);
            store<lanes<double>>(cosine + place + n, x * splat(c) - y * splat(s));
            store<lanes<double>>(sine + place + n, x * splat(s) + y * splat(c));
        }
    }
};

// The angle of so many samples in turns, in [0, 1); exact where the number is a power of two.
inline double turned(double frequency, int samples)
{
    const double turns = frequency * samples;
    return turns - std::floor(turns);
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
        lanes_.evaluate(frequency, 1);
        steps.evaluate(turned(frequency, stepLength), 0);
        const auto count =
            static_cast<int>(std::min<std::ptrdiff_t>(pointSteps, (len + stepLength - 1) / stepLength));
        if (count > 2 * anglesAtOnce) {
            Angles<anglesAtOnce> more;
            more.evaluate(turned(frequency, anglesAtOnce * stepLength), 0);
            for (int i = 1; i * anglesAtOnce < count; ++i)
                steps.add(i * anglesAtOnce, more.cosine[i], more.sine[i]);
        } else if (count > anglesAtOnce) {
            // An angle by the sum of two is a third of the time that an evaluation takes.
            const double c1 = steps.cosine[1], s1 = steps.sine[1];
            const double c = steps.cosine[anglesAtOnce - 1], s = steps.sine[anglesAtOnce - 1];
            steps.add(anglesAtOnce, c * c1 - s * s1, c * s1 + s * c1);
        }
        if (stepLength > anglesAtOnce)
            lanes_.add(anglesAtOnce, lanes_.cosine[anglesAtOnce - 1], lanes_.sine[anglesAtOnce - 1]);
    }

    // The sums of a block's samples, without its own angle.
    Sums cosines, sines;
    Angles<pointSteps> steps;

    // The last block has the angle 0.
    void finishBlock(int block)
    {
        if (block > 0) {
            const int at = block % anglesAtOnce;
            if (at == 0 || block == 1)
                blocks_.evaluate(turned(frequency_, stepLength * pointSteps), block - at);
            turn(
                cosines, sines, [&](int) { return splat(blocks_.cosine[at]); },
                [&](int) { return splat(blocks_.sine[at]); });
        }
        for (int v = 0; v < Sums::count; ++v) {
            re_.part[v] += cosines.part[v];
            im_.part[v] += sines.part[v];
        }
        cosines = sines = Sums();
    }

    // Real part, imaginary part.
    void finish(double* to)
    {
        // Of lane l, which is so many samples before the end.
        double c[pointLanes], s[pointLanes];
        for (int l = 0; l < pointLanes; ++l) {
            const int before = stepLength - 1 - l / each;
            // The imaginary part of a sample is turned by a quarter more.
            const bool more = l % each == 1;
            c[l] = more ? -lanes_.sine[before] : lanes_.cosine[before];
            s[l] = more ? lanes_.cosine[before] : lanes_.sine[before];
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
    Angles<pointLanes> lanes_;
    Angles<anglesAtOnce> blocks_;
    Sums re_, im_;
};

// Scalars are put together where the vector would go through the stack, and be waited for.
template <class T>
[[gnu::always_inline]] inline Vec<double> loadDoubles(const T* p)
{
    if constexpr (sizeof(T) * lanes<double> < 8)
        return Vec<double>{static_cast<double>(p[0]), static_cast<double>(p[1])};
    else
        return toDouble<lanes<double>>(load<lanes<double>>(p));
}

// Adds so many steps to the sums of some vectors of the pattern, as many as there are registers for. Sample gives a
// vector of the pattern in a step.
template <int Vectors, int First, class T, class Sample, int Count>
[[gnu::always_inline]] inline void addSteps(Sample sample, int firstStep, int endStep,
                                            SpectrumPoint<T> (&points)[Count])
{
    Vec<double> c[Count][Vectors], s[Count][Vectors];
    for (int k = 0; k < Count; ++k)
        for (int v = 0; v < Vectors; ++v) {
            c[k][v] = points[k].cosines.part[First + v];
            s[k][v] = points[k].sines.part[First + v];
        }
    for (int a = firstStep; a < endStep; ++a)
        for (int v = 0; v < Vectors; ++v) {
            const Vec<double> x = sample(a, First + v);
            for (int k = 0; k < Count; ++k) {
                c[k][v] += x * splat(points[k].steps.cosine[a]);
                s[k][v] += x * splat(points[k].steps.sine[a]);
            }
        }
    for (int k = 0; k < Count; ++k)
        for (int v = 0; v < Vectors; ++v) {
            points[k].cosines.part[First + v] = c[k][v];
            points[k].sines.part[First + v] = s[k][v];
        }
}

template <class T, class Sample, int Count>
[[gnu::always_inline]] inline void addSteps(Sample sample, int firstStep, int endStep,
                                            SpectrumPoint<T> (&points)[Count])
{
    constexpr int vectors = pointLanes / lanes<double>, atOnce = std::min(vectors, 4 / Count);
    [&]<int... I>(std::integer_sequence<int, I...>)
    {
        (addSteps<atOnce, I * atOnce>(sample, firstStep, endStep, points), ...);
    }
    (std::make_integer_sequence<int, vectors / atOnce>{});
}

// The sums of Count frequencies over one vector: real part and imaginary part of each.
template <int Count, class T>
void spectrumPoints(const T* pSrc, std::ptrdiff_t len, const double* frequencies, double* pSums)
{
    using Point = SpectrumPoint<T>;
    constexpr int n = lanes<double>;
    constexpr std::ptrdiff_t blockLength = pointSteps * Point::stepLength;
    Point points[Count];
    for (int k = 0; k < Count; ++k) points[k].start(frequencies[k], len);
    for (int block = 0; len > 0; ++block) {
        const auto count = static_cast<int>(std::min(len, blockLength));
        const int steps = count / Point::stepLength, left = count % Point::stepLength * Point::each;
        const auto* last = asLanes(pSrc + len) - pointLanes;
        addSteps([=](int a, int v) { return loadDoubles(last - a * pointLanes + v * n); }, 0, steps, points);
        if (left > 0) {
            // The first samples of the vector are the last lanes of a step.
            const auto first = [=](int, int v) {
                const int begin = left - pointLanes + v * n;
                return toDouble<n>(
                    loadLast<n>(asLanes(pSrc) + std::max(begin, 0), std::clamp(begin + n, 0, n)));
            };
            addSteps(first, steps, steps + 1, points);
        }
        for (auto& point : points) point.finishBlock(block);
        len -= count;
    }
    for (int k = 0; k < Count; ++k) points[k].finish(pSums + 2 * k);
}

} // namespace zors::ZORS_VARIANT
