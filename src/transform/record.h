// The records of the transforms as they lie in memory, and the table of their kinds.
#pragma once

#include <zortypes.h>

#include <cstddef>
#include <cstdint>

namespace zors::ZORS_VARIANT {

// Of the floating kinds. The fields up to the tables have fixed places; 144 bytes are reserved.
template <class T>
struct FloatRecord {
    Zor32u tag;
    Zor32s order;
    Zor32s scalesForward;
    Zor32s scalesInverse;
    T factor; // 0 where nothing scales
    Zor32s hint;
    Zor32s workSize;
    Zor32s owned; // by the library, which frees block
    void* block;
    Zor32s* bitReversal;
    T* factors;
    T* realFactors;
    T* ccsFactors;
    T* halfFactors; // of the step that halves a transform whose work buffer would be too large
};
inline constexpr std::int64_t floatHeader = 144;
static_assert(sizeof(FloatRecord<Zor64f>) <= floatHeader);

// Of the 16-bit kinds.
struct NarrowRecord {
    Zor32u tag;
    Zor32s order;
    Zor32s forwardShift;
    Zor32s inverseShift;
    Zor32s oddOrder;
    Zor32s hint;
    Zor32s workSize;
    Zor32s usesFloating;
    Zor32s owned;
    void* block;
    void* factors;
    void* bitReversal; // both of native integer transforms, which this library has none of
    void* nested;
};
inline constexpr std::int64_t narrowHeader = 72;
static_assert(sizeof(NarrowRecord) == narrowHeader);

// Of the 32-bit kinds. The block of an owned record is kept by the nested one.
struct WideRecord {
    Zor32u tag;
    Zor32s order;
    Zor32s hint;
    Zor32s workSize;
    Zor32s owned;
    void* nested;
};
inline constexpr std::int64_t wideHeader = 32;
static_assert(sizeof(WideRecord) == wideHeader);

// What tells the kinds apart: id tag, largest order, type of the arithmetic, and for integer kinds the floating
// kind inside.
template <class T, Zor32u Tag, int MostOrder, bool Real>
struct FloatKind {
    using Record = FloatRecord<T>;
    using Number = T;
    static constexpr Zor32u tag = Tag;
    static constexpr int mostOrder = MostOrder;
    static constexpr bool real = Real;
};

template <class R, Zor32u Tag, class Spec>
struct IntegerKind {
    using Record = R;
    using Nested = Spec;
    static constexpr Zor32u tag = Tag;
};

template <class Spec>
struct KindOf;
template <>
struct KindOf<ZorsFFTSpec_C_32fc> : FloatKind<Zor32f, 4, 28, false> {
};
template <>
struct KindOf<ZorsFFTSpec_C_32f> : FloatKind<Zor32f, 5, 28, false> {
};
template <>
struct KindOf<ZorsFFTSpec_R_32f> : FloatKind<Zor32f, 6, 29, true> {
};
template <>
struct KindOf<ZorsFFTSpec_C_64fc> : FloatKind<Zor64f, 7, 27, false> {
};
template <>
struct KindOf<ZorsFFTSpec_C_64f> : FloatKind<Zor64f, 8, 27, false> {
};
template <>
struct KindOf<ZorsFFTSpec_R_64f> : FloatKind<Zor64f, 9, 28, true> {
};
template <>
struct KindOf<ZorsFFTSpec_C_16sc> : IntegerKind<NarrowRecord, 1, ZorsFFTSpec_C_32fc> {
};
template <>
struct KindOf<ZorsFFTSpec_C_16s> : IntegerKind<NarrowRecord, 2, ZorsFFTSpec_C_32f> {
};
template <>
struct KindOf<ZorsFFTSpec_R_16s> : IntegerKind<NarrowRecord, 3, ZorsFFTSpec_R_32f> {
};
template <>
struct KindOf<ZorsFFTSpec_C_32sc> : IntegerKind<WideRecord, 0x434D414C, ZorsFFTSpec_C_64fc> {
};
template <>
struct KindOf<ZorsFFTSpec_C_32s> : IntegerKind<WideRecord, 0x434D414D, ZorsFFTSpec_C_64f> {
};
template <>
struct KindOf<ZorsFFTSpec_R_32s> : IntegerKind<WideRecord, 0x434D414E, ZorsFFTSpec_R_64f> {
};
template <>
struct KindOf<ZorsFFTSpec_R_16s32s> : IntegerKind<WideRecord, 0x434D414F, ZorsFFTSpec_R_32f> {
};

template <class Spec>
inline typename KindOf<Spec>::Record* recordOf(Spec* p)
{
    return reinterpret_cast<typename KindOf<Spec>::Record*>(p);
}

template <class Spec>
inline const typename KindOf<Spec>::Record* recordOf(const Spec* p)
{
    return reinterpret_cast<const typename KindOf<Spec>::Record*>(p);
}

// The check of a record: there, then of the right kind.
template <class Spec>
inline ZorStatus record(const Spec* p)
{
    if (!p) return zorStsNullPointer;
    return recordOf(p)->tag == KindOf<Spec>::tag ? zorStsOk : zorStsWrongContext;
}

inline constexpr std::int64_t lineBytes = 64;

template <class T>
inline constexpr std::int64_t bytes = sizeof(T);

constexpr std::int64_t wholeLines(std::int64_t bytes)
{
    return (bytes + lineBytes - 1) / lineBytes * lineBytes;
}

template <class T>
inline T* aligned(T* p)
{
    const auto gap = -reinterpret_cast<std::uintptr_t>(p) & (lineBytes - 1);
    return reinterpret_cast<T*>(reinterpret_cast<char*>(p) + gap);
}

} // namespace zors::ZORS_VARIANT
