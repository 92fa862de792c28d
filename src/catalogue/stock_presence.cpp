#include "catalogue/stock_presence.h"

#include "catalogue/catalogue.h"
#include "catalogue/name_key.h"

#include <algorithm>

namespace zandor {

bool StockPresence::has(std::string_view folder, std::string_view file) {
    makeNameKey(folder, file, key_);
    const auto known = known_.find(key_);
    if (known != known_.end())
        return known->second;
    const bool found = std::any_of(roots_.begin(), roots_.end(),
                                   [&](const std::string& root) { return isIn(root, folder, file); });
    known_.emplace(key_, found);
    return found;
}

bool StockPresence::isIn(std::string_view root, std::string_view folder, std::string_view file) const {
    if (root.empty())
        return false;
    std::string path = trainsetPath(root);
    path.append(folder).append(1, '\\').append(file);
    return FileExists(files_, path);
}

std::vector<std::string> rootsInReach(const Roots& roots) {
    std::vector<std::string> reach{roots.RootPrimary()};
    if (equalIgnoringCase(roots.RootPrimary(), roots.RootTStore))
        reach.push_back(roots.RootMSTS);
    return reach;
}

} // namespace zandor
