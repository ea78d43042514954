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
