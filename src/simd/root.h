// Square roots, rounded to nearest as IEEE 754 has them.
#pragma once

#include "vector.h"

namespace zors::ZORS_VARIANT {

inline Vec<double> squareRoot(Vec<double> v)
{
#if ZORS_VECTOR_BYTES == 64
    return (Vec<double>)_mm512_sqrt_pd((__m512d)v);
#elif ZORS_VECTOR_BYTES == 32
    return (Vec<double>)_mm256_sqrt_pd((__m256d)v);
#else
    return (Vec<double>)_mm_sqrt_pd((__m128d)v);
#endif
}

} // namespace zors::ZORS_VARIANT
