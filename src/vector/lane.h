// Real and complex elements as lanes: a complex vector is a real one of twice the length, its parts alternating.
#pragma once

#include <cstddef>
#include <zortypes.h>

namespace zors::ZORS_VARIANT {

// The lane type of an element type, and the number of lanes to an element.
template <class T>
struct LaneOf {
    using type = T;
    static constexpr int each = 1;
};
template <class T>
requires requires(T t)
{
    t.re;
}
struct LaneOf<T> {
    using type = decltype(T::re);
    static constexpr int each = 2;
};

template <class T>
using Lane = typename LaneOf<T>::type;

template <class T>
inline std::ptrdiff_t laneCount(std::ptrdiff_t len)
{
    return len * LaneOf<T>::each;
}

template <class T>
inline const Lane<T>* asLanes(const T* p)
{
    return reinterpret_cast<const Lane<T>*>(p);
}

template <class T>
inline Lane<T>* asLanes(T* p)
{
    return reinterpret_cast<Lane<T>*>(p);
}

} // namespace zors::ZORS_VARIANT
