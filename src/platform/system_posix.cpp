#include "platform/system.h"

#include "platform/sim_path.h"

#include <filesystem>
#include <signal.h>
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

// Even the superuser keeps his settings out of an installed program's folder.
std::string chooseProgramFolder(const ProgramFolders& folders) {
    const std::string home = environment("ZANDOR_HOME");
    if (!home.empty())
        return absolutePath(home);
    const std::string& beside = folders.executable;
    if (folders.shared.empty() && !beside.empty() && access(beside.c_str(), W_OK) == 0)
        return beside;
    return userDataFolder() + "/zandor";
}

std::string sharedFolder(const disk::path& executable) {
    std::error_code error;
    const disk::path shared = executable.parent_path().parent_path() / "share" / "zandor";
    return disk::is_directory(shared, error) ? shared.string() : std::string();
}

} // namespace

// A handler, since a signal that is ignored would be so in the programs that this one starts too.
void tellSizeLimitsAsErrors() {
    struct sigaction action {};
    action.sa_handler = [](int) {};
    action.sa_flags = SA_RESTART;
    ::sigaction(SIGXFSZ, &action, nullptr);
}

std::string winePrefixFolder() {
    const std::string prefix = environment("WINEPREFIX");
    if (!prefix.empty())
        return absolutePath(prefix);
    std::error_code error;
    const std::string usual = homeFolder() + "/.wine";
    return disk::is_directory(usual, error) ? usual : std::string();
}

std::string userDataFolder() {
    const std::string data = environment("XDG_DATA_HOME");
    return data.starts_with('/') ? withoutTrailingSeparators(data) : homeFolder() + "/.local/share";
}

ProgramFolders findProgramFolders() {
    std::error_code error;
    return findProgramFolders(disk::read_symlink("/proc/self/exe", error).string());
}

ProgramFolders findProgramFolders(const std::string& executable) {
    const disk::path path = executable;
    ProgramFolders folders{{}, path.parent_path().string(), path.filename().string(), sharedFolder(path)};
    folders.program = chooseProgramFolder(folders);
    std::error_code error;
    disk::create_directories(folders.program, error);
    return folders;
}

std::string executablePath(const ProgramFolders& folders) {
    return folders.executable + "/" + folders.executableName;
}

std::string findShippedFile(FileSystem& files, const ProgramFolders& folders, std::string_view name) {
    for (const std::string* folder : {&folders.program, &folders.executable, &folders.shared})
        if (const std::string path = (*folder + "\\").append(name);
            !folder->empty() && FileExists(files, path))
            return path;
    return {};
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

bool errorsGoToTerminal() {
    return isatty(STDERR_FILENO) != 0;
}

} // namespace zandor
