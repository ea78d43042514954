// The regions of a record's memory. Without memory the layout only counts, so that the size that is reported and the
// places that are used cannot disagree.
#pragma once

#include "record.h"

#include <cstdint>

namespace zors::ZORS_VARIANT {

inline constexpr std::int64_t cacheLine = 64;

template <class T>
T* alignedTo(std::int64_t alignment, T* p)
{
    const auto gap = -reinterpret_cast<std::intptr_t>(p) & (alignment - 1);
    return reinterpret_cast<T*>(reinterpret_cast<char*>(p) + gap);
}

// Regions begin at multiples of four lanes, which the record itself is aligned to.
template <class E>
class FilterLayout {
public:
    static constexpr std::int64_t alignment = 4 * sizeof(Lane<E>);

    explicit FilterLayout(void* memory = nullptr)
        : base_(static_cast<char*>(alignedTo(alignment, memory))), end_(base_ ? headerBytes : withRoom)
    {
    }

    FilterRecord<E>* record() const { return reinterpret_cast<FilterRecord<E>*>(base_); }

    // count elements and so many bytes more.
    template <class T>
    void take(T*& region, std::int64_t count, std::int64_t more = 0)
    {
        region = at<T>(end_);
        end_ += rounded(count * std::int64_t{sizeof(T)} + more, alignment);
    }

    // Memory of which the size has room to begin at a cache line: where it does, what follows it begins at one too.
    void takeLines(Zor8u*& region, std::int64_t bytes)
    {
        if (bytes == 0) return;
        region = at<Zor8u>(end_);
        if (base_) region = alignedTo(cacheLine, region);
        end_ = base_ ? region - reinterpret_cast<Zor8u*>(base_) + rounded(bytes - cacheLine, alignment)
                     : end_ + bytes;
    }

    std::int64_t size() const { return end_; }

private:
    static constexpr std::int64_t headerBytes = sizeof(Lane<E>) == 4 ? 160 : 192,
                                  withRoom = headerBytes + 2 * alignment;
    static_assert(sizeof(FilterRecord<E>) <= headerBytes);

    static constexpr std::int64_t rounded(std::int64_t bytes, std::int64_t unit)
    {
        return (bytes + unit - 1) / unit * unit;
    }
    template <class T>
    T* at(std::int64_t offset) const
    {
        return base_ ? reinterpret_cast<T*>(base_ + offset) : nullptr;
    }

    char* base_;
    std::int64_t end_;
};

// A filter is transformed from so many taps on. Fixed, because the sizes of records depend on it.
template <class E>
inline constexpr int firstTransformedLength = sizeof(Lane<E>) == 4 ? 64 : 32;

// The transform that blocks go by: its order, and the sizes in bytes of its record, of the memory for its
// initialisation and of its work buffer.
struct BlockTransform {
    int order = 0;
    int fftLen = 0; // 0 where there is none
    int spec = 0, init = 0, work = 0;
};

// Blocks of more than two and at most four times the taps.
template <class E>
BlockTransform blockTransform(int tapsLen)
{
    BlockTransform t;
    if (tapsLen < firstTransformedLength<E>) return t;
    int k = 2;
    while (k < 31 && std::int64_t{1} << k <= tapsLen) ++k;
    t.order = k + 1;
    if ((*FilterTransform<E>::getSize)(t.order, ZOR_FFT_SCALE_INV, ZOR_ALG_ANY, &t.spec, &t.init, &t.work) !=
        zorStsOk)
        return {};
    t.fftLen = 1 << t.order;
    return t;
}

// Where the pieces of a transform's record lie until it is made.
struct TransformMemory {
    Zor8u* spec;
    Zor8u* init;
};

// The regions of a single-rate record. A transform's record that the library allocates by itself has none.
template <class E>
TransformMemory layOutSingleRate(FilterLayout<E>& layout, FilterRecord<E>& r, int tapsLen,
                                 const BlockTransform& t, bool ownsTransform)
{
    TransformMemory memory{};
    const std::int64_t taps = tapsLen;
    constexpr std::int64_t fold = 16 / sizeof(Lane<E>);
    layout.take(r.reversed, taps);
    layout.take(r.delay, 3 * taps, FilterLayout<E>::alignment);
    // Each region of the folded taps as wide as that of the reversed ones.
    const std::int64_t wide = (taps * std::int64_t{sizeof(E)} + FilterLayout<E>::alignment - 1) /
                              FilterLayout<E>::alignment * FilterLayout<E>::alignment;
    layout.take(r.folded, fold * wide / std::int64_t{sizeof(Lane<E>)});
    if (t.fftLen > 0) {
        if (!ownsTransform) {
            layout.takeLines(memory.spec, t.spec);
            layout.takeLines(memory.init, t.init);
        }
        layout.takeLines(r.work, t.work);
        layout.take(r.spectrum, t.fftLen);
        layout.take(r.block, t.fftLen);
    }
    layout.take(r.scratch, chunkLength);
    return memory;
}

template <class E>
std::int64_t singleRateSize(int tapsLen, const BlockTransform& t, bool ownsTransform = false)
{
    FilterLayout<E> counting;
    FilterRecord<E> none{};
    layOutSingleRate(counting, none, tapsLen, t, ownsTransform);
    return counting.size();
}

} // namespace zors::ZORS_VARIANT
