#include "platform/kept_folder.h"

#include "platform/letter_case.h"
#include "platform/utf8.h"

#include <algorithm>
#include <cstdint>
#include <errno.h>
#include <memory>
#include <utility>

#include <dirent.h>
#include <sys/stat.h>

namespace zandor {

namespace {

constexpr long long kSecond = 1'000'000'000;

bool sameTime(const timespec& a, const timespec& b) {
    return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec;
}

// Two changes within one tick of the disk's clock leave the same time, so a folder changed just now may
// change again unseen. A time of whole seconds is taken for that of a disk which counts no finer than two of
// them.
bool isSettled(const timespec& modified) {
    timespec now;
    clock_gettime(CLOCK_REALTIME, &now);
    const long long tick = modified.tv_nsec == 0 ? 2 * kSecond : kSecond / 20;
    const long long seconds = now.tv_sec - modified.tv_sec;
    if (seconds > 3 || seconds < -3)
        return true;
    const long long age = seconds * kSecond + now.tv_nsec - modified.tv_nsec;
    return age > tick || age < -tick;
}

KeptName::Kind kindOf(unsigned char type) {
    if (type == DT_LNK || type == DT_UNKNOWN)
        return KeptName::Unknown;
    return type == DT_DIR ? KeptName::Folder : KeptName::File;
}

struct CloseFolder {
    void operator()(DIR* folder) const { closedir(folder); }
};

// Calls `visit` with each name and type. Gives 0, or the error when the folder can't be read to its end.
template <typename Visit> int visitNames(const std::string& path, Visit visit) {
    const std::unique_ptr<DIR, CloseFolder> folder(opendir(path.c_str()));
    if (!folder)
        return errno;
    for (;;) {
        errno = 0;
        const dirent* entry = readdir(folder.get());
        if (!entry)
            return errno;
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..")
            visit(name, entry->d_type);
    }
}

// A folder that this user may not list has no names to go by; any other error may pass.
NameSearch missingAfter(int error) {
    return error == 0 || error == EACCES ? NameSearch::Missing : NameSearch::Failed;
}

KeptName makeName(std::string_view bytes, unsigned char type) {
    KeptName name{shownName(bytes), {}, kindOf(type)};
    if (name.shown != bytes)
        name.onDisk = bytes;
    return name;
}

bool before(const KeptName& a, const KeptName& b) {
    return lessIgnoringCase(a.shown, b.shown);
}

// Numbers of names in the order of the names; names of one number may stand in any order. Saves the sorting
// of a large folder most of its comparisons.
std::uint64_t beginningOf(std::string_view name) {
    std::uint64_t beginning = 0;
    for (std::size_t at = 0; at < sizeof beginning; ++at) {
        const unsigned char byte = at < name.size() ? static_cast<unsigned char>(name[at]) : 0;
        beginning =
            beginning << 8 | (byte >= 'a' && byte <= 'z' ? byte - 32u : std::min<unsigned>(byte, 0x80));
        if (byte >= 0x80) // the order beyond ASCII is told by the whole comparison
            return beginning << 8 * (sizeof beginning - 1 - at);
    }
    return beginning;
}

std::vector<KeptName> sorted(std::vector<KeptName>&& names) {
    std::vector<std::pair<std::uint64_t, KeptName*>> order;
    order.reserve(names.size());
    for (KeptName& name : names)
        order.emplace_back(beginningOf(name.shown), &name);
    std::sort(order.begin(), order.end(), [](const auto& a, const auto& b) {
        return a.first != b.first ? a.first < b.first : before(*a.second, *b.second);
    });
    std::vector<KeptName> result;
    result.reserve(names.size());
    for (const auto& [beginning, name] : order)
        result.push_back(std::move(*name));
    return result;
}

// Which of two names that differ from `wanted` in case at most is meant by it: one of the very bytes, one
// that is shown so, or the first in order.
bool isBetter(std::string_view wanted, const KeptName& candidate, const KeptName& best) {
    if ((candidate.bytes() == wanted) != (best.bytes() == wanted))
        return candidate.bytes() == wanted;
    if ((candidate.shown == wanted) != (best.shown == wanted))
        return candidate.shown == wanted;
    return before(candidate, best);
}

} // namespace

std::string shownName(std::string_view bytes) {
    if (isUtf8(bytes))
        return std::string(bytes);
    std::string shown;
    for (const char byte : bytes)
        appendCharacter(shown, static_cast<unsigned char>(byte));
    return shown;
}

void KeptFolder::forget() {
    kept_ = false;
    names_.clear();
}

KeptFolder::State KeptFolder::check() {
    struct stat info;
    if (stat(path_.c_str(), &info) != 0) {
        forget();
        return State::Gone;
    }
    if (kept_ && sameTime(info.st_mtim, stamp_))
        return State::Kept;
    forget();
    stamp_ = info.st_mtim;
    settled_ = isSettled(stamp_);
    return State::Changed;
}

int KeptFolder::readNames() {
    std::vector<KeptName> names;
    const int error = visitNames(path_, [&names](std::string_view name, unsigned char type) {
        names.push_back(makeName(name, type));
    });
    names_ = error == 0 ? sorted(std::move(names)) : std::vector<KeptName>();
    return error;
}

const std::vector<KeptName>& KeptFolder::names() {
    if (check() == State::Changed)
        kept_ = readNames() == 0 && settled_;
    return names_;
}

// The first of the names that are the same but for case, and the best of them.
const KeptName* KeptFolder::find(std::string_view name) const {
    auto at = std::partition_point(names_.begin(), names_.end(), [name](const KeptName& candidate) {
        return lessIgnoringCase(candidate.shown, name) && !equalIgnoringCase(candidate.shown, name);
    });
    const KeptName* best = nullptr;
    for (; at != names_.end() && equalIgnoringCase(at->shown, name); ++at)
        if (!best || isBetter(name, *at, *best))
            best = &*at;
    return best;
}

bool KeptFolder::keepsWithout(std::string_view name) const {
    if (!kept_)
        return false;
    const KeptName* found = find(name);
    return !found || found->bytes() != name;
}

// Reads a folder that may still change unseen for this one name, in place of sorting what can't be kept.
NameSearch KeptFolder::scan(std::string_view name, std::string& bytes) const {
    KeptName best;
    const int error = visitNames(path_, [&](std::string_view candidate, unsigned char type) {
        KeptName found = makeName(candidate, type);
        if (equalIgnoringCase(found.shown, name) && (best.shown.empty() || isBetter(name, found, best)))
            best = std::move(found);
    });
    bytes = best.bytes();
    return error != 0 || bytes.empty() ? missingAfter(error) : NameSearch::Found;
}

NameSearch KeptFolder::search(std::string_view name, std::string& bytes) {
    const State state = check();
    if (state == State::Gone)
        return NameSearch::FolderGone;
    if (state == State::Changed && !settled_)
        return scan(name, bytes);
    if (state == State::Changed) {
        if (const int error = readNames())
            return missingAfter(error);
        kept_ = true;
    }
    const KeptName* found = find(name);
    if (!found)
        return NameSearch::Missing;
    bytes = found->bytes();
    return NameSearch::Found;
}

} // namespace zandor
