// The Fourier transform of real signals of one length.
#pragma once

#include "vector.h"

namespace ecg {

class RealFft {
public:
    // Of 2^order samples.
    explicit RealFft(int order);

    int len() const { return len_; }
    int points() const { return len_ / 2 + 1; } // from frequency 0 to half the sampling rate

    // Pairs of real and imaginary part for each point.
    void forward(const Vector<Zor32f>& signal, Vector<Zor32f>& spectrum);

private:
    struct Sizes {
        int spec, init, work;
    };
    static Sizes sizesOf(int order);
    RealFft(int order, const Sizes& sizes);

    int len_;
    Vector<Zor8u> memory_; // of the record
    Vector<Zor8u> work_;
    ZorsFFTSpec_R_32f* spec_ = nullptr;
};

} // namespace ecg
