// Linear convolution by transforms of blocks, as a plan has them.
#pragma once

#include "convolution_direct.h"
#include "convolution_plan.h"
#include "simd/complex.h"
#include "simd/fused.h"

namespace zors::ZORS_VARIANT {

// So many spectra in the Perm format, each a stride after the one before.
template <class E>
struct Spectra {
    const E* first;
    std::ptrdiff_t stride, count;
};

// Adds the products of pairs of spectra at some places to their sums: by the real parts of b, and by the imaginary.
template <std::size_t Count, class V, class E, class... At>
[[gnu::always_inline]] inline void addProducts(Pair<V> (&sums)[Count], Spectra<E> a, const E* b,
                                               std::ptrdiff_t bStride, At... at)
{
    for (std::ptrdiff_t i = 0; i < a.count; ++i, a.first += a.stride, b += bStride) {
        Pair<V>* sum = sums;
        const auto add = [&](auto place) __attribute__((always_inline))
        {
            const V x = load(a.first, place), y = load(b, place);
            sum->first = mulAdd(realTwice(y), x, sum->first);
            sum->second = mulAdd(imaginaryTwice(y), x, sum->second);
            ++sum;
        };
        (add(at), ...);
    }
}

// The sum of the products of the spectra in two runs with those in b. The destination may be a spectrum.
template <class E>
void sumOfProducts(Spectra<E> run, Spectra<E> next, const E* b, std::ptrdiff_t bStride, std::ptrdiff_t points,
                   E* pDst)
{
    using V = Vec<E>;
    constexpr int n = lanes<E>;
    const E* bNext = b + run.count * bStride;
    const auto sum = [=](auto... at) __attribute__((always_inline))
    {
        Pair<V> sums[sizeof...(at)] = {};
        addProducts(sums, run, b, bStride, at...);
        addProducts(sums, next, bNext, bStride, at...);
        const Pair<V>* p = sums;
        const auto keep = [&](auto place) __attribute__((always_inline))
        {
            const V imaginary = partsExchanged(p->second), whole = alternateSum(p->first, imaginary);
            // The first two numbers are real, and each has its product among these.
            const V real = select(iota<Index<E>>() == 0, p->first, p->second);
            const bool hasReal = place.index == 0;
            store(pDst, place, hasReal ? select(iota<Index<E>>() < 2, real, whole) : whole);
            ++p;
        };
        (keep(at), ...);
    };
    // With four vectors none of their chains is waited for.
    std::ptrdiff_t i = 0;
    for (; i + 4 * n <= points; i += 4 * n)
        sum(Whole<n>{i}, Whole<n>{i + n}, Whole<n>{i + 2 * n}, Whole<n>{i + 3 * n});
    for (; i + n <= points; i += n) sum(Whole<n>{i});
    if (i < points) sum(Part<n>{i, static_cast<int>(points - i)});
}

template <class E, class D>
class BlockConvolution {
public:
    using Transform = FilterTransform<E>;

    BlockConvolution(const BlockPlan<E>& plan, const Operands<D>& of, Zor8u* memory)
        : plan_(plan), of_(of), memory_(memory), work_(memory + plan.transform.spec + plan.transform.init),
          kernel_(reinterpret_cast<E*>(work_ + plan.transform.work)),
          signal_(kernel_ + plan.parts * plan.stride()),
          product_(plan.parts > 1 ? signal_ + plan.parts * plan.stride() : signal_)
    {
    }

