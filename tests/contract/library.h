// The library loaded once for every variant, side by side in one process.
#pragma once

#include "support/variant.h"

#include <string>
#include <vector>

namespace zors::contract {

class Library {
public:
    // Loads a copy of the library file of its own, with the processor's features masked for the variant.
    explicit Library(const test::Variant& variant);

    const std::string& name() const { return name_; }
    void* function(const std::string& name) const;
    // Where the function's slot points, counted from the start of the library: what tells variants apart.
    std::ptrdiff_t implementation(const std::string& name) const;

private:
    std::string name_;
    void* handle_;
};

// One for each variant that the processor runs, the baseline first; the others are reported as left out.
const std::vector<Library>& libraries();

} // namespace zors::contract
