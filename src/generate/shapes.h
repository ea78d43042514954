// The weights of the window shapes, all but Kaiser's, up to the centre. W is the type that they are rounded to.
//
// A shape gives the weights of a stretch, from(first), as a function of the index in it: a vector of weights from
// that index on.
//
// With q = sin(pi n / (len - 1))^2 the cosine of the usual formulas is 1 - 2 q. Written through q no shape loses
// its precision towards the ends of the window, where the weights are small.
#pragma once

#include "series.h"
#include "weigh.h"

#include <cmath>

namespace zors::ZORS_VARIANT {

template <class W>
class Bartlett {
public:
    static constexpr bool vanishes = true; // at the ends of the window
    explicit Bartlett(int len) : step_(2.0 / (len - 1)) {}

    auto from(int first) const
    {
        return [=, step = step_](int n) { return indices(first + n) * step; };
    }

private:
    double step_;
};

// Sines and cosines are evaluated for the first stretch alone. In another one the angle is that at its first index
// plus one of the first stretch, all of them in the first quadrant:
//
//     sin(a + b) = sin a + (sin b cos a - 2 sin(b / 2)^2 sin a)
//
// Every stretch starts anew: nothing drifts.
template <class W>
class SquaredSine {
public:
    explicit SquaredSine(int len)
        : step_(static_cast<float>(std::numbers::pi / (len - 1))),
          rest_(static_cast<double>(std::numbers::pi_v<long double> / (len - 1) - step_)),
          centre_((len - 1) * 0.5)
    {
        constexpr int step = lanes<double>;
        const int count = std::min(len / 2, stretch);
        for (int n = 0; n < count; n += step) store<step>(sines_ + n, sineAt(indices(n)));
        if (len / 2 <= stretch) return;
        for (int n = 0; n < count; n += step) {
            const Vec<double> s = sineAt(indices(n) * 0.5);
            store<step>(versines_ + n, s * s * 2.0);
        }
    }

    auto from(int first) const
    {
        double sineThere = 0, cosineThere = 0;
        if (first > 0) {
            // The cosine of an index is the sine of its distance from the centre.
            Vec<double> ends{};
            ends[0] = first;
            ends[1] = centre_ - first;
            ends = sineAt(ends);
            sineThere = ends[0];
            cosineThere = ends[1];
            // The series loses a little towards the right angle, where the other way round loses nothing.
            if (cosineThere < 0.5) sineThere = std::sqrt(1 - cosineThere * cosineThere);
        }
        return [this, first, sineThere, cosineThere](int n) {
            Vec<double> s = load<lanes<double>>(sines_ + n);
            // There are no versines where one stretch is all.
            if (first > 0) s = sineThere + (s * cosineThere - load<lanes<double>>(versines_ + n) * sineThere);
            return s * s;
        };
    }

private:
    Vec<double> sineAt(Vec<double> n) const { return sine<W>(n * step_, n * rest_); }

    // The angle from an index to the next: a double with so few bits that its products with indices up to 2^29 are
    // exact, and what it leaves over.
    double step_, rest_;
    double centre_;
    alignas(vectorBytes) double sines_[stretch], versines_[stretch];
};

// 0.5 - 0.5 cos.
template <class W>
class Hann : public SquaredSine<W> {
public:
    static constexpr bool vanishes = true;
    using SquaredSine<W>::SquaredSine;
};

// 0.54 - 0.46 cos.
template <class W>
class Hamming : public SquaredSine<W> {
public:
    static constexpr bool vanishes = false;
    using SquaredSine<W>::SquaredSine;

    auto from(int first) const
    {
        return [q = SquaredSine<W>::from(first)](int n) { return 0.08 + 0.92 * q(n); };
    }
};

// (alpha + 1) / 2 - 0.5 cos - alpha / 2 cos 2, in full precision also for floats: some parameters let the terms
// cancel.
template <class W>
class Blackman : public SquaredSine<double> {
public:
    static constexpr bool vanishes = true;
    Blackman(int len, double alpha) : SquaredSine(len), factor_(4 * alpha) {}

    auto from(int first) const
    {
        return [q = SquaredSine::from(first), factor = factor_](int n) {
            const Vec<double> v = q(n);
            return v + factor * v * (1 - v);
        };
    }

private:
    double factor_;
};

} // namespace zors::ZORS_VARIANT
