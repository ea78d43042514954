// The relative root mean square error of the forward transforms beside FFTW's, both against FFTW in long double.
#include <cmath>
#include <complex>
#include <cstdio>
#include <cstdlib>
#include <fftw3.h>
#include <random>
#include <vector>
#include <zors.h>

namespace {

using Wide = std::complex<long double>;

std::vector<Wide> reference(const std::vector<Wide>& x)
{
    std::vector<Wide> in = x, out(x.size());
    const fftwl_plan plan =
        fftwl_plan_dft_1d(static_cast<int>(x.size()), reinterpret_cast<fftwl_complex*>(in.data()),
                          reinterpret_cast<fftwl_complex*>(out.data()), FFTW_FORWARD, FFTW_ESTIMATE);
    fftwl_execute(plan);
    fftwl_destroy_plan(plan);
    return out;
}

// In units of eps sqrt(log2 N); got may be the first half of what there should be.
template <class T>
double error(const std::vector<std::complex<T>>& got, const std::vector<Wide>& want, std::size_t count)
{
    long double error = 0, size = 0;
    for (std::size_t i = 0; i < count; ++i) {
        error += std::norm(Wide(got[i]) - want[i]);
        size += std::norm(want[i]);
    }
    const auto relative = static_cast<double>(std::sqrt(error / size));
    return relative / std::numeric_limits<T>::epsilon() /
           std::sqrt(std::log2(static_cast<double>(want.size())));
}

void orDie(ZorStatus status)
{
    if (status != zorStsOk) std::abort();
}

#define ZORS_ERRORS(T, C, complexKind, realKind, prefix)                                                     \
    void printErrors(int order, T)                                                                           \
    {                                                                                                        \
        const std::size_t n = std::size_t{1} << order;                                                       \
        const int length = static_cast<int>(n);                                                              \
        std::mt19937_64 random(n);                                                                           \
        std::uniform_real_distribution<T> numbers(-1, 1);                                                    \
        std::vector<std::complex<T>> x(n), y(n), z(n), half(n / 2 + 1), halfPeer(n / 2 + 1);                 \
        std::vector<T> r(n);                                                                                 \
        for (auto& v : x) v = {numbers(random), numbers(random)};                                            \
        for (std::size_t i = 0; i < n; ++i) r[i] = x[i].real();                                              \
        auto* pairs = reinterpret_cast<prefix##_complex*>(x.data());                                         \
        const auto plan = prefix##_plan_dft_1d(length, pairs, reinterpret_cast<prefix##_complex*>(z.data()), \
                                               FFTW_FORWARD, FFTW_ESTIMATE);                                 \
        prefix##_execute(plan);                                                                              \
        const auto realPlan = prefix##_plan_dft_r2c_1d(                                                      \
            length, r.data(), reinterpret_cast<prefix##_complex*>(halfPeer.data()), FFTW_ESTIMATE);          \
        prefix##_execute(realPlan);                                                                          \
        ZorsFFTSpec_##complexKind* spec = nullptr;                                                           \
        orDie(zorsFFTInitAlloc_##complexKind(&spec, order, ZOR_FFT_SCALE_NONE, ZOR_ALG_ANY));                \
        orDie(zorsFFTFwd_CToC_##C(reinterpret_cast<const Zor##C*>(x.data()),                                 \
                                  reinterpret_cast<Zor##C*>(y.data()), spec, nullptr));                      \
        orDie(zorsFFTFree_##complexKind(spec));                                                              \
        ZorsFFTSpec_##realKind* realSpec = nullptr;                                                          \
        orDie(zorsFFTInitAlloc_##realKind(&realSpec, order, ZOR_FFT_SCALE_NONE, ZOR_ALG_ANY));               \
        ZORS_REAL_FORWARD_##realKind(r.data(), reinterpret_cast<T*>(half.data()), realSpec);                 \
        orDie(zorsFFTFree_##realKind(realSpec));                                                             \
        const auto want = reference({x.begin(), x.end()}), wantReal = reference({r.begin(), r.end()});       \
        std::printf(" %.3f | %.3f | %.3f | %.3f |", error(y, want, n), error(z, want, n),                    \
                    error(half, wantReal, n / 2 + 1), error(halfPeer, wantReal, n / 2 + 1));                 \
        prefix##_destroy_plan(plan);                                                                         \
        prefix##_destroy_plan(realPlan);                                                                     \
    }

#define ZORS_REAL_FORWARD_R_32f(src, dst, spec) orDie(zorsFFTFwd_RToCCS_32f(src, dst, spec, nullptr))
#define ZORS_REAL_FORWARD_R_64f(src, dst, spec) orDie(zorsFFTFwd_RToCCS_64f(src, dst, spec, nullptr))

ZORS_ERRORS(float, 32fc, C_32fc, R_32f, fftwf)
ZORS_ERRORS(double, 64fc, C_64fc, R_64f, fftw)

} // namespace

int main()
{
    std::printf("| order | complex float | FFTW | real float | FFTW | complex double | FFTW | real double | "
                "FFTW |\n");
    std::printf("|---:|---:|---:|---:|---:|---:|---:|---:|---:|\n");
    for (int order = 4; order <= 22; ++order) {
        std::printf("| %d |", order);
        printErrors(order, float{});
        printErrors(order, double{});
        std::printf("\n");
    }
}
