// Filters as streams: every call takes the next block, and what it needs of the ones before is kept. Before a contender
// is timed, its output is held to the plain sum in double precision.
#pragma once

#include "support/compare.h"
#include "support/vectors.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>
#include <set>

namespace zors::bench {

// Taps of ordinary size whose output is of the size of the input.
template <class H>
struct Filter {
    std::vector<H> taps, reversed;
    int length() const { return static_cast<int>(taps.size()); }
};

// A run filters the samples in `in` into `out`. Empty where a contender does not offer it.
template <class T>
struct Stream {
    std::shared_ptr<T[]> in, out;
    Operation run;
};

template <class T, class H>
struct StreamMaker {
    const char* name;
    std::function<Stream<T>(const Filter<H>& filter, int block)> make;
};

template <class T>
constexpr bool isPair = requires(T t)
{
    t.re;
};

// The precision of arithmetic with a type; with integers it is that of Zor32f.
template <class T>
constexpr double epsilonOf = std::is_integral_v<T> ? std::numeric_limits<float>::epsilon()
                                                   : std::numeric_limits<T>::epsilon();
template <class T>
requires isPair<T>
constexpr double epsilonOf<T> = std::numeric_limits<decltype(T::re)>::epsilon();

template <class T>
std::complex<double> wide(T value)
{
    if constexpr (isPair<T>)
        return {value.re, value.im};
    else
        return static_cast<double>(value);
}

template <class T>
T randomNumber(std::minstd_rand& random, double most)
{
    std::uniform_real_distribution<double> numbers(-most, most);
    if constexpr (isPair<T>) {
        using R = decltype(T::re);
        const auto re = static_cast<R>(numbers(random));
        return {re, static_cast<R>(numbers(random))};
    } else {
        return static_cast<T>(numbers(random));
    }
}

// 16-bit samples leave room for the sums.
template <class T>
constexpr double mostSample = std::is_integral_v<T> ? 8000 : 1;

template <class T>
void fill(T* samples, int n, std::minstd_rand& random)
{
    std::generate_n(samples, n, [&] { return randomNumber<T>(random, mostSample<T>); });
}

template <class H>
Filter<H> randomFilter(int length, double unit)
{
    std::minstd_rand random(static_cast<unsigned>(length));
    Filter<H> filter;
    for (int k = 0; k < length; ++k)
        filter.taps.push_back(randomNumber<H>(random, unit / std::sqrt(static_cast<double>(length))));
    filter.reversed = {filter.taps.rbegin(), filter.taps.rend()};
    return filter;
}

[[noreturn]] inline void fail(const std::string& who, const std::string& what)
{
    std::fprintf(stderr, "%s: %s\n", who.c_str(), what.c_str());
    std::exit(1);
}

// Runs a few blocks, of which the last one has a whole filter of samples before it. Unit is what a tap of 1 is.
template <class T, class H>
void check(const std::string& who, const Stream<T>& stream, const Filter<H>& filter, int block, double unit)
{
    const int length = filter.length(), blocks = 2 + length / block, last = (blocks - 1) * block;
    std::minstd_rand random(1);
    std::vector<T> signal;
    for (int b = 0; b < blocks; ++b) {
        fill(stream.in.get(), block, random);
        signal.insert(signal.end(), stream.in.get(), stream.in.get() + block);
        stream.run();
    }
    // All outputs of short blocks, some of long ones.
    const int stride = 1 + block / 2048;
    for (int i = 0; i < block; i += stride) {
        std::complex<double> sum = 0;
        double size = 0;
        for (int k = 0; k < length && last + i - k >= 0; ++k) {
            const auto tap = wide(filter.taps[static_cast<std::size_t>(k)]) / unit;
            sum += tap * wide(signal[static_cast<std::size_t>(last + i - k)]);
            size += std::abs(tap) * mostSample<T>;
        }
        double allowed = 0.5 + 16 * size * epsilonOf<H>; // an integer is the nearest one
        if constexpr (isPair<T>)
            allowed = 32 * size * epsilonOf<T>;
        else if constexpr (!std::is_integral_v<T>)
            allowed = 16 * size * epsilonOf<T>;
        const auto got = wide(stream.out[i]);
        if (!(std::abs(got - sum) <= allowed))
            fail(who, "output " + std::to_string(i) + " of " + std::to_string(block) + " with " +
                          std::to_string(length) + " taps is " + std::to_string(got.real()) + ", not " +
                          std::to_string(sum.real()));
    }
}

// The first contender is ours.
template <class T, class H>
void compareStreams(const std::string& operation, const std::vector<int>& taps,
                    const std::vector<int>& blocks, const std::vector<StreamMaker<T, H>>& makers,
                    double unit = 1)
{
    for (const int length : taps) {
        const auto filter = randomFilter<H>(length, unit);
        const std::string row = operation + ", " + std::to_string(length) + " taps";
        std::vector<Contender> contenders;
        for (const auto& maker : makers) {
            const auto checked = std::make_shared<std::set<int>>();
            contenders.push_back({maker.name, [=](int block) {
                                      nextOffset = 0;
                                      const auto stream = maker.make(filter, block);
                                      if (!stream.run) return stream.run;
                                      if (checked->insert(block).second)
                                          check(row + ", " + maker.name, stream, filter, block, unit);
                                      std::minstd_rand random(1);
                                      fill(stream.in.get(), block, random);
                                      return stream.run;
                                  }});
        }
        compare(row, blocks, contenders);
    }
}

// A vector of n samples behind the `past` ones of before, all of them zero: the second of both is the samples'.
template <class T>
std::pair<std::shared_ptr<T[]>, std::shared_ptr<T[]>> withHistory(int past, int n)
{
    auto all = vector<T>(past + n);
    std::fill_n(all.get(), past + n, T{});
    return {all, {all, all.get() + past}};
}

// A loop over the history and the block in one piece: the block comes to lie behind the samples that are kept.
template <class T, class H, class F>
StreamMaker<T, H> overHistory(const char* name, F loop)
{
    return {name, [=](const Filter<H>& filter, int block) -> Stream<T> {
                const int length = filter.length(), past = length - 1;
                const auto [all, in] = withHistory<T>(past, block);
                const auto out = vector<T>(block);
                return {in, out, [=, all = all, reversed = filter.reversed] {
                            loop(all.get(), out.get(), block, reversed.data(), length);
                            std::memmove(all.get(), all.get() + block,
                                         static_cast<std::size_t>(past) * sizeof(T));
                        }};
            }};
}

} // namespace zors::bench
