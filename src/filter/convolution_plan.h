// How a convolution is transformed: the size of the blocks, and into how many parts the shorter vector is cut.
//
// A block of N samples, of which the first `older` stand before those of its outputs, gives `step` outputs: overlap-save.
// A kernel longer than half a block is cut into parts of step elements; their spectra are multiplied with those of as
// many successive blocks of the signal, and the products added up before one transform back. So blocks stay short. That
// matters most for what a call does once: the tables of a transform of N points take as long as twenty transforms.
//
// The least time by a simple model decides, within the memory that the rule of zorsConvolveGetBufferSize() gives.
#pragma once

#include "transform.h"
#include "transform/record.h"

#include <algorithm>
#include <bit>
#include <limits>

namespace zors::ZORS_VARIANT {

// Bits of n, which is not negative; none of 0.
inline int bitsOf(std::int64_t n)
{
    return static_cast<int>(std::bit_width(static_cast<std::uint64_t>(n)));
}

// The order of the transform that the rule of the buffer's size names.
inline int ruledOrder(std::int64_t shorter, std::int64_t longer)
{
    // Of n - 1, the bits are log2 of n, rounded up.
    return longer >= 3 * shorter ? bitsOf(2 * shorter - 1) + 1 : bitsOf(shorter + longer - 2);
}

// Bytes of what a transform needs, in whole lines.
struct TransformBytes {
    std::int64_t spec = 0, init = 0, work = 0;
    std::int64_t sum() const { return spec + init + work; }
};

template <class E>
ZorStatus transformBytes(int order, TransformBytes& to)
{
    int spec = 0, init = 0, work = 0;
    const ZorStatus status =
        (*FilterTransform<E>::getSize)(order, ZOR_FFT_SCALE_INV, ZOR_ALG_ANY, &spec, &init, &work);
    if (status == zorStsOk) to = {wholeLines(spec), wholeLines(init), wholeLines(work)};
    return status;
}

// The buffer by the rule, 64 bytes for its alignment included.
template <class E>
ZorStatus ruledBytes(std::int64_t shorter, std::int64_t longer, std::int64_t& to)
{
    const int order = ruledOrder(shorter, longer);
    TransformBytes transform;
    if (const ZorStatus bad = transformBytes<E>(order, transform)) return bad;
    to = transform.sum() + wholeLines(2 * bytes<E> * (std::int64_t{1} << order)) + lineBytes;
    return zorStsOk;
}

template <class E>
struct BlockPlan {
    int order = 0;
    std::int64_t points = 0, step = 0, older = 0;
    std::int64_t parts = 0;
    TransformBytes transform;

    // Of an order at which the kernel is one part, and the signal one block if it can be.
    BlockPlan() = default;
    BlockPlan(int order_, std::int64_t shorter, std::int64_t outputs)
        : order(order_), points(std::int64_t{1} << order_)
    {
        step = outputs <= points ? points : shorter <= points / 2 ? points - shorter + 1 : points / 2;
        older = points - step;
        parts = older == points / 2 ? (shorter + step - 1) / step : 1;
    }

    // From one spectrum to the next. A line more keeps those of many parts from falling onto the same lines of a cache.
    std::int64_t stride() const { return parts > 1 ? points + lineBytes / bytes<E> : points; }
    // Spectra of the kernel's parts and of as many blocks, and a sum of products, which takes the place of a single one.
    std::int64_t vectors() const { return 2 * parts + (parts > 1 ? 1 : 0); }
    std::int64_t memory() const { return transform.sum() + wholeLines(vectors() * stride() * bytes<E>); }

    // In units of roughly a tenth of the time in which a point takes part in a complex product. Tables are made with the
    // platform's sine whatever the precision, hence the two figures; both were measured with AVX-512.
    double cost(std::int64_t outputs) const
    {
        constexpr double table = bytes<E> == 4 ? 116 : 55, copy = 2;
        const std::int64_t blockCount = (outputs + step - 1) / step;
        const auto blocks = static_cast<double>(blockCount), all = static_cast<double>(parts);
        return static_cast<double>(points) * (table + (all + 2 * blocks) * order + blocks * (all + copy));
    }
};

// The plan of the least cost that takes no more memory than most; false where there is none.
template <class E>
bool choosePlan(std::int64_t shorter, std::int64_t longer, std::int64_t most, BlockPlan<E>& to)
{
    // Outside these, transforms are too short to be worth it, or parts too many.
    constexpr int leastOrder = 7, mostPartsLog2 = 7;
    const std::int64_t outputs = shorter + longer - 1;
    const int last = ruledOrder(shorter, longer);
    const int first = std::max(leastOrder, bitsOf(shorter) - mostPartsLog2);
    double least = std::numeric_limits<double>::infinity();
    for (int order = std::min(first, last); order <= last; ++order) {
        BlockPlan<E> plan(order, shorter, outputs);
        if (transformBytes<E>(order, plan.transform) != zorStsOk || plan.memory() > most) continue;
        const double cost = plan.cost(outputs);
        if (cost < least) least = cost, to = plan;
    }
    return to.points > 0;
}

} // namespace zors::ZORS_VARIANT
