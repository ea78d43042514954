#include "arena.h"

#include <algorithm>
#include <new>
#include <sys/mman.h>

namespace zors::contract {
namespace {

constexpr std::size_t page = 4096;
constexpr std::byte canary{0xa5};

} // namespace

Arena::Arena(std::size_t capacity) : size_((capacity + 2 * line + page - 1) / page * page)
{
    void* all = mmap(nullptr, size_ + 2 * page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (all == MAP_FAILED) throw std::bad_alloc();
    base_ = static_cast<std::byte*>(all) + page;
    if (mprotect(base_, size_, PROT_READ | PROT_WRITE) != 0) throw std::bad_alloc();
}

Arena::~Arena()
{
    munmap(base_ - page, size_ + 2 * page);
}

std::byte* Arena::before() const
{
    return std::max(base_, buffer_ - line);
}

std::byte* Arena::behind() const
{
    return std::min(buffer_ + bytes_ + line, base_ + size_);
}

std::byte* Arena::place(std::size_t bytes, std::size_t offset, bool atEnd)
{
    const std::size_t slack = (line - (bytes + offset) % line) % line;
    buffer_ = atEnd ? base_ + size_ - bytes - slack : base_ + offset;
    bytes_ = bytes;
    std::fill(before(), buffer_, canary);
    std::fill(buffer_ + bytes_, behind(), canary);
    return buffer_;
}

bool Arena::canariesAlive() const
{
    const auto alive = [](std::byte b) { return b == canary; };
    return std::all_of(before(), buffer_, alive) && std::all_of(buffer_ + bytes_, behind(), alive);
}

} // namespace zors::contract
