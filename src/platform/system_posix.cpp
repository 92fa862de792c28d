#include "platform/system.h"

#include "platform/sim_path.h"

#include <filesystem>
#include <stdlib.h>

#include <pwd.h>
#include <unistd.h>

namespace zandor {

namespace {

namespace disk = std::filesystem;

std::string environment(const char* name) {
    const char* value = getenv(name);
    return value ? value : "";
}

std::string homeFolder() {
    std::string home = environment("HOME");
    if (home.empty())
        if (const passwd* user = getpwuid(getuid()))
            home = user->pw_dir;
    return home;
}

std::string withoutTrailingSeparators(std::string path) {
    while (path.size() > 1 && path.ends_with('/'))
        path.pop_back();
    return path;
}

std::string absolutePath(const std::string& path) {
    std::error_code error;
    const disk::path absolute = disk::absolute(path, error);
    return withoutTrailingSeparators(error ? path : absolute.lexically_normal().string());
}

std::string dataFolder() {
    const std::string data = environment("XDG_DATA_HOME");
    return data.starts_with('/') ? data : homeFolder() + "/.local/share";
}

std::string chooseProgramFolder(const std::string& executableFolder) {
    const std::string home = environment("ZANDOR_HOME");
    if (!home.empty())
        return absolutePath(home);
    if (!executableFolder.empty() && access(executableFolder.c_str(), W_OK) == 0)
        return executableFolder;
    return withoutTrailingSeparators(dataFolder()) + "/zandor";
}

} // namespace

std::string winePrefixFolder() {
    const std::string prefix = environment("WINEPREFIX");
    if (!prefix.empty())
        return absolutePath(prefix);
    std::error_code error;
    const std::string usual = homeFolder() + "/.wine";
    return disk::is_directory(usual, error) ? usual : std::string();
}

ProgramFolders findProgramFolders() {
    std::error_code error;
    const disk::path executable = disk::read_symlink("/proc/self/exe", error);
    ProgramFolders folders{{}, executable.parent_path().string(), executable.filename().string()};
    folders.program = chooseProgramFolder(folders.executable);
    disk::create_directories(folders.program, error);
    return folders;
}

bool provideShippedFile(FileSystem& files, const ProgramFolders& folders, std::string_view name) {
    const std::string wanted = AddBackslash(folders.program).append(name);
    return FileExists(files, wanted) ||
           CopyFileOver(files, AddBackslash(folders.executable).append(name), wanted);
}

std::string GetTempFolder() {
    std::string folder = environment("TMPDIR");
    if (folder.empty())
        folder = "/tmp";
    if (folder.size() > 1 && folder.ends_with('/'))
        folder.pop_back();
    return folder;
}

std::string ExpandLongPath(std::string_view path) {
    if (path.empty() || parseSimPath(path).rooted)
        return std::string(path);
    std::error_code error;
    const disk::path here = disk::current_path(error);
    if (error)
        return std::string(path);
    return path.find('\\') == std::string_view::npos ? (here / path).lexically_normal().string()
                                                     : (here / path).string();
}

} // namespace zandor
