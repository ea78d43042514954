#include "transcoding.h"

#include "decibels.h"
#include "samples.h"
#include "statistics.h"

namespace ecg {
namespace {

using Encoder = ZorStatus (*)(const Zor16s* pSrc, Zor8u* pDst, int len);
using Decoder = ZorStatus (*)(const Zor8u* pSrc, Zor16s* pDst, int len);

double signalToNoise(const Vector<Zor16s>& samples, Encoder encode, Decoder decode)
{
    const int len = samples.len();
    Vector<Zor8u> codes(len);
    Vector<Zor16s> decoded(len);
    require(encode(samples.data(), codes.data(), len), "compress the samples");
    require(decode(codes.data(), decoded.data(), len), "expand the codes");

    Vector<Zor32f> signal(len), noise(len);
    require(zorsConvert_16s32f(samples.data(), signal.data(), len), "convert the samples");
    require(zorsSub_16s32f(samples.data(), decoded.data(), noise.data(), len), "find what was lost");
    const double lost = energyOf(noise);
    return lost == 0 ? INFINITY : decibels(energyOf(signal) / lost);
}

} // namespace

Transcoding transcodingOf(const Channel& channel)
{
    const Vector<Zor16s> samples = samplesOf(channel);
    return {signalToNoise(samples, zorsLinToMuLaw_16s8u, zorsMuLawToLin_8u16s),
            signalToNoise(samples, zorsLinToALaw_16s8u, zorsALawToLin_8u16s)};
}

} // namespace ecg
