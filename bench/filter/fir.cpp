// FIR filters of a single rate beside plain and register-blocked loops, VOLK, liquid-dsp and overlap-save on FFTW.
#include "filter/packaged.h"
#include "filter/plain_fir.h"
#include "filter/stream.h"

#include <zors.h>

namespace zors::bench {
namespace {

const std::vector<int> blocks = {64, 1024, 65536};

// Our filter of a record, by the functions that make, release and run it.
template <class T, class H, class State, class Run>
StreamMaker<T, H> ours(ZorStatus (*init)(State**, const H*, int, const T*), ZorStatus (*release)(State*),
                       Run run)
{
    return {"zors", [=](const Filter<H>& filter, int block) -> Stream<T> {
                State* made = nullptr;
                if (init(&made, filter.taps.data(), filter.length(), nullptr) != zorStsOk)
                    fail("zors", "makes no record");
                const std::shared_ptr<State> state(made, release);
                const auto in = vector<T>(block), out = vector<T>(block);
                return {in, out, [=] { run(in.get(), out.get(), block, state.get()); }};
            }};
}

ZorStatus init32s(ZorsFIRState32s_16s** state, const Zor32s* taps, int length, const Zor16s* line)
{
    return zorsFIRInitAlloc32s_16s(state, taps, length, fraction, line);
}

// Ours, with the scale factor that integers have.
template <auto function>
constexpr auto unscaled = [](const Zor16s* x, Zor16s* y, int n, auto* state) { function(x, y, n, state, 0); };

template <class T, class H>
using Peers = std::vector<StreamMaker<T, H>>;

template <class T, class H>
Peers<T, H> operator+(Peers<T, H> some, const Peers<T, H>& others)
{
    some.insert(some.end(), others.begin(), others.end());
    return some;
}

// Loops as both compilers made them.
template <class T, class H>
Peers<T, H> loops(FirLoop<T, H>* PlainFirLoops::*plain, FirLoop<T, H>* PlainFirLoops::*blocked)
{
    return {overHistory<T, H>("g++", gcc_loops.*plain), overHistory<T, H>("clang", clang_loops.*plain),
            overHistory<T, H>("g++ blocked", gcc_loops.*blocked),
            overHistory<T, H>("clang blocked", clang_loops.*blocked)};
}

// Sample after sample through a doubled delay line.
StreamMaker<Zor32f, Zor32f> sampleBySample(const char* name, FirOneLoop* loop)
{
    return {name, [=](const Filter<Zor32f>& filter, int block) -> Stream<Zor32f> {
                const int length = filter.length();
                const auto in = vector<Zor32f>(block), out = vector<Zor32f>(block),
                           line = vector<Zor32f>(2 * length);
                std::fill_n(line.get(), 2 * length, 0.0f);
                return {in, out, [=, reversed = filter.reversed, index = 0]() mutable {
                            for (int i = 0; i < block; ++i)
                                out[i] = loop(in[i], reversed.data(), length, line.get(), &index);
                        }};
            }};
}

StreamMaker<Zor32f, Zor32f> oursDirect()
{
    return {"zors", [](const Filter<Zor32f>& filter, int block) -> Stream<Zor32f> {
                const int length = filter.length();
                const auto in = vector<Zor32f>(block), out = vector<Zor32f>(block),
                           line = vector<Zor32f>(2 * length);
                std::fill_n(line.get(), 2 * length, 0.0f);
                return {in, out, [=, taps = filter.taps, index = 0]() mutable {
                            zorsFIR_Direct_32f(in.get(), out.get(), block, taps.data(), length, line.get(),
                                               &index);
                        }};
            }};
}

void oneByOne(const Zor32f* x, Zor32f* y, int n, ZorsFIRState_32f* state)
{
    for (int i = 0; i < n; ++i) zorsFIROne_32f(x[i], y + i, state);
}

void registerAll()
{
    using P = PlainFirLoops;
    const std::vector<int> some = {16, 63, 128}, more = {16, 63, 128, 1024};
    compareStreams("FIR_32f", more, blocks,
                   Peers<Zor32f, Zor32f>{ours(zorsFIRInitAlloc_32f, zorsFIRFree_32f, zorsFIR_32f)} +
                       loops(&P::plain32f, &P::blocked32f) +
                       Peers<Zor32f, Zor32f>{volk32f(), liquid32f(), liquidTransformed(), overlapSave()});
    compareStreams("FIR_64f", some, blocks,
                   Peers<Zor64f, Zor64f>{ours(zorsFIRInitAlloc_64f, zorsFIRFree_64f, zorsFIR_64f)} +
                       loops(&P::plain64f, &P::blocked64f));
    compareStreams("FIR_32fc", some, blocks,
                   Peers<Zor32fc, Zor32fc>{ours(zorsFIRInitAlloc_32fc, zorsFIRFree_32fc, zorsFIR_32fc)} +
                       loops(&P::plain32fc, &P::blocked32fc) +
                       Peers<Zor32fc, Zor32fc>{volk32fc(), liquid32fc()});
    compareStreams("FIR_64fc", some, blocks,
                   Peers<Zor64fc, Zor64fc>{ours(zorsFIRInitAlloc_64fc, zorsFIRFree_64fc, zorsFIR_64fc)} +
                       loops(&P::plain64fc, &P::blocked64fc));
    compareStreams("FIR32f_16s_Sfs", some, blocks,
                   Peers<Zor16s, Zor32f>{
                       ours(zorsFIRInitAlloc32f_16s, zorsFIRFree32f_16s, unscaled<zorsFIR32f_16s_Sfs>)} +
                       loops(&P::plain32f16s, &P::blocked32f16s));
    compareStreams("FIR64f_16s_Sfs", some, blocks,
                   Peers<Zor16s, Zor64f>{
                       ours(zorsFIRInitAlloc64f_16s, zorsFIRFree64f_16s, unscaled<zorsFIR64f_16s_Sfs>)} +
                       loops(&P::plain64f16s, &P::blocked64f16s));
    compareStreams(
        "FIR32s_16s_Sfs", some, blocks,
        Peers<Zor16s, Zor32s>{ours(init32s, zorsFIRFree32s_16s, unscaled<zorsFIR32s_16s_Sfs>)} +
            loops(&P::plain32s16s, &P::blocked32s16s) +
            Peers<Zor16s, Zor32s>{overHistory<Zor16s, Zor32s>("g++ exact", gcc_loops.exact32s16s),
                                  overHistory<Zor16s, Zor32s>("clang exact", clang_loops.exact32s16s)},
        1 << fraction);
    compareStreams("FIROne_32f", {63}, {1024},
                   Peers<Zor32f, Zor32f>{
                       ours(zorsFIRInitAlloc_32f, zorsFIRFree_32f, oneByOne),
                       sampleBySample("g++", gcc_loops.one), sampleBySample("clang", clang_loops.one),
                       sampleBySample("g++ in order", gcc_loops.oneInOrder),
                       sampleBySample("clang in order", clang_loops.oneInOrder), volkOne(), liquidOne()});
    compareStreams("FIR_Direct_32f", {63}, {1024},
                   Peers<Zor32f, Zor32f>{oursDirect(), sampleBySample("g++", gcc_loops.oneWide),
                                         sampleBySample("clang", clang_loops.oneWide)});
}

} // namespace
} // namespace zors::bench

int main(int argc, char** argv)
{
    zors::bench::registerAll();
    return zors::bench::run(argc, argv, zors::bench::Table::everyPeer);
}
