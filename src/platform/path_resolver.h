// Finds the real file or folder that a simulator path names on a case-sensitive system.
#pragma once

#include "platform/kept_folder.h"
#include "platform/letter_case.h"
#include "platform/sim_path.h"

#include <chrono>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include <sys/stat.h>

namespace zandor {

// Where a path leads. Without a folder there is none that could hold the name, or it can't be told what it
// holds.
struct ResolvedPath {
    KeptFolder* folder = nullptr; // that holds the name
    std::string real;             // native; for a missing name the one that it would get
    bool exists = false;
    struct stat info {}; // of what exists, links followed

    bool isFile() const { return exists && S_ISREG(info.st_mode); }
    bool isFolder() const { return exists && S_ISDIR(info.st_mode); }
};

class PathResolver {
  public:
    explicit PathResolver(std::string winePrefix) : winePrefix_(std::move(winePrefix)) {}

    void resolve(std::string_view path, ResolvedPath& result);
    // The folder that the path names, or nullptr when it names none.
    KeptFolder* resolveFolder(std::string_view path);
    // The real path spelled as asked, when the folder is known; nullptr when only resolve() can tell.
    const std::string* asSpelled(std::string_view path);
    // The real folder of the path, and behind it what of the path doesn't exist, for people to read.
    std::string describe(std::string_view path);
    // To be called when a folder was deleted.
    void forgetFolders() { folders_.clear(); }

  private:
    using Clock = std::chrono::steady_clock;
    struct Known {
        KeptFolder* folder;
        Clock::time_point checked;
    };

    bool resolveOnce(std::string_view path, ResolvedPath& result);
    KeptFolder* known(std::string_view folderText) const;
    KeptFolder* folderOf(const SimPath& path, std::size_t count, bool& gone);
    KeptFolder* rootOf(const SimPath& path);
    std::string rootPath(const SimPath& path) const;
    KeptFolder* keptFolder(std::string path);
    KeptFolder* remember(std::string_view folderText, KeptFolder* folder);
    NameSearch findIn(KeptFolder& folder, std::string_view name, ResolvedPath& result);

    std::string winePrefix_;
    // By the text of a path up to its last separator, as it was asked and as folderKey() has it.
    std::unordered_map<std::string, Known, TextHash, std::equal_to<>> folders_;
    std::unordered_map<std::string, std::unique_ptr<KeptFolder>> kept_; // by native path
    std::string spelled_, nameBytes_;                                   // storage used again
};

} // namespace zandor
