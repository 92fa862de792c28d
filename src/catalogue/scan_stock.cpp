#include "catalogue/catalogue.h"
#include "catalogue/messages.h"
#include "catalogue/stock_files.h"
#include "platform/letter_case.h"
#include "platform/read_ahead.h"

namespace zandor {

namespace {

void showLimit(Frame& frame, std::string_view path) {
    const std::string shownPath = frame.files.nativePath(path);
    const std::string limit = std::to_string(MaxEntries);
    frame.show(frame.text(message::TooManyFiles, {{"|1", shownPath}, {"|2", limit}}), style::Exclamation);
}

void addMateriel(std::vector<Materiel>& materiels, const std::string& basePath, const std::string& folder,
                 std::string_view file) {
    Materiel& added = materiels.emplace_back();
    added.BasePath = basePath;
    added.Folder = folder;
    added.FileName = StripQuotes(file);
}

// Lists folders on one thread.
class FolderThread final : public AheadReader {
  public:
    FolderThread(FileSystem& door, const std::string& basePath, const std::vector<std::string>& folders,
                 std::vector<StockNames>& names)
        : door_(door), basePath_(basePath), folders_(folders), names_(names) {}

    void read(std::size_t folder) override {
        path_.assign(basePath_).append(folders_[folder]).append(1, '\\');
        names_[folder] = listStockFiles(door_, path_);
    }

  private:
    FileSystem& door_;
    const std::string& basePath_;
    const std::vector<std::string>& folders_;
    std::vector<StockNames>& names_;
    std::string path_;
};

// One look at each folder serves both passes: the first one takes the folders as they are listed.
class StockScan final : public AheadWork {
  public:
    StockScan(Frame& frame, std::vector<Materiel>& materiels, const std::vector<std::string>& folders)
        : frame_(frame), materiels_(materiels), folders_(folders),
          basePath_(trainsetPath(frame.state.roots.RootPrimary())), names_(folders.size()) {}

    // False: the user ended it.
    bool run(int threads) {
        beginPass(0);
        if (!readAhead(frame_.files, folders_.size(), threads, *this) && !full_)
            return false;
        beginPass(1);
        for (std::size_t folder = 0; folder < folders_.size() && !full_; ++folder) {
            if (!goOn())
                return false;
            takeListed(folder);
        }
        return true;
    }

    std::unique_ptr<AheadReader> makeReader(FileSystem& door) override {
        return std::make_unique<FolderThread>(door, basePath_, folders_, names_);
    }
    bool goOn() override { return !full_ && frame_.progress.yield(); }
    void turnOf(std::size_t) override {}
    void take(std::size_t folder) override {
        listed_ = folder + 1;
        add(folder);
    }

  private:
    void beginPass(std::size_t pass) {
        pass_ = pass;
        shown_ = frame_.text(StockPasses[pass].listing);
        full_ = false;
    }
    void takeListed(std::size_t folder) {
        if (folder >= listed_) // engines had filled the array before it was listed
            FolderThread(frame_.files, basePath_, folders_, names_).read(folder);
        add(folder);
    }
    void add(std::size_t folder) {
        for (const std::string& file : names_[folder][pass_]) {
            full_ = materiels_.size() >= MaxEntries;
            if (full_)
                return showLimit(frame_, basePath_);
            addMateriel(materiels_, basePath_, folders_[folder], file);
        }
        frame_.progress.ShowProgress(0, static_cast<int>(folders_.size()) - 1, static_cast<int>(folder),
                                     shown_);
    }

    Frame& frame_;
    std::vector<Materiel>& materiels_;
    const std::vector<std::string>& folders_;
    const std::string basePath_;
    std::vector<StockNames> names_; // by folder
    std::size_t listed_ = 0;        // folders
    std::size_t pass_ = 0;
    std::string shown_;
    bool full_ = false; // what fits is there
};

} // namespace

std::vector<std::string> listStockFiles(FileSystem& files, std::string_view folder,
                                        std::string_view extension) {
    std::vector<std::string> names = listFiles(files, folder, extension);
    std::erase(names, UncataloguedWagon);
    return names;
}

StockNames listStockFiles(FileSystem& files, std::string_view folder) {
    StockNames names;
    for (FolderEntry& entry : files.listFolder(folder))
        for (std::size_t pass = 0; pass < names.size(); ++pass)
            if (!entry.isFolder && endsWithIgnoringCase(entry.name, StockPasses[pass].extension) &&
                entry.name != UncataloguedWagon) {
                names[pass].push_back(std::move(entry.name));
                break;
            }
    return names;
}

void ListConsistFiles(Frame& frame, Catalogue& catalogue, std::string_view root) {
    catalogue.here().ConsistFiles = listFiles(frame.files, consistsPath(root), ".con");
}

std::vector<std::string> ListStockFolders(Frame& frame, std::string_view trainsetPath, bool stopAtLimit) {
    std::vector<std::string> folders;
    for (FolderEntry& entry : frame.files.listFolder(trainsetPath)) {
        if (!entry.isFolder)
            continue;
        if (stopAtLimit && folders.size() >= MaxEntries) {
            showLimit(frame, trainsetPath);
            break;
        }
        folders.push_back(std::move(entry.name));
    }
    return folders;
}

bool ScanStockFiles(Frame& frame, Catalogue& catalogue, const std::vector<std::string>& folders,
                    LoadOptions options) {
    catalogue.here().Materiels.clear();
    catalogue.here().finder.forget();
    return StockScan(frame, catalogue.here().Materiels, folders).run(options.threads);
}

} // namespace zandor
