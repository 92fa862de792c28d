// The disk of a system whose names are case-sensitive.
#include "platform/real_file_system.h"

#include "platform/descriptor_posix.h"
#include "platform/path_resolver.h"
#include "platform/replacement_posix.h"

#include <algorithm>
#include <errno.h>
#include <new>
#include <stdio.h>
#include <stdlib.h>

#include <sys/stat.h>

namespace zandor {

namespace {

constexpr std::size_t kReadBuffer = std::size_t(1) << 20; // above nearly every file of the simulator

int openFile(const std::string& path, int flags) {
    return openAt(AT_FDCWD, path.c_str(), flags);
}

ssize_t readAt(int file, char* buffer, std::size_t offset, std::size_t most = kReadBuffer) {
    ssize_t count;
    do
        count = ::pread(file, buffer, most, off_t(offset));
    while (count < 0 && errno == EINTR);
    return count;
}

// Some file systems can't do this: that is no failure.
void syncFolder(const std::string& path) {
    const Descriptor folder(openFile(path, O_RDONLY | O_DIRECTORY));
    ::fsync(folder.get());
}

bool isReadOnly(const ResolvedPath& place) {
    return place.exists && (place.info.st_mode & S_IWUSR) == 0;
}

// From the mode bits when they leave no doubt, so that this costs a system call for few files only.
bool isReadable(const ResolvedPath& place) {
    constexpr mode_t everybody = S_IRUSR | S_IRGRP | S_IROTH;
    const mode_t mode = place.info.st_mode;
    if ((mode & everybody) == everybody || ((mode & S_IRUSR) && place.info.st_uid == geteuid()))
        return true;
    return faccessat(AT_FDCWD, place.real.c_str(), R_OK, AT_EACCESS) == 0;
}

// The file that the links at the end of the path lead to, or nothing when that can't be told.
std::string followLinks(const std::string& path) {
    char* real = realpath(path.c_str(), nullptr);
    std::string target = real ? real : "";
    free(real);
    return target;
}

class RealFileSystem final : public FileSystem {
  public:
    RealFileSystem(const std::string& winePrefix, NamelessFiles nameless)
        : winePrefix_(winePrefix), resolver_(winePrefix), nameless_(nameless),
          buffer_(std::make_unique_for_overwrite<char[]>(kReadBuffer)) {}

    // It learns of the folders anew: what this one keeps of them can't be looked at by another thread.
    std::unique_ptr<FileSystem> anotherDoor() override {
        return std::make_unique<RealFileSystem>(winePrefix_, nameless_);
    }
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
    const ResolvedPath& resolve(std::string_view path) {
        resolver_.resolve(path, place_);
        return place_;
    }
    int openForReading(std::string_view path);
    ReadResult readOpened(int file, std::string& bytes, std::uint64_t limit);
    ReadResult readStartOf(int file, std::string& bytes, std::size_t most);
    ReadResult readRest(int file, std::string& bytes, std::uint64_t limit);
    bool isFolder(const KeptFolder& folder, const KeptName& name) const;

