// Takes every repetition of every benchmark and prints, when the run is over, the best times beside the plain
// read of the same files.
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>

namespace zandor::bench {

// The names under which benchmarks are registered: the operation, "/" and the number of files.
inline constexpr const char* PlainStock = "PlainReadStock";
inline constexpr const char* PlainConsists = "PlainReadConsists";
inline constexpr const char* LoadFull = "LoadCatalogueFull";
inline constexpr const char* LoadQuick = "LoadCatalogueQuick";
inline constexpr const char* LoadFullAlone = "LoadFullOneThread";
inline constexpr const char* LoadQuickAlone = "LoadQuickOneThread";
inline constexpr const char* Consists = "ScanConsists";
inline constexpr const char* PlainRoutes = "PlainReadRoutes";
inline constexpr const char* IndexFull = "IndexFullTwoThreads";
inline constexpr const char* IndexLines = "IndexLinesTwoThreads";
inline constexpr const char* IndexFullAlone = "IndexFullOneThread";
inline constexpr const char* IndexLinesAlone = "IndexLinesOneThread";
// From the disk itself.
inline constexpr const char* ColdStockRead = "ColdReadFourThreads";
inline constexpr const char* ColdFull = "ColdLoadFull";
inline constexpr const char* ColdQuick = "ColdLoadQuick";

std::string benchmarkName(const std::string& operation, int files);

class RatioTable final : public benchmark::BenchmarkReporter {
  public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

  private:
    // Seconds of the fastest repetition on the clock, and of the one that took least of the processor, all
    // threads together: the latter stays steadier while the machine has other work to do.
    struct Best {
        double clock = 0, processor = 0; // 0: wasn't run
        std::string label = {};
    };
    void printRow(const std::string& operation, const std::string& baseLine, int files) const;
    void printGrowth(const std::string& operation) const;
    Best bestOf(const std::string& operation, int files) const;

    std::map<std::string, Best> best_; // by benchmark
};

} // namespace zandor::bench
