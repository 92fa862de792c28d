// Where this process stands on its system: folders, environment, the long form of a path. Paths are UTF-8.
#pragma once

#include "platform/file_system.h"

#include <string>
#include <string_view>

namespace zandor {

// To be called once, when the process starts: a limit on the size of files then fails a write, as a full disk
// does, in place of ending the program.
void tellSizeLimitsAsErrors();

// $WINEPREFIX, else ~/.wine when that exists, else empty; a native path.
std::string winePrefixFolder();

// Where the user's own programs keep data for the whole desktop: $XDG_DATA_HOME, by default ~/.local/share.
std::string userDataFolder();

// Native paths without a trailing separator.
struct ProgramFolders {
    std::string program;    // of the settings and all else that is written
    std::string executable; // that the executable stands in
    std::string executableName;
    std::string shared = {}; // ../share/zandor beside it, which an installed program has; empty: it isn't one
};
// The program folder, made when missing, is $ZANDOR_HOME, else the executable's when the program isn't an
// installed one and may write there, else the folder zandor of the user's data.
ProgramFolders findProgramFolders();
ProgramFolders findProgramFolders(const std::string& executable); // of the executable with this native path
std::string executablePath(const ProgramFolders& folders);        // native

// A file that comes with the program, such as Langues.lng: the user's own in the program folder, else the one
// as shipped, which a newer release brings up to date. Empty: there is none.
std::string findShippedFile(FileSystem& files, const ProgramFolders& folders, std::string_view name);

std::string GetTempFolder(); // without a trailing separator, in upper case where the system ignores case

// A path that a person or the shell gave, made absolute against the current folder.
std::string ExpandLongPath(std::string_view path);

// True when what goes to the standard error output is seen at once, by a person.
bool errorsGoToTerminal();

} // namespace zandor
