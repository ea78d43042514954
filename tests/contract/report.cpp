#include "report.h"

#include "library.h"
#include "options.h"

#include <cstdio>
#include <gtest/gtest.h>

namespace zors::contract {

Coverage::Coverage(const char* check) : check_(check)
{
    standing = {};
    standing.check = check;
}

Coverage::~Coverage()
{
    std::printf("%s: %zu of %zu functions", check_, covered_, exports().size());
    for (const auto& [unit, n] : counts_)
        std::printf(", %llu %s", static_cast<unsigned long long>(n), unit.c_str());
    std::printf(", variants:");
    for (const auto& library : libraries())
        if (options.wantsVariant(library.name())) std::printf(" %s", library.name().c_str());
    std::printf("\n");
    for (const auto& [function, reason] : leftOut_)
        std::printf("  not reached: %s: %s\n", function.c_str(), reason.c_str());
}

bool Coverage::covers(const Export& e)
{
    if (!options.wants(e.name)) return false;
    if (!e.unreachable.empty()) {
        leaveOut(e, e.unreachable);
        return false;
    }
    standing.function = e.name.c_str();
    ++covered_;
    return true;
}

void Coverage::leaveOut(const Export& e, const std::string& reason)
{
    if (options.wants(e.name)) leftOut_[e.name] = reason;
}

void fail(const std::string& what)
{
    ADD_FAILURE() << standing.function << (*standing.variant ? " on " : "") << standing.variant << ", length "
                  << standing.length << ", place " << standing.place << ": " << what << "\n"
                  << repeatLine();
}

} // namespace zors::contract
