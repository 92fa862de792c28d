#include "verify/recheck.h"

#include "editor/files_changed.h"
#include "verify/result_lists.h"

#include <algorithm>

namespace zandor {

namespace {

struct StockName {
    std::string folder, file;
};

// The last two components of the path.
StockName stockNameOf(std::string_view path) {
    const std::string file = GetFileName(path);
    std::string_view above = path.substr(0, path.size() - file.size());
    while (above.ends_with('\\') || above.ends_with('/'))
        above.remove_suffix(1);
    return {GetFileName(above), file};
}

std::vector<InvalidFile>::iterator findRecord(VerifResults& results, std::string_view path) {
    return std::ranges::find_if(results.InvalidFiles, [path](const InvalidFile& file) {
        return !file.File.empty() && equalIgnoringCase(invalidPath(file), path);
    });
}

void forgetMandatory(VerifResults& results, const StockName& name) {
    std::erase_if(results.mandatory, [&name](const MandatoryFault& fault) {
        return equalIgnoringCase(fault.folder, name.folder) && equalIgnoringCase(fault.file, name.file);
    });
}

void checkStock(VerifWork& work, Catalogue& catalogue, const StockName& name, std::string_view path) {
    forgetMandatory(work.results, name);
    // The check looks there alone.
    if (!equalIgnoringCase(work.places.stock + name.folder + "\\" + name.file, path))
        return;
    CheckStockFile(work, name.folder, name.file);
    rereadStock(work.frame, catalogue, name.folder, name.file);
}

// A file that has vanished has no faults.
void check(VerifWork& work, Catalogue& catalogue, const StockName& name, std::string_view path) {
    work.onDisk.forget();
    work.descriptions.clear();
    if (!isThere(work.frame.files, path))
        forgetMandatory(work.results, name);
    else if (endsWithIgnoringCase(path, ".con")) {
        CheckConsistFile(work, name.file, Quiet::No, path);
        rereadConsist(work.frame, catalogue, path);
    } else
        checkStock(work, catalogue, name, path);
    work.queues = {}; // what the file names isn't looked into
    work.examined.clear();
    compactInvalidFiles(work.results.InvalidFiles);
}

} // namespace

std::optional<int> RecheckAfterEdit(VerifWork& work, Catalogue& catalogue, std::string_view path) {
    std::vector<InvalidFile>& files = work.results.InvalidFiles;
    compactInvalidFiles(files);
    StockName name = stockNameOf(path);
    std::size_t position = files.size();
    if (const auto record = findRecord(work.results, path); record != files.end()) {
        position = static_cast<std::size_t>(record - files.begin());
        if (!record->Folder.empty())
            name.folder = record->Folder;
        name.file = record->File;
        files.erase(record);
    }
    const std::size_t others = files.size();
    check(work, catalogue, name, path);
    if (files.size() == others)
        return std::nullopt;
    if (position < others) // where it was before
        std::rotate(files.begin() + static_cast<std::ptrdiff_t>(position), files.end() - 1, files.end());
    return static_cast<int>(std::min(position, others));
}

bool rereadStock(Frame& frame, Catalogue& catalogue, std::string_view folder, std::string_view file) {
    RootCatalogue& root = catalogue.here();
    const int index = root.finder.find(root.Materiels, folder, file);
    if (index < 0)
        return false;
    Materiel& materiel = root.Materiels[static_cast<std::size_t>(index)];
    SimReader reader(frame.files);
    // The user's edit stays as it is.
    ReadStockFile(reader, materiel.BasePath + materiel.Folder + "\\" + materiel.FileName, materiel,
                  NameRepair::Never);
    return true;
}

EditorRun editAndRecheck(VerifWork& work, Catalogue& catalogue, std::string_view path,
                         const std::string& opened, const ErrorLine* line, EditorWait& wait) {
    const std::string file(path), text = line ? line->Value : std::string();
    const int number = line ? line->Line : 0;
    EditorRun run = EditFileExternal(work.frame, opened, true, text, number, wait);
    if (run.changed)
        RecheckAfterEdit(work, catalogue, file);
    return run;
}

} // namespace zandor
