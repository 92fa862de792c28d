#include "verify/pass_files.h"

#include "platform/letter_case.h"
#include "platform/sim_path.h"

namespace zandor {

namespace {

// A path's folder, as spelled, and its last component in lower case; no name for a root.
struct Place {
    std::string folder, name;
};

Place placeOf(std::string_view text) {
    const SimPath path = parseSimPath(text);
    if (path.parts.empty())
        return {folderKey(path, 0), {}};
    return {folderKey(path, path.parts.size() - 1), lowerCase(path.parts.back())};
}

} // namespace

const PassFiles::Folder& PassFiles::folder(const std::string& path) {
    const auto [found, isNew] = folders_.try_emplace(lowerCase(path));
    Folder& folder = found->second;
    if (!isNew)
        return folder;
    folder.entries = files_.listFolder(path);
    for (const FolderEntry& entry : folder.entries)
        (entry.isFolder ? folder.folders : folder.files).insert(lowerCase(entry.name));
    return folder;
}

bool PassFiles::fileExists(std::string_view path) {
    const Place place = placeOf(path);
    return !place.name.empty() && folder(place.folder).files.contains(place.name);
}

bool PassFiles::folderExists(std::string_view path) {
    const Place place = placeOf(path);
    return place.name.empty() || folder(place.folder).folders.contains(place.name);
}

std::vector<std::string> PassFiles::filesOf(std::string_view path, std::string_view extension) {
    const SimPath parsed = parseSimPath(path);
    std::vector<std::string> names;
    for (const FolderEntry& entry : folder(folderKey(parsed, parsed.parts.size())).entries)
        if (!entry.isFolder && lowerCase(entry.name).ends_with(extension))
            names.push_back(entry.name);
    return names;
}

} // namespace zandor
