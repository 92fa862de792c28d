#include "verify/pass_files.h"

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
    folder.files.reserve(folder.entries.size());
    for (const FolderEntry& entry : folder.entries)
        (entry.isFolder ? folder.folders : folder.files).insert(lowerCase(entry.name));
    return folder;
}

// nullptr: what the path leads to isn't told by these two.
const PassFiles::Folder* PassFiles::folderAbove(std::string_view path, std::string_view name) {
    if (name.empty() || name.size() == path.size() || name == "." || name == "..")
        return nullptr;
    const std::string_view text = path.substr(0, path.size() - name.size());
    const auto known = asAsked_.find(text);
    if (known != asAsked_.end())
        return known->second;
    const SimPath parsed = parseSimPath(text);
    return asAsked_.emplace(text, &folder(folderKey(parsed, parsed.parts.size()))).first->second;
}

bool PassFiles::fileExists(std::string_view path) {
    const std::string_view name = lastComponent(path);
    if (const Folder* above = folderAbove(path, name))
        return above->files.contains(lowerCase(name));
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
