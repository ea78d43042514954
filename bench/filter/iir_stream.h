// Recursive filters as streams. Before a contender is timed, its output is held to the recurrence in double precision.
#pragma once

#include "filter/stream.h"

#include <numbers>

namespace zors::bench {

// One section of any order, or a cascade of the second: for each b0 ... bN, a0 ... aN, a0 being 1.
template <class H>
struct IirFilter {
    int order, sections;
    std::vector<H> taps;

    // As loops take them, without a0.
    std::vector<H> withoutA0() const
    {
        std::vector<H> some;
        for (int i = 0; i < static_cast<int>(taps.size()); ++i)
            if (i % (2 * order + 2) != order + 1) some.push_back(taps[static_cast<std::size_t>(i)]);
        return some;
    }
    int count() const { return order == 2 ? sections : order; }
    int delays() const { return order * sections; }
};

template <class T, class H>
struct IirMaker {
    const char* name;
    std::function<Stream<T>(const IirFilter<H>& filter, int block)> make;
};

using Wide = std::complex<double>;

// The recurrence, sample after sample.
template <class H>
class WideFilter {
public:
    explicit WideFilter(const IirFilter<H>& filter)
        : filter_(filter), delay_(static_cast<std::size_t>(filter.delays() + 1))
    {
    }

    Wide next(Wide x)
    {
        const int order = filter_.order;
        for (int s = 0; s < filter_.sections; ++s) {
            const H* b = filter_.taps.data() + 2 * (order + 1) * s;
            const H* a = b + order + 1;
            Wide* d = delay_.data() + order * s;
            const Wide y = wide(b[0]) * x + d[0];
            for (int k = 1; k <= order; ++k)
                d[k - 1] = wide(b[k]) * x - wide(a[k]) * y + (k < order ? d[k] : Wide{});
            x = y;
        }
        return x;
    }

private:
    const IirFilter<H>& filter_;
    std::vector<Wide> delay_;
};

template <class H>
H narrow(Wide value)
{
    if constexpr (isPair<H>) {
        using R = decltype(H::re);
        return {static_cast<R>(value.real()), static_cast<R>(value.imag())};
    } else {
        return static_cast<H>(value.real());
    }
}

// Poles of a radius all around the upper half of the circle (that of complex filters: pairs without their conjugates);
// sections of the second order, or multiplied out. An impulse leaves the filter with as much energy as it had.
template <class H>
IirFilter<H> iirFilter(int order, int sections, double radius)
{
    const auto half = [](Wide root) -> std::vector<Wide> {
        const Wide other = isPair<H> ? root * Wide{0.8, 0.1} : std::conj(root);
        return {1.0, -root - other, root * other};
    };
    const auto times = [](const std::vector<Wide>& p, const std::vector<Wide>& q) {
        std::vector<Wide> product(p.size() + q.size() - 1);
        for (std::size_t i = 0; i < p.size(); ++i)
            for (std::size_t k = 0; k < q.size(); ++k) product[i + k] += p[i] * q[k];
        return product;
    };
    std::vector<Wide> taps;
    const auto append = [&](const std::vector<Wide>& p) { taps.insert(taps.end(), p.begin(), p.end()); };
    for (int s = 0; s < sections; ++s) {
        std::vector<Wide> b = {1.0}, a = {1.0};
        for (int k = 0; k < order / 2; ++k) {
            const double place = (s + k + 0.6) / (sections + order / 2 - 1);
            const auto at = [=](double r, double turn) {
                return std::polar(r, std::numbers::pi * place * turn);
            };
            b = times(b, half(at(0.7, 0.8)));
            a = times(a, half(at(radius, 1)));
        }
        append(b);
        append(a);
    }
    IirFilter<H> filter{order, sections, {}};
    for (const Wide tap : taps) filter.taps.push_back(narrow<H>(tap));
    // The energy of the response goes into the first numerator.
    WideFilter<H> response(filter);
    double energy = 0;
    for (int n = 0; n < 20000; ++n) energy += std::norm(response.next(n == 0 ? 1 : 0));
    for (int k = 0; k <= order; ++k) {
        auto& tap = filter.taps[static_cast<std::size_t>(k)];
        tap = narrow<H>(wide(tap) / std::sqrt(energy));
    }
    return filter;
}

// Three blocks: the last one finds what the others leave.
template <class T, class H>
void check(const std::string& who, const Stream<T>& stream, const IirFilter<H>& filter, int block)
{
    std::minstd_rand random(1);
    WideFilter<H> expected(filter);
    const double allowed = (std::is_integral_v<T> ? 0.5 : 0) + 2000 * mostSample<T> * epsilonOf<H>;
    for (int b = 0; b < 3; ++b) {
        fill(stream.in.get(), block, random);
        const std::vector<T> in(stream.in.get(), stream.in.get() + block);
        stream.run();
        for (int i = 0; i < block; ++i) {
            const Wide y = expected.next(wide(in[static_cast<std::size_t>(i)])), got = wide(stream.out[i]);
            if (!(std::abs(got - y) <= allowed))
                fail(who, "output " + std::to_string(i) + " of " + std::to_string(block) + " is " +
                              std::to_string(got.real()) + ", not " + std::to_string(y.real()));
        }
    }
}

// The first contender is ours.
template <class T, class H>
void compareRecursive(const std::string& operation, const IirFilter<H>& filter,
                      const std::vector<int>& blocks, const std::vector<IirMaker<T, H>>& makers)
{
    std::vector<Contender> contenders;
    for (const auto& maker : makers) {
        const auto checked = std::make_shared<std::set<int>>();
        contenders.push_back({maker.name, [=](int block) {
                                  nextOffset = 0;
                                  auto stream = maker.make(filter, block);
                                  if (checked->insert(block).second) {
                                      check(operation + ", " + maker.name, stream, filter, block);
                                      nextOffset = 0;
                                      stream = maker.make(filter, block);
                                  }
                                  std::minstd_rand random(1);
                                  fill(stream.in.get(), block, random);
                                  return stream.run;
                              }});
    }
    compare(operation, blocks, contenders);
}

} // namespace zors::bench
