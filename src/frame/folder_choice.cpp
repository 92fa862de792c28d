#include "frame/folder_choice.h"

#include "frame/messages.h"
#include "frame/startup.h"
#include "platform/sim_path.h"
#include "text/text.h"

#include <algorithm>

namespace zandor {

namespace {

std::string inFolder(std::string_view folder, std::string_view name) {
    std::string path(folder);
    if (path.empty() || (path.back() != '\\' && path.back() != '/'))
        path += '\\';
    return path.append(name);
}

std::string existingOr(const Frame& frame, const std::string& folder, const std::string& otherwise) {
    const std::string existing = existingFolder(frame.files, folder);
    return existing.empty() ? otherwise : existing;
}

std::string& editedRoot(AppState& state) {
    return state.EditingMstsPath ? state.roots.RootMSTS : state.roots.RootTStore;
}

std::string withoutTrailingSeparator(std::string_view path) {
    while (path.size() > 1 && (path.back() == '\\' || path.back() == '/'))
        path.remove_suffix(1);
    return std::string(path);
}

void addPlace(std::vector<FolderPlace>& places, FileSystem& files, const std::string& path) {
    if (!path.empty() && files.folderExists(path))
        places.push_back({files.nativePath(path), path});
}

void addFoldersOf(std::vector<FolderPlace>& places, FileSystem& files, std::string_view folder,
                  std::string_view except = {}) {
    for (const FolderEntry& entry : files.listFolder(folder))
        if (entry.isFolder && entry.name != except)
            addPlace(places, files, inFolder(folder, entry.name));
}

// The letters that the Wine prefix knows, but for the one that only stands for the root.
void addWineDrives(std::vector<FolderPlace>& places, FileSystem& files, std::string_view winePrefix) {
    if (winePrefix.empty())
        return;
    for (const FolderEntry& entry : files.listFolder(inFolder(winePrefix, "dosdevices"))) {
        if (entry.name.size() != 2 || entry.name[1] != ':')
            continue;
        const std::string root = upperCase(entry.name) + "\\";
        if (files.folderExists(root) && files.nativePath(root) != "/")
            places.push_back({upperCase(entry.name), root});
    }
}

bool isHidden(const FolderPlace& place) {
    return place.name.starts_with('.');
}

} // namespace

FolderChoice chooseRootFolder(Frame& frame) {
    AppState& state = frame.state;
    const std::string& current = editedRoot(state);
    const bool none = current.empty();
    return {state.EditingMstsPath ? message::FindSimulator : message::FindTrainStore,
            existingOr(frame, none ? state.ProgramFilesDir : current, state.ProgramFolder), none};
}

FolderChoice chooseBackupFolder(Frame& frame) {
    const AppState& state = frame.state;
    std::string folder = state.BackupDir;
    if (folder.empty()) {
        folder = state.ProgramFolder + "\\Backup";
        frame.files.createFolder(folder);
    }
    return {message::ChooseBackupFolder, existingOr(frame, folder, state.ProgramFolder), false};
}

void acceptRootFolder(AppState& state, std::string_view path) {
    if (!path.empty())
        editedRoot(state) = withoutTrailingSeparator(path);
}

void acceptBackupFolder(AppState& state, std::string_view path) {
    if (!path.empty())
        state.BackupDir = AddBackslash(path);
}

std::vector<FolderPlace> listDrives(FileSystem& files, std::string_view home, std::string_view winePrefix) {
    std::vector<FolderPlace> places;
    addPlace(places, files, "\\");
    addPlace(places, files, std::string(home));
    const std::string_view user = home.substr(home.find_last_of("\\/") + 1);
    // Removable volumes stand below the user's name.
    addFoldersOf(places, files, inFolder("\\media", user));
    addFoldersOf(places, files, inFolder("\\run\\media", user));
    addFoldersOf(places, files, "\\media", user);
    addFoldersOf(places, files, "\\mnt");
    addWineDrives(places, files, winePrefix);
    return places;
}

std::vector<FolderPlace> listSubFolders(FileSystem& files, std::string_view path) {
    std::vector<FolderPlace> folders;
    for (const FolderEntry& entry : files.listFolder(path))
        if (entry.isFolder)
            folders.push_back({entry.name, inFolder(path, entry.name)});
    std::stable_partition(folders.begin(), folders.end(),
                          [](const FolderPlace& place) { return !isHidden(place); });
    return folders;
}

std::vector<FolderPlace> foldersAbove(std::string_view path) {
    const SimPath parsed = parseSimPath(path);
    std::vector<FolderPlace> folders;
    std::string root = "\\";
    if (parsed.drive)
        root = std::string(1, static_cast<char>(parsed.drive - 'a' + 'A')) + ":\\";
    folders.push_back({root == "\\" ? "/" : root, root});
    for (const std::string_view part : parsed.parts)
        folders.push_back({std::string(part), inFolder(folders.back().path, part)});
    return folders;
}

int driveOf(const std::vector<FolderPlace>& drives, std::string_view path) {
    const std::vector<FolderPlace> above = foldersAbove(path);
    for (auto folder = above.rbegin(); folder != above.rend(); ++folder) {
        const auto same = [&](const FolderPlace& drive) {
            return lowerCase(foldersAbove(drive.path).back().path) == lowerCase(folder->path);
        };
        const auto found = std::ranges::find_if(drives, same);
        if (found != drives.end())
            return static_cast<int>(found - drives.begin());
    }
    return -1;
}

} // namespace zandor
