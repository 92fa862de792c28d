#include "editor/consist_io.h"
#include "editor/editor_parts.h"

#include <unordered_set>

#include <algorithm>

namespace zandor {

namespace {

constexpr int HighestCount = 32767; // 16 bits

using PairSet = std::unordered_set<std::string, TextHash, std::equal_to<>>;

std::string foldedPair(const StockPair& pair) {
    std::string key = lowerCase(pair.Folder);
    key += '\\';
    key += lowerCase(pair.FileName);
    return key;
}

PairSet foldedSet(const std::vector<StockPair>& pairs) {
    PairSet set;
    for (const StockPair& pair : pairs)
        set.insert(foldedPair(pair));
    return set;
}

void raiseCount(Catalogue& catalogue, const StockPair& pair) {
    StockUse* use = findStockUse(catalogue, pair.Folder, pair.FileName);
    if (!use)
        appendStockUse(catalogue, pair.Folder, pair.FileName, 1);
    else if (use->Count < HighestCount)
        ++use->Count;
}

void lowerCount(Catalogue& catalogue, const StockPair& pair) {
    StockUse* use = findStockUse(catalogue, pair.Folder, pair.FileName);
    if (use && use->Count > 0)
        --use->Count;
}

ConsistEntry& entryOf(Editor& editor, const std::string& fileName, const std::string& folder) {
    std::vector<ConsistEntry>& index = editor.catalogue.ConsistIndex;
    for (ConsistEntry& entry : index)
        if (equalIgnoringCase(entry.FileName, fileName) &&
            sameFolder(editor.frame.files, entry.FolderPath, folder))
            return entry;
    return index.emplace_back();
}

} // namespace

void countDifference(Catalogue& catalogue, const std::vector<StockPair>& before,
                     const std::vector<StockPair>& now) {
    const PairSet oldSet = foldedSet(before), newSet = foldedSet(now);
    for (const StockPair& pair : before)
        if (!newSet.contains(foldedPair(pair)))
            lowerCount(catalogue, pair);
    for (const StockPair& pair : now)
        if (!oldSet.contains(foldedPair(pair)))
            raiseCount(catalogue, pair);
}

bool sameFolder(FileSystem& files, std::string_view a, std::string_view b) {
    const auto plain = [](std::string_view path) {
        std::string text(path);
        std::replace(text.begin(), text.end(), '/', '\\');
        return lowerCase(AddBackslash(text));
    };
    return plain(a) == plain(b) || plain(files.nativePath(a)) == plain(files.nativePath(b));
}

void UpdateStockUse(Editor& editor, bool hadFile, const std::string& fullName, const std::string& fileName,
                    const std::string& folder) {
    if (!editor.frame.state.PrintGreen)
        return;
    ConsistDocument& document = editor.document;
    // Without an old list every pair counts as new.
    countDifference(editor.catalogue, hadFile ? document.RameStockOld : std::vector<StockPair>(),
                    document.RameStockNew);

    ConsistEntry& entry = entryOf(editor, fileName, folder);
    entry.FileName = fileName;
    entry.DisplayName = fullName;
    entry.FolderPath = folder;
    entry.Items = document.RameStockNew;
    document.RameStockOld = document.RameStockNew;
}

} // namespace zandor
