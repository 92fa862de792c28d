#include "ratio_table.h"

#include "bench_sizes.h"

#include <algorithm>
#include <cstdio>

namespace zandor::bench {

std::string benchmarkName(const std::string& operation, int files) {
    return operation + "/" + std::to_string(files);
}

void RatioTable::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs) {
        if (run.run_type == Run::RT_Aggregate || run.error_occurred)
            continue;
        const double seconds = run.real_accumulated_time / static_cast<double>(run.iterations);
        const auto [place, isNew] = best_.try_emplace(run.run_name.function_name, seconds);
        place->second = std::min(place->second, seconds);
    }
}

void RatioTable::Finalize() {
    std::printf("%-20s %7s %11s %12s %14s\n", "operation", "files", "best ms", "us per file",
                "to plain read");
    for (const char* operation : {PlainStock, LoadFull, LoadQuick})
        for (const int files : StockCounts)
            printRow(operation, PlainStock, files);
    for (const char* operation : {PlainConsists, Consists})
        printRow(operation, PlainConsists, ConsistCount);
    for (const char* operation : {PlainStock, LoadFull, LoadQuick})
        printGrowth(operation);
}

double RatioTable::secondsOf(const std::string& operation, int files) const {
    const auto found = best_.find(benchmarkName(operation, files));
    return found == best_.end() ? 0 : found->second;
}

void RatioTable::printRow(const std::string& operation, const std::string& baseLine, int files) const {
    const double seconds = secondsOf(operation, files);
    const double base = secondsOf(baseLine, files);
    if (seconds > 0 && base > 0)
        std::printf("%-20s %7d %11.1f %12.2f %14.2f\n", operation.c_str(), files, seconds * 1e3,
                    seconds * 1e6 / files, seconds / base);
}

void RatioTable::printGrowth(const std::string& operation) const {
    const int fewest = StockCounts[0], most = StockCounts[std::size(StockCounts) - 1];
    const double few = secondsOf(operation, fewest) / fewest;
    const double many = secondsOf(operation, most) / most;
    if (few > 0 && many > 0)
        std::printf("%s: time per file at %d / at %d: %.2f\n", operation.c_str(), most, fewest, many / few);
}

} // namespace zandor::bench
