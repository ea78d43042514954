// Power spectra, averaged over overlapping segments (Welch, IEEE Trans. Audio Electroacoust. 15, 70, 1967).
#pragma once

#include "fft.h"

namespace ecg {

// One-sided: the sum of all values times the step is the variance.
struct Density {
    double step;           // Hz from one value to the next
    Vector<Zor32f> values; // squared units of the signal per Hz, from 0 to half the sampling rate

    // The number of values from 0 to `hertz`, which may lie beyond the last one.
    int upTo(double hertz) const;
};

class Welch {
public:
    // The segments last 1 / resolution seconds or somewhat more. Each is continued by zeros until the frequencies
    // stand `fineness` times as close; both lengths are powers of two.
    Welch(int rate, double resolution, int fineness = 1);

    int segment() const { return segment_; } // samples

    // Of at least one sample. What is shorter than a segment is taken as one of its own length.
    Density densityOf(std::span<const Zor32f> signal);

private:
    void addPower(std::span<const Zor32f> segment, const Vector<Zor32f>& weights, Vector<Zor32f>& power);

    int rate_;
    int segment_;
    RealFft fft_;
    Vector<Zor32f> padded_, spectrum_, real_, imag_;
};

} // namespace ecg
