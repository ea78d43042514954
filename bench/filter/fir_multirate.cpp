// Multi-rate FIR filters beside plain polyphase loops, VOLK, liquid-dsp, speexdsp, libsamplerate and soxr.
#include "filter/plain_multirate.h"
#include "filter/resamplers.h"

#include <zors.h>

namespace zors::bench {
namespace {

Resampler ours()
{
    return {"zors", Resampler::byTaps, [](const Rate& rate, int block) -> Resampling {
                ZorsFIRState_32f* made = nullptr;
                if (zorsFIRMRInitAlloc_32f(&made, rate.taps.data(), static_cast<int>(rate.taps.size()),
                                           rate.up, 0, rate.down, 0, nullptr) != zorStsOk)
                    fail("zors", "makes no record");
                const std::shared_ptr<ZorsFIRState_32f> state(made, zorsFIRFree_32f);
                const auto in = vector<Zor32f>(block), out = vector<Zor32f>(roomFor(rate, block));
                const int iterations = block / rate.down, outputs = iterations * rate.up;
                return {in, out, [=] {
                            zorsFIR_32f(in.get(), out.get(), iterations, state.get());
                            return outputs;
                        }};
            }};
}

Resampler polyphase(const char* name, decltype(PlainMultirateLoops::resample) loop)
{
    return {name, Resampler::byTaps, [=](const Rate& rate, int block) -> Resampling {
                const int past = rate.perPhase() - 1, up = rate.up, down = rate.down;
                const auto [all, in] = withHistory<Zor32f>(past, block);
                const auto out = vector<Zor32f>(roomFor(rate, block));
                const int iterations = block / down;
                return {in, out, [=, all = all, rows = phaseRows(rate)] {
                            loop(all.get(), out.get(), iterations, {up, down, past + 1, rows.data()});
                            std::memmove(all.get(), all.get() + block,
                                         static_cast<std::size_t>(past) * sizeof(Zor32f));
                            return iterations * up;
                        }};
            }};
}

void registerAll()
{
    const std::vector<Resampler> contenders = {
        ours(),
        polyphase("g++", gcc_loops.resample),
        polyphase("clang", clang_loops.resample),
        polyphase("g++, 24", gcc_loops.resampleBy24),
        polyphase("clang, 24", clang_loops.resampleBy24),
        volkPolyphase(),
        liquidRational(),
        liquidDecimator(),
        liquidArbitrary(),
        liquidStages(),
        speex(),
        samplerate(),
        soxrLow(),
    };
    compareResamplers("FIRMR_32f", makeRate(3, 2, 72), 16384, contenders);
    compareResamplers("FIRMR_32f", makeRate(160, 147, 3840), 112 * 147, contenders);
    compareResamplers("FIRMR_32f", makeRate(1, 8, 24), 16384, contenders);
}

} // namespace
} // namespace zors::bench

int main(int argc, char** argv)
{
    zors::bench::registerAll();
    return zors::bench::run(argc, argv, zors::bench::Table::everyPeer);
}
