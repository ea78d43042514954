#include "filter/plain_convolution.h"

#include <algorithm>
#include <cmath>

namespace zors::bench {
namespace {

// A is the longer one.
template <class T>
void convolution(const T* a, int n, const T* b, int m, T* to)
{
    std::fill_n(to, n + m - 1, T{});
    for (int j = 0; j < m; ++j)
        for (int i = 0; i < n; ++i) to[i + j] += a[i] * b[j];
}

void of16s(const Zor16s* a, int n, const Zor16s* b, int m, Zor16s* to)
{
    for (int k = 0; k < n + m - 1; ++k) {
        Zor64s sum = 0;
        for (int j = std::max(0, k - n + 1); j < std::min(m, k + 1); ++j) sum += Zor64s{b[j]} * a[k - j];
        to[k] = static_cast<Zor16s>(
            std::clamp(std::nearbyint(static_cast<double>(sum) / 65536), -32768.0, 32767.0));
    }
}

void cyclic8x8(const Zor32f* a, const Zor32f* b, Zor32f* to)
{
    Zor32f sums[8] = {};
    for (int n = 0; n < 8; ++n)
        for (int m = 0; m < 8; ++m) sums[n] += a[m] * b[(n - m) & 7];
    std::copy_n(sums, 8, to);
}

} // namespace

extern const PlainConvolutionLoops PLAIN_LOOPS;
const PlainConvolutionLoops PLAIN_LOOPS = {convolution<Zor32f>, convolution<Zor64f>, of16s, cyclic8x8};

} // namespace zors::bench
