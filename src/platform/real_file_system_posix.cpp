// The disk of a system whose names are case-sensitive.
#include "platform/real_file_system.h"

#include "platform/path_resolver.h"

#include <errno.h>
#include <stdio.h>
#include <stdlib.h>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zandor {

namespace {

constexpr std::size_t kReadBuffer = std::size_t(1) << 20; // above nearly every file of the simulator
constexpr off_t kLargestFile = off_t(2) << 30;
constexpr mode_t kWriteBits = S_IWUSR | S_IWGRP | S_IWOTH;
constexpr mode_t kPermissions = 07777;

// An open file that closes itself.
class Descriptor {
  public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { close(); }

    int get() const { return number_; }
    bool isOpen() const { return number_ >= 0; }
    bool close() {
        const int number = std::exchange(number_, -1);
        return number < 0 || ::close(number) == 0;
    }

  private:
    int number_;
};

int openFile(const std::string& path, int flags) {
    int number;
    do
        number = ::open(path.c_str(), flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, 0666);
    while (number < 0 && errno == EINTR);
    return number;
}

ssize_t readAt(int file, char* buffer, std::size_t offset) {
    ssize_t count;
    do
        count = ::pread(file, buffer, kReadBuffer, off_t(offset));
    while (count < 0 && errno == EINTR);
    return count;
}

bool writeAll(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(file, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR)
            return false;
        bytes.remove_prefix(written > 0 ? std::size_t(written) : 0);
    }
    return true;
}

