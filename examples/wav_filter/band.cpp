#include "band.h"

#include "common/error.h"
#include "common/picture.h"
#include "numbers.h"

#include <algorithm>

namespace wav {

using example::Error, example::number;

std::string Band::name() const
{
    const char* const names[] = {"low-pass", "high-pass", "band-pass", "band-stop"};
    const std::string kindName = names[static_cast<int>(kind)];
    if (edges.size() == 1) return kindName + " " + number(edges[0]) + " Hz";
    return kindName + " " + number(edges[0]) + " to " + number(edges[1]) + " Hz";
}

Band parseBand(Band::Kind kind, const std::string& option, const std::string& text, int rate)
{
    const bool two = kind == Band::Kind::bandPass || kind == Band::Kind::bandStop;
    const std::string_view whole = text;
    const std::size_t colon = two ? whole.find(':') : std::string_view::npos;
    std::vector<double> edges;
    if (const auto first = finiteNumber(whole.substr(0, colon))) edges.push_back(*first);
    if (colon != std::string_view::npos)
        if (const auto second = finiteNumber(whole.substr(colon + 1))) edges.push_back(*second);

    const std::string given = "--" + option + " " + text + ": ";
    if (edges.size() != (two ? 2U : 1U))
        throw Error(given + (two ? "two frequencies in hertz are needed, such as 300:3400"
                                 : "a frequency in hertz is needed"));
    const bool inside = std::ranges::all_of(edges, [=](double f) { return f > 0 && 2 * f < rate; });
    if (!inside)
        throw Error(given + "frequencies lie between 0 and half the sampling rate, " + number(rate / 2.0) +
                    " Hz");
    if (two && edges[0] >= edges[1]) throw Error(given + "the lower frequency comes first");
    return {kind, edges};
}

} // namespace wav
