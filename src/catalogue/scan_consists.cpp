#include "catalogue/catalogue.h"
#include "catalogue/name_key.h"

#include <utility>

namespace zandor {

namespace {

// What one read of a consist needs, kept from consist to consist.
struct ConsistScratch {
    SimReader reader;
    Rame rame;
    std::vector<RameItem> items;
    std::string key;
};

void forgetConsists(Catalogue& catalogue) {
    catalogue.ConsistFiles.assign(1, {});
    catalogue.ConsistIndex.assign(1, {});
    catalogue.StockUsage.assign(1, {});
    catalogue.usageByExactName.clear();
    catalogue.usageByFoldedName.clear();
}

void indexConsists(Frame& frame, Catalogue& catalogue, std::string_view root) {
    if (root.empty())
        return;
    const std::string folder = consistsPath(root);
    for (std::string& file : listFiles(frame.files, folder, ".con")) {
        if (!catalogue.ConsistIndex.back().FileName.empty())
            catalogue.ConsistIndex.emplace_back();
        ConsistEntry& added = catalogue.ConsistIndex.back();
        added.FileName = std::move(file);
        added.FolderPath = folder;
    }
}

void copyConsistFiles(Catalogue& catalogue) {
    catalogue.ConsistFiles.clear();
    for (const ConsistEntry& entry : catalogue.ConsistIndex)
        catalogue.ConsistFiles.push_back(entry.FileName);
}

void countUse(Catalogue& catalogue, std::string_view folder, std::string_view file, std::string& key) {
    makeNameKey(folder, file, key);
    const auto known = catalogue.usageByExactName.find(std::string_view(key));
    if (known == catalogue.usageByExactName.end())
        appendStockUse(catalogue, folder, file, 1);
    else
        ++catalogue.StockUsage[known->second].Count;
}

void takeItems(Catalogue& catalogue, ConsistEntry& entry, const std::vector<RameItem>& items,
               std::string& key) {
    entry.Items.reserve(items.size());
    for (const RameItem& item : items) {
        if (item.Name.empty())
            continue;
        const StockPair& added = entry.Items.emplace_back(StockPair{stockFileOf(item), item.Folder});
        countUse(catalogue, added.Folder, added.FileName, key);
    }
}

// A consist without vehicles keeps an empty name and one free slot.
void readEntry(Catalogue& catalogue, ConsistEntry& entry, ConsistScratch& scratch) {
    // What the reader objects to is the verifier's business; the vehicles read until then count. The
    // durability isn't looked at.
    ReadConsistFile(scratch.reader, scratch.rame, scratch.items, entry.FolderPath + entry.FileName);
    takeItems(catalogue, entry, scratch.items, scratch.key);
    if (entry.Items.empty())
        entry.Items.emplace_back();
    else
        entry.DisplayName = scratch.rame.Name.empty() ? scratch.rame.CfgName : scratch.rame.Name;
}

template <typename AnyCatalogue>
auto findUse(AnyCatalogue& catalogue, std::string_view folder, std::string_view file) {
    const auto found = catalogue.usageByFoldedName.find(foldedNameKey(folder, file));
    return found == catalogue.usageByFoldedName.end() ? nullptr : &catalogue.StockUsage[found->second];
}

// The first record of a name stays in front of its chain; the order of the others doesn't matter.
void linkSameName(Catalogue& catalogue, int index) {
    StockUse& added = catalogue.StockUsage[index];
    const auto [first, isNew] =
        catalogue.usageByFoldedName.try_emplace(foldedNameKey(added.Folder, added.FileName), index);
    if (isNew)
        return;
    StockUse& head = catalogue.StockUsage[first->second];
    added.NextSameName = std::exchange(head.NextSameName, index);
}

} // namespace

bool ScanConsists(Frame& frame, Catalogue& catalogue) {
    forgetConsists(catalogue);
    indexConsists(frame, catalogue, frame.state.RootPrimary);
    copyConsistFiles(catalogue);
    indexConsists(frame, catalogue, frame.state.RootSecondary);
    ConsistScratch scratch{SimReader(frame.files, frame.language), {}, {}, {}};
    const std::string shown = frame.text(Message::ReadingConsists);
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
    return findUse(catalogue, folder, file);
}

const StockUse* findStockUse(const Catalogue& catalogue, std::string_view folder, std::string_view file) {
    return findUse(catalogue, folder, file);
}

StockUse& appendStockUse(Catalogue& catalogue, std::string_view folder, std::string_view file, int count) {
    std::vector<StockUse>& usage = catalogue.StockUsage;
    if (usage.empty() || !usage.back().FileName.empty())
        usage.emplace_back();
    usage.back() = StockUse{std::string(folder), std::string(file), count};
    const int index = static_cast<int>(usage.size()) - 1;
    std::string key;
    makeNameKey(folder, file, key);
    catalogue.usageByExactName.try_emplace(std::move(key), index);
    linkSameName(catalogue, index);
    return usage.back();
}

} // namespace zandor
