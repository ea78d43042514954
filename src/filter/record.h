// The record of a filter as it lies in memory: of single-rate, multi-rate and stream filters alike.
#pragma once

#include "kinds.h"
#include "simd/check.h"
#include "transform.h"
#include "vector/lane.h"

namespace zors::ZORS_VARIANT {

// How a multi-rate filter runs.
enum class Kernel : Zor32s { none = 0, direct = 1, decimating = 2, indexed = 3 };

template <class E>
struct FilterRecord {
    Zor32u tag;
    E* reversed; // taps, the last one first
    E* delay;    // the last delayLen samples from delayIndex on, oldest first, and room for what follows them
    Zor32s tapsLen;
    Zor32s upFactor; // from here to downPhase of multi-rate filters
    Zor32s upPhase;
    Zor32s downFactor;
    Zor32s downPhase;
    Zor32s directLimit;                      // so many samples are filtered from within the delay buffer
    typename FilterTransform<E>::Spec* spec; // null where blocks are never transformed
    E* spectrum;                             // of the taps
    Zor32s fftLen;                           // -1 where blocks are never transformed
    Zor32s delayIndex;
    Lane<E>*
        folded; // each part of a tap 16 bytes wide, the first tap first; of multi-rate filters the taps by phase
    Kernel kernel;
    Zor32s delayLen;
    E* block;    // fftLen samples
    Zor8u* work; // null where transforms need none
    Zor32s workSize;
    Zor32s tapsFactor; // taps stand for themselves times 2^-tapsFactor
    E* scratch;        // filtered samples on their way to where the source stands, or converted ones
    Zor32s owned;
    E* inputs;      // of multi-rate filters, converted samples
    Zor32s* phases; // of Kernel::indexed
    Zor8u* groups;  // of Kernel::direct, where vectors of outputs are filtered by a table
    void* memory;   // that is released with an owned record
};

template <class State>
using RecordOf = FilterRecord<typename KindOfFilter<State>::Number>;

template <class State>
RecordOf<State>& recordOf(State* p)
{
    return *reinterpret_cast<RecordOf<State>*>(p);
}

template <class State>
const RecordOf<State>& recordOf(const State* p)
{
    return *reinterpret_cast<const RecordOf<State>*>(p);
}

// The check of a record's tag.
template <class State, class... Tags>
ZorStatus context(const State* p, Tags... tags)
{
    const Zor32u tag = recordOf(p).tag;
    return require(tag != 0 && ((tag == tags) || ...), zorStsWrongContext);
}

// Samples that filters in place take at a time.
inline constexpr int chunkLength = 4096;

} // namespace zors::ZORS_VARIANT
