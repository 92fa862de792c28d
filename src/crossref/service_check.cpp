#include "crossref/service_check.h"

#include <algorithm>

namespace zandor {

std::string ResolveRamePath(FileSystem& files, const Roots& roots, std::string_view file) {
    std::string path = consistsPath(roots.RootPrimary()).append(file);
    if (roots.RootSecondary().empty() || FileExists(files, path))
        return path;
    return consistsPath(roots.RootSecondary()).append(file);
}

ServiceCheck::ServiceCheck(FileSystem& files, const Roots& roots)
    : files_(files), roots_(roots), reader_(files), stock_(files, rootsInReach(roots)) {}

void ServiceCheck::CheckServiceRame(ServiceRoute& service) {
    const auto [known, isNew] = known_.try_emplace(lowerCase(service.Rame));
    if (isNew)
        known->second = look(service.Rame + ".con");
    service.RameManquante = known->second.rameMissing;
    service.MaterielManquant = known->second.stockMissing;
}

ServiceCheck::Found ServiceCheck::look(std::string_view file) {
    const std::string path = ResolveRamePath(files_, roots_, file);
    if (!FileExists(files_, path))
        return {true, false};
    // What is wrong with the file is the verifier's business; the vehicles read until then count.
    ReadConsistFile(reader_, rame_, items_, path);
    const bool missing = std::any_of(items_.begin(), items_.end(), [this](const RameItem& item) {
        return !item.Folder.empty() && !stock_.has(item.Folder, stockFileOf(item));
    });
    return {false, missing};
}

bool checkServices(Frame& frame, ServiceCheck& check, RouteMSTS& route) {
    for (ServiceRoute& service : route.Services) {
        if (!frame.progress.yield())
            return false;
        frame.progress.atFile(service.Fichier);
        check.CheckServiceRame(service);
    }
    return true;
}

} // namespace zandor
