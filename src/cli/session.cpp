#include "cli/session.h"

#include "frame/startup.h"
#include "simfiles/fault_text.h"
#include "text/control_characters.h"

namespace zandor {

namespace {

std::string settingsPath(const ProgramFolders& folders, const CommonOptions& options) {
    return options.settings.empty() ? folders.program + "\\Zandor.ini" : ExpandLongPath(options.settings);
}

} // namespace

Session::Session(const Surroundings& surroundings, const CommonOptions& options, ResultText& results,
                 std::ostream& errors)
    : result(results), err(errors), options_(options), folders_(surroundings.folders),
      profiles_(surroundings.files), progress_(atWork), dialogs(errors), frame{state,
                                                                               surroundings.files,
                                                                               profiles_,
                                                                               surroundings.registry,
                                                                               surroundings.processes,
                                                                               dialogs,
                                                                               progress_,
                                                                               Language(profiles_, state)} {
    state.Title = makeTitle();
    state.ProgramFolder = folders_.program;
    atWork = state.IniPath = settingsPath(folders_, options);
}

bool Session::prepare(Folders roots) {
    if (!options_.settings.empty() && !FileExists(frame.files, state.IniPath))
        return refuse("There is no settings file " + shown(state.IniPath));
    if (isProfileTooLarge(frame.files, state.IniPath))
        return refuse("The settings file is too large (" + megabytesOf(frame.files, state.IniPath) +
                      " MB): " + shown(state.IniPath));
    readSettings(frame);
    return prepareLanguage() && (roots == Folders::None || prepareRoots(roots));
}

int Session::cannotRun(std::string_view text) {
    err << "zandor-cli: " << oneLine(text) << '\n';
    return exitcode::CannotRun;
}

int Session::fault(std::string_view text) {
    cannotRun(text);
    return exitcode::Faults;
}

bool Session::tell(const Outcome& outcome) {
    for (const Finding& finding : outcome.told)
        dialogs.print(wordFinding(frame, finding), finding.style);
    return outcome.done;
}

bool Session::refuse(std::string_view text) {
    cannotRun(text);
    return false;
}

bool Session::prepareLanguage() {
    state.LanguagePath = findShippedFile(frame.files, folders_, "Langues.lng");
    if (const std::string fault = languageFileFault(frame); !fault.empty())
        return refuse(fault);
    readLanguage(frame);
    if (options_.language.empty()) {
        if (const auto instead = languageInstead(frame)) {
            cannotRun("the language " + state.Language + " isn't in Langues.lng: " + *instead + " serves");
            state.Language = *instead;
        }
        return true;
    }
    std::string known;
    for (const LanguageChoice& choice : frame.language.ListLanguages()) {
        if (equalIgnoringCase(choice.name, options_.language)) {
            state.Language = choice.name;
            return true;
        }
        known += (known.empty() ? "" : ", ") + choice.name;
    }
    return refuse("There is no language \"" + options_.language + "\", but: " + known);
}

bool Session::prepareRoots(Folders roots) {
    if (!takeGivenFolder("--root", options_.root, state.roots.RootMSTS) ||
        !takeGivenFolder("--tstore", options_.tstore, state.roots.RootTStore))
        return false;
    takeRootsOfSettings();
    if (options_.primary.empty() && options_.root.empty())
        assignRoots(frame);
    else
        state.roots.first = equalIgnoringCase(options_.primary, "tstore") ? Root::Store : Root::Simulator;
    if (!state.roots.RootPrimary().empty())
        return roots == Folders::IfKnown ||
               FolderExists(frame.files, state.roots.RootPrimary() + "\\TRAINS") ||
               refuse("There is no TRAINS folder in " + shown(state.roots.RootPrimary()));
    if (roots == Folders::IfKnown)
        return true;
    const bool simulatorWanted =
        state.roots.RootMSTS.empty() && !equalIgnoringCase(options_.primary, "tstore");
    return refuse(std::string(simulatorWanted
                                  ? "No simulator folder is known: give it with --root DIR or as InstallDir"
                                  : "No Train Store folder is known: give it with --tstore DIR or as "
                                    "TStoreDir, or put the simulator first with InitialiseMSTS=1") +
                  " in " + shown(state.IniPath));
}

bool Session::takeGivenFolder(std::string_view option, const std::string& given, std::string& root) {
    if (given.empty())
        return true;
    root = existingFolder(frame.files, ExpandLongPath(given));
    return !root.empty() || refuse(std::string(option) + ": there is no folder " + given);
}

// A simulator folder that was given stands alone: the Train Store of the settings belongs to another one.
void Session::takeRootsOfSettings() {
    if (!options_.root.empty())
        return;
    state.roots.RootMSTS = knownSimulator(frame);
    if (state.roots.RootTStore.empty())
        state.roots.RootTStore = knownTrainStore(frame);
}

int readWholeFile(Session& session, SimReader& reader, const std::string& path, const ReadRequest& request,
                  ReadAnswer& answer) {
    const std::string shown = session.shown(path);
    if (!FileExists(session.frame.files, path))
        return session.cannotRun(
            (session.frame.files.stamp(path) ? "The file can't be read: " : "There is no file ") + shown);
    if (kindOfFile(path) == FileKind::Unknown)
        return session.fault("The simulator has no files of this kind: " + shown);
    answer = reader.ReadSimFile(path, request);
    return answer.accepted() ? exitcode::Done : session.fault(faultOf(session, answer) + ": " + shown);
}

std::string faultOf(const Session& session, const ReadAnswer& answer) {
    switch (answer.outcome) {
    case ReadOutcome::NoFile:
        return "There is no such file";
    case ReadOutcome::Empty:
        return "The file is empty";
    case ReadOutcome::OtherKind:
        return "The file does not begin with the signature of its kind";
    default:
        break;
    }
    const std::string text = faultText(session.frame.language, answer);
    return text.empty() && !answer.sound() ? "Error " + std::to_string(errorNumber(answer)) : text;
}

} // namespace zandor
