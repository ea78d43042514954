// The tags of records: what a record is told by.
#pragma once

#include <zortypes.h>

namespace zors::ZORS_VARIANT {

// Two letters, of which the second is always the same, and two digits, the first letter in the highest byte.
constexpr Zor32u filterTag(char letter, int number)
{
    const auto digit = [](int d) { return static_cast<Zor32u>('0' + d); };
    return static_cast<Zor32u>(letter) << 24 | Zor32u{'I'} << 16 | digit(number / 10) << 8 |
           digit(number % 10);
}

} // namespace zors::ZORS_VARIANT
