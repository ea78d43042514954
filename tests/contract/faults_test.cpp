// Every fault that an argument can have, alone and with every other one: the first in the fixed order of the
// checks is the status, and nothing is written.
#include "call.h"
#include "exceptions.h"
#include "library.h"
#include "options.h"
#include "report.h"

#include <algorithm>
#include <climits>
#include <gtest/gtest.h>

namespace zors::contract {
namespace {

struct Fault {
    std::size_t parameter;
    int rank; // order of the checks: pointers, then lengths, then the others from left to right
    ZorStatus status;
    Value value;
    std::string text;
};

bool mayBeNull(const Export& e, const Parameter& p)
{
    const auto is = [&](const Optional& o) {
        return e.name.starts_with(o.function) && p.name == o.parameter;
    };
    return std::ranges::any_of(optionalPointers, is);
}

int leastLength(const Export& e)
{
    for (const auto& l : leastLengths)
        if (e.name.starts_with(l.function)) return l.least;
    return 1;
}

bool checksLengthFirst(const Export& e)
{
    return std::ranges::any_of(lengthFirst, [&](auto name) { return e.name.starts_with(name); });
}

std::vector<Fault> faultsOf(const Export& e)
{
    std::vector<Fault> faults;
    const int lengthRank = checksLengthFirst(e) ? -1 : 1;
    for (std::size_t i = 0; i < e.parameters.size(); ++i) {
        const Parameter& p = e.parameters[i];
        const int later = 2 + static_cast<int>(i);
        if (p.isPointer() && !mayBeNull(e, p))
            faults.push_back({i, 0, zorStsNullPointer, Value(static_cast<void*>(nullptr)), p.name + " null"});
        if (p.role == Role::length)
            for (const int bad : {leastLength(e) - 1, -1, INT_MIN})
                faults.push_back({i, lengthRank, zorStsBadSize, Value(bad), "len " + std::to_string(bad)});
        for (const auto& f : forbidden) {
            Value bad; // zero
            if (p.name == f.parameter && e.name.starts_with(f.function) &&
                (!f.negative || p.setNegative(bad)))
                faults.push_back({i, later, f.status, bad, p.name + (f.negative ? " negative" : " zero")});
        }
    }
    return faults;
}

class Checker {
public:
    explicit Checker(const Library& library) : library_(library) {}

    bool call(const Export& e, const Fault& one, const Fault& other)
    {
        Call call(e, 33, options.seed);
        buffers_.place(call, 1, true);
        call.arguments[one.parameter] = one.value;
        call.arguments[other.parameter] = other.value;
        const ZorStatus expected = other.rank < one.rank ? other.status : one.status;
        const ZorStatus status = e.invoke(library_.function(e.name), call.arguments.data());
        const std::string damage = buffers_.damage(call, true);
        if (status == expected && damage.empty()) return true;
        fail(one.text + ", " + other.text + ": status " + std::to_string(status) + " instead of " +
             std::to_string(expected) + (damage.empty() ? "" : ", ") + damage);
        return false;
    }

private:
    const Library& library_;
    Buffers buffers_;
};

TEST(Contract, Faults)
{
    Coverage coverage("Faults");
    for (const auto& e : exports()) {
        if (!coverage.covers(e)) continue;
        const auto faults = faultsOf(e);
        for (const auto& library : libraries()) {
            if (!options.wantsVariant(library.name())) continue;
            standing.variant = library.name().c_str();
            standing.length = 33;
            Checker checker(library);
            for (std::size_t i = 0; i < faults.size(); ++i) {
                coverage.count("single faults", 1);
                bool good = checker.call(e, faults[i], faults[i]);
                for (std::size_t j = i + 1; good && j < faults.size(); ++j) {
                    if (faults[i].parameter == faults[j].parameter) continue;
                    good = checker.call(e, faults[i], faults[j]);
                    coverage.count("pairs of faults", 1);
                }
            }
        }
    }
    for (const auto& o : optionalPointers)
        for (const auto& e : exports())
            if (e.name.starts_with(o.function))
                coverage.leaveOut(e, std::string(o.parameter) + " null: " + std::string(o.reason));
}

} // namespace
} // namespace zors::contract
