// A disk in memory for tests. It can fail at any call, or refuse everything from some call on.
#pragma once

#include "platform/file_system.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace zandor {

// A file's attributes as the simulator's system knows them.
struct FileAttributes {
    bool readOnly = false;
};

class MemoryFileSystem final : public FileSystem {
  public:
    // ---- what a test sets up and looks at
    void put(std::string_view path, std::string_view bytes); // makes the folders it needs; no call is counted
    std::optional<std::string> get(std::string_view path) const;
    std::vector<std::string> allFiles() const; // spelled as made, in order

    void giveAway(std::string_view path); // the folder is another user's, or a link to one
    FileAttributes attributes(std::string_view path) const;
    bool setAttributes(std::string_view path, FileAttributes attributes);

    // The n-th call from now (1 is the next one) fails; 0 turns it off. Readers count too; a replacement
    // counts twice, as its writing and its renaming. With `andAllAfter` every later call fails as well.
    void failAt(int call, bool andAllAfter = false);
    int calls() const { return calls_; } // since the last failAt()
    bool failed() const { return failed_; }
    std::function<void()> atEachCall; // such as the delay of a slow disk; may be empty
    std::vector<std::string> log;     // one line a call: verb and path, for tests of the order of things

    ReadResult read(std::string_view path, std::string& bytes, std::uint64_t limit) override;
    ReadResult readStart(std::string_view path, std::string& bytes, std::size_t count) override;
    bool fileExists(std::string_view path) override;
    bool folderExists(std::string_view path) override;
    bool isOwnFolder(std::string_view path) override;
    std::optional<FileStamp> stamp(std::string_view path) override;
    std::vector<FolderEntry> listFolder(std::string_view path) override;
    bool replaceFile(std::string_view path, std::string_view bytes, ReadOnly readOnly) override;
    bool deleteFile(std::string_view path) override;
    bool createFolder(std::string_view path) override;
    bool deleteFolder(std::string_view path) override;
    std::string nativePath(std::string_view path) override;

  private:
    struct Node {
        std::string path; // as spelled when made
        std::string bytes;
        std::int64_t modified = 0;
        bool isFolder = false;
        FileAttributes attributes;
        bool foreign = false;
    };
    bool fails(std::string_view verb, std::string_view path);

    std::map<std::string, Node> nodes_; // by normalised, lower-cased path
    std::int64_t clock_ = 1;
    int calls_ = 0;
    int failCall_ = 0;
    bool failAllAfter_ = false;
    bool failed_ = false;
};

} // namespace zandor
