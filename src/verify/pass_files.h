// What is there on the disk, as one pass of the verifier sees it: each folder is listed once. Case is
// ignored,
// "/" and ".." are understood; ".." leads out of folders that aren't there too.
#pragma once

#include "platform/file_system.h"
#include "platform/letter_case.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace zandor {

class PassFiles {
  public:
    explicit PassFiles(FileSystem& files) : files_(files) {}
    PassFiles(const PassFiles&) = delete;
    PassFiles& operator=(const PassFiles&) = delete;

    bool fileExists(std::string_view path);
    bool folderExists(std::string_view path);
    // The names of a folder's files that end in `extension` (lower case), as spelled, in listing order.
    std::vector<std::string> filesOf(std::string_view folder, std::string_view extension);
    // After a change to the disk.
    void forget() {
        asAsked_.clear();
        folders_.clear();
    }

    FileSystem& files() { return files_; }

  private:
    struct Folder {
        std::vector<FolderEntry> entries;
        std::unordered_set<std::string> files, folders; // lower case
    };
    const Folder& folder(const std::string& path);
    const Folder* folderAbove(std::string_view path, std::string_view name);

    FileSystem& files_;
    std::unordered_map<std::string, Folder> folders_;
    // The same by every text that they were asked for with: most look-ups repeat one of few.
    std::unordered_map<std::string, const Folder*, TextHash, std::equal_to<>> asAsked_;
};

} // namespace zandor
