// The record of a recursive filter as it lies in memory, of whichever structure, and where its regions lie.
#pragma once

#include "iir_kinds.h"
#include "layout.h"
#include "simd/check.h"

#include <cstdint>

namespace zors::ZORS_VARIANT {

template <class E>
struct IirRecord {
    Zor32u tag;
    E* taps;  // b0 ... bN, -a1 ... -aN, all divided by a0; of a cascade five a section
    E* delay; // delayLen numbers
    Zor32s delayLen;
    Zor32s count; // the order, or the number of sections
    Structure structure;
    Zor32s owned;
    bool isQuiet;    // the last single sample was so small that denormals are near
    bool takesSteps; // has tables of steps, by which no digits are lost
    E* tables;       // of steps of many samples
    E* converted;    // a chunk of numbers, where the data are none
    void* memory;    // that is released with an owned record
};

template <class State>
IirRecord<IirNumber<State>>& iirRecordOf(State* p)
{
    return *reinterpret_cast<IirRecord<IirNumber<State>>*>(p);
}

template <class State>
const IirRecord<IirNumber<State>>& iirRecordOf(const State* p)
{
    return *reinterpret_cast<const IirRecord<IirNumber<State>>*>(p);
}

// The check of a record's tag, by default against all structures of its kind.
template <class State>
ZorStatus iirContext(const State* p, bool directForm1 = true)
{
    using Kind = KindOfIir<State>;
    const Zor32u tag = iirRecordOf(p).tag;
    return require(tag != 0 && (tag == Kind::anyOrder || tag == Kind::biQuad ||
                                (directForm1 && tag == Kind::directForm1)),
                   zorStsWrongContext);
}

// Samples that are filtered at a time.
inline constexpr int iirChunk = 1024;

// What a section of a cascade keeps.
constexpr int numbersOfSection(Structure structure)
{
    return structure == Structure::directForm1 ? 4 : 2;
}

// What a filter is made of.
struct IirDesign {
    Structure structure;
    int count;
    bool converts;

    bool isCascade() const { return structure != Structure::anyOrder; }
    // Of the caller's taps, of the record's, and of the delay line.
    std::int64_t taps() const { return isCascade() ? std::int64_t{6} * count : std::int64_t{2} * count + 2; }
    std::int64_t normalised() const { return isCascade() ? std::int64_t{5} * count : taps() - 1; }
    std::int64_t delays() const
    {
        return std::int64_t{count} * (isCascade() ? numbersOfSection(structure) : 1);
    }
    std::int64_t tableRoom() const
    {
        if (structure == Structure::directForm1) return iirChunk + std::int64_t{296} * count;
        return iirChunk + (isCascade() ? std::int64_t{40} * count : std::int64_t{8} * count + 16);
    }
};

// The regions of a record. Without memory they are only counted, so that the size that is reported and the places that
// are used cannot disagree.
template <class E>
class IirLayout {
public:
    explicit IirLayout(void* memory = nullptr)
        : base_(static_cast<char*>(alignedTo(alignment, memory))), end_(base_ ? headerBytes : withRoom)
    {
    }

    IirRecord<E>* record() const { return reinterpret_cast<IirRecord<E>*>(base_); }

    void layOut(IirRecord<E>& r, const IirDesign& d)
    {
        take(r.taps, d.normalised());
        take(r.delay, d.isCascade() ? d.delays() : d.delays() + 1);
        take(r.tables, d.tableRoom());
        if (d.converts) take(r.converted, iirChunk);
    }

    std::int64_t size() const { return end_; }

private:
    static constexpr std::int64_t alignment = 32, headerBytes = 128, withRoom = 168;
    static_assert(sizeof(IirRecord<E>) <= headerBytes && headerBytes + alignment <= withRoom);

    void take(E*& region, std::int64_t count)
    {
        region = base_ ? reinterpret_cast<E*>(base_ + end_) : nullptr;
        end_ += (count * std::int64_t{sizeof(E)} + 15) / 16 * 16;
    }

    char* base_;
    std::int64_t end_;
};

template <class E>
std::int64_t iirSize(const IirDesign& d)
{
    IirLayout<E> counting;
    IirRecord<E> none{};
    counting.layOut(none, d);
    return counting.size();
}

} // namespace zors::ZORS_VARIANT
