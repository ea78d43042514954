#include "windows.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <stdexcept>
#include <zorstatus.h>

namespace windows {
namespace {

constexpr int levelsPerBin = 32;      // at least
constexpr double floorDecibel = -140; // below it there is only the rounding of single precision

constexpr double kaiserBeta = 8.6;

ZorStatus kaiser(Zor32f* pSrcDst, int len)
{
    return zorsWinKaiser_32f_I(pSrcDst, len, static_cast<Zor32f>(2 * kaiserBeta / (len - 1)));
}

ZorStatus mildBlackman(Zor32f* pSrcDst, int len)
{
    return zorsWinBlackman_32f_I(pSrcDst, len, -0.1f);
}

void require(ZorStatus status)
{
    if (status < zorStsOk) throw std::runtime_error(zorGetStatusName(status));
}

// What the window does to a tone at each frequency from 0 to half the sampling rate, 2^order of them to the rate: the
// transform of its weights, continued by zeros.
std::vector<Zor32f> powers(const Window& window, int len, int order)
{
    const int padded = 1 << order, points = padded / 2 + 1;
    std::vector<Zor32f> signal = weights(window, len);
    signal.resize(static_cast<std::size_t>(padded));
    std::vector<Zor32fc> spectrum(static_cast<std::size_t>(points));

    ZorsFFTSpec_R_32f* spec = nullptr;
    require(zorsFFTInitAlloc_R_32f(&spec, order, ZOR_FFT_SCALE_NONE, ZOR_ALG_ANY));
    // The pairs of the spectrum have the layout of complex numbers.
    const ZorStatus transformed =
        zorsFFTFwd_RToCCS_32f(signal.data(), reinterpret_cast<Zor32f*>(spectrum.data()), spec, nullptr);
    require(zorsFFTFree_R_32f(spec));
    require(transformed);

    std::vector<Zor32f> real(spectrum.size()), imag(spectrum.size());
    require(zorsCplxToReal_32fc(spectrum.data(), real.data(), imag.data(), points));
    require(zorsMul_32f_I(real.data(), real.data(), points));
    require(zorsAddProduct_32f(imag.data(), imag.data(), real.data(), points));
    return real;
}

} // namespace

const std::vector<Window>& allWindows()
{
    static const std::vector<Window> all = {
        {"Bartlett", zorsWinBartlett_32f_I},
        {"Hann", zorsWinHann_32f_I},
        {"Hamming", zorsWinHamming_32f_I},
        {"Blackman, alpha -0.1", mildBlackman},
        {"Blackman, classic", zorsWinBlackmanStd_32f_I},
        {"Blackman, from the length", zorsWinBlackmanOpt_32f_I},
        {"Kaiser, beta 8.6", kaiser},
    };
    return all;
}

std::vector<Zor32f> weights(const Window& window, int len)
{
    std::vector<Zor32f> ones(static_cast<std::size_t>(len));
    require(zorsSet_32f(1, ones.data(), len));
    require(window.apply(ones.data(), len));
    return ones;
}

std::vector<Level> spectrum(const Window& window, int len)
{
    const auto order = static_cast<int>(std::bit_width(static_cast<unsigned>(levelsPerBin * len - 1)));
    const std::vector<Zor32f> power = powers(window, len, order);
    std::vector<Level> levels;
    for (const Zor32f value : power) {
        const double bin = std::ldexp(static_cast<double>(levels.size()) * len, -order);
        const double decibel = 10 * std::log10(static_cast<double>(value / power.front()));
        levels.push_back({bin, std::max(decibel, floorDecibel)});
    }
    return levels;
}

double highestSideLobe(const std::vector<Level>& spectrum)
{
    const auto rises = [](const Level& a, const Level& b) { return b.decibel > a.decibel; };
    const auto end = std::adjacent_find(spectrum.begin(), spectrum.end(), rises);
    const auto lower = [](const Level& a, const Level& b) { return a.decibel < b.decibel; };
    return std::max_element(end, spectrum.end(), lower)->decibel;
}

} // namespace windows
