#include "filter/iir_kinds.h"

#include "filter/call.h"

#include <zors.h>

namespace zors::test {

// base is the kind of the record, which some forms are other names for.
#define ZORS_IIR(taps, word, data, base, tapsType, dataType, arithmetic, structure, number, Sfs, I)          \
    IirKind                                                                                                  \
    {                                                                                                        \
        {#taps #word #data,                                                                                  \
         tapsType,                                                                                           \
         dataType,                                                                                           \
         arithmetic,                                                                                         \
         number,                                                                                             \
         0,                                                                                                  \
         call<zorsIIR##base##Sfs>,                                                                           \
         call<zorsIIR##base##I>,                                                                             \
         call<zorsIIRFree##base>,                                                                            \
         call<zorsIIRSetTaps##taps##data>,                                                                   \
         nullptr,                                                                                            \
         call<zorsIIRSetDlyLine##base>,                                                                      \
         call<zorsIIRGetDlyLine##base>,                                                                      \
         nullptr,                                                                                            \
         nullptr,                                                                                            \
         nullptr,                                                                                            \
         one<zorsIIROne##base##Sfs>,                                                                         \
         call<zorsIIRGetStateSize##taps##word##data>,                                                        \
         call<zorsIIRInit##taps##word##data>,                                                                \
         call<zorsIIRInitAlloc##taps##word##data>},                                                          \
            Structure::structure                                                                             \
    }

#define ZORS_ORDER(taps, data, base, tapsType, dataType, arithmetic, number, Sfs, I)                         \
    ZORS_IIR(taps, , data, base, tapsType, dataType, arithmetic, anyOrder, number, Sfs, I)
#define ZORS_SECTIONS(taps, data, base, tapsType, dataType, arithmetic, number, Sfs, I)                      \
    ZORS_IIR(taps, _BiQuad, data, base, tapsType, dataType, arithmetic, cascade, number, Sfs, I)
#define ZORS_BOTH(taps, data, base, tapsType, dataType, arithmetic, number, Sfs, I)                          \
    ZORS_ORDER(taps, data, base, tapsType, dataType, arithmetic, number, Sfs, I),                            \
        ZORS_SECTIONS(taps, data, base, tapsType, dataType, arithmetic, number + 1, Sfs, I)

const std::vector<IirKind>& iirKinds()
{
    constexpr Element f32{Number::float32, 1}, fc32{Number::float32, 2}, f64{Number::float64, 1},
        fc64{Number::float64, 2}, s16{Number::int16, 1}, sc16{Number::int16, 2}, s32{Number::int32, 1},
        sc32{Number::int32, 2};
    constexpr Number narrow = Number::float32, wide = Number::float64;
    static IirKind directForm1 = ZORS_SECTIONS(, _32f, _32f, f32, f32, narrow, 29, , _I);
    directForm1.structure = Structure::directForm1;
    directForm1.kind.name = "_BiQuad_DF1_32f";
    directForm1.kind.size = call<zorsIIRGetStateSize_BiQuad_DF1_32f>;
    directForm1.kind.init = call<zorsIIRInit_BiQuad_DF1_32f>;
    directForm1.kind.initAlloc = call<zorsIIRInitAlloc_BiQuad_DF1_32f>;
    directForm1.kind.one = nullptr;
    static const std::vector<IirKind> all = {
        ZORS_BOTH(, _32f, _32f, f32, f32, narrow, 1, , _I),
        ZORS_BOTH(, _32fc, _32fc, fc32, fc32, narrow, 3, , _I),
        ZORS_BOTH(32f, _16s, 32f_16s, f32, s16, narrow, 5, _Sfs, _ISfs),
        ZORS_BOTH(32fc, _16sc, 32fc_16sc, fc32, sc16, narrow, 7, _Sfs, _ISfs),
        ZORS_BOTH(32s, _16s, 32s_16s, s32, s16, narrow, 9, _Sfs, _ISfs),
        ZORS_BOTH(32s, _16s32f, 32s_16s, s32, s16, narrow, 9, _Sfs, _ISfs),
        ZORS_SECTIONS(32sc, _16sc, 32sc_16sc, sc32, sc16, narrow, 12, _Sfs, _ISfs),
        ZORS_SECTIONS(32sc, _16sc32fc, 32sc_16sc, sc32, sc16, narrow, 12, _Sfs, _ISfs),
        ZORS_BOTH(, _64f, _64f, f64, f64, wide, 13, , _I),
        ZORS_BOTH(, _64fc, _64fc, fc64, fc64, wide, 15, , _I),
        ZORS_BOTH(64f, _32f, 64f_32f, f64, f32, wide, 17, , _I),
        ZORS_BOTH(64fc, _32fc, 64fc_32fc, fc64, fc32, wide, 19, , _I),
        ZORS_ORDER(64f, _32s, 64f_32s, f64, s32, wide, 21, _Sfs, _ISfs),
        ZORS_BOTH(64fc, _32sc, 64fc_32sc, fc64, sc32, wide, 23, _Sfs, _ISfs),
        ZORS_BOTH(64f, _16s, 64f_16s, f64, s16, wide, 25, _Sfs, _ISfs),
        ZORS_BOTH(64fc, _16sc, 64fc_16sc, fc64, sc16, wide, 27, _Sfs, _ISfs),
        directForm1,
    };
    return all;
}

} // namespace zors::test
