// A program's own zorMalloc and zorFree, which come before those of the core library: they keep a list of the calls,
// and do what a test tells them. For one source of a program.
#pragma once

#include <zorcore.h>

#include <cstdlib>
#include <optional>
#include <set>
#include <vector>

namespace zors::test {

struct Allocator {
    int untilFailure = -1;
    std::optional<void*> reply; // instead of memory
    std::vector<int> sizesAsked;
    std::vector<void*> pointersFreed;
    std::set<void*> live;
    bool strayRelease = false;
};

inline Allocator allocator;

} // namespace zors::test

void* zorMalloc(int length)
{
    auto& a = zors::test::allocator;
    a.sizesAsked.push_back(length);
    if (a.reply) return *a.reply;
    if (a.untilFailure >= 0 && a.untilFailure-- == 0) return nullptr;
    return *a.live.insert(std::aligned_alloc(64, (static_cast<std::size_t>(length) + 63) / 64 * 64)).first;
}

void zorFree(void* pMemory)
{
    auto& a = zors::test::allocator;
    a.pointersFreed.push_back(pMemory);
    if (a.live.erase(pMemory))
        std::free(pMemory);
    else if (pMemory)
        a.strayRelease = true;
}
