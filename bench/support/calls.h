// Contenders that are called as f(arguments..., length), the arguments made for the length.
#pragma once

#include "support/compare.h"
#include "support/vectors.h"

#include <tuple>
#include <utility>

namespace zors::bench {

template <class F, class... Makers>
Contender contender(const char* name, F f, Makers... makers)
{
    return {name, [=](int length) -> Operation {
                nextOffset = 0;
                return [f, length, arguments = std::make_tuple(makers(length)...)] {
                    std::apply([&](const auto&... a) { f(a.get()..., length); }, arguments);
                };
            }};
}

inline std::vector<Contender> with(std::vector<Contender> some, Contender another)
{
    some.push_back(std::move(another));
    return some;
}

// A table of plain loops as two compilers made it.
template <class Loops>
struct Compiled {
    const Loops &gcc, &clang;

    // Our function and both loops with the same arguments.
    template <class F, class G, class... Makers>
    std::vector<Contender> contenders(F ours, G Loops::*loop, Makers... makers) const
    {
        return {contender("zors", ours, makers...), contender("g++", gcc.*loop, makers...),
                contender("clang", clang.*loop, makers...)};
    }
};

} // namespace zors::bench
