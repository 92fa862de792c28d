#include "platform/replacement_posix.h"

#include "platform/descriptor_posix.h"

#include <errno.h>
#include <stdio.h>
#include <time.h>

#include <dirent.h>

#include <sys/random.h>

namespace zandor {

namespace {

constexpr mode_t kPermissions = 07777;
constexpr mode_t kSetOwner = S_ISUID | S_ISGID;
constexpr mode_t kForAnybody = 0666; // less what the user's mask takes away
constexpr mode_t kForMe = 0600;
constexpr int kTries = 16;

// A write that writes nothing would go on for ever.
bool writeAll(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(file, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes.remove_prefix(std::size_t(written));
    }
    return true;
}

bool sync(int file) {
    int result;
    do
        result = ::fsync(file);
    while (result != 0 && errno == EINTR);
    return result == 0;
}

// Gives the file the owner and group of `old` as far as this user may, and tells the permissions that go with
// them: a group that isn't the old one gets no more than everybody.
mode_t takeOwner(int file, const struct stat& old) {
    const mode_t mode = old.st_mode & kPermissions;
    if (::fchown(file, old.st_uid, old.st_gid) == 0)
        return mode;
    if (::fchown(file, uid_t(-1), old.st_gid) == 0)
        return mode & ~mode_t(kSetOwner);
    const mode_t others = mode & S_IRWXO;
    return (mode & S_IRWXU) | others | others << 3;
}

// A disk may know no permissions; but what was read-only must not become writable by it.
bool takeOver(int file, const struct stat& old) {
    struct stat own;
    if (::fstat(file, &own) != 0)
        return false;
    const bool sameOwner = own.st_uid == old.st_uid && own.st_gid == old.st_gid;
    const mode_t mode = sameOwner ? old.st_mode & kPermissions : takeOwner(file, old);
    return ::fchmod(file, mode) == 0 || (mode & S_IWUSR) != 0;
}

constexpr std::string_view kSiblingBeginning = ".zandor-";
constexpr std::size_t kSiblingLength = kSiblingBeginning.size() + 32;
constexpr time_t kAbandonedAfter = 60; // seconds

bool isAbandoned(int folder, const char* name) {
    struct stat info;
    return std::string_view(name).starts_with(kSiblingBeginning) &&
           std::string_view(name).size() == kSiblingLength &&
           ::fstatat(folder, name, &info, AT_SYMLINK_NOFOLLOW) == 0 && S_ISREG(info.st_mode) &&
           info.st_uid == geteuid() && ::time(nullptr) - info.st_ctime > kAbandonedAfter;
}

// What a program that was killed between the naming and the renaming has left in this folder.
void removeAbandoned(int folder) {
    const int again = openAt(folder, ".", O_RDONLY | O_DIRECTORY);
    DIR* const names = again < 0 ? nullptr : ::fdopendir(again);
    if (!names) {
        if (again >= 0)
            ::close(again);
        return;
    }
    while (const dirent* entry = ::readdir(names))
        if (isAbandoned(folder, entry->d_name))
            ::unlinkat(folder, entry->d_name, 0);
    ::closedir(names);
}

// A name that nobody can foresee, or nothing. It ends in nothing that a pattern of simulator files matches.
std::string freshName() {
    unsigned char random[16];
    if (::getrandom(random, sizeof random, 0) != ssize_t(sizeof random))
        return {};
    std::string name(kSiblingBeginning);
    for (const unsigned char byte : random) {
        constexpr char digits[] = "0123456789abcdef";
        name += digits[byte >> 4];
        name += digits[byte & 15];
    }
    return name;
}

// Who may write in a folder but not list it has a descriptor too, that only can't be synced.
int openFolder(const std::string& path) {
    const int folder = openAt(AT_FDCWD, path.c_str(), O_RDONLY | O_DIRECTORY);
    return folder >= 0 ? folder : openAt(AT_FDCWD, path.c_str(), O_PATH | O_DIRECTORY);
}

// All names are looked up in the folder as it was opened, whatever becomes of the path to it.
class Replacement {
  public:
    Replacement(const std::string& target, const struct stat* old)
        : folder_(openFolder(target.substr(0, target.find_last_of('/') + 1))),
          name_(target.substr(target.find_last_of('/') + 1)), old_(old) {}

