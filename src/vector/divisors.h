// Divisors of element-wise division at a place of the loop.
#pragma once

#include "operands.h"
#include "simd/divide.h"

namespace zors::ZORS_VARIANT {

// A divisor of 1 beside the vector: what is divided there is 0, and must not raise an exception.
template <class T>
inline auto divisors(const T* p, T one = 1)
{
    return [=](auto at) { return covered(load(p, at), at, one); };
}

} // namespace zors::ZORS_VARIANT
