// Sizes and initialisation of the transforms of any length.
#include "dft_engine.h"
#include "dft_record.h"
#include "frame/bind.h"

namespace zors::ZORS_VARIANT {
namespace {

template <class Kind>
constexpr bool isFloating = requires
{
    typename Kind::PowerKind;
};

template <class Kind>
struct FloatingOf : std::type_identity<Kind> {
};
template <class Kind>
requires(!isFloating<Kind>) struct FloatingOf<Kind> : std::type_identity<KindOf<typename Kind::Nested>> {
};

template <class Kind>
using NumberOf = typename FloatingOf<Kind>::type::Number;

// Real transforms of an even length are complex ones of half of it.
template <class Kind>
constexpr int complexLength(int n)
{
    return Kind::real && n % 2 == 0 ? n / 2 : n;
}

// Pairs of a table of recombination.
constexpr std::int64_t recombinationPairs(int n)
{
    return n / 4 + 1;
}

template <class Kind>
void layOutDft(Layout& layout, int n, typename Kind::Record& r)
{
    using T = typename Kind::Number;
    using Power = typename Kind::PowerKind;
    layout.header(dftHeader);
    if (n <= mostSmallLength) {
        char* room = reinterpret_cast<char*>(&r) + dftRoom;
        if (isPowerOfTwoLength(n)) {
            r.power = reinterpret_cast<FloatRecord<T>*>(room);
        } else {
            layOutPlan(layout, r.plan, complexLength<Kind>(n));
            r.forwardFactors = reinterpret_cast<T*>(room);
            r.inverseFactors = r.forwardFactors + 2 * recombinationPairs(n);
        }
    } else if (isPowerOfTwoLength(n)) {
        layout.take(r.power, wholeLines(floatSizes<Power>(orderOf(n)).spec));
    } else {
        layOutPlan(layout, r.plan, complexLength<Kind>(n));
        if (Kind::real && n % 2 == 0) {
            layout.take(r.forwardFactors, 2 * bytes<T> * recombinationPairs(n));
            layout.take(r.inverseFactors, 2 * bytes<T> * recombinationPairs(n));
        }
    }
}

template <class Kind>
Sizes floatDftSizes(int n)
{
    using T = typename Kind::Number;
    Layout counting;
    alignas(lineBytes) char memory[dftHeader] = {};
    auto& none = *reinterpret_cast<typename Kind::Record*>(memory);
    layOutDft<Kind>(counting, n, none);
    Sizes sizes{counting.size(), 0, 0};
    if (n <= mostSmallLength) return sizes;
    if (isPowerOfTwoLength(n)) {
        const Sizes power = floatSizes<typename Kind::PowerKind>(orderOf(n));
        sizes.init = wholeLines(withSlack(power.init));
        sizes.work = wholeLines(withSlack(power.work));
    } else {
        sizes.init = initBytesOf(none.plan);
        sizes.work = workBytesOf(none.plan);
        const bool takesPairs = none.plan.way == Way::few || none.plan.way == Way::mixed;
        if (Kind::real && n % 2 && takesPairs) sizes.work += oddRoomBytes<T>(n);
    }
    return sizes;
}

template <class Kind>
Sizes dftSizes(int n)
{
    Sizes sizes = floatDftSizes<typename FloatingOf<Kind>::type>(n);
    if constexpr (!isFloating<Kind>) {
        sizes.spec += wholeLines(sizeof(DftIntegerRecord));
        sizes.work += dftConvertedBytes<Kind>(n);
    }
    return sizes;
}

// Whether there is a method for the length, and sizes that can be told.
template <class Kind>
bool reaches(int n)
{
    using Floating = typename FloatingOf<Kind>::type;
    const Method method = methodOf<NumberOf<Kind>>(n);
    if (method == Method::none) return false;
    if (method == Method::power && orderOf(n) > Floating::PowerKind::mostOrder) return false;
    return canBeTold(dftSizes<Kind>(n));
}

template <class Spec>
ZorStatus getSize(int length, int flag, ZorHintAlgorithm, int* pSpecSize, int* pInitSize, int* pBufferSize)
{
    using Kind = KindOf<Spec>;
    if (const ZorStatus bad =
            check(pointers(pSpecSize, pInitSize, pBufferSize), require(length >= 1, zorStsBadSize),
                  require(isFlag(flag), zorStsBadFftFlag)))
        return bad;
    if (!reaches<Kind>(length)) return zorStsBadSize;
    tell(dftSizes<Kind>(length), pSpecSize, pInitSize, pBufferSize);
    return zorStsOk;
}

template <bool Forward, class T>
void fillRecombination(int n, T* p)
{
    for (std::int64_t k = 0; k < recombinationPairs(n); ++k) {
        const Cx<T> w = recombinationFactor<Forward>(rootOfUnity<T>(k, n));
        p[2 * k] = w.re;
        p[2 * k + 1] = w.im;
    }
}

// Builds a record in aligned memory; all arguments are valid.
template <class Kind>
void buildDft(int n, int flag, ZorHintAlgorithm hint, void* memory, Zor8u* scratch)
{
    std::memset(memory, 0, dftHeader);
    auto& r = *static_cast<typename Kind::Record*>(memory);
    r.n = n;
    r.hint = hint;
    r.workSize = static_cast<Zor32s>(floatDftSizes<Kind>(n).work);
    setScale(r, n, flag);
    Layout placing(memory);
    layOutDft<Kind>(placing, n, r);
    if (isPowerOfTwoLength(n)) {
        buildFloat<typename Kind::PowerKind>(orderOf(n), flag, hint, r.power, scratch);
    } else {
        fillPlan(r.plan, scratch);
        if (Kind::real && n % 2 == 0) {
            fillRecombination<true>(n, r.forwardFactors);
            fillRecombination<false>(n, r.inverseFactors);
        }
    }
    r.tag = Kind::tag;
}

template <class Kind>
void build(int n, int flag, ZorHintAlgorithm hint, void* memory, Zor8u* pInit)
{
    Zor8u* scratch = pInit ? aligned(pInit) : nullptr;
    if constexpr (isFloating<Kind>) {
        buildDft<Kind>(n, flag, hint, memory, scratch);
    } else {
        char* nested = static_cast<char*>(memory) + wholeLines(sizeof(DftIntegerRecord));
        buildDft<typename FloatingOf<Kind>::type>(n, flag, ZOR_ALG_ANY, nested, scratch);
        *static_cast<DftIntegerRecord*>(memory) = {
            Kind::tag, n, hint, static_cast<Zor32s>(dftSizes<Kind>(n).work), 0, nullptr, nested};
    }
}

template <class Spec>
ZorStatus init(Spec** ppSpec, int length, int flag, ZorHintAlgorithm hint, Zor8u* pSpecMemory,
               Zor8u* pInitMemory)
{
    using Kind = KindOf<Spec>;
    if (const ZorStatus bad = check(pointers(ppSpec, pSpecMemory), require(length >= 1, zorStsBadSize),
                                    require(isFlag(flag), zorStsBadFftFlag)))
        return bad;
    if (!reaches<Kind>(length)) return zorStsBadSize;
    if (!pInitMemory && dftSizes<Kind>(length).init > 0) return zorStsNullPointer;
    Zor8u* memory = aligned(pSpecMemory);
    build<Kind>(length, flag, hint, memory, pInitMemory);
    *ppSpec = reinterpret_cast<Spec*>(memory);
    return zorStsOk;
}

template <class Spec>
ZorStatus initAlloc(Spec** ppSpec, int length, int flag, ZorHintAlgorithm hint)
{
    using Kind = KindOf<Spec>;
    int specSize = 0, initSize = 0, bufferSize = 0;
    if (const ZorStatus bad = pointers(ppSpec)) return bad;
    if (const ZorStatus bad = getSize<Spec>(length, flag, hint, &specSize, &initSize, &bufferSize))
        return bad;
    return allocated(ppSpec, dftSizes<Kind>(length), [=](void* memory, Zor8u* scratch) {
        build<Kind>(length, flag, hint, memory, scratch);
        return zorStsOk;
    });
}

} // namespace

#define ZORS_BIND_KIND(kind)                                                                                 \
    ZORS_BIND(zorsDFTGetSize_##kind, getSize<ZorsDFTSpec_##kind>)                                            \
    ZORS_BIND(zorsDFTInit_##kind, init<ZorsDFTSpec_##kind>)                                                  \
    ZORS_BIND(zorsDFTInitAlloc_##kind, initAlloc<ZorsDFTSpec_##kind>)                                        \
    ZORS_BIND(zorsDFTFree_##kind, release<ZorsDFTSpec_##kind>)                                               \
    ZORS_BIND(zorsDFTGetBufSize_##kind, getBufSize<ZorsDFTSpec_##kind>)

ZORS_BIND_KIND(C_16sc)
ZORS_BIND_KIND(C_16s)
ZORS_BIND_KIND(R_16s)
ZORS_BIND_KIND(C_32fc)
ZORS_BIND_KIND(C_32f)
ZORS_BIND_KIND(R_32f)
ZORS_BIND_KIND(C_64fc)
ZORS_BIND_KIND(C_64f)
ZORS_BIND_KIND(R_64f)

#define ZORS_BIND_OUT_OF_ORDER(kind)                                                                         \
    ZORS_BIND(zorsDFTOutOrdInitAlloc_##kind, initAlloc<ZorsDFTOutOrdSpec_##kind>)                            \
    ZORS_BIND(zorsDFTOutOrdFree_##kind, release<ZorsDFTOutOrdSpec_##kind>)                                   \
    ZORS_BIND(zorsDFTOutOrdGetBufSize_##kind, getBufSize<ZorsDFTOutOrdSpec_##kind>)

ZORS_BIND_OUT_OF_ORDER(C_32fc)
ZORS_BIND_OUT_OF_ORDER(C_64fc)

} // namespace zors::ZORS_VARIANT
