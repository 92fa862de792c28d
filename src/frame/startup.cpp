#include "frame/startup.h"

#include "frame/messages.h"
#include "frame/version.h"
#include "text/decode.h"
#include "text/lines.h"
#include "text/text_hash.h"

#include <algorithm>
#include <utility>

namespace zandor {

namespace {

constexpr std::string_view SimulatorKey = "SOFTWARE\\Microsoft\\Microsoft Games\\Train Simulator\\1.0";
constexpr std::string_view WindowsKey = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion";
constexpr std::string_view LanguageFile = "Langues.lng";
constexpr std::string_view SimulatorName = "Microsoft Train Simulator";

std::string setting(const Frame& frame, std::string_view key) {
    return readSetting(frame.profiles, key, frame.state.IniPath);
}

bool flag(const Frame& frame, std::string_view key) {
    return readFlag(frame.profiles, key, frame.state.IniPath);
}

IniValue generalValue(std::string_view key, std::string value) {
    return {std::string(GeneralSection), std::string(key), std::move(value)};
}

std::string inProgramFolder(const Frame& frame, std::string_view name) {
    return frame.state.ProgramFolder + "\\" + std::string(name);
}

// The root of a disk keeps its one separator.
std::string_view withoutTrailingSeparators(std::string_view path) {
    return path.substr(0, std::max<std::size_t>(path.find_last_not_of("\\/") + 1, 1));
}

std::string markOf(std::string_view bytes) {
    TextHasher hasher;
    hasher.add(bytes);
    return std::to_string(hasher.value);
}

// The program folder gets a copy of the shipped language file, which its user may change; as long as he
// hasn't, it follows the file of each new release. What was shipped when both were last the same is noted
// beside it.
void provideLanguageFile(Frame& frame, const ProgramFolders& folders) {
    constexpr std::string_view section = "Shipped";
    const std::string own = inProgramFolder(frame, LanguageFile),
                      notes = inProgramFolder(frame, "Shipped.ini");
    const std::string shipped = findShippedFile(
        frame.files, {{}, folders.executable, folders.executableName, folders.shared}, LanguageFile);
    std::string newBytes, ownBytes;
    if (folders.program == folders.executable ||
        frame.files.read(shipped, newBytes, LargestProfile) != ReadResult::Done)
        return;
    const std::string noted = frame.profiles.ReadIniValue(section, LanguageFile, notes);
    const ReadResult result = frame.files.read(own, ownBytes, LargestProfile);
    const bool isRead = result == ReadResult::Done;
    const bool isSame = isRead && ownBytes == newBytes;
    const bool isHisOwn = isRead ? markOf(ownBytes) != noted : result != ReadResult::Missing;
    if (isHisOwn && !isSame)
        return;
    if (isSame || replaceFile(frame.files, own, newBytes))
        frame.profiles.WriteIniValue(section, LanguageFile, markOf(newBytes), notes);
}

void setHelpFile(Frame& frame) {
    frame.state.HelpFile.clear();
    for (const std::string_view name : {"Zandor.chm", "Zandor.hlp"})
        if (frame.state.HelpFile.empty() && FileExists(frame.files, inProgramFolder(frame, name)))
            frame.state.HelpFile = inProgramFolder(frame, name);
}

bool hasLineBeginning(std::string_view text, std::string_view beginning) {
    bool found = false;
    forEachLine(text, [&](std::string_view line) { found = found || line.starts_with(beginning); });
    return found;
}

// Settings of an older release get the check of thumbnails switched on; new ones get all the defaults.
void provideSettings(Frame& frame) {
    const std::string& path = frame.state.IniPath;
    std::string bytes, text;
    const bool isRead = frame.files.read(path, bytes, LargestProfile) == ReadResult::Done;
    const std::string whole = defaultIni(frame.files, frame.state.Title, frame.state.ProgramFolder);
    if (isRead && bytes.size() < whole.size() && whole.starts_with(bytes)) {
        WriteDefaultIni(frame.files, path, frame.state.Title,
                        frame.state.ProgramFolder); // its writing was cut off
    } else if (isRead) {
        decodeSettingsText(bytes, text);
        if (!hasLineBeginning(text, "ControlThumbnails"))
            frame.profiles.WriteIniValues({generalValue("ControlThumbnails", "1")}, path);
    } else if (!frame.files.stamp(path) && !FileExists(frame.files, path)) {
        WriteDefaultIni(frame.files, path, frame.state.Title, frame.state.ProgramFolder);
    }
}

// What the installer has unpacked is of no more use at the first start. The folder for temporary files is
// everybody's: what stands there under this name need not be the installer's.
void cleanUpAfterInstallation(Frame& frame) {
    const std::string folder = GetTempFolder() + "\\QX_Setup";
    if (!flag(frame, "Inst") || !frame.files.isOwnFolder(folder))
        return;
    for (const FolderEntry& entry : frame.files.listFolder(folder))
        if (!entry.isFolder)
            frame.files.deleteFile(folder + "\\" + entry.name);
    frame.files.deleteFolder(folder);
}

void makeBackupFolder(Frame& frame) {
    if (setting(frame, "Backup").empty() && !FolderExists(frame.files, frame.state.BackupDir))
        frame.files.createFolder(frame.state.BackupDir);
}

std::string folderSetting(const Frame& frame, std::string_view key) {
    return existingFolder(frame.files, setting(frame, key));
}

// The folder of the train.exe that the user shows; empty when the user cancelled.
std::string askForSimulator(Frame& frame) {
    const auto chosen = frame.dialogs.askOpenFile(
        frame.text(message::FindSimulator), frame.text(message::ExecutableFilter, {{"|1", "(*.exe)|*.exe"}}),
        frame.state.ProgramFilesDir, "train.exe");
    if (!chosen)
        return {};
    const std::string_view path = *chosen;
    return std::string(withoutTrailingSeparators(path.substr(0, path.size() - GetFileName(path).size())));
}

bool isConsistFile(Frame& frame, std::string_view path) {
    return endsWithIgnoringCase(path, ".con") && isThere(frame.files, path);
}

} // namespace

std::string makeTitle() {
    return "Zandor " + std::to_string(VersionMajor) + "." + std::to_string(VersionMinor) +
           std::to_string(VersionRevision);
}

std::string existingFolder(FileSystem& files, std::string_view path) {
    return FolderExists(files, path) ? std::string(withoutTrailingSeparators(path)) : std::string();
}

void readSettings(Frame& frame) {
    AppState& state = frame.state;
    for (const Setting& row : GeneralSettings)
        if (row.flag)
            state.*row.flag = flag(frame, row.key);
    const std::string backup = setting(frame, "Backup");
    state.BackupDir = AddBackslash(backup.empty() ? inProgramFolder(frame, "Backup")
                                                  : std::string(withoutTrailingSeparators(backup)));
}

bool prepareStart(Frame& frame, const ProgramFolders& folders) {
    AppState& state = frame.state;
    state.Title = makeTitle();
    state.ProgramFolder = folders.program;
    state.IniPath = inProgramFolder(frame, "Zandor.ini");
    provideLanguageFile(frame, folders);
    state.LanguagePath = findShippedFile(frame.files, folders, LanguageFile);
    if (!languageFileFault(frame).empty())
        return false;
    readLanguage(frame);
    return true;
}

std::string languageFileFault(const Frame& frame) {
    const std::string& path = frame.state.LanguagePath;
    if (path.empty())
        return std::string(LanguageFileMissing);
    if (!isProfileTooLarge(frame.files, path))
        return {};
    return std::string(LanguageFileTooLarge) + " (" + megabytesOf(frame.files, path) +
           " Mo) : " + frame.files.nativePath(path);
}

void tellSettingsTooLarge(Frame& frame) {
    const std::string& path = frame.state.IniPath;
    if (!isProfileTooLarge(frame.files, path))
        return;
    const std::string native = frame.files.nativePath(path), size = megabytesOf(frame.files, path);
    frame.show(frame.text(message::SettingsTooLarge, {{"|1", native}, {"|2", "\n"}, {"|3", size}}),
               style::Exclamation);
}

void readLanguage(Frame& frame) {
    const std::string language = setting(frame, "Langage");
    frame.state.Language = language.empty() ? std::string(DefaultLanguage) : language;
}

std::optional<std::string> languageInstead(const Frame& frame) {
    const std::vector<LanguageChoice> known = frame.language.ListLanguages();
    const auto listed = [&known](std::string_view name) {
        return std::ranges::any_of(
            known, [name](const LanguageChoice& choice) { return equalIgnoringCase(choice.name, name); });
    };
    if (known.empty() || listed(frame.state.Language))
        return std::nullopt;
    return listed(DefaultLanguage) ? std::string(DefaultLanguage) : known.front().name;
}

void offerKnownLanguage(Frame& frame) {
    const auto instead = languageInstead(frame);
    if (!instead)
        return;
    const std::string gone = std::exchange(frame.state.Language, *instead);
    const std::string question =
        frame.text(message::LanguageGone, {{"|1", gone}, {"|2", "\n"}, {"|3", *instead}});
    if (frame.show(question, style::YesNo + style::Question) != answer::Yes)
        frame.state.Language = gone;
}

void loadSettings(Frame& frame, const ProgramFolders& folders) {
    AppState& state = frame.state;
    state.ExePath = inProgramFolder(frame, folders.executableName) + ".exe";
    state.ExecutableFolder = folders.executable;
    setHelpFile(frame);
    state.MainReady = false;
    provideSettings(frame);
    tellSettingsTooLarge(frame);
    cleanUpAfterInstallation(frame);
    readSettings(frame);
    // the second makes the key in the settings of an older release
    frame.profiles.WriteIniValues(
        {generalValue("Inst", "0"), generalValue("PassIsBadCoupling", state.PassIsBadCoupling ? "1" : "0")},
        state.IniPath);
    makeBackupFolder(frame);
}

std::string knownSimulator(Frame& frame) {
    const std::string kept = folderSetting(frame, "InstallDir");
    return kept.empty()
               ? existingFolder(frame.files, ReadRegistryString(frame.registry, RegistryHive::LocalMachine,
                                                                SimulatorKey, "Path"))
               : kept;
}

std::string knownTrainStore(Frame& frame) {
    return folderSetting(frame, "TStoreDir");
}

bool findRoots(Frame& frame) {
    AppState& state = frame.state;
    state.ProgramFilesDir =
        ReadRegistryString(frame.registry, RegistryHive::LocalMachine, WindowsKey, "ProgramFilesDir");
    state.roots.RootMSTS = knownSimulator(frame);
    if (state.roots.RootMSTS.empty())
        state.roots.RootMSTS = askForSimulator(frame);
    if (state.roots.RootMSTS.empty()) {
        frame.show(frame.text(message::SimulatorNotFound, {{"|1", SimulatorName}, {"|2", "\n"}}),
                   style::Exclamation);
        return false;
    }
    state.roots.RootTStore = knownTrainStore(frame);
    assignRoots(frame);
    return true;
}

void assignRoots(Frame& frame) {
    // A Train Store that there isn't can't come first.
    const bool simulatorFirst = frame.state.roots.RootTStore.empty() || flag(frame, "InitialiseMSTS");
    frame.state.roots.first = simulatorFirst ? Root::Simulator : Root::Store;
}

std::string consistFromCommandLine(Frame& frame, std::string_view argument) {
    const std::string cleaned(CleanValue(argument));
    if (cleaned.empty())
        return {};
    const std::string path = ExpandLongPath(cleaned);
    if (isConsistFile(frame, path))
        return path;
    // a name that begins with a bracket, which cleaning takes away
    const std::string asGiven = ExpandLongPath(argument);
    return isConsistFile(frame, asGiven) ? asGiven : std::string();
}

void writeClosingSettings(Frame& frame, std::vector<IniValue> alsoKept) {
    for (const Setting& row : GeneralSettings) {
        if (!row.keptAtClose)
            continue;
        const std::string& text = row.keptAtClose(frame.state);
        const bool isFolder = row.kind == SettingKind::Folder && !text.empty();
        alsoKept.push_back(generalValue(row.key, isFolder ? frame.files.nativePath(text) : text));
    }
    frame.profiles.WriteIniValues(alsoKept, frame.state.IniPath);
}

} // namespace zandor
