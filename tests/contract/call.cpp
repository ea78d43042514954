#include "call.h"
#include "exceptions.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace zors::contract {
namespace {

using test::below;

constexpr std::size_t mostParameters = 12;
constexpr std::size_t mostBytes = 16 * (longLength + 64);

bool nameHas(const Export& e, std::string_view code)
{
    return e.name.find(code) != std::string::npos;
}

// A number in [0, most), in single or in double precision.
void setBelow(double most, void* to, std::size_t size, Random& random)
{
    const double value = most * below(1 << 20, random) / (1 << 20);
    const auto single = static_cast<Zor32f>(value);
    std::memcpy(to, size == sizeof value ? static_cast<const void*>(&value) : &single, size);
}

// Scalars with a meaning get values that exercise it; all others any value of their type.
void setScalar(const Export& e, const Parameter& p, int length, Value& value, Random& random)
{
    constexpr int factors[] = {0, 1, 2, 3, 7, 15, 16, 31, 40, -1, -2, -8, -31, -40, 2000, -2000};
    if (p.name == "scaleFactor")
        value.set(factors[below(16, random)]);
    else if (p.name == "rndMode")
        value.set(below(nameHas(e, "16f") ? 2 : 3, random));
    else if (p.name == "hint")
        value.set(below(3, random));
    else if (p.name == "alpha") {
        const double alpha =
            (below(2001, random) - 1000) * 0.074 / length; // a beta that Kaiser's windows take
        p.size == sizeof alpha ? value.set(alpha) : value.set(static_cast<Zor32f>(alpha));
    } else if (p.name == "alphaQ15")
        value.set(below(0x8000, random) - 0x4000);
    else if (p.name == "srcBitOffset" || p.name == "dstBitOffset")
        value.set(below(18, random));
    else if (p.name == "magn") {
        // A magnitude is not negative: the sign bit of its last byte is cleared.
        p.randomise(value.data(), 1, random);
        auto* last = static_cast<std::byte*>(value.data()) + p.size - 1;
        *last &= std::byte{0x7f};
        if (nameHas(e, "Tone_")) *last |= std::byte{1}; // nor zero
    } else if (p.name == "rFreq")
        setBelow(nameHas(e, "Tone_") ? 0.5 : 1, value.data(), p.size, random);
    else if (p.name == "rFreqQ15")
        value.set(static_cast<Zor16s>(below(0x8000, random)));
    else
        p.randomise(value.data(), 1, random);
}

// Any values, but where elements have a meaning.
void setVector(const Parameter& p, std::vector<std::byte>& bytes, Random& random)
{
    p.randomise(bytes.data(), bytes.size() / p.size, random);
    if (p.name == "pPhase") setBelow(6.28, bytes.data(), p.size, random);
    for (std::size_t at = 0; p.name == "pFreq" && at < bytes.size(); at += p.size)
        setBelow(1, &bytes[at], p.size, random);
    for (std::size_t at = p.size; p.name == "pFreqQ15" && at <= bytes.size(); at += p.size)
        bytes[at - 1] &= std::byte{0x7f};
    if (p.name != "pSrcBits") return;
    for (std::size_t at = 0; at < bytes.size(); at += p.size) {
        const Zor32s count = below(9, random); // a byte for each word at the most
        std::memcpy(&bytes[at], &count, sizeof count);
    }
}

std::size_t vectorBytes(const Call& call, const Parameter& p, int length)
{
    const Export& e = call.target();
    const auto n = static_cast<std::size_t>(length);
    for (const auto& two : twoElements)
        if (e.name.starts_with(two.function) && p.name.starts_with(two.parameter)) return 2 * p.size;
    if (p.role == Role::result) return p.size;
    if (nameHas(e, "_1u")) {
        const bool source = p.role == Role::source;
        const Parameter* offset = e.find(source ? "srcBitOffset" : "dstBitOffset");
        const auto index = static_cast<std::size_t>(offset - e.parameters.data());
        return (static_cast<std::size_t>(call.arguments[index].get<int>() % 8) + n + 7) / 8;
    }
    for (const auto name : ccsSources)
        if (e.name.starts_with(name) && p.role == Role::source) return (n / 2 + 1) * 2 * p.size;
    if (p.size == 1 && (nameHas(e, "24u") || nameHas(e, "24s"))) return 3 * n;
    return n * p.size;
}

} // namespace

Call::Call(const Export& e, int length, std::uint64_t seed)
    : arguments(e.parameters.size()), before(e.parameters.size()), export_(e)
{
    Random random(seed);
    for (std::size_t i = 0; i < e.parameters.size(); ++i) {
        const Parameter& p = e.parameters[i];
        if (p.role == Role::length)
            arguments[i].set(length);
        else if (p.role == Role::scalar)
            setScalar(e, p, length, arguments[i], random);
    }
    for (std::size_t i = 0; i < e.parameters.size(); ++i) {
        const Parameter& p = e.parameters[i];
        if (!p.isPointer()) continue;
        before[i].resize(vectorBytes(*this, p, length));
        setVector(p, before[i], random);
    }
}

Buffers::Buffers() : placed_(mostParameters)
{
    for (std::size_t i = 0; i < mostParameters; ++i) arenas_.push_back(std::make_unique<Arena>(mostBytes));
}

void Buffers::place(Call& call, std::size_t variation, bool atEnd)
{
    const auto& parameters = call.target().parameters;
    for (std::size_t i = 0; i < parameters.size(); ++i) {
        if (!parameters[i].isPointer()) continue;
        // An odd step takes every vector through all its places, each at a pace of its own.
        const std::size_t offset = (variation * (2 * i + 1) + i) * parameters[i].size % Arena::line;
        placed_[i] = arenas_[i]->place(call.bytes(i), offset, atEnd);
        std::memcpy(placed_[i], call.before[i].data(), call.bytes(i));
        call.arguments[i].set(placed_[i]);
    }
}

std::string Buffers::damage(const Call& call, bool destinationsToo) const
{
    const auto& parameters = call.target().parameters;
    for (std::size_t i = 0; i < parameters.size(); ++i) {
        const Parameter& p = parameters[i];
        if (!p.isPointer()) continue;
        if (!arenas_[i]->canariesAlive()) return "bytes around " + p.name + " were written";
        if ((p.role == Role::source || destinationsToo) &&
            std::memcmp(placed_[i], call.before[i].data(), call.bytes(i)) != 0)
            return p.name + " was changed";
    }
    return {};
}

std::size_t variations(const Export& e)
{
    std::size_t smallest = Arena::line;
    for (const auto& p : e.parameters)
        if (p.isPointer() && p.role != Role::result) smallest = std::min(smallest, p.size);
    return Arena::line / smallest;
}

} // namespace zors::contract
