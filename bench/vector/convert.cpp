// Conversion and companding beside plain loops, VOLK and Eigen.
#include "support/calls.h"
#include "vector/plain_convert.h"

#include <cmath>
#include <volk/volk.h>
#include <zors.h>

namespace zors::bench {
namespace {

const std::vector<int> lengths = {256, 4096, 65536};

// Vectors with several elements for each of the length.
template <class T, int each>
std::shared_ptr<T[]> vectors(int length)
{
    return vector<T>(each * length);
}

// Noise over most of the range of 16 bits, or of the type where that is less.
template <class T, int each = 1>
std::shared_ptr<T[]> noise(int length)
{
    auto v = vector<T>(each * length);
    Zor32u state = 1;
    for (int i = 0; i < each * length; ++i) {
        state = state * 1664525 + 1013904223;
        v[i] = static_cast<T>(static_cast<Zor32s>(state) >> (sizeof(T) == 1 ? 24 : 16));
        if constexpr (std::is_floating_point_v<T>) v[i] *= T(0.99);
    }
    return v;
}

std::shared_ptr<Zor16f[]> halves(int length)
{
    auto v = noise<Zor16f>(length);
    for (int i = 0; i < length; ++i) v[i] = static_cast<Zor16f>((v[i] & 0x87ff) + 0x3c00);
    return v;
}

// Our function and the two compilers' loops, with the scale of each.
template <class S, class D, class Ours, class... Scale, class From, class To>
std::vector<Contender> contenders(Ours ours, Loop<S, D, Scale...> PlainConvertLoops::*loop, From from, To to,
                                  std::type_identity_t<Scale>... scale)
{
    const auto plain = [=](auto function) {
        return [=](const S* s, D* d, int n) { function(s, d, n, scale...); };
    };
    return {contender("zors", ours, from, to), contender("g++", plain(gcc_loops.*loop), from, to),
            contender("clang", plain(clang_loops.*loop), from, to)};
}

template <class S, class D, class Ours>
void plain(const char* name, Ours ours, Loop<S, D> PlainConvertLoops::*loop)
{
    compare(name, lengths, contenders<S, D>(ours, loop, noise<S>, vector<D>));
}

template <class S, class D, class Scale>
void scaled(const char* name, ZorStatus (*ours)(const S*, D*, int, int),
            Loop<S, D, Scale> PlainConvertLoops::*loop, std::type_identity_t<Scale> scale)
{
    const auto down = [=](const S* s, D* d, int n) { ours(s, d, n, 3); };
    compare(name, lengths, contenders<S, D>(down, loop, noise<S>, vector<D>, scale));
}

template <class S, class D>
auto withMode(ZorStatus (*ours)(const S*, D*, int, ZorRoundMode, int), ZorRoundMode mode, int scaleFactor = 0)
{
    return [=](const S* s, D* d, int n) { ours(s, d, n, mode, scaleFactor); };
}

template <class S, class D>
Contender byVolk(void (*kernel)(D*, const S*, unsigned))
{
    return contender(
        "VOLK", [=](const S* s, D* d, int n) { kernel(d, s, static_cast<unsigned>(n)); }, noise<S>,
        vector<D>);
}

template <class S, class D>
Contender byVolk(void (*kernel)(D*, const S*, float, unsigned), float factor)
{
    return contender(
        "VOLK", [=](const S* s, D* d, int n) { kernel(d, s, factor, static_cast<unsigned>(n)); }, noise<S>,
        vector<D>);
}

void widening()
{
    using P = PlainConvertLoops;
    plain("Convert_8s16s", zorsConvert_8s16s, &P::convert8s16s);
    plain("Convert_16s32s", zorsConvert_16s32s, &P::convert16s32s);
    plain("Convert_8s32f", zorsConvert_8s32f, &P::convert8s32f);
    plain("Convert_8u32f", zorsConvert_8u32f, &P::convert8u32f);
    compare(
        "Convert_16s32f", lengths,
        with(contenders<Zor16s, Zor32f>(zorsConvert_16s32f, &P::convert16s32f, noise<Zor16s>, vector<Zor32f>),
             byVolk(volk_16i_s32f_convert_32f, 1)));
    plain("Convert_16u32f", zorsConvert_16u32f, &P::convert16u32f);
    plain("Convert_32s32f", zorsConvert_32s32f, &P::convert32s32f);
    plain("Convert_32s64f", zorsConvert_32s64f, &P::convert32s64f);
    plain("Convert_64s64f", zorsConvert_64s64f, &P::convert64s64f);
    compare(
        "Convert_32f64f", lengths,
        with(contenders<Zor32f, Zor64f>(zorsConvert_32f64f, &P::convert32f64f, noise<Zor32f>, vector<Zor64f>),
             byVolk(volk_32f_convert_64f)));
    compare(
        "Convert_64f32f", lengths,
        with(contenders<Zor64f, Zor32f>(zorsConvert_64f32f, &P::convert64f32f, noise<Zor64f>, vector<Zor32f>),
             byVolk(volk_64f_convert_32f)));
    compare(
        "Convert_24s32s", lengths,
        contenders<Zor8u, Zor32s>(zorsConvert_24s32s, &P::convert24s32s, noise<Zor8u, 3>, vector<Zor32s>));
    compare(
        "Convert_24s32f", lengths,
        contenders<Zor8u, Zor32f>(zorsConvert_24s32f, &P::convert24s32f, noise<Zor8u, 3>, vector<Zor32f>));
    scaled("Convert_16s32f_Sfs", zorsConvert_16s32f_Sfs, &P::scaled16s32f, 0.125f);
    scaled("Convert_32s32f_Sfs", zorsConvert_32s32f_Sfs, &P::scaled32s32f, 0.125f);
    scaled("Convert_16s64f_Sfs", zorsConvert_16s64f_Sfs, &P::scaled16s64f, 0.125);
    scaled("Convert_32s64f_Sfs", zorsConvert_32s64f_Sfs, &P::scaled32s64f, 0.125);
}

void narrowing()
{
    using P = PlainConvertLoops;
    plain("Convert_32s16s", zorsConvert_32s16s, &P::convert32s16s);
    scaled("Convert_32s16s_Sfs", zorsConvert_32s16s_Sfs, &P::scaled32s16s, 3);
    scaled("Convert_16s8s_Sfs", zorsConvert_16s8s_Sfs, &P::scaled16s8s, 3);
    scaled("Convert_64s32s_Sfs", zorsConvert_64s32s_Sfs, &P::scaled64s32s, 3);
    compare("Convert_32s24s_Sfs", lengths,
            contenders<Zor32s, Zor8u>(
                [](const Zor32s* s, Zor8u* d, int n) { zorsConvert_32s24s_Sfs(s, d, n, 3); },
                &P::scaled32s24s, noise<Zor32s>, vectors<Zor8u, 3>, 3));
}

void rounding()
{
    using P = PlainConvertLoops;
    plain("Convert_32f16s_Sfs, zero", withMode(zorsConvert_32f16s_Sfs, zorRndZero), &P::truncated32f16s);
    compare("Convert_32f16s_Sfs", lengths,
            with(contenders<Zor32f, Zor16s>(withMode(zorsConvert_32f16s_Sfs, zorRndNear), &P::nearest32f16s,
                                            noise<Zor32f>, vector<Zor16s>),
                 byVolk(volk_32f_s32f_convert_16i, 1)));
    plain("Convert_32f16s_Sfs, financial", withMode(zorsConvert_32f16s_Sfs, zorRndFinancial), &P::away32f16s);
    compare("Convert_32f16s_Sfs, scaled", lengths,
            with(contenders<Zor32f, Zor16s>(withMode(zorsConvert_32f16s_Sfs, zorRndNear, 3), &P::scaled32f16s,
                                            noise<Zor32f>, vector<Zor16s>, 0.125f),
                 byVolk(volk_32f_s32f_convert_16i, 0.125f)));
    compare("Convert_32f8s_Sfs", lengths,
            with(contenders<Zor32f, Zor8s>(withMode(zorsConvert_32f8s_Sfs, zorRndNear), &P::nearest32f8s,
                                           noise<Zor32f>, vector<Zor8s>),
                 byVolk(volk_32f_s32f_convert_8i, 1)));
    plain("Convert_32f8u_Sfs", withMode(zorsConvert_32f8u_Sfs, zorRndNear), &P::nearest32f8u);
    plain("Convert_32f16u_Sfs", withMode(zorsConvert_32f16u_Sfs, zorRndNear), &P::nearest32f16u);
    compare("Convert_32f32s_Sfs", lengths,
            with(contenders<Zor32f, Zor32s>(withMode(zorsConvert_32f32s_Sfs, zorRndNear), &P::nearest32f32s,
                                            noise<Zor32f>, vector<Zor32s>),
                 byVolk(volk_32f_s32f_convert_32i, 1)));
    compare("Convert_32f24s_Sfs", lengths,
            contenders<Zor32f, Zor8u>(withMode(zorsConvert_32f24s_Sfs, zorRndNear), &P::nearest32f24s,
                                      noise<Zor32f>, vectors<Zor8u, 3>));
    plain("Convert_64f16s_Sfs", withMode(zorsConvert_64f16s_Sfs, zorRndNear), &P::nearest64f16s);
    plain("Convert_64f32s_Sfs", withMode(zorsConvert_64f32s_Sfs, zorRndNear), &P::nearest64f32s);
    plain("Convert_64f64s_Sfs", withMode(zorsConvert_64f64s_Sfs, zorRndNear), &P::nearest64f64s);
}

void halfFloats()
{
    using P = PlainConvertLoops;
    compare("Convert_16f32f", lengths,
            contenders<Zor16f, Zor32f>(zorsConvert_16f32f, &P::convert16f32f, halves, vector<Zor32f>));
    plain<Zor32f, Zor16f>(
        "Convert_32f16f", [](auto... a) { zorsConvert_32f16f(a..., zorRndNear); }, &P::convert32f16f);
    plain<Zor16s, Zor16f>(
        "Convert_16s16f", [](auto... a) { zorsConvert_16s16f(a..., zorRndNear); }, &P::convert16s16f);
    compare("Convert_16f16s_Sfs", lengths,
            contenders<Zor16f, Zor16s>(withMode(zorsConvert_16f16s_Sfs, zorRndNear), &P::convert16f16s,
                                       halves, vector<Zor16s>));
}

void companding()
{
    using P = PlainConvertLoops;
    plain("ALawToLin_8u16s", zorsALawToLin_8u16s, &P::aLawToLin16s);
    plain("ALawToLin_8u32f", zorsALawToLin_8u32f, &P::aLawToLin32f);
    plain("MuLawToLin_8u16s", zorsMuLawToLin_8u16s, &P::aLawToLin16s); // a table as well
    plain("LinToALaw_16s8u", zorsLinToALaw_16s8u, &P::linToALaw16s);
    plain("LinToMuLaw_16s8u", zorsLinToMuLaw_16s8u, &P::linToMuLaw16s);
    plain("LinToALaw_32f8u", zorsLinToALaw_32f8u, &P::linToALaw32f);
    plain("LinToMuLaw_32f8u", zorsLinToMuLaw_32f8u, &P::linToMuLaw32f);
    plain("ALawToMuLaw_8u", zorsALawToMuLaw_8u, &P::aLawToMuLaw);
}

// Two rows, one after the other in memory.
template <class D>
auto joinRows(ZorStatus (*ours)(const Zor32f* const*, D*, int, int))
{
    return [=](const Zor32f* s, D* d, int n) {
        const Zor32f* rows[] = {s, s + n};
        ours(rows, d, 2, n);
    };
}

template <class S>
auto splitRows(ZorStatus (*ours)(const S*, Zor32f* const*, int, int))
{
    return [=](const S* s, Zor32f* d, int n) {
        Zor32f* rows[] = {d, d + n};
        ours(s, rows, 2, n);
    };
}

void rowsAndBits()
{
    using P = PlainConvertLoops;
    const auto rows = vectors<Zor32f, 2>;
    compare("JoinScaled_32f16s_D2L", lengths,
            contenders<Zor32f, Zor16s>(joinRows(zorsJoinScaled_32f16s_D2L), &P::join32f16s, rows,
                                       vectors<Zor16s, 2>));
    compare("JoinScaled_32f24s_D2L", lengths,
            contenders<Zor32f, Zor8u>(joinRows(zorsJoinScaled_32f24s_D2L), &P::join32f24s, rows,
                                      vectors<Zor8u, 6>));
    compare("SplitScaled_16s32f_D2L", lengths,
            contenders<Zor16s, Zor32f>(splitRows(zorsSplitScaled_16s32f_D2L), &P::split16s32f,
                                       noise<Zor16s, 2>, rows));
    compare("SplitScaled_24s32f_D2L", lengths,
            contenders<Zor8u, Zor32f>(splitRows(zorsSplitScaled_24s32f_D2L), &P::split24s32f, noise<Zor8u, 6>,
                                      rows));

    const auto counts = [](int length) {
        auto v = noise<Zor32s>(length);
        for (int i = 0; i < length; ++i) v[i] = v[i] & 15;
        return v;
    };
    const auto words = noise<Zor32u>;
    const auto bytes = vectors<Zor8u, 4>;
    compare("PackBits_32u8u", lengths,
            {contender("zors", zorsPackBits_32u8u, words, counts, bytes),
             contender("g++", gcc_loops.packBits, words, counts, bytes),
             contender("clang", clang_loops.packBits, words, counts, bytes)});
}

} // namespace
} // namespace zors::bench

int main(int argc, char** argv)
{
    using namespace zors::bench;
    widening();
    narrowing();
    rounding();
    halfFloats();
    companding();
    rowsAndBits();
    return run(argc, argv);
}
