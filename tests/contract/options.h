// What a run covers: everything, or the one call that a failure named.
#pragma once

#include <cstdint>
#include <string>

namespace zors::contract {

struct Options {
    std::string function;
    std::string variant;
    int length = 0;
    int place = -1;
    std::uint64_t seed = 20260101;

    bool wants(const std::string& name) const { return function.empty() || function == name; }
    bool wantsVariant(const std::string& name) const { return variant.empty() || variant == name; }
    bool wantsLength(int n) const { return length == 0 || length == n; }
    bool wantsPlace(int n) const { return place < 0 || place == n; }
};

extern Options options;

// Where the run stands: printed with every failure, also with one that ends the process.
struct Standing {
    const char* check = "";
    const char* function = "";
    const char* variant = "";
    int length = 0;
    int place = 0;
};

extern Standing standing;

// The line that repeats the call at hand.
std::string repeatLine();

} // namespace zors::contract
