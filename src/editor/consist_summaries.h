// What the open-consist dialog lists: every consist of the root in use, what it is made of, whether a service
// uses it and whether all its stock is there.
#pragma once

#include "catalogue/catalogue.h"
#include "catalogue/stock_presence.h"

#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace zandor {

// "2 engines and 5 wagons" in the user's language; empty without either. The texts are kept.
class CompositionTexts {
  public:
    explicit CompositionTexts(const Frame& frame) : frame_(frame) {}
    const std::string& of(int engines, int wagons);

  private:
    std::map<std::pair<int, int>, std::string> known_;
    const Frame& frame_;
};

// Which consist files services name, whatever their case.
class ServiceConsists {
  public:
    explicit ServiceConsists(const Catalogue& catalogue);
    std::string_view markOf(std::string_view fileName) const;

  private:
    std::unordered_set<std::string> names_; // in lower case
};

// Reads one consist of the root in use after another.
class SummaryReader {
  public:
    SummaryReader(Frame& frame, const Catalogue& catalogue);
    // Appends the consist's row. A file that can't be read gives the row of an empty consist.
    void ReadConsistSummary(const std::string& fileName, std::vector<ConsistSummary>& summaries);

  private:
    void takeItem(const RameItem& item, ConsistSummary& summary);

    std::string folder_;
    SimReader reader_;
    Rame rame_;
    std::vector<RameItem> items_;
    StockPresence stock_;
    ServiceConsists services_;
    CompositionTexts compositions_;
};

// Fills ConsistSummaries from ConsistFiles. False: the user ended it, and the table is empty.
bool BuildConsistSummaries(Frame& frame, Catalogue& catalogue, Progress& progress);

// Makes the table ready to be listed: reads the consists unless that has been done since the last load, and
// words the rows in the language of now. False: the user ended it.
bool prepareSummaries(Frame& frame, Catalogue& catalogue, Progress& progress);

// The rows to list, as indexes of ConsistSummaries: the complete ones, then the others.
std::vector<int> FillConsistList(const Catalogue& catalogue);

} // namespace zandor
