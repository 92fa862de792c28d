// zandor-bench: the load of the catalogue and the scan of the consists, measured beside a plain read of the
// same files in the same run: by default fifteen repetitions in random order. Takes Google Benchmark's flags.
#include "bench_session.h"
#include "bench_sizes.h"
#include "bench_trees.h"
#include "ratio_table.h"

#include <optional>
#include <vector>

namespace zandor::bench {

namespace {

void measurePlainRead(benchmark::State& state, const std::vector<std::string>& paths) {
    for (auto _ : state)
        benchmark::DoNotOptimize(readPlainly(paths));
}

// The operation alone is timed, not what surrounds a run of the program.
void measureLoad(benchmark::State& state, const Tree& tree, bool full) {
    std::optional<Session> run;
    for (auto _ : state) {
        state.PauseTiming();
        Session& session = run.emplace(tree.root);
        session.state.Optimize = full;
        state.ResumeTiming();
        if (!LoadCatalogue(session.frame, session.catalogue, ReadOnlyLoad) ||
            session.catalogue.here().Materiels.size() != tree.stockFiles.size())
            state.SkipWithError("the load isn't complete");
    }
}

void measureConsists(benchmark::State& state, const Tree& tree) {
    std::optional<Session> run;
    for (auto _ : state) {
        state.PauseTiming();
        Session& session = run.emplace(tree.root);
        state.ResumeTiming();
        if (!ScanConsists(session.frame, session.catalogue) || session.catalogue.StockUsage.size() < 2)
            state.SkipWithError("the scan found nothing");
    }
}

template <typename Measure> void add(const char* operation, int files, Measure measure) {
    benchmark::RegisterBenchmark(benchmarkName(operation, files).c_str(), measure)
        ->Iterations(1)
        ->UseRealTime();
}

void addAll(Trees& trees) {
    for (const int count : StockCounts) {
        add(PlainStock, count, [&trees, count](benchmark::State& state) {
            measurePlainRead(state, trees.get(count, 0).stockFiles);
        });
        add(LoadFull, count,
            [&trees, count](benchmark::State& state) { measureLoad(state, trees.get(count, 0), true); });
        add(LoadQuick, count,
            [&trees, count](benchmark::State& state) { measureLoad(state, trees.get(count, 0), false); });
    }
    add(PlainConsists, ConsistCount, [&trees](benchmark::State& state) {
        measurePlainRead(state, trees.get(ConsistStock, ConsistCount).consistFiles);
    });
    add(Consists, ConsistCount,
        [&trees](benchmark::State& state) { measureConsists(state, trees.get(ConsistStock, ConsistCount)); });
}

int run(int argc, char** argv) {
    char repetitions[] = "--benchmark_repetitions=15";
    char interleaving[] = "--benchmark_enable_random_interleaving=true";
    std::vector<char*> arguments{argv[0], repetitions, interleaving};
    arguments.insert(arguments.end(), argv + 1, argv + argc); // given ones come last and win
    int count = static_cast<int>(arguments.size());
    Trees trees;
    addAll(trees);
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 2;
    RatioTable table;
    const std::size_t ran = benchmark::RunSpecifiedBenchmarks(&table);
    benchmark::Shutdown();
    return ran > 0 ? 0 : 1;
}

} // namespace

} // namespace zandor::bench

int main(int argc, char** argv) {
    return zandor::bench::run(argc, argv);
}
