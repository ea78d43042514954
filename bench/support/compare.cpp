#include "compare.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cmath>
#include <cstdio>
#include <map>

namespace zors::bench {
namespace {

struct Row {
    std::string operation;
    int length;
    std::vector<std::string> contenders;
};

std::vector<Row>& rows()
{
    static std::vector<Row> all;
    return all;
}

std::string nameOf(const Row& row, const std::string& contender)
{
    return row.operation + "/" + std::to_string(row.length) + "/" + contender;
}

// Keeps the shortest time of each benchmark's repetitions: what disturbs a run only ever adds to it.
class Shortest : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            if (run.run_type != Run::RT_Iteration || run.error_occurred) continue;
            const auto [entry, fresh] =
                times_.try_emplace(run.run_name.function_name, run.GetAdjustedRealTime());
            if (!fresh) entry->second = std::min(entry->second, run.GetAdjustedRealTime());
        }
        std::fprintf(stderr, ".");
    }

    void printTable() const
    {
        std::printf("| operation | elements | ours, ns | best peer, ns | which | ratio |\n");
        std::printf("|---|---:|---:|---:|---|---:|\n");
        for (const Row& row : rows()) {
            const double ours = timeOf(row, row.contenders.front());
            if (std::isnan(ours)) continue;
            const std::string best = bestPeer(row);
            const double least = timeOf(row, best);
            std::printf("| %s | %d | %.4g | %.4g | %s | %.2f |\n", row.operation.c_str(), row.length, ours,
                        least, best.c_str(), ours / least);
        }
    }

    // All times in ns; a dash where a peer does not take part, and where we do not.
    void printPeers() const
    {
        std::vector<std::string> columns;
        for (const Row& row : rows())
            for (const std::string& contender : row.contenders)
                if (!std::isnan(timeOf(row, contender)) &&
                    !std::count(columns.begin(), columns.end(), contender))
                    columns.push_back(contender);
        std::printf("| operation | elements | ratio | best peer |");
        for (const std::string& column : columns) std::printf(" %s |", column.c_str());
        std::printf("\n|---|---:|---:|---|");
        for (std::size_t i = 0; i < columns.size(); ++i) std::printf("---:|");
        std::printf("\n");
        for (const Row& row : rows()) {
            const std::string best = bestPeer(row);
            if (best.empty()) continue;
            const auto cell = [](const char* format, double value) {
                if (std::isnan(value))
                    std::printf(" - |");
                else
                    std::printf(format, value);
            };
            std::printf("| %s | %d |", row.operation.c_str(), row.length);
            cell(" %.2f |", timeOf(row, row.contenders.front()) / timeOf(row, best));
            std::printf(" %s |", best.c_str());
            for (const std::string& column : columns) cell(" %.4g |", timeOf(row, column));
            std::printf("\n");
        }
    }

private:
    // Not a number where it was not measured.
    double timeOf(const Row& row, const std::string& contender) const
    {
        const auto at = times_.find(nameOf(row, contender));
        return at == times_.end() ? NAN : at->second;
    }

    // Empty where none was measured.
    std::string bestPeer(const Row& row) const
    {
        std::string best;
        double least = INFINITY;
        for (std::size_t i = 1; i < row.contenders.size(); ++i) {
            const double time = timeOf(row, row.contenders[i]);
            if (!(time < least)) continue;
            least = time;
            best = row.contenders[i];
        }
        return best;
    }

    std::map<std::string, double> times_;
};

} // namespace

void compare(const std::string& operation, const std::vector<int>& lengths,
             const std::vector<Contender>& contenders)
{
    for (const int length : lengths) {
        Row row{operation, length, {}};
        for (const Contender& contender : contenders) {
            row.contenders.push_back(contender.name);
            auto body = [prepare = contender.prepare, length](benchmark::State& state) {
                const Operation operate = prepare(length);
                if (!operate) {
                    state.SkipWithError("not offered");
                    return;
                }
                for (auto _ : state) {
                    operate();
                    benchmark::ClobberMemory();
                }
            };
            benchmark::RegisterBenchmark(nameOf(row, contender.name).c_str(), body);
        }
        rows().push_back(row);
    }
}

int run(int argc, char** argv, Table table)
{
    // Short runs, many times, in random order: a disturbance hits all contenders alike.
    std::vector<std::string> arguments = {argv[0], "--benchmark_min_time=0.005", "--benchmark_repetitions=9",
                                          "--benchmark_enable_random_interleaving=true"};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    std::vector<char*> pointers;
    for (auto& a : arguments) pointers.push_back(a.data());
    int count = static_cast<int>(pointers.size());
    benchmark::Initialize(&count, pointers.data());
    if (benchmark::ReportUnrecognizedArguments(count, pointers.data())) return 1;
    Shortest reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    std::fprintf(stderr, "\n");
    if (table == Table::everyPeer)
        reporter.printPeers();
    else
        reporter.printTable();
    return 0;
}

} // namespace zors::bench
