// Vectors in the library's aligned memory.
#pragma once

#include "common/error.h"

#include <zors.h>

#include <limits>
#include <memory>
#include <span>

namespace ecg {

using example::Error, example::require;

template <class T>
inline constexpr T* (*allocate)(int len) = nullptr;
template <>
inline constexpr auto allocate<Zor8u> = zorsMalloc_8u;
template <>
inline constexpr auto allocate<Zor16s> = zorsMalloc_16s;
template <>
inline constexpr auto allocate<Zor32f> = zorsMalloc_32f;

template <class T>
class Vector {
public:
    explicit Vector(int len) : len_(len)
    {
        if (len <= maximum) memory_.reset(allocate<T>(len));
        if (!memory_) throw Error("no memory for " + std::to_string(len) + " samples");
    }

    T* data() { return memory_.get(); }
    const T* data() const { return memory_.get(); }
    int len() const { return len_; }

    std::span<const T> part(int begin, int len) const
    {
        return {data() + begin, static_cast<std::size_t>(len)};
    }
    std::span<const T> all() const { return part(0, len_); }

private:
    struct Free {
        void operator()(T* memory) const { zorsFree(memory); }
    };

    // The library counts the bytes of an allocation in 32 bits.
    static constexpr int maximum = std::numeric_limits<int>::max() / static_cast<int>(sizeof(T));

    std::unique_ptr<T[], Free> memory_;
    int len_;
};

} // namespace ecg
