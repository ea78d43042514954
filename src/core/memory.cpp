#include <zorcore.h>

#include "export.h"

#include <cstdint>
#include <cstdlib>

namespace {

// One cache line, and the widest vector register.
constexpr std::size_t line = 64;

} // namespace

ZORCORE_EXPORT void* zorMalloc(int size)
{
    if (size < 1) return nullptr;
    const std::size_t whole = (static_cast<std::size_t>(size) + line - 1) / line * line;
    return std::aligned_alloc(line, whole);
}

ZORCORE_EXPORT void zorFree(void* pMemory)
{
    std::free(pMemory);
}

ZORCORE_EXPORT void* zorAlignPtr(void* pMemory, int alignment)
{
    const auto mask = static_cast<std::uintptr_t>(alignment) - 1;
    const auto address = reinterpret_cast<std::uintptr_t>(pMemory);
    return static_cast<char*>(pMemory) + (((address + mask) & ~mask) - address);
}
