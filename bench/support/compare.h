// Benchmarks of one operation by several contenders, side by side in one run.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace zors::bench {

// Runs an operation once over a vector of a length; made for each length, with its own buffers. Empty where a
// contender does not offer it.
using Operation = std::function<void()>;

struct Contender {
    std::string name;
    std::function<Operation(int length)> prepare;
};

// Registers an operation at all lengths. The first contender is ours, the others are its peers.
void compare(const std::string& operation, const std::vector<int>& lengths,
             const std::vector<Contender>& contenders);

// What a row of the table says of the peers: the best one's time, or a column for each.
enum class Table { bestPeer, everyPeer };

// Runs everything that was registered and prints a table with the ratio of our time to the best peer's.
int run(int argc, char** argv, Table table = Table::bestPeer);

} // namespace zors::bench
