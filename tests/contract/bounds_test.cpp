// Every function on every variant at every length up to 257 and every place in a cache line, and at a long one, with
// forbidden pages before or behind its vectors: the same bits everywhere, and not a byte beside the destinations touched.
#include "call.h"
#include "library.h"
#include "options.h"
#include "report.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace zors::contract {
namespace {

class Runner {
public:
    // The results of a call that every other one must reproduce: the baseline, buffers at their first place.
    void expect(Call& call)
    {
        buffers_.place(call, 0, true);
        status_ = invoke(call, libraries().front());
        expected_.assign(call.before.size(), {});
        for (std::size_t i = 0; i < call.before.size(); ++i)
            expected_[i].assign(buffers_.at(i), buffers_.at(i) + call.bytes(i));
    }

    bool run(Call& call, const Library& library, bool atEnd)
    {
        buffers_.place(call, static_cast<std::size_t>(standing.place), atEnd);
        const ZorStatus status = invoke(call, library);
        std::string wrong = buffers_.damage(call, false);
        if (status != status_)
            wrong = "status " + std::to_string(status) + " instead of " + std::to_string(status_);
        for (std::size_t i = 0; wrong.empty() && i < call.before.size(); ++i)
            if (!std::equal(expected_[i].begin(), expected_[i].end(), buffers_.at(i)))
                wrong = call.target().parameters[i].name + " differs from the baseline's";
        if (!wrong.empty()) fail(wrong);
        return wrong.empty();
    }

private:
    static ZorStatus invoke(const Call& call, const Library& library)
    {
        return call.target().invoke(library.function(call.target().name), call.arguments.data());
    }

    Buffers buffers_;
    ZorStatus status_ = zorStsOk;
    std::vector<std::vector<std::byte>> expected_;
};

// Stops at the first failure of a function: the others would say the same again.
bool checkLength(Runner& runner, const Export& e, Coverage& coverage)
{
    Call call(e, standing.length, options.seed + static_cast<std::uint64_t>(standing.length));
    standing.variant = "r5";
    standing.place = 0;
    runner.expect(call);
    for (const auto& library : libraries()) {
        if (!options.wantsVariant(library.name())) continue;
        standing.variant = library.name().c_str();
        const int places = standing.length > mostLength ? 1 : static_cast<int>(variations(e));
        for (standing.place = 0; standing.place < places; ++standing.place) {
            if (!options.wantsPlace(standing.place)) continue;
            if (!runner.run(call, library, true) || !runner.run(call, library, false)) return false;
            coverage.count("guarded calls", 2);
        }
    }
    return true;
}

TEST(Contract, Bounds)
{
    Coverage coverage("Bounds");
    Runner runner;
    for (const auto& e : exports()) {
        if (!coverage.covers(e)) continue;
        for (int length = 1; length <= mostLength + 1; ++length) {
            standing.length = length <= mostLength ? length : longLength;
            if (options.wantsLength(standing.length) && !checkLength(runner, e, coverage)) break;
        }
    }
}

// Each wider variant has implementations of its own, or the comparison above says nothing.
TEST(Contract, Variants)
{
    const auto& all = libraries();
    for (std::size_t i = 1; i < all.size(); ++i) {
        std::size_t redirected = 0;
        for (const auto& e : exports()) {
            bool own = true;
            for (std::size_t j = 0; j < i; ++j)
                own &= all[i].implementation(e.name) != all[j].implementation(e.name);
            redirected += own;
        }
        std::printf("Variants: %s has %zu of %zu functions of its own\n", all[i].name().c_str(), redirected,
                    exports().size());
        EXPECT_GT(redirected, exports().size() / 2) << all[i].name();
    }
}

} // namespace
} // namespace zors::contract
