#include "verify/result_lists.h"

#include "catalogue/messages.h"
#include "catalogue/name_key.h"
#include "catalogue/routes.h"
#include "editor/consist_summaries.h"
#include "editor/editor_parts.h"
#include "editor/files_changed.h"
#include "editor/messages.h"
#include "verify/messages.h"

#include <algorithm>
#include <unordered_set>

namespace zandor {

namespace {

constexpr std::size_t NamesShown = 5; // of several files, in a message

// What tells one kind of file from another when it is moved.
struct KindRow {
    std::string_view extension;
    std::string_view folder; // below the backup folder
    std::string_view pattern;
    Message filter;
    Message fileHint, keyHint;
};
constexpr KindRow Kinds[] = {
    {".con", "Rames\\", "(*.con)|*.con", message::ConsistFileFilter, message::HintInvalidConsist,
     message::HintConsistKey},
    {".eng", "Motrices\\", "(*.eng)|*.eng", message::EngineFileFilter, message::HintInvalidStock,
     message::HintStockKey},
    {".wag", "Wagons\\", "(*.wag)|*.wag", message::WagonFileFilter, message::HintInvalidStock,
     message::HintStockKey},
};

const KindRow& rowOf(VerifiedKind kind) {
    return Kinds[static_cast<std::size_t>(kind)];
}

// ---- one file

enum class Moving { Done, SourceGone, NameTaken, Failed };

// True when both names lead to one file, over a link too: a copy onto itself and the deleting of the original
// would leave nothing.
bool isOneFile(FileSystem& files, const std::string& a, const std::string& b) {
    if (equalIgnoringCase(files.nativePath(a), files.nativePath(b)))
        return true;
    const auto stampA = files.stamp(a), stampB = files.stamp(b);
    return stampA && stampA == stampB;
}

bool readsBack(FileSystem& files, const std::string& path, const std::string& bytes) {
    std::string again;
    return files.readFile(path, again) && again == bytes;
}

// The new name holds what was read, or nothing has changed but for a target that the user gave up.
Moving moveBytes(FileSystem& files, const std::string& source, const std::string& target,
                 const std::string& bytes, bool targetIsNew) {
    const bool moved =
        replaceFile(files, target, bytes) && readsBack(files, target, bytes) && files.deleteFile(source);
    if (moved)
        return Moving::Done;
    if (targetIsNew && isThere(files, source))
        files.deleteFile(target); // one original, no second one
    return Moving::Failed;
}

enum class Target { MustBeNew, MayBeReplaced };

Moving moveFile(FileSystem& files, const std::string& source, const std::string& target, Target wanted) {
    std::string bytes;
    const ReadResult read = files.read(source, bytes, LargestRead);
    if (read == ReadResult::Missing)
        return Moving::SourceGone;
    if (read != ReadResult::Done)
        return Moving::Failed;
    const bool isNew = !isThere(files, target);
    if (!isNew && (wanted == Target::MustBeNew || isOneFile(files, source, target)))
        return Moving::NameTaken;
    return moveBytes(files, source, target, bytes, isNew);
}

// True when the file isn't there any more; a disk that doesn't answer doesn't say so.
bool removeFile(FileSystem& files, const std::string& path) {
    std::string none;
    return files.deleteFile(path) || files.read(path, none, 0) == ReadResult::Missing;
}

// ---- the files that were chosen

struct Chosen {
    int position = 0; // in InvalidFiles
    std::string path;
};

std::vector<Chosen> chosenFiles(const VerifResults& results, const std::vector<int>& positions) {
    std::vector<Chosen> chosen;
    for (const int position : positions) {
        const InvalidFile& file = results.InvalidFiles.at(static_cast<std::size_t>(position));
        if (!file.File.empty())
            chosen.push_back({position, invalidPath(file)});
    }
    return chosen;
}

const InvalidFile& recordOf(const VerifResults& results, const Chosen& chosen) {
    return results.InvalidFiles[static_cast<std::size_t>(chosen.position)];
}

std::string shownPath(Frame& frame, const Chosen& chosen) {
    return frame.files.nativePath(chosen.path);
}

// The first few of them, a line each, and how many more there are.
std::string listedNames(Frame& frame, const std::vector<Chosen>& chosen) {
    std::string text;
    for (std::size_t i = 0; i < std::min(chosen.size(), NamesShown); ++i)
        text.append(text.empty() ? "" : LineBreak).append(shownPath(frame, chosen[i]));
    if (chosen.size() <= NamesShown)
        return text;
    const std::string more = std::to_string(chosen.size() - NamesShown);
    return text.append(LineBreak).append(frame.text(message::AndMoreFiles, {{"|1", more}}));
}

Finding ofSeveral(Frame& frame, Message message, const std::vector<Chosen>& chosen) {
    return {.message = message,
            .params = {{"|1", std::to_string(chosen.size())},
                       {"|2", std::string(LineBreak)},
                       {"|3", listedNames(frame, chosen)}}};
}

bool ask(Frame& frame, const Finding& question) {
    return frame.show(wordFinding(frame, question), style::YesNo | style::Question | style::SecondButton) ==
           answer::Yes;
}

// Consists that services run are asked for a second time: one by its route, several together.
bool agreesForUsed(Editor& editor, const VerifResults& results, const std::vector<Chosen>& chosen,
                   Message askOne) {
    const ServiceConsists services(editor.catalogue);
    std::vector<Chosen> used;
    for (const Chosen& file : chosen)
        if (services.markOf(recordOf(results, file).File) == RouteMarkYes)
            used.push_back(file);
    if (used.empty())
        return true;
    if (chosen.size() > 1)
        return ask(editor.frame, ofSeveral(editor.frame, message::AskGoOnUsedSeveral, used));
    const RouteMSTS* route = findRouteUsing(editor.catalogue.here(), recordOf(results, used.front()).File);
    return ask(editor.frame, {.message = askOne,
                              .params = {{"|1", shownPath(editor.frame, used.front())},
                                         {"|2", route ? route->Nom : std::string()},
                                         {"|3", std::string(LineBreak)}}});
}

// The records go, and everything that knew the files.
void takeOut(Editor& editor, VerifResults& results, const std::vector<Chosen>& gone) {
    std::vector<GoneFile> files;
    std::unordered_set<std::string> names;
    for (const Chosen& file : gone) {
        InvalidFile& record = results.InvalidFiles[static_cast<std::size_t>(file.position)];
        names.insert(foldedNameKey(record.Folder, record.File));
        files.push_back({record.Root, record.Folder, record.File});
        record = {};
    }
    compactInvalidFiles(results.InvalidFiles);
    std::erase_if(results.mandatory, [&names](const MandatoryFault& fault) {
        return names.contains(foldedNameKey(fault.folder, fault.file));
    });
    forgetFiles(editor, files);
}

// ---- moving

std::string backupFolderOf(const Editor& editor, VerifiedKind kind) {
    return AddBackslash(editor.frame.state.BackupDir).append(rowOf(kind).folder);
}

std::string makeBackupFolder(Editor& editor, VerifiedKind kind) {
    FileSystem& files = editor.frame.files;
    std::string folder = backupFolderOf(editor, kind);
    if (!files.folderExists(folder)) {
        files.createFolder(AddBackslash(editor.frame.state.BackupDir));
        files.createFolder(folder); // when it can't be made, the copy fails and tells
    }
    return folder;
}

Finding moveFinding(Frame& frame, Moving result, const Chosen& file, const std::string& target) {
    const std::string native = frame.files.nativePath(target), lineBreak(LineBreak);
    if (result == Moving::NameTaken)
        return {.message = message::MoveNameTaken, .params = {{"|1", native}, {"|2", lineBreak}}};
    const std::string source = shownPath(frame, file);
    if (result == Moving::Failed)
        return {.message = message::MoveFailed,
                .params = {{"|1", source}, {"|2", lineBreak}, {"|3", native}},
                .file = file.path};
    return {.message = message::FileMoved,
            .style = style::Information,
            .params = {{"|1", source}, {"|2", native}}};
}

FilesGone moveOne(Editor& editor, VerifResults& results, const Chosen& file) {
    Frame& frame = editor.frame;
    const InvalidFile record = recordOf(results, file);
    const KindRow& row = rowOf(kindOf(record));
    const std::string folder = makeBackupFolder(editor, kindOf(record));
    if (!agreesForUsed(editor, results, {file}, message::AskMoveUsed))
        return {};
    const auto target = frame.dialogs.askSaveFile(frame.text(message::MoveTitle),
                                                  frame.text(row.filter, {{"|1", row.pattern}}), folder,
                                                  record.File, std::string(row.extension));
    if (!target)
        return {};
    const Moving result = moveFile(frame.files, file.path, *target, Target::MayBeReplaced);
    const bool gone = result == Moving::Done || result == Moving::SourceGone;
    FilesGone outcome{gone ? 1 : 0, {}};
    if (result != Moving::SourceGone)
        outcome.told.push_back(moveFinding(frame, result, file, *target));
    if (!gone)
        return outcome;
    takeOut(editor, results, {file});
    if (result == Moving::Done)
        noteConsistFile(editor, *target);
    return outcome;
}

bool agreesToMove(Editor& editor, const VerifResults& results, const std::vector<Chosen>& chosen) {
    Finding question = ofSeveral(editor.frame, message::AskMoveSeveral, chosen);
    question.params.push_back({"|4", editor.frame.files.nativePath(editor.frame.state.BackupDir)});
    return ask(editor.frame, question) && agreesForUsed(editor, results, chosen, message::AskMoveUsed);
}

struct MovedFiles {
    std::vector<Chosen> moved, vanished, taken, failed;
};

// False: the user ends it, and what is left stays.
bool goesOn(Frame& frame, const std::vector<Chosen>& chosen, const Chosen& next) {
    const int count = static_cast<int>(chosen.size());
    frame.progress.ShowProgress(0, count, static_cast<int>(&next - chosen.data()), next.path);
    return frame.progress.yield();
}

MovedFiles moveEach(Editor& editor, const VerifResults& results, const std::vector<Chosen>& chosen) {
    MovedFiles sorted;
    std::string folders[std::size(Kinds)];
    for (const Chosen& file : chosen) {
        if (!goesOn(editor.frame, chosen, file))
            break;
        const InvalidFile& record = recordOf(results, file);
        std::string& folder = folders[static_cast<std::size_t>(kindOf(record))];
        if (folder.empty())
            folder = makeBackupFolder(editor, kindOf(record));
        switch (moveFile(editor.frame.files, file.path, folder + record.File, Target::MustBeNew)) {
        case Moving::Done:
            sorted.moved.push_back(file);
            break;
        case Moving::SourceGone:
            sorted.vanished.push_back(file);
            break;
        case Moving::NameTaken:
            sorted.taken.push_back(file);
            break;
        case Moving::Failed:
            sorted.failed.push_back(file);
        }
    }
    return sorted;
}

Findings toldOf(Frame& frame, const MovedFiles& sorted) {
    Findings told;
    if (!sorted.moved.empty())
        told.push_back({.message = message::SeveralMoved,
                        .style = style::Information,
                        .params = {{"|1", std::to_string(sorted.moved.size())},
                                   {"|2", frame.files.nativePath(frame.state.BackupDir)}}});
    if (!sorted.taken.empty())
        told.push_back(ofSeveral(frame, message::SeveralNamesTaken, sorted.taken));
    if (!sorted.failed.empty())
        told.push_back(ofSeveral(frame, message::SeveralNotMoved, sorted.failed));
    return told;
}

FilesGone moveSeveral(Editor& editor, VerifResults& results, const std::vector<Chosen>& chosen) {
    if (!agreesToMove(editor, results, chosen))
        return {};
    const MovedFiles sorted = moveEach(editor, results, chosen);
    std::vector<Chosen> gone = sorted.moved;
    gone.insert(gone.end(), sorted.vanished.begin(), sorted.vanished.end());
    takeOut(editor, results, gone);
    return {static_cast<int>(gone.size()), toldOf(editor.frame, sorted)};
}

// ---- deleting

bool agreesToDelete(Editor& editor, const VerifResults& results, const std::vector<Chosen>& chosen) {
    Frame& frame = editor.frame;
    const std::string lineBreak(LineBreak);
    const Finding one{.message = message::AskDeleteFile,
                      .params = {{"|1", lineBreak},
                                 {"|2", shownPath(frame, chosen.front())},
                                 {"|3", lineBreak + lineBreak}}};
    const bool agreed =
        ask(frame, chosen.size() == 1 ? one : ofSeveral(frame, message::AskDeleteSeveral, chosen));
    return agreed && agreesForUsed(editor, results, chosen, message::AskDeleteUsed);
}

Finding notDeleted(Frame& frame, const std::vector<Chosen>& chosen, const std::vector<Chosen>& failed) {
    if (chosen.size() > 1)
        return ofSeveral(frame, message::SeveralNotDeleted, failed);
    return {.message = message::DeleteFailed,
            .params = {{"|1", shownPath(frame, failed.front())}, {"|2", std::string(LineBreak)}},
            .file = failed.front().path};
}

} // namespace

void compactInvalidFiles(std::vector<InvalidFile>& files) {
    std::erase_if(files, [](const InvalidFile& file) { return file.File.empty(); });
}

VerifiedKind kindOf(const InvalidFile& file) {
    for (std::size_t kind = 0; kind < std::size(Kinds); ++kind)
        if (endsWithIgnoringCase(file.File, Kinds[kind].extension))
            return static_cast<VerifiedKind>(kind);
    return VerifiedKind::Wagons;
}

std::string invalidPath(const InvalidFile& file) {
    return file.Folder.empty() ? file.Root + file.File : file.Root + file.Folder + "\\" + file.File;
}

std::string placeCaption(const InvalidFile& file) {
    return file.Folder.empty() ? "" : "( TRAINSET\\" + file.Folder + "\\" + file.File + " )";
}

std::string selectionCaption(const Frame& frame, const InvalidFile& file) {
    return frame.text(message::FileSelected, {{"|1", file.Name}});
}

Message resultHint(VerifiedKind kind, ResultList list) {
    return list == ResultList::Files ? rowOf(kind).fileHint : rowOf(kind).keyHint;
}

FilesGone moveInvalidFiles(Editor& editor, VerifResults& results, const std::vector<int>& chosen) {
    const std::vector<Chosen> files = chosenFiles(results, chosen);
    if (files.empty())
        return {};
    return files.size() == 1 ? moveOne(editor, results, files.front()) : moveSeveral(editor, results, files);
}

FilesGone deleteInvalidFiles(Editor& editor, VerifResults& results, const std::vector<int>& chosen) {
    const std::vector<Chosen> files = chosenFiles(results, chosen);
    if (files.empty() || !agreesToDelete(editor, results, files))
        return {};
    std::vector<Chosen> gone, failed;
    for (const Chosen& file : files) {
        if (!goesOn(editor.frame, files, file))
            break;
        (removeFile(editor.frame.files, file.path) ? gone : failed).push_back(file);
    }
    takeOut(editor, results, gone);
    FilesGone outcome{static_cast<int>(gone.size()), {}};
    if (!failed.empty())
        outcome.told.push_back(notDeleted(editor.frame, files, failed));
    return outcome;
}

Outcome openFolder(Frame& frame, std::string_view folder) {
    const std::string native = frame.files.nativePath(folder);
    if (frame.files.folderExists(folder) && frame.processes.openFile(native))
        return {true, {}};
    return {
        false,
        {{.message = message::FolderNotOpened, .params = {{"|1", native}, {"|2", std::string(LineBreak)}}}}};
}

} // namespace zandor
