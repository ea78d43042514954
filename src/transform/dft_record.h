// The records of the transforms of any length, and the table of their kinds.
#pragma once

#include "dft_plan.h"

namespace zors::ZORS_VARIANT {

template <class T>
struct DftRecord {
    Zor32u tag;
    Zor32s n;
    Zor32s scalesForward;
    Zor32s scalesInverse;
    T factor; // 0 where nothing scales
    Zor32s hint;
    Zor32s workSize;
    Zor32s owned; // by the library, which frees block
    void* block;
    FloatRecord<T>*
        power; // of a power of two; of other lengths a plan, of real ones for half of them where that can be
    DftPlan<T> plan;
    T* forwardFactors; // of recombination
    T* inverseFactors;
};

// The header has room for what short transforms need behind the fields.
inline constexpr std::int64_t dftHeader = 768;
inline constexpr std::int64_t dftRoom = dftHeader - floatHeader;
static_assert(sizeof(DftRecord<Zor64f>) <= dftRoom);

struct DftIntegerRecord {
    Zor32u tag;
    Zor32s n;
    Zor32s hint;
    Zor32s workSize;
    Zor32s owned;
    void* block;
    void* nested;
};

template <Zor32u Tag, class Power>
struct DftKind {
    using Number = typename KindOf<Power>::Number;
    using Record = DftRecord<Number>;
    using PowerKind = KindOf<Power>;
    static constexpr Zor32u tag = Tag;
    static constexpr bool real = PowerKind::real;
};

template <Zor32u Tag, class Spec>
struct DftIntegerKind {
    using Record = DftIntegerRecord;
    using Nested = Spec;
    static constexpr Zor32u tag = Tag;
};

#define ZORS_DFT_KIND(type, base, ...)                                                                       \
    template <>                                                                                              \
    struct KindOf<type> : base<__VA_ARGS__> {                                                                \
    };
ZORS_DFT_KIND(ZorsDFTSpec_C_32fc, DftKind, 13, ZorsFFTSpec_C_32fc)
ZORS_DFT_KIND(ZorsDFTSpec_C_32f, DftKind, 14, ZorsFFTSpec_C_32f)
ZORS_DFT_KIND(ZorsDFTSpec_R_32f, DftKind, 15, ZorsFFTSpec_R_32f)
ZORS_DFT_KIND(ZorsDFTSpec_C_64fc, DftKind, 16, ZorsFFTSpec_C_64fc)
ZORS_DFT_KIND(ZorsDFTSpec_C_64f, DftKind, 17, ZorsFFTSpec_C_64f)
ZORS_DFT_KIND(ZorsDFTSpec_R_64f, DftKind, 18, ZorsFFTSpec_R_64f)
ZORS_DFT_KIND(ZorsDFTOutOrdSpec_C_32fc, DftKind, 25, ZorsFFTSpec_C_32fc)
ZORS_DFT_KIND(ZorsDFTOutOrdSpec_C_64fc, DftKind, 26, ZorsFFTSpec_C_64fc)
ZORS_DFT_KIND(ZorsDFTSpec_C_16sc, DftIntegerKind, 10, ZorsDFTSpec_C_32fc)
ZORS_DFT_KIND(ZorsDFTSpec_C_16s, DftIntegerKind, 11, ZorsDFTSpec_C_32f)
ZORS_DFT_KIND(ZorsDFTSpec_R_16s, DftIntegerKind, 12, ZorsDFTSpec_R_32f)
#undef ZORS_DFT_KIND

// Bytes of an odd number of real points as complex ones.
template <class T>
constexpr std::int64_t oddRoomBytes(std::int64_t n)
{
    return wholeLines(2 * bytes<T> * n);
}

// Bytes of the data of an integer kind, converted; CCS of real data has two numbers more.
template <class Kind>
constexpr std::int64_t dftConvertedBytes(int n)
{
    using Floating = KindOf<typename Kind::Nested>;
    constexpr std::int64_t size = bytes<typename Floating::Number>;
    return wholeLines(Floating::real ? size * (std::int64_t{n} + 2) : 2 * size * n);
}

} // namespace zors::ZORS_VARIANT
