// A buffer between two pages that nobody may touch.
#pragma once

#include <cstddef>

namespace zors::contract {

class Arena {
public:
    static constexpr std::size_t line = 64;

    explicit Arena(std::size_t capacity);
    ~Arena();
    Arena(const Arena&) = delete;
    Arena& operator=(const Arena&) = delete;

    // A buffer that starts offset bytes into a cache line and lies as close as that allows to the forbidden page
    // behind it, or before it; the room around it is filled with canaries.
    std::byte* place(std::size_t bytes, std::size_t offset, bool atEnd);
    bool canariesAlive() const;

private:
    // The room for canaries on either side: a cache line, or less at the forbidden pages.
    std::byte* before() const;
    std::byte* behind() const;

    std::size_t size_;
    std::byte* base_;
    std::byte* buffer_ = nullptr;
    std::size_t bytes_ = 0;
};

} // namespace zors::contract
