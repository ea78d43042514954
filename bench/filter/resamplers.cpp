#include "filter/resamplers.h"

#include <algorithm>
#include <complex>
#include <cstring>
#include <liquid/liquid.h>
#include <samplerate.h>
#include <soxr.h>
#include <speex/speex_resampler.h>
#include <volk/volk.h>

namespace zors::bench {
namespace {

// A library's object, and a call of it that tells the number of outputs.
template <class Object, class Release, class Run>
Resampling with(Object* made, Release release, const Rate& rate, int block, Run run)
{
    if (!made) fail("peer", "makes no resampler");
    const std::shared_ptr<Object> object(made, release);
    const auto in = vector<Zor32f>(block), out = vector<Zor32f>(roomFor(rate, block));
    return {in, out, [=] { return run(object.get(), in.get(), out.get()); }};
}

} // namespace

Resampler volkPolyphase()
{
    return {"VOLK", Resampler::byTaps, [](const Rate& rate, int block) -> Resampling {
                const int perPhase = rate.perPhase(), past = perPhase - 1, up = rate.up, down = rate.down;
                const auto rows = phaseRows(rate);
                const auto [all, in] = withHistory<Zor32f>(past, block);
                const auto out = vector<Zor32f>(roomFor(rate, block));
                return {in, out, [=, all = all] {
                            const int outputs = block / down * up;
                            const Zor32f* x = all.get();
                            for (int j = 0, phase = 0; j < outputs; ++j) {
                                volk_32f_x2_dot_prod_32f(out.get() + j, x, rows.data() + phase * perPhase,
                                                         static_cast<unsigned>(perPhase));
                                phase += down;
                                while (phase >= up) phase -= up, ++x;
                            }
                            std::memmove(all.get(), all.get() + block,
                                         static_cast<std::size_t>(past) * sizeof(Zor32f));
                            return outputs;
                        }};
            }};
}

Resampler liquidRational()
{
    return {"rresamp", Resampler::byTaps, [](const Rate& rate, int block) -> Resampling {
                auto taps = rate.taps;
                const auto up = static_cast<unsigned>(rate.up), down = static_cast<unsigned>(rate.down);
                const rresamp_rrrf made =
                    rresamp_rrrf_create(up, down, static_cast<unsigned>(rate.perPhase()) / 2, taps.data());
                rresamp_rrrf_set_scale(made, 1);
                const int iterations = block / rate.down, outputs = iterations * rate.up;
                return with(made, rresamp_rrrf_destroy, rate, block, [=](auto* q, float* in, float* out) {
                    rresamp_rrrf_execute_block(q, in, static_cast<unsigned>(iterations), out);
                    return outputs;
                });
            }};
}

Resampler liquidDecimator()
{
    return {"firdecim", Resampler::byTaps, [](const Rate& rate, int block) -> Resampling {
                if (rate.up > 1) return {};
                auto taps = rate.taps;
                const firdecim_rrrf made = firdecim_rrrf_create(static_cast<unsigned>(rate.down), taps.data(),
                                                                static_cast<unsigned>(taps.size()));
                const int outputs = block / rate.down;
                return with(made, firdecim_rrrf_destroy, rate, block, [=](auto* q, float* in, float* out) {
                    firdecim_rrrf_execute_block(q, in, static_cast<unsigned>(outputs), out);
                    return outputs;
                });
            }};
}

Resampler liquidArbitrary()
{
    return {"resamp", Resampler::byItsOwn, [](const Rate& rate, int block) {
                const auto ratio = static_cast<float>(rate.ratio());
                const resamp_rrrf made = resamp_rrrf_create(ratio, static_cast<unsigned>(rate.perPhase()) / 2,
                                                            std::min(0.49f, ratio / 2), 60, 64);
                return with(made, resamp_rrrf_destroy, rate, block, [=](auto* q, float* in, float* out) {
                    unsigned outputs = 0;
                    resamp_rrrf_execute_block(q, in, static_cast<unsigned>(block), out, &outputs);
                    return static_cast<int>(outputs);
                });
            }};
}

Resampler liquidStages()
{
    return {"msresamp", Resampler::byItsOwn, [](const Rate& rate, int block) {
                const msresamp_rrrf made = msresamp_rrrf_create(static_cast<float>(rate.ratio()), 60);
                return with(made, msresamp_rrrf_destroy, rate, block, [=](auto* q, float* in, float* out) {
                    unsigned outputs = 0;
                    msresamp_rrrf_execute(q, in, static_cast<unsigned>(block), out, &outputs);
                    return static_cast<int>(outputs);
                });
            }};
}

Resampler speex()
{
    return {"speexdsp", Resampler::byItsOwn, [](const Rate& rate, int block) {
                const auto up = static_cast<unsigned>(rate.up), down = static_cast<unsigned>(rate.down);
                const int quality = rate.up == 1 ? 0 : 2, room = roomFor(rate, block);
                int error = 0;
                SpeexResamplerState* made = speex_resampler_init_frac(1, down, up, down, up, quality, &error);
                return with(made, speex_resampler_destroy, rate, block, [=](auto* q, float* in, float* out) {
                    auto used = static_cast<unsigned>(block), outputs = static_cast<unsigned>(room);
                    const int status = speex_resampler_process_float(q, 0, in, &used, out, &outputs);
                    if (status != RESAMPLER_ERR_SUCCESS || used != static_cast<unsigned>(block))
                        fail("speexdsp", "does not take the block");
                    return static_cast<int>(outputs);
                });
            }};
}

Resampler samplerate()
{
    return {"libsamplerate", Resampler::byItsOwn, [](const Rate& rate, int block) {
                int error = 0;
                SRC_STATE* made = src_new(SRC_SINC_FASTEST, 1, &error);
                return with(
                    made, src_delete, rate, block,
                    [=, ratio = rate.ratio(), room = roomFor(rate, block)](auto* q, float* in, float* out) {
                        SRC_DATA data{in, out, block, room, 0, 0, 0, ratio};
                        if (src_process(q, &data) || data.input_frames_used != block)
                            fail("libsamplerate", "does not take the block");
                        return static_cast<int>(data.output_frames_gen);
                    });
            }};
}

Resampler soxrLow()
{
    return {"soxr", Resampler::byItsOwn, [](const Rate& rate, int block) {
                const soxr_io_spec_t io = soxr_io_spec(SOXR_FLOAT32_I, SOXR_FLOAT32_I);
                const soxr_quality_spec_t quality = soxr_quality_spec(SOXR_LQ, 0);
                const soxr_runtime_spec_t threads = soxr_runtime_spec(1);
                soxr_error_t error = nullptr;
                const soxr_t made = soxr_create(rate.down, rate.up, 1, &error, &io, &quality, &threads);
                return with(made, soxr_delete, rate, block,
                            [=, room = roomFor(rate, block)](auto* q, float* in, float* out) {
                                const auto length = static_cast<std::size_t>(block);
                                std::size_t used = 0, outputs = 0;
                                if (soxr_process(q, in, length, &used, out, static_cast<std::size_t>(room),
                                                 &outputs) ||
                                    used != length)
                                    fail("soxr", "does not take the block");
                                return static_cast<int>(outputs);
                            });
            }};
}

} // namespace zors::bench
