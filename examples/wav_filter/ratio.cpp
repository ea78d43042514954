#include "ratio.h"

#include "common/error.h"
#include "numbers.h"

#include <algorithm>
#include <numeric>
#include <string_view>

namespace wav {
namespace {

// The low-pass filter has some 140 taps for each unit of the larger factor: here it takes 200 MB.
constexpr int mostFactor = 1 << 16;

Ratio inLowestTerms(int up, int down)
{
    const int divisor = std::gcd(up, down);
    const Ratio ratio{up / divisor, down / divisor};
    if (std::max(ratio.up, ratio.down) > mostFactor)
        throw example::Error("the rates have the ratio " + std::to_string(ratio.up) + "/" +
                             std::to_string(ratio.down) + " in lowest terms; no factor may be above " +
                             std::to_string(mostFactor));
    return ratio;
}

} // namespace

Ratio parseRatio(const std::string& text)
{
    const std::size_t slash = text.find('/');
    const std::string_view whole = text;
    const auto up = positiveInteger(whole.substr(0, slash));
    const auto down = slash == std::string::npos ? 1 : positiveInteger(whole.substr(slash + 1));
    if (!up || !down)
        throw example::Error("--rate " + text + ": two positive whole numbers are needed, such as 160/147");
    return inLowestTerms(*up, *down);
}

Ratio ratioTo(const std::string& hertz, int rate)
{
    const auto wanted = positiveInteger(hertz);
    if (!wanted) throw example::Error("--to-rate " + hertz + ": a positive whole number of hertz is needed");
    return inLowestTerms(*wanted, rate);
}

} // namespace wav
