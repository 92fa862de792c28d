#include "frame/startup.h"

#include "text/decode.h"
#include "text/lines.h"

namespace zandor {

namespace {

constexpr std::string_view SimulatorKey = "SOFTWARE\\Microsoft\\Microsoft Games\\Train Simulator\\1.0";
constexpr std::string_view WindowsKey = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion";
constexpr std::string_view SimulatorName = "Microsoft Train Simulator";

std::string setting(const Frame& frame, std::string_view key) {
    return frame.profiles.ReadIniValue(GeneralSection, key, frame.state.IniPath);
}

void writeSetting(Frame& frame, std::string_view key, std::string_view value) {
    frame.profiles.WriteIniValue(GeneralSection, key, value, frame.state.IniPath);
}

// A folder as a person would write it; an empty text stays one.
void writeFolderSetting(Frame& frame, std::string_view key, const std::string& folder) {
    writeSetting(frame, key, folder.empty() ? std::string() : frame.files.nativePath(folder));
}

std::string inProgramFolder(const Frame& frame, std::string_view name) {
    return frame.state.ProgramFolder + "\\" + std::string(name);
}

std::string_view withoutTrailingSeparators(std::string_view path) {
    return path.substr(0, path.find_last_not_of("\\/") + 1);
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
    if (frame.files.readFile(path, bytes)) {
        decodeSettingsText(bytes, text);
        if (!hasLineBeginning(text, "ControlThumbnails"))
            writeSetting(frame, "ControlThumbnails", "1");
    } else if (!frame.files.stamp(path) && !FileExists(frame.files, path)) {
        WriteDefaultIni(frame.files, path, frame.state.Title, frame.state.ProgramFolder);
    }
}

// What the installer has unpacked is of no more use at the first start.
void cleanUpAfterInstallation(Frame& frame) {
    const std::string folder = GetTempFolder() + "\\QX_Setup";
    if (readNumericFlag(frame.profiles, "Inst", frame.state.IniPath) && FolderExists(frame.files, folder)) {
        for (const FolderEntry& entry : frame.files.listFolder(folder))
            if (!entry.isFolder)
                frame.files.deleteFile(folder + "\\" + entry.name);
        frame.files.deleteFolder(folder);
    }
    writeSetting(frame, "Inst", "0");
}

void readFlags(Frame& frame) {
    struct ExactFlag {
        bool AppState::*flag;
        std::string_view key;
    };
    constexpr ExactFlag flags[] = {{&AppState::PassIsBadCoupling, "PassIsBadCoupling"},
                                   {&AppState::Optimize, "Optimize"},
                                   {&AppState::PrintGreen, "PrintGreen"},
                                   {&AppState::UseCanvas, "sfCanvas"},
                                   {&AppState::PrintNumber, "PrintNumber"}};
    for (const ExactFlag& row : flags)
        frame.state.*row.flag = readExactFlag(frame.profiles, row.key, frame.state.IniPath);
    // makes the key in the settings of an older release
    writeSetting(frame, "PassIsBadCoupling", frame.state.PassIsBadCoupling ? "1" : "0");
}

void setBackupFolder(Frame& frame) {
    const std::string kept = setting(frame, "Backup");
    if (!kept.empty()) {
        frame.state.BackupDir = AddBackslash(withoutTrailingSeparators(kept));
        return;
    }
    frame.state.BackupDir = inProgramFolder(frame, "Backup\\");
    if (!FolderExists(frame.files, frame.state.BackupDir))
        frame.files.createFolder(frame.state.BackupDir);
}

// A folder of the settings; empty when it is no longer there.
std::string folderSetting(const Frame& frame, std::string_view key) {
    const std::string value = setting(frame, key);
    return FolderExists(frame.files, value) ? std::string(withoutTrailingSeparators(value)) : std::string();
}

std::string simulatorOfRegistry(Frame& frame) {
    const std::string path =
        ReadRegistryString(frame.registry, RegistryHive::LocalMachine, SimulatorKey, "Path");
    return FolderExists(frame.files, path) ? std::string(withoutTrailingSeparators(path)) : std::string();
}

// The folder of the train.exe that the user shows; empty when the user cancelled.
std::string askForSimulator(Frame& frame) {
    const auto chosen = frame.dialogs.askOpenFile(
        frame.text(Message::FindSimulator), frame.text(Message::ExecutableFilter, {{"|1", "(*.exe)|*.exe"}}),
        frame.state.ProgramFilesDir, "train.exe");
    if (!chosen)
        return {};
    const std::string_view path = *chosen;
    return std::string(withoutTrailingSeparators(path.substr(0, path.size() - GetFileName(path).size())));
}

bool isConsistFile(Frame& frame, std::string_view path) {
    return endsWithIgnoringCase(path, ".con") && FileExists(frame.files, path);
}

} // namespace

std::string makeTitle() {
    return "Zandor " + std::to_string(VersionMajor) + "." + std::to_string(VersionMinor) +
           std::to_string(VersionRevision);
}

bool prepareStart(Frame& frame, const ProgramFolders& folders) {
    AppState& state = frame.state;
    state.Title = makeTitle();
    state.ProgramFolder = folders.program;
    state.IniPath = inProgramFolder(frame, "Zandor.ini");
    if (!provideShippedFile(frame.files, folders, "Langues.lng"))
        return false;
    state.LanguagePath = inProgramFolder(frame, "Langues.lng");
    const std::string language = setting(frame, "Langage");
    state.Language = language.empty() ? "Français" : language;
    return true;
}

void loadSettings(Frame& frame, const ProgramFolders& folders) {
    AppState& state = frame.state;
    state.PassIsBadCoupling = false;
    state.ExePath = inProgramFolder(frame, folders.executableName) + ".exe";
    setHelpFile(frame);
    state.MainReady = false;
    state.PrintName = false;
    provideSettings(frame);
    state.PrintName = readNumericFlag(frame.profiles, "PrintName", state.IniPath);
    state.NoAlertCoupling = readNumericFlag(frame.profiles, "NoAlertCoupling", state.IniPath);
    cleanUpAfterInstallation(frame);
    readFlags(frame);
    setBackupFolder(frame);
    state.HasFile = false;
}

bool findRoots(Frame& frame) {
    AppState& state = frame.state;
    state.ProgramFilesDir =
        ReadRegistryString(frame.registry, RegistryHive::LocalMachine, WindowsKey, "ProgramFilesDir");
    state.RootMSTS = folderSetting(frame, "InstallDir");
    if (state.RootMSTS.empty())
        state.RootMSTS = simulatorOfRegistry(frame);
    if (state.RootMSTS.empty())
        state.RootMSTS = askForSimulator(frame);
    if (state.RootMSTS.empty()) {
        frame.show(frame.text(Message::SimulatorNotFound, {{"|1", SimulatorName}, {"|2", "\n"}}),
                   style::Exclamation);
        return false;
    }
    state.RootTStore = folderSetting(frame, "TStoreDir");
    assignRoots(frame);
    return true;
}

void assignRoots(Frame& frame) {
    AppState& state = frame.state;
    const bool simulatorFirst = readNumericFlag(frame.profiles, "InitialiseMSTS", state.IniPath);
    state.RootPrimary = simulatorFirst ? state.RootMSTS : state.RootTStore;
    state.RootSecondary = simulatorFirst ? state.RootTStore : state.RootMSTS;
}

std::string consistFromCommandLine(Frame& frame, std::string_view argument) {
    const std::string cleaned = CleanValue(argument);
    if (cleaned.empty())
        return {};
    const std::string path = ExpandLongPath(cleaned);
    if (isConsistFile(frame, path))
        return path;
    // a name that begins with a bracket, which cleaning takes away
    const std::string asGiven = ExpandLongPath(argument);
    return isConsistFile(frame, asGiven) ? asGiven : std::string();
}

bool AskSaveChanges(Frame& frame, const std::string& consistName) {
    if (!frame.state.Modified)
        return false;
    const std::string question = frame.state.HasFile
                                     ? frame.text(Message::AskSaveExisting, {{"|1", consistName}})
                                     : frame.text(Message::AskSaveNew);
    const int given = frame.show(question, style::YesNo + style::Question);
    frame.state.LastAnswer = std::to_string(given);
    return given == answer::Yes;
}

void writeClosingSettings(Frame& frame) {
    frame.state.HasFile = false;
    writeFolderSetting(frame, "InstallDir", frame.state.RootMSTS);
    writeFolderSetting(frame, "TStoreDir", frame.state.RootTStore);
    writeSetting(frame, "Langage", frame.state.Language);
}

} // namespace zandor
