// The table of all public functions, made from their declarations.
#pragma once

#include "support/random.h"

#include <zortypes.h>

#include <cstring>
#include <string>
#include <vector>

namespace zors::contract {

using test::Random;

// An argument of any type.
class Value {
public:
    Value() = default;
    template <class T>
    explicit Value(T value)
    {
        set(value);
    }
    template <class T>
    void set(T value)
    {
        static_assert(sizeof value <= sizeof bytes_);
        std::memcpy(bytes_, &value, sizeof value);
    }
    template <class T>
    T get() const
    {
        T value;
        std::memcpy(&value, bytes_, sizeof value);
        return value;
    }
    void* data() { return bytes_; }

private:
    alignas(16) std::byte bytes_[16] = {};
};

enum class Role { source, destination, inOut, result, length, scalar, unknown };

struct Parameter {
    std::string name;
    Role role = Role::unknown;
    std::size_t size = 0; // of an element, or of the argument itself
    void (*randomise)(void* p, std::size_t count, Random& random) = nullptr;
    bool (*setNegative)(Value& value) = nullptr; // -1, where the type has it

    bool isPointer() const
    {
        return role == Role::source || role == Role::destination || role == Role::inOut ||
               role == Role::result;
    }
};

struct Export {
    std::string name;
    std::vector<Parameter> parameters;
    ZorStatus (*invoke)(void* function, const Value* arguments) = nullptr;
    std::string unreachable; // why the checks cannot call it; empty where they can

    const Parameter* find(const std::string& parameter) const;
    bool has(Role role) const;
};

const std::vector<Export>& exports();

} // namespace zors::contract
