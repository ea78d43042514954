// The floating-point control words that a caller may have set.
#pragma once

#include <gtest/gtest.h>
#include <xmmintrin.h>
#include <zortypes.h>

namespace zors::test {

inline constexpr unsigned standardControl = 0x1f80;

inline constexpr unsigned roundings[] = {0x1f80, 0x3f80, 0x5f80, 0x7f80};

// All four rounding directions; denormals flushed to zero; every exception a signal.
inline constexpr unsigned controls[] = {0x1f80, 0x3f80, 0x5f80, 0x7f80, 0x9fc0, 0x0000};

// Calls function under a control word and wants it unchanged, but for the exceptions noted in it.
template <class Function>
void underControl(unsigned control, Function function)
{
    constexpr unsigned noted = 0x3f;
    _mm_setcsr(control);
    function();
    const unsigned after = _mm_getcsr();
    _mm_setcsr(standardControl);
    ASSERT_EQ(after & ~noted, control);
}

// The function, to be called with any arguments under a control word.
template <class Function>
auto under(unsigned control, Function function)
{
    return [=](auto... arguments) {
        ZorStatus status = zorStsOk;
        underControl(control, [&] { status = function(arguments...); });
        return status;
    };
}

} // namespace zors::test
