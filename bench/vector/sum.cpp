// Sums, means and deviations beside plain loops, Eigen and VOLK.
#include "support/compare.h"
#include "vector/plain_sum.h"

#include <memory>
#include <vector>
#include <volk/volk.h>
#include <volk/volk_malloc.h>
#include <zors.h>

namespace zors::bench {
namespace {

const std::vector<int> lengths = {256, 4096, 65536, 4 << 20};

// One call f(pSrc, length, results...) on a vector of small numbers.
template <class... R, class T>
Contender contender(const char* name, void (*f)(const T*, int, R*...))
{
    return {name, [=](int length) -> Operation {
                const std::shared_ptr<T[]> source(
                    static_cast<T*>(volk_malloc(sizeof(T) * static_cast<std::size_t>(length), 64)),
                    volk_free);
                for (int i = 0; i < length; ++i)
                    if constexpr (requires(T t) { t.re; })
                        source[i].re = 1, source[i].im = 2;
                    else
                        source[i] = static_cast<T>(i % 16);
                return [=, results = std::make_shared<std::tuple<R...>>()] {
                    std::apply([&](R&... r) { f(source.get(), length, &r...); }, *results);
                };
            }};
}

template <class F>
std::vector<Contender> contenders(F ours, F PlainSumLoops::*loop)
{
    return {contender("zors", ours), contender("g++", gcc_loops.*loop),
            contender("clang", clang_loops.*loop)};
}

template <class F>
std::vector<Contender> with(std::vector<Contender> some, const char* name, F f)
{
    some.push_back(contender(name, f));
    return some;
}

template <class F>
std::vector<Contender> withEigen(std::vector<Contender> some, F PlainSumLoops::*f)
{
    return with(with(std::move(some), "Eigen, g++", gcc_loops.*f), "Eigen, clang", clang_loops.*f);
}

// Our functions without their last argument and status.
template <auto function, class T, class... R>
void hint(const T* s, int n, R*... r)
{
    function(s, n, r..., ZOR_ALG_ANY);
}

template <auto function, class T, class... R>
void speed(const T* s, int n, R*... r)
{
    function(s, n, r..., ZOR_ALG_SPEED);
}

template <auto function, class T, class... R>
void plain(const T* s, int n, R*... r)
{
    function(s, n, r...);
}

void volkSum(const Zor32f* s, int n, Zor32f* sum)
{
    volk_32f_accumulator_s32f(sum, s, static_cast<unsigned>(n));
}

// Single precision; the deviation of the population, not of the sample.
void volkMoments(const Zor32f* s, int n, Zor32f* mean, Zor32f* deviation)
{
    volk_32f_stddev_and_mean_32f_x2(deviation, mean, s, static_cast<unsigned>(n));
}

// The deviation only: the plain loops' mean costs nothing.
void fastDeviation(const Zor32f* s, int n, Zor32f* mean, Zor32f* deviation)
{
    *mean = 0;
    zorsStdDev_32f(s, n, deviation, ZOR_ALG_SPEED);
}

void moments16(const Zor16s* s, int n, Zor32s* mean, Zor32s* deviation)
{
    zorsMeanStdDev_16s32s_Sfs(s, n, mean, deviation, 0);
}

void registerAll()
{
    using P = PlainSumLoops;
    const auto any = [](const char* name, auto ours, auto loop) {
        compare(name, lengths, contenders(ours, loop));
    };
    compare("Sum_32f, hint 0", lengths,
            withEigen(contenders(hint<zorsSum_32f, Zor32f, Zor32f>, &P::sum32f), &P::eigenSum32f));
    compare(
        "Sum_32f, hint 1", lengths,
        with(withEigen(contenders(speed<zorsSum_32f, Zor32f, Zor32f>, &P::sumFast32f), &P::eigenSumFast32f),
             "VOLK", volkSum));
    compare("Sum_64f", lengths,
            withEigen(contenders(plain<zorsSum_64f, Zor64f, Zor64f>, &P::sum64f), &P::eigenSum64f));
    any("Sum_32fc, hint 0", hint<zorsSum_32fc, Zor32fc, Zor32fc>, &P::sum32fc);
    any("Sum_32fc, hint 1", speed<zorsSum_32fc, Zor32fc, Zor32fc>, &P::sumFast32fc);
    any("Sum_64fc", plain<zorsSum_64fc, Zor64fc, Zor64fc>, &P::sum64fc);
    any("Sum_16s32s_Sfs", hint<zorsSum_16s32s_Sfs, Zor16s, Zor32s>, &P::sum16s);
    any("Sum_32s_Sfs", hint<zorsSum_32s_Sfs, Zor32s, Zor32s>, &P::sum32s);
    any("Sum_16sc32sc_Sfs", hint<zorsSum_16sc32sc_Sfs, Zor16sc, Zor32sc>, &P::sum16sc);
    any("MeanStdDev_32f", plain<zorsMeanStdDev_32f, Zor32f, Zor32f, Zor32f>, &P::moments32f);
    compare("StdDev_32f, hint 1", lengths,
            with(contenders(fastDeviation, &P::momentsFast32f), "VOLK", volkMoments));
    any("MeanStdDev_64f", plain<zorsMeanStdDev_64f, Zor64f, Zor64f, Zor64f>, &P::moments64f);
    any("MeanStdDev_16s32s_Sfs", moments16, &P::moments16s);
    any("MinMax_32f", plain<zorsMinMax_32f, Zor32f, Zor32f, Zor32f>, &P::minMax32f);
}

} // namespace
} // namespace zors::bench

int main(int argc, char** argv)
{
    zors::bench::registerAll();
    return zors::bench::run(argc, argv);
}
