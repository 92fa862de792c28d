#include "editor/consist_io.h"
#include "editor/consist_summaries.h"
#include "editor/editor_parts.h"
#include "editor/messages.h"
#include "simfiles/consist_file.h"

#include <algorithm>

namespace zandor {

namespace {

constexpr std::string_view BackupFolder = "Sauvegarde des fichiers de rames\\";
constexpr std::size_t DoubleNameLength = 40; // characters that tbNAME is compared by

// Without blanks at their ends: the simulator's files don't keep them, and the names of files shouldn't.
struct SaveNames {
    std::string shortName;
    std::string fullName;
    std::string file; // with .con
};

// Everything that a file says of the vehicles.
struct VehicleList {
    std::vector<VehicleLines> lines;
    std::vector<StockPair> stock;
    bool hasEngine = false;
    bool hasMissing = false;
};

// The names, unless the save can't go on for what is told.
struct NameCheck {
    std::optional<SaveNames> names;
    Findings told{};
};

NameCheck nameTaken(const std::string& file) {
    return {std::nullopt, {{.message = message::NameTaken, .params = {{"|1", file}}}}};
}

bool isListed(const Catalogue& catalogue, std::string_view file) {
    const auto& names = catalogue.here().ConsistFiles;
    return std::any_of(names.begin(), names.end(),
                       [file](const std::string& name) { return equalIgnoringCase(name, file); });
}

bool showsDoubleName(const ConsistDocument& document) {
    const auto compared = [](std::string_view text) {
        return lowerCase(firstCharacters(text, DoubleNameLength));
    };
    return compared(document.controls.shortName) == compared(doubleName(document.rame));
}

// Where the consist under edit is saved; that of a new one is the folder of the root in use.
std::string targetFolder(const Editor& editor) {
    const ConsistDocument& document = editor.document;
    return document.HasFile && !document.ConsistFolder.empty()
               ? document.ConsistFolder
               : consistsPath(editor.frame.state.roots.RootPrimary());
}

SaveNames enteredNames(const EditorControls& controls) {
    const std::string shortName(trim(controls.shortName));
    return {shortName, std::string(trim(controls.fullName)), shortName + ".con"};
}

NameCheck namesWithFile(const Editor& editor) {
    const ConsistDocument& document = editor.document;
    const std::string cfgName(trim(StripQuotes(document.rame.CfgName)));
    SaveNames names = enteredNames(document.controls);
    if (showsDoubleName(document))
        return {SaveNames{cfgName, names.fullName, document.rame.FileName}};
    if (!equalIgnoringCase(names.shortName, cfgName) &&
        isThere(editor.frame.files, targetFolder(editor) + names.file))
        return nameTaken(names.file);
    return {std::move(names)};
}

// A file that another program has made since the load isn't listed, and would be lost all the same.
NameCheck namesOfNew(const Editor& editor) {
    SaveNames names = enteredNames(editor.document.controls);
    if (isListed(editor.catalogue, names.file) ||
        isThere(editor.frame.files, targetFolder(editor) + names.file))
        return nameTaken(names.file);
    return {std::move(names)};
}

NameCheck checkNames(const Editor& editor) {
    const EditorControls& controls = editor.document.controls;
    if (trim(controls.shortName).empty())
        return {std::nullopt, {{.message = message::ShortNameEmpty}}};
    if (trim(controls.fullName).empty())
        return {std::nullopt, {{.message = message::FullNameEmpty}}};
    return editor.document.HasFile ? namesWithFile(editor) : namesOfNew(editor);
}

std::string_view stockNameOf(const Materiel& materiel) {
    const std::string_view name = std::string_view(materiel.FileName).substr(0, materiel.FileName.size() - 4);
    return equalIgnoringCase(name, materiel.WagonName) ? std::string_view(materiel.WagonName) : name;
}

bool isStockFile(const Materiel& materiel) {
    return endsWithIgnoringCase(materiel.FileName, ".eng") || endsWithIgnoringCase(materiel.FileName, ".wag");
}

VehicleLines linesFor(const Editor& editor, const Vehicule& vehicule) {
    VehicleLines lines;
    lines.isEngine = isEngine(editor, vehicule);
    lines.flipped = vehicule.Flipped;
    lines.number = vehicule.Number;
    lines.engineVariables = vehicule.EngineVariables;
    return lines;
}

void addCatalogued(const Editor& editor, const Vehicule& vehicule, const Materiel& materiel,
                   VehicleList& list) {
    if (!isStockFile(materiel))
        return;
    VehicleLines lines = linesFor(editor, vehicule);
    lines.stockName = stockNameOf(materiel);
    lines.folder = materiel.Folder;
    list.lines.push_back(std::move(lines));
    list.stock.push_back({materiel.FileName, materiel.Folder});
}

// Back as it was read.
void addFromOrigin(const Editor& editor, const Vehicule& vehicule, VehicleList& list) {
    list.hasMissing = true;
    if (!vehicule.origin)
        return;
    const RameItem& origin = *vehicule.origin;
    VehicleLines lines = linesFor(editor, vehicule);
    lines.isEngine = origin.IsEngine;
    lines.stockName = origin.Name;
    lines.folder = origin.Folder;
    lines.engineVariables = origin.EngineVariables;
    list.lines.push_back(std::move(lines));
    list.stock.push_back({stockFileOf(origin), origin.Folder});
}

VehicleList listVehicles(const Editor& editor) {
    VehicleList list;
    for (const Vehicule& vehicule : editor.document.Vehicules) {
        list.hasEngine = list.hasEngine || isEngine(editor, vehicule);
        if (const Materiel* materiel = materielOf(editor, vehicule))
            addCatalogued(editor, vehicule, *materiel, list);
        else
            addFromOrigin(editor, vehicule, list);
    }
    return list;
}

std::string velocityFor(const Rame& rame, bool hasEngine, bool hasFile) {
    if (!hasEngine)
        return WagonsOnlyMaxVelocity;
    return hasFile && rame.MaxVelocity != WagonsOnlyMaxVelocity ? rame.MaxVelocity : EngineMaxVelocity;
}

Rame rameToWrite(const Editor& editor, const SaveNames& names, bool hasEngine) {
    const ConsistDocument& document = editor.document;
    const bool hasFile = document.HasFile;
    Rame rame = document.rame;
    if (!hasFile)
        rame.Serial = 1;
    rame.MaxVelocity = velocityFor(rame, hasEngine, hasFile);
    rame.Durability = formatDurability(document.controls.durability / 1000.0);
    rame.NextWagonUID = document.NextNumber;
    rame.Name = names.fullName;
    rame.CfgName = quotedName(names.shortName);
    rame.FileName = names.file;
    return rame;
}

// Asks before vehicles are lost that the file holds and the strip doesn't.
bool mayReplaceFaulty(Editor& editor, const std::string& file) {
    const ConsistDocument& document = editor.document;
    Frame& frame = editor.frame;
    if (!document.faultyFile || !equalIgnoringCase(file, document.rame.FileName))
        return true;
    const std::string question =
        frame.text(message::AskSaveFaulty, {{"|1", document.rame.Name}, {"|2", LineBreak}});
    return frame.show(question, style::YesNo + style::Exclamation) == answer::Yes;
}

bool ensureFolder(FileSystem& files, std::string_view path) {
    while (!path.empty() && (path.back() == '\\' || path.back() == '/'))
        path.remove_suffix(1);
    if (FolderExists(files, path))
        return true;
    const std::size_t above = path.find_last_of("\\/");
    return above != std::string_view::npos && ensureFolder(files, path.substr(0, above)) &&
           files.createFolder(path);
}

// The copy of the file that is about to be replaced.
struct Backup {
    std::string folder;
    std::string path;    // empty: there is none
    bool failed = false; // one was wanted and could not be made
};

Backup keepBackup(Editor& editor, const std::string& folder, const std::string& file) {
    Frame& frame = editor.frame;
    const AppState& state = frame.state;
    const bool wanted = !editor.document.noBackup &&
                        (editor.document.faultyFile || readFlag(frame.profiles, "BakFile", state.IniPath));
    if (!editor.document.HasFile || !wanted || !isThere(frame.files, folder + file))
        return {};
    const std::string keptIn = AddBackslash(state.BackupDir) + std::string(BackupFolder);
    const std::string copy = keptIn + file + ".old";
    const bool kept = !state.BackupDir.empty() && ensureFolder(frame.files, keptIn) &&
                      CopyFileOver(frame.files, folder + file, copy);
    return kept ? Backup{keptIn, copy, false} : Backup{keptIn, {}, true};
}

// Asks before the only copy of a consist is replaced.
bool mayReplaceUnkept(Editor& editor, const Backup& backup) {
    if (!backup.failed)
        return true;
    Frame& frame = editor.frame;
    const std::string folder = frame.files.nativePath(backup.folder);
    const std::string question = frame.text(
        message::AskNoBackup, {{"|1", editor.document.rame.Name}, {"|2", folder}, {"|3", LineBreak}});
    return frame.show(question, style::YesNo + style::Exclamation + style::SecondButton) == answer::Yes;
}

bool writeConsist(Editor& editor, const std::string& folder, const Rame& rame, const VehicleList& list) {
    FileSystem& files = editor.frame.files;
    const AppState& state = editor.frame.state;
    if (!editor.document.HasFile && FolderExists(files, state.roots.RootPrimary()))
        ensureFolder(files, folder);
    return replaceFile(files, folder + rame.FileName, encodeConsist(buildConsistText(rame, list.lines)));
}

// A name with a line break or a quote in it would be lost, or lose the vehicles behind it.
Findings unwritableStock(Editor& editor, const Rame& rame, const VehicleList& list) {
    Frame& frame = editor.frame;
    SimReader reader(frame.files);
    const std::optional<std::size_t> lost = findUnreadable(reader, rame, list.lines);
    if (!lost)
        return {};
    const StockPair& stock = list.stock[*lost];
    const std::string name = stock.Folder + "\\" + stock.FileName;
    return {{.message = message::StockUnwritable, .params = {{"|1", name}, {"|2", std::string(LineBreak)}}}};
}

ConsistSummary summaryOf(const Editor& editor, const Rame& rame, const VehicleList& list) {
    ConsistSummary summary;
    summary.FullName = rame.Name;
    summary.FileName = rame.FileName;
    for (const VehicleLines& vehicle : list.lines)
        ++(vehicle.isEngine ? summary.Engines : summary.Wagons);
    summary.Composition = CompositionTexts(editor.frame).of(summary.Engines, summary.Wagons);
    summary.RouteMark = ServiceConsists(editor.catalogue).markOf(summary.FileName);
    summary.Complete = !list.hasMissing;
    return summary;
}

// The lists that mirror the CONSISTS folder of the root in use.
void listSavedFile(Catalogue& catalogue, ConsistSummary saved) {
    std::vector<std::string>& names = catalogue.here().ConsistFiles;
    if (!isListed(catalogue, saved.FileName))
        names.push_back(saved.FileName);

    std::vector<ConsistSummary>& summaries = catalogue.here().ConsistSummaries;
    const auto known =
        std::find_if(summaries.begin(), summaries.end(), [&saved](const ConsistSummary& summary) {
            return equalIgnoringCase(summary.FileName, saved.FileName);
        });
    if (known == summaries.end()) {
        summaries.push_back(std::move(saved));
        return;
    }
    saved.FileName = known->FileName; // as the disk spells it
    *known = std::move(saved);
}

Finding savedReport(FileSystem& files, const std::string& path, const Backup& backup, bool missingStock) {
    Finding report{.message = message::ConsistSaved, .style = style::Information, .file = path};
    if (!backup.path.empty())
        report.additions.push_back(
            {.message = message::BackupKept,
             .params = {{"|1", std::string(LineBreak)}, {"|2", files.nativePath(backup.path)}}});
    if (missingStock)
        report.additions.push_back({.message = message::StockMissing, .before = std::string(LineBreak)});
    return report;
}

Finding failureReport(FileSystem& files, const std::string& path) {
    return {.message = message::SaveFailed,
            .params = {{"|1", files.nativePath(path)}, {"|2", std::string(LineBreak)}},
            .file = path};
}

// Brings everything up to date that the new file has changed.
void takeSaved(Editor& editor, const std::string& folder, Rame rame, VehicleList list) {
    ConsistDocument& document = editor.document;
    // A save under another name makes a new file: the old one goes on using its stock.
    if (document.HasFile && !equalIgnoringCase(rame.FileName, document.rame.FileName))
        document.RameStockOld.clear();
    const ConsistSummary saved = summaryOf(editor, rame, list);
    document.rame = std::move(rame);
    document.RameStockNew = std::move(list.stock);
    document.ConsistFolder = folder;
    if (sameFolder(editor.frame.files, folder, consistsPath(editor.frame.state.roots.RootPrimary())))
        listSavedFile(editor.catalogue, saved);
    UpdateStockUse(editor, document.HasFile, document.rame.Name, document.rame.FileName, folder);
}

void showSaved(Editor& editor, const SaveNames& names) {
    EditorControls& controls = editor.document.controls;
    controls.fullName = names.fullName;
    if (trim(controls.shortName) == names.shortName) // otherwise it shows the double name
        controls.shortName = names.shortName;
    editor.document.HasFile = true;
    editor.document.Modified = false;
    editor.document.faultyFile = false;
    controls.deleteEnabled = true;
    controls.shortNameEnabled = false;
}

} // namespace

Outcome SaveFileRame(Editor& editor) {
    NameCheck check = checkNames(editor);
    if (!check.names)
        return {false, std::move(check.told)};
    const SaveNames& names = *check.names;
    if (!mayReplaceFaulty(editor, names.file))
        return {};
    Frame& frame = editor.frame;
    const std::string folder = targetFolder(editor), path = folder + names.file;
    VehicleList list = listVehicles(editor);
    const bool missingStock = editor.document.HasFile && list.hasMissing;
    Rame rame = rameToWrite(editor, names, list.hasEngine);
    if (Findings lost = unwritableStock(editor, rame, list); !lost.empty())
        return {false, std::move(lost)};

    const Backup backup = keepBackup(editor, folder, names.file);
    if (!mayReplaceUnkept(editor, backup))
        return {};
    // Nothing has changed then: the consist stays unsaved, and a close that waits for the save stays open.
    if (!writeConsist(editor, folder, rame, list))
        return {false, {failureReport(frame.files, path)}};
    takeSaved(editor, folder, std::move(rame), std::move(list));
    showSaved(editor, names);
    if (editor.document.openedFromOptions || readFlag(frame.profiles, "NewFile", frame.state.IniPath))
        beginNewConsist(editor);
    return {true, {savedReport(frame.files, path, backup, missingStock)}};
}

} // namespace zandor
