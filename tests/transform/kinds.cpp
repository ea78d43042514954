#include "transform/kinds.h"

#include <stdexcept>

namespace zors::test {

#define ZORS_KIND(kind, tag, mostOrder)                                                                      \
    Kind                                                                                                     \
    {                                                                                                        \
#kind, tag, mostOrder, zorsFFTGetSize_##kind,                                                        \
            [](void** ppSpec, int order, int flag, ZorHintAlgorithm hint, Zor8u* pSpec, Zor8u* pInit) {      \
                return zorsFFTInit_##kind(reinterpret_cast<ZorsFFTSpec_##kind**>(ppSpec), order, flag, hint, \
                                          pSpec, pInit);                                                     \
            },                                                                                               \
            [](void** ppSpec, int order, int flag, ZorHintAlgorithm hint) {                                  \
                return zorsFFTInitAlloc_##kind(reinterpret_cast<ZorsFFTSpec_##kind**>(ppSpec), order, flag,  \
                                               hint);                                                        \
            },                                                                                               \
            [](void* pSpec) { return zorsFFTFree_##kind(static_cast<ZorsFFTSpec_##kind*>(pSpec)); },         \
            [](const void* pSpec, int* pSize) {                                                              \
                return zorsFFTGetBufSize_##kind(static_cast<const ZorsFFTSpec_##kind*>(pSpec), pSize);       \
            }       \
    }

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

const Kind& kind(const std::string& name)
{
    for (const Kind& k : kinds())
        if (k.name == name) return k;
    throw std::out_of_range(name);
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
