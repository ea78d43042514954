// What tells the records of recursive filters apart: the types of data and of the arithmetic, and the tags.
#pragma once

#include "tag.h"

#include <type_traits>

namespace zors::ZORS_VARIANT {

enum class Structure : Zor32s { anyOrder, biQuad, directForm1 };

template <class D, class E, int AnyOrder, int BiQuad, int DirectForm1 = 0>
struct IirKind {
    using Data = D;
    using Number = E; // in which the filter computes
    static constexpr bool converts = !std::is_same_v<D, E>;
    // 0 where there is no record of a structure.
    static constexpr Zor32u anyOrder = AnyOrder ? filterTag('I', AnyOrder) : 0;
    static constexpr Zor32u biQuad = BiQuad ? filterTag('I', BiQuad) : 0;
    static constexpr Zor32u directForm1 = DirectForm1 ? filterTag('I', DirectForm1) : 0;

    static constexpr Zor32u tag(Structure structure)
    {
        return structure == Structure::anyOrder ? anyOrder
               : structure == Structure::biQuad ? biQuad
                                                : directForm1;
    }
};

template <class State>
struct KindOfIir;
template <>
struct KindOfIir<ZorsIIRState_32f> : IirKind<Zor32f, Zor32f, 1, 2, 29> {
};
template <>
struct KindOfIir<ZorsIIRState_32fc> : IirKind<Zor32fc, Zor32fc, 3, 4> {
};
template <>
struct KindOfIir<ZorsIIRState32f_16s> : IirKind<Zor16s, Zor32f, 5, 6> {
};
template <>
struct KindOfIir<ZorsIIRState32fc_16sc> : IirKind<Zor16sc, Zor32fc, 7, 8> {
};
template <>
struct KindOfIir<ZorsIIRState32s_16s> : IirKind<Zor16s, Zor32f, 9, 10> {
};
template <>
struct KindOfIir<ZorsIIRState32sc_16sc> : IirKind<Zor16sc, Zor32fc, 0, 12> {
};
template <>
struct KindOfIir<ZorsIIRState_64f> : IirKind<Zor64f, Zor64f, 13, 14> {
};
template <>
struct KindOfIir<ZorsIIRState_64fc> : IirKind<Zor64fc, Zor64fc, 15, 16> {
};
template <>
struct KindOfIir<ZorsIIRState64f_32f> : IirKind<Zor32f, Zor64f, 17, 18> {
};
template <>
struct KindOfIir<ZorsIIRState64fc_32fc> : IirKind<Zor32fc, Zor64fc, 19, 20> {
};
template <>
struct KindOfIir<ZorsIIRState64f_32s> : IirKind<Zor32s, Zor64f, 21, 0> {
};
template <>
struct KindOfIir<ZorsIIRState64fc_32sc> : IirKind<Zor32sc, Zor64fc, 23, 24> {
};
template <>
struct KindOfIir<ZorsIIRState64f_16s> : IirKind<Zor16s, Zor64f, 25, 26> {
};
template <>
struct KindOfIir<ZorsIIRState64fc_16sc> : IirKind<Zor16sc, Zor64fc, 27, 28> {
};

template <class State>
using IirData = typename KindOfIir<State>::Data;
template <class State>
using IirNumber = typename KindOfIir<State>::Number;

} // namespace zors::ZORS_VARIANT
