#include "catalogue/stock_presence.h"

#include "catalogue/catalogue.h"

#include <algorithm>

namespace zandor {

namespace {

// False for a path of several components, which leads out of TRAINSET or deeper into it.
bool isPlainName(std::string_view name) {
    return !name.empty() && name.find_first_of("\\/") == std::string_view::npos && name != "." &&
           name != "..";
}

bool standsBefore(const std::string& name, std::string_view wanted) {
    return lessIgnoringCase(name, wanted) && !equalIgnoringCase(name, wanted);
}

} // namespace

bool StockPresence::has(std::string_view folder, std::string_view file) {
    if (!isPlainName(folder) || !isPlainName(file))
        return std::any_of(roots_.begin(), roots_.end(),
                           [&](const std::string& root) { return isIn(root, folder, file); });
    const Names& names = namesIn(folder);
    const auto found = std::lower_bound(names.begin(), names.end(), file, standsBefore);
    return found != names.end() && equalIgnoringCase(*found, file);
}

bool StockPresence::isIn(const std::string& root, std::string_view folder, std::string_view file) const {
    if (root.empty())
        return false;
    std::string path = trainsetPath(root);
    path.append(folder).append(1, '\\').append(file);
    return FileExists(files_, path);
}

const StockPresence::Names& StockPresence::namesIn(std::string_view folder) {
    const auto known = folders_.find(folder);
    if (known != folders_.end())
        return known->second;
    Names& names = folders_[std::string(folder)];
    for (const std::string& root : roots_)
        if (!root.empty())
            addNames(trainsetPath(root).append(folder), names);
    return names;
}

void StockPresence::addNames(const std::string& path, Names& names) const {
    const auto middle = static_cast<Names::difference_type>(names.size());
    for (FolderEntry& entry : files_.listFolder(path))
        if (!entry.isFolder &&
            (endsWithIgnoringCase(entry.name, ".eng") || endsWithIgnoringCase(entry.name, ".wag")))
            names.push_back(std::move(entry.name));
    std::inplace_merge(names.begin(), names.begin() + middle, names.end(), lessIgnoringCase);
}

std::vector<std::string> rootsInReach(const Roots& roots) {
    std::vector<std::string> reach{roots.RootPrimary()};
    if (equalIgnoringCase(roots.RootPrimary(), roots.RootTStore))
        reach.push_back(roots.RootMSTS);
    return reach;
}

} // namespace zandor
