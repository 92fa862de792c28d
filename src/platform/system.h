// Where this process stands on its system: folders, environment, the long form of a path. Paths are UTF-8.
#pragma once

#include "platform/file_system.h"

#include <string>
#include <string_view>

namespace zandor {

// $WINEPREFIX, else ~/.wine when that exists, else empty; a native path.
std::string winePrefixFolder();

// The folder of the settings and language file: $ZANDOR_HOME, else the executable's when it can be written
// to, else $XDG_DATA_HOME/zandor (by default ~/.local/share/zandor), made when missing. A native path without
// a trailing separator.
struct ProgramFolders {
    std::string program;    // as above
    std::string executable; // the folder that the executable stands in, where the shipped files are
    std::string executableName;
};
ProgramFolders findProgramFolders();

// Copies a shipped file (such as Langues.lng) from the executable's folder to the program folder when it
// isn't there. True when it stands in the program folder afterwards.
bool provideShippedFile(FileSystem& files, const ProgramFolders& folders, std::string_view name);

std::string GetTempFolder(); // without a trailing separator, in upper case where the system ignores case

// A path that a person or the shell gave, made absolute against the current folder.
std::string ExpandLongPath(std::string_view path);

} // namespace zandor
