// Arguments of the benchmarks: vectors aligned as zorsMalloc aligns them, and scalars.
#pragma once

#include <cstring>
#include <memory>
#include <new>

namespace zors::bench {

template <class T>
std::shared_ptr<T[]> vector(int length)
{
    constexpr std::align_val_t line{64};
    const std::size_t bytes = static_cast<std::size_t>(length) * sizeof(T);
    auto* memory = static_cast<T*>(operator new(bytes, line));
    std::memset(static_cast<void*>(memory), 1, bytes); // every page is there before the clock starts
    return {memory, [](T* p) { operator delete(p, line); }};
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
