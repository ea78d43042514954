#include "transform/kinds.h"

#include <stdexcept>

namespace zors::test {
namespace {

// A pointer to whatever a function takes.
struct Untyped {
    const void* p;

    template <class T>
    operator T*() const
    {
        return static_cast<T*>(const_cast<void*>(p));
    }
};

// The function, with an untyped record or place for its address.
template <auto function, class P, class... A>
ZorStatus call(P record, A... arguments)
{
    return function(Untyped{record}, arguments...);
}

template <auto getSize, auto init, auto initAlloc, auto free, auto getBufSize>
Kind makeKind(const char* name, Zor32u tag, int mostOrder)
{
    return {name, tag, mostOrder, getSize, call<init>, call<initAlloc>, call<free>, call<getBufSize>};
}

} // namespace

#define ZORS_KIND(kind, tag, mostOrder)                                                                      \
    makeKind<zorsFFTGetSize_##kind, zorsFFTInit_##kind, zorsFFTInitAlloc_##kind, zorsFFTFree_##kind,         \
             zorsFFTGetBufSize_##kind>(#kind, tag, mostOrder)

const std::vector<Kind>& kinds()
{
    static const std::vector<Kind> all = {
        ZORS_KIND(C_16sc, 1, 27),
        ZORS_KIND(C_16s, 2, 27),
        ZORS_KIND(R_16s, 3, 28),
        ZORS_KIND(C_32fc, 4, 28),
        ZORS_KIND(C_32f, 5, 28),
        ZORS_KIND(R_32f, 6, 29),
        ZORS_KIND(C_64fc, 7, 27),
        ZORS_KIND(C_64f, 8, 27),
        ZORS_KIND(R_64f, 9, 28),
        ZORS_KIND(C_32sc, 0x434D414C, 26),
        ZORS_KIND(C_32s, 0x434D414D, 26),
        ZORS_KIND(R_32s, 0x434D414E, 27),
        ZORS_KIND(R_16s32s, 0x434D414F, 28),
    };
    return all;
}

#define ZORS_LENGTH_KIND(kind, tag)                                                                          \
    makeKind<zorsDFTGetSize_##kind, zorsDFTInit_##kind, zorsDFTInitAlloc_##kind, zorsDFTFree_##kind,         \
             zorsDFTGetBufSize_##kind>(#kind, tag, 0)
#define ZORS_OUT_OF_ORDER_KIND(kind, tag)                                                                    \
    Kind                                                                                                     \
    {                                                                                                        \
        "OutOrd_" #kind, tag, 0, nullptr, nullptr, call<zorsDFTOutOrdInitAlloc_##kind>,                      \
            call<zorsDFTOutOrdFree_##kind>, call<zorsDFTOutOrdGetBufSize_##kind>                             \
    }

const std::vector<Kind>& kindsOfAnyLength()
{
    static const std::vector<Kind> all = {
        ZORS_LENGTH_KIND(C_16sc, 10),       ZORS_LENGTH_KIND(C_16s, 11),        ZORS_LENGTH_KIND(R_16s, 12),
        ZORS_LENGTH_KIND(C_32fc, 13),       ZORS_LENGTH_KIND(C_32f, 14),        ZORS_LENGTH_KIND(R_32f, 15),
        ZORS_LENGTH_KIND(C_64fc, 16),       ZORS_LENGTH_KIND(C_64f, 17),        ZORS_LENGTH_KIND(R_64f, 18),
        ZORS_OUT_OF_ORDER_KIND(C_32fc, 25), ZORS_OUT_OF_ORDER_KIND(C_64fc, 26),
    };
    return all;
}

namespace {

const Kind& found(const std::vector<Kind>& kinds, const std::string& name)
{
    for (const Kind& k : kinds)
        if (k.name == name) return k;
    throw std::out_of_range(name);
}

} // namespace

const Kind& kind(const std::string& name)
{
    return found(kinds(), name);
}

const Kind& kindOfAnyLength(const std::string& name)
{
    return found(kindsOfAnyLength(), name);
}

Sizes sizesOf(const Kind& kind, int order, int flag)
{
    Sizes s{};
    if (kind.getSize(order, flag, ZOR_ALG_ANY, &s.spec, &s.init, &s.work) != zorStsOk)
        throw std::runtime_error("no sizes of " + kind.name);
    return s;
}

Spec::Spec(const Kind& kind, int order, int flag) : kind_(kind)
{
    if (kind.initAlloc(&spec_, order, flag, ZOR_ALG_ANY) != zorStsOk)
        throw std::runtime_error("no record of " + kind.name);
}

Spec::~Spec()
{
    kind_.free(spec_);
}

} // namespace zors::test
