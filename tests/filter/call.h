// The library's functions behind interfaces without types: pointers to whatever they take, and factors where they
// take any.
#pragma once

#include "filter/kinds.h"

#include <tuple>

namespace zors::test {

// A pointer to whatever a function takes.
struct Untyped {
    const void* p;

    template <class T>
    operator T*() const
    {
        return static_cast<T*>(const_cast<void*>(p));
    }
};

// What a function takes by value.
struct Value {
    const void* p;

    template <class T>
    operator T() const
    {
        return *static_cast<const T*>(p);
    }
};

inline std::tuple<Untyped> passed(const void* p)
{
    return {{p}};
}

inline std::tuple<int> passed(int n)
{
    return {n};
}

inline std::tuple<int, int, int, int> passed(Rates r)
{
    return {r.up, r.upPhase, r.down, r.downPhase};
}

// Whether a function takes a factor shows in the number of its parameters.
template <bool factor, class A>
auto passedIf(A argument)
{
    if constexpr (!std::is_same_v<A, Factor>)
        return passed(argument);
    else if constexpr (factor)
        return passed(argument.value);
    else
        return std::tuple<>();
}

template <class... P>
constexpr std::size_t parameters(ZorStatus (*)(P...))
{
    return sizeof...(P);
}

template <auto function, class... A>
ZorStatus call(A... arguments)
{
    using All = decltype(std::tuple_cat(passedIf<true>(arguments)...));
    constexpr bool factor = std::tuple_size_v<All> == parameters(function);
    return std::apply(function, std::tuple_cat(passedIf<factor>(arguments)...));
}

template <auto function>
ZorStatus one(const void* src, void* dst, void* state, Factor scaleFactor)
{
    if constexpr (requires { function(Value{src}, Untyped{dst}, Untyped{state}, 0); })
        return function(Value{src}, Untyped{dst}, Untyped{state}, scaleFactor.value);
    else
        return function(Value{src}, Untyped{dst}, Untyped{state});
}

} // namespace zors::test
