// Linear convolution beside plain loops and transforms on FFTW; every result is checked before it is timed.
#include "filter/convolver.h"
#include "filter/plain_convolution.h"
#include "support/compare.h"

#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <random>
#include <zors.h>

namespace zors::bench {
namespace {

template <class T>
struct Data {
    std::shared_ptr<T[]> signal, kernel, to;
    int signalLen, kernelLen;
};

template <class T>
using Convolve = std::function<void(const T* a, int n, const T* b, int m, T* to)>;

template <class T>
struct Maker {
    const char* name;
    // Made for the lengths, before the clock starts. Empty where it does not take part.
    std::function<Convolve<T>(int n, int m)> make;
};

constexpr double mostInteger = 2000;

template <class T>
Data<T> randomData(int n, int m)
{
    nextOffset = 0;
    Data<T> d{vector<T>(n), vector<T>(m), vector<T>(n + m - 1), n, m};
    std::minstd_rand random(1);
    const double most = std::is_integral_v<T> ? mostInteger : 1;
    std::uniform_real_distribution<double> numbers(-most, most);
    std::generate_n(d.signal.get(), n, [&] { return static_cast<T>(numbers(random)); });
    std::generate_n(d.kernel.get(), m, [&] { return static_cast<T>(numbers(random)); });
    return d;
}

template <class T>
void check(const std::string& who, const Data<T>& d)
{
    const int outputs = d.signalLen + d.kernelLen - 1;
    for (int k = 0; k < outputs; k += 1 + outputs / 300) {
        double sum = 0;
        for (int j = std::max(0, k - d.signalLen + 1); j < std::min(d.kernelLen, k + 1); ++j)
            sum += static_cast<double>(d.kernel[j]) * static_cast<double>(d.signal[k - j]);
        double bound = 1e-5 * std::sqrt(d.kernelLen);
        if (std::is_integral_v<T>) sum /= 65536, bound = 0.51;
        if (!(std::abs(static_cast<double>(d.to[k]) - sum) <= bound)) {
            std::fprintf(stderr, "%s: output %d is %g, not %g\n", who.c_str(), k,
                         static_cast<double>(d.to[k]), sum);
            std::exit(1);
        }
    }
}

// Kernels of m elements with signals of some lengths.
template <class T>
void compareMakers(const std::string& operation, int m, const std::vector<int>& lengths,
                   const std::vector<Maker<T>>& makers)
{
    const std::string row = operation + ", " + std::to_string(m) + " with";
    std::vector<Contender> contenders;
    for (const auto& maker : makers)
        contenders.push_back({maker.name, [=](int n) -> Operation {
                                  const auto run = maker.make(n, m);
                                  if (!run) return {};
                                  const auto d = randomData<T>(n, m);
                                  run(d.signal.get(), n, d.kernel.get(), m, d.to.get());
                                  check(row + ", " + maker.name, d);
                                  return [=] { run(d.signal.get(), n, d.kernel.get(), m, d.to.get()); };
                              }});
    compare(row, lengths, contenders);
}

// A contender that is made of nothing.
template <class T>
Maker<T> plain(const char* name, Convolve<T> f, int mostKernel = 1 << 30)
{
    return {name, [=](int, int m) { return m <= mostKernel ? f : Convolve<T>(); }};
}

template <class T>
double seconds(const Convolver<T>& convolver, const Data<T>& d)
{
    double least = INFINITY;
    for (int i = 0; i < 10; ++i) {
        const auto start = std::chrono::steady_clock::now();
        convolver(d.signal.get(), d.signalLen, d.kernel.get(), d.to.get());
        least =
            std::min(least, std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
    return least;
}

// At the fastest size: of overlap-save, or, as long as that is not much longer than the kernel, all outputs in one block.
template <class T>
Maker<T> fftw()
{
    using Made = std::shared_ptr<const Convolver<T>>;
    return {"FFTW",
            [made = std::make_shared<std::map<std::pair<int, int>, Made>>()](int n, int m) -> Convolve<T> {
                if (m < 32) return {};
                Made& best = (*made)[{n, m}];
                if (!best) {
                    const auto d = randomData<T>(n, m);
                    double least = INFINITY;
                    int size = 64;
                    while (size < 2 * m) size *= 2;
                    for (int i = 0; i < 5 && size / 2 < n + m - 1; ++i, size *= 2) {
                        const auto convolver = std::make_shared<const Convolver<T>>(size, m);
                        const double time = seconds(*convolver, d);
                        if (time < least) least = time, best = convolver;
                    }
                }
                return [best = best](const T* a, int len, const T* b, int, T* to) { (*best)(a, len, b, to); };
            }};
}

// Ours with a buffer that is there.
template <class T>
Maker<T> buffered(ZorDataType type, ZorStatus (*f)(const T*, int, const T*, int, T*, ZorConvAlgType, Zor8u*))
{
    return {"zors", [=](int n, int m) -> Convolve<T> {
                int size = 0;
                zorsConvolveGetBufferSize(n, m, type, ZOR_CONV_ALG_AUTO, &size);
                const auto buffer = vector<Zor8u>(size);
                return [=](const T* a, int an, const T* b, int bn, T* to) {
                    f(a, an, b, bn, to, ZOR_CONV_ALG_AUTO, buffer.get());
                };
            }};
}

void scaled(const Zor16s* a, int n, const Zor16s* b, int m, Zor16s* to)
{
    zorsConv_16s_Sfs(a, n, b, m, to, 16);
}

template <class T>
std::vector<Maker<T>> peers(Maker<T> ours, Convolve<T> gcc, Convolve<T> clang)
{
    constexpr int mostByLoops = 1024;
    return {ours, plain<T>("g++", gcc, mostByLoops), plain<T>("clang", clang, mostByLoops), fftw<T>()};
}

void registerAll()
{
    const auto of32f = peers<Zor32f>(plain<Zor32f>("zors", zorsConv_32f), gcc_loops.of32f, clang_loops.of32f);
    compareMakers("Conv_32f", 8, {8, 64, 4096}, of32f);
    compareMakers("Conv_32f", 32, {32, 400, 4096, 65536}, of32f);
    compareMakers("Conv_32f", 63, {63, 400, 4096, 65536}, of32f);
    compareMakers("Conv_32f", 64, {512, 4096, 65536}, of32f);
    compareMakers("Conv_32f", 256, {256, 1024, 4096, 65536}, of32f);
    compareMakers("Conv_32f", 1024, {1024, 65536}, of32f);
    compareMakers("Conv_32f", 4096, {4096, 65536}, of32f);
    compareMakers("Conv_32f", 65536, {65536}, of32f);
    const auto withBuffer =
        peers<Zor32f>(buffered<Zor32f>(zorDataType32f, zorsConvolve_32f), gcc_loops.of32f, clang_loops.of32f);
    compareMakers("Convolve_32f", 256, {65536}, withBuffer);
    compareMakers("Convolve_32f", 4096, {4096}, withBuffer);
    const auto of64f = peers<Zor64f>(plain<Zor64f>("zors", zorsConv_64f), gcc_loops.of64f, clang_loops.of64f);
    compareMakers("Conv_64f", 32, {400, 65536}, of64f);
    compareMakers("Conv_64f", 256, {65536}, of64f);
    compareMakers("Conv_64f", 4096, {4096}, of64f);
    const std::vector<Maker<Zor16s>> of16s = {plain<Zor16s>("zors", scaled),
                                              plain<Zor16s>("g++", gcc_loops.of16s),
                                              plain<Zor16s>("clang", clang_loops.of16s)};
    compareMakers("Conv_16s_Sfs", 32, {400, 65536}, of16s);
    compareMakers("Conv_16s_Sfs", 256, {65536}, of16s);

    const auto cyclic = [](const char* name, auto f) -> Contender {
        return {name, [=](int) -> Operation {
                    return [=, a = numbers<Zor32f>(8), b = numbers<Zor32f>(8), to = vector<Zor32f>(8)] {
                        f(a.get(), b.get(), to.get());
                    };
                }};
    };
    compare("ConvCyclic8x8_32f", {8},
            {cyclic("zors", zorsConvCyclic8x8_32f), cyclic("g++", gcc_loops.cyclic8x8),
             cyclic("clang", clang_loops.cyclic8x8)});
}

} // namespace
} // namespace zors::bench

int main(int argc, char** argv)
{
    zors::bench::registerAll();
    return zors::bench::run(argc, argv, zors::bench::Table::everyPeer);
}
