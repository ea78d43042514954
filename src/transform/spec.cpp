#include "spec.h"
#include "frame/bind.h"

namespace zors::ZORS_VARIANT {
namespace {

template <class Kind>
constexpr bool isFloating = requires
{
    typename Kind::Number;
};

template <class Kind>
constexpr bool isNarrow = std::is_same_v<typename Kind::Record, NarrowRecord>;

// The floating kind that does the arithmetic.
template <class Kind>
struct FloatingOf : std::type_identity<Kind> {
};
template <class Kind>
requires(!isFloating<Kind>) struct FloatingOf<Kind> : std::type_identity<KindOf<typename Kind::Nested>> {
};

constexpr int mostAskedOrder = 30;

constexpr bool isOrder(int order)
{
    return order >= 0 && order <= mostAskedOrder;
}

template <class Kind>
constexpr std::int64_t headerBytes = isNarrow<Kind> ? narrowHeader : wideHeader;

// An integer kind keeps the converted data before the work of the nested transform.
template <class Kind>
Sizes sizesOf(int order)
{
    using Floating = typename FloatingOf<Kind>::type;
    Sizes sizes = floatSizes<Floating>(order);
    if constexpr (!isFloating<Kind>) {
        sizes.spec += wholeLines(headerBytes<Kind>);
        sizes.work += convertedBytes<Kind>(order);
    }
    return sizes;
}

// Whether the kind has transforms of an order from 0 to 30, and sizes that can be told.
template <class Kind>
bool reaches(int order)
{
    return order <= FloatingOf<Kind>::type::mostOrder && canBeTold(sizesOf<Kind>(order));
}

template <class Spec>
ZorStatus getSize(int order, int flag, ZorHintAlgorithm, int* pSpecSize, int* pInitSize, int* pBufferSize)
{
    using Kind = KindOf<Spec>;
    if (const ZorStatus bad =
            check(require(isOrder(order), zorStsBadFftOrder), pointers(pSpecSize, pInitSize, pBufferSize),
                  require(isFlag(flag), zorStsBadFftFlag)))
        return bad;
    if (!reaches<Kind>(order)) return zorStsBadFftOrder;
    tell(sizesOf<Kind>(order), pSpecSize, pInitSize, pBufferSize);
    return zorStsOk;
}

void setShifts(NarrowRecord& r, int order, int flag)
{
    if (flag == ZOR_FFT_SCALE_FWD) r.forwardShift = order;
    if (flag == ZOR_FFT_SCALE_INV) r.inverseShift = order;
    if (flag == ZOR_FFT_SCALE_SQRT) {
        r.forwardShift = r.inverseShift = order / 2;
        r.oddOrder = order % 2;
    }
}

template <class Kind>
ZorStatus buildInteger(int order, int flag, ZorHintAlgorithm hint, void* memory, Zor8u* pInit)
{
    using Record = typename Kind::Record;
    std::memset(memory, 0, headerBytes<Kind>);
    if (!isFlag(flag)) return zorStsBadFftFlag;
    if (!reaches<Kind>(order)) return zorStsBadFftOrder;
    Record& r = *static_cast<Record*>(memory);
    char* nested = static_cast<char*>(memory) + wholeLines(headerBytes<Kind>);
    if (const ZorStatus bad =
            buildFloat<typename FloatingOf<Kind>::type>(order, flag, ZOR_ALG_ANY, nested, pInit))
        return bad;
    r.order = order;
    r.hint = hint;
    r.workSize = static_cast<Zor32s>(sizesOf<Kind>(order).work);
    r.nested = nested;
    if constexpr (isNarrow<Kind>) {
        r.usesFloating = 1;
        setShifts(r, order, flag);
    }
    r.tag = Kind::tag;
    return zorStsOk;
}

template <class Kind>
ZorStatus build(int order, int flag, ZorHintAlgorithm hint, void* memory, Zor8u* pInit)
{
    if constexpr (isFloating<Kind>)
        return buildFloat<Kind>(order, flag, hint, memory, pInit);
    else
        return buildInteger<Kind>(order, flag, hint, memory, pInit);
}

// An integer kind finds orders beyond its reach behind the flag.
template <class Kind>
bool takesOrder(int order)
{
    if constexpr (isFloating<Kind>)
        return order >= 0 && order <= Kind::mostOrder;
    else
        return isOrder(order);
}

template <class Spec>
ZorStatus init(Spec** ppSpec, int order, int flag, ZorHintAlgorithm hint, Zor8u* pSpecMemory,
               Zor8u* pInitMemory)
{
    using Kind = KindOf<Spec>;
    if (const ZorStatus bad = check(pointers(ppSpec), require(takesOrder<Kind>(order), zorStsBadFftOrder),
                                    pointers(pSpecMemory)))
        return bad;
    Zor8u* memory = aligned(pSpecMemory);
    if (const ZorStatus bad = build<Kind>(order, flag, hint, memory, pInitMemory)) return bad;
    *ppSpec = reinterpret_cast<Spec*>(memory);
    return zorStsOk;
}

template <class Spec>
ZorStatus initAlloc(Spec** ppSpec, int order, int flag, ZorHintAlgorithm hint)
{
    using Kind = KindOf<Spec>;
    int specSize = 0, initSize = 0, bufferSize = 0;
    if (const ZorStatus bad = pointers(ppSpec)) return bad;
    if (const ZorStatus bad = getSize<Spec>(order, flag, hint, &specSize, &initSize, &bufferSize)) return bad;
    return allocated(ppSpec, sizesOf<Kind>(order), [=](void* memory, Zor8u* scratch) {
        return build<Kind>(order, flag, hint, memory, scratch);
    });
}

} // namespace

#define ZORS_BIND_KIND(kind)                                                                                 \
    ZORS_BIND(zorsFFTGetSize_##kind, getSize<ZorsFFTSpec_##kind>)                                            \
    ZORS_BIND(zorsFFTInit_##kind, init<ZorsFFTSpec_##kind>)                                                  \
    ZORS_BIND(zorsFFTInitAlloc_##kind, initAlloc<ZorsFFTSpec_##kind>)                                        \
    ZORS_BIND(zorsFFTFree_##kind, release<ZorsFFTSpec_##kind>)                                               \
    ZORS_BIND(zorsFFTGetBufSize_##kind, getBufSize<ZorsFFTSpec_##kind>)

ZORS_BIND_KIND(C_16sc)
ZORS_BIND_KIND(C_16s)
ZORS_BIND_KIND(R_16s)
ZORS_BIND_KIND(C_32fc)
ZORS_BIND_KIND(C_32f)
ZORS_BIND_KIND(R_32f)
ZORS_BIND_KIND(C_64fc)
ZORS_BIND_KIND(C_64f)
ZORS_BIND_KIND(R_64f)
ZORS_BIND_KIND(C_32sc)
ZORS_BIND_KIND(C_32s)
ZORS_BIND_KIND(R_32s)
ZORS_BIND_KIND(R_16s32s)

} // namespace zors::ZORS_VARIANT
