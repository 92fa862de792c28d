#include "catalogue/catalogue.h"
#include "catalogue/messages.h"
#include "catalogue/stock_files.h"

#include <algorithm>

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

// False: the array is full.
bool scanFolder(Frame& frame, std::vector<Materiel>& materiels, const std::string& basePath,
                const std::string& folder, std::string_view extension) {
    for (const std::string& file : listStockFiles(frame.files, basePath + folder + "\\", extension)) {
        if (materiels.size() >= MaxEntries) {
            showLimit(frame, basePath);
            return false;
        }
        addMateriel(materiels, basePath, folder, file);
    }
    return true;
}

// False: the user ended it.
bool scanPass(Frame& frame, std::vector<Materiel>& materiels, const std::vector<std::string>& folders,
              const std::string& basePath, const StockPass& pass) {
    const std::string shown = frame.text(pass.listing);
    const int last = static_cast<int>(folders.size()) - 1;
    int index = 0;
    for (const std::string& folder : folders) {
        if (!frame.progress.yield())
            return false;
        if (!scanFolder(frame, materiels, basePath, folder, pass.extension))
            return true; // full: what fits is there
        frame.progress.ShowProgress(0, last, index++, shown);
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

bool ScanStockFiles(Frame& frame, Catalogue& catalogue, const std::vector<std::string>& folders) {
    std::vector<Materiel>& materiels = catalogue.here().Materiels;
    materiels.clear();
    catalogue.here().finder.forget();
    const std::string basePath = trainsetPath(frame.state.roots.RootPrimary());
    return std::ranges::all_of(StockPasses, [&](const StockPass& pass) {
        return scanPass(frame, materiels, folders, basePath, pass);
    });
}

} // namespace zandor
