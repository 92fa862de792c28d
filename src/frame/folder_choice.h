// What the folder windows offer and keep, apart from the windows. Paths are the program's.
#pragma once

#include "frame/frame.h"

#include <string>
#include <string_view>
#include <vector>

namespace zandor {

// How a folder window begins.
struct FolderChoice {
    Message title;
    std::string start;            // the folder shown first; always exists unless nothing does
    bool mayAcceptAtOnce = false; // the proposed folder is as good as one that the user goes to
};

// For the simulator's or Train Store's folder, by EditingMstsPath.
FolderChoice chooseRootFolder(Frame& frame);
// For the backup folder; the default one is made when it is missing.
FolderChoice chooseBackupFolder(Frame& frame);

// Keep what was chosen in the run-wide state; an empty text changes nothing.
void acceptRootFolder(AppState& state, std::string_view path);
void acceptBackupFolder(AppState& state, std::string_view path);

// A name to show and where it leads.
struct FolderPlace {
    std::string name;
    std::string path; // without a trailing separator, but for a root
    bool operator==(const FolderPlace&) const = default;
};

// Where a search for folders can begin: the root, the home folder, mounted volumes, the drives of the Wine
// prefix. May take long when a volume doesn't answer.
std::vector<FolderPlace> listDrives(FileSystem& files, std::string_view home, std::string_view winePrefix);
// The folder's folders by name; those that the system hides come last. May take long as well.
std::vector<FolderPlace> listSubFolders(FileSystem& files, std::string_view path);
// The folders above it from the root on, and the folder itself last.
std::vector<FolderPlace> foldersAbove(std::string_view path);
// The drive that the path stands on: the nearest above it. -1: none of them.
int driveOf(const std::vector<FolderPlace>& drives, std::string_view path);

} // namespace zandor
