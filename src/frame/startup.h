// Start and close of a run, apart from the windows that drive them.
#pragma once

#include "frame/frame.h"
#include "platform/system.h"

#include <optional>
#include <string>
#include <vector>

namespace zandor {

std::string makeTitle(); // "Zandor 1.00": major, ".", minor and revision without a separator

// The only texts that aren't in the language file.
inline constexpr std::string_view LanguageFileMissing =
    "L'application ne peut démarrer car le fichier de langues n'a pas été trouvé !";
inline constexpr std::string_view LanguageFileTooLarge =
    "L'application ne peut démarrer car le fichier de langues est trop grand";

// Title, settings path, language file and language. False: the process must end; languageFileFault() says
// why.
bool prepareStart(Frame& frame, const ProgramFolders& folders);
// Why the language file of the state can't serve; empty: it can.
std::string languageFileFault(const Frame& frame);
// A settings file that isn't read, since it is too large, is told with its size.
void tellSettingsTooLarge(Frame& frame);

// What the settings say, without a write: the flags, the backup folder, the language.
void readSettings(Frame& frame);
void readLanguage(Frame& frame);
// The language that can serve when the one of the settings isn't in the language file any more and would give
// no texts; nothing when it is there.
std::optional<std::string> languageInstead(const Frame& frame);
// Offers that one. A user who declines it keeps the setting.
void offerKnownLanguage(Frame& frame);
// The settings made complete and read, what an installation left cleaned up, the backup folder made: the
// first steps of the main window's load, in their order.
void loadSettings(Frame& frame, const ProgramFolders& folders);

// The folders of the settings, the simulator's else of the registry; empty when there is none.
std::string knownSimulator(Frame& frame);
std::string knownTrainStore(Frame& frame);
// Without a trailing separator; empty when there is no such folder.
std::string existingFolder(FileSystem& files, std::string_view path);
// Finds both root folders: settings, then the registry, then the user. False: the user cancelled, and was
// told that the system does not run without the simulator's folder.
bool findRoots(Frame& frame);
// Which root comes first, by the setting InitialiseMSTS.
void assignRoots(Frame& frame);

// The `.con` of the command line, cleaned and made absolute; empty when it isn't an existing consist file.
std::string consistFromCommandLine(Frame& frame, std::string_view argument);

// What a close writes: the folders, the language, and what else is to be kept, in one write.
void writeClosingSettings(Frame& frame, std::vector<IniValue> alsoKept = {});

} // namespace zandor