    const std::string winePrefix_;
    PathResolver resolver_;
    const NamelessFiles nameless_;
    ResolvedPath place_;             // of the last look-up; storage used again
    std::unique_ptr<char[]> buffer_; // of kReadBuffer bytes
};

int RealFileSystem::openForReading(std::string_view path) {
    if (const std::string* spelled = resolver_.asSpelled(path)) {
        const int file = openFile(*spelled, O_RDONLY);
        if (file >= 0)
            return file;
    }
    return resolve(path).isFile() ? openFile(place_.real, O_RDONLY) : -1;
}

// A file is read until nothing comes: over a network a read may come short before the end. Reading at an
// offset fails for a pipe or terminal, and for a folder; what else isn't a plain file reads as nothing or
// without an end, and is asked what it is.
ReadResult RealFileSystem::readOpened(int file, std::string& bytes, std::uint64_t limit) {
    const ssize_t count = readAt(file, buffer_.get(), 0);
    if (count < 0)
        return ReadResult::Unreadable;
    if (std::size_t(count) > limit)
        return ReadResult::TooLarge;
    bytes.assign(buffer_.get(), std::size_t(count));
    if (count > 0 && std::size_t(count) < kReadBuffer && readAt(file, buffer_.get(), bytes.size()) == 0)
        return ReadResult::Done;
    return readRest(file, bytes, limit);
}

// The size is asked for only here, where few files come: a file may also grow while it is read.
ReadResult RealFileSystem::readRest(int file, std::string& bytes, std::uint64_t limit) {
    struct stat info;
    if (fstat(file, &info) != 0 || !S_ISREG(info.st_mode))
        return ReadResult::Unreadable;
    if (std::uint64_t(info.st_size) > limit)
        return ReadResult::TooLarge;
    bytes.reserve(std::size_t(info.st_size));
    while (!bytes.empty()) {
        const ssize_t count = readAt(file, buffer_.get(), bytes.size());
        if (count <= 0)
            return count == 0 ? ReadResult::Done : ReadResult::Unreadable;
        if (bytes.size() + std::size_t(count) > limit)
            return ReadResult::TooLarge;
        bytes.append(buffer_.get(), std::size_t(count));
    }
    return ReadResult::Done;
}

ReadResult RealFileSystem::read(std::string_view path, std::string& bytes, std::uint64_t limit) {
    ReadResult result = ReadResult::NoMemory;
    try {
        const Descriptor file(openForReading(path));
        if (file.isOpen())
            result = readOpened(file.get(), bytes, limit);
        else
            result = place_.exists ? ReadResult::Unreadable : ReadResult::Missing;
    } catch (const std::bad_alloc&) {
        bytes = std::string(); // what it held may be what others lack
    }
    if (result != ReadResult::Done)
        bytes.clear();
    return result;
}

// What is no plain file is told by its beginning, as in a whole read: it fails, or reads as nothing.
ReadResult RealFileSystem::readStartOf(int file, std::string& bytes, std::size_t most) {
    bytes.clear();
    while (bytes.size() < most) {
        const std::size_t wanted = std::min(kReadBuffer, most - bytes.size());
        const ssize_t count = readAt(file, buffer_.get(), bytes.size(), wanted);
        if (count < 0)
            return ReadResult::Unreadable;
        if (count == 0)
            return bytes.empty() ? readRest(file, bytes, 0) : ReadResult::Done;
        bytes.append(buffer_.get(), std::size_t(count));
    }
    return ReadResult::Done;
}

ReadResult RealFileSystem::readStart(std::string_view path, std::string& bytes, std::size_t count) {
    ReadResult result = ReadResult::NoMemory;
    try {
        const Descriptor file(openForReading(path));
        if (file.isOpen())
            result = readStartOf(file.get(), bytes, count);
        else
            result = place_.exists ? ReadResult::Unreadable : ReadResult::Missing;
    } catch (const std::bad_alloc&) {
        bytes = std::string();
    }
    if (result != ReadResult::Done)
        bytes.clear();
    return result;
}

bool RealFileSystem::fileExists(std::string_view path) {
    return resolve(path).isFile() && isReadable(place_);
}

bool RealFileSystem::folderExists(std::string_view path) {
    return resolve(path).isFolder();
}

bool RealFileSystem::isOwnFolder(std::string_view path) {
    struct stat info;
    return resolve(path).isFolder() && lstat(place_.real.c_str(), &info) == 0 && S_ISDIR(info.st_mode) &&
           info.st_uid == geteuid();
}

std::optional<FileStamp> RealFileSystem::stamp(std::string_view path) {
    if (!resolve(path).isFile())
        return std::nullopt;
    const timespec& modified = place_.info.st_mtim;
    return FileStamp{modified.tv_sec * std::int64_t(1'000'000'000) + modified.tv_nsec,
                     std::uint64_t(place_.info.st_size)};
}

bool RealFileSystem::isFolder(const KeptFolder& folder, const KeptName& name) const {
    struct stat info;
    if (name.kind == KeptName::Unknown)
        return stat((folder.path() + name.bytes()).c_str(), &info) == 0 && S_ISDIR(info.st_mode);
    return name.kind == KeptName::Folder;
}

std::vector<FolderEntry> RealFileSystem::listFolder(std::string_view path) {
    std::vector<FolderEntry> entries;
    KeptFolder* folder = resolver_.resolveFolder(path);
    if (!folder)
        return entries;
    const std::vector<KeptName>& names = folder->names();
    entries.reserve(names.size());
    for (const KeptName& name : names)
        entries.push_back({name.shown, isFolder(*folder, name)});
    return entries;
}

// A link at the end of the path stays one: the file that it leads to is replaced, in its own folder.
bool RealFileSystem::replaceFile(std::string_view path, std::string_view bytes, ReadOnly readOnly) {
    resolve(path);
    if (!place_.folder || (place_.exists && !place_.isFile()) ||
        (readOnly == ReadOnly::Refused && isReadOnly(place_)))
        return false;
    const std::string target = place_.exists ? followLinks(place_.real) : place_.real;
    place_.folder->forget();
    return !target.empty() && putInPlace(target, place_.exists ? &place_.info : nullptr, bytes, nameless_);
}

bool RealFileSystem::deleteFile(std::string_view path) {
    if (!resolve(path).isFile() || isReadOnly(place_))
        return false;
    place_.folder->forget();
    return ::unlink(place_.real.c_str()) == 0;
}

bool RealFileSystem::createFolder(std::string_view path) {
    resolve(path);
    if (place_.exists || !place_.folder)
        return place_.isFolder();
    place_.folder->forget();
    if (::mkdir(place_.real.c_str(), 0777) != 0)
        return false;
    syncFolder(place_.folder->path());
    return true;
}

bool RealFileSystem::deleteFolder(std::string_view path) {
    if (!resolve(path).isFolder())
        return false;
    place_.folder->forget();
    resolver_.forgetFolders();
    return ::rmdir(place_.real.c_str()) == 0;
}

std::string RealFileSystem::nativePath(std::string_view path) {
    return resolver_.describe(path);
}

} // namespace

std::unique_ptr<FileSystem> makeRealFileSystem(const std::string& winePrefix, NamelessFiles nameless) {
    return std::make_unique<RealFileSystem>(winePrefix, nameless);
}

} // namespace zandor
