// Arguments of the benchmarks: vectors, and scalars. Where vectors begin in a page decides which loads wait for which
// stores: the first one of every contender begins a page, and each one after it a little further on in its own.
#pragma once

#include <cstring>
#include <memory>
#include <new>

namespace zors::bench {

// How far into its page the next vector begins.
inline std::size_t nextOffset = 0;

template <class T>
std::shared_ptr<T[]> vector(int length)
{
    constexpr std::align_val_t page{4096};
    const std::size_t bytes = static_cast<std::size_t>(length) * sizeof(T), offset = nextOffset;
    auto* memory = static_cast<char*>(operator new(offset + bytes, page));
    std::memset(memory, 1, offset + bytes); // every page is there before the clock starts
    nextOffset = (offset + 17 * 64) % 4096;
    return {reinterpret_cast<T*>(memory + offset), [memory](T*) { operator delete(memory, page); }};
}

// Small numbers, whose sums and products are neither rounded away nor out of range.
template <class T>
std::shared_ptr<T[]> numbers(int length)
{
    auto v = vector<T>(length);
    for (int i = 0; i < length; ++i) {
        const int number = 1 + i % 16;
        if constexpr (requires(T t) { t.re; })
            v[i] = {static_cast<decltype(T::re)>(number), static_cast<decltype(T::re)>(3)};
        else
            v[i] = static_cast<T>(number);
    }
    return v;
}

template <class T>
struct Scalar {
    T value;
    T get() const { return value; }
};

template <class T>
Scalar<T> scalar(int)
{
    return {};
}

} // namespace zors::bench
