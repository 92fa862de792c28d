#include "platform/path_resolver.h"

#include <errno.h>
#include <limits.h>
#include <stdlib.h>

namespace zandor {

namespace {

// A folder known for longer is looked up again, lest a new one of the exact spelling stays unseen beside it.
constexpr auto kTrusted = std::chrono::seconds(1);
constexpr std::size_t kLongestPath = 2 * PATH_MAX; // a name shown as Latin-1 has up to twice its bytes

bool isSeparator(char c) {
    return c == '\\' || c == '/';
}

// No file has such a path, and the system would cut it at the NUL.
bool isImpossible(std::string_view path) {
    return path.empty() || path.size() > kLongestPath || path.find('\0') != std::string_view::npos;
}

struct SplitPath {
    std::string_view folder; // with the separator at its end
    std::string_view name;   // empty when only a full parse can tell
};

SplitPath splitPath(std::string_view path) {
    while (path.size() > 1 && isSeparator(path.back()))
        path.remove_suffix(1);
    const std::size_t separator = path.find_last_of("/\\");
    if (separator == std::string_view::npos)
        return {};
    const std::string_view name = path.substr(separator + 1);
    if (name == "." || name == "..")
        return {};
    return {path.substr(0, separator + 1), name};
}

bool isFolder(const std::string& path) {
    struct stat info;
    return stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

// Where the links of a drive lead, or nothing when it doesn't exist.
std::string realRoot(const std::string& path) {
    char* real = realpath(path.c_str(), nullptr);
    std::string root = real ? real : "";
    free(real);
    return root;
}

std::string_view lastName(std::string_view native) {
    return native.substr(native.find_last_of('/') + 1);
}

// A name that isn't there as it is spelled may be there in another case.
bool mayBeSpelledOtherwise(int error) {
    return error != EACCES && error != ELOOP;
}

// A listed name that leads nowhere, or was deleted since.
bool isBrokenLink(int error) {
    return error == ENOENT || error == ENOTDIR || error == ELOOP || error == EACCES;
}

} // namespace

KeptFolder* PathResolver::known(std::string_view folderText) const {
    const auto at = folders_.find(folderText);
    if (at == folders_.end() || Clock::now() - at->second.checked > kTrusted)
        return nullptr;
    return at->second.folder;
}

KeptFolder* PathResolver::remember(std::string_view folderText, KeptFolder* folder) {
    if (folder)
        folders_.insert_or_assign(std::string(folderText), Known{folder, Clock::now()});
    return folder;
}

KeptFolder* PathResolver::keptFolder(std::string path) {
    std::unique_ptr<KeptFolder>& kept = kept_[path];
    if (!kept)
        kept = std::make_unique<KeptFolder>(std::move(path));
    return kept.get();
}

std::string PathResolver::rootPath(const SimPath& path) const {
    if (path.drive == 0)
        return path.rooted ? "/" : "./";
    if (winePrefix_.empty())
        return path.drive == 'z' ? "/" : "";
    return winePrefix_ + "/dosdevices/" + path.drive + ":/";
}

KeptFolder* PathResolver::rootOf(const SimPath& path) {
    std::string root = rootPath(path);
    return isFolder(root) ? keptFolder(std::move(root)) : nullptr;
}

// Walks down from the root, so that each folder on the way is known to its neighbours too.
KeptFolder* PathResolver::folderOf(const SimPath& path, std::size_t count, bool& gone) {
    std::string key = folderKey(path, 0);
    KeptFolder* folder = known(key);
    if (!folder)
        folder = remember(key, rootOf(path));
    ResolvedPath next;
    for (std::size_t i = 0; folder && i < count; ++i) {
        key.append(path.parts[i]) += '\\';
        KeptFolder* below = known(key);
        if (!below) {
            gone = findIn(*folder, path.parts[i], next) == NameSearch::FolderGone;
            below = next.isFolder() ? remember(key, keptFolder(next.real + '/')) : nullptr;
        }
        folder = below;
    }
    return folder;
}

// Tries the exact spelling first, unless the kept names lack it: then the folder's time stamp tells whether
// they hold.
NameSearch PathResolver::findIn(KeptFolder& folder, std::string_view name, ResolvedPath& result) {
    result.folder = &folder;
    result.real.assign(folder.path()).append(name);
    result.exists = false;
    if (name == ".." || !folder.keepsWithout(name)) {
        result.exists = stat(result.real.c_str(), &result.info) == 0;
        if (result.exists)
            return NameSearch::Found;
        if (!mayBeSpelledOtherwise(errno))
            return NameSearch::Missing;
    }
    NameSearch search = folder.search(name, nameBytes_);
    if (search == NameSearch::Found) {
        result.real.assign(folder.path()).append(nameBytes_);
        result.exists = stat(result.real.c_str(), &result.info) == 0;
        if (!result.exists && !isBrokenLink(errno))
            search = NameSearch::Failed;
    }
    if (search == NameSearch::Failed || search == NameSearch::FolderGone)
        result.folder = nullptr;
    return search;
}

// False when a folder that was known is gone, and all must be looked up anew.
bool PathResolver::resolveOnce(std::string_view path, ResolvedPath& result) {
    result.folder = nullptr;
    result.exists = false;
    const SplitPath split = splitPath(path);
    if (KeptFolder* folder = split.name.empty() ? nullptr : known(split.folder))
        return findIn(*folder, split.name, result) != NameSearch::FolderGone;

    const SimPath parsed = parseSimPath(path);
    const std::size_t above = parsed.parts.empty() ? 0 : parsed.parts.size() - 1;
    bool gone = false;
    KeptFolder* folder = folderOf(parsed, above, gone);
    if (!folder)
        return !gone;
    if (!split.name.empty())
        remember(split.folder, folder);
    if (!parsed.parts.empty())
        return findIn(*folder, parsed.parts.back(), result) != NameSearch::FolderGone;
    result.folder = folder;
    result.real = folder->path();
    result.exists = stat(result.real.c_str(), &result.info) == 0;
    return true;
}

void PathResolver::resolve(std::string_view path, ResolvedPath& result) {
    if (isImpossible(path)) {
        result.folder = nullptr;
        result.exists = false;
    } else if (!resolveOnce(path, result)) {
        forgetFolders();
        resolveOnce(path, result);
    }
}

KeptFolder* PathResolver::resolveFolder(std::string_view path) {
    ResolvedPath found;
    resolve(path, found);
    if (!found.isFolder())
        return nullptr;
    return keptFolder(found.real.ends_with('/') ? found.real : found.real + '/');
}

const std::string* PathResolver::asSpelled(std::string_view path) {
    const SplitPath split = splitPath(path);
    if (split.name.empty() || isImpossible(path))
        return nullptr;
    const KeptFolder* folder = known(split.folder);
    if (!folder)
        return nullptr;
    spelled_.assign(folder->path()).append(split.name);
    return &spelled_;
}

std::string PathResolver::describe(std::string_view path) {
    const SimPath parsed = parseSimPath(path);
    std::string native = parsed.rooted ? realRoot(rootPath(parsed)) : ".";
    if (native.empty() || isImpossible(path))
        return std::string(path);
    ResolvedPath found;
    for (std::size_t i = 0; i < parsed.parts.size(); ++i) {
        resolve(folderKey(parsed, i + 1), found);
        const std::string_view name = found.exists ? lastName(found.real) : parsed.parts[i];
        native.append(native == "/" ? "" : "/").append(shownName(name));
    }
    return parsed.rooted || native == "." ? native : native.substr(2);
}

} // namespace zandor
