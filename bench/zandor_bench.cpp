// zandor-bench: the load of the catalogue and the scan of the consists, measured beside a plain read of the
// same files in the same run: by default fifteen repetitions in random order. Takes Google Benchmark's flags.
#include "bench_session.h"
#include "bench_sizes.h"
#include "bench_trees.h"
#include "catalogue/routes.h"
#include "ratio_table.h"

#include <optional>
#include <vector>

namespace zandor::bench {

namespace {

void measurePlainRead(benchmark::State& state, const std::vector<std::string>& paths) {
    for (auto _ : state)
        benchmark::DoNotOptimize(readPlainly(paths));
}

// How a load is measured.
struct LoadCase {
    bool full = true;
    int threads = 0; // 0: as many as the machine runs
    bool cold = false;
};

void makeCold(benchmark::State& state, const Tree& tree) {
    if (!emptyCache(tree.stockFiles))
        state.SetLabel("(folders in the cache)");
}

// The operation alone is timed, not what surrounds a run of the program.
void measureLoad(benchmark::State& state, const Tree& tree, LoadCase load) {
    LoadOptions options = ReadOnlyLoad;
    options.threads = load.threads;
    std::optional<Session> run;
    for (auto _ : state) {
        state.PauseTiming();
        Session& session = run.emplace(tree.root);
        session.state.Optimize = load.full;
        if (load.cold)
            makeCold(state, tree);
        state.ResumeTiming();
        if (!LoadCatalogue(session.frame, session.catalogue, options) ||
            session.catalogue.here().Materiels.size() != tree.stockFiles.size())
            state.SkipWithError("the load isn't complete");
    }
}

void measureColdRead(benchmark::State& state, const Tree& tree) {
    for (auto _ : state) {
        state.PauseTiming();
        makeCold(state, tree);
        state.ResumeTiming();
        benchmark::DoNotOptimize(readPlainly(tree.stockFiles, 4));
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

// Not with the load: the index alone, as the commands on routes read it.
void measureIndex(benchmark::State& state, const Tree& tree, LoadCase load) {
    LoadOptions options = ReadOnlyLoad;
    options.threads = load.threads;
    std::optional<Session> run;
    for (auto _ : state) {
        state.PauseTiming();
        Session& session = run.emplace(tree.root);
        session.state.Optimize = load.full;
        state.ResumeTiming();
        if (!ReadRoutes(session.frame, session.catalogue, options) ||
            !ReadServicesActivites(session.frame, session.catalogue, options) ||
            session.catalogue.here().Routes.back().Activites.back().Vehicules.size() != 30)
            state.SkipWithError("the index isn't complete");
    }
}

template <typename Measure> void add(const char* operation, int files, Measure measure) {
    benchmark::RegisterBenchmark(benchmarkName(operation, files).c_str(), measure)
        ->Iterations(1)
        ->MeasureProcessCPUTime()
        ->UseRealTime();
}

void addLoad(Trees& trees, const char* operation, int files, LoadCase load) {
    add(operation, files,
        [&trees, files, load](benchmark::State& state) { measureLoad(state, trees.get(files, 0), load); });
}

void addStock(Trees& trees) {
    for (const int count : StockCounts) {
        add(PlainStock, count, [&trees, count](benchmark::State& state) {
            measurePlainRead(state, trees.get(count, 0).stockFiles);
        });
        addLoad(trees, LoadFull, count, {.full = true});
        addLoad(trees, LoadQuick, count, {.full = false});
        addLoad(trees, LoadFullAlone, count, {.full = true, .threads = 1});
        addLoad(trees, LoadQuickAlone, count, {.full = false, .threads = 1});
    }
}

void addConsists(Trees& trees) {
    add(PlainConsists, ConsistCount, [&trees](benchmark::State& state) {
        measurePlainRead(state, trees.get(ConsistStock, ConsistCount).consistFiles);
    });
    add(Consists, ConsistCount,
        [&trees](benchmark::State& state) { measureConsists(state, trees.get(ConsistStock, ConsistCount)); });
}

void addIndex(Trees& trees) {
    const auto tree = [&trees]() -> const Tree& { return trees.get(ConsistStock, ConsistCount); };
    add(PlainRoutes, RouteFiles,
        [tree](benchmark::State& state) { measurePlainRead(state, tree().routeFiles); });
    for (const auto& [operation, load] : {std::pair{IndexFull, LoadCase{.full = true, .threads = 2}},
                                          std::pair{IndexLines, LoadCase{.full = false, .threads = 2}},
                                          std::pair{IndexFullAlone, LoadCase{.full = true, .threads = 1}},
                                          std::pair{IndexLinesAlone, LoadCase{.full = false, .threads = 1}}})
        add(operation, RouteFiles,
            [tree, load = load](benchmark::State& state) { measureIndex(state, tree(), load); });
}

void addCold(Trees& trees) {
    add(ColdStockRead, ColdStock,
        [&trees](benchmark::State& state) { measureColdRead(state, trees.get(ColdStock, 0)); });
    addLoad(trees, ColdFull, ColdStock, {.full = true, .cold = true});
    addLoad(trees, ColdQuick, ColdStock, {.full = false, .cold = true});
}

int run(int argc, char** argv) {
    char repetitions[] = "--benchmark_repetitions=15";
    char interleaving[] = "--benchmark_enable_random_interleaving=true";
    std::vector<char*> arguments{argv[0], repetitions, interleaving};
    arguments.insert(arguments.end(), argv + 1, argv + argc); // given ones come last and win
    int count = static_cast<int>(arguments.size());
    Trees trees;
    addStock(trees);
    addConsists(trees);
    addIndex(trees);
    addCold(trees);
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
