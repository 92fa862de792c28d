#include "catalogue/catalogue.h"
#include "catalogue/stock_files.h"

#include <algorithm>

namespace zandor {

namespace {

void showLimit(Frame& frame, std::string_view path) {
    const std::string shownPath = frame.files.nativePath(path);
    const std::string limit = std::to_string(MaxEntries);
    frame.show(frame.text(Message::TooManyFiles, {{"|1", shownPath}, {"|2", limit}}), style::Exclamation);
}

void addName(std::vector<std::string>& names, std::string&& name) {
    if (names.back().empty())
        names.back() = std::move(name);
    else
        names.push_back(std::move(name));
}

bool isFull(const std::vector<Materiel>& materiels) {
    return materiels.size() >= MaxEntries && !materiels.back().FileName.empty();
}

void addMateriel(std::vector<Materiel>& materiels, const std::string& basePath, const std::string& folder,
                 std::string_view file) {
    if (!materiels.back().FileName.empty())
        materiels.emplace_back();
    Materiel& added = materiels.back();
    added.BasePath = basePath;
    added.Folder = folder;
    added.FileName = StripQuotes(file);
}

// False: the array is full.
bool scanFolder(Frame& frame, Catalogue& catalogue, const std::string& basePath, const std::string& folder,
                std::string_view extension) {
    for (const std::string& file : listStockFiles(frame.files, basePath + folder + "\\", extension)) {
        if (isFull(catalogue.Materiels)) {
            showLimit(frame, basePath);
            return false;
        }
        addMateriel(catalogue.Materiels, basePath, folder, file);
    }
    return true;
}

// False: the user ended it.
bool scanPass(Frame& frame, Catalogue& catalogue, const std::string& basePath, const StockPass& pass) {
    const std::string shown = frame.text(pass.listing);
    const int last = static_cast<int>(catalogue.StockFolders.size()) - 1;
    for (int index = 0; index <= last; ++index) {
        const std::string& folder = catalogue.StockFolders[index];
        if (folder.empty())
            continue;
        if (!frame.progress.yield())
            return false;
        if (!scanFolder(frame, catalogue, basePath, folder, pass.extension))
            return true; // full: what fits is there
        frame.progress.ShowProgress(0, last, index, shown);
    }
    return true;
}

} // namespace

std::vector<std::string> listStockFiles(FileSystem& files, std::string_view folder,
                                        std::string_view extension) {
    std::vector<std::string> names = listFiles(files, folder, extension);
    std::erase(names, UncataloguedWagon);
    return names;
}

void ListConsistFiles(Frame& frame, Catalogue& catalogue, std::string_view root) {
    catalogue.ConsistFiles.assign(1, {});
    for (std::string& file : listFiles(frame.files, consistsPath(root), ".con"))
        addName(catalogue.ConsistFiles, std::move(file));
}

void ListStockFolders(Frame& frame, Catalogue& catalogue, std::string_view trainsetPath, bool stopAtLimit) {
    std::vector<std::string>& folders = catalogue.StockFolders;
    folders.assign(1, {});
    for (FolderEntry& entry : frame.files.listFolder(trainsetPath)) {
        if (!entry.isFolder)
            continue;
        if (stopAtLimit && folders.size() >= MaxEntries) {
            showLimit(frame, trainsetPath);
            return;
        }
        addName(folders, std::move(entry.name));
    }
}

bool ScanStockFiles(Frame& frame, Catalogue& catalogue) {
    catalogue.Materiels.assign(1, {});
    const std::string basePath = trainsetPath(frame.state.RootPrimary);
    const bool complete = std::ranges::all_of(
        StockPasses, [&](const StockPass& pass) { return scanPass(frame, catalogue, basePath, pass); });
    catalogue.StockFolders.assign(1, {});
    return complete;
}

} // namespace zandor
