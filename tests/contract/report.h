// What a check covered and what it could not reach, printed at its end.
#pragma once

#include "exports.h"

#include <cstdint>
#include <map>
#include <string>

namespace zors::contract {

class Coverage {
public:
    // The check is named as its test is.
    explicit Coverage(const char* check);
    ~Coverage();
    Coverage(const Coverage&) = delete;
    Coverage& operator=(const Coverage&) = delete;

    // Whether the check covers the function. Where it cannot, the function is listed with the reason.
    bool covers(const Export& e);
    void leaveOut(const Export& e, const std::string& reason);
    void count(const char* unit, std::uint64_t n) { counts_[unit] += n; }

private:
    const char* check_;
    std::size_t covered_ = 0;
    std::map<std::string, std::uint64_t> counts_;
    std::map<std::string, std::string> leftOut_; // reasons by function
};

// A test failure that names the call at hand and how to repeat it.
void fail(const std::string& what);

} // namespace zors::contract
