// What tells the kinds of filter records apart: the types of taps and data, the type of the arithmetic, and the tags.
#pragma once

#include "tag.h"

#include <type_traits>

namespace zors::ZORS_VARIANT {

template <class T, class D, class E, int Single, int MultiRate, int Stream = 0, int MultiRateStream = 0>
struct FilterKind {
    using Taps = T;
    using Data = D;
    using Number = E; // in which the filter computes
    static constexpr bool converts = !std::is_same_v<D, E>;
    // 16-bit taps on 16-bit data: the products and their sums are exact in double precision, transforms are not.
    static constexpr bool isExact = std::is_same_v<T, Zor16s>;
    // 0 where there is no record of a form.
    static constexpr Zor32u single = Single ? filterTag('F', Single) : 0;
    static constexpr Zor32u multiRate = filterTag('F', MultiRate);
    static constexpr Zor32u stream = Stream ? filterTag('F', Stream) : 0;
    static constexpr Zor32u multiRateStream = MultiRateStream ? filterTag('F', MultiRateStream) : 0;
};

template <class State>
struct KindOfFilter;
template <>
struct KindOfFilter<ZorsFIRState_32f> : FilterKind<Zor32f, Zor32f, Zor32f, 1, 3, 33, 34> {
};
template <>
struct KindOfFilter<ZorsFIRState_32fc> : FilterKind<Zor32fc, Zor32fc, Zor32fc, 2, 4> {
};
template <>
struct KindOfFilter<ZorsFIRState32f_16s> : FilterKind<Zor32f, Zor16s, Zor32f, 5, 7> {
};
template <>
struct KindOfFilter<ZorsFIRState32fc_16sc> : FilterKind<Zor32fc, Zor16sc, Zor32fc, 6, 8> {
};
template <>
struct KindOfFilter<ZorsFIRState32s_16s> : FilterKind<Zor32s, Zor16s, Zor64f, 9, 11> {
};
template <>
struct KindOfFilter<ZorsFIRState32sc_16sc> : FilterKind<Zor32sc, Zor16sc, Zor64fc, 10, 12> {
};
template <>
struct KindOfFilter<ZorsFIRState_64f> : FilterKind<Zor64f, Zor64f, Zor64f, 13, 15> {
};
template <>
struct KindOfFilter<ZorsFIRState_64fc> : FilterKind<Zor64fc, Zor64fc, Zor64fc, 14, 16> {
};
template <>
struct KindOfFilter<ZorsFIRState64f_32f> : FilterKind<Zor64f, Zor32f, Zor64f, 17, 19> {
};
template <>
struct KindOfFilter<ZorsFIRState64fc_32fc> : FilterKind<Zor64fc, Zor32fc, Zor64fc, 18, 20> {
};
template <>
struct KindOfFilter<ZorsFIRState64f_32s> : FilterKind<Zor64f, Zor32s, Zor64f, 21, 23> {
};
template <>
struct KindOfFilter<ZorsFIRState64fc_32sc> : FilterKind<Zor64fc, Zor32sc, Zor64fc, 22, 24> {
};
template <>
struct KindOfFilter<ZorsFIRState64f_16s> : FilterKind<Zor64f, Zor16s, Zor64f, 25, 27> {
};
template <>
struct KindOfFilter<ZorsFIRState64fc_16sc> : FilterKind<Zor64fc, Zor16sc, Zor64fc, 26, 28> {
};
template <>
struct KindOfFilter<ZorsFIRState_16s> : FilterKind<Zor16s, Zor16s, Zor64f, 0, 30, 31, 32> {
};

template <class State>
using DataOf = typename KindOfFilter<State>::Data;
template <class State>
using NumberOf = typename KindOfFilter<State>::Number;

} // namespace zors::ZORS_VARIANT
