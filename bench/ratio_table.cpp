#include "ratio_table.h"

#include "bench_sizes.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

namespace zandor::bench {

std::string benchmarkName(const std::string& operation, int files) {
    return operation + "/" + std::to_string(files);
}

void RatioTable::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs) {
        if (run.run_type == Run::RT_Aggregate)
            continue;
        if (run.error_occurred) {
            std::fprintf(stderr, "%s: %s\n", run.benchmark_name().c_str(), run.error_message.c_str());
            continue;
        }
        const auto iterations = static_cast<double>(run.iterations);
        const Best one{run.real_accumulated_time / iterations, run.cpu_accumulated_time / iterations,
                       run.report_label};
        const auto [place, isNew] = best_.try_emplace(run.run_name.function_name, one);
        place->second.clock = std::min(place->second.clock, one.clock);
        place->second.processor = std::min(place->second.processor, one.processor);
    }
}

void RatioTable::Finalize() {
    std::printf("%-20s %7s %11s %12s %14s %13s %14s\n", "operation", "files", "best ms", "us per file",
                "to plain read", "CPU us / file", "to plain read");
    for (const char* operation : {PlainStock, LoadFull, LoadQuick, LoadFullAlone, LoadQuickAlone})
        for (const int files : StockCounts)
            printRow(operation, PlainStock, files);
    for (const char* operation : {PlainConsists, Consists})
        printRow(operation, PlainConsists, ConsistCount);
    for (const char* operation : {PlainRoutes, IndexFull, IndexLines, IndexFullAlone, IndexLinesAlone})
        printRow(operation, PlainRoutes, RouteFiles);
    for (const char* operation : {ColdStockRead, ColdFull, ColdQuick})
        printRow(operation, ColdStockRead, ColdStock);
    for (const char* operation : {PlainStock, LoadFull, LoadQuick})
        printGrowth(operation);
}

RatioTable::Best RatioTable::bestOf(const std::string& operation, int files) const {
    const auto found = best_.find(benchmarkName(operation, files));
    return found == best_.end() ? Best{} : found->second;
}

void RatioTable::printRow(const std::string& operation, const std::string& baseLine, int files) const {
    const Best best = bestOf(operation, files);
    const Best base = bestOf(baseLine, files);
    if (best.clock > 0 && base.clock > 0)
        std::printf("%-20s %7d %11.1f %12.2f %14.2f %13.2f %14.2f %s\n", operation.c_str(), files,
                    best.clock * 1e3, best.clock * 1e6 / files, best.clock / base.clock,
                    best.processor * 1e6 / files, best.processor / base.processor, best.label.c_str());
}

void RatioTable::printGrowth(const std::string& operation) const {
    const int fewest = StockCounts[0], most = StockCounts[std::size(StockCounts) - 1];
    const Best few = bestOf(operation, fewest), many = bestOf(operation, most);
    const double files = static_cast<double>(most) / fewest;
    if (few.clock > 0 && many.clock > 0)
        std::printf("%s: time per file at %d / at %d: %.2f (processor %.2f)\n", operation.c_str(), most,
                    fewest, many.clock / few.clock / files, many.processor / few.processor / files);
}

} // namespace zandor::bench