// Some file systems can't sync a folder, and say so: that is no failure.
bool syncFolder(const std::string& path) {
    const Descriptor folder(openFile(path, O_RDONLY | O_DIRECTORY));
    return folder.isOpen() && (::fsync(folder.get()) == 0 || errno == EINVAL || errno == ENOTSUP);
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

// Owner and permissions of the file that is about to be replaced. Keeping the owner is for the superuser
// only.
void takeOver(const struct stat& info, const std::string& path) {
    struct stat own;
    if (stat(path.c_str(), &own) != 0)
        return;
    if (own.st_uid != info.st_uid || own.st_gid != info.st_gid)
        if (chown(path.c_str(), info.st_uid, info.st_gid) != 0 && chown(path.c_str(), -1, info.st_gid) != 0)
            return;
    if ((own.st_mode & kPermissions) != (info.st_mode & kPermissions))
        ::chmod(path.c_str(), info.st_mode & kPermissions);
}

class RealFileSystem final : public FileSystem {
  public:
    explicit RealFileSystem(const std::string& winePrefix)
        : resolver_(winePrefix), buffer_(std::make_unique_for_overwrite<char[]>(kReadBuffer)) {}

    bool readFile(std::string_view path, std::string& bytes) override;
    bool fileExists(std::string_view path) override;
    bool folderExists(std::string_view path) override;
    bool isOwnFolder(std::string_view path) override;
    std::optional<FileStamp> stamp(std::string_view path) override;
    std::vector<FolderEntry> listFolder(std::string_view path) override;
    bool writeFile(std::string_view path, std::string_view bytes) override;
    bool deleteFile(std::string_view path) override;
    bool renameFile(std::string_view from, std::string_view to) override;
    bool createFolder(std::string_view path) override;
    bool deleteFolder(std::string_view path) override;
    FileAttributes attributes(std::string_view path) override;
    bool setAttributes(std::string_view path, FileAttributes attributes) override;
    std::string nativePath(std::string_view path) override;

  private:
    const ResolvedPath& resolve(std::string_view path) {
        resolver_.resolve(path, place_);
        return place_;
    }
    int openForReading(std::string_view path);
    bool readOpened(int file, std::string& bytes);
    bool readRest(int file, std::string& bytes);
    bool isFolder(const KeptFolder& folder, const KeptName& name) const;
    static std::string renameTarget(const ResolvedPath& source, const ResolvedPath& place,
                                    std::string_view to);
    bool moveAcrossDisks(const std::string& from, const std::string& to);

    PathResolver resolver_;
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
bool RealFileSystem::readOpened(int file, std::string& bytes) {
    const ssize_t count = readAt(file, buffer_.get(), 0);
    if (count < 0)
        return false;
    bytes.assign(buffer_.get(), std::size_t(count));
    if (count > 0 && std::size_t(count) < kReadBuffer && readAt(file, buffer_.get(), bytes.size()) == 0)
        return true;
    return readRest(file, bytes);
}

bool RealFileSystem::readRest(int file, std::string& bytes) {
    struct stat info;
    if (fstat(file, &info) != 0 || !S_ISREG(info.st_mode) || info.st_size > kLargestFile)
        return false;
    bytes.reserve(std::size_t(info.st_size));
    while (!bytes.empty()) {
        const ssize_t count = readAt(file, buffer_.get(), bytes.size());
        if (count <= 0)
            return count == 0;
        bytes.append(buffer_.get(), std::size_t(count));
        if (bytes.size() > std::size_t(kLargestFile))
            return false;
    }
    return true;
}

bool RealFileSystem::readFile(std::string_view path, std::string& bytes) {
    const Descriptor file(openForReading(path));
    if (file.isOpen() && readOpened(file.get(), bytes))
        return true;
    bytes.clear();
    return false;
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

bool RealFileSystem::writeFile(std::string_view path, std::string_view bytes) {
    resolve(path);
    if (!place_.folder || (place_.exists && !place_.isFile()) || isReadOnly(place_))
        return false;
    place_.folder->forget();
    Descriptor file(openFile(place_.real, O_WRONLY | O_CREAT | O_TRUNC));
    if (!file.isOpen() || !writeAll(file.get(), bytes) || ::fsync(file.get()) != 0 || !file.close())
        return false;
    return place_.exists || syncFolder(place_.folder->path());
}

bool RealFileSystem::deleteFile(std::string_view path) {
    if (!resolve(path).isFile() || isReadOnly(place_))
        return false;
    place_.folder->forget();
    return ::unlink(place_.real.c_str()) == 0;
}

// Renaming works within one disk only, but a file that is replaced may be a link to one on another disk:
// there the new contents are made complete beside it first.
bool RealFileSystem::moveAcrossDisks(const std::string& from, const std::string& to) {
    std::string bytes;
    struct stat info;
    const std::string sibling = to + "~new";
    if (!readFile(from, bytes) || stat(from.c_str(), &info) != 0)
        return false;
    const bool written = writeFile(sibling, bytes);
    if (written)
        takeOver(info, sibling);
    if (!written || ::rename(sibling.c_str(), to.c_str()) != 0) {
        ::unlink(sibling.c_str());
        return false;
    }
    ::unlink(from.c_str());
    return true;
}

// The native path that a file renamed to the place gets; nothing when it must not get there.
std::string RealFileSystem::renameTarget(const ResolvedPath& source, const ResolvedPath& place,
                                         std::string_view to) {
    if (!place.folder || (place.exists && !place.isFile()))
        return {};
    if (!place.exists)
        return place.real;
    if (place.real == source.real) // only the case of its name changes
        return std::string(place.folder->path()).append(parseSimPath(to).parts.back());
    return isReadOnly(place) ? std::string() : followLinks(place.real);
}

bool RealFileSystem::renameFile(std::string_view from, std::string_view to) {
    const ResolvedPath source = resolve(from);
    const ResolvedPath place = resolve(to);
    const std::string target = renameTarget(source, place, to);
    if (!source.isFile() || target.empty())
        return false;
    if (place.exists && place.real != source.real)
        takeOver(place.info, source.real);
    source.folder->forget();
    place.folder->forget();
    if (::rename(source.real.c_str(), target.c_str()) != 0 &&
        (errno != EXDEV || !moveAcrossDisks(source.real, target)))
        return false;
    syncFolder(target.substr(0, target.find_last_of('/') + 1));
    return true;
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

FileAttributes RealFileSystem::attributes(std::string_view path) {
    resolve(path);
    return {.readOnly = isReadOnly(place_)};
}

bool RealFileSystem::setAttributes(std::string_view path, FileAttributes attributes) {
    if (!resolve(path).exists)
        return false;
    const mode_t mode = place_.info.st_mode & kPermissions;
    return ::chmod(place_.real.c_str(), attributes.readOnly ? mode & ~kWriteBits : mode | S_IWUSR) == 0;
}

std::string RealFileSystem::nativePath(std::string_view path) {
    return resolver_.describe(path);
}

} // namespace

std::unique_ptr<FileSystem> makeRealFileSystem(const std::string& winePrefix) {
    return std::make_unique<RealFileSystem>(winePrefix);
}

} // namespace zandor
