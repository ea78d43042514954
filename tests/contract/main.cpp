#include "options.h"

#include <csignal>
#include <cstdio>
#include <cstring>
#include <gtest/gtest.h>
#include <string_view>
#include <unistd.h>

namespace zors::contract {

Options options;
Standing standing;

std::string repeatLine()
{
    const std::string at = standing.place >= 0 ? " --place=" + std::to_string(standing.place) : "";
    const std::string variant = *standing.variant ? std::string(" --variant=") + standing.variant : "";
    return std::string("repeat: contract_tests --gtest_filter=Contract.") + standing.check +
           " --function=" + standing.function + variant + " --length=" + std::to_string(standing.length) +
           at + " --seed=" + std::to_string(options.seed);
}

namespace {

// A kernel that leaves its vectors ends here: say which, then die as the processor wanted.
void onFault(int signal)
{
    const std::string line = "FAILED: a byte outside a vector was touched\n" + repeatLine() + "\n";
    if (write(STDERR_FILENO, line.data(), line.size()) < 0) std::perror("write");
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

bool take(std::string_view argument, std::string_view name, std::string& value)
{
    if (!argument.starts_with(name)) return false;
    value = argument.substr(name.size());
    return true;
}

bool parse(std::string_view argument)
{
    std::string number;
    if (take(argument, "--function=", options.function) || take(argument, "--variant=", options.variant))
        return true;
    if (take(argument, "--length=", number)) return options.length = std::stoi(number), true;
    if (take(argument, "--place=", number)) return options.place = std::stoi(number), true;
    if (take(argument, "--seed=", number)) return options.seed = std::stoull(number), true;
    return false;
}

} // namespace
} // namespace zors::contract

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    for (int i = 1; i < argc; ++i) {
        if (zors::contract::parse(argv[i])) continue;
        std::fprintf(stderr, "unknown argument: %s\n", argv[i]);
        return 2;
    }
    std::signal(SIGSEGV, zors::contract::onFault);
    std::signal(SIGBUS, zors::contract::onFault);
    return RUN_ALL_TESTS();
}
