// A value that the compiler does not look through, where what it would make of it is slower or wrong.
#pragma once

#include "vector.h"

#include <type_traits>

namespace zors::ZORS_VARIANT {

template <class T>
[[gnu::always_inline]] inline T opaque(T value)
{
    if constexpr (std::is_scalar_v<T>) {
        asm("" : "+r"(value));
    } else if constexpr (sizeof value <= 8) {
        std::uint64_t bits = 0;
        __builtin_memcpy(&bits, &value, sizeof value);
        asm("" : "+r"(bits));
        __builtin_memcpy(&value, &bits, sizeof value);
    } else {
#if ZORS_VECTOR_BYTES == 64
        asm("" : "+v"(value));
#else
        asm("" : "+x"(value));
#endif
    }
    return value;
}

} // namespace zors::ZORS_VARIANT
