// An in-place form gives what its out-of-place form gives.
#include "call.h"
#include "library.h"
#include "options.h"
#include "report.h"

#include <cstring>
#include <gtest/gtest.h>

namespace zors::contract {
namespace {

const Export* outOfPlace(const Export& e)
{
    std::string name = e.name;
    if (name.ends_with("_ISfs"))
        name.replace(name.size() - 5, 5, "_Sfs");
    else if (name.ends_with("_I"))
        name.resize(name.size() - 2);
    else
        return nullptr;
    for (const auto& other : exports())
        if (other.name == name) return &other;
    return nullptr;
}

// The content and the scalars of the in-place call for the other form, whose last source is the vector that the
// in-place form overwrites.
void giveSameInput(const Call& from, Call& to)
{
    const auto& source = from.target().parameters;
    const auto& target = to.target().parameters;
    std::vector<std::size_t> vectors, scalars;
    std::size_t overwritten = 0;
    for (std::size_t i = 0; i < source.size(); ++i) {
        if (source[i].role == Role::source) vectors.push_back(i);
        if (source[i].role == Role::inOut) overwritten = i;
        if (!source[i].isPointer()) scalars.push_back(i);
    }
    vectors.push_back(overwritten);
    std::size_t vector = 0, scalar = 0;
    for (std::size_t i = 0; i < target.size(); ++i) {
        if (target[i].role == Role::source) to.before[i] = from.before[vectors.at(vector++)];
        if (!target[i].isPointer()) to.arguments[i] = from.arguments[scalars.at(scalar++)];
    }
}

std::size_t parameterOf(const Export& e, Role role)
{
    std::size_t i = 0;
    while (e.parameters[i].role != role) ++i;
    return i;
}

TEST(Contract, InPlace)
{
    Coverage coverage("InPlace");
    Buffers one, other;
    for (const auto& e : exports()) {
        if (!e.has(Role::inOut)) continue;
        const Export* partner = outOfPlace(e);
        if (!partner) {
            coverage.leaveOut(e, "has no out-of-place form");
            continue;
        }
        if (!coverage.covers(e)) continue;
        const std::size_t written = parameterOf(e, Role::inOut),
                          result = parameterOf(*partner, Role::destination);
        for (const auto& library : libraries()) {
            if (!options.wantsVariant(library.name())) continue;
            standing.variant = library.name().c_str();
            standing.place = -1;
            bool same = true;
            for (int length = 1; same && length <= mostLength; ++length) {
                if (!options.wantsLength(length)) continue;
                standing.length = length;
                Call call(e, length, options.seed + static_cast<std::uint64_t>(length));
                Call reference(*partner, length, options.seed);
                giveSameInput(call, reference);
                one.place(call, 0, true);
                other.place(reference, 0, true);
                const ZorStatus a = e.invoke(library.function(e.name), call.arguments.data());
                const ZorStatus b =
                    partner->invoke(library.function(partner->name), reference.arguments.data());
                same = a == b && (a < zorStsOk ||
                                  std::memcmp(one.at(written), other.at(result), call.bytes(written)) == 0);
                if (!same) fail("differs from " + partner->name);
                coverage.count("pairs of calls", 1);
            }
        }
    }
}

} // namespace
} // namespace zors::contract
