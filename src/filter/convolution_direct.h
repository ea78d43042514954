// Linear convolution as sums of products, by the chains of the filters: the shorter vector is the taps, the longer one
// the signal, which is preceded and followed by zeros. Long taps are taken a piece at a time.
#pragma once

#include "chains.h"
#include "numbers.h"
#include "samples.h"
#include "transform/integer.h"

#include <algorithm>
#include <cmath>

namespace zors::ZORS_VARIANT {

// The longer of two vectors, or the first of equal ones, is the signal, the other one the kernel.
template <class D>
struct Operands {
    const D *signal, *kernel;
    std::ptrdiff_t signalLen, kernelLen;

    Operands(const D* pSrc1, int src1Len, const D* pSrc2, int src2Len)
        : signal(src1Len < src2Len ? pSrc2 : pSrc1), kernel(src1Len < src2Len ? pSrc1 : pSrc2),
          signalLen(std::max(src1Len, src2Len)), kernelLen(std::min(src1Len, src2Len))
    {
    }

    std::ptrdiff_t outputs() const { return signalLen + kernelLen - 1; }
};

// Outputs of a piece of the kernel at a time, computed in numbers E of data D.
template <class E, class D>
class DirectConvolution {
public:
    static constexpr std::ptrdiff_t mostTaps = 256, mostOutputs = 1024;

    explicit DirectConvolution(const Operands<D>& of) : of_(of) {}

    // The piece of the kernel that begins at an element.
    void takeKernel(std::ptrdiff_t at)
    {
        at_ = at;
        tapsLen_ = static_cast<int>(std::min(mostTaps, of_.kernelLen - at));
        convertLanes(of_.kernel + at, taps_, tapsLen_);
        isFinite_ = true;
        for (int i = 0; i < tapsLen_; ++i) {
            std::fill_n(folded_ + i * fold<E>, fold<E>, taps_[i]);
            isFinite_ &= std::isfinite(taps_[i]);
        }
    }

    // Outputs that need elements of the signal only, from the signal itself.
    bool isWithin(std::ptrdiff_t first, std::ptrdiff_t count) const
    {
        first -= at_;
        return std::is_same_v<D, E> && count >= lanes<E> && first >= tapsLen_ - 1 &&
               first + count <= of_.signalLen;
    }

    // What the piece adds to the outputs from first on. Beyond mostOutputs they have to be within the signal.
    void run(std::ptrdiff_t first, std::ptrdiff_t count, E* pDst)
    {
        if constexpr (std::is_same_v<D, E>)
            if (isWithin(first, count))
                return filterWithin(of_.signal + (first - at_), pDst, count, folded_, tapsLen_);
        first -= at_;
        // A zero in the place of a missing element must meet no infinity.
        if (!isFinite_) return runPlainly(first, count, pDst);
        const std::ptrdiff_t older = tapsLen_ - 1, from = first - older, to = first + count;
        const std::ptrdiff_t begin = std::clamp<std::ptrdiff_t>(0, from, to),
                             end = std::clamp(of_.signalLen, begin, to);
        clearSamples(samples_, begin - from);
        convertLanes(of_.signal + begin, samples_ + (begin - from), static_cast<int>(end - begin));
        clearSamples(samples_ + (end - from), to - end);
        filterPadded(samples_ + older, pDst, count, folded_, tapsLen_);
    }

private:
    void runPlainly(std::ptrdiff_t first, std::ptrdiff_t count, E* pDst) const
    {
        for (std::ptrdiff_t n = first; n < first + count; ++n) {
            E sum = 0;
            const std::ptrdiff_t newest = std::max<std::ptrdiff_t>(0, n - of_.signalLen + 1);
            for (std::ptrdiff_t i = newest; i < tapsLen_ && i <= n; ++i)
                sum += taps_[i] * static_cast<E>(of_.signal[n - i]);
            *pDst++ = sum;
        }
    }

    Operands<D> of_;
    std::ptrdiff_t at_ = 0;
    int tapsLen_ = 0;
    bool isFinite_ = true;
    E taps_[mostTaps];
    alignas(64) E folded_[mostTaps * fold<E>];
    E samples_[mostTaps + mostOutputs + lanes<E>];
};

// All outputs, of a kernel that is one piece: where the signal has all elements from the signal itself.
template <class E>
void convolveOnePiece(DirectConvolution<E, E>& direct, const Operands<E>& of, E* pDst)
{
    constexpr auto most = DirectConvolution<E, E>::mostOutputs;
    const std::ptrdiff_t all = of.outputs(), head = of.kernelLen - 1, within = of.signalLen - head;
    if (all <= most) return direct.run(0, all, pDst);
    if (head > 0) direct.run(0, head, pDst);
    direct.run(head, within, pDst + head);
    if (head > 0) direct.run(of.signalLen, head, pDst + of.signalLen);
}

// Some outputs at a time, each the sum of what the pieces of the kernel add, in numbers, which store takes.
template <class E, class D, class Store>
void convolvePieces(DirectConvolution<E, D>& direct, const Operands<D>& of, Store storeOutputs)
{
    using Direct = DirectConvolution<E, D>;
    const bool onePiece = of.kernelLen <= Direct::mostTaps;
    E sums[Direct::mostOutputs], more[Direct::mostOutputs];
    for (std::ptrdiff_t first = 0; first < of.outputs(); first += Direct::mostOutputs) {
        const std::ptrdiff_t count = std::min(Direct::mostOutputs, of.outputs() - first);
        for (std::ptrdiff_t at = 0; at < of.kernelLen; at += Direct::mostTaps) {
            if (!onePiece) direct.takeKernel(at);
            direct.run(first, count, at == 0 ? sums : more);
            if (at > 0)
                blocks<lanes<E>>(count, [&](auto i) { store(sums, i, load(sums, i) + load<E>(more, i)); });
        }
        storeOutputs(sums, first, count);
    }
}

template <class E>
void convolveDirectly(const Operands<E>& of, E* pDst)
{
    DirectConvolution<E, E> direct(of);
    if (of.kernelLen <= direct.mostTaps) {
        direct.takeKernel(0);
        return convolveOnePiece(direct, of, pDst);
    }
    convolvePieces(direct, of,
                   [=](const E* sums, auto first, auto count) { copySamples(sums, pDst + first, count); });
}

// Of integers, exactly: in double precision every sum is that is formed here.
inline void convolveDirectly(const Operands<Zor16s>& of, Zor16s* pDst, int scaleFactor)
{
    DirectConvolution<Zor64f, Zor16s> direct(of);
    direct.takeKernel(0);
    convolvePieces(direct, of, [=](const Zor64f* sums, auto first, auto count) {
        toIntegers(sums, pDst + first, count, scaleFactor);
    });
}

} // namespace zors::ZORS_VARIANT
