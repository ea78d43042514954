// Recursive filters beside plain loops and liquid-dsp; several channels beside one after the other; and decaying tails
// beside noise.
#include "filter/packaged_iir.h"
#include "filter/plain_iir.h"

#include <zors.h>

namespace zors::bench {
namespace {

const std::vector<int> blocks = {64, 256, 1024, 65536};

template <class State, class H>
using Init = ZorStatus(State**, const H*, int, const H*);

template <class State, class H>
std::shared_ptr<State> made(const IirFilter<H>& filter, Init<State, H>* init, ZorStatus (*release)(State*))
{
    State* state = nullptr;
    if (init(&state, filter.taps.data(), filter.count(), nullptr) != zorStsOk)
        fail("zors", "makes no record");
    return {state, release};
}

// Our filter of a record, by the functions that make, release and run it.
template <class T, class H, class State, class Run>
IirMaker<T, H> ours(ZorStatus (*init)(State**, const H*, int, const H*), ZorStatus (*release)(State*),
                    Run run)
{
    return {"zors", [=](const IirFilter<H>& filter, int block) -> Stream<T> {
                const auto state = made(filter, init, release);
                const auto in = vector<T>(block), out = vector<T>(block);
                return {in, out, [=] { run(in.get(), out.get(), block, state.get()); }};
            }};
}

// Ours, with the scale factor that integers have.
template <auto function>
constexpr auto unscaled = [](const Zor16s* x, Zor16s* y, int n, auto* state) { function(x, y, n, state, 0); };

template <auto function>
constexpr auto oneByOne = [](const auto* x, auto* y, int n, auto* state) {
    for (int i = 0; i < n; ++i) function(x[i], y + i, state);
};

// A loop over a block, with the numbers that it keeps.
template <class T, class H, class F>
IirMaker<T, H> loop(const char* name, F* run)
{
    return {name, [=](const IirFilter<H>& filter, int block) -> Stream<T> {
                const auto in = vector<T>(block), out = vector<T>(block);
                return {in, out,
                        [=, taps = filter.withoutA0(),
                         delay = std::vector<H>(static_cast<std::size_t>(2 * filter.delays())),
                         count = filter.count()]() mutable {
                            run(in.get(), out.get(), block, taps.data(), delay.data(), count);
                        }};
            }};
}

template <class T>
IirMaker<T, T> loopOfOne(const char* name, IirOneLoop<T>* run)
{
    return {name, [=](const IirFilter<T>& filter, int block) -> Stream<T> {
                const auto in = vector<T>(block), out = vector<T>(block);
                return {in, out,
                        [=, taps = filter.withoutA0(),
                         delay = std::vector<T>(static_cast<std::size_t>(filter.delays())),
                         count = filter.count()]() mutable {
                            for (int i = 0; i < block; ++i)
                                out[i] = run(in[i], taps.data(), delay.data(), count);
                        }};
            }};
}

template <class T, class H>
using Makers = std::vector<IirMaker<T, H>>;

template <class T, class H>
Makers<T, H> operator+(Makers<T, H> some, const Makers<T, H>& others)
{
    some.insert(some.end(), others.begin(), others.end());
    return some;
}

template <class T, class H>
Makers<T, H> loops(PlainCascades<T, H> PlainIirLoops::*which)
{
    const auto &gcc = gcc_loops.*which, &clang = clang_loops.*which;
    return {loop<T, H>("g++", gcc.bySample),           loop<T, H>("clang", clang.bySample),
            loop<T, H>("g++, 4", gcc.bySampleKnown),   loop<T, H>("clang, 4", clang.bySampleKnown),
            loop<T, H>("g++ sections", gcc.bySection), loop<T, H>("clang sections", clang.bySection)};
}

template <class T>
Makers<T, T> loops(PlainOrders<T> PlainIirLoops::*which)
{
    const auto &gcc = gcc_loops.*which, &clang = clang_loops.*which;
    return {loop<T, T>("g++", gcc.plain), loop<T, T>("clang", clang.plain), loop<T, T>("g++, 8", gcc.known),
            loop<T, T>("clang, 8", clang.known)};
}

template <class T>
Makers<T, T> loopsOfOne(IirOneLoop<T>* PlainIirLoops::*plain, IirOneLoop<T>* PlainIirLoops::*known)
{
    return {loopOfOne("g++", gcc_loops.*plain), loopOfOne("clang", clang_loops.*plain),
            loopOfOne("g++, 4", gcc_loops.*known), loopOfOne("clang, 4", clang_loops.*known)};
}

// The same filter in every channel: our function of several, that of one in turn, and loops across the channels.
void compareChannels()
{
    using State = ZorsIIRState_32f;
    struct Channels {
        std::vector<std::shared_ptr<Zor32f[]>> in, out;
        std::vector<std::shared_ptr<State>> owned;
        std::vector<const Zor32f*> x;
        std::vector<Zor32f*> y;
        std::vector<State*> states;
        std::vector<Zor32f> taps, delay;
    };
    const auto filter = iirFilter<Zor32f>(2, knownSections, 0.9);
    const auto prepared = [=](int block) {
        nextOffset = 0;
        Channels c;
        std::minstd_rand random(1);
        for (int k = 0; k < knownChannels; ++k) {
            c.in.push_back(vector<Zor32f>(block));
            c.out.push_back(vector<Zor32f>(block));
            c.owned.push_back(made(filter, zorsIIRInitAlloc_BiQuad_32f, zorsIIRFree_32f));
            c.x.push_back(c.in.back().get());
            c.y.push_back(c.out.back().get());
            c.states.push_back(c.owned.back().get());
            fill(c.in.back().get(), block, random);
            const auto taps = filter.withoutA0();
            c.taps.insert(c.taps.end(), taps.begin(), taps.end());
        }
        c.delay.resize(static_cast<std::size_t>(knownChannels * filter.delays()));
        return c;
    };
    const auto across = [=](auto run) {
        return [=](int block) -> Operation {
            return [=, c = prepared(block)]() mutable {
                run(c.x.data(), c.y.data(), block, c.taps.data(), c.delay.data(), knownSections);
            };
        };
    };
    compare("IIR_32f_P, 8 channels, 4 biquads", blocks,
            {{"zors",
              [=](int block) -> Operation {
                  return [=, c = prepared(block)] {
                      zorsIIR_32f_P(c.x.data(), c.y.data(), block, knownChannels, c.states.data());
                  };
              }},
             {"zors, 8 calls",
              [=](int block) -> Operation {
                  return [=, c = prepared(block)] {
                      for (std::size_t k = 0; k < c.x.size(); ++k)
                          zorsIIR_32f(c.x[k], c.y[k], block, c.states[k]);
                  };
              }},
             {"g++ across", across(gcc_loops.channels)},
             {"clang across", across(clang_loops.channels)}});
}

// An impulse and what is left of it, after a million samples, beside noise: the ratio is how much a tail slows down.
template <class T, class H>
void compareTail(const std::string& operation, const IirFilter<H>& filter, const IirMaker<T, H>& maker)
{
    const auto prepare = [=](auto source) {
        return [=](int block) -> Operation {
            nextOffset = 0;
            const auto stream = maker.make(filter, block);
            source(stream.in.get(), block);
            return stream.run;
        };
    };
    const auto impulse = [](T* x, int n) {
        std::fill_n(x, n, T{});
        std::minstd_rand random(1);
        fill(x, 1, random);
    };
    const auto noise = [](T* x, int n) {
        std::minstd_rand random(1);
        fill(x, n, random);
    };
    compare(operation + ", tail", {1000000}, {{"tail", prepare(impulse)}, {"noise", prepare(noise)}});
}

// A row of blocks, and one of the tail behind an impulse, of a filter that is slow to forget.
template <class T, class H>
void compareBoth(const std::string& operation, int order, int sections, const std::vector<int>& lengths,
                 const Makers<T, H>& makers)
{
    const std::string of =
        order == 2 ? ", " + std::to_string(sections) + " biquads" : ", order " + std::to_string(order);
    compareRecursive(operation + of, iirFilter<H>(order, sections, 0.9), lengths, makers);
    compareTail(operation + of, iirFilter<H>(order, sections, order == 2 ? 0.998 : 0.995), makers[0]);
}

void registerAll()
{
    using P = PlainIirLoops;
    const auto one32f =
        ours<Zor32f, Zor32f>(zorsIIRInitAlloc_BiQuad_32f, zorsIIRFree_32f, oneByOne<zorsIIROne_32f>);
    compareBoth("IIR_32f", 2, 4, blocks,
                Makers<Zor32f, Zor32f>{
                    ours<Zor32f, Zor32f>(zorsIIRInitAlloc_BiQuad_32f, zorsIIRFree_32f, zorsIIR_32f)} +
                    loops(&P::cascade32f) + Makers<Zor32f, Zor32f>{liquidIir32f()});
    compareBoth(
        "IIR_32f", 8, 1, blocks,
        Makers<Zor32f, Zor32f>{ours<Zor32f, Zor32f>(zorsIIRInitAlloc_32f, zorsIIRFree_32f, zorsIIR_32f)} +
            loops(&P::order32f) + Makers<Zor32f, Zor32f>{liquidIir32f()});
    compareBoth("IIR_64f", 2, 4, blocks,
                Makers<Zor64f, Zor64f>{
                    ours<Zor64f, Zor64f>(zorsIIRInitAlloc_BiQuad_64f, zorsIIRFree_64f, zorsIIR_64f)} +
                    loops(&P::cascade64f));
    compareBoth(
        "IIR_64f", 8, 1, blocks,
        Makers<Zor64f, Zor64f>{ours<Zor64f, Zor64f>(zorsIIRInitAlloc_64f, zorsIIRFree_64f, zorsIIR_64f)} +
            loops(&P::order64f));
    compareBoth("IIR_32fc", 2, 4, blocks,
                Makers<Zor32fc, Zor32fc>{
                    ours<Zor32fc, Zor32fc>(zorsIIRInitAlloc_BiQuad_32fc, zorsIIRFree_32fc, zorsIIR_32fc)} +
                    loops(&P::cascade32fc) + Makers<Zor32fc, Zor32fc>{liquidIir32fc()});
    compareBoth("IIR_64fc", 2, 4, blocks,
                Makers<Zor64fc, Zor64fc>{
                    ours<Zor64fc, Zor64fc>(zorsIIRInitAlloc_BiQuad_64fc, zorsIIRFree_64fc, zorsIIR_64fc)} +
                    loops(&P::cascade64fc));
    compareBoth("IIR32f_16s_Sfs", 2, 4, blocks,
                Makers<Zor16s, Zor32f>{ours<Zor16s, Zor32f>(
                    zorsIIRInitAlloc32f_BiQuad_16s, zorsIIRFree32f_16s, unscaled<zorsIIR32f_16s_Sfs>)} +
                    loops(&P::cascade32f16s));
    compareBoth("IIR64f_16s_Sfs", 2, 4, blocks,
                Makers<Zor16s, Zor64f>{ours<Zor16s, Zor64f>(
                    zorsIIRInitAlloc64f_BiQuad_16s, zorsIIRFree64f_16s, unscaled<zorsIIR64f_16s_Sfs>)} +
                    loops(&P::cascade64f16s));
    compareBoth("IIR_32f in direct form 1", 2, 4, blocks,
                Makers<Zor32f, Zor32f>{
                    ours<Zor32f, Zor32f>(zorsIIRInitAlloc_BiQuad_DF1_32f, zorsIIRFree_32f, zorsIIR_32f)} +
                    loops(&P::directForm1));
    compareBoth("IIROne_32f", 2, 4, {1024},
                Makers<Zor32f, Zor32f>{one32f} + loopsOfOne(&P::one32f, &P::one32fKnown) +
                    Makers<Zor32f, Zor32f>{liquidIirOne()});
    compareBoth("IIROne_64f", 2, 4, {1024},
                Makers<Zor64f, Zor64f>{ours<Zor64f, Zor64f>(zorsIIRInitAlloc_BiQuad_64f, zorsIIRFree_64f,
                                                            oneByOne<zorsIIROne_64f>)} +
                    loopsOfOne(&P::one64f, &P::one64fKnown));
    compareTail("IIROne_32f, order 8", iirFilter<Zor32f>(8, 1, 0.995),
                ours<Zor32f, Zor32f>(zorsIIRInitAlloc_32f, zorsIIRFree_32f, oneByOne<zorsIIROne_32f>));
    compareTail(
        "IIROne_32fc, 4 biquads", iirFilter<Zor32fc>(2, 4, 0.998),
        ours<Zor32fc, Zor32fc>(zorsIIRInitAlloc_BiQuad_32fc, zorsIIRFree_32fc, oneByOne<zorsIIROne_32fc>));
    compareChannels();
}

} // namespace
} // namespace zors::bench

int main(int argc, char** argv)
{
    zors::bench::registerAll();
    return zors::bench::run(argc, argv, zors::bench::Table::everyPeer);
}
