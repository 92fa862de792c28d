// The one door to the disk. Paths are the simulator's: UTF-8, "\" between the components, any case.
// Every look-up finds what the simulator would find on its own system: a name that exists exactly wins,
// otherwise one that differs only in case. "." and ".." components and doubled separators are resolved.
// "/" is accepted as a separator too, so that a path of this system's own shell works as it stands.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zandor {

struct FolderEntry {
    std::string name; // as spelled on the disk; UTF-8
    bool isFolder = false;
};

// What tells whether a file is still the one read before.
struct FileStamp {
    std::int64_t modified = 0; // nanoseconds since the epoch
    std::uint64_t size = 0;    // bytes
    bool operator==(const FileStamp&) const = default;
};

// A file's attributes as the simulator's system knows them. A system that lacks one leaves it false.
struct FileAttributes {
    bool readOnly = false;
    bool operator==(const FileAttributes&) const = default;
};

class FileSystem {
  public:
    virtual ~FileSystem() = default;

    // Reads a whole file into `bytes` (its storage is used again); false, and `bytes` empty, when it can't be
    // opened or read to its end.
    virtual bool readFile(std::string_view path, std::string& bytes) = 0;
    // True when the path names a file that can be opened for reading.
    virtual bool fileExists(std::string_view path) = 0;
    virtual bool folderExists(std::string_view path) = 0;
    // True for a folder that this user made: not a link to one, nor what another user put there.
    virtual bool isOwnFolder(std::string_view path) = 0;
    // Size and time of a file or nothing when there is no such file.
    virtual std::optional<FileStamp> stamp(std::string_view path) = 0;
    // Files and folders of a folder, without "." and "..", by name with case ignored. Empty when it can't be
    // read.
    virtual std::vector<FolderEntry> listFolder(std::string_view path) = 0;

    // Makes the file hold exactly `bytes`, in the case asked for when it is new, and has them on the disk
    // before it returns true. Not atomic: replaceFile() is the way to write over something that matters.
    virtual bool writeFile(std::string_view path, std::string_view bytes) = 0;
    virtual bool deleteFile(std::string_view path) = 0;
    // Renames a file within its folder or to another one of the same disk, over an existing file when there
    // is one.
    virtual bool renameFile(std::string_view from, std::string_view to) = 0;
    // Makes one folder, in the existing folder above it; true also when it exists already.
    virtual bool createFolder(std::string_view path) = 0;
    virtual bool deleteFolder(std::string_view path) = 0; // only an empty one
    virtual FileAttributes attributes(std::string_view path) = 0;
    virtual bool setAttributes(std::string_view path, FileAttributes attributes) = 0;

    // The path as a person of this system would write it, for messages and settings.
    virtual std::string nativePath(std::string_view path) = 0;
};

// Puts new contents in a file's place so that at every moment, and after a failure of any step, either the
// old or the new contents stand whole under the file's name. A new file gets the case asked for, an existing
// one keeps its own. A read-only file is refused. False: the old contents stand.
bool replaceFile(FileSystem& files, std::string_view path, std::string_view bytes);

// Copies over an existing target, whose old contents survive a failure.
bool CopyFileOver(FileSystem& files, std::string_view source, std::string_view target);

// Names of the folder's files that end in `extension` (such as ".eng"), case ignored, in listing order.
std::vector<std::string> listFiles(FileSystem& files, std::string_view folder, std::string_view extension);

bool FileExists(FileSystem& files, std::string_view path);   // one trailing "\" is dropped first
bool FolderExists(FileSystem& files, std::string_view path); // false for an empty text

std::string AddBackslash(std::string_view path); // trims blanks, then ends the path in "\"
std::string GetFileName(std::string_view path);  // what stands behind the last "/" or "\"

} // namespace zandor
