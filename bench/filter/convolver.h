// Convolution on FFTW's real transforms, planned with MEASURE beforehand, which is not timed.
#pragma once

#include "support/vectors.h"

#include <algorithm>
#include <complex>
#include <fftw3.h>
#include <memory>

namespace zors::bench {

template <class T>
struct Fftw;
template <>
struct Fftw<float> {
    using Plan = fftwf_plan;
    static constexpr auto forward = fftwf_plan_dft_r2c_1d;
    static constexpr auto inverse = fftwf_plan_dft_c2r_1d;
    static constexpr auto runForward = fftwf_execute_dft_r2c;
    static constexpr auto run = fftwf_execute;
    static constexpr auto destroy = fftwf_destroy_plan;
};
template <>
struct Fftw<double> {
    using Plan = fftw_plan;
    static constexpr auto forward = fftw_plan_dft_r2c_1d;
    static constexpr auto inverse = fftw_plan_dft_c2r_1d;
    static constexpr auto runForward = fftw_execute_dft_r2c;
    static constexpr auto run = fftw_execute;
    static constexpr auto destroy = fftw_destroy_plan;
};

// Transforms of N points: one block where all outputs fit, overlap-save where not.
template <class T>
class Convolver {
public:
    Convolver(int n, int kernelLen)
        : n_(n), kernelLen_(kernelLen), points_(memory(n)), spectrum_(memory(n + 2)), kernel_(memory(n + 2))
    {
        forward_ = F::forward(n, points_.get(), pairs(spectrum_), FFTW_MEASURE);
        inverse_ = F::inverse(n, pairs(spectrum_), points_.get(), FFTW_MEASURE);
    }
    Convolver(const Convolver&) = delete;
    Convolver& operator=(const Convolver&) = delete;
    ~Convolver()
    {
        F::destroy(forward_);
        F::destroy(inverse_);
    }

    void operator()(const T* signal, int len, const T* kernel, T* to) const
    {
        for (int i = 0; i < kernelLen_; ++i) points_[i] = kernel[i] / static_cast<T>(n_);
        std::fill(points_.get() + kernelLen_, points_.get() + n_, T{});
        F::runForward(forward_, points_.get(), pairs(kernel_));
        const int outputs = len + kernelLen_ - 1;
        const int older = outputs <= n_ ? 0 : kernelLen_ - 1, step = n_ - older;
        for (int i = 0; i < outputs; i += step) {
            const int from = std::max(0, i - older), end = std::min(len, i + step);
            std::fill(points_.get(), points_.get() + (from - i + older), T{});
            std::copy(signal + from, signal + std::max(from, end), points_.get() + (from - i + older));
            std::fill(points_.get() + std::max(0, end - i + older), points_.get() + n_, T{});
            F::run(forward_);
            multiply();
            F::run(inverse_);
            std::copy_n(points_.get() + older, std::min(step, outputs - i), to + i);
        }
    }

private:
    using F = Fftw<T>;
    using Memory = std::shared_ptr<T[]>;
    static Memory memory(int n)
    {
        return {static_cast<T*>(fftw_malloc(sizeof(T) * static_cast<std::size_t>(n))), fftw_free};
    }
    static T (*pairs(const Memory& m))[2] { return reinterpret_cast<T(*)[2]>(m.get()); }

    void multiply() const
    {
        T* s = spectrum_.get();
        const T* k = kernel_.get();
        for (int i = 0; i < n_ + 2; i += 2) {
            const T re = s[i] * k[i] - s[i + 1] * k[i + 1], im = s[i] * k[i + 1] + s[i + 1] * k[i];
            s[i] = re;
            s[i + 1] = im;
        }
    }

    int n_, kernelLen_;
    Memory points_, spectrum_, kernel_;
    typename F::Plan forward_, inverse_;
};

} // namespace zors::bench
