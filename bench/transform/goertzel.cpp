// The Goertzel transform beside its recurrence.
#include "support/calls.h"
#include "transform/plain_goertzel.h"

#include <zors.h>

namespace zors::bench {
namespace {

// 205 samples are a block of a detector of dialled tones at 8 kHz.
const std::vector<int> lengths = {32, 205, 4096, 65536};

constexpr float frequency = 0.0962f;
constexpr float frequencies[] = {0.0962f, 0.1637f};

// Calls f(pSrc, length, pVal).
template <class T, class C, class F>
Contender summed(const char* name, F f)
{
    return contender(
        name, [f](const T* s, C* to, int n) { f(s, n, to); }, numbers<T>, vector<C>);
}

template <class T, class C, class F, class G>
void besideLoops(const char* operation, F ours, G loop)
{
    compare(operation, lengths,
            {summed<T, C>("zors", ours), summed<T, C>("g++", loop(gcc_loops)),
             summed<T, C>("clang", loop(clang_loops))});
}

template <auto loop>
auto at()
{
    return [](const PlainGoertzelLoops& loops) {
        return [f = loops.*loop](auto* s, int n, auto* to) { f(s, n, to, frequency); };
    };
}

void registerAll()
{
    using P = PlainGoertzelLoops;
    const auto ours = [](auto* s, int n, Zor32fc* to) { zorsGoertz_32f(s, n, to, frequency); };
    besideLoops<Zor32f, Zor32fc>("Goertz_32f", ours, at<&P::one32f>());
    besideLoops<Zor32f, Zor32fc>("Goertz_32f, short chain", ours, at<&P::shortChain32f>());
    besideLoops<Zor64f, Zor64fc>(
        "Goertz_64f", [](auto* s, int n, auto* to) { zorsGoertz_64f(s, n, to, frequency); },
        at<&P::one64f>());
    besideLoops<Zor32fc, Zor32fc>(
        "Goertz_32fc", [](auto* s, int n, auto* to) { zorsGoertz_32fc(s, n, to, frequency); },
        at<&P::one32fc>());
    besideLoops<Zor64fc, Zor64fc>(
        "Goertz_64fc", [](auto* s, int n, auto* to) { zorsGoertz_64fc(s, n, to, frequency); },
        at<&P::one64fc>());
    besideLoops<Zor16s, Zor16sc>(
        "Goertz_16s_Sfs", [](auto* s, int n, auto* to) { zorsGoertz_16s_Sfs(s, n, to, 8, frequency); },
        at<&P::one16s>());
    besideLoops<Zor32f, Zor32fc>(
        "GoertzTwo_32f", [](auto* s, int n, auto* to) { zorsGoertzTwo_32f(s, n, to, frequencies); },
        [](const P& loops) {
            return [f = loops.two32f](auto* s, int n, auto* to) { f(s, n, to, frequencies); };
        });
}

} // namespace
} // namespace zors::bench

int main(int argc, char** argv)
{
    zors::bench::registerAll();
    return zors::bench::run(argc, argv);
}
