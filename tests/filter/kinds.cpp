#include "filter/call.h"

#include <zors.h>

#include <stdexcept>

namespace zors::test {

// What records of all rates have, then what multi-rate ones have, then what single-rate ones have.
#define ZORS_ANY(name, base, taps, data, arithmetic, single, multi, Sfs, I)                                  \
#name, taps, data, arithmetic, single, multi, call < zorsFIR##base##Sfs>, call < zorsFIR##base##I>,      \
        call < zorsFIRFree##base>, call < zorsFIRSetTaps##name>, call < zorsFIRGetTaps##name>,               \
        call < zorsFIRSetDlyLine##base>, call < zorsFIRGetDlyLine##base>

#define ZORS_MULTI(name, alloc) call<zorsFIRMRGetStateSize##name>, call<zorsFIRMRInit##name>, alloc

#define ZORS_SINGLE(name, base, Sfs)                                                                         \
    one<zorsFIROne##base##Sfs>, call<zorsFIRGetStateSize##name>, call<zorsFIRInit##name>,                    \
        call<zorsFIRInitAlloc##name>

#define ZORS_KIND(name, taps, data, arithmetic, single, multi, Sfs, I)                                       \
    Kind                                                                                                     \
    {                                                                                                        \
        ZORS_ANY(name, name, taps, data, arithmetic, single, multi, Sfs, I),                                 \
            ZORS_MULTI(name, call<zorsFIRMRInitAlloc##name>), ZORS_SINGLE(name, name, Sfs)                   \
    }

// Records of another kind, from other taps.
#define ZORS_MADE_FROM(name, base, taps, data, arithmetic, single)                                           \
    Kind                                                                                                     \
    {                                                                                                        \
        ZORS_ANY(name, base, taps, data, arithmetic, single, 0, _Sfs, _ISfs), nullptr, nullptr, nullptr,     \
            ZORS_SINGLE(name, base, _Sfs)                                                                    \
    }

namespace {

constexpr Element f32{Number::float32, 1}, fc32{Number::float32, 2}, f64{Number::float64, 1},
    fc64{Number::float64, 2}, s16{Number::int16, 1}, sc16{Number::int16, 2}, s32{Number::int32, 1},
    sc32{Number::int32, 2};
constexpr Number narrow = Number::float32, wide = Number::float64;

const std::vector<Kind>& bothRates()
{
    static const std::vector<Kind> all = {
        ZORS_KIND(_32f, f32, f32, narrow, 1, 3, , _I),
        ZORS_KIND(_32fc, fc32, fc32, narrow, 2, 4, , _I),
        ZORS_KIND(32f_16s, f32, s16, narrow, 5, 7, _Sfs, _ISfs),
        ZORS_KIND(32fc_16sc, fc32, sc16, narrow, 6, 8, _Sfs, _ISfs),
        ZORS_KIND(32s_16s, s32, s16, wide, 9, 11, _Sfs, _ISfs),
        ZORS_KIND(32sc_16sc, sc32, sc16, wide, 10, 12, _Sfs, _ISfs),
        ZORS_KIND(_64f, f64, f64, wide, 13, 15, , _I),
        ZORS_KIND(_64fc, fc64, fc64, wide, 14, 16, , _I),
        ZORS_KIND(64f_32f, f64, f32, wide, 17, 19, , _I),
        ZORS_KIND(64fc_32fc, fc64, fc32, wide, 18, 20, , _I),
        ZORS_KIND(64f_32s, f64, s32, wide, 21, 23, _Sfs, _ISfs),
        ZORS_KIND(64fc_32sc, fc64, sc32, wide, 22, 24, _Sfs, _ISfs),
        ZORS_KIND(64f_16s, f64, s16, wide, 25, 27, _Sfs, _ISfs),
        ZORS_KIND(64fc_16sc, fc64, sc16, wide, 26, 28, _Sfs, _ISfs),
    };
    return all;
}

std::vector<Kind> allSingleRate()
{
    std::vector<Kind> all = bothRates();
    all.push_back(ZORS_MADE_FROM(32s_16s32f, 32s_16s, f32, s16, wide, 9));
    all.push_back(ZORS_MADE_FROM(32sc_16sc32fc, 32sc_16sc, fc32, sc16, wide, 10));
    Kind second = kind("64f_32s");
    second.name = "_32s";
    second.init = call<zorsFIRInit_32s>;
    all.push_back(second);
    return all;
}

std::vector<Kind> allMultiRate()
{
    std::vector<Kind> all = bothRates();
    all.push_back({ZORS_ANY(_16s, _16s, s16, s16, wide, 0, 30, _Sfs, _ISfs), ZORS_MULTI(_16s, nullptr)});
    return all;
}

} // namespace

const std::vector<Kind>& singleRateKinds()
{
    static const std::vector<Kind> all = allSingleRate();
    return all;
}

const std::vector<Kind>& multiRateKinds()
{
    static const std::vector<Kind> all = allMultiRate();
    return all;
}

const std::vector<StreamKind>& streamKinds()
{
    static const std::vector<StreamKind> all = {
        {&kind("_32f"), 33, 34, call<zorsFIRStreamGetStateSize_32f>, call<zorsFIRStreamInit_32f>,
         call<zorsFIRMRStreamGetStateSize_32f>, call<zorsFIRMRStreamInit_32f>},
        {&multiRateKinds().back(), 31, 32, call<zorsFIRStreamGetStateSize_16s>, call<zorsFIRStreamInit_16s>,
         call<zorsFIRMRStreamGetStateSize_16s>, call<zorsFIRMRStreamInit_16s>},
    };
    return all;
}

const Kind& kind(const std::string& name)
{
    for (const Kind& k : bothRates())
        if (k.name == name) return k;
    throw std::out_of_range(name);
}

int transformLength(int tapsLen)
{
    int half = 4;
    while (half <= tapsLen) half *= 2;
    return 2 * half;
}

} // namespace zors::test
