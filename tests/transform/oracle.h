// The transform in wide arithmetic, in the plainest fast form there is: by halves.
#pragma once

#include <complex>
#include <vector>

namespace zors::test {

using Wide = long double;
using WideComplex = std::complex<Wide>;
using WideVector = std::vector<WideComplex>;

// X[k] = sum over j of x[j] e^(-2 pi i j k / N), N a power of two.
WideVector dft(const WideVector& x);

// The same of any number of points: few by the definition, many as a convolution.
WideVector dftOfAnyLength(const WideVector& x);

// The same with e^(2 pi i j k / N), from what dft gave.
WideVector inverseFromForward(const WideVector& forward);

// The root mean square of errors over that of what there should be; short transforms take many samples of it.
class RelativeError {
public:
    template <class V>
    void add(const V& got, const V& want)
    {
        for (std::size_t i = 0; i < want.size(); ++i) {
            error_ += std::norm(got[i] - want[i]);
            size_ += std::norm(want[i]);
        }
    }
    double value() const { return static_cast<double>(std::sqrt(error_ / size_)); }

    static int samples(int order) { return order < 11 ? 2048 >> order : 1; }

private:
    Wide error_ = 0, size_ = 0;
};

} // namespace zors::test
