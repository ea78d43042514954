#include "numbers.h"

#include <charconv>
#include <cmath>

namespace wav {
namespace {

template <class T>
std::optional<T> parse(std::string_view text)
{
    T value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
    return value;
}

} // namespace

std::optional<int> positiveInteger(std::string_view text)
{
    const auto value = parse<int>(text);
    return value && *value > 0 ? value : std::nullopt;
}

std::optional<double> finiteNumber(std::string_view text)
{
    if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
    const auto value = parse<double>(text);
    return value && std::isfinite(*value) ? value : std::nullopt;
}

} // namespace wav
