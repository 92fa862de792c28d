#include "catalogue/catalogue.h"

namespace zandor {

namespace {

CatalogueSnapshot* slotOf(const AppState& state, Catalogue& catalogue, std::string_view root) {
    if (equalIgnoringCase(root, state.RootMSTS))
        return &catalogue.snapshots[0];
    if (equalIgnoringCase(root, state.RootTStore))
        return &catalogue.snapshots[1];
    return nullptr;
}

} // namespace

void SaveCatalogueSnapshot(const AppState& state, Catalogue& catalogue, std::string_view root) {
    CatalogueSnapshot* slot = slotOf(state, catalogue, root);
    if (!slot)
        return;
    if (catalogue.complete)
        *slot = {true,
                 std::string(root),
                 catalogue.ConsistFiles,
                 catalogue.Materiels,
                 catalogue.RamesEnService,
                 catalogue.ConsistSummaries,
                 catalogue.summariesRead};
    else
        *slot = {};
}

bool RestoreCatalogueSnapshot(Catalogue& catalogue, std::string_view root) {
    for (const CatalogueSnapshot& slot : catalogue.snapshots) {
        if (!slot.valid || !equalIgnoringCase(slot.root, root))
            continue;
        catalogue.ConsistFiles = slot.ConsistFiles;
        catalogue.Materiels = slot.Materiels;
        catalogue.RamesEnService = slot.RamesEnService;
        catalogue.ConsistSummaries = slot.ConsistSummaries;
        catalogue.summariesRead = slot.summariesRead;
        catalogue.complete = true;
        return true;
    }
    return false;
}

void forgetSummaries(Catalogue& catalogue) {
    catalogue.ConsistSummaries.assign(1, {});
    catalogue.summariesRead = false;
}

void dropSnapshot(const AppState& state, Catalogue& catalogue, bool simulatorRoot) {
    CatalogueSnapshot& slot = catalogue.snapshots[simulatorRoot ? 0 : 1];
    slot = {};
    slot.root = simulatorRoot ? state.RootMSTS : state.RootTStore;
}

} // namespace zandor
