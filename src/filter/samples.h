// Vectors of samples and numbers, copied and moved.
#pragma once

#include <cstddef>
#include <cstring>

namespace zors::ZORS_VARIANT {

template <class E>
void copySamples(const E* from, E* to, std::ptrdiff_t len)
{
    std::memcpy(to, from, static_cast<std::size_t>(len) * sizeof(E));
}

template <class E>
void moveSamples(const E* from, E* to, std::ptrdiff_t len)
{
    std::memmove(to, from, static_cast<std::size_t>(len) * sizeof(E));
}

template <class E>
void clearSamples(E* p, std::ptrdiff_t len)
{
    std::memset(static_cast<void*>(p), 0, static_cast<std::size_t>(len) * sizeof(E));
}

} // namespace zors::ZORS_VARIANT
