#include "catalogue/routes.h"

#include "catalogue/name_key.h"

#include <unordered_map>

namespace zandor {

namespace {

bool isConsist(const ConsistEntry& entry, std::string_view folder, std::string_view file) {
    return equalIgnoringCase(entry.FileName, file) && equalIgnoringCase(entry.FolderPath, folder);
}

} // namespace

std::string routesPath(std::string_view root) {
    return std::string(root) + "\\ROUTES\\";
}

void CheckStockFile(StockPresence& stock, ActiviteMateriel& vehicle) {
    vehicle.Manquant = !stock.has(vehicle.Dossier, stockFileOf(vehicle));
}

const RouteMSTS* findRouteUsing(const RootCatalogue& catalogue, std::string_view consistFile) {
    constexpr std::string_view Extension = ".con";
    if (!endsWithIgnoringCase(consistFile, Extension))
        return nullptr;
    consistFile.remove_suffix(Extension.size());
    for (const RouteMSTS& route : catalogue.Routes)
        for (const ServiceRoute& service : route.Services)
            if (equalIgnoringCase(service.Rame, consistFile))
                return &route;
    return nullptr;
}

void MarkRameUsed(Catalogue& catalogue, std::string_view name, std::string_view root) {
    const std::string folder = consistsPath(root), file = std::string(name) + ".con";
    for (ConsistEntry& entry : catalogue.ConsistIndex)
        if (isConsist(entry, folder, file)) {
            entry.Used = true;
            return;
        }
}

void markUsedConsists(Catalogue& catalogue, const Roots& roots) {
    std::unordered_map<std::string, ConsistEntry*> byName;
    for (ConsistEntry& entry : catalogue.ConsistIndex)
        byName.try_emplace(foldedNameKey(entry.FolderPath, entry.FileName), &entry);
    for (const Root root : {Root::Simulator, Root::Store})
        for (const RouteMSTS& route : catalogue.of(root).Routes)
            for (const ServiceRoute& service : route.Services) {
                if (service.Rame.empty() || route.Nom.empty())
                    continue;
                const auto found =
                    byName.find(foldedNameKey(consistsPath(roots.path(root)), service.Rame + ".con"));
                if (found != byName.end())
                    found->second->Used = true;
            }
}

} // namespace zandor
