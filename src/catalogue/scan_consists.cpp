#include "catalogue/catalogue.h"
#include "catalogue/messages.h"
#include "catalogue/passed_over.h"
#include "platform/read_ahead.h"

#include <algorithm>
#include <utility>

namespace zandor {

namespace {

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

// What was found in a consist whose turn may not have come yet.
struct ConsistAhead {
    std::vector<StockPair> items;
    std::string displayName;
    ReadOutcome outcome = ReadOutcome::Read;
};

// Reads consists. Keeps its storage from file to file.
class ConsistFilesReader {
  public:
    explicit ConsistFilesReader(FileSystem& files) : reader_(files) {}

    // What the reader objects to is the verifier's business; the vehicles read until then count. The
    // durability isn't looked at.
    void read(const ConsistEntry& entry, ConsistAhead& ahead) {
        path_.assign(entry.FolderPath).append(entry.FileName);
        ahead.outcome = ReadConsistFile(reader_, rame_, items_, path_).outcome;
        ahead.items.clear();
        ahead.items.reserve(items_.size());
        for (RameItem& item : items_)
            ahead.items.push_back({stockFileOf(item), std::move(item.Folder)});
        ahead.displayName = rame_.Name.empty() ? rame_.CfgName : rame_.Name;
    }

  private:
    SimReader reader_;
    Rame rame_;
    std::vector<RameItem> items_;
    std::string path_;
};

class ConsistThread final : public AheadReader {
  public:
    ConsistThread(FileSystem& door, const std::vector<ConsistEntry>& entries, std::vector<ConsistAhead>& ring)
        : files_(door), entries_(entries), ring_(ring) {}

    void read(std::size_t file) override { files_.read(entries_[file], ring_[file % ring_.size()]); }

  private:
    ConsistFilesReader files_;
    const std::vector<ConsistEntry>& entries_; // of which it looks at the path
    std::vector<ConsistAhead>& ring_;
};

class ConsistScan final : public AheadWork {
  public:
    ConsistScan(Frame& frame, Catalogue& catalogue)
        : frame_(frame), catalogue_(catalogue), ring_(std::min(catalogue.ConsistIndex.size(), MostAhead)),
          shown_(frame.text(message::ReadingConsists)) {}

    std::unique_ptr<AheadReader> makeReader(FileSystem& door) override {
        return std::make_unique<ConsistThread>(door, catalogue_.ConsistIndex, ring_);
    }
    bool goOn() override { return frame_.progress.yield(); }
    void turnOf(std::size_t) override {}
    void take(std::size_t file) override {
        ConsistEntry& entry = catalogue_.ConsistIndex[file];
        ConsistAhead& ahead = ring_[file % ring_.size()];
        if (ahead.outcome == ReadOutcome::NoMemory) // there may be some when fewer are read
            ConsistFilesReader(frame_.files).read(entry, ahead);
        notePassedOver(catalogue_, entry.FolderPath + entry.FileName, ahead.outcome);
        takeItems(entry, ahead);
        frame_.progress.ShowProgress(0, static_cast<int>(catalogue_.ConsistIndex.size()) - 1,
                                     static_cast<int>(file), shown_);
    }

  private:
    // A consist without vehicles keeps an empty name.
    void takeItems(ConsistEntry& entry, ConsistAhead& ahead) {
        entry.Items = std::move(ahead.items);
        if (!entry.Items.empty())
            entry.DisplayName = std::move(ahead.displayName);
        catalogue_.stockUseIndex.findExact(catalogue_.StockUsage, entry.Items, known_);
        std::size_t next = 0;
        for (const StockPair& used : entry.Items)
            countUse(catalogue_, used, known_[next++]);
    }

    Frame& frame_;
    Catalogue& catalogue_;
    std::vector<ConsistAhead> ring_;
    std::vector<int> known_; // positions in StockUsage; storage used again
    std::string shown_;
};

} // namespace

bool ScanConsists(Frame& frame, Catalogue& catalogue, LoadOptions options) {
    forgetConsists(catalogue);
    indexConsists(frame, catalogue, frame.state.roots.RootPrimary());
    copyConsistFiles(catalogue);
    indexConsists(frame, catalogue, frame.state.roots.RootSecondary());
    ConsistScan scan(frame, catalogue);
    return readAhead(frame.files, catalogue.ConsistIndex.size(), options.threads, scan);
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
