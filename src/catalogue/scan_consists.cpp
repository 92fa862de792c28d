#include "catalogue/catalogue.h"
#include "catalogue/messages.h"
#include "catalogue/passed_over.h"

#include <utility>

namespace zandor {

namespace {

// What one read of a consist needs, kept from consist to consist.
struct ConsistScratch {
    SimReader reader;
    Rame rame;
    std::vector<RameItem> items;
    std::vector<int> known; // positions in StockUsage
};

void forgetConsists(Catalogue& catalogue) {
    catalogue.ConsistIndex.clear();
    catalogue.StockUsage.clear();
    catalogue.stockUseIndex.clear();
}

void indexConsists(Frame& frame, Catalogue& catalogue, std::string_view root) {
    if (root.empty())
        return;
    const std::string folder = consistsPath(root);
    for (std::string& file : listFiles(frame.files, folder, ".con")) {
        ConsistEntry& added = catalogue.ConsistIndex.emplace_back();
        added.FileName = std::move(file);
        added.FolderPath = folder;
    }
}

void copyConsistFiles(Catalogue& catalogue) {
    std::vector<std::string>& names = catalogue.here().ConsistFiles;
    names.clear();
    for (const ConsistEntry& entry : catalogue.ConsistIndex)
        names.push_back(entry.FileName);
}

void countUse(Catalogue& catalogue, const StockPair& used, int known) {
    if (known < 0) // or new since the positions were looked up, earlier in this consist
        known = catalogue.stockUseIndex.findExact(catalogue.StockUsage, used.Folder, used.FileName);
    if (known < 0)
        appendStockUse(catalogue, used.Folder, used.FileName, 1);
    else
        ++catalogue.StockUsage[static_cast<std::size_t>(known)].Count;
}

void takeItems(Catalogue& catalogue, ConsistEntry& entry, ConsistScratch& scratch) {
    entry.Items.reserve(scratch.items.size());
    for (RameItem& item : scratch.items)
        entry.Items.push_back({stockFileOf(item), std::move(item.Folder)});
    catalogue.stockUseIndex.findExact(catalogue.StockUsage, entry.Items, scratch.known);
    std::size_t next = 0;
    for (const StockPair& used : entry.Items)
        countUse(catalogue, used, scratch.known[next++]);
}

// A consist without vehicles keeps an empty name.
void readEntry(Catalogue& catalogue, ConsistEntry& entry, ConsistScratch& scratch) {
    // What the reader objects to is the verifier's business; the vehicles read until then count. The
    // durability isn't looked at.
    const std::string path = entry.FolderPath + entry.FileName;
    const ReadAnswer answer = ReadConsistFile(scratch.reader, scratch.rame, scratch.items, path);
    notePassedOver(catalogue, path, answer.outcome);
    takeItems(catalogue, entry, scratch);
    if (!entry.Items.empty())
        entry.DisplayName = scratch.rame.Name.empty() ? scratch.rame.CfgName : scratch.rame.Name;
}

} // namespace

bool ScanConsists(Frame& frame, Catalogue& catalogue) {
    forgetConsists(catalogue);
    indexConsists(frame, catalogue, frame.state.roots.RootPrimary());
    copyConsistFiles(catalogue);
    indexConsists(frame, catalogue, frame.state.roots.RootSecondary());
    ConsistScratch scratch{SimReader(frame.files), {}, {}, {}};
    const std::string shown = frame.text(message::ReadingConsists);
    const int last = static_cast<int>(catalogue.ConsistIndex.size()) - 1;
    for (int index = 0; index <= last; ++index) {
        if (!frame.progress.yield())
            return false;
        readEntry(catalogue, catalogue.ConsistIndex[index], scratch);
        frame.progress.ShowProgress(0, last, index, shown);
    }
    return true;
}

StockUse* findStockUse(Catalogue& catalogue, std::string_view folder, std::string_view file) {
    return const_cast<StockUse*>(findStockUse(std::as_const(catalogue), folder, file));
}

const StockUse* findStockUse(const Catalogue& catalogue, std::string_view folder, std::string_view file) {
    const int found = catalogue.stockUseIndex.findAnyCase(catalogue.StockUsage, folder, file);
    return found < 0 ? nullptr : &catalogue.StockUsage[static_cast<std::size_t>(found)];
}

StockUse& appendStockUse(Catalogue& catalogue, std::string_view folder, std::string_view file, int count) {
    std::vector<StockUse>& usage = catalogue.StockUsage;
    usage.push_back({std::string(folder), std::string(file), count});
    catalogue.stockUseIndex.addLast(usage);
    return usage.back();
}

} // namespace zandor
