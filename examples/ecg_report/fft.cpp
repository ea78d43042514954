#include "fft.h"

#include <algorithm>

namespace ecg {
namespace {

constexpr int flag = ZOR_FFT_SCALE_NONE;
constexpr ZorHintAlgorithm hint = ZOR_ALG_ANY;

// Short transforms need no memory of one kind or another: size 0.
Vector<Zor8u> bytes(int size)
{
    return Vector<Zor8u>(std::max(size, 1));
}

} // namespace

RealFft::Sizes RealFft::sizesOf(int order)
{
    Sizes sizes{};
    require(zorsFFTGetSize_R_32f(order, flag, hint, &sizes.spec, &sizes.init, &sizes.work),
            "find the size of a transform");
    return sizes;
}

RealFft::RealFft(int order) : RealFft(order, sizesOf(order)) {}

RealFft::RealFft(int order, const Sizes& sizes)
    : len_(1 << order), memory_(bytes(sizes.spec)), work_(bytes(sizes.work))
{
    Vector<Zor8u> initialisation = bytes(sizes.init);
    require(zorsFFTInit_R_32f(&spec_, order, flag, hint, memory_.data(), initialisation.data()),
            "prepare a transform");
}

void RealFft::forward(const Vector<Zor32f>& signal, Vector<Zor32f>& spectrum)
{
    require(zorsFFTFwd_RToCCS_32f(signal.data(), spectrum.data(), spec_, work_.data()), "transform a signal");
}

} // namespace ecg
