#include "support/random.h"

namespace zors::test {

RandomBytes::RandomBytes(std::ptrdiff_t count, std::ptrdiff_t offset, Random& random)
    : offset_(offset), lines_(static_cast<std::size_t>(3 + (offset + count) / 64))
{
    for (Line& line : lines_)
        for (std::size_t at = 0; at < sizeof line; at += 8) {
            const std::uint64_t bits = random();
            std::memcpy(line.bytes + at, &bits, sizeof bits);
        }
}

bool RandomBytes::operator==(const RandomBytes& other) const
{
    return std::memcmp(lines_.data(), other.lines_.data(), lines_.size() * sizeof(Line)) == 0;
}

std::ptrdiff_t RandomBytes::firstDifference(const RandomBytes& other) const
{
    std::ptrdiff_t at = -64 - offset_;
    while (first()[at] == other.first()[at]) ++at;
    return at;
}

} // namespace zors::test
