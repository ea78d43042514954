#include "frame/bind.h"
#include "simd/check.h"
#include "simd/loop.h"

namespace zors::ZORS_VARIANT {
namespace {

struct Subtract {
    static auto apply(auto v, auto c) { return v - c; }
};

struct Multiply {
    static auto apply(auto v, auto c) { return v * c; }
};

template <class Operation, class T>
ZorStatus withConstantInPlace(T val, T* pSrcDst, int len)
{
    if (const ZorStatus bad = check(pointers(pSrcDst), length(len))) return bad;
    blocks<lanes<T>>(len, [=](auto at) { store(pSrcDst, at, Operation::apply(load(pSrcDst, at), val)); });
    return zorStsOk;
}

} // namespace

ZORS_BIND(zorsSubC_32f_I, (withConstantInPlace<Subtract, Zor32f>))
ZORS_BIND(zorsMulC_32f_I, (withConstantInPlace<Multiply, Zor32f>))

} // namespace zors::ZORS_VARIANT
