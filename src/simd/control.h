// The caller's floating-point control word.
#pragma once

#include "vector.h"

namespace zors::ZORS_VARIANT {

// While it lives, arithmetic rounds to nearest, ties to even, keeps denormals and raises no signal, whatever the
// caller has set; afterwards the caller's word is as it was. Only what is loaded and stored in between is sure
// to be computed in between.
class StandardArithmetic {
public:
    StandardArithmetic() : callers_(_mm_getcsr())
    {
        if (isForeign()) _mm_setcsr(standard);
        hold();
    }

    ~StandardArithmetic()
    {
        hold();
        if (isForeign()) _mm_setcsr(callers_);
    }

    StandardArithmetic(const StandardArithmetic&) = delete;
    StandardArithmetic& operator=(const StandardArithmetic&) = delete;

private:
    static constexpr unsigned standard = 0x1f80, raised = 0x3f;

    bool isForeign() const { return (callers_ & ~raised) != standard; }
    // No access to memory is moved across.
    static void hold() { __asm__ volatile("" ::: "memory"); }

    unsigned callers_;
};

} // namespace zors::ZORS_VARIANT
