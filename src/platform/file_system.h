// The one door to the disk. Paths are the simulator's: UTF-8, "\" between the components, any case.
// Every look-up finds what the simulator would find on its own system: a name that exists exactly wins,
// otherwise one that differs only in case. "." and ".." components and doubled separators are resolved.
// "/" is accepted as a separator too, so that a path of this system's own shell works as it stands.
#pragma once

#include <cstdint>
#include <memory>
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

// How a read ended. Missing: the path names nothing. Unreadable: what it names is no file, may not be read,
// or the disk failed.
enum class ReadResult { Done, Missing, Unreadable, TooLarge, NoMemory };
inline constexpr std::uint64_t LargestRead = std::uint64_t(2) << 30; // bytes

// What becomes of a read-only file that is to be replaced. Kept: it is, and stays read-only all the while.
enum class ReadOnly { Refused, Kept };

class FileSystem {
  public:
    virtual ~FileSystem() = default;

    // The same files for another thread, which may use it while this one is used: no other door serves two
    // threads. nullptr: there is this one only.
    virtual std::unique_ptr<FileSystem> anotherDoor() { return nullptr; }

    // Reads a whole file into `bytes` (its storage is used again), which stay empty unless it is done. A file
    // of more than `limit` bytes is too large, and takes no memory.
    virtual ReadResult read(std::string_view path, std::string& bytes, std::uint64_t limit) = 0;
    // Reads the first `count` bytes at most; fewer are the whole file. Nothing but these is read from the
    // disk.
    virtual ReadResult readStart(std::string_view path, std::string& bytes, std::size_t count) = 0;
    bool readFile(std::string_view path, std::string& bytes) {
        return read(path, bytes, LargestRead) == ReadResult::Done;
    }
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

    // Makes the file hold exactly `bytes` so that at every moment, and after a failure of any step, either
    // the old or the new contents stand whole under its name, and nothing else beside it. They are on the
    // disk before it returns true. A new file gets the case asked for; an existing one keeps its own, with
    // its permissions. False: the old contents stand.
    virtual bool replaceFile(std::string_view path, std::string_view bytes, ReadOnly readOnly) = 0;
    virtual bool deleteFile(std::string_view path) = 0; // not a read-only one
    // Makes one folder, in the existing folder above it; true also when it exists already.
    virtual bool createFolder(std::string_view path) = 0;
    virtual bool deleteFolder(std::string_view path) = 0; // only an empty one

    // The path as a person of this system would write it, for messages and settings.
    virtual std::string nativePath(std::string_view path) = 0;
};

// The same; a path without a file's name is refused.
bool replaceFile(FileSystem& files, std::string_view path, std::string_view bytes,
                 ReadOnly readOnly = ReadOnly::Refused);

// Copies over an existing target, whose old contents survive a failure.
bool CopyFileOver(FileSystem& files, std::string_view source, std::string_view target);

// Names of the folder's files that end in `extension` (such as ".eng"), case ignored, in listing order.
std::vector<std::string> listFiles(FileSystem& files, std::string_view folder, std::string_view extension);

// The file's size in megabytes, rounded up, for messages; "0" when there is no such file.
std::string megabytesOf(FileSystem& files, std::string_view path);
std::string megabytesOf(std::uint64_t bytes);

bool FileExists(FileSystem& files, std::string_view path);   // one trailing "\" is dropped first
bool isThere(FileSystem& files, std::string_view path);      // also a file that can't be opened
bool FolderExists(FileSystem& files, std::string_view path); // false for an empty text

std::string AddBackslash(std::string_view path); // trims blanks, then ends the path in "\"
std::string GetFileName(std::string_view path);  // what stands behind the last "/" or "\"

} // namespace zandor
