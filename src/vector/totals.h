// Real and complex results of reductions. A complex vector is reduced as the vector of its parts, which alternate:
// in a pattern with an even number of lanes they never meet before the tree ends, in two lanes.
#pragma once

#include "lane.h"

#include <array>

namespace zors::ZORS_VARIANT {

// One number for a real vector, two for a complex one.
template <class T, class Number>
using Totals = std::array<Number, LaneOf<T>::each>;

template <class To, class From, std::size_t N>
void addTo(std::array<To, N>& totals, const std::array<From, N>& more)
{
    for (std::size_t i = 0; i < N; ++i) totals[i] += more[i];
}

// The result whose parts a closing formula makes of the totals.
template <class R, class Number, class Closing>
R closed(const Totals<R, Number>& totals, Closing closing)
{
    if constexpr (LaneOf<R>::each == 2)
        return {closing(totals[0]), closing(totals[1])};
    else
        return closing(totals[0]);
}

} // namespace zors::ZORS_VARIANT