    bool put(std::string_view bytes, NamelessFiles nameless) {
        if (!folder_.isOpen() || (!old_ && isTaken()))
            return false;
        Outcome outcome = Outcome::Unknown;
        if (nameless == NamelessFiles::WherePossible)
            outcome = putNameless(bytes);
        if (outcome == Outcome::Unknown)
            outcome = putNamed(bytes);
        if (outcome == Outcome::Done) {
            ::fsync(folder_.get()); // some disks can't, and the new contents stand all the same
            removeAbandoned(folder_.get());
        }
        return outcome == Outcome::Done;
    }

  private:
    enum class Outcome { Done, Failed, Unknown }; // Unknown: this disk can't do it in this way

    mode_t firstMode() const { return old_ ? kForMe : kForAnybody; }
    bool isTaken() const;
    Outcome putNameless(std::string_view bytes);
    Outcome putNamed(std::string_view bytes);
    bool fill(int file, std::string_view bytes) const {
        return writeAll(file, bytes) && (!old_ || takeOver(file, *old_)) && sync(file);
    }
    bool link(const std::string& handle, const std::string& name) const {
        return ::linkat(AT_FDCWD, handle.c_str(), folder_.get(), name.c_str(), AT_SYMLINK_FOLLOW) == 0;
    }
    Outcome move(const std::string& sibling) const;

    const Descriptor folder_;
    const std::string name_;
    const struct stat* const old_;
};

// A file that another program has made since is replaced: its save came before this one.
bool Replacement::isTaken() const {
    struct stat info;
    return ::fstatat(folder_.get(), name_.c_str(), &info, AT_SYMLINK_NOFOLLOW) == 0 && !S_ISREG(info.st_mode);
}

Replacement::Outcome Replacement::move(const std::string& sibling) const {
    if (::renameat(folder_.get(), sibling.c_str(), folder_.get(), name_.c_str()) == 0)
        return Outcome::Done;
    ::unlinkat(folder_.get(), sibling.c_str(), 0);
    return Outcome::Failed;
}

// Whatever ends the program before the last step leaves nothing behind. A nameless file can't replace another
// one as it is, so it gets a name of its own for the moment of the renaming; a new file gets its name at
// once.
Replacement::Outcome Replacement::putNameless(std::string_view bytes) {
    const Descriptor file(openAt(folder_.get(), ".", O_TMPFILE | O_WRONLY, firstMode()));
    if (!file.isOpen())
        return Outcome::Unknown;
    if (!fill(file.get(), bytes))
        return Outcome::Failed;
    const std::string handle = "/proc/self/fd/" + std::to_string(file.get());
    if (!old_ && link(handle, name_))
        return Outcome::Done;
    for (int i = 0; i < kTries; ++i) {
        const std::string sibling = freshName();
        if (!sibling.empty() && link(handle, sibling))
            return move(sibling);
        if (errno != EEXIST)
            break;
    }
    return Outcome::Unknown;
}

Replacement::Outcome Replacement::putNamed(std::string_view bytes) {
    for (int i = 0; i < kTries; ++i) {
        const std::string sibling = freshName();
        Descriptor file(sibling.empty() ? -1
                                        : openAt(folder_.get(), sibling.c_str(),
                                                 O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, firstMode()));
        if (file.isOpen()) {
            if (fill(file.get(), bytes) && file.close())
                return move(sibling);
            ::unlinkat(folder_.get(), sibling.c_str(), 0);
            break;
        }
        if (errno != EEXIST)
            break;
    }
    return Outcome::Failed;
}

} // namespace

bool putInPlace(const std::string& target, const struct stat* old, std::string_view bytes,
                NamelessFiles nameless) {
    return Replacement(target, old).put(bytes, nameless);
}

} // namespace zandor
