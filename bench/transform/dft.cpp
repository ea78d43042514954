// Discrete Fourier transforms of any length beside FFTW and KissFFT, out of place.
#include "transform/ours.h"

namespace zors::bench {
namespace {

int itself(int n)
{
    return n;
}

#define ZORS_OURS(T, C, shape, kind, function)                                                               \
    ours<T, ZorsDFTSpec_##kind, C>(shape, itself, zorsDFTInitAlloc_##kind, zorsDFTFree_##kind,               \
                                   zorsDFTGetBufSize_##kind, function)

void registerAll()
{
    constexpr auto complex = Shape::complexForward, real = Shape::realForward;
    // Smooth ones, even ones first; then primes.
    const std::vector<int> lengths = {12,   15,   18,    20,    24,  30,  36,  40,  48,   50,    60,
                                      72,   80,   90,    96,    100, 120, 240, 360, 500,  1000,  1920,
                                      4410, 9600, 44100, 48000, 17,  31,  47,  101, 1009, 100003};
    const std::vector<int> even = {12, 20, 24, 30, 48, 60, 96, 100, 240, 500, 1000, 4410, 44100, 48000};
    against<Zor32f>("DFTFwd_CToC_32fc", complex, lengths,
                    ZORS_OURS(Zor32f, Zor32fc, complex, C_32fc, zorsDFTFwd_CToC_32fc));
    against<Zor64f>("DFTFwd_CToC_64fc", complex, lengths,
                    ZORS_OURS(Zor64f, Zor64fc, complex, C_64fc, zorsDFTFwd_CToC_64fc));
    against<Zor32f>("DFTFwd_RToCCS_32f", real, even,
                    ZORS_OURS(Zor32f, Zor32f, real, R_32f, zorsDFTFwd_RToCCS_32f));
    against<Zor64f>("DFTFwd_RToCCS_64f", real, even,
                    ZORS_OURS(Zor64f, Zor64f, real, R_64f, zorsDFTFwd_RToCCS_64f));
}

} // namespace
} // namespace zors::bench

int main(int argc, char** argv)
{
    zors::bench::registerAll();
    return zors::bench::run(argc, argv);
}
