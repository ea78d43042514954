// Fast Fourier transforms of 2^4 to 2^22 points beside FFTW, libavutil and KissFFT, out of place.
#include "transform/ours.h"

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

#define ZORS_OURS(T, C, shape, kind, function)                                                               \
    ours<T, ZorsFFTSpec_##kind, C>(shape, orderOf, zorsFFTInitAlloc_##kind, zorsFFTFree_##kind,              \
                                   zorsFFTGetBufSize_##kind, function)

void registerAll()
{
    constexpr auto complex = Shape::complexForward, real = Shape::realForward, inverse = Shape::realInverse;
    against<Zor32f>("FFTFwd_CToC_32fc", complex, lengths(),
                    ZORS_OURS(Zor32f, Zor32fc, complex, C_32fc, zorsFFTFwd_CToC_32fc));
    against<Zor64f>("FFTFwd_CToC_64fc", complex, lengths(),
                    ZORS_OURS(Zor64f, Zor64fc, complex, C_64fc, zorsFFTFwd_CToC_64fc));
    against<Zor32f>("FFTFwd_RToCCS_32f", real, lengths(),
                    ZORS_OURS(Zor32f, Zor32f, real, R_32f, zorsFFTFwd_RToCCS_32f));
    against<Zor64f>("FFTFwd_RToCCS_64f", real, lengths(),
                    ZORS_OURS(Zor64f, Zor64f, real, R_64f, zorsFFTFwd_RToCCS_64f));
    against<Zor32f>("FFTInv_CCSToR_32f", inverse, lengths(),
                    ZORS_OURS(Zor32f, Zor32f, inverse, R_32f, zorsFFTInv_CCSToR_32f));
    against<Zor64f>("FFTInv_CCSToR_64f", inverse, lengths(),
                    ZORS_OURS(Zor64f, Zor64f, inverse, R_64f, zorsFFTInv_CCSToR_64f));
}

} // namespace
} // namespace zors::bench

int main(int argc, char** argv)
{
    zors::bench::registerAll();
    return zors::bench::run(argc, argv);
}
