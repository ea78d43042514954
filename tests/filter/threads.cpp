// Records share nothing: many threads filter at the same time, each with its own, and all get the same bits.
#include "filter/signal.h"

#include <atomic>
#include <gtest/gtest.h>
#include <thread>

namespace zors::test {
namespace {

// All the ways of filtering, with a record of the thread's.
std::vector<Vector> filterAll(const Signal& s, const Signal& multi, Rates rates)
{
    std::vector<Vector> results;
    if (s.kind.single) {
        const Record record(s);
        results.push_back(run(record, s, {20, 600, 700}));
        results.push_back(run(record, s, {5000}, {true}));
        results.push_back(runSingly(record, s, 50));
        results.push_back(record.delayLine(s.tapsLen));
    }
    const Record record(multi, rates);
    results.push_back(run(record, multi, {3, 100}, {}, rates));
    results.push_back(run(record, multi, {100}, {true}, rates));
    return results;
}

TEST(Threads, HaveARecordEach)
{
    constexpr int threads = 8;
    constexpr Rates rates{3, 1, 2, 1};
    Random random;
    for (const Kind& k : multiRateKinds())
        for (const int tapsLen : {9, 64, 300}) {
            const Signal s = randomSignal(k, tapsLen, 5000, random);
            const Signal multi = randomSignal(k, tapsLen, 300, random, rates);
            const std::vector<Vector> expected = filterAll(s, multi, rates);
            std::atomic<int> waiting = threads, same = 0;
            std::vector<std::thread> running;
            for (int i = 0; i < threads; ++i)
                running.emplace_back([&] {
                    --waiting;
                    while (waiting > 0) std::this_thread::yield();
                    same += filterAll(s, multi, rates) == expected;
                });
            for (auto& thread : running) thread.join();
            EXPECT_EQ(same, threads) << k.name << ", taps " << tapsLen;
        }
}

} // namespace
} // namespace zors::test
