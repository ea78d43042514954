#include "windows.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <stdexcept>
#include <zorstatus.h>

namespace windows {
namespace {

constexpr int levelsPerBin = 32;
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

// How strongly a tone comes through: its mean under the window. The tone is a cosine about the centre of the
// window, so that the symmetry leaves no imaginary part.
double response(const Window& window, int len, double bin)
{
    std::vector<Zor32f> tone(static_cast<std::size_t>(len));
    const double step = 2 * std::numbers::pi * bin / len, centre = (len - 1) / 2.0;
    for (int n = 0; n < len; ++n)
        tone[static_cast<std::size_t>(n)] = static_cast<Zor32f>(std::cos(step * (n - centre)));
    require(window.apply(tone.data(), len));
    Zor32f mean = 0, deviation = 0;
    require(zorsMeanStdDev_32f(tone.data(), len, &mean, &deviation));
    return std::abs(static_cast<double>(mean));
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
    const double most = response(window, len, 0);
    std::vector<Level> levels;
    for (int i = 0; i <= levelsPerBin * len / 2; ++i) {
        const double bin = static_cast<double>(i) / levelsPerBin;
        const double ratio = response(window, len, bin) / most;
        levels.push_back({bin, std::max(20 * std::log10(ratio), floorDecibel)});
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
