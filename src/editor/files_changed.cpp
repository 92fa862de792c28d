#include "editor/files_changed.h"

#include "catalogue/name_key.h"
#include "editor/editor_parts.h"

#include <algorithm>
#include <unordered_set>

namespace zandor {

namespace {

using NameSet = std::unordered_set<std::string, TextHash, std::equal_to<>>;

struct GoneFromRoot {
    std::vector<StockPair> stock;
    NameSet consists; // lower case
};

GoneFromRoot goneFrom(Editor& editor, Root root, const std::vector<GoneFile>& gone) {
    const std::string& path = editor.frame.state.roots.path(root);
    GoneFromRoot result;
    if (path.empty())
        return result;
    for (const GoneFile& file : gone)
        if (!file.folder.empty() && equalIgnoringCase(file.base, trainsetPath(path)))
            result.stock.push_back({file.name, file.folder});
        else if (file.folder.empty() && equalIgnoringCase(file.base, consistsPath(path)))
            result.consists.insert(lowerCase(file.name));
    return result;
}

// ---- stock

// What a save writes for it from now on, and what the strip shows.
void makeMissing(const Materiel& materiel, Vehicule& vehicule) {
    RameItem origin;
    origin.IsEngine = endsWithIgnoringCase(materiel.FileName, ".eng");
    origin.Name = materiel.FileName.substr(0, materiel.FileName.size() - 4);
    origin.Folder = materiel.Folder;
    origin.UiD = vehicule.Number;
    origin.Flip = vehicule.Flipped;
    origin.EngineVariables = vehicule.EngineVariables;
    vehicule.Missing = vehicule.ImageIsResource = true;
    vehicule.ImageIsGeneric = vehicule.FromSimulator = false;
    vehicule.Name = materiel.FileName;
    vehicule.Picture = MissingPicture;
    vehicule.Coupling.clear();
    vehicule.Mass.clear();
    vehicule.Size.clear();
    vehicule.origin = std::move(origin);
}

// The vehicles whose stock is in the set; the array still has it.
void makeVehiclesMissing(Editor& editor, Root root, const std::unordered_set<int>& indexes) {
    bool changed = false;
    for (Vehicule& vehicule : editor.document.Vehicules) {
        const Root own = vehicule.FromSimulator ? Root::Simulator : editor.catalogue.current;
        const Materiel* materiel = materielOf(editor, vehicule);
        if (own != root || !materiel || !indexes.contains(vehicule.MaterielIndex))
            continue;
        makeMissing(*materiel, vehicule);
        changed = true;
    }
    if (changed)
        updateStrip(editor);
}

void forgetStock(Editor& editor, Root root, const std::vector<StockPair>& gone) {
    RootCatalogue& catalogue = editor.catalogue.of(root);
    std::unordered_set<int> indexes;
    for (const StockPair& pair : gone)
        if (const int index = catalogue.finder.find(catalogue.Materiels, pair.Folder, pair.FileName);
            index >= 0)
            indexes.insert(index);
    makeVehiclesMissing(editor, root, indexes);
    for (const int index : indexes)
        catalogue.Materiels[static_cast<std::size_t>(index)] = {};
    catalogue.finder.forget();
}

// ---- consists

// Its stock has been released: a save of it counts all anew.
void forgetUnderEdit(Editor& editor, const std::string& folder, const NameSet& gone) {
    ConsistDocument& document = editor.document;
    if (document.HasFile && gone.contains(lowerCase(document.rame.FileName)) &&
        equalIgnoringCase(AddBackslash(document.ConsistFolder), folder))
        document.RameStockOld.clear();
}

void forgetConsists(Editor& editor, Root root, const NameSet& gone) {
    const std::string folder = consistsPath(editor.frame.state.roots.path(root));
    const auto isGone = [&gone](const std::string& name) { return gone.contains(lowerCase(name)); };
    std::erase_if(editor.catalogue.of(root).ConsistFiles, isGone);
    forgetSummaries(editor.catalogue.of(root));
    std::erase_if(editor.catalogue.ConsistIndex, [&](const ConsistEntry& entry) {
        const bool leaves = isGone(entry.FileName) && equalIgnoringCase(entry.FolderPath, folder);
        if (leaves && editor.frame.state.PrintGreen)
            countDifference(editor.catalogue, entry.Items, {});
        return leaves;
    });
    forgetUnderEdit(editor, folder, gone);
}

} // namespace

void forgetFiles(Editor& editor, const std::vector<GoneFile>& gone) {
    for (const Root root : {Root::Simulator, Root::Store}) {
        const GoneFromRoot here = goneFrom(editor, root, gone);
        if (!here.stock.empty())
            forgetStock(editor, root, here.stock);
        if (!here.consists.empty())
            forgetConsists(editor, root, here.consists);
    }
}

void noteConsistFile(Editor& editor, std::string_view path) {
    const std::string name = GetFileName(path);
    const std::string_view folder = path.substr(0, path.size() - name.size());
    if (!endsWithIgnoringCase(name, ".con"))
        return;
    for (const Root root : {Root::Simulator, Root::Store}) {
        const std::string& rootPath = editor.frame.state.roots.path(root);
        RootCatalogue& catalogue = editor.catalogue.of(root);
        if (rootPath.empty() || !sameFolder(editor.frame.files, folder, consistsPath(rootPath)))
            continue;
        if (std::ranges::none_of(catalogue.ConsistFiles, [&name](const std::string& known) {
                return equalIgnoringCase(known, name);
            }))
            catalogue.ConsistFiles.push_back(name);
        forgetSummaries(catalogue);
    }
}

void rereadConsist(Frame& frame, Catalogue& catalogue, std::string_view path) {
    forgetSummaries(catalogue.simulator);
    forgetSummaries(catalogue.store);
    if (!frame.state.PrintGreen)
        return;
    const auto entry = std::ranges::find_if(catalogue.ConsistIndex, [path](const ConsistEntry& known) {
        return equalIgnoringCase(known.FolderPath + known.FileName, path);
    });
    if (entry == catalogue.ConsistIndex.end())
        return;
    SimReader reader(frame.files);
    Rame rame;
    std::vector<RameItem> items;
    if (!ReadConsistFile(reader, rame, items, path).accepted())
        return;
    std::vector<StockPair> stock;
    for (const RameItem& item : items)
        stock.push_back({stockFileOf(item), item.Folder});
    countDifference(catalogue, entry->Items, stock);
    entry->Items = std::move(stock);
    entry->DisplayName = rame.Name.empty() ? rame.CfgName : rame.Name;
}

} // namespace zandor
