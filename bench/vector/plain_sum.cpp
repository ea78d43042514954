#include "vector/plain_sum.h"

#include <Eigen/Core>
#include <algorithm>
#include <cmath>

namespace zors::bench {
namespace {

template <class Sum, class T, class R>
void sum(const T* s, int n, R* result)
{
    Sum total = 0;
    for (int i = 0; i < n; ++i) total += s[i];
    *result = static_cast<R>(total);
}

template <class Sum, class C, class R>
void sumPairs(const C* s, int n, R* result)
{
    Sum re = 0, im = 0;
    for (int i = 0; i < n; ++i) {
        re += s[i].re;
        im += s[i].im;
    }
    result->re = static_cast<decltype(R::re)>(re);
    result->im = static_cast<decltype(R::im)>(im);
}

template <class Sum, class T, class R>
void moments(const T* s, int n, R* mean, R* deviation)
{
    Sum total = 0, squares = 0;
    for (int i = 0; i < n; ++i) {
        const Sum v = s[i];
        total += v;
        squares += v * v;
    }
    const double S = static_cast<double>(total), Q = static_cast<double>(squares);
    *mean = static_cast<R>(S / n);
    *deviation = static_cast<R>(std::sqrt((n * Q - S * S) / ((n - 1.0) * n)));
}

template <class T>
void minMax(const T* s, int n, T* least, T* most)
{
    T low = s[0], high = s[0];
    for (int i = 1; i < n; ++i) {
        low = std::min(low, s[i]);
        high = std::max(high, s[i]);
    }
    *least = low;
    *most = high;
}

template <class Sum, class T>
void eigenSum(const T* s, int n, T* result)
{
    const Eigen::Map<const Eigen::Array<T, Eigen::Dynamic, 1>> v(s, n);
    *result = static_cast<T>(v.template cast<Sum>().sum());
}

} // namespace

const PlainSumLoops PLAIN_LOOPS = {
    sum<double>,     sum<float>,     sum<double>,      sumPairs<double>, sumPairs<float>,  sumPairs<double>,
    sum<Zor64s>,     sum<Zor64s>,    sumPairs<Zor64s>, moments<double>,  moments<float>,   moments<double>,
    moments<Zor64s>, minMax<Zor32f>, eigenSum<double>, eigenSum<float>,  eigenSum<double>,
};

} // namespace zors::bench
