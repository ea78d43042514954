// One call of a public function with data made from a seed.
#pragma once

#include "arena.h"
#include "exports.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace zors::contract {

class Call {
public:
    // The arguments of a call at a length: every vector's content before the call, and every scalar.
    Call(const Export& e, int length, std::uint64_t seed);

    const Export& target() const { return export_; }
    std::vector<Value> arguments;               // by parameter; pointers are not set
    std::vector<std::vector<std::byte>> before; // by parameter; empty for scalars

    // Bytes of a vector parameter at this length.
    std::size_t bytes(std::size_t parameter) const { return before[parameter].size(); }

private:
    const Export& export_;
};

// The buffers of a call. They live between guard pages and are filled anew for each placement.
class Buffers {
public:
    Buffers();
    // Fills the buffers from the call and sets its pointers; variation is the place in a cache line.
    void place(Call& call, std::size_t variation, bool atEnd);
    const std::byte* at(std::size_t parameter) const { return placed_[parameter]; }

    // What is wrong after a call that should have left everything but its destinations alone; empty if nothing.
    std::string damage(const Call& call, bool destinationsToo) const;

private:
    std::vector<std::unique_ptr<Arena>> arenas_;
    std::vector<std::byte*> placed_;
};

// Every length up to one; another takes many steps of the widest loops and several stretches of a window.
constexpr int mostLength = 257, longLength = 9001;

// How many places in a cache line there are to try for a function's vectors.
std::size_t variations(const Export& e);

} // namespace zors::contract
