// Windows and random numbers beside plain loops, and random numbers also beside GSL and the standard library.
#include "generate/plain_generate.h"
#include "support/compare.h"
#include "support/vectors.h"

#include <gsl/gsl_randist.h>
#include <gsl/gsl_rng.h>
#include <random>
#include <zors.h>

namespace zors::bench {
namespace {

const std::vector<int> lengths = {16, 256, 4096, 65536, 1 << 20};

// One call f(vectors..., length), the vectors made for the length.
template <class... T, class F>
Contender contender(const char* name, F f)
{
    return {name, [f](int length) -> Operation {
                return [f, length, vectors = std::make_tuple(vector<T>(length)...)] {
                    std::apply([&](const auto&... v) { f(v.get()..., length); }, vectors);
                };
            }};
}

// Our function and the two compilers' loops.
template <class... T, class F, class G>
void besideLoops(const char* operation, F ours, G PlainGenerateLoops::*loop)
{
    compare(operation, lengths,
            {contender<T...>("zors", ours), contender<T...>("g++", gcc_loops.*loop),
             contender<T...>("clang", clang_loops.*loop)});
}

template <class T>
T alphaFor(int n)
{
    return static_cast<T>(2 * beta / (n - 1));
}

void windows()
{
    using P = PlainGenerateLoops;
    besideLoops<Zor32f>("WinHann_32f_I", zorsWinHann_32f_I, &P::hann32f);
    besideLoops<Zor64f>("WinHann_64f_I", zorsWinHann_64f_I, &P::hann64f);
    besideLoops<Zor16s>("WinHann_16s_I", zorsWinHann_16s_I, &P::hann16s);
    besideLoops<Zor32fc>("WinHann_32fc_I", zorsWinHann_32fc_I, &P::hann32fc);
    besideLoops<Zor32f>("WinBlackmanStd_32f_I", zorsWinBlackmanStd_32f_I, &P::blackman32f);
    besideLoops<Zor32f, Zor32f>(
        "WinKaiser_32f", [](auto* s, auto* d, int n) { zorsWinKaiser_32f(s, d, n, alphaFor<Zor32f>(n)); },
        &P::kaiser32f);
    besideLoops<Zor64f, Zor64f>(
        "WinKaiser_64f", [](auto* s, auto* d, int n) { zorsWinKaiser_64f(s, d, n, alphaFor<Zor64f>(n)); },
        &P::kaiser64f);
}

// One sequence that goes on from call to call: a short one that starts again would be learnt by heart by the
// branch predictor.
template <class State, class T>
State* started(ZorStatus (*start)(State**, T, T, Zor32u), std::type_identity_t<T> first,
               std::type_identity_t<T> second)
{
    State* state = nullptr;
    start(&state, first, second, 1);
    return state;
}

void uniform32f(Zor32f* d, int n)
{
    static auto* const state = started(zorsRandUniformInitAlloc_32f, 0, 1);
    zorsRandUniform_32f(d, n, state);
}

void uniform16s(Zor16s* d, int n)
{
    static auto* const state = started(zorsRandUniformInitAlloc_16s, -1000, 2000);
    zorsRandUniform_16s(d, n, state);
}

void gauss32f(Zor32f* d, int n)
{
    static auto* const state = started(zorsRandGaussInitAlloc_32f, 0, 1);
    zorsRandGauss_32f(d, n, state);
}

gsl_rng* gslGenerator()
{
    static gsl_rng* generator = gsl_rng_alloc(gsl_rng_mt19937);
    return generator;
}

template <class Distribution>
void byStandardLibrary(Zor32f* d, int n)
{
    static std::mt19937 generator;
    Distribution distribution;
    for (int i = 0; i < n; ++i) d[i] = distribution(generator);
}

void randomNumbers()
{
    using P = PlainGenerateLoops;
    besideLoops<Zor32f>("RandUniform_32f", uniform32f, &P::uniform32f);
    besideLoops<Zor16s>("RandUniform_16s", uniform16s, &P::uniform16s);
    besideLoops<Zor32f>("RandGauss_32f", gauss32f, &P::gauss32f);

    const auto gslUniform = [](Zor32f* d, int n) {
        for (int i = 0; i < n; ++i) d[i] = static_cast<Zor32f>(gsl_rng_uniform(gslGenerator()));
    };
    const auto gslGauss = [](Zor32f* d, int n) {
        for (int i = 0; i < n; ++i) d[i] = static_cast<Zor32f>(gsl_ran_gaussian_ziggurat(gslGenerator(), 1));
    };
    compare("RandUniform_32f, libraries", {4096},
            {contender<Zor32f>("zors", uniform32f), contender<Zor32f>("GSL mt19937", gslUniform)});
    compare("RandUniform_32f, libraries", {4096},
            {contender<Zor32f>("zors", uniform32f),
             contender<Zor32f>("std::mt19937", byStandardLibrary<std::uniform_real_distribution<Zor32f>>)});
    compare("RandGauss_32f, libraries", {4096},
            {contender<Zor32f>("zors", gauss32f), contender<Zor32f>("GSL ziggurat", gslGauss)});
    compare("RandGauss_32f, libraries", {4096},
            {contender<Zor32f>("zors", gauss32f),
             contender<Zor32f>("std::mt19937", byStandardLibrary<std::normal_distribution<Zor32f>>)});
}

} // namespace
} // namespace zors::bench

int main(int argc, char** argv)
{
    zors::bench::windows();
    zors::bench::randomNumbers();
    return zors::bench::run(argc, argv);
}
