// Fast Fourier transforms of 2^4 to 2^22 points beside FFTW, libavutil and KissFFT, out of place.
#include "transform/data.h"

#include <cstdlib>
#include <zors.h>

namespace zors::bench {
namespace {

std::vector<int> lengths()
{
    std::vector<int> all;
    for (int order = 4; order <= 22; ++order) all.push_back(1 << order);
    return all;
}

int orderOf(int n)
{
    int order = 0;
    while (1 << order < n) ++order;
    return order;
}

// Our transform on vectors of numbers of type T, with a record and a work buffer of its own.
template <class T, class Spec, class C>
Contender ours(Shape shape, ZorStatus (*init)(Spec**, int, int, ZorHintAlgorithm), ZorStatus (*free)(Spec*),
               ZorStatus (*getBufSize)(const Spec*, int*),
               ZorStatus (*run)(const C*, C*, const Spec*, Zor8u*))
{
    return {"zors", [=](int n) -> Operation {
                Spec* made = nullptr;
                int size = 0;
                if (init(&made, orderOf(n), ZOR_FFT_SCALE_NONE, ZOR_ALG_ANY) != zorStsOk ||
                    getBufSize(made, &size) != zorStsOk)
                    std::abort();
                const std::shared_ptr<Spec> spec(made, free);
                const auto work = size > 0 ? vector<Zor8u>(size) : nullptr;
                return [=, in = randomData<T>(shape, n), out = randomData<T>(shape, n)] {
                    run(reinterpret_cast<const C*>(in.get()), reinterpret_cast<C*>(out.get()), spec.get(),
                        work.get());
                };
            }};
}

template <class T>
void against(const std::string& operation, Shape shape, const Contender& contender)
{
    auto contenders = peersOf<T>(shape);
    contenders.insert(contenders.begin(), contender);
    compare(operation, lengths(), contenders);
}

#define ZORS_OURS(T, C, shape, kind, function)                                                               \
    ours<T, ZorsFFTSpec_##kind, C>(shape, zorsFFTInitAlloc_##kind, zorsFFTFree_##kind,                       \
                                   zorsFFTGetBufSize_##kind, function)

void registerAll()
{
    constexpr auto complex = Shape::complexForward, real = Shape::realForward, inverse = Shape::realInverse;
    against<Zor32f>("FFTFwd_CToC_32fc", complex,
                    ZORS_OURS(Zor32f, Zor32fc, complex, C_32fc, zorsFFTFwd_CToC_32fc));
    against<Zor64f>("FFTFwd_CToC_64fc", complex,
                    ZORS_OURS(Zor64f, Zor64fc, complex, C_64fc, zorsFFTFwd_CToC_64fc));
    against<Zor32f>("FFTFwd_RToCCS_32f", real, ZORS_OURS(Zor32f, Zor32f, real, R_32f, zorsFFTFwd_RToCCS_32f));
    against<Zor64f>("FFTFwd_RToCCS_64f", real, ZORS_OURS(Zor64f, Zor64f, real, R_64f, zorsFFTFwd_RToCCS_64f));
    against<Zor32f>("FFTInv_CCSToR_32f", inverse,
                    ZORS_OURS(Zor32f, Zor32f, inverse, R_32f, zorsFFTInv_CCSToR_32f));
    against<Zor64f>("FFTInv_CCSToR_64f", inverse,
                    ZORS_OURS(Zor64f, Zor64f, inverse, R_64f, zorsFFTInv_CCSToR_64f));
}

} // namespace
} // namespace zors::bench

int main(int argc, char** argv)
{
    zors::bench::registerAll();
    return zors::bench::run(argc, argv);
}