    // The outputs of block after block, from the last one to the first: so what a block leaves in front of its outputs
    // is overwritten by theirs. Store takes those that are not transformed into the destination.
    template <class Store>
    ZorStatus run(E* pDst, Store storeOutputs)
    {
        if (const ZorStatus bad = start()) return bad;
        const std::ptrdiff_t outputs = of_.outputs(), step = plan_.step;
        const std::ptrdiff_t lastBlock = (outputs - 1) / step;
        // Behind this block every sample is missing.
        const std::ptrdiff_t lastSignal = std::min(lastBlock, (of_.signalLen - 1 + plan_.older) / step);
        std::ptrdiff_t transformed = lastSignal + 1;
        for (std::ptrdiff_t block = lastBlock; block >= 0; --block) {
            const std::ptrdiff_t oldest = std::max<std::ptrdiff_t>(0, block - plan_.parts + 1);
            while (transformed > oldest)
                if (const ZorStatus bad = transformSignal(--transformed)) return bad;
            multiply(block, std::min(block, lastSignal), oldest);
            const std::ptrdiff_t at = block * step - plan_.older;
            const bool inDestination = pDst && at >= 0 && at + plan_.points <= outputs;
            E* const results = inDestination ? pDst + at : product_;
            if (const ZorStatus bad = (*Transform::inverse)(product_, results, spec_, work_)) return bad;
            if (!inDestination)
                storeOutputs(results + plan_.older, block * step, std::min(step, outputs - block * step));
        }
        return zorStsOk;
    }

private:
    // The record of the transform, and the spectra of the kernel's parts.
    ZorStatus start()
    {
        if (const ZorStatus bad = (*Transform::init)(&spec_, plan_.order, ZOR_FFT_SCALE_INV, ZOR_ALG_ANY,
                                                     memory_, memory_ + plan_.transform.spec))
            return bad;
        const std::ptrdiff_t length = plan_.parts > 1 ? plan_.step : of_.kernelLen;
        for (std::ptrdiff_t part = 0; part < plan_.parts; ++part) {
            E* p = kernel_ + part * plan_.stride();
            const std::ptrdiff_t count = std::min(length, of_.kernelLen - part * length);
            loadNumbers(of_.kernel + part * length, p, count);
            clearSamples(p + count, plan_.points - count);
            if (const ZorStatus bad = (*Transform::forward)(p, p, spec_, work_)) return bad;
        }
        return zorStsOk;
    }

    E* signalSpectrum(std::ptrdiff_t block) const { return signal_ + block % plan_.parts * plan_.stride(); }

    ZorStatus transformSignal(std::ptrdiff_t block)
    {
        const std::ptrdiff_t from = block * plan_.step - plan_.older, to = from + plan_.points;
        E* const p = signalSpectrum(block);
        if constexpr (std::is_same_v<D, E>)
            if (from >= 0 && to <= of_.signalLen)
                return (*Transform::forward)(of_.signal + from, p, spec_, work_);
        const std::ptrdiff_t begin = std::max<std::ptrdiff_t>(from, 0), end = std::min(to, of_.signalLen);
        clearSamples(p, begin - from);
        loadNumbers(of_.signal + begin, p + (begin - from), end - begin);
        clearSamples(p + (end - from), to - end);
        return (*Transform::forward)(p, p, spec_, work_);
    }

    // Part k of the kernel meets block - k of the signal, of those from newest to oldest. In their memory these are one
    // run or two.
    void multiply(std::ptrdiff_t block, std::ptrdiff_t newest, std::ptrdiff_t oldest)
    {
        const std::ptrdiff_t count = newest - oldest + 1, stride = plan_.stride();
        const std::ptrdiff_t together = std::min(count, newest % plan_.parts + 1);
        const Spectra<E> run{signalSpectrum(newest), -stride, together};
        const Spectra<E> next{count > together ? signalSpectrum(newest - together) : nullptr, -stride,
                              count - together};
        sumOfProducts<E>(run, next, kernel_ + (block - newest) * stride, stride, plan_.points, product_);
    }

    const BlockPlan<E>& plan_;
    const Operands<D>& of_;
    Zor8u *memory_, *work_;
    E *kernel_, *signal_, *product_;
    typename Transform::Spec* spec_ = nullptr;
};

// All outputs, in memory of the plan's size that begins at a line.
template <class E>
ZorStatus convolveByTransforms(const BlockPlan<E>& plan, const Operands<E>& of, E* pDst, Zor8u* memory)
{
    return BlockConvolution<E, E>(plan, of, memory).run(pDst, [=](const E* results, auto first, auto count) {
        copySamples(results, pDst + first, count);
    });
}

// Of integers: the sums are integers, and are made so before they are scaled.
inline ZorStatus convolveByTransforms(const BlockPlan<Zor64f>& plan, const Operands<Zor16s>& of, Zor16s* pDst,
                                      Zor8u* memory, int scaleFactor)
{
    return BlockConvolution<Zor64f, Zor16s>(plan, of, memory)
        .run(nullptr, [=](Zor64f* results, auto first, auto count) {
            blocks<lanes<Zor64f>>(count, [=](auto at) {
                store(results, at,
                      toDouble<lanes<Zor64f>>(toInt64<Rounding::nearestEven>(load(results, at))));
            });
            toIntegers(results, pDst + first, count, scaleFactor);
        });
}

} // namespace zors::ZORS_VARIANT
