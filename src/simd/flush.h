// What recursive filters need that other arithmetic must not have: denormals as zeros, and a look for what is not
// finite.
#pragma once

#include "vector.h"

namespace zors::ZORS_VARIANT {

// While it lives, denormal numbers count as zeros and results that would be denormal are zeros, and arithmetic rounds
// to nearest; afterwards the caller's word is as it was. What a filter feeds back decays into denormals, which take
// some processors a hundred times as long.
class FlushedArithmetic {
public:
    FlushedArithmetic() : callers_(_mm_getcsr())
    {
        _mm_setcsr(flushed);
        hold();
    }

    ~FlushedArithmetic()
    {
        hold();
        _mm_setcsr(callers_);
    }

    FlushedArithmetic(const FlushedArithmetic&) = delete;
    FlushedArithmetic& operator=(const FlushedArithmetic&) = delete;

private:
    static constexpr unsigned flushed = 0x9fc0;

    // No access to memory is moved across.
    static void hold() { __asm__ volatile("" ::: "memory"); }

    unsigned callers_;
};

// Whether no lane is infinite or not a number.
template <class V>
[[gnu::always_inline]] inline bool isFinite(V v)
{
    using T = ElementOf<V>;
    constexpr bool isFloat = sizeof(T) == 4;
    const V zeros = v - v;
#if ZORS_VECTOR_BYTES == 64
    if constexpr (sizeof(V) == 64) {
        if constexpr (isFloat)
            return _mm512_cmp_ps_mask((__m512)zeros, (__m512)zeros, _CMP_UNORD_Q) == 0;
        else
            return _mm512_cmp_pd_mask((__m512d)zeros, (__m512d)zeros, _CMP_UNORD_Q) == 0;
    }
#endif
    const auto unordered = zeros != zeros;
#if ZORS_VECTOR_BYTES >= 32
    if constexpr (sizeof(V) == 32) {
        if constexpr (isFloat)
            return _mm256_movemask_ps((__m256)unordered) == 0;
        else
            return _mm256_movemask_pd((__m256d)unordered) == 0;
    }
#endif
    if constexpr (sizeof(V) == 16) {
        if constexpr (isFloat)
            return _mm_movemask_ps((__m128)unordered) == 0;
        else
            return _mm_movemask_pd((__m128d)unordered) == 0;
    }
}

} // namespace zors::ZORS_VARIANT
