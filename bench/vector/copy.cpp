// Filling, copying and rearranging beside memcpy, memset and plain loops.
#include "support/calls.h"
#include "vector/plain_copy.h"

#include <cstring>
#include <zors.h>

namespace zors::bench {
namespace {

const std::vector<int> lengths = {16, 256, 4096, 65536, 4 << 20};

template <class T>
std::size_t bytes(int n)
{
    return static_cast<std::size_t>(n) * sizeof(T);
}

template <class T>
Contender byMemcpy()
{
    return contender(
        "memcpy", [](const T* s, T* d, int n) { std::memcpy(d, s, bytes<T>(n)); }, vector<T>, vector<T>);
}

template <class T>
Contender byMemset()
{
    return contender(
        "memset", [](T* d, int n) { std::memset(static_cast<void*>(d), 0, bytes<T>(n)); }, vector<T>);
}

const Compiled<PlainCopyLoops> plain{gcc_loops, clang_loops};

template <class... Arguments>
auto contenders(Arguments... arguments)
{
    return plain.contenders(arguments...);
}

void registerAll()
{
    using P = PlainCopyLoops;
    const auto v8u = vector<Zor8u>;
    const auto v16s = vector<Zor16s>;
    const auto v16u = vector<Zor16u>;
    const auto v32u = vector<Zor32u>;
    const auto v64u = vector<Zor64u>;
    const auto v32f = vector<Zor32f>;
    const auto v64f = vector<Zor64f>;
    const auto v16sc = vector<Zor16sc>;
    const auto v32fc = vector<Zor32fc>;
    const auto v64fc = vector<Zor64fc>;
    const auto v24u = [](int n) { return vector<Zor8u>(3 * n); };

    compare("Copy_8u", lengths, with(contenders(zorsCopy_8u, &P::copy8u, v8u, v8u), byMemcpy<Zor8u>()));
    compare("Copy_32f", lengths, with(contenders(zorsCopy_32f, &P::copy32f, v32f, v32f), byMemcpy<Zor32f>()));
    compare("Copy_64fc", lengths,
            with(contenders(zorsCopy_64fc, &P::copy64fc, v64fc, v64fc), byMemcpy<Zor64fc>()));
    compare("Move_32f", lengths, with(contenders(zorsMove_32f, &P::move32f, v32f, v32f), byMemcpy<Zor32f>()));
    compare("Zero_32f", lengths, with(contenders(zorsZero_32f, &P::zero32f, v32f), byMemset<Zor32f>()));
    compare("Set_8u", lengths, contenders(zorsSet_8u, &P::set8u, scalar<Zor8u>, v8u));
    compare("Set_32f", lengths, contenders(zorsSet_32f, &P::set32f, scalar<Zor32f>, v32f));
    compare("Set_64fc", lengths, contenders(zorsSet_64fc, &P::set64fc, scalar<Zor64fc>, v64fc));
    compare("Flip_8u", lengths, contenders(zorsFlip_8u, &P::flip8u, v8u, v8u));
    compare("Flip_16u", lengths, contenders(zorsFlip_16u, &P::flip16u, v16u, v16u));
    compare("Flip_32f", lengths, contenders(zorsFlip_32f, &P::flip32f, v32f, v32f));
    compare("Flip_64fc", lengths, contenders(zorsFlip_64fc, &P::flip64fc, v64fc, v64fc));
    compare("Flip_32f_I", lengths, contenders(zorsFlip_32f_I, &P::flipInPlace32f, v32f));
    compare("SwapBytes_16u", lengths, contenders(zorsSwapBytes_16u, &P::swapBytes16u, v16u, v16u));
    compare("SwapBytes_24u", lengths, contenders(zorsSwapBytes_24u, &P::swapBytes24u, v24u, v24u));
    compare("SwapBytes_32u", lengths, contenders(zorsSwapBytes_32u, &P::swapBytes32u, v32u, v32u));
    compare("SwapBytes_64u", lengths, contenders(zorsSwapBytes_64u, &P::swapBytes64u, v64u, v64u));
    compare("RealToCplx_16s", lengths, contenders(zorsRealToCplx_16s, &P::realToCplx16s, v16s, v16s, v16sc));
    compare("RealToCplx_32f", lengths, contenders(zorsRealToCplx_32f, &P::realToCplx32f, v32f, v32f, v32fc));
    compare("CplxToReal_16sc", lengths,
            contenders(zorsCplxToReal_16sc, &P::cplxToReal16sc, v16sc, v16s, v16s));
    compare("CplxToReal_32fc", lengths,
            contenders(zorsCplxToReal_32fc, &P::cplxToReal32fc, v32fc, v32f, v32f));
    compare("CplxToReal_64fc", lengths,
            contenders(zorsCplxToReal_64fc, &P::cplxToReal64fc, v64fc, v64f, v64f));
    compare("Real_32fc", lengths, contenders(zorsReal_32fc, &P::real32fc, v32fc, v32f));
}

} // namespace
} // namespace zors::bench

int main(int argc, char** argv)
{
    zors::bench::registerAll();
    return zors::bench::run(argc, argv);
}
