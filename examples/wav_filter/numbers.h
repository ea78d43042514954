// Numbers in arguments and files: the whole text or nothing, the same in every locale.
#pragma once

#include <optional>
#include <string_view>

namespace wav {

std::optional<int> positiveInteger(std::string_view text);
std::optional<double> finiteNumber(std::string_view text);

} // namespace wav
