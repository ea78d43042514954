// Transforms of a prime number of points p without a fast method, by sums of products. With a primitive root g the
// points g^a, a < h = (p - 1) / 2, and their opposites are all but point 0, and
//
//     X[+-g^a] = x[0] + sum over b of s[b] cos(2 pi g^(a+b) / p) -+ i sum over b of d[b] sin(2 pi g^(a+b) / p)
//
// with s[b], d[b] = x[g^b] +- x[-g^b] (C. M. Rader 1968): the factors of neighbouring outputs are neighbours too, and
// all of them fit into a table of p pairs.
#pragma once

#include "butterfly.h"
#include "simd/memory.h"

#include <cstdint>

namespace zors::ZORS_VARIANT {

inline constexpr int mostDirectHalf = 44;

// g^a for a < h.
struct PowersOfRoot {
    std::uint8_t of[mostDirectHalf];
};

constexpr PowersOfRoot powersOfRoot(int p)
{
    PowersOfRoot powers{};
    for (int g = 2;; ++g) {
        int order = 1;
        for (int power = g; power != 1; power = power * g % p) ++order;
        if (order < p - 1) continue;
        for (int a = 0, power = 1; a < p / 2; ++a, power = power * g % p)
            powers.of[a] = static_cast<std::uint8_t>(power);
        return powers;
    }
}

// The cosines of g^m, m < 2 h - 1, then the sines.
template <class T, class Root>
inline void fillDirect(int p, const PowersOfRoot& powers, T* table, Root root)
{
    const int half = p / 2, count = 2 * half - 1;
    for (int m = 0; m < count; ++m) {
        const int power = m < half ? powers.of[m] : p - powers.of[m - half];
        const Cx<T> w = root(power, p);
        table[m] = w.re;
        table[count + m] = w.im;
    }
}

template <int W, class T, class Arrays>
[[gnu::noinline]] void directTransform(int p, const PowersOfRoot& powers, const T* table, const Arrays& io,
                                       T sign, T re, T im)
{
    using V = Vec<T, W>;
    const int half = p / 2, count = 2 * half - 1;
    T s[mostDirectHalf][2], d[mostDirectHalf][2], even[2][mostDirectHalf], odd[2][mostDirectHalf];
    const Cx<T> first = {io.get(0).re, io.get(0).im * sign};
    Cx<T> sum = first;
    for (int b = 0; b < half; ++b) {
        const Cx<T> x = io.get(powers.of[b]), y = io.get(p - powers.of[b]);
        s[b][0] = x.re + y.re, s[b][1] = (x.im + y.im) * sign;
        d[b][0] = x.re - y.re, d[b][1] = (x.im - y.im) * sign;
        sum = sum + Cx<T>{s[b][0], s[b][1]};
    }
    for (int a = 0; a < half; a += W) {
        const int at = a + W <= half ? a : half - W;
        // Two sums each, of even and of odd terms.
        V e[2][2] = {{splat<T, W>(first.re), splat<T, W>(first.im)}, {}}, o[2][2] = {};
        for (int b = 0; b < half; b += 2)
            for (int i = 0; i < (b + 1 < half ? 2 : 1); ++i) {
                const V c = load<W>(table + at + b + i), n = load<W>(table + count + at + b + i);
                for (int part = 0; part < 2; ++part) {
                    e[i][part] = mulAdd(c, splat<T, W>(s[b + i][part]), e[i][part]);
                    o[i][part] = mulAdd(n, splat<T, W>(d[b + i][part]), o[i][part]);
                }
            }
        for (int part = 0; part < 2; ++part) {
            store<W>(even[part] + at, e[0][part] + e[1][part]);
            store<W>(odd[part] + at, o[0][part] + o[1][part]);
        }
    }
    io.put(0, {sum.re * re, sum.im * im});
    for (int a = 0; a < half; ++a) {
        io.put(powers.of[a], {(even[0][a] - odd[1][a]) * re, (even[1][a] + odd[0][a]) * im});
        io.put(p - powers.of[a], {(even[0][a] + odd[1][a]) * re, (even[1][a] - odd[0][a]) * im});
    }
}

} // namespace zors::ZORS_VARIANT
